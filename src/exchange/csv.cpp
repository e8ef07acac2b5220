#include "exchange/csv.h"

#include <algorithm>
#include <utility>

namespace bannersmith {

namespace {

constexpr std::string_view Mark = "\xEF\xBB\xBF";

/// The first row's first separator outside of quotes.
char Separator_Of(std::string_view text) {
    bool quoted = false;
    for (const char c : text) {
        if (c == '"') quoted = !quoted;
        if (quoted) continue;
        if (c == ',' || c == ';') return c;
        if (c == '\r' || c == '\n') break;
    }
    return ',';
}

}  // namespace

CsvReader::CsvReader(std::string_view text) : text_(text) {
    if (text_.starts_with(Mark)) text_.remove_prefix(Mark.size());
    separator_ = Separator_Of(text_);
}

bool CsvReader::At_Line_End() const {
    return at_ == text_.size() || text_[at_] == '\r' || text_[at_] == '\n';
}

void CsvReader::Skip_Line_End() {
    if (at_ == text_.size()) return;
    at_ += text_.substr(at_).starts_with("\r\n") ? 2 : 1;
    ++line_;
}

Result<std::string> CsvReader::Read_Cell() {
    if (At_Line_End() || text_[at_] != '"') {
        const std::size_t end = text_.find_first_of(std::string("\r\n") + separator_, at_);
        const std::size_t begin = std::exchange(at_, std::min(end, text_.size()));
        return std::string(text_.substr(begin, at_ - begin));
    }
    const std::size_t line = line_;
    std::string cell;
    for (++at_; at_ < text_.size(); ++at_) {
        if (text_[at_] == '\n') ++line_;
        if (text_[at_] == '"' && text_.substr(at_ + 1, 1) != "\"") {
            ++at_;
            if (At_Line_End() || text_[at_] == separator_) return cell;
            return In_Line(line, "Something stands behind closing quotes");
        }
        if (text_[at_] == '"') ++at_;
        cell += text_[at_];
    }
    return In_Line(line, "Quotes are not closed");
}

Result<std::optional<CsvRow>> CsvReader::Next() {
    while (at_ < text_.size() && At_Line_End()) Skip_Line_End();
    if (at_ == text_.size()) return std::optional<CsvRow>();
    CsvRow row{line_, {}};
    for (bool more = true; more;) {
        auto cell = Read_Cell();
        if (!cell) return cell.Why();
        row.cells.push_back(std::move(*cell));
        more = !At_Line_End();
        if (more) ++at_;
    }
    Skip_Line_End();
    return std::optional(std::move(row));
}

std::string Csv_Row(const std::vector<std::string>& cells) {
    std::string row;
    for (const std::string& cell : cells) {
        if (&cell != &cells.front()) row += ',';
        if (cell.find_first_of(",;\"\r\n") == cell.npos) {
            row += cell;
            continue;
        }
        row += '"';
        for (const char c : cell) row.append(c == '"' ? 2 : 1, c);
        row += '"';
    }
    return row + "\r\n";
}

Failure In_Line(std::size_t line, const std::string& reason) {
    return {u"", "Line " + std::to_string(line) + ": " + reason};
}

}  // namespace bannersmith
