#include "gameinfo/boxes.h"

#include <utility>

#include "base/text.h"
#include "layout/mod_globals.h"
#include "layout/text_box.h"

namespace bannersmith {

std::u16string Read_Box(std::u16string_view name) {
    const auto bytes = To_Bytes(name);
    return bytes ? Get_Text(BrlytData, *bytes) : std::u16string();
}

// A copy is changed, so that a lack of memory on the way leaves the layout as it was.

void Write_Boxes(const std::vector<NamedText>& texts) {
    std::vector<BoxText> boxes;
    for (const NamedText& named : texts) {
        if (auto bytes = To_Bytes(named.name)) boxes.push_back({std::move(*bytes), named.text});
    }
    BrlytData = Set_Texts(BrlytData, boxes);
}

void Write_Box(std::u16string_view name, std::u16string_view text) {
    if (const auto bytes = To_Bytes(name)) BrlytData = Set_Text(BrlytData, *bytes, text);
}

}  // namespace bannersmith
