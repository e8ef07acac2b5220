// The classic command line: a layout path, then an option behind each hyphen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "banner/edit.h"

namespace bannersmith {

/// What a command line asks for.
struct CommandLine {
    /// The path of the layout, which is below the program's folder unless it was full; empty for
    /// the file used last.
    std::u16string path;
    /// What the path would be if it did not end at a hyphen inside a name: up to the first option
    /// that a blank stands in front of, up to the second, and so on to the end.
    std::vector<std::u16string> uncut_paths;
    std::vector<Edit> edits;  ///< in order, the usual padding first
};

/// Reads a command line. Options that are not known, or too short, are passed over.
CommandLine ParseClo(std::u16string_view command_line, const std::u16string& program_folder);

}  // namespace bannersmith
