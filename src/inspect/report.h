#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/archive_info.h"
#include "inspect/values.h"
#include "inspect/warnings.h"
#include "layout/sections.h"

namespace bannersmith {

/// What the inspect tool says about one file.
struct FileReport {
    std::string file;                    ///< as the user named it, in UTF-8
    std::optional<ArchiveInfo> archive;  ///< what the layout is packed in
    LayoutInfo info;
    std::vector<Warning> warnings;
    std::vector<OptionValue> values = {};  ///< for scripts alone
};

/// A text as JSON has it, in quotes and in ASCII. A lone surrogate stays what it is as a \u escape.
std::string Json_String(std::u16string_view text);

/// Takes the next piece of a report, which can be long.
using Output = std::function<void(std::string_view text)>;

/// Writes the report as text for a person, ending in a line end. Control characters are escaped.
void Write_Text(const FileReport& report, const Output& output);

/// Writes the report as one JSON object, in ASCII. A lone surrogate of a text stays what it is as a
/// \u escape.
void Write_Json(const FileReport& report, const Output& output);

}  // namespace bannersmith
