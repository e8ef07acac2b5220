#include "exchange/recipe.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

#include "base/text.h"
#include "exchange/options.h"
#include "inspect/report.h"

namespace bannersmith {

namespace {

constexpr std::string_view Blanks = " \t\r\n";

std::size_t Lines_In(std::string_view text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

/// Tables in other encodings are common, and would end as wrong letters in a banner.
bool Are_Utf8(const std::vector<std::string>& cells) {
    return std::all_of(cells.begin(), cells.end(),
                       [](const std::string& cell) { return Is_Utf8(From_Utf8(cell)); });
}

/// As spreadsheets leave behind the last row.
bool Is_Blank(const std::vector<std::string>& cells) {
    return std::all_of(cells.begin(), cells.end(), [](const std::string& cell) {
        return cell.find_first_not_of(Blanks) == cell.npos;
    });
}

/// Where the object that begins at `at` ends, behind its brace; nothing where it does not.
std::optional<std::size_t> End_Of_Object(std::string_view text, std::size_t at) {
    std::size_t depth = 0;
    bool quoted = false;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (quoted && c == '\\') ++at;
        if (c == '"') quoted = !quoted;
        if (quoted) continue;
        if (c == '{' || c == '[') ++depth;
        if ((c == '}' || c == ']') && --depth == 0) return at + 1;
    }
    return std::nullopt;
}

/// The library's words without its number and the place, which it counts from the object.
std::string Reason_Of(const std::exception& error) {
    const std::string what = error.what();
    return "Is no JSON: " + what.substr(std::min(what.find(": ") + 2, what.size()));
}

/// A value of an object, which may be a number.
std::optional<std::u16string> Text_Of_Value(const nlohmann::ordered_json& value) {
    if (value.is_string()) return From_Utf8(value.get_ref<const std::string&>());
    if (value.is_number_integer()) return From_Utf8(value.dump());
    return std::nullopt;
}

Result<RecipeRow> Row_Of_Object(std::string_view text, std::size_t line) {
    nlohmann::ordered_json object;
    std::set<std::string> keys;
    std::string twice;
    const auto note_key = [&](int depth, nlohmann::ordered_json::parse_event_t event,
                              nlohmann::ordered_json& parsed) {
        const bool is_key = event == nlohmann::ordered_json::parse_event_t::key && depth == 1;
        if (is_key && !keys.insert(parsed.get<std::string>()).second) twice = parsed;
        return true;
    };
    try {
        object = nlohmann::ordered_json::parse(text, note_key);
    } catch (const nlohmann::json::exception& error) {
        return In_Line(line, Reason_Of(error));
    }
    if (!twice.empty()) return In_Line(line, twice + " is there twice");
    RecipeRow row{line, {}, {}};
    for (const auto& [key, value] : object.items()) {
        if (value.is_null()) continue;
        const auto read = Text_Of_Value(value);
        if (!read) return In_Line(line, key + " is neither text nor whole number");
        if (key == BannerColumn) {
            row.banner = *read;
        } else {
            row.values.push_back({key, *read});
        }
    }
    return row;
}

}  // namespace

RecipeReader::RecipeReader(std::string_view text) : text_(text), table_(text) {
    if (text_.starts_with("\xEF\xBB\xBF")) text_.remove_prefix(3);
    const std::size_t first = std::min(text_.find_first_not_of(Blanks), text_.size());
    is_json_ = text_.substr(first).starts_with('{') || text_.substr(first).starts_with('[');
    is_array_ = is_json_ && text_[first] == '[';
    if (is_array_) at_ = first + 1;
    line_ += Lines_In(text_.substr(0, at_));
}

Result<std::optional<RecipeRow>> RecipeReader::Next() {
    auto row = is_json_ ? Next_Object() : Next_Of_Table();
    if (row && *row && (*row)->banner.empty()) return In_Line((*row)->line, "Names no banner");
    return row;
}

/// Each has to be one that a row can use, as an empty cell would hide a slip.
Result<> RecipeReader::Check_Columns(std::size_t line) const {
    std::set<std::string> known;
    for (const std::string& column : *columns_) {
        if (column != BannerColumn && !Is_Option(column)) {
            return In_Line(line, column + ": Is no option");
        }
        if (!known.insert(column).second) return In_Line(line, column + " is there twice");
    }
    if (!known.contains(std::string(BannerColumn))) {
        return In_Line(line, "Has no column called banner");
    }
    return {};
}

Result<std::optional<RecipeRow>> RecipeReader::Next_Of_Table() {
    if (!columns_) {
        auto header = table_.Next();
        if (!header) return header.Why();
        if (!*header) return Failure{u"", "Holds no row"};
        columns_ = std::move((*header)->cells);
        if (!Are_Utf8(*columns_)) return In_Line((*header)->line, "Is no UTF-8 text");
        if (const auto fit = Check_Columns((*header)->line); !fit) return fit.Why();
    }
    auto read = table_.Next();
    while (read && *read && Is_Blank((*read)->cells)) read = table_.Next();
    if (!read) return read.Why();
    if (!*read) return std::optional<RecipeRow>();
    RecipeRow row{(*read)->line, {}, {}};
    std::vector<std::string>& cells = (*read)->cells;
    if (cells.size() > columns_->size()) return In_Line(row.line, "Has more cells than columns");
    if (!Are_Utf8(cells)) return In_Line(row.line, "Is no UTF-8 text");
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (cells[i].empty()) continue;
        if ((*columns_)[i] == BannerColumn) {
            row.banner = From_Utf8(cells[i]);
        } else {
            row.values.push_back({(*columns_)[i], From_Utf8(cells[i])});
        }
    }
    return std::optional(std::move(row));
}

/// Goes on to the next character that is not blank; zero at the end.
char RecipeReader::Skip_Blanks() {
    const std::size_t next = std::min(text_.find_first_not_of(Blanks, at_), text_.size());
    line_ += Lines_In(text_.substr(at_, next - at_));
    at_ = next;
    return at_ < text_.size() ? text_[at_] : '\0';
}

Result<std::optional<RecipeRow>> RecipeReader::Next_Object() {
    char next = Skip_Blanks();
    if (is_array_ && next == ']') {
        ++at_;
        is_array_ = false;
        if (Skip_Blanks() != '\0') return In_Line(line_, "Something stands behind the array");
        return std::optional<RecipeRow>();
    }
    if (is_array_ && has_rows_) {
        if (next != ',') return In_Line(line_, "The array does not end, or lacks a comma");
        ++at_;
        next = Skip_Blanks();
    }
    if (!is_array_ && next == '\0') return std::optional<RecipeRow>();
    if (next != '{') return In_Line(line_, "Is no JSON object");
    const auto end = End_Of_Object(text_, at_);
    if (!end) return In_Line(line_, "An object does not end");
    const std::string_view object = text_.substr(at_, *end - at_);
    auto row = Row_Of_Object(object, line_);
    line_ += Lines_In(object);
    at_ = *end;
    has_rows_ = true;
    if (!row) return row.Why();
    return std::optional(std::move(*row));
}

std::string Csv_Of(const std::u16string& banner, const std::vector<OptionValue>& values,
                   const std::vector<std::string>& columns) {
    std::vector<std::string> cells(columns.size());
    const auto put = [&](std::string_view column, const std::u16string& value) {
        const auto place = std::find(columns.begin(), columns.end(), column);
        if (place == columns.end()) return;
        cells[static_cast<std::size_t>(place - columns.begin())] = To_Utf8(value);
    };
    put(BannerColumn, banner);
    for (const auto& [option, value] : values) put(option, value);
    return Csv_Row(cells);
}

std::string Json_Of(const std::u16string& banner, const std::vector<OptionValue>& values) {
    std::string object = "{" + Json_String(From_Utf8(BannerColumn)) + ": " + Json_String(banner);
    for (const auto& [option, value] : values) {
        object += ", " + Json_String(From_Utf8(option)) + ": " + Json_String(value);
    }
    return object + "}";
}

}  // namespace bannersmith
