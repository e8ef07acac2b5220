#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "inspect/sections.h"

/// One line for each thing about the layout that an edit would not rewrite cleanly, in file order;
/// empty for a layout that is safe to edit.
std::vector<std::string> Find_Warnings(std::string_view data, const LayoutInfo& info);
