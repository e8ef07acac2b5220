#include <fcntl.h>
#include <unistd.h>

#include <string>

#include "system/files.h"
#include "system/linux_calls.h"

namespace bannersmith {

Result<std::string> Read_Whole(const std::string& path) {
    // Non-blocking, so that a pipe without a writer is refused below and not waited for.
    const Descriptor file(
        Repeat([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); }));
    if (!file.Is_Open()) return Error_Of(errno);
    struct stat info {};
    if (Repeat([&] { return ::fstat(file.Get(), &info); }) < 0) return Error_Of(errno);
    if (auto regular = Require_Regular(info); !regular) return regular.Why();
    if (info.st_size > LargestFile) return Error_Of(EFBIG);

    std::string bytes(static_cast<std::size_t>(info.st_size) + 1, '\0');
    std::size_t filled = 0;
    for (;;) {
        const auto count = Repeat(
            [&] { return ::read(file.Get(), bytes.data() + filled, bytes.size() - filled); });
        if (count < 0) return Error_Of(errno);
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
        if (filled == bytes.size()) bytes.resize(bytes.size() * 2);
    }
    bytes.resize(filled);
    return bytes;
}

bool Can_Write_Into(const std::u16string& folder) {
    if (::access(Native_Path(folder).c_str(), W_OK) == 0) return true;
    return errno != EACCES && errno != EROFS;
}

Result<std::string> Read_File(const std::u16string& path) {
    return Run_Steps(
        path, [](const std::filesystem::path& native) { return Read_Whole(native.string()); });
}

}  // namespace bannersmith
