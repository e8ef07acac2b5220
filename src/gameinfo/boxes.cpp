#include "gameinfo/boxes.h"

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

std::u16string Read_Box(std::string_view layout, std::u16string_view name) {
    const auto bytes = To_Bytes(name);
    return bytes ? Get_Text(layout, *bytes) : std::u16string();
}

std::string Write_Boxes(std::string layout, const std::vector<NamedText>& texts) {
    std::vector<BoxText> boxes;
    for (const NamedText& named : texts) {
        if (auto bytes = To_Bytes(named.name)) boxes.push_back({std::move(*bytes), named.text});
    }
    return Set_Texts(std::move(layout), boxes);
}

std::string Write_Box(std::string layout, std::u16string_view name, std::u16string_view text) {
    const auto bytes = To_Bytes(name);
    return bytes ? Set_Text(std::move(layout), *bytes, text) : layout;
}

}  // namespace bannersmith
