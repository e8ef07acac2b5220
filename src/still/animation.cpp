#include "still/animation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

#include "layout/format.h"
#include "layout/sections.h"
#include "still/fields.h"

namespace bannersmith::still {

namespace {

constexpr std::string_view Magic = "RLAN", Info = "pai1";

/// The section with the curves: places in it, and what stands at the places that it tells.
namespace info {
constexpr std::size_t Frames = 0x08, TextureCount = 0x0C, ContentCount = 0x0E;
constexpr std::size_t ContentList = 0x10;  // 4 bytes: where it is
constexpr std::size_t Names = 0x14;        // 4 bytes each: where the name is, from here
}  // namespace info
namespace content {
constexpr std::size_t NameBytes = 20, KindCount = 20, Type = 21, Kinds = 24;
}
namespace kind {
constexpr std::size_t TargetCount = 4, Targets = 8;
}
namespace target {
constexpr std::size_t Id = 0, Number = 1, CurveType = 2, KeyCount = 4, Keys = 8, End = 12;
constexpr unsigned Steps = 1, Smooth = 2;
}  // namespace target

constexpr std::size_t SmoothKeyBytes = 12, StepKeyBytes = 8;

/// Follows the lists of the section. Places may be told more than once: what all of it may take is
/// bounded by the room that as many records need.
class AnimationReader {
 public:
    explicit AnimationReader(Fields section) : section_(section), room_left_(section.Size()) {}

    Animation Read() {
        read_.frames = section_.U16(info::Frames);
        Read_Textures();
        const std::size_t list = section_.U32(info::ContentList);
        const std::size_t count = section_.U16(info::ContentCount);
        for (std::size_t i = 0; i < count && Has_Room(list + 4 * i, 4, "contents"); ++i) {
            Read_Content(section_.Behind(section_.U32(list + 4 * i)));
        }
        return std::move(read_);
    }

 private:
    bool Has_Room(const Fields& fields, std::size_t at, std::size_t bytes, const char* what) {
        const bool has = fields.Has(at, bytes) && bytes <= room_left_;
        if (has) {
            room_left_ -= bytes;
        } else if (read_.faults.empty()) {
            read_.faults.push_back("the animation's " + std::string(what) + " are cut off");
        }
        return has;
    }
    bool Has_Room(std::size_t at, std::size_t bytes, const char* what) {
        return Has_Room(section_, at, bytes, what);
    }

    void Read_Textures() {
        const std::size_t count = section_.U16(info::TextureCount);
        for (std::size_t i = 0; i < count && Has_Room(info::Names + 4 * i, 4, "names"); ++i) {
            constexpr std::size_t MostLetters = 255;
            const std::size_t at = info::Names + section_.U32(info::Names + 4 * i);
            read_.textures.push_back(section_.Name(at, MostLetters));
        }
    }

    void Read_Content(Fields fields) {
        name_ = fields.Name(0, content::NameBytes);
        of_material_ = fields.U8(content::Type) == 1;
        const std::size_t count = fields.U8(content::KindCount);
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t entry = content::Kinds + 4 * i;
            if (!Has_Room(fields, entry, 4, "kinds")) return;
            Read_Kind(fields.Behind(fields.U32(entry)));
        }
    }

    void Read_Kind(Fields fields) {
        const std::string letters = fields.Name(0, 4);
        const std::size_t count = fields.U8(kind::TargetCount);
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t entry = kind::Targets + 4 * i;
            if (!Has_Room(fields, entry, 4, "targets")) return;
            const Fields record = fields.Behind(fields.U32(entry));
            if (!Has_Room(record, 0, target::End, "targets")) return;
            AnimationTarget read{
                name_, of_material_, letters, record.U8(target::Id), record.U8(target::Number), {}};
            if (Read_Keys(record, read.curve)) read_.targets.push_back(std::move(read));
        }
    }

    bool Read_Keys(Fields record, Curve& curve) {
        const unsigned type = record.U8(target::CurveType);
        curve.is_smooth = type == target::Smooth;
        const std::size_t size = curve.is_smooth ? SmoothKeyBytes : StepKeyBytes;
        const std::size_t count = record.U16(target::KeyCount);
        const Fields keys = record.Behind(record.U32(target::Keys));
        if (type != target::Smooth && type != target::Steps) return false;
        if (!Has_Room(keys, 0, count * size, "keys")) return false;
        for (std::size_t at = 0; at < count * size; at += size) {
            curve.keys.push_back(curve.is_smooth
                                     ? Key{keys.F32(at), keys.F32(at + 4), keys.F32(at + 8)}
                                     : Key{keys.F32(at), static_cast<float>(keys.U16(at + 4)), 0});
            const Key& key = curve.keys.back();
            const bool is_number =
                std::isfinite(key.frame) && std::isfinite(key.value) && std::isfinite(key.slope);
            if (!is_number) curve.keys.pop_back();
        }
        std::stable_sort(curve.keys.begin(), curve.keys.end(),
                         [](const Key& a, const Key& b) { return a.frame < b.frame; });
        return !curve.keys.empty();
    }

    Fields section_;
    std::size_t room_left_;
    Animation read_;
    std::string name_;
    bool of_material_ = false;
};

std::uint8_t Byte_Of(float value) {
    return static_cast<std::uint8_t>(std::clamp(std::floor(value + 0.5F), 0.0F, 255.0F));
}

std::int16_t Word_Of(float value) {
    return static_cast<std::int16_t>(std::clamp(std::floor(value + 0.5F), -32768.0F, 32767.0F));
}

void Move_Place(Pane& pane, unsigned number, float value) {
    if (number < 3)
        pane.translation[number] = value;
    else if (number < 6)
        pane.rotation[number - 3] = value;
    else if (number < 8)
        pane.scale[number - 6] = value;
    else if (number < 10)
        pane.size[number - 8] = value;
}

/// A text has two colours, of its upper and its lower corners.
Rgba* Corner_Color(Pane& pane, unsigned corner) {
    if (pane.surface) return &pane.surface->colors[corner];
    if (!pane.text) return nullptr;
    return corner < 2 ? &pane.text->top : &pane.text->bottom;
}

void Move_Vertex_Color(Pane& pane, unsigned number, float value) {
    constexpr unsigned PaneAlpha = 16;
    if (number == PaneAlpha) pane.alpha = Byte_Of(value);
    if (number >= PaneAlpha) return;
    if (Rgba* color = Corner_Color(pane, number / 4)) (*color)[number % 4] = Byte_Of(value);
}

void Move_Material_Color(Material& material, unsigned number, float value) {
    if (number < 4)
        material.color[number] = Byte_Of(value);
    else if (number < 16)
        material.registers[number / 4 - 1][number % 4] = Word_Of(value);
    else if (number < 32)
        material.constants[number / 4 - 4][number % 4] = Byte_Of(value);
}

void Move_Matrix(TextureMatrix& matrix, unsigned number, float value) {
    constexpr std::array Numbers = {&TextureMatrix::shift_s, &TextureMatrix::shift_t,
                                    &TextureMatrix::rotation, &TextureMatrix::scale_s,
                                    &TextureMatrix::scale_t};
    if (number < Numbers.size()) matrix.*Numbers[number] = value;
}

void Move_Pane(Pane& pane, const AnimationTarget& target, float value) {
    if (target.kind == "RLPA") Move_Place(pane, target.target, value);
    if (target.kind == "RLVC") Move_Vertex_Color(pane, target.target, value);
    if (target.kind == "RLVI") pane.is_visible = value != 0;
}

}  // namespace

float Curve::At(float frame) const {
    const auto next = std::upper_bound(keys.begin(), keys.end(), frame,
                                       [](float at, const Key& key) { return at < key.frame; });
    if (next == keys.begin()) return keys.front().value;
    const Key& from = next[-1];
    if (next == keys.end() || !is_smooth) return from.value;
    const float length = next->frame - from.frame, t = (frame - from.frame) / length;
    const float t2 = t * t, t3 = t2 * t;
    return from.value * (2 * t3 - 3 * t2 + 1) + next->value * (3 * t2 - 2 * t3) +
           length * (from.slope * (t3 - 2 * t2 + t) + next->slope * (t3 - t2));
}

Result<Animation> Read_Animation(std::string_view bytes) {
    if (bytes.size() < header::Size || !bytes.starts_with(Magic)) {
        return Failure{u"", "Is no animation"};
    }
    const SectionChain chain = Read_Chain(bytes);
    for (const ChainSection& part : chain.sections) {
        if (part.tag == Info) return AnimationReader(Fields(part.bytes)).Read();
    }
    return Failure{u"", "Animation has no curves"};
}

void Move_To(Scene& scene, const Animation& animation, float frame) {
    const auto move_material = [&](Material& material, const AnimationTarget& target, float value) {
        if (target.kind == "RLMC") Move_Material_Color(material, target.target, value);
        if (target.kind == "RLTS" && target.id < material.matrices.size()) {
            Move_Matrix(material.matrices[target.id], target.target, value);
        }
        if (target.kind != "RLTP" || target.id >= material.maps.size()) return;
        const auto index = static_cast<std::size_t>(Word_Of(value));
        if (index >= animation.textures.size()) return;
        const auto named =
            std::find(scene.textures.begin(), scene.textures.end(), animation.textures[index]);
        material.maps[target.id].texture = static_cast<std::size_t>(named - scene.textures.begin());
        if (named == scene.textures.end()) scene.textures.push_back(animation.textures[index]);
    };
    std::string_view last;
    std::size_t index = Pane::None;
    bool last_of_material = false;
    for (const AnimationTarget& target : animation.targets) {
        if (index == Pane::None || target.name != last || target.of_material != last_of_material) {
            index = target.of_material ? scene.Find_Material(target.name)
                                       : scene.Find_Pane(target.name);
            last = target.name;
            last_of_material = target.of_material;
        }
        if (index == Pane::None) continue;
        const float value = target.curve.At(frame);
        if (target.of_material)
            move_material(scene.materials[index], target, value);
        else
            Move_Pane(scene.panes[index], target, value);
    }
}

}  // namespace bannersmith::still
