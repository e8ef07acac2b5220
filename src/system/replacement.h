// What each system does for one file that is replaced together with others, and for the folder that
// it lies in; the order in which it is called stands in replace_files.cpp. The failures of the
// steps have no subject.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "system/replace_files.h"

namespace bannersmith {

/// The first part of the names of all files that a replacement makes beside the one it replaces.
inline constexpr char LeftoverPrefix[] = ".bannersmith-";

/// The same for an old file that a user was told of because it could not be brought back.
inline constexpr char KeptPrefix[] = ".bannersmith-old-";

/// A folder held open.
struct FolderLock::Folder {
    static constexpr std::intptr_t NoHandle = -1;

    Folder() = default;
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    /// Opens the folder at `folder`; once.
    Result<> Open(std::filesystem::path folder);

    /// Waits until no other run holds the folder, which is open.
    Result<> Lock();

    /// Makes safe which files the folder has, where the system can do that and has not done it.
    Result<> Sync() const;

    std::filesystem::path path;
    std::intptr_t handle = NoHandle;  ///< a descriptor of the folder, or a semaphore of its name
    bool alone = false;               ///< no other run can be at work in it
    bool card = false;  ///< on a file system of memory cards, whose order of writes matters
};

/// One file on its way to new contents. The end of the object removes what it has left beside the
/// file.
class Replacement {
 public:
    Replacement();
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    /// Looks at what is at `path` and refuses what cannot be replaced. To be called once, first.
    Result<> Look_At(const std::filesystem::path& path);

    /// The folder of the file itself, where links to it have been followed.
    std::filesystem::path Folder_Path() const;

    /// Writes a temporary file with `bytes`, as like the old file as can be. `folder` is the file's
    /// own and stays open.
    Result<> Write(const FolderLock::Folder& folder, std::string_view bytes);

    /// Makes what was written safe on the disk.
    Result<> Bring_To_Disk();

    /// Puts the temporary file in the place of the old one. `others_follow`: the old file can then
    /// come back even where that costs a copy of it.
    Result<> Put_In_Place(bool others_follow);

    /// Makes the new file in its new place safe from a crash of the machine, once its folder is
    /// synced.
    Result<> Make_Safe();

    /// Brings back what was there before `Put_In_Place`, if it can.
    bool Can_Be_Put_Back() const;
    Result<> Put_Back();

    /// Lets the old file go. Returns what was lost of it although it was replaced, as parts of a
    /// sentence that begins with "Saved, but".
    std::string Finish();

 private:
    struct State;
    std::unique_ptr<State> state_;
};

/// The file that `path` leads to through any number of links, which need not exist.
Result<std::filesystem::path> Follow_Links(std::filesystem::path path);

/// Removes from the folder what runs that were killed have left there, but nothing of this one,
/// whose other threads may be at work.
void Remove_Leftovers(const FolderLock::Folder& folder);

}  // namespace bannersmith
