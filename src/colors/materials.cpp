#include "colors/materials.h"

#include <unordered_map>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "gameinfo/languages.h"
#include "layout/mod_globals.h"

namespace bannersmith {

namespace {

constexpr std::size_t NameBytes = 20;
constexpr std::size_t FirstLowByte = 21;  ///< low byte of the first colour's red
constexpr std::size_t ColorBytes = 13;    ///< up to the low byte of the second colour's blue
constexpr std::size_t SecondColor = 8;    ///< counted from the first low byte

std::string Key_Of(std::string_view name) {
    std::string key(name);
    key.resize(NameBytes, '\0');
    return key;
}

/// Where the colour bytes of a material begin; nothing when they are not all inside the data.
std::optional<std::size_t> Find_Colors(std::string_view data, std::string_view name) {
    const std::size_t at = data.find(Key_Of(name));
    if (at == data.npos || data.size() - at < FirstLowByte + ColorBytes) return std::nullopt;
    return at + FirstLowByte;
}

Color Color_At(std::string_view data, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(data[at + i]); };
    return Make_Color(byte(0), byte(2), byte(4));
}

std::vector<std::string> Names_Of(const ElementMaterial& material) {
    if (!material.text) return {To_Utf8(material.name)};
    std::vector<std::string> names;
    for (const std::u16string_view code : Languages) {
        names.push_back(To_Utf8(material.name) + To_Utf8(code));
    }
    return names;
}

}  // namespace

std::vector<std::string> Written_Materials() {
    std::vector<std::string> all;
    for (const ElementMaterial& material : ElementMaterials) {
        for (std::string& name : Names_Of(material)) all.push_back(std::move(name));
    }
    return all;
}

std::vector<std::optional<std::size_t>> Find_Materials(std::string_view data,
                                                       std::span<const std::string> names) {
    std::vector<std::string> keys;
    std::unordered_map<std::string_view, std::size_t> wanted;
    std::vector<bool> begins(1 << 16);  // by a name's first two bytes
    keys.reserve(names.size());
    for (const std::string& name : names) {
        keys.push_back(Key_Of(name));
        wanted.emplace(keys.back(), keys.size() - 1);
        begins[Read_U16(keys.back(), 0)] = true;
    }
    std::vector<std::optional<std::size_t>> places(names.size());
    for (std::size_t at = 0; at + NameBytes <= data.size(); ++at) {
        if (!begins[Read_U16(data, at)]) continue;
        const auto found = wanted.find(data.substr(at, NameBytes));
        if (found != wanted.end() && !places[found->second]) places[found->second] = at;
    }
    return places;
}

std::string& Set_Mat_Colors(std::string& data, std::string_view name, const ColorPair& colors) {
    const auto at = Find_Colors(data, name);
    if (!at) return data;
    std::array<char, ColorBytes> bytes{};
    for (std::size_t i = 0; i < colors.size(); ++i) {
        bytes[SecondColor * i] = static_cast<char>(Red_Of(colors[i]));
        bytes[SecondColor * i + 2] = static_cast<char>(Green_Of(colors[i]));
        bytes[SecondColor * i + 4] = static_cast<char>(Blue_Of(colors[i]));
    }
    return data.replace(*at, bytes.size(), bytes.data(), bytes.size());
}

bool Get_Mat_Colors(std::string_view data, std::string_view name, ColorPair& colors) {
    const auto at = Find_Colors(data, name);
    if (!at) return false;
    colors = {Color_At(data, *at), Color_At(data, *at + SecondColor)};
    return true;
}

Outcome Apply_Color_Scheme(std::u16string_view program_folder, std::u16string_view name) {
    Scheme scheme;
    if (auto failure = Load_Scheme(program_folder, name, scheme)) return failure;
    for (std::size_t i = 0; i < scheme.size(); ++i) {
        for (const std::string& material : Names_Of(ElementMaterials[i])) {
            Set_Mat_Colors(BrlytData, material, scheme[i]);
        }
    }
    return std::nullopt;
}

}  // namespace bannersmith
