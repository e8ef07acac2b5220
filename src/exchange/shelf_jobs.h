// What a command line and its recipe make of a shelf, job by job.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "exchange/edit_command.h"
#include "exchange/recipe.h"
#include "exchange/shelf.h"

namespace bannersmith {

/// The jobs: the banners of the command line, then the rows of the recipe.
class ShelfJobs {
 public:
    /// `recipe`: the bytes of the recipe, which like the others outlive the object.
    ShelfJobs(const EditCommand& command, const std::string& recipe,
              const std::u16string& program_folder);

    /// Reads every row before the first is done, and goes back to the first. Returns how many jobs
    /// there are. Fails for a row that is wrong, with its line, for a banner that is not there, and
    /// for one that is named twice.
    Result<std::size_t> Check();

    /// The next job; nothing at the end. Fails as `Check` does, for the one row.
    Result<std::optional<ShelfJob>> Next();

 private:
    Failure Wrong_Row(const std::string& reason) const;

    const EditCommand& command_;
    const std::string& recipe_;
    const std::u16string& program_folder_;
    RecipeReader rows_;
    std::size_t at_ = 0;    ///< the next banner of the command line
    std::size_t line_ = 0;  ///< of the row that was read last
};

}  // namespace bannersmith
