#include "gameinfo/boxes.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "gameinfo/languages.h"
#include "layout/text_box.h"

namespace bannersmith {

std::u16string Box_Of(Field field, std::u16string_view code) {
    return std::u16string(Prefix_Of(field)).append(code);
}

std::u16string Box_To_Read(Field field, std::u16string_view code) {
    return code == NoLanguage ? std::u16string(Neutral_Box(Prefix_Of(field))) : Box_Of(field, code);
}

std::vector<std::u16string_view> Codes_For(std::string_view layout) {
    std::vector<std::u16string_view> codes(LanguageList.begin(), LanguageList.end());
    if (layout.find("_KOR") == layout.npos) return codes;
    std::vector<std::u16string> names;
    names.reserve(FieldPrefixes.size());
    for (const std::u16string_view prefix : FieldPrefixes) {
        names.push_back(std::u16string(prefix).append(Korean));
    }
    const auto texts = Read_Boxes(layout, names);
    const bool has_korean = std::any_of(texts.begin(), texts.end(),
                                        [](const std::u16string& text) { return !text.empty(); });
    if (has_korean) codes.insert(codes.end() - 1, Korean);
    return codes;
}

std::u16string Read_Box(std::string_view layout, std::u16string_view name) {
    const auto bytes = To_Bytes(name);
    return bytes ? Get_Text(layout, *bytes) : std::u16string();
}

std::vector<std::u16string> Read_Boxes(std::string_view layout,
                                       const std::vector<std::u16string>& names) {
    std::vector<std::string> readable;
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (auto bytes = To_Bytes(names[i])) {
            readable.push_back(std::move(*bytes));
            places.push_back(i);
        }
    }
    const std::vector<std::string_view> views(readable.begin(), readable.end());
    std::vector<std::u16string> texts(names.size());
    std::vector<std::u16string> read = Get_Texts(layout, views);
    for (std::size_t i = 0; i < places.size(); ++i) texts[places[i]] = std::move(read[i]);
    return texts;
}

std::string Write_Boxes(std::string layout, const std::vector<NamedText>& texts) {
    std::vector<BoxText> boxes;
    for (const NamedText& named : texts) {
        auto bytes = To_Bytes(named.name);
        if (bytes) boxes.push_back({std::move(*bytes), named.text, Writing_Test(named.name)});
    }
    return Set_Texts(std::move(layout), boxes);
}

std::string Write_Box(std::string layout, std::u16string_view name, std::u16string_view text) {
    return Write_Boxes(std::move(layout), {{std::u16string(name), std::u16string(text)}});
}

std::string Write_Exact_Box(std::string layout, std::u16string_view name,
                            std::u16string_view text) {
    const auto bytes = To_Bytes(name);
    if (!bytes) return layout;
    const BoxText box{*bytes, std::u16string(text), Pieces::Test::exact};
    return Set_Texts(std::move(layout), {&box, 1});
}

Pieces::Test Writing_Test(std::u16string_view name) {
    const bool neutral =
        std::any_of(FieldPrefixes.begin(), FieldPrefixes.end(),
                    [&](std::u16string_view prefix) { return Neutral_Box(prefix) == name; });
    return neutral ? Pieces::Test::prefix_not_korean : Pieces::Test::prefix;
}

bool Is_Same_Box(std::string_view layout, std::u16string_view name, std::u16string_view read_name) {
    const auto bytes = To_Bytes(name), read_bytes = To_Bytes(read_name);
    return bytes && read_bytes &&
           Is_Written_Where_It_Is_Read(layout, *bytes, Writing_Test(name), *read_bytes);
}

bool Has_Box(std::string_view layout, std::u16string_view name) {
    const auto bytes = To_Bytes(name);
    return bytes && Has_Text_Box(layout, *bytes, Writing_Test(name));
}

bool Has_Exact_Box(std::string_view layout, std::u16string_view name) {
    const auto bytes = To_Bytes(name);
    return bytes && Has_Text_Box(layout, *bytes, Pieces::Test::exact);
}

}  // namespace bannersmith
