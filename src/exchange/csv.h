// Tables as spreadsheets write them (RFC 4180). Our own code, because no library of it can be had
// for all systems that the programs are built for.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace bannersmith {

/// A row, and the line of the file, from 1, that it begins in.
struct CsvRow {
    std::size_t line = 0;
    std::vector<std::string> cells;
};

/// Reads a table row by row: cells between commas, or between semicolons where the first row has
/// none but these; rows end with CR LF, LF or CR; a cell in quotes may hold all of them, and a
/// quote as two. A mark of UTF-8 at the start and rows without a character are passed over.
class CsvReader {
 public:
    /// `text` outlives the object.
    explicit CsvReader(std::string_view text);

    /// The next row; nothing at the end. Fails where quotes are not closed or something stands
    /// behind them; the failure has no subject, and "Line N: " in front of its reason.
    Result<std::optional<CsvRow>> Next();

 private:
    Result<std::string> Read_Cell();
    bool At_Line_End() const;
    void Skip_Line_End();

    std::string_view text_;
    std::size_t at_ = 0, line_ = 1;
    char separator_ = ',';
};

/// The cells as a row of a table, with commas and CR LF.
std::string Csv_Row(const std::vector<std::string>& cells);

/// "Line N: " in front of a reason.
Failure In_Line(std::size_t line, const std::string& reason);

}  // namespace bannersmith
