#include "support.h"

#include <unistd.h>

#include <fstream>
#include <set>

namespace bannersmith {

TempFolder::TempFolder() {
    // No hyphen: on a command line it would begin an option.
    std::string name = (std::filesystem::temp_directory_path() / "bannersmith_test_XXXXXX").string();
    path_ = ::mkdtemp(name.data());
}

void TempFolder::Write(const std::string& name, std::string_view bytes) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name, std::ios::binary) << bytes;
}

std::string TempFolder::Read(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    if (!file) return "(none)";
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> TempFolder::Names() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path_)) {
        if (!entry.is_directory()) names.insert(entry.path().lexically_relative(path_).string());
    }
    return {names.begin(), names.end()};
}

std::string Hex(std::string_view bytes) {
    std::string hex;
    for (const char byte : bytes) {
        for (const int shift : {4, 0}) hex += "0123456789abcdef"[byte >> shift & 0xF];
    }
    return hex;
}

}  // namespace bannersmith
