// The process: how it was called, where its program lies, and how it hands over to another one.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "base/result.h"

namespace bannersmith {

/// The command-line text of the process. On Windows its own text after the program's name, quotes
/// and all; on POSIX the arguments joined by one blank each.
std::u16string Command_Line(int argc, char** argv);

/// The arguments without the program's name, taken apart as the system does it.
std::vector<std::u16string> Arguments(int argc, char** argv);

/// Writes a UTF-8 text to standard output or standard error, so that a console of the system shows
/// it as it is. False where it could not be written whole.
bool Print(const std::string& text, std::FILE* stream);

/// Whether the stream ends at a person's terminal.
bool Is_Terminal(std::FILE* stream);

/// Writes a failure to standard error as one line, "bannersmith: SUBJECT: REASON".
void Print_Failure(const Failure& failure);

/// The folder of the running executable, without a separator at its end; empty where the system
/// does not tell.
std::u16string Program_Folder();

/// Hands over to the program `name` of the program folder, which gets the same command line. On
/// POSIX this process becomes that program; on Windows it goes on beside it. The failure names the
/// program's file.
Result<> Start_Program(const std::u16string& name, char** argv);

}  // namespace bannersmith
