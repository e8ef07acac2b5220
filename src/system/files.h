// Paths and files. A path text is kept as the user composed it; only here, where it meets the file
// system, are its separators converted. On every system "\" separates the parts of a path, beside
// the system's own separator.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace bannersmith {

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

/// Whether both paths lead to one file that is there.
bool Same_File(const std::u16string& a, const std::u16string& b);

/// Whether `path` names a folder, with or without a separator at its end. Fails only where that
/// cannot be told.
Result<bool> Is_Folder(const std::u16string& path);

/// The regular files of `folder` that end in one of `endings` whatever its case (".tpl"), sorted by
/// name without case. Hidden files, whose names begin with a dot, are left out.
Result<std::vector<std::u16string>> List_Files(const std::u16string& folder,
                                               const std::vector<std::string_view>& endings);

/// The path without links and detours as far as its parts are there, so that two paths of one file
/// become the same.
std::u16string Canonical_Path(const std::u16string& path);

/// Whether something on the way from `folder` to `path`, which begins with it, is a link, the end
/// included.
bool Leads_Through_Link(const std::u16string& folder, const std::u16string& path);

/// Whether files can be made in a folder, as far as rights tell; nothing is made for that. True
/// where there is no such folder.
bool Can_Write_Into(const std::u16string& folder);

/// Makes the folders that the path of a file leads through, as far as they are missing.
Result<> Make_Folders_Of(const std::u16string& path);

/// The bytes of a regular file.
Result<std::string> Read_File(const std::u16string& path);

}  // namespace bannersmith
