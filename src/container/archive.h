// The file that a channel keeps its banner in, from outside to inside: a build tag and an IMET
// header, a U8 archive with the parts banner.bin, icon.bin and sound.bin, in each an IMD5 header
// and an LZ77 stream, in these a U8 archive with layout, animations and textures. Each shell may be
// missing: a part alone, or the archive in it, is opened too.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "container/imet.h"
#include "container/part.h"
#include "container/u8.h"

namespace bannersmith {

/// A part as it is stored.
struct StoredPart {
    std::string path;        ///< in the channel's archive; empty where the file is the part
    std::size_t member = 0;  ///< its index among the members of the channel's archive
    Part part;
    std::string fault;     ///< why nothing of it can be read; empty for most
    bool is_sound = true;  ///< whether its checksum holds
};

/// The archive that a part holds.
struct OpenedPart {
    PartContent content;
    std::vector<U8Member> files;
};

/// Unpacks a part and reads its archive. The failure, without a subject, begins with the part's
/// path.
Result<OpenedPart> Open_Part(const StoredPart& stored);

/// New bytes of files by their paths, each behind the path of its part and "/".
using NewFiles = std::map<std::string, std::string>;

/// A banner's file and what is in it. Copies share the bytes.
class Archive {
 public:
    /// Whether `bytes` begin as such a file, or as one of its shells.
    static bool Begins_As_One(std::string_view bytes);

    /// Reads the file and opens the part that has the layout: banner.bin, in "meta" first, or else
    /// icon.bin, with arc/blyt/banner.brlyt, or else the only layout, or else icon.brlyt. Fails,
    /// without a subject, where the way to the layout is broken. A checksum that does not hold is
    /// no such failure.
    static Result<Archive> Read(std::string bytes);

    const std::string& Bytes() const { return *bytes_; }

    /// The layout's bytes, and its path with that of its part in front.
    std::string_view Layout() const { return File_Bytes(layout_); }
    std::string Layout_Path() const { return Path_Of(layout_); }

    /// The path of the first file in the folder "timg" beside the layout's folder whose name begins
    /// with `beginning` and ends in ".tpl", whatever the case of its letters; nothing where there
    /// is none with any bytes.
    std::optional<std::string> Find_Texture(std::string_view beginning) const;

    /// The first in the folder arc/timg of any part, in the order of the file, whatever the case of
    /// its letters.
    std::optional<std::string> Find_Texture_Anywhere(std::string_view beginning) const;

    /// The bytes of a file. Nothing where there is none of that path that can be read.
    std::optional<std::string> Find_File(std::string_view path) const;

    /// Takes the path of a file and its bytes, which do not outlive the call.
    using FileVisitor = std::function<Result<>(const std::string& path, std::string_view bytes)>;

    /// Shows every file, unpacked, in the order of the archive: those of each part, or the content
    /// of one that is no archive itself. Ends at the first failure. A part that cannot be unpacked
    /// is passed over, and is the failure at the end.
    Result<> Visit_Files(const FileVisitor& visit) const;

    /// All parts, in their order.
    const std::vector<StoredPart>& Parts() const { return parts_; }

    /// The lines that the console's menu shows; nothing for a file without an IMET header.
    std::optional<ChannelNames> Names() const;

    /// What is wrong with it, each with its place: checksums that do not hold, sizes that are not
    /// those of the parts, parts that cannot be read.
    const std::vector<std::string>& Warnings() const { return warnings_; }

    /// The one of them for which it must not be edited, as a save would hide it: a checksum of the
    /// IMET header or of the layout's part. Empty for a sound one.
    const std::string& Refusal() const { return refusal_; }

    /// The file with other bytes for some files, and with these names where it has names: the parts
    /// that change are packed anew, sizes, places and checksums follow, all other members keep
    /// their stored bytes. Without a change it is the file as it was read. Fails for a file that is
    /// not there.
    Result<std::string> With(const NewFiles& files, const std::optional<ChannelNames>& names) const;

 private:
    Result<> Read_Shells();
    Result<> Read_Parts();
    Result<> Open_Layout_Part();
    Result<> Choose_Layout();
    void Judge();
    void Judge_Sizes();
    void Judge_Places();

    std::string_view Outer() const { return std::string_view(*bytes_).substr(outer_at_); }
    std::string_view File_Bytes(std::size_t file) const;
    std::string Path_Of(std::size_t file) const;
    Result<const OpenedPart*> Opened(const StoredPart& stored, OpenedPart& room) const;
    std::optional<std::size_t> Find_Part(std::string_view name) const;
    PartSizes Real_Sizes(const NewMembers& changed) const;
    Result<NewMembers> Pack_Parts(const NewFiles& files) const;
    Result<std::optional<std::string>> Pack_Part(const StoredPart& stored, const NewFiles& files,
                                                 std::size_t& placed) const;
    std::string Block_With(const NewMembers& parts, const std::optional<ChannelNames>& names) const;

    std::shared_ptr<const std::string> bytes_;
    std::optional<std::size_t> imet_;  ///< where the header's block begins
    std::size_t outer_at_ = 0;         ///< where the channel's archive, or the part, begins
    std::vector<U8Member> members_;    ///< of the channel's archive; none where the file is a part
    std::vector<StoredPart> parts_;
    std::size_t layout_part_ = 0;
    std::shared_ptr<const OpenedPart> opened_;
    std::size_t layout_ = 0;  ///< the layout among the files of its part
    std::vector<std::string> warnings_;
    std::string refusal_;
};

}  // namespace bannersmith
