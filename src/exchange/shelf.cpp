#include "exchange/shelf.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <system_error>
#include <thread>

#include "banner/effect.h"
#include "base/text.h"
#include "inspect/warnings.h"
#include "layout/kind.h"
#include "system/files.h"
#include "system/interruptions.h"
#include "system/native_path.h"
#include "texture/picture.h"

namespace bannersmith {

namespace {

/// Bytes of banners and of what is written for them that are in memory at a time, for each thread.
constexpr std::size_t MostBytes = std::size_t{8} << 20;

/// A banner that has been edited, and what is written for it.
struct Edited {
    Outcome outcome;
    Banner banner;
    std::vector<NewContents> files;
};

std::size_t Size_Of(const Edited& edited) {
    std::size_t size = edited.banner.On_Disk().size();
    if (const Archive* archive = edited.banner.Source().Packed_In()) {
        size += archive->Bytes().size();
    }
    for (const NewContents& file : edited.files) size += file.bytes.size();
    return size;
}

bool Is_As_On_Disk(const Banner& banner, const SavePlan& plan) {
    const Archive* archive = banner.Source().Packed_In();
    return plan.files.size() == 1 &&
           plan.files[0].bytes == (archive ? archive->Bytes() : banner.On_Disk());
}

/// One banner on its way through the wishes.
class Editing {
 public:
    Editing(const ShelfOptions& options, const ShelfJob& job) : options_(options), job_(job) {}

    Edited Run() {
        edited_.outcome.banner = job_.banner;
        try {
            if (auto done = Load_And_Edit(); !done) Fail(done.Why());
        } catch (const std::bad_alloc&) {
            Fail({job_.banner, "Not enough memory"});
        }
        return std::move(edited_);
    }

 private:
    void Fail(const Failure& failure) {
        edited_.files.clear();
        edited_.outcome.status = Outcome::Status::failed;
        edited_.outcome.failure = failure;
    }

    Result<> Load_And_Edit() {
        constexpr std::size_t NoHistory = 0;
        auto loaded = Banner::Load({Source_Path(), job_.banner}, NoHistory);
        if (!loaded) return loaded.Why();
        if (!Is_Layout(loaded->On_Disk())) {
            return Failure{job_.banner, "Is neither a layout file nor an archive"};
        }
        edited_.banner = std::move(*loaded);
        for (const auto* wishes : {&options_.for_all, &job_.wishes}) {
            for (const Wish& wish : *wishes) {
                if (auto done = Do(wish, wishes == &job_.wishes); !done) return done;
            }
        }
        if (!missing_.empty() && !options_.lenient) return Failure{job_.banner, missing_};
        if (auto planned = Plan(); !planned) return planned;
        return Export();
    }

    /// Textures are looked for beside the layout's folder, which a bare name does not have.
    std::u16string Source_Path() const {
        const std::u16string file = Layout_File_Of(job_.banner);
        const bool bare = file.find_first_of(u"\\/") == file.npos;
        return bare ? options_.current_folder + u"/" + file : file;
    }

    Result<> Do(const Wish& wish, bool of_recipe) {
        if (const auto* picture = std::get_if<ExportPicture>(&wish.what)) {
            exports_.push_back(picture->file);
            return {};
        }
        const Edit& edit = std::get<Edit>(wish.what);
        const std::string lacks = Lacks(edited_.banner, edit);
        if (!lacks.empty()) {
            const std::string what = lacks + "; " + wish.option + " changed nothing";
            missing_ += (missing_.empty() ? "" : ", ") + what;
            if (options_.lenient) edited_.outcome.notices.push_back(what);
            return {};
        }
        if (of_recipe && Holds_Already(edited_.banner, edit)) return {};
        applied_ = true;
        colored_ = colored_ || std::holds_alternative<SetColors>(edit);
        return edited_.banner.Apply(edit);
    }

    /// What a save writes, for a copy also where nothing changes.
    Result<> Plan() {
        const bool copied = !options_.output.empty() || !options_.output_folder.empty();
        Outcome& outcome = edited_.outcome;
        outcome.status = Outcome::Status::unchanged;
        if (!applied_ && !copied) return {};
        auto plan = applied_ ? edited_.banner.Plan_Save() : As_It_Is();
        if (!plan) return plan.Why();
        if (Is_As_On_Disk(edited_.banner, *plan) && !copied) return {};
        outcome.changes = Changes_Of(edited_.banner, *plan);
        const std::string saved = options_.dry_run ? "Would be saved, " : "Saved, ";
        for (const std::string& notice : plan->notices) outcome.notices.push_back(saved + notice);
        const std::string warning =
            Warning_Of_Edit(edited_.banner.On_Disk(), plan->Layout(), colored_);
        if (!warning.empty()) outcome.notices.push_back(saved + "but " + warning);
        outcome.status =
            options_.dry_run ? Outcome::Status::would_be_saved : Outcome::Status::saved;
        return Place(std::move(plan->files));
    }

    Result<SavePlan> As_It_Is() const {
        const Banner& banner = edited_.banner;
        const Archive* archive = banner.Source().Packed_In();
        SavePlan plan;
        plan.files.push_back(
            {banner.Source().Path(), archive ? archive->Bytes() : banner.On_Disk()});
        if (archive) plan.packed_layout = banner.On_Disk();
        return plan;
    }

    /// Where the files go, and what is kept of the old ones.
    Result<> Place(std::vector<NewContents> files) {
        if (!options_.output.empty()) {
            if (files.size() > 1) {
                return Failure{
                    job_.banner,
                    "Has its textures in files of their own; --output-folder copies them"};
            }
            files[0].path = options_.output;
        }
        for (NewContents& file : files) {
            if (!options_.output_folder.empty()) {
                auto below = Below_Folder(file.path);
                if (!below) return below.Why();
                file.path = *below;
            }
            if (options_.backup.empty()) continue;
            const std::u16string kept = file.path + options_.backup;
            if (Ordinary_File_Exists(kept)) return Failure{kept, "Is there already"};
            auto old = Read_File(file.path);
            if (!old) return old.Why();
            edited_.files.push_back({kept, std::move(*old)});
        }
        for (NewContents& file : files) edited_.files.push_back(std::move(file));
        return {};
    }

    /// The same path below the folder for copies, of a full one what is behind its root.
    Result<std::u16string> Below_Folder(std::u16string_view path) const {
        const std::u16string here = options_.current_folder + u"/";
        if (path.starts_with(here)) path.remove_prefix(here.size());
        const std::filesystem::path native = Native_Path(path).lexically_normal().relative_path();
        for (const std::filesystem::path& part : native) {
            if (part != "..") continue;
            return Failure{std::u16string(path), "Leads out of the folder for copies"};
        }
        return options_.output_folder + u"/" + Text_Of(native);
    }

    Result<> Export() {
        for (const std::u16string& file : exports_) {
            const auto picture = edited_.banner.Game_Picture();
            if (!picture) return picture.Why();
            edited_.files.push_back({file, Write_Png(*picture)});
        }
        return {};
    }

    const ShelfOptions& options_;
    const ShelfJob& job_;
    Edited edited_;
    std::string missing_;
    std::vector<std::u16string> exports_;
    bool applied_ = false, colored_ = false;
};

}  // namespace

/// Jobs that are saved together, by one thread.
class Shelf::Group {
 public:
    Group(const ShelfOptions& options, const std::vector<ShelfJob>& jobs)
        : options_(options), jobs_(jobs) {}

    std::vector<Outcome> Run() {
        Hold_Folders();
        for (std::size_t i = 0; i < jobs_.size(); ++i) {
            if (!held_[i]) {
                outcomes_.push_back(
                    {jobs_[i].banner, Outcome::Status::failed, held_[i].Why(), {}, {}});
                continue;
            }
            edited_.push_back(Editing(options_, jobs_[i]).Run());
            bytes_ += Size_Of(edited_.back());
            if (bytes_ > MostBytes) Save();
        }
        Save();
        return std::move(outcomes_);
    }

 private:
    /// From load to save nobody else changes the banners.
    void Hold_Folders() {
        held_.resize(jobs_.size());
        std::vector<std::pair<std::u16string, std::size_t>> files;
        for (std::size_t i = 0; i < jobs_.size(); ++i) {
            files.emplace_back(Layout_File_Of(jobs_[i].banner), i);
        }
        std::sort(files.begin(), files.end());
        for (const auto& [file, i] : files) {
            if (!options_.dry_run && Ordinary_File_Exists(file)) held_[i] = lock_.Take(file);
        }
    }

    /// What has been edited and not been saved.
    void Save() {
        std::vector<std::vector<NewContents>> sets;
        std::vector<Outcome*> saved;
        for (Edited& edited : edited_) {
            Outcome& outcome = edited.outcome;
            if (edited.files.empty() || options_.dry_run) continue;
            if (edited.banner.Was_Changed_Elsewhere()) {
                outcome.status = Outcome::Status::failed;
                outcome.failure = {outcome.banner,
                                   "Was changed by another program since it was loaded"};
                continue;
            }
            if (auto made = Make_Folders(edited.files); !made) {
                outcome.status = Outcome::Status::failed;
                outcome.failure = made.Why();
                continue;
            }
            sets.push_back(std::move(edited.files));
            saved.push_back(&outcome);
        }
        const auto results = Replace_Sets(sets, lock_, [&](std::size_t set, const Failure& loss) {
            saved[set]->notices.push_back(loss.reason);
        });
        for (std::size_t i = 0; i < results.size(); ++i) {
            if (results[i]) continue;
            saved[i]->status = Outcome::Status::failed;
            saved[i]->failure = results[i].Why();
        }
        for (Edited& edited : edited_) outcomes_.push_back(std::move(edited.outcome));
        edited_.clear();
        bytes_ = 0;
    }

    /// Those of copies.
    Result<> Make_Folders(const std::vector<NewContents>& files) const {
        if (options_.output.empty() && options_.output_folder.empty()) return {};
        for (const NewContents& file : files) {
            if (auto made = Make_Folders_Of(file.path); !made) return made;
        }
        return {};
    }

    const ShelfOptions& options_;
    const std::vector<ShelfJob>& jobs_;
    FolderLock lock_;
    std::vector<Result<>> held_;
    std::vector<Edited> edited_;
    std::size_t bytes_ = 0;
    std::vector<Outcome> outcomes_;
};

Shelf::Shelf(ShelfOptions options, Source source, Listener listener)
    : options_(std::move(options)), source_(std::move(source)), listener_(std::move(listener)) {}

bool Shelf::Run() {
    auto first = Take_Group();
    std::vector<std::thread> threads;
    threads.reserve(options_.threads);
    try {
        while (!at_end_ && threads.size() + 1 < options_.threads) {
            threads.emplace_back([this] { Work(Take_Group()); });
        }
    } catch (const std::system_error&) {
        // The system has no more of them; those that there are do the work.
    }
    Work(std::move(first));
    for (std::thread& thread : threads) thread.join();
    return !interrupted_;
}

void Shelf::Work(std::vector<ShelfJob> jobs) {
    for (; !jobs.empty(); jobs = Take_Group()) {
        try {
            Tell(Group(options_, jobs).Run());
        } catch (const std::bad_alloc&) {
            for (const ShelfJob& job : jobs) {
                Tell({{job.banner, Outcome::Status::failed, {job.banner, "Not enough memory"}}});
            }
        }
    }
}

std::vector<ShelfJob> Shelf::Take_Group() {
    const std::lock_guard alone(mutex_);
    std::vector<ShelfJob> jobs;
    while (jobs.size() < MostInGroup && !at_end_) {
        if (jobs.empty() && InterruptionsHeld::Pending()) interrupted_ = at_end_ = true;
        if (at_end_) break;
        auto job = source_();
        at_end_ = !job;
        if (job) jobs.push_back(std::move(*job));
    }
    return jobs;
}

void Shelf::Tell(const std::vector<Outcome>& outcomes) {
    const std::lock_guard alone(mutex_);
    for (const Outcome& outcome : outcomes) listener_(outcome);
}

}  // namespace bannersmith
