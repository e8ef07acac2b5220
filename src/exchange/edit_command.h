// The command line of the strict command, read whole and checked before anything is done.
#pragma once

#include <string>
#include <vector>

#include "base/result.h"
#include "exchange/shelf.h"

namespace bannersmith {

/// What a command line asks for.
struct EditCommand {
    std::vector<std::u16string> banners;
    ShelfOptions shelf;
    std::u16string recipe;      ///< a file; empty for none
    std::string export_recipe;  ///< "csv" or "json": shows what banners hold in place of editing
    bool diff = false, json = false, quiet = false;
};

/// Reads the arguments. A value may stand behind "=" or be the next argument, whatever it begins
/// with. Options are applied in their order. Fails, without a subject, for what is no option, an
/// option twice, values that cannot be, options that exclude each other, and where nothing is to be
/// done.
Result<EditCommand> Read_Edit_Command(const std::vector<std::u16string>& arguments,
                                      const std::u16string& program_folder);

}  // namespace bannersmith
