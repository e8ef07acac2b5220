// Paths and files. A path text is kept as the user composed it; only here, where it meets the file
// system, are its separators converted. On every system "\" separates the parts of a path, beside
// the system's own separator.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/failure.h"

/// Whether `path` stands alone: its second character is ":", or on POSIX its first is "/".
bool Is_Full_Path(std::u16string_view path);

/// Whether `path` ends in a separator, so names a folder.
bool Ends_In_Separator(std::u16string_view path);

/// `path` with each separator written as "\".
std::u16string With_Backslashes(std::u16string_view path);

/// `path` with `program_folder` in front of it where it begins with "\"; otherwise unchanged.
std::u16string Resolve(std::u16string_view program_folder, std::u16string_view path);

/// Whether a search for an ordinary file finds something: a regular file, also through a link. A
/// path that ends in a separator finds any regular file of that folder.
bool Ordinary_File_Exists(const std::u16string& path);

/// Sets `found` to whether `path` names a folder, with or without a separator at its end. Fails
/// only where that cannot be told.
Outcome Find_Folder(const std::u16string& path, bool& found);

/// Sets `names` to the regular files of `folder` that end in `ending` whatever its case (".tpl"),
/// sorted by name without case. Hidden files, whose names begin with a dot, are left out. On
/// failure `names` is empty.
Outcome List_Files(const std::u16string& folder, std::string_view ending,
                   std::vector<std::u16string>& names);

/// Reads a regular file whole into `bytes`. On failure `bytes` is left as it was.
Outcome Read_File(const std::u16string& path, std::string& bytes);

/// How much a file replacement waits for the disk.
enum class Durability {
    synced,    ///< a crash of the machine right after the call loses nothing
    unsynced,  ///< whole old or whole new after a crash of the process only
};

/// Told of what a replacement could not keep of the old file, or leaves behind.
using Notice = std::function<void(const Failure& loss)>;

/// Puts a file with exactly `bytes` in the place of `path`, or makes a new one there. The bytes are
/// written to a temporary file in the same folder, which takes over mode, owner, group, access
/// control list and extended attributes of the old file and then trades places with it, so that at
/// each moment the old or the new file is there whole. What cannot be taken over goes to `notice`;
/// on Windows the system takes it over without telling. A link stays a link: the file it leads to
/// is replaced. A file without write permission, a folder, a pipe and a device are refused. On
/// failure the old file is there as it was and no temporary file is left; the one exception, a new
/// file that could neither be made safe nor be taken back, is told in the reason.
Outcome Replace_File(const std::u16string& path, std::string_view bytes, Durability durability,
                     const Notice& notice = {});

/// A file that is there under a second, hidden name in its own folder too, until the object goes.
/// It comes back in one step that needs no room on the disk, whatever was put in its place
/// meanwhile.
class KeptFile {
 public:
    KeptFile() = default;
    KeptFile(KeptFile&& other) noexcept;
    KeptFile& operator=(KeptFile&&) = delete;
    ~KeptFile();

    /// Keeps the file at `path`, or the one that a link there leads to. On failure there is no
    /// second name.
    Outcome Keep(const std::u16string& path);

    /// Puts the kept file in the place of the one that is there now. On failure it stays under its
    /// second name, which the reason tells.
    Outcome Put_Back();

 private:
    std::u16string path_;
    std::filesystem::path file_, second_name_;
};
