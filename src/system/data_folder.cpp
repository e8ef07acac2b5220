#include "system/data_folder.h"

#include <filesystem>
#include <system_error>

#include "system/files.h"
#include "system/native_path.h"
#include "system/process.h"

namespace bannersmith {

namespace {

namespace fs = std::filesystem;

constexpr char Configuration[] = "cfgs/vcinfopath.cfg";

fs::path Users_Folder(Variable variable) {
    const auto below = [variable](const char* name, const char* path) {
        const char* value = variable(name);
        return value == nullptr || *value == '\0' ? fs::path() : fs::path(value) / path;
    };
#ifdef _WIN32
    return below("APPDATA", "Bannersmith");
#else
    const fs::path chosen = below("XDG_DATA_HOME", "bannersmith");
    return chosen.is_absolute() ? chosen : below("HOME", ".local/share/bannersmith");
#endif
}

/// The configuration comes last, so that a copy that was not finished is made again.
bool Copy_Data(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::create_directories(to / "cfgs", error);
    constexpr auto How = fs::copy_options::recursive | fs::copy_options::skip_existing;
    for (const char* folder : {"schemes", "logos", "samples", "fonts"}) {
        if (!error && fs::exists(from / folder, error))
            fs::copy(from / folder, to / folder, How, error);
    }
    if (!error) fs::copy_file(from / Configuration, to / Configuration, error);
    return !error;
}

}  // namespace

std::u16string Data_Folder(Variable variable) {
    const std::u16string program_folder = Program_Folder();
    const fs::path own = Native_Path(program_folder), users = Users_Folder(variable);
    std::error_code ignored;
    if (Can_Write_Into(program_folder + u"\\cfgs") || users.empty()) return program_folder;
    if (!fs::exists(users / Configuration, ignored) && !Copy_Data(own, users))
        return program_folder;
    return Text_Of(users);
}

}  // namespace bannersmith
