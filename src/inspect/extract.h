#pragma once

#include <string>

#include "base/result.h"
#include "container/archive.h"

namespace bannersmith {

/// Writes every file of an archive, unpacked, below `folder`, each by its path with that of its
/// part in front of it as a folder. Fails, before anything is written, for a file that is there
/// already, for a link below the folder that one would be written through, and for a name that some
/// system would not take as that of a file in its folder.
Result<> Extract_Files(const Archive& archive, const std::u16string& folder);

}  // namespace bannersmith
