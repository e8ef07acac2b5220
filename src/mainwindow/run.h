// What the two programs share.
#pragma once

#include <optional>
#include <string>

namespace bannersmith {

/// The exit status of a command line that only asks about the program, and that is answered:
/// `--help` or one of its other forms alone with the text `usage`, `--version` or one of its with
/// the name `program` and the version. Any other single word that begins with two hyphens is no
/// edit either; it gets the usage on standard error and status 2. Nothing for all others.
std::optional<int> Answer_About(const std::u16string& command_line, const std::string& program,
                                const std::string& usage);

/// Runs the command-line text in batch mode, without windows. Returns the exit status: 0 done, 1 a
/// failure, 2 no layout that can be read; each failure is one line on standard error. A text that
/// is no UTF-8 or holds a line break, which comes from the end of a line in a list, is a failure.
int Run_Batch_Mode(const std::u16string& command_line);

}  // namespace bannersmith
