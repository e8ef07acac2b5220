#include "base/text.h"
#include "system/code_page.h"

namespace bannersmith {

std::u16string From_Code_Page(std::string_view bytes) {
    return From_Utf8(bytes);
}

std::string To_Code_Page(std::u16string_view text) {
    return To_Utf8(text);
}

}  // namespace bannersmith
