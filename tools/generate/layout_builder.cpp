#include "generate/layout_builder.h"

#include <bit>

#include "layout/text_box.h"

namespace bannersmith {

namespace {

constexpr std::uint32_t TextOffset = 0x74;

/// Flags of panes. What keeps its shape is not drawn wider on a wide screen.
constexpr unsigned Visible = 1, PassesAlpha = 2, KeepsShape = 4;

/// The part that panes of every kind share.
void Append_Pane(ByteWriter& out, std::string_view name, Place place, unsigned flags = Visible) {
    constexpr unsigned Centred = 4, Opaque = 255;
    out.U8(flags).U8(Centred).U8(Opaque).U8(0).Name(name, 16).Zeros(8);
    out.F32(place.x).F32(place.y).F32(0);  // translation
    out.F32(0).F32(0).F32(0);              // rotation
    out.F32(1).F32(1);                     // scale
    out.F32(place.width).F32(place.height);
}

void Append_Color(ByteWriter& out, const Rgba& color) {
    for (const std::int16_t component : color) out.U16(static_cast<std::uint16_t>(component));
}

void Append_Stage(ByteWriter& out, const StageSpec& stage) {
    constexpr unsigned VertexColors = 4, Clamped = 1;
    out.U8(stage.map).U8(VertexColors).U8(stage.map).U8(0);
    const auto append = [&](const std::array<unsigned, 4>& inputs, unsigned operation) {
        out.U8(inputs[0] | inputs[1] << 4).U8(inputs[2] | inputs[3] << 4);
        out.U8(operation).U8(Clamped);
    };
    append(stage.color, 0);
    append(stage.alpha, stage.subtracts_alpha ? 1 : 0);
    out.U32(0);
}

std::string One_Material(const Material& material) {
    ByteWriter out;
    out.Name(material.name, 20);
    Append_Color(out, material.first);
    Append_Color(out, material.second);
    Append_Color(out, {255, 255, 255, 255});
    for (int tev = 0; tev < 4; ++tev) out.U32(0xFFFFFFFF);
    std::vector<TextureUse> uses = material.more;
    if (material.texture >= 0) uses = {{static_cast<unsigned>(material.texture), 0, 0}};
    const auto textures = static_cast<std::uint32_t>(uses.size());
    const auto stages = static_cast<std::uint32_t>(material.stages.size());
    out.U32(textures * 0x111 | stages << 18);  // as many maps, transforms and generators
    for (const TextureUse& use : uses) out.U16(use.texture).U8(use.wrap_s).U8(use.wrap_t);
    for (std::uint32_t i = 0; i < textures; ++i) out.F32(0).F32(0).F32(0).F32(1).F32(1);
    for (std::uint32_t i = 0; i < textures; ++i) out.U8(1).U8(4 + i).U8(30 + 3 * i).U8(0);
    for (const StageSpec& stage : material.stages) Append_Stage(out, stage);
    return out.Data();
}

}  // namespace

ByteWriter& ByteWriter::U8(unsigned value) {
    data_ += static_cast<char>(value & 0xFF);
    return *this;
}

ByteWriter& ByteWriter::U16(unsigned value) {
    return U8(value >> 8).U8(value);
}

ByteWriter& ByteWriter::U32(std::uint32_t value) {
    return U16(value >> 16).U16(value & 0xFFFF);
}

ByteWriter& ByteWriter::F32(float value) {
    return U32(std::bit_cast<std::uint32_t>(value));
}

ByteWriter& ByteWriter::Name(std::string_view text, std::size_t width) {
    const std::string_view kept = text.substr(0, width);
    return Bytes(kept).Zeros(width - kept.size());
}

ByteWriter& ByteWriter::Bytes(std::string_view bytes) {
    data_ += bytes;
    return *this;
}

ByteWriter& ByteWriter::Zeros(std::size_t count) {
    data_.append(count, '\0');
    return *this;
}

ByteWriter& ByteWriter::Align(std::size_t multiple) {
    return Zeros((multiple - data_.size() % multiple) % multiple);
}

TextBoxSpec Clean_Text_Box(std::string_view name, std::u16string_view text, unsigned material,
                           Place place, float font_size) {
    ByteWriter stored;
    stored.Bytes(Encode_Text(text)).Zeros(2);
    const auto length = static_cast<unsigned>(stored.Data().size());
    stored.Align(4);
    TextBoxSpec box{std::string(name), stored.Data(), length, length, material, place};
    box.font_size = font_size;
    return box;
}

std::string Section(std::string_view tag, std::string_view body) {
    ByteWriter padded;
    padded.Bytes(body).Align(4);
    ByteWriter out;
    out.Bytes(tag).U32(static_cast<std::uint32_t>(padded.Data().size() + 8)).Bytes(padded.Data());
    return out.Data();
}

std::string Text_Box_Section(const TextBoxSpec& box) {
    ByteWriter body;
    Append_Pane(body, box.name, box.place, Visible | KeepsShape);
    body.U16(box.buffer_length).U16(box.text_length).U16(box.material).U16(0);
    body.U8(4).U8(0).Zeros(2).U32(TextOffset);  // centred
    body.U32(box.color).U32(box.color);
    body.F32(box.font_size).F32(box.font_size * 38 / 32).F32(0).F32(0);  // as the console's font
    return Section("txt1", body.Bytes(box.stored).Data());
}

std::string Pane_Section(std::string_view name, Place place, bool fades) {
    ByteWriter body;
    Append_Pane(body, name, place, fades ? Visible | PassesAlpha | KeepsShape : Visible);
    return Section("pan1", body.Data());
}

std::string Picture_Section(std::string_view name, unsigned material, Place place,
                            const PictureLook& look) {
    ByteWriter body;
    Append_Pane(body, name, place);
    for (const std::uint32_t color : look.colors) body.U32(color);
    body.U16(material).U8(static_cast<unsigned>(look.sets.size())).U8(0);
    for (const auto& set : look.sets) {
        for (const float coordinate : set) body.F32(coordinate);
    }
    return Section("pic1", body.Data());
}

std::string Material_Section(const std::vector<Material>& materials) {
    ByteWriter offsets, entries;
    const std::size_t first = 12 + 4 * materials.size();
    for (const Material& material : materials) {
        offsets.U32(static_cast<std::uint32_t>(first + entries.Data().size()));
        entries.Bytes(One_Material(material));
    }
    ByteWriter body;
    body.U16(static_cast<unsigned>(materials.size())).U16(0);
    return Section("mat1", body.Bytes(offsets.Data()).Bytes(entries.Data()).Data());
}

std::string Name_List_Section(std::string_view tag, const std::vector<std::string>& names) {
    ByteWriter offsets, texts;
    for (const std::string& name : names) {
        offsets.U32(static_cast<std::uint32_t>(8 * names.size() + texts.Data().size())).U32(0);
        texts.Bytes(name).Zeros(1);
    }
    ByteWriter body;
    body.U16(static_cast<unsigned>(names.size())).U16(0);
    return Section(tag, body.Bytes(offsets.Data()).Bytes(texts.Data()).Data());
}

std::string Group_Section(std::string_view name, const std::vector<std::string>& members) {
    ByteWriter body;
    body.Name(name, 16).U16(static_cast<unsigned>(members.size())).U16(0);
    for (const std::string& member : members) body.Name(member, 16);
    return Section("grp1", body.Data());
}

std::string Empty_Section(std::string_view tag) {
    return Section(tag, {});
}

std::string Layout_File(const std::vector<std::string>& sections) {
    std::string all;
    for (const std::string& section : sections) all += section;
    ByteWriter file;
    file.Bytes("RLYT").U16(0xFEFF).U16(0x0008).U32(static_cast<std::uint32_t>(all.size() + 16));
    return file.U16(16).U16(static_cast<unsigned>(sections.size())).Bytes(all).Data();
}

}  // namespace bannersmith
