// Builds the file that a channel keeps its banner in, shell by shell. The samples and the tests are
// made with it; the editor itself never builds one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "container/imet.h"

namespace bannersmith {

/// A file of an archive: its path, separated by "/", and its bytes. Files of one folder stand
/// together.
struct PackedFile {
    std::string path;
    std::string bytes;
};

/// A U8 archive of these files, in their order, each at a multiple of 32 bytes, filled up to one.
std::string U8_Archive(const std::vector<PackedFile>& files);

/// "meta/banner.bin" and its like: an IMD5 header and an LZ77 stream of the content.
std::string Channel_Part(std::string_view content);

/// A build tag, the IMET header with these names and sizes, and the archive.
std::string Channel_File(std::string_view build_tag, const ChannelNames& names,
                         const PartSizes& sizes, std::string_view archive);

/// A whole channel of a made-up game: banner with animations and textures, icon, and a sound of
/// silence.
std::string Sample_Channel();

/// The same with pictures that hardly pack, so that it is as large as channels are.
std::string Real_Size_Channel();

}  // namespace bannersmith
