#pragma once

#include <string>
#include <vector>

#include "inspect/sections.h"

/// What the inspect tool says about one file.
struct FileReport {
    std::string file;  ///< as the user named it, in UTF-8
    LayoutInfo info;
    std::vector<std::string> warnings;
};

/// The report as text for a person, ending in a line end.
std::string As_Text(const FileReport& report);

/// The reports as one JSON array, in ASCII, ending in a line end. A lone surrogate of a text stays
/// what it is as a \u escape.
std::string As_Json(const std::vector<FileReport>& reports);
