#include <fcntl.h>

#include <string>

#include "system/files.h"
#include "system/linux_steps.h"

namespace bannersmith {

std::string Read_Whole(const std::string& path) {
    // Non-blocking, so that a pipe without a writer is refused below and not waited for.
    const Descriptor file(
        Retry([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); }));
    struct stat info {};
    Retry([&] { return ::fstat(file.get(), &info); });
    Require_Regular(info);
    if (info.st_size > LargestFile) Fail(EFBIG);

    std::string bytes(static_cast<std::size_t>(info.st_size) + 1, '\0');
    std::size_t filled = 0;
    for (;;) {
        const auto count =
            Retry([&] { return ::read(file.get(), bytes.data() + filled, bytes.size() - filled); });
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
        if (filled == bytes.size()) bytes.resize(bytes.size() * 2);
    }
    bytes.resize(filled);
    return bytes;
}

Outcome Read_File(const std::u16string& path, std::string& bytes) {
    return Run_Steps(
        path, [&](const std::filesystem::path& native) { bytes = Read_Whole(native.string()); });
}

}  // namespace bannersmith
