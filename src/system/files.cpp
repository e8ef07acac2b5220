#include "system/files.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "base/text.h"
#include "system/native_path.h"

namespace bannersmith {

namespace fs = std::filesystem;

namespace {

#ifdef _WIN32
constexpr bool Posix = false;
#else
constexpr bool Posix = true;
#endif

bool Is_Separator(char16_t unit) {
    return unit == u'\\' || unit == u'/';
}

char Small_Letter(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
}

std::string Without_Case(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(), Small_Letter);
    return name;
}

/// The regular files of a folder, by their UTF-8 names, in no order. Stops at the first error, but
/// for a link that leads nowhere, which is no file.
std::vector<std::string> Regular_Files(const std::u16string& folder, std::error_code& error) {
    std::vector<std::string> names;
    for (fs::directory_iterator at(Native_Path(folder), error), end; !error && at != end;
         at.increment(error)) {
        std::error_code failed, ignored;
        const fs::file_status status = at->status(failed);
        if (status.type() == fs::file_type::none && !at->is_symlink(ignored)) {
            error = failed;
            break;
        }
        if (!fs::is_regular_file(status)) continue;
        names.push_back(To_Utf8(Text_Of(at->path().filename())));
    }
    return names;
}

}  // namespace

fs::path Native_Path(std::u16string_view path) {
    if (path.find(u'\0') != path.npos) return {};
#ifdef _WIN32
    return {std::wstring(path.begin(), path.end())};
#else
    return {To_Utf8(Replace_All(path, u"\\", u"/"))};
#endif
}

std::u16string Text_Of(const fs::path& path) {
#ifdef _WIN32
    return {path.native().begin(), path.native().end()};
#else
    return From_Utf8(path.native());
#endif
}

bool Is_Full_Path(std::u16string_view path) {
    return (path.size() > 1 && path[1] == u':') || (Posix && path.starts_with(u'/'));
}

bool Ends_In_Separator(std::u16string_view path) {
    return !path.empty() && Is_Separator(path.back());
}

std::u16string With_Backslashes(std::u16string_view path) {
    return Replace_All(path, u"/", u"\\");
}

std::u16string Resolve(std::u16string_view program_folder, std::u16string_view path) {
    std::u16string resolved(path.starts_with(u'\\') ? program_folder : std::u16string_view());
    return resolved.append(path);
}

bool Ordinary_File_Exists(const std::u16string& path) {
    std::error_code ignored;
    if (Ends_In_Separator(path)) return !Regular_Files(path, ignored).empty();
    return fs::is_regular_file(Native_Path(path), ignored);
}

bool Same_File(const std::u16string& a, const std::u16string& b) {
    std::error_code ignored;
    return fs::equivalent(Native_Path(a), Native_Path(b), ignored);
}

Result<bool> Is_Folder(const std::u16string& path) {
    std::error_code error;
    const fs::file_status status = fs::status(Native_Path(path), error);
    if (status.type() == fs::file_type::none) return Failure{path, error.message()};
    return fs::is_directory(status);
}

Result<std::vector<std::u16string>> List_Files(const std::u16string& folder,
                                               const std::vector<std::string_view>& endings) {
    std::error_code error;
    std::vector<std::string> files = Regular_Files(folder, error);
    if (error) return Failure{folder, error.message()};
    std::erase_if(files, [&](const std::string& name) {
        return name.starts_with('.') ||
               std::none_of(endings.begin(), endings.end(), [&](std::string_view ending) {
                   return Without_Case(name).ends_with(Without_Case(std::string(ending)));
               });
    });
    std::sort(files.begin(), files.end(), [](const std::string& a, const std::string& b) {
        const std::string x = Without_Case(a), y = Without_Case(b);
        return x != y ? x < y : a < b;
    });
    std::vector<std::u16string> names;
    names.reserve(files.size());
    for (const std::string& name : files) names.push_back(From_Utf8(name));
    return names;
}

std::u16string Canonical_Path(const std::u16string& path) {
    std::error_code error;
    const fs::path canonical = fs::weakly_canonical(Native_Path(path), error);
    return error ? path : Text_Of(canonical);
}

bool Leads_Through_Link(const std::u16string& folder, const std::u16string& path) {
    fs::path place = Native_Path(folder);
    for (const fs::path& part : Native_Path(path).lexically_relative(place)) {
        place /= part;
        std::error_code ignored;
        if (fs::is_symlink(fs::symlink_status(place, ignored))) return true;
    }
    return false;
}

Result<> Make_Folders_Of(const std::u16string& path) {
    const fs::path folder = Native_Path(path).parent_path();
    std::error_code error;
    if (!folder.empty()) fs::create_directories(folder, error);
    if (error) return Failure{path, error.message()};
    return {};
}

}  // namespace bannersmith
