#include <fcntl.h>
#include <linux/magic.h>
#include <sys/file.h>
#include <sys/vfs.h>
#include <sys/xattr.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <thread>

#include "system/interruptions.h"
#include "system/linux_calls.h"
#include "system/replacement.h"

namespace bannersmith {

namespace fs = std::filesystem;

namespace {

/// What a file never keeps: whoever writes it must not hand rights to its owner or group, nor take
/// theirs.
constexpr mode_t RightsOfOthers = S_ISUID | S_ISGID;
constexpr std::string_view CapabilitiesAttribute = "security.capability";

/// A path in `folder` that no other file of this process has had.
std::string Unused_Path(const std::string& folder, const char* prefix) {
    static std::atomic<unsigned> count = 0;
    return folder + "/" + prefix + std::to_string(::getpid()) + "-" + std::to_string(count++);
}

bool Remove_File(const std::string& path) {
    return ::unlink(path.c_str()) == 0 || ::unlink(path.c_str()) == 0;
}

/// A file beside the one that is replaced, which goes with the object.
class FileBeside {
 public:
    FileBeside() = default;
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside() { static_cast<void>(Remove()); }

    const std::string& Path() const { return path_; }
    bool Is_There() const { return !path_.empty(); }

    /// Makes an empty file that can be written; not open where it cannot be made.
    Descriptor Make(const std::string& folder, mode_t mode) {
        constexpr int Flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
        for (;;) {
            std::string path = Unused_Path(folder, LeftoverPrefix);
            const int fd = ::open(path.c_str(), Flags, mode);
            if (fd >= 0) {
                path_ = std::move(path);
                return Descriptor(fd);
            }
            if (errno != EEXIST && errno != EINTR) return {};
        }
    }

    /// Gives `file` a second name; false where it cannot have one.
    bool Link_To(const std::string& file, const std::string& folder) {
        for (;;) {
            std::string path = Unused_Path(folder, LeftoverPrefix);
            if (::link(file.c_str(), path.c_str()) == 0) {
                path_ = std::move(path);
                return true;
            }
            if (errno != EEXIST && errno != EINTR) return false;
        }
    }

    /// It has another name now.
    void Forget() { path_.clear(); }

    /// Removes the file if there is one. Returns its name if it stays all the same.
    std::string Remove() {
        const std::string path = std::exchange(path_, {});
        return path.empty() || Remove_File(path) ? std::string() : path;
    }

    /// Gives the file a name under which it is never removed, and returns it.
    std::string Keep(const std::string& folder) {
        const std::string kept = Unused_Path(folder, KeptPrefix);
        const std::string path = std::exchange(path_, {});
        return ::rename(path.c_str(), kept.c_str()) == 0 ? kept : path;
    }

 private:
    std::string path_;
};

Result<> Write_All(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = Repeat([&] { return ::write(file.Get(), bytes.data(), bytes.size()); });
        if (count < 0) return Error_Of(errno);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return {};
}

/// A list of things with commas between them.
void Append(std::string& list, std::string_view thing) {
    list.append(list.empty() ? "" : ", ").append(thing);
}

/// The attributes of `old`, access control lists among them, that `fresh` could not be given.
std::string Copy_Attributes(const std::string& old, int fresh) {
    constexpr std::size_t LargestValue = 1 << 16;
    const auto size = ::listxattr(old.c_str(), nullptr, 0);
    if (size == 0 || (size < 0 && errno == ENOTSUP)) return {};
    std::string names(static_cast<std::size_t>(std::max<ssize_t>(size, 0)), '\0'), lost;
    const auto listed = ::listxattr(old.c_str(), names.data(), names.size());
    if (size < 0 || listed < 0) return "attributes";
    for (const char* name = names.data(); name < names.data() + listed;
         name += std::strlen(name) + 1) {
        if (name == CapabilitiesAttribute) continue;
        std::string value(LargestValue, '\0');
        const auto length = ::getxattr(old.c_str(), name, value.data(), value.size());
        if (length < 0 ||
            ::fsetxattr(fresh, name, value.data(), static_cast<std::size_t>(length), 0) != 0) {
            Append(lost, name);
        }
    }
    return lost;
}

/// Gives `fresh` owner and group of `old`, as far as they are others. Returns what it cannot have.
/// Only a privileged user may give files away, but the group may be another one of the user's own.
std::string Copy_Owner(const struct stat& old, int fresh) {
    struct stat now {};
    if (Repeat([&] { return ::fstat(fresh, &now); }) < 0) return "owner and group";
    if (now.st_uid == old.st_uid && now.st_gid == old.st_gid) return {};
    if (::fchown(fresh, old.st_uid, old.st_gid) == 0) return {};
    const bool group_kept =
        now.st_gid == old.st_gid || ::fchown(fresh, static_cast<uid_t>(-1), old.st_gid) == 0;
    return group_kept ? "owner" : "owner and group";
}

std::string Copy_Mode(const struct stat& old, int fresh) {
    const mode_t mode = old.st_mode & 07777U & ~RightsOfOthers;
    struct stat now {};
    const bool has_it =
        Repeat([&] { return ::fstat(fresh, &now); }) == 0 && (now.st_mode & 07777U) == mode;
    return has_it || ::fchmod(fresh, mode) == 0 ? "" : "mode";
}

/// Makes `fresh` like the file at `path`, of which `old` tells. Returns what could not be taken
/// over. Changing the owner clears mode bits and lists, and a list changes the mode.
std::string Take_Over(const std::string& path, const struct stat& old, int fresh) {
    std::string lost = Copy_Owner(old, fresh);
    // The folder may have given it a list that the old file has not; there mostly is none.
    static_cast<void>(::fremovexattr(fresh, "system.posix_acl_access"));
    for (const std::string& more : {Copy_Attributes(path, fresh), Copy_Mode(old, fresh)}) {
        if (!more.empty()) Append(lost, more);
    }
    return lost;
}

/// Folders of some file systems cannot be synced at all, which is no failure.
bool Sync(int descriptor) {
    int result = ::fsync(descriptor);
    while (result != 0 && errno == EINTR) result = ::fsync(descriptor);
    return result == 0 || errno == EINVAL || errno == ENOTSUP;
}

/// Whether the file system is one of memory cards. There a name and the place of its contents are
/// one entry of the folder, and what is free is told by a table; nothing keeps the two together
/// when the power fails. So a file's room has to be in the table before its entry names it, and a
/// name has to be gone before its room is free. And files cannot trade places: for a moment each
/// name would stand for both files, and whoever removed one later would free the room of the other.
bool Is_Card(int folder) {
    constexpr decltype(statfs::f_type) Exfat = 0x2011BAB0;
    struct statfs info {};
    return ::fstatfs(folder, &info) == 0 &&
           (info.f_type == MSDOS_SUPER_MAGIC || info.f_type == Exfat);
}

}  // namespace

Result<> FolderLock::Folder::Open(fs::path folder) {
    path = std::move(folder);
    handle = Repeat([&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (handle < 0) return Error_Of(errno);
    card = Is_Card(static_cast<int>(handle));
    return {};
}

FolderLock::Folder::~Folder() {
    if (handle >= 0) ::close(static_cast<int>(handle));
}

Result<> FolderLock::Folder::Lock() {
    using namespace std::chrono_literals;
    const auto end = std::chrono::steady_clock::now() + 10s;
    for (;;) {
        if (::flock(static_cast<int>(handle), LOCK_EX | LOCK_NB) == 0) {
            alone = true;
            return {};
        }
        if (errno != EWOULDBLOCK && errno != EINTR) return {};  // a file system without locks
        if (InterruptionsHeld::Pending()) return Because("Interrupted");
        if (std::chrono::steady_clock::now() > end) {
            return Because("Another run of Bannersmith is at work in its folder");
        }
        std::this_thread::sleep_for(5ms);
    }
}

Result<> FolderLock::Folder::Sync() const {
    if (bannersmith::Sync(static_cast<int>(handle))) return {};
    return Because(std::string("Its folder cannot be synced: ") + std::strerror(errno));
}

struct Replacement::State {
    std::string target, folder_path;
    const FolderLock::Folder* folder = nullptr;
    bool exists = false;
    struct stat old {};
    Descriptor old_file;   ///< keeps the old file's room from being used again
    FileBeside temporary;  ///< the new file, or the old one that it traded places with
    Descriptor written;    ///< the new file until it is safe on the disk
    FileBeside second_name;
    bool traded = false;
    std::string lost;

    bool Exchange() const {
        return ::renameat2(AT_FDCWD, temporary.Path().c_str(), AT_FDCWD, target.c_str(),
                           RENAME_EXCHANGE) == 0;
    }

    /// Where the file system can do that; `traded` tells.
    Result<> Trade_Places() {
        if (folder->card) return {};
        traded = Exchange();
        if (traded || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP) return {};
        return Error_Of(errno);
    }

    /// The old file under a second name, or a copy of it.
    Result<> Keep_Old(bool copied) {
        if (second_name.Link_To(target, folder_path) || !copied) return {};
        Descriptor copy = second_name.Make(folder_path, S_IRUSR | S_IWUSR);
        if (!copy.Is_Open()) return Error_Of(errno);
        const auto bytes = Read_Whole(target);
        if (!bytes) return bytes.Why();
        if (auto filled = Write_All(copy, *bytes); !filled) return filled;
        static_cast<void>(Take_Over(target, old, copy.Get()));
        return Sync_And_Close(copy);
    }

    /// Makes a file that was written beside the old one safe. A card's folder brings the table
    /// along.
    Result<> Sync_And_Close(Descriptor& file) const {
        if (folder->card) Sync(static_cast<int>(folder->handle));
        if (auto synced = Require([&] { return ::fsync(file.Get()); }); !synced) return synced;
        return file.Close();
    }

    /// Removes the file. Returns its name if it stays all the same.
    std::string Remove(FileBeside& beside) const {
        const int room = folder->card ? ::open(beside.Path().c_str(), O_PATH | O_CLOEXEC) : -1;
        std::string left = beside.Remove();
        if (room >= 0) {
            Sync(static_cast<int>(folder->handle));
            ::close(room);
        }
        return left;
    }

    /// The file again after its folder: on a card the folder has the new name, but only the file
    /// brings along where its contents are.
    bool Sync_File() const {
        const auto open = [&] { return ::open(target.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); };
        int file = open();
        while (file < 0 && errno == EINTR) file = open();
        if (file < 0) return errno == EACCES;  // not on a card, where everything can be read
        const Descriptor closing(file);
        return Sync(file);
    }
};

Replacement::Replacement() : state_(std::make_unique<State>()) {}
Replacement::~Replacement() = default;

Result<> Replacement::Look_At(const fs::path& path) {
    State& state = *state_;
    const auto target = Follow_Links(path);
    if (!target) return target.Why();
    state.target = target->string();
    const fs::path folder = target->parent_path();
    state.folder_path = folder.empty() ? "." : folder.string();
    state.old_file = Descriptor(::open(state.target.c_str(), O_PATH | O_CLOEXEC));
    if (!state.old_file.Is_Open()) return errno == ENOENT ? Result<>() : Error_Of(errno);
    state.exists = true;
    if (auto seen = Require([&] { return ::fstat(state.old_file.Get(), &state.old); }); !seen) {
        return seen;
    }
    if (auto regular = Require_Regular(state.old); !regular) return regular;
    return Require([&] { return ::faccessat(AT_FDCWD, state.target.c_str(), W_OK, AT_EACCESS); });
}

fs::path Replacement::Folder_Path() const {
    return state_->folder_path;
}

Result<> Replacement::Write(const FolderLock::Folder& folder, std::string_view bytes) {
    State& state = *state_;
    state.folder = &folder;
    const mode_t mode = state.exists ? S_IRUSR | S_IWUSR : 0666;
    state.written = state.temporary.Make(state.folder_path, mode);
    if (!state.written.Is_Open()) return Error_Of(errno);
    if (auto written = Write_All(state.written, bytes); !written) return written;
    if (state.exists) state.lost = Take_Over(state.target, state.old, state.written.Get());
    // A hint: what is on its way already is waited for together with what others have written.
    ::sync_file_range(state.written.Get(), 0, 0, SYNC_FILE_RANGE_WRITE);
    return {};
}

Result<> Replacement::Bring_To_Disk() {
    return state_->Sync_And_Close(state_->written);
}

Result<> Replacement::Put_In_Place(bool others_follow) {
    State& state = *state_;
    if (state.exists) {
        auto traded = state.Trade_Places();
        if (!traded || state.traded) return traded;
        if (auto kept = state.Keep_Old(others_follow); !kept) return kept;
    }
    auto renamed =
        Require([&] { return ::rename(state.temporary.Path().c_str(), state.target.c_str()); });
    if (renamed) state.temporary.Forget();
    return renamed;
}

Result<> Replacement::Make_Safe() {
    if (state_->Sync_File()) return {};
    return Because(std::string("Its folder cannot be synced: ") + std::strerror(errno));
}

bool Replacement::Can_Be_Put_Back() const {
    return state_->traded || state_->second_name.Is_There() || !state_->exists;
}

Result<> Replacement::Put_Back() {
    State& state = *state_;
    if (!state.exists) {
        if (!Remove_File(state.target)) return Error_Of(errno);
        return {};
    }
    const Descriptor fresh(::open(state.target.c_str(), O_PATH | O_CLOEXEC));  // keeps its room
    const auto back = [&] {
        return state.traded ? state.Exchange()
                            : ::rename(state.second_name.Path().c_str(), state.target.c_str()) == 0;
    };
    bool done = back();
    if (!done) done = back();  // a call that fails once need not fail twice
    const int error = errno;
    FileBeside& kept = state.traded ? state.temporary : state.second_name;
    if (!done) {
        return Because(std::strerror(error) + std::string(". The old file is kept as ") +
                       kept.Keep(state.folder_path));
    }
    if (!state.traded) kept.Forget();
    if (state.folder->Sync()) static_cast<void>(state.Sync_File());
    return {};
}

std::string Replacement::Finish() {
    State& state = *state_;
    std::string lost;
    if (!state.lost.empty()) lost = "could not keep its " + state.lost;
    if (state.old.st_nlink > 1) {
        Append(lost, "its other names (hard links) keep the old contents");
    }
    for (FileBeside* beside : {&state.temporary, &state.second_name}) {
        if (!beside->Is_There()) continue;
        const std::string left = state.Remove(*beside);
        if (!left.empty()) Append(lost, "the old file stays as " + left);
    }
    return lost;
}

Result<fs::path> Follow_Links(fs::path path) {
    constexpr int MostLinks = 40;
    for (int links = 0; links < MostLinks; ++links) {
        struct stat info {};
        if (::lstat(path.c_str(), &info) != 0) {
            if (errno == ENOENT) return path;
            return Error_Of(errno);
        }
        if (!S_ISLNK(info.st_mode)) return path;
        std::error_code error;
        path = path.parent_path() / fs::read_symlink(path, error);
        if (error) return Because(error.message());
    }
    return Error_Of(ELOOP);
}

void Remove_Leftovers(const FolderLock::Folder& folder) {
    if (!folder.alone) return;
    const std::string own = LeftoverPrefix + std::to_string(::getpid()) + "-";
    std::error_code error;
    for (fs::directory_iterator at(folder.path, error), end; !error && at != end;
         at.increment(error)) {
        const std::string name = at->path().filename().string();
        if (!name.starts_with(LeftoverPrefix) || name.starts_with(KeptPrefix)) continue;
        if (name.starts_with(own)) continue;
        std::error_code ignored;
        if (fs::is_regular_file(at->symlink_status(ignored))) fs::remove(at->path(), ignored);
    }
}

}  // namespace bannersmith
