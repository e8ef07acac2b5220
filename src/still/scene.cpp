#include "still/scene.h"

#include <algorithm>

#include "layout/format.h"
#include "layout/sections.h"
#include "still/fields.h"

namespace bannersmith::still {

namespace {

/// A layout of any use has far fewer, and each costs as much as a screen to draw.
constexpr std::size_t MostPanes = 4096;

/// Where a material's parts follow each other behind its fixed fields.
class MaterialReader {
 public:
    explicit MaterialReader(Fields record)
        : record_(record), counts_(record.U32(material::Counts)) {}

    Material Read() {
        Material read;
        read.name = record_.Name(0, material::NameBytes);
        Read_Colors(read);
        Read_Textures(read);
        Read_Channels(read);
        Read_Stages(read);
        return read;
    }

    bool Is_Cut_Off() const { return !record_.Has(0, at_); }
    bool Has_Indirect_Stages() const { return has_indirect_; }

 private:
    std::size_t Count(unsigned lowest_bit, unsigned bits) const {
        return counts_ >> lowest_bit & ((1U << bits) - 1);
    }

    std::size_t Take(std::size_t bytes) {
        const std::size_t from = at_;
        at_ += bytes;
        return from;
    }

    void Read_Colors(Material& read) {
        constexpr std::array Places = {material::FirstColor, material::SecondColor,
                                       material::ThirdColor};
        for (std::size_t i = 0; i < Places.size(); ++i) {
            for (std::size_t c = 0; c < 4; ++c) {
                read.registers[i][c] = static_cast<std::int16_t>(record_.U16(Places[i] + 2 * c));
            }
        }
        for (std::size_t i = 0; i < read.constants.size(); ++i) {
            read.constants[i] = record_.Bytes<4>(material::Constants + 4 * i);
        }
    }

    void Read_Textures(Material& read) {
        constexpr unsigned FirstSet = 4, FirstMatrix = 30;
        for (std::size_t i = Count(0, 4); i > 0; --i) {
            const std::size_t at = Take(4);
            const auto wrap = [&](std::size_t offset) {
                return Wrap((record_.U8(at + offset) & 3) % 3);
            };
            read.maps.push_back({record_.U16(at), wrap(2), wrap(3)});
        }
        for (std::size_t i = Count(4, 4); i > 0; --i) {
            const auto [s, t, turn, scale_s, scale_t] = record_.Floats<5>(Take(20));
            read.matrices.push_back({s, t, turn, scale_s, scale_t});
        }
        for (std::size_t i = Count(8, 4); i > 0; --i) {
            const std::size_t at = Take(4);
            CoordinateSource source{static_cast<std::size_t>(record_.U8(at + 1)) - FirstSet, {}};
            const std::size_t matrix = (record_.U8(at + 2) - FirstMatrix) / 3;
            if (record_.U8(at + 2) >= FirstMatrix && matrix < read.matrices.size()) {
                source.matrix = matrix;
            }
            read.coordinates.push_back(source);
        }
    }

    void Read_Channels(Material& read) {
        if (Count(25, 1) > 0) {
            const std::size_t at = Take(4);
            read.color_of_vertex = record_.U8(at) != 0;
            read.alpha_of_vertex = record_.U8(at + 1) != 0;
        }
        if (Count(27, 1) > 0) read.color = record_.Bytes<4>(Take(4));
        if (Count(12, 1) > 0) read.swaps = record_.Bytes<4>(Take(4));
    }

    void Read_Stages(Material& read) {
        has_indirect_ = Count(15, 3) > 0;
        Take(20 * Count(13, 2) + 4 * Count(15, 3));
        for (std::size_t i = Count(18, 5); i > 0; --i) {
            read.stages.push_back(record_.Bytes<16>(Take(16)));
        }
        if (Count(23, 1) > 0) {
            const std::size_t at = Take(4);
            read.compare = {record_.U8(at), record_.U8(at + 1), record_.Bytes<2>(at + 2)};
        }
        if (Count(24, 1) > 0) {
            const auto [type, source, destination, logic] = record_.Bytes<4>(Take(4));
            read.blend = {type, source, destination, logic};
        }
    }

    Fields record_;
    std::uint32_t counts_;
    std::size_t at_ = material::Smallest;
    bool has_indirect_ = false;
};

Surface Read_Surface(Fields fields) {
    Surface read;
    read.material = fields.U16(surface::Material);
    for (std::size_t corner = 0; corner < 4; ++corner) {
        read.colors[corner] = fields.Bytes<4>(surface::Colors + 4 * corner);
    }
    const std::size_t count = fields.U8(surface::SetCount);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = surface::Sets + surface::SetBytes * i;
        if (!fields.Has(at, surface::SetBytes)) break;
        read.sets.push_back(fields.Floats<8>(at));
    }
    return read;
}

WindowLook Read_Window(Fields fields) {
    WindowLook read;
    read.inflation = fields.Floats<4>(window::Inflation);
    const std::size_t count = fields.U8(window::FrameCount), list = fields.U32(window::Frames);
    for (std::size_t i = 0; i < count; ++i) {
        const Fields part = fields.Behind(fields.U32(list + 4 * i));
        read.frame.push_back({part.U16(0), part.U8(window::FrameFlip)});
    }
    return read;
}

TextLook Read_Text(Fields fields) {
    TextLook read;
    const std::size_t begin = fields.U32(record::TextOffset);
    for (std::size_t i = 0; i + 1 < fields.U16(record::TextLength); i += 2) {
        const char16_t unit = fields.U16(begin + i);
        if (unit == 0) break;
        read.text += unit;
    }
    read.material = fields.U16(record::Material);
    read.font = fields.U16(record::Font);
    read.position = fields.U8(record::Position) % 9;
    read.top = fields.Bytes<4>(record::TopColor);
    read.bottom = fields.Bytes<4>(record::BottomColor);
    read.font_size = fields.Floats<2>(record::FontSize);
    read.character_space = fields.F32(record::CharacterSpace);
    read.line_space = fields.F32(record::LineSpace);
    read.buffer_length = fields.U16(record::BufferLength);
    return read;
}

Pane Read_Pane(Fields fields) {
    Pane read;
    const unsigned flags = fields.U8(pane::Flags);
    read.name = fields.Name(pane::Name, pane::NameBytes);
    read.is_visible = (flags & pane::IsVisible) != 0;
    read.passes_alpha = (flags & pane::PassesAlpha) != 0;
    read.keeps_shape = (flags & pane::KeepsShape) != 0;
    read.base_position = fields.U8(pane::BasePosition) % 9;
    read.alpha = fields.U8(pane::Alpha);
    read.translation = fields.Floats<3>(pane::Translation);
    read.rotation = fields.Floats<3>(pane::Rotation);
    read.scale = fields.Floats<2>(pane::Scale);
    read.size = fields.Floats<2>(pane::Extent);
    return read;
}

/// Reads section after section; panes and groups are nested by sections that open and close a
/// level.
class SceneReader {
 public:
    Scene Read(std::string_view layout) {
        const SectionChain chain = Read_Chain(layout);
        for (const ChainSection& part : chain.sections) Read_Section(part);
        if (!chain.fault.empty()) Tell(chain.fault);
        return std::move(scene_);
    }

 private:
    void Tell(std::string fault) {
        constexpr std::size_t MostFaults = 100;
        if (scene_.faults.size() < MostFaults) scene_.faults.push_back(std::move(fault));
    }

    void Read_Section(const ChainSection& part) {
        const Fields fields(part.bytes);
        if (part.tag == section::Screen) scene_.is_centred = fields.U8(screen::IsCentred) != 0;
        if (part.tag == section::Textures) scene_.textures = Read_Names(fields);
        if (part.tag == section::Fonts) scene_.fonts = Read_Names(fields);
        if (part.tag == section::Materials) Read_Materials(fields);
        if (part.tag == section::Group) Read_Group(fields);
        if (part.tag == section::OpenPanes) parents_.push_back(last_);
        if (part.tag == section::ClosePanes && !parents_.empty()) parents_.pop_back();
        if (part.tag == section::OpenGroups) ++depth_;
        if (part.tag == section::CloseGroups && depth_ > 0) --depth_;
        Read_Pane_Section(part.tag, fields);
    }

    static std::vector<std::string> Read_Names(Fields fields) {
        std::vector<std::string> names;
        const std::size_t count = fields.U16(name_list::Count);
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t entry = name_list::List + name_list::EntryBytes * i;
            if (!fields.Has(entry, name_list::EntryBytes)) break;
            constexpr std::size_t MostLetters = 255;
            names.push_back(fields.Name(name_list::List + fields.U32(entry), MostLetters));
        }
        return names;
    }

    void Read_Materials(Fields fields) {
        const std::size_t count = fields.U16(material::Count);
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t entry = material::List + 4 * i;
            const Fields record = fields.Behind(fields.U32(entry));
            const bool is_there = fields.Has(entry, 4) && record.Has(0, material::Smallest);
            if (!is_there || scene_.materials.size() * material::Smallest > fields.Size()) {
                return Tell("material " + std::to_string(i) + " lies outside its section");
            }
            MaterialReader reader(record);
            scene_.materials.push_back(reader.Read());
            const std::string& name = scene_.materials.back().name;
            if (reader.Is_Cut_Off()) Tell("material " + name + " is cut off");
            if (reader.Has_Indirect_Stages()) {
                Tell("material " + name + " bends its textures, which is not drawn");
            }
        }
    }

    void Read_Group(Fields fields) {
        Group read{fields.Name(group::Name, group::NameBytes), {}, depth_};
        const std::size_t count = fields.U16(group::Count);
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t at = group::Members + group::NameBytes * i;
            if (!fields.Has(at, group::NameBytes)) break;
            read.members.push_back(fields.Name(at, group::NameBytes));
        }
        scene_.groups.push_back(std::move(read));
    }

    void Read_Pane_Section(std::string_view tag, Fields fields) {
        const bool is_text = tag == record::Tag, is_picture = tag == pane::Picture;
        const bool is_window = tag == pane::Window;
        const bool is_empty = tag == pane::Plain || tag == pane::Bounds;
        if (!is_text && !is_picture && !is_window && !is_empty) return;
        if (scene_.panes.size() == MostPanes) {
            if (!has_too_many_) Tell("there are more than " + std::to_string(MostPanes) + " panes");
            has_too_many_ = true;
            return;
        }
        Pane read = Read_Pane(fields);
        if (!fields.Has(0, pane::End)) Tell("pane " + read.name + " is cut off");
        if (is_text) read.text = Read_Text(fields);
        if (is_picture) read.surface = Read_Surface(fields.Behind(pane::End));
        if (is_window) {
            read.surface = Read_Surface(fields.Behind(fields.U32(window::Content)));
            read.window = Read_Window(fields);
        }
        if (!parents_.empty()) read.parent = parents_.back();
        last_ = scene_.panes.size();
        scene_.panes.push_back(std::move(read));
    }

    Scene scene_;
    std::vector<std::size_t> parents_;
    std::size_t last_ = Pane::None, depth_ = 0;
    bool has_too_many_ = false;
};

template <typename Named>
std::size_t Find_Named(const std::vector<Named>& list, std::string_view name) {
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&](const Named& entry) { return entry.name == name; });
    return found == list.end() ? Pane::None : static_cast<std::size_t>(found - list.begin());
}

constexpr std::array<std::string_view, 9> LanguageGroups = {"JPN", "ENG", "GER", "FRA", "SPA",
                                                            "ITA", "NED", "CHN", "KOR"};

/// In which order each region looks for a language that a banner has.
constexpr std::array<std::array<std::string_view, 6>, 5> Regions = {
    {{"ENG", "FRA", "GER", "SPA", "ITA", "NED"}, {"ENG", "FRA", "SPA"}, {"JPN"}, {"KOR"}, {"CHN"}}};

bool Is_Of_A_Language(const Group& group) {
    return group.depth == 1 && std::find(LanguageGroups.begin(), LanguageGroups.end(),
                                         group.name) != LanguageGroups.end();
}

/// Of the groups in RootGroup the one that stands for a language.
const Group* Group_For(const Scene& scene, std::string_view code) {
    const auto find = [&](std::string_view name) -> const Group* {
        for (const Group& group : scene.groups) {
            if (group.depth == 1 && group.name == name) return &group;
        }
        return nullptr;
    };
    if (const Group* own = find(code)) return own;
    for (const auto& region : Regions) {
        if (std::find(region.begin(), region.end(), code) == region.end()) continue;
        for (const std::string_view other : region) {
            if (const Group* group = other.empty() ? nullptr : find(other)) return group;
        }
    }
    return nullptr;
}

/// Groups that the menu leaves alone: Rso0 to Rso15.
bool Is_Left_Alone(std::string_view name) {
    for (unsigned i = 0; i < 16; ++i) {
        if (name == "Rso" + std::to_string(i)) return true;
    }
    return false;
}

void Set_Visible(Scene& scene, const Group& group, bool visible) {
    for (const std::string& member : group.members) {
        const std::size_t index = scene.Find_Pane(member);
        if (index != Pane::None) scene.panes[index].is_visible = visible;
    }
}

}  // namespace

std::size_t Scene::Find_Pane(std::string_view name) const {
    return Find_Named(panes, name);
}

std::size_t Scene::Find_Material(std::string_view name) const {
    return Find_Named(materials, name);
}

Scene Read_Scene(std::string_view layout) {
    return SceneReader().Read(layout);
}

bool Show_Language(Scene& scene, std::string_view code) {
    const Group* shown = Group_For(scene, code);
    bool has_languages = false;
    for (const Group& group : scene.groups) {
        has_languages = has_languages || Is_Of_A_Language(group);
        if (group.depth != 1 || &group == shown || Is_Left_Alone(group.name)) continue;
        Set_Visible(scene, group, false);
    }
    if (shown != nullptr) Set_Visible(scene, *shown, true);
    return shown != nullptr || !has_languages;
}

std::vector<std::string> Languages_Of(const Scene& scene) {
    std::vector<std::string> codes;
    for (const Group& group : scene.groups) {
        if (Is_Of_A_Language(group)) codes.push_back(group.name);
    }
    return codes;
}

std::string Usual_Language(const Scene& scene) {
    const std::vector<std::string> codes = Languages_Of(scene);
    if (codes.empty()) return {};
    return std::find(codes.begin(), codes.end(), "ENG") == codes.end() ? codes.front() : "ENG";
}

}  // namespace bannersmith::still
