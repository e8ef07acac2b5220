#include "forms/desktop.h"

#include "base/message.h"
#include "system/process.h"

namespace bannersmith {

void NoDesktop::Message(const std::u16string& /*text*/) {}

bool NoDesktop::Confirm(const std::u16string& /*question*/) {
    return false;
}

void NoDesktop::Report(const Failure& failure) {
    Print("bannersmith: " + One_Line(failure) + "\n", stderr);
}

std::u16string NoDesktop::Open_File(const std::u16string& /*filter*/,
                                    const std::u16string& /*last*/) {
    return {};
}

std::u16string NoDesktop::Ask(const std::u16string& /*prompt*/, const std::u16string& /*title*/) {
    return {};
}

Color NoDesktop::Choose_Color(Color color) {
    return color;
}

float NoDesktop::Text_Width(std::u16string_view /*text*/, const Font& /*font*/) {
    return 0;
}

std::u16string NoDesktop::In_Code_Page(std::u16string_view text) {
    return std::u16string(text);
}

}  // namespace bannersmith
