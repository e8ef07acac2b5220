#include "container/archive.h"

#include <algorithm>

namespace bannersmith {

namespace {

constexpr std::size_t ImetEnd = 0x600;  // of its block
constexpr const char* BrokenPart = "IMD5 checksum does not hold";

std::string Small(std::string_view text) {
    std::string small(text);
    for (char& c : small) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return small;
}

std::string_view Name_Of(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

/// The folder of a path, with "/" at its end.
std::string_view Folder_Of(std::string_view path) {
    return path.substr(0, path.rfind('/') + 1);
}

bool Is_Layout_Name(std::string_view path) {
    return Small(path).ends_with(".brlyt");
}

/// `path` behind that of the part.
std::string Joined(const std::string& part, const std::string& path) {
    return part.empty() ? path : part + "/" + path;
}

Failure In_Part(const std::string& part, const std::string& reason) {
    return {u"", part.empty() ? reason : part + ": " + reason};
}

/// Whether a file is a texture, with any bytes, of that folder, named in small letters.
bool Is_Texture_In(std::string_view folder, const U8Member& file) {
    return Small(Folder_Of(file.path)) == folder && Small(file.path).ends_with(".tpl") &&
           file.size > 0;
}

std::string Warn(const std::string& part, const std::string& reason) {
    return In_Part(part, reason).reason;
}

}  // namespace

Result<OpenedPart> Open_Part(const StoredPart& stored) {
    if (!stored.fault.empty()) return In_Part(stored.path, stored.fault);
    auto content = Unpack(stored.part);
    if (!content) return In_Part(stored.path, content.Why().reason);
    auto files = Read_U8(content->bytes);
    if (!files) return In_Part(stored.path, files.Why().reason);
    return OpenedPart{std::move(*content), std::move(*files)};
}

bool Archive::Begins_As_One(std::string_view bytes) {
    return Find_Imet(bytes) || Begins_As_U8(bytes) || Begins_As_Part(bytes);
}

Result<Archive> Archive::Read(std::string bytes) {
    Archive archive;
    archive.bytes_ = std::make_shared<const std::string>(std::move(bytes));
    for (const auto step : {&Archive::Read_Shells, &Archive::Read_Parts, &Archive::Open_Layout_Part,
                            &Archive::Choose_Layout}) {
        if (const auto done = (archive.*step)(); !done) return done.Why();
    }
    archive.Judge();
    return archive;
}

Result<> Archive::Read_Shells() {
    imet_ = Find_Imet(*bytes_);
    if (imet_) {
        if (bytes_->size() < *imet_ + ImetEnd) return Failure{u"", "IMET header is cut off"};
        outer_at_ = *imet_ + ImetEnd;
    } else if (!Begins_As_U8(*bytes_)) {
        return {};
    }
    auto members = Read_U8(Outer());
    if (!members) return members.Why();
    const bool is_part = !imet_ && std::any_of(members->begin(), members->end(), [](auto& file) {
        return Is_Layout_Name(file.path);
    });
    if (!is_part) members_ = std::move(*members);
    return {};
}

Result<> Archive::Read_Parts() {
    if (members_.empty()) {
        const auto part = Read_Part(Outer());
        if (!part) return part.Why();
        parts_.push_back({"", 0, *part, "", part->Checksum_Holds()});
    }
    for (std::size_t i = 0; i < members_.size(); ++i) {
        const U8Member& member = members_[i];
        auto part = Read_Part(Outer().substr(member.offset, member.size));
        const std::string fault = part ? "" : part.Why().reason;
        const bool is_sound = !part || part->Checksum_Holds();
        parts_.push_back({member.path, i, std::move(part).Value_Or({}), fault, is_sound});
    }
    return {};
}

std::optional<std::size_t> Archive::Find_Part(std::string_view name) const {
    std::optional<std::size_t> found;
    for (std::size_t i = parts_.size(); i-- > 0;) {
        const std::string path = Small(parts_[i].path);
        if (path == "meta/" + std::string(name)) return i;
        if (Name_Of(path) == name) found = i;
    }
    return found;
}

Result<> Archive::Open_Layout_Part() {
    auto part = Find_Part("banner.bin");
    if (!part) part = Find_Part("icon.bin");
    if (!part && !members_.empty()) return Failure{u"", "Holds neither banner.bin nor icon.bin"};
    layout_part_ = part.value_or(0);
    auto opened = Open_Part(parts_[layout_part_]);
    if (!opened) return opened.Why();
    opened_ = std::make_shared<const OpenedPart>(std::move(*opened));
    return {};
}

Result<> Archive::Choose_Layout() {
    std::vector<std::size_t> layouts;
    for (std::size_t i = 0; i < opened_->files.size(); ++i) {
        if (Is_Layout_Name(opened_->files[i].path)) layouts.push_back(i);
    }
    const auto called = [&](std::string_view path) {
        return std::find_if(layouts.begin(), layouts.end(),
                            [&](std::size_t i) { return Small(opened_->files[i].path) == path; });
    };
    auto chosen = called("arc/blyt/banner.brlyt");
    if (chosen == layouts.end() && layouts.size() == 1) chosen = layouts.begin();
    if (chosen == layouts.end()) chosen = called("arc/blyt/icon.brlyt");
    if (chosen == layouts.end()) {
        return In_Part(parts_[layout_part_].path,
                       layouts.empty() ? "Holds no layout"
                                       : "Holds several layouts, none of them banner.brlyt");
    }
    layout_ = *chosen;
    return {};
}

/// The order is that of the file; what forbids an edit is found on the way.
void Archive::Judge() {
    if (imet_) {
        const auto header = Read_Imet(*bytes_, *imet_);
        if (!header) warnings_.push_back(refusal_ = header.Why().reason);
        Judge_Sizes();
        if (Has_Endless_Name(std::string_view(*bytes_).substr(*imet_))) {
            warnings_.push_back("IMET header: a name has more characters than have room");
        }
    }
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        const StoredPart& stored = parts_[i];
        if (!stored.fault.empty()) warnings_.push_back(Warn(stored.path, stored.fault));
        if (stored.is_sound) continue;
        warnings_.push_back(Warn(stored.path, BrokenPart));
        if (i == layout_part_ && refusal_.empty()) refusal_ = warnings_.back();
    }
    Judge_Places();
}

/// What is odd of the two archives that a save rewrites, and of what lies behind them.
void Archive::Judge_Places() {
    const auto add = [&](const std::string& part, const std::vector<std::string>& odd) {
        for (const std::string& what : odd) warnings_.push_back(Warn(part, what));
    };
    if (!members_.empty()) add("", Odd_In_U8(Outer(), members_));
    const StoredPart& stored = parts_[layout_part_];
    add(stored.path, Odd_In_U8(opened_->content.bytes, opened_->files));
    if (Has_Bytes_Behind(stored.part, opened_->content)) {
        add(stored.path, {"bytes behind its end"});
    }
}

void Archive::Judge_Sizes() {
    const PartSizes said = Sizes_Of(std::string_view(*bytes_).substr(*imet_));
    const PartSizes real = Real_Sizes({});
    const auto judge = [&](const char* part, std::size_t stored, std::size_t found) {
        if (stored == found) return;
        warnings_.push_back("IMET header: " + std::string(part) + " size " +
                            std::to_string(stored) + ", but it has " + std::to_string(found));
    };
    judge("icon", said.icon, real.icon);
    judge("banner", said.banner, real.banner);
    judge("sound", said.sound, real.sound);
}

/// Of parts that are missing, or whose content nobody here can read, the header keeps what it says.
PartSizes Archive::Real_Sizes(const NewMembers& changed) const {
    PartSizes sizes = Sizes_Of(std::string_view(*bytes_).substr(*imet_));
    for (const auto& [name, size] : {std::pair{"icon.bin", &PartSizes::icon},
                                     {"banner.bin", &PartSizes::banner},
                                     {"sound.bin", &PartSizes::sound}}) {
        const auto index = Find_Part(name);
        if (!index || !parts_[*index].fault.empty()) continue;
        const auto fresh = changed.find(parts_[*index].member);
        if (fresh != changed.end()) {
            sizes.*size = Read_Part(fresh->second).Value_Or({}).Content_Size();
        } else {
            sizes.*size = parts_[*index].part.Certain_Size(sizes.*size).value_or(sizes.*size);
        }
    }
    return sizes;
}

std::string_view Archive::File_Bytes(std::size_t file) const {
    const U8Member& member = opened_->files[file];
    return std::string_view(opened_->content.bytes).substr(member.offset, member.size);
}

std::string Archive::Path_Of(std::size_t file) const {
    return Joined(parts_[layout_part_].path, opened_->files[file].path);
}

std::optional<std::string> Archive::Find_Texture(std::string_view beginning) const {
    const std::string_view blyt = Folder_Of(opened_->files[layout_].path);
    const std::string_view arc = Folder_Of(blyt.substr(0, blyt.size() - !blyt.empty()));
    for (const U8Member& file : opened_->files) {
        if (!Is_Texture_In(Small(arc) + "timg/", file)) continue;
        if (Small(Name_Of(file.path)).starts_with(Small(beginning))) {
            return Joined(parts_[layout_part_].path, file.path);
        }
    }
    return std::nullopt;
}

std::optional<std::string> Archive::Find_Texture_Anywhere(std::string_view beginning) const {
    for (const StoredPart& stored : parts_) {
        OpenedPart room;
        const auto opened = Opened(stored, room);
        if (!opened) continue;
        for (const U8Member& file : (*opened)->files) {
            if (!Is_Texture_In("arc/timg/", file)) continue;
            if (Small(Name_Of(file.path)).starts_with(Small(beginning))) {
                return Joined(stored.path, file.path);
            }
        }
    }
    return std::nullopt;
}

/// The part that is open already, or another one, which is then in `room`.
Result<const OpenedPart*> Archive::Opened(const StoredPart& stored, OpenedPart& room) const {
    if (&stored == &parts_[layout_part_]) return opened_.get();
    auto opened = Open_Part(stored);
    if (!opened) return opened.Why();
    room = std::move(*opened);
    return &room;
}

std::optional<std::string> Archive::Find_File(std::string_view path) const {
    for (const StoredPart& stored : parts_) {
        const std::string folder = Joined(stored.path, "");
        if (!path.starts_with(folder)) continue;
        OpenedPart room;
        const auto opened = Opened(stored, room);
        if (!opened) continue;
        for (const U8Member& file : (*opened)->files) {
            if (folder + file.path != path) continue;
            return (*opened)->content.bytes.substr(file.offset, file.size);
        }
    }
    return std::nullopt;
}

Result<> Archive::Visit_Files(const FileVisitor& visit) const {
    Result<> all_unpacked;
    for (const StoredPart& stored : parts_) {
        const auto content =
            stored.fault.empty() ? Unpack(stored.part) : Failure{u"", stored.fault};
        if (!content) {
            all_unpacked = In_Part(stored.path, content.Why().reason);
            continue;
        }
        const std::string_view bytes = content->bytes;
        const auto files = Begins_As_U8(bytes) ? Read_U8(bytes) : Failure();
        if (!files) {
            if (auto visited = visit(stored.path, bytes); !visited) return visited;
            continue;
        }
        for (const U8Member& file : *files) {
            auto visited =
                visit(Joined(stored.path, file.path), bytes.substr(file.offset, file.size));
            if (!visited) return visited;
        }
    }
    return all_unpacked;
}

std::optional<ChannelNames> Archive::Names() const {
    if (!imet_) return std::nullopt;
    return Names_Of(std::string_view(*bytes_).substr(*imet_));
}

/// The part with other bytes for its files; nothing where they are the bytes that it has. `placed`
/// counts the files that are there.
Result<std::optional<std::string>> Archive::Pack_Part(const StoredPart& stored,
                                                      const NewFiles& files,
                                                      std::size_t& placed) const {
    OpenedPart room;
    const auto found = Opened(stored, room);
    if (!found) return found.Why();
    const OpenedPart* opened = *found;
    if (!stored.is_sound) return In_Part(stored.path, BrokenPart);
    const std::string_view content = opened->content.bytes;
    NewMembers changed;
    for (std::size_t i = 0; i < opened->files.size(); ++i) {
        const U8Member& old = opened->files[i];
        const auto fresh = files.find(Joined(stored.path, old.path));
        if (fresh == files.end()) continue;
        ++placed;
        if (content.substr(old.offset, old.size) != fresh->second) {
            changed.insert({i, fresh->second});
        }
    }
    if (changed.empty()) return std::optional<std::string>();
    const std::string whole = Replace_U8_Members({}, content, opened->files, changed);
    return std::optional(Pack(stored.part, whole, opened->content));
}

/// The members of the channel's archive that change; the one member 0 where the file is a part.
Result<NewMembers> Archive::Pack_Parts(const NewFiles& files) const {
    NewMembers packed;
    std::size_t placed = 0;
    for (const StoredPart& stored : parts_) {
        const std::string prefix = Joined(stored.path, "");
        const bool concerned = std::any_of(files.begin(), files.end(), [&](const auto& file) {
            return file.first.starts_with(prefix);
        });
        if (!concerned) continue;
        auto part = Pack_Part(stored, files, placed);
        if (!part) return part.Why();
        if (*part) packed.insert({stored.member, std::move(**part)});
    }
    if (placed != files.size()) return Failure{u"", "Lacks a file that would be replaced"};
    return packed;
}

/// The header's block with these names, sealed anew where anything changes.
std::string Archive::Block_With(const NewMembers& parts,
                                const std::optional<ChannelNames>& names) const {
    const std::string old = bytes_->substr(*imet_, outer_at_ - *imet_);
    std::string block = old;
    for (std::size_t language = 0; names && language < names->size(); ++language) {
        for (std::size_t line = 0; line < NameLines; ++line) {
            block = With_Name(std::move(block), language, line, (*names)[language][line]);
        }
    }
    return parts.empty() && block == old ? old : Sealed(std::move(block), Real_Sizes(parts));
}

Result<std::string> Archive::With(const NewFiles& files,
                                  const std::optional<ChannelNames>& names) const {
    const auto packed = Pack_Parts(files);
    if (!packed) return packed.Why();
    if (members_.empty()) return packed->empty() ? *bytes_ : packed->begin()->second;
    std::string file;
    file.reserve(bytes_->size());
    file.append(*bytes_, 0, imet_.value_or(0));
    if (imet_) file += Block_With(*packed, names);
    return Replace_U8_Members(std::move(file), Outer(), members_, *packed);
}

}  // namespace bannersmith
