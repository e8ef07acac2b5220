// Where a banner comes from and where it is saved.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "container/archive.h"
#include "system/replace_files.h"

namespace bannersmith {

/// The layout file that an unpacked channel's folder holds, or its part that has one: a folder with
/// "arc" (in it "blyt" with banner.brlyt, or the only layout, or icon.brlyt) or "meta" in it. Any
/// other path is returned as it is.
std::u16string Layout_File_Of(const std::u16string& path);

/// A layout file, with its textures in the folder "timg" that lies beside the layout's folder; or
/// an archive that has them all.
class BannerSource {
 public:
    BannerSource() = default;

    /// `path` leads to the file, as the file routines take it; `name` is how failures call it.
    BannerSource(std::u16string path, std::u16string name)
        : path_(std::move(path)), name_(std::move(name)) {}
    explicit BannerSource(const std::u16string& path) : BannerSource(path, path) {}

    const std::u16string& Path() const { return path_; }
    const std::u16string& Name() const { return name_; }

    /// The archive, once `Read` has found that the file is one; null before, and for a layout file.
    const Archive* Packed_In() const { return archive_ ? &*archive_ : nullptr; }

    /// The layout's bytes. A program of the system is refused, and so is an archive that is broken
    /// on the way to the layout or whose checksums do not hold there, and a file that is called one
    /// (".app", ".bnr", ".bin") and is neither archive nor layout.
    Result<std::string> Read();

    /// Whether the file holds something else than when it was read; `layout`, what `Read` returned.
    /// One that is no longer there does not.
    bool Holds_Other(std::string_view layout) const;

    /// The path, in the file system or in the archive, of the first texture whose name begins with
    /// `beginning`; nothing where there is no such texture, no folder for it, or nothing that lies
    /// beside the layout's folder, which is so in a root folder. Fails where that cannot be told,
    /// and for a layout whose path names no folder.
    Result<std::optional<std::u16string>> Find_Texture(std::u16string_view beginning) const;

    /// The paths of the textures that show the game: of the first whose name begins with "VCPic"
    /// and the first with "IconVCPic", in the banner and in the channel's icon. The icon is the
    /// other part of the archive or, for a layout file, in the unpacked channel, where the folder
    /// that holds "arc" is called as this one, with "icon" in place of "banner".
    Result<std::vector<std::u16string>> Find_Game_Pictures() const;

    /// The files of the channel's part that the layout lies in, or of its other part, the icon
    /// beside a banner: those in the folders "blyt", "anim" and "timg", each by its path from the
    /// folder that holds these ("timg/VCPic.tpl"), as far as they can be read.
    std::map<std::string, std::string> Files_Of_Part(bool of_other) const;

    /// What stands in front of these paths where the whole one is told; nothing where there is no
    /// such part.
    std::optional<std::u16string> Folder_Of_Part(bool of_other) const;

    /// Whether the layout is that of an icon, by its name.
    bool Is_Icon() const;

    /// The animations beside the layout, in the folder "anim", their paths and bytes, as far as
    /// they can be read.
    std::vector<NewContents> Animations() const;

    /// The bytes of a texture that these routines told of. The failure has its path.
    Result<std::string> Texture(const std::u16string& path) const;

    /// Which files get which bytes when the layout becomes `layout`, the textures that
    /// `Find_Texture` told of become `textures`, and an archive's names `names`: the textures and
    /// then the layout, or the one archive.
    Result<std::vector<NewContents>> Plan(std::string layout, std::vector<NewContents> textures,
                                          const std::optional<ChannelNames>& names) const;

 private:
    std::u16string path_, name_;
    std::optional<Archive> archive_;
};

}  // namespace bannersmith
