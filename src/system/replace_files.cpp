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

    Outcome Run() {
        if (auto failure = Prepare()) return failure;
        Outcome failure;
        while (!failure && placed_ < all_.size()) failure = Place_Next();
        for (std::size_t i = 0; !failure && i < all_.size(); ++i) {
            failure = Step(i, [&] { all_[i]->Make_Safe(); });
        }
        return failure;
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
            const auto stays = Step(i, [&] { placed[i]->Put_Back(); });
            if (stays && notice) notice(*stays);
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
    Outcome Prepare() {
        for (const NewContents& file : files_) {
            auto failure = Run_Steps(file.path, [&](const fs::path& native) {
                all_.push_back(std::make_unique<Replacement>(native));
            });
            if (failure) return failure;
        }
        // From the last to the first, as the layout's folder is held before that of its textures.
        std::vector<const FolderLock::Folder*> folders(files_.size());
        for (std::size_t i = files_.size(); i-- > 0;) {
            auto failure = Step(i, [&] { folders[i] = &Take_Folder(all_[i]->Folder_Path()); });
            if (failure) return failure;
        }
        for (std::size_t i = 0; i < files_.size(); ++i) {
            auto failure = Step(i, [&] { all_[i]->Write(*folders[i], files_[i].bytes); });
            if (failure) return failure;
        }
        if (InterruptionsHeld::Pending()) return Failure{files_.back().path, "Interrupted"};
        return std::nullopt;
    }

    const FolderLock::Folder& Take_Folder(const fs::path& path) {
        if (lock_.Held() != nullptr && fs::equivalent(lock_.Held()->path, path)) {
            Remove_Leftovers(*lock_.Held());
            return *lock_.Held();
        }
        for (const auto& folder : folders_) {
            if (fs::equivalent(folder->path, path)) return *folder;
        }
        folders_.push_back(std::make_unique<FolderLock::Folder>(path));
        folders_.back()->Lock();
        Remove_Leftovers(*folders_.back());
        return *folders_.back();
    }

    Outcome Place_Next() {
        auto failure =
            Step(placed_, [&] { all_[placed_]->Put_In_Place(placed_ + 1 < all_.size()); });
        if (!failure) ++placed_;
        return failure;
    }

    template <typename Action>
    Outcome Step(std::size_t i, Action action) {
        return Run_Steps(files_[i].path, [&](const fs::path&) { action(); });
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

Outcome FolderLock::Take(const std::u16string& path) {
    folder_.reset();
    const auto opened = Run_Steps(path, [&](const fs::path& native) {
        folder_ = std::make_unique<Folder>(Folder_Of(Follow_Links(native)));
    });
    if (opened) return std::nullopt;
    return Run_Steps(path, [&](const fs::path&) { folder_->Lock(); });
}

Outcome Replace_Files(std::span<const NewContents> files, const FolderLock& lock,
                      const Notice& notice) {
    const InterruptionsHeld held;
    Replacing replacing(files, lock);
    auto failure = replacing.Run();
    if (!failure) {
        replacing.Finish(notice);
    } else if (!replacing.Put_Back(notice)) {
        failure->reason = "Written, but not safe from a power failure. " + failure->reason;
    }
    return failure;
}

Outcome Replace_File(const std::u16string& path, std::string_view bytes, const Notice& notice) {
    const NewContents file{path, std::string(bytes)};
    return Replace_Files({&file, 1}, {}, notice);
}

}  // namespace bannersmith
