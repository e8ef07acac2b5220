#include "inspect/archive_info.h"

#include "base/text.h"

namespace bannersmith {

ArchiveInfo Read_Archive_Info(const Archive& archive) {
    ArchiveInfo info;
    info.file_size = archive.Bytes().size();
    info.layout = archive.Layout_Path();
    info.names = archive.Names();
    info.warnings = archive.Warnings();
    const auto broken = archive.Visit_Files([&](const std::string& path, std::string_view bytes) {
        info.files.push_back({path, bytes.size(), Describe_Texture(bytes)});
        const bool called_texture = Capitals(From_Utf8(path)).ends_with(u".TPL");
        if (called_texture && !info.files.back().texture) {
            info.warnings.push_back(path + ": Is no texture, or is cut off");
        }
        return Result<>();
    });
    if (!broken) info.warnings.push_back(broken.Why().reason);
    return info;
}

}  // namespace bannersmith
