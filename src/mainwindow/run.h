// What the two programs share.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace bannersmith {

/// The exit status of a command line that only asks about the program, and that is answered:
/// `--help` or one of its other forms alone with the text `usage`, `--version` or one of its with
/// the name `program` and the version. Any other single word that begins with two hyphens is no
/// edit either; it gets the usage on standard error and status 2. Nothing for all others.
std::optional<int> Answer_About(const std::u16string& command_line, const std::string& program,
                                const std::string& usage);

/// The file that the arguments ask the windows to open: that of "--open FILE", also one with blanks
/// that was not quoted, and an empty text for none, where there are no arguments or "--open" stands
/// alone, as a desktop calls the program. Nothing for all others, which do not ask for the windows.
std::optional<std::u16string> File_To_Open(const std::vector<std::u16string>& arguments);

/// Runs the command-line text in batch mode, without windows. Returns the exit status: 0 done, 1 a
/// failure, 2 no layout that can be read; each failure is one line on standard error. A text that
/// is no UTF-8 or holds a line break, which comes from the end of a line in a list, is a failure.
int Run_Batch_Mode(const std::u16string& command_line);

}  // namespace bannersmith
