#include "inspect/archive_info.h"

namespace bannersmith {

ArchiveInfo Read_Archive_Info(const Archive& archive) {
    ArchiveInfo info;
    info.file_size = archive.Bytes().size();
    info.layout = archive.Layout_Path();
    info.names = archive.Names();
    info.warnings = archive.Warnings();
    const auto broken = archive.Visit_Files([&](const std::string& path, std::string_view bytes) {
        info.files.push_back({path, bytes.size(), Describe_Texture(bytes)});
        return Result<>();
    });
    if (!broken) info.warnings.push_back(broken.Why().reason);
    return info;
}

}  // namespace bannersmith
