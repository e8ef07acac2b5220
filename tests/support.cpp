#include "support.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace bannersmith {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
    // No hyphen: on a command line it would begin an option.
    std::string name = (fs::temp_directory_path() / "bannersmith_test_XXXXXX").string();
    path_ = ::mkdtemp(name.data());
}

TempFolder::~TempFolder() { fs::remove_all(path_); }

void TempFolder::Write(const std::string& name, std::string_view bytes) const {
    fs::create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name, std::ios::binary) << bytes;
}

std::string TempFolder::Read(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    if (!file) return "(none)";
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> TempFolder::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(path_)) {
        if (!entry.is_directory()) names.push_back(entry.path().lexically_relative(path_).string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string Hex(std::string_view bytes) {
    std::string hex;
    for (const char byte : bytes) {
        hex += "0123456789abcdef"[static_cast<unsigned char>(byte) >> 4];
        hex += "0123456789abcdef"[byte & 0xF];
    }
    return hex;
}

}  // namespace bannersmith
