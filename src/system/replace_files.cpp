#include "system/replace_files.h"

#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "system/file_steps.h"
#include "system/interruptions.h"
#include "system/replacement.h"

namespace bannersmith {

namespace fs = std::filesystem;

namespace {

/// The folders that this run holds at the moment, by their paths.
struct FoldersOfRun {
    std::mutex mutex;
    std::map<fs::path, std::weak_ptr<FolderLock::Folder>> held;
};

FoldersOfRun& Folders_Of_Run() {
    static FoldersOfRun folders;
    return folders;
}

fs::path Folder_Of(const fs::path& file) {
    const fs::path folder = file.parent_path();
    return folder.empty() ? fs::path(".") : folder;
}

/// The folders of one call, each freed of what killed runs have left there when it is first used.
class Folders {
 public:
    explicit Folders(const FolderLock& lock) : lock_(lock) {}

    /// The folder at `path`, held.
    Result<const FolderLock::Folder*> Take(const fs::path& path) {
        const FolderLock::Folder* folder = lock_.Find(path);
        if (folder == nullptr) {
            const auto taken = own_.Take_Folder(path);
            if (!taken) return taken;
            folder = *taken;
        }
        if (used_.insert(folder).second) Remove_Leftovers(*folder);
        return folder;
    }

 private:
    const FolderLock& lock_;
    FolderLock own_;
    std::set<const FolderLock::Folder*> used_;
};

/// The files of one set, each with the folder that it lies in.
class Replacing {
 public:
    explicit Replacing(std::span<const NewContents> files) : files_(files) {}
    Replacing(Replacing&&) = default;
    ~Replacing() { Put_Back({}); }  // after an exception
    Replacing(const Replacing&) = delete;
    Replacing& operator=(const Replacing&) = delete;

    Result<> Look() {
        for (const NewContents& file : files_) {
            auto looked_at = Run_Steps(file.path, [&](const fs::path& native) -> Result<> {
                all_.push_back(std::make_unique<Replacement>());
                return all_.back()->Look_At(native);
            });
            if (!looked_at) return looked_at;
        }
        return {};
    }

    /// From the last to the first, as the layout's folder is held before that of its textures.
    Result<> Take_Folders(Folders& folders) {
        folders_.resize(files_.size());
        for (std::size_t i = files_.size(); i-- > 0;) {
            auto taken = Step(i, [&]() -> Result<> {
                const auto folder = folders.Take(all_[i]->Folder_Path());
                if (!folder) return folder.Why();
                folders_[i] = *folder;
                return {};
            });
            if (!taken) return taken;
        }
        return {};
    }

    Result<> Write() {
        return For_Each(
            [&](std::size_t i) { return all_[i]->Write(*folders_[i], files_[i].bytes); });
    }

    Result<> Bring_To_Disk() {
        return For_Each([&](std::size_t i) { return all_[i]->Bring_To_Disk(); });
    }

    Result<> Put_In_Place() {
        for (; placed_ < all_.size(); ++placed_) {
            const bool others_follow = placed_ + 1 < all_.size();
            auto placed = Step(placed_, [&] { return all_[placed_]->Put_In_Place(others_follow); });
            if (!placed) return placed;
        }
        return {};
    }

    /// `synced`: the folders that were synced since, and how that went.
    Result<> Make_Safe(std::map<const FolderLock::Folder*, Result<>>& synced) {
        auto folders = For_Each([&](std::size_t i) {
            const auto known = synced.find(folders_[i]);
            if (known != synced.end()) return known->second;
            return synced.emplace(folders_[i], folders_[i]->Sync()).first->second;
        });
        if (!folders) return folders;
        return For_Each([&](std::size_t i) { return all_[i]->Make_Safe(); });
    }

    /// After a failure: takes out again what was put into place, newest first, so that a file that
    /// was replaced twice ends as it was before the first time. False where not all old files can
    /// come back; then all stay new.
    bool Put_Back(const Notice& notice) {
        const auto placed = std::span(all_).first(std::exchange(placed_, 0));
        for (const auto& each : placed) {
            if (!each->Can_Be_Put_Back()) return false;
        }
        for (std::size_t i = placed.size(); i-- > 0;) {
            const auto back = Step(i, [&] { return placed[i]->Put_Back(); });
            if (!back && notice) notice(back.Why());
        }
        return true;
    }

    void Finish(const Notice& notice) {
        placed_ = 0;
        for (std::size_t i = 0; i < all_.size(); ++i) {
            const std::string lost = all_[i]->Finish();
            if (!lost.empty() && notice) notice({files_[i].path, "Saved, but " + lost});
        }
    }

 private:
    template <typename Action>
    Result<> Step(std::size_t i, Action action) {
        return Run_Steps(files_[i].path, [&](const fs::path&) { return action(); });
    }

    template <typename Action>
    Result<> For_Each(Action action) {
        for (std::size_t i = 0; i < files_.size(); ++i) {
            if (auto done = Step(i, [&] { return action(i); }); !done) return done;
        }
        return {};
    }

    std::span<const NewContents> files_;
    std::vector<std::unique_ptr<Replacement>> all_;
    std::vector<const FolderLock::Folder*> folders_;
    std::size_t placed_ = 0;
};

/// All steps of the sets. `interrupted`: tells before the first file changes whether that ends it.
std::vector<Result<>> Replace(std::span<const std::span<const NewContents>> sets,
                              const FolderLock& lock, const SetNotice& notice,
                              bool (*interrupted)()) {
    Folders folders(lock);
    std::vector<Replacing> all;
    std::vector<Result<>> results(sets.size());
    for (const auto& files : sets) all.emplace_back(files);
    const auto each = [&](auto step) {
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (results[i]) results[i] = step(all[i]);
        }
    };
    each([](Replacing& set) { return set.Look(); });
    each([&](Replacing& set) { return set.Take_Folders(folders); });
    each([](Replacing& set) { return set.Write(); });
    each([](Replacing& set) { return set.Bring_To_Disk(); });
    if (interrupted()) {
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (results[i]) results[i] = Failure{sets[i].back().path, "Interrupted"};
        }
    }
    each([](Replacing& set) { return set.Put_In_Place(); });
    std::map<const FolderLock::Folder*, Result<>> synced;
    each([&](Replacing& set) { return set.Make_Safe(synced); });
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Notice told = notice ? [&](const Failure& loss) { notice(i, loss); } : Notice();
        if (results[i]) {
            all[i].Finish(told);
        } else if (!all[i].Put_Back(told)) {
            results[i] =
                Failure{results[i].Why().subject,
                        "Written, but not safe from a power failure. " + results[i].Why().reason};
        }
    }
    return results;
}

}  // namespace

FolderLock::FolderLock() = default;
FolderLock::FolderLock(FolderLock&& other) noexcept = default;
FolderLock& FolderLock::operator=(FolderLock&& other) noexcept = default;

FolderLock::~FolderLock() {
    FoldersOfRun& run = Folders_Of_Run();
    const std::lock_guard alone(run.mutex);
    for (auto& [path, folder] : folders_) {
        folder.reset();
        const auto held = run.held.find(path);
        if (held != run.held.end() && held->second.expired()) {
            run.held.erase(held);
        }
    }
}

Result<> FolderLock::Take(const std::u16string& path) {
    return Run_Steps(path, [&](const fs::path& native) -> Result<> {
        const auto file = Follow_Links(native);
        if (!file) return {};
        std::error_code error;
        const fs::path canonical = fs::canonical(Folder_Of(*file), error);
        if (error || !Folder().Open(canonical)) return {};
        return Hold(canonical);
    });
}

Result<const FolderLock::Folder*> FolderLock::Take_Folder(const fs::path& path) {
    std::error_code error;
    const fs::path canonical = fs::canonical(path, error);
    if (error) return Because(error.message());
    if (auto locked = Hold(canonical); !locked) return locked.Why();
    return Find(canonical);
}

/// The system would take two threads for two runs.
Result<> FolderLock::Hold(const fs::path& canonical) {
    if (folders_.contains(canonical)) return {};
    FoldersOfRun& run = Folders_Of_Run();
    const std::lock_guard alone(run.mutex);
    auto& held = run.held[canonical];
    auto folder = held.lock();
    if (!folder) {
        folder = std::make_shared<Folder>();
        if (auto opened = folder->Open(canonical); !opened) return opened;
        if (auto locked = folder->Lock(); !locked) return locked;
        held = folder;
    }
    folders_.emplace(canonical, std::move(folder));
    return {};
}

const FolderLock::Folder* FolderLock::Find(const fs::path& path) const {
    std::error_code error;
    const auto held = folders_.find(fs::canonical(path, error));
    return error || held == folders_.end() ? nullptr : held->second.get();
}

Result<> Replace_Files(std::span<const NewContents> files, const FolderLock& lock,
                       const Notice& notice) {
    const auto told = [&](std::size_t, const Failure& loss) { notice(loss); };
    return Replace({&files, 1}, lock, notice ? SetNotice(told) : SetNotice(),
                   InterruptionsHeld::Pending)[0];
}

std::vector<Result<>> Replace_Sets(std::span<const std::vector<NewContents>> sets,
                                   const FolderLock& lock, const SetNotice& notice) {
    const std::vector<std::span<const NewContents>> files(sets.begin(), sets.end());
    return Replace(files, lock, notice, [] { return false; });
}

Result<> Replace_File(const std::u16string& path, std::string_view bytes, const Notice& notice) {
    const NewContents file{path, std::string(bytes)};
    return Replace_Files({&file, 1}, {}, notice);
}

}  // namespace bannersmith
