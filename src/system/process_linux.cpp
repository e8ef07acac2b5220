#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "base/text.h"
#include "system/process.h"

namespace bannersmith {

std::u16string Command_Line(int argc, char** argv) {
    std::string joined;
    for (int i = 1; i < argc; ++i) joined.append(i > 1 ? " " : "").append(argv[i]);
    return From_Utf8(joined);
}

std::vector<std::u16string> Arguments(int argc, char** argv) {
    std::vector<std::u16string> arguments;
    for (int i = 1; i < argc; ++i) arguments.push_back(From_Utf8(argv[i]));
    return arguments;
}

bool Print(const std::string& text, std::FILE* stream) {
    const bool written = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
    return std::fflush(stream) == 0 && written;
}

bool Is_Terminal(std::FILE* stream) {
    return ::isatty(::fileno(stream)) == 1;
}

std::u16string Program_Folder() {
    std::error_code ignored;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
    return From_Utf8(program.parent_path().string());
}

Result<> Start_Program(const std::u16string& name, char** argv) {
    const std::u16string program = Program_Folder() + u"/" + name;
    ::execv(To_Utf8(program).c_str(), argv);
    return Failure{program, std::strerror(errno)};
}

}  // namespace bannersmith
