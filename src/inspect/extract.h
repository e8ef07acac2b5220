#pragma once

#include <string>

#include "base/result.h"
#include "container/archive.h"

namespace bannersmith {

/// Writes every file of an archive, unpacked, below `folder`, each by its path with that of its
/// part in front of it as a folder. A file that is there already, and a name that some system would
/// not take as that of a file in its folder, ends it with a failure.
Result<> Extract_Files(const Archive& archive, const std::u16string& folder);

}  // namespace bannersmith
