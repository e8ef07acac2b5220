#include "system/replace_files.h"

#include <optional>
#include <utility>
#include <vector>

#include "system/file_steps.h"
#include "system/interruptions.h"
#include "system/replacement.h"

namespace bannersmith {

namespace fs = std::filesystem;

namespace {

fs::path Folder_Of(const fs::path& file) {
    const fs::path folder = file.parent_path();
    return folder.empty() ? fs::path(".") : folder;
}

/// The files of one call, each with the folder that it lies in.
class Replacing {
 public:
    Replacing(std::span<const NewContents> files, const FolderLock& lock)
        : files_(files), lock_(lock) {}
    ~Replacing() { Put_Back({}); }  // after an exception
    Replacing(const Replacing&) = delete;
    Replacing& operator=(const Replacing&) = delete;

    Result<> Run() {
        if (auto prepared = Prepare(); !prepared) return prepared;
        for (; placed_ < all_.size(); ++placed_) {
            const bool others_follow = placed_ + 1 < all_.size();
            auto placed = Step(placed_, [&] { return all_[placed_]->Put_In_Place(others_follow); });
            if (!placed) return placed;
        }
        for (std::size_t i = 0; i < all_.size(); ++i) {
            if (auto safe = Step(i, [&] { return all_[i]->Make_Safe(); }); !safe) return safe;
        }
        return {};
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
    /// What can fail without a trace.
    Result<> Prepare() {
        for (const NewContents& file : files_) {
            auto looked_at = Run_Steps(file.path, [&](const fs::path& native) -> Result<> {
                all_.push_back(std::make_unique<Replacement>());
                return all_.back()->Look_At(native);
            });
            if (!looked_at) return looked_at;
        }
        // From the last to the first, as the layout's folder is held before that of its textures.
        std::vector<const FolderLock::Folder*> folders(files_.size());
        for (std::size_t i = files_.size(); i-- > 0;) {
            auto taken = Step(i, [&] { return Take_Folder(all_[i]->Folder_Path(), folders[i]); });
            if (!taken) return taken;
        }
        for (std::size_t i = 0; i < files_.size(); ++i) {
            auto written = Step(i, [&] { return all_[i]->Write(*folders[i], files_[i].bytes); });
            if (!written) return written;
        }
        if (InterruptionsHeld::Pending()) return Failure{files_.back().path, "Interrupted"};
        return {};
    }

    /// Lets `folder` be the one at `path`, held.
    Result<> Take_Folder(const fs::path& path, const FolderLock::Folder*& folder) {
        std::error_code error;
        if (lock_.Held() != nullptr && fs::equivalent(lock_.Held()->path, path, error)) {
            folder = lock_.Held();
            Remove_Leftovers(*folder);
            return {};
        }
        for (const auto& held : folders_) {
            if (error) break;
            if (fs::equivalent(held->path, path, error)) {
                folder = held.get();
                return {};
            }
        }
        if (error) return Because(error.message());
        folders_.push_back(std::make_unique<FolderLock::Folder>());
        FolderLock::Folder& fresh = *folders_.back();
        if (auto opened = fresh.Open(path); !opened) return opened;
        if (auto locked = fresh.Lock(); !locked) return locked;
        Remove_Leftovers(fresh);
        folder = &fresh;
        return {};
    }

    template <typename Action>
    Result<> Step(std::size_t i, Action action) {
        return Run_Steps(files_[i].path, [&](const fs::path&) { return action(); });
    }

    std::span<const NewContents> files_;
    const FolderLock& lock_;
    std::vector<std::unique_ptr<FolderLock::Folder>> folders_;
    std::vector<std::unique_ptr<Replacement>> all_;  // in front of the folders that they use
    std::size_t placed_ = 0;
};

}  // namespace

FolderLock::FolderLock() = default;
FolderLock::FolderLock(FolderLock&& other) noexcept = default;
FolderLock& FolderLock::operator=(FolderLock&& other) noexcept = default;
FolderLock::~FolderLock() = default;

Result<> FolderLock::Take(const std::u16string& path) {
    return Run_Steps(path, [&](const fs::path& native) -> Result<> {
        folder_.reset();
        const auto file = Follow_Links(native);
        if (!file) return {};
        auto folder = std::make_unique<Folder>();
        if (!folder->Open(Folder_Of(*file))) return {};
        folder_ = std::move(folder);
        return folder_->Lock();
    });
}

Result<> Replace_Files(std::span<const NewContents> files, const FolderLock& lock,
                       const Notice& notice) {
    Replacing replacing(files, lock);
    auto done = replacing.Run();
    if (done) {
        replacing.Finish(notice);
    } else if (!replacing.Put_Back(notice)) {
        return Failure{done.Why().subject,
                       "Written, but not safe from a power failure. " + done.Why().reason};
    }
    return done;
}

Result<> Replace_File(const std::u16string& path, std::string_view bytes, const Notice& notice) {
    const NewContents file{path, std::string(bytes)};
    return Replace_Files({&file, 1}, {}, notice);
}

}  // namespace bannersmith
