// Replacing files on the disk so that none is ever lost: several as a whole, each old or new whole
// at any moment, and only one run of Bannersmith in a folder at a time.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "base/result.h"

namespace bannersmith {

/// Keeps other runs of Bannersmith from changing files of some folders, from `Take` to the end of
/// the object. Threads of one run share the folders that they hold at the same time. Advisory:
/// other programs do not know of it, and where the file system has no locks it keeps nobody out.
class FolderLock {
 public:
    /// The system's part: a folder, held open.
    struct Folder;

    FolderLock();
    FolderLock(FolderLock&& other) noexcept;
    FolderLock& operator=(FolderLock&& other) noexcept;
    ~FolderLock();

    /// Takes the folder of the file at `path`, or of the one that a link there leads to, beside
    /// those that are held. Waits for other runs, ten seconds at the most, and fails then. A folder
    /// that cannot be opened is not held, which is no failure. Whoever takes several takes them in
    /// the order of their paths, so that two never wait for each other.
    Result<> Take(const std::u16string& path);

    /// The folder at `path`, opened and held where it was not yet. Fails where that cannot be done.
    Result<const Folder*> Take_Folder(const std::filesystem::path& path);

    /// The folder at `path` if it is held, or null.
    const Folder* Find(const std::filesystem::path& path) const;

 private:
    Result<> Hold(const std::filesystem::path& canonical);

    std::map<std::filesystem::path, std::shared_ptr<Folder>> folders_;  ///< by canonical path
};

/// What a file is to hold from now on.
struct NewContents {
    std::u16string path;
    std::string bytes;
};

/// Told, when all files are in place, of what could not be kept of an old file, or stays behind.
using Notice = std::function<void(const Failure& loss)>;

/// Puts the bytes of each entry in the place of its file, or makes a new file there, all or none:
/// on failure the old files are there as they were and nothing is left beside them. The failure
/// names the entry's path. The one exception, new files that could neither be made safe nor be
/// taken back, is told in the reason. A later entry for the same file wins.
///
/// All bytes are first written to temporary files in the files' own folders, ".bannersmith-" and
/// numbers, which take over mode, owner, group, access control list and extended attributes of the
/// old files; only then each takes its file's place, in one step, so that at each moment the old or
/// the new file is there whole. When the call returns, a crash of the machine loses nothing. What
/// cannot be taken over goes to `notice`; on Windows the system takes it over without telling. A
/// file never keeps the right to run as its owner or group. A link stays a link: the file it leads
/// to is replaced. A file without write permission, a folder, a pipe and a device are refused.
///
/// Other runs are kept out of the folders meanwhile, unless the caller holds one in `lock`; what a
/// run that was killed left in them is removed. Where the caller holds interruptions back, see
/// `InterruptionsHeld`, one that arrives before the first file changes ends the call there.
Result<> Replace_Files(std::span<const NewContents> files, const FolderLock& lock = {},
                       const Notice& notice = {});

/// Told of what could not be kept for the set of that index.
using SetNotice = std::function<void(std::size_t set, const Failure& loss)>;

/// The same for several sets of files: each is put in place all or none, whatever becomes of the
/// others, and has its own result. They share the waits: all files of all sets are written first,
/// then brought to the disk together, then put in place, and each folder is synced once. No file is
/// in two sets. An interruption does not end the call.
std::vector<Result<>> Replace_Sets(std::span<const std::vector<NewContents>> sets,
                                   const FolderLock& lock = {}, const SetNotice& notice = {});

/// `Replace_Files` for one file.
Result<> Replace_File(const std::u16string& path, std::string_view bytes,
                      const Notice& notice = {});

}  // namespace bannersmith
