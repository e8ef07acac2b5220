#include "colors/materials.h"

#include <unordered_map>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "gameinfo/languages.h"
#include "layout/format.h"
#include "layout/kind.h"
#include "layout/sections.h"

namespace bannersmith {

namespace {

using material::NameBytes;

constexpr std::size_t FirstLowByte = material::FirstColor + 1;  ///< of the first colour's red
constexpr std::size_t SecondColor = material::SecondColor - material::FirstColor;
constexpr std::size_t ColorBytes = SecondColor + 5;  ///< up to the low byte of the second blue

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

std::vector<std::string> Names_Of(const Element& element) {
    if (!element.text) return {To_Utf8(element.material)};
    std::vector<std::string> names;
    for (const std::u16string_view code : Languages) {
        names.push_back(To_Utf8(element.material) + To_Utf8(code));
    }
    return names;
}

/// The colours into the bytes at `at`, which are inside the data.
std::string& Put_Colors(std::string& data, std::size_t at, const ColorPair& colors) {
    std::array<char, ColorBytes> bytes{};
    for (std::size_t i = 0; i < colors.size(); ++i) {
        bytes[SecondColor * i] = static_cast<char>(Red_Of(colors[i]));
        bytes[SecondColor * i + 2] = static_cast<char>(Green_Of(colors[i]));
        bytes[SecondColor * i + 4] = static_cast<char>(Blue_Of(colors[i]));
    }
    return data.replace(at, bytes.size(), bytes.data(), bytes.size());
}

/// A material of a text that serves all languages, or Korean alone.
struct OtherMaterial {
    std::size_t element;
    std::string name;
    std::size_t colors_at;  ///< of the low bytes, all of which are there
};

/// Those that the section chain has. A search for their names could find a text box.
std::vector<OtherMaterial> Other_Materials(std::string_view data) {
    std::vector<OtherMaterial> found;
    if (!Is_Layout(data)) return found;
    for (const MaterialInfo& material : Read_Layout(data).materials) {
        const std::size_t at = material.offset + FirstLowByte;
        if (at + ColorBytes > data.size()) continue;
        for (std::size_t i = 0; i < Elements.size(); ++i) {
            if (!Elements[i].text) continue;
            const Field field = *Elements[i].text;
            if (material.name == To_Utf8(Neutral_Box(Prefix_Of(field))) ||
                material.name == To_Utf8(Box_Of(field, Korean))) {
                found.push_back({i, material.name, at});
            }
        }
    }
    return found;
}

}  // namespace

std::vector<std::string> Written_Materials() {
    std::vector<std::string> all;
    for (const Element& element : Elements) {
        for (std::string& name : Names_Of(element)) all.push_back(std::move(name));
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
    return at ? Put_Colors(data, *at, colors) : data;
}

std::optional<ColorPair> Get_Mat_Colors(std::string_view data, std::string_view name) {
    const auto at = Find_Colors(data, name);
    if (!at) return std::nullopt;
    return ColorPair{Color_At(data, *at), Color_At(data, *at + SecondColor)};
}

Result<std::string> Apply_Color_Scheme(std::string data, const std::u16string& scheme_file) {
    const auto scheme = Load_Scheme(scheme_file);
    if (!scheme) return scheme.Why();
    for (std::size_t i = 0; i < Elements.size(); ++i) {
        for (const std::string& name : Names_Of(Elements[i])) {
            Set_Mat_Colors(data, name, (*scheme)[i]);
        }
    }
    return data;
}

std::string Set_Colors(std::string data, const std::map<std::size_t, ColorPair>& colors) {
    for (const auto& [element, pair] : colors) {
        for (const std::string& name : Names_Of(Elements[element])) {
            Set_Mat_Colors(data, name, pair);
        }
    }
    for (const OtherMaterial& other : Other_Materials(data)) {
        const auto pair = colors.find(other.element);
        if (pair != colors.end()) Put_Colors(data, other.colors_at, pair->second);
    }
    return data;
}

std::vector<std::string> Materials_Of(std::string_view data, std::size_t element) {
    std::vector<std::string> names = Names_Of(Elements[element]);
    std::erase_if(names, [&](const std::string& name) { return !Find_Colors(data, name); });
    for (const OtherMaterial& other : Other_Materials(data)) {
        if (other.element == element) names.push_back(other.name);
    }
    return names;
}

}  // namespace bannersmith
