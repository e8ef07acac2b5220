// What the two programs share.
#pragma once

#include <string>

/// Whether the command line is `--help` or `--version` alone. Either is answered on standard
/// output: the text `usage`, or the name `program` with the version.
bool Answer_About(const std::u16string& command_line, const std::string& program,
                  const std::string& usage);

/// Runs the command-line text in batch mode, without windows. Returns the exit status: 0 done, 1 a
/// failure, 2 no layout that can be read; each failure is one line on standard error.
int Run_Batch_Mode(const std::u16string& command_line);
