// Recipes: what becomes of many banners, a row each, as CSV or JSON, and back.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/result.h"
#include "exchange/csv.h"
#include "inspect/values.h"

namespace bannersmith {

/// The column that names a row's banner.
inline constexpr std::string_view BannerColumn = "banner";

/// A row: its banner, and the options with their values, in the order of the row.
struct RecipeRow {
    std::size_t line = 0;  ///< of the file, from 1, where it begins
    std::u16string banner;
    std::vector<OptionValue> values;
};

/// Reads a recipe row by row, so that no more than one is in memory. What begins with "{" or "[" is
/// JSON: an array of objects, or one object after the other. Anything else is CSV with a header
/// line of known options, in which an empty cell says nothing, as in JSON null, and a row of blanks
/// is none.
class RecipeReader {
 public:
    /// `text` outlives the object.
    explicit RecipeReader(std::string_view text);

    /// The next row; nothing at the end. Fails for a row that cannot be read or names no banner;
    /// the failure has no subject, and "Line N: " in front of its reason. Whether the options are
    /// known, and their values right, is not looked at.
    Result<std::optional<RecipeRow>> Next();

 private:
    Result<std::optional<RecipeRow>> Next_Of_Table();
    Result<std::optional<RecipeRow>> Next_Object();
    Result<> Check_Columns(std::size_t line) const;
    char Skip_Blanks();

    std::string_view text_;
    bool is_json_;
    bool is_array_ = false, has_rows_ = false;  ///< of JSON: in brackets; a row was read
    CsvReader table_;
    std::optional<std::vector<std::string>> columns_;
    std::size_t at_ = 0, line_ = 1;  ///< in JSON
};

/// A row of CSV with a cell for each of `columns`, the banner's among them.
std::string Csv_Of(const std::u16string& banner, const std::vector<OptionValue>& values,
                   const std::vector<std::string>& columns);

/// The row as a JSON object on one line, without the line's end.
std::string Json_Of(const std::u16string& banner, const std::vector<OptionValue>& values);

}  // namespace bannersmith
