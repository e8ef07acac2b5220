#pragma once

#include <optional>
#include <string>
#include <vector>

#include "container/archive.h"
#include "texture/tpl.h"

namespace bannersmith {

/// A file of an archive.
struct ArchiveFileInfo {
    std::string path;  ///< behind the path of its part
    std::size_t size = 0;
    std::optional<TextureInfo> texture;
};

/// What the inspect tool says of an archive beside its layout.
struct ArchiveInfo {
    std::size_t file_size = 0;
    std::string layout;  ///< the path of the layout that is edited
    std::vector<ArchiveFileInfo> files;
    std::optional<ChannelNames> names;
    std::vector<std::string> warnings;
};

/// Everything that an archive holds, in its order.
ArchiveInfo Read_Archive_Info(const Archive& archive);

}  // namespace bannersmith
