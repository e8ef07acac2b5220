#include "exchange/shelf_jobs.h"

#include <functional>
#include <set>

#include "banner/source.h"
#include "base/text.h"
#include "system/files.h"

namespace bannersmith {

ShelfJobs::ShelfJobs(const EditCommand& command, const std::string& recipe,
                     const std::u16string& program_folder)
    : command_(command), recipe_(recipe), program_folder_(program_folder), rows_(recipe_) {}

Result<std::size_t> ShelfJobs::Check() {
    std::set<std::size_t> seen;  // by a number of the path, which takes little memory
    std::size_t count = 0;
    for (auto job = Next(); !job || *job; job = Next()) {
        if (!job) return job.Why();
        ++count;
        const std::string banner = To_Utf8((*job)->banner);
        const std::u16string file = Layout_File_Of((*job)->banner);
        if (!Ordinary_File_Exists(file)) return Wrong_Row(banner + ": No such banner");
        if (!seen.insert(std::hash<std::u16string>()(Canonical_Path(file))).second) {
            return Wrong_Row(banner + " is there twice");
        }
    }
    at_ = line_ = 0;
    rows_ = RecipeReader(recipe_);
    return count;
}

Result<std::optional<ShelfJob>> ShelfJobs::Next() {
    if (at_ < command_.banners.size()) {
        return std::optional(ShelfJob{command_.banners[at_++], {}});
    }
    if (command_.recipe.empty()) return std::optional<ShelfJob>();
    auto row = rows_.Next();
    if (!row) return std::move(row).About(command_.recipe).Why();
    if (!*row) return std::optional<ShelfJob>();
    line_ = (*row)->line;
    ShelfJob job{(*row)->banner, {}};
    for (const auto& [option, value] : (*row)->values) {
        auto wish = Read_Wish(option, value, program_folder_);
        if (!wish) {
            return Wrong_Row(option + " \"" + To_Utf8(value) + "\": " + wish.Why().reason);
        }
        job.wishes.push_back(std::move(*wish));
    }
    return std::optional(std::move(job));
}

Failure ShelfJobs::Wrong_Row(const std::string& reason) const {
    if (line_ == 0) return {u"Command line", reason};
    return {command_.recipe, In_Line(line_, reason).reason};
}

}  // namespace bannersmith
