// What the tests share: temporary folders with real files, bytes as text.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace bannersmith {

/// A folder of its own for each test, removed at the end.
class TempFolder {
 public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() { std::filesystem::remove_all(path_); }

    std::filesystem::path Path() const { return path_; }
    std::u16string Text() const { return path_.u16string(); }
    /// Writes a file below the folder, making its folders.
    void Write(const std::string& name, std::string_view bytes) const;
    /// The file's bytes, or "(none)".
    std::string Read(const std::string& name) const;
    /// Every file below the folder by its name, links and temporary files included.
    std::vector<std::string> Names() const;

 private:
    std::filesystem::path path_;
};

/// `bytes` as hexadecimal digits, for readable failures.
std::string Hex(std::string_view bytes);

}  // namespace bannersmith
