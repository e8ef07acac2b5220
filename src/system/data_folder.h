#pragma once

#include <string>

namespace bannersmith {

/// What a variable of the environment holds; null where there is none. A program hands in the C
/// library's.
using Variable = char* (*)(const char* name);

/// The folder with the configuration, the schemes and logos, the samples and the fonts that the
/// programs work with, no separator at its end: that of the running program where its configuration
/// can be replaced; otherwise, so for a program that was installed for all users, a folder of the
/// user's own, made as a copy of these at first. Where that cannot be made it is the program's
/// folder again, and what is written there fails with its reason.
///
/// The user's folder is "bannersmith" below `XDG_DATA_HOME`, or "~/.local/share" by `HOME`, on
/// Windows "Bannersmith" below `APPDATA`.
std::u16string Data_Folder(Variable variable);

}  // namespace bannersmith
