#include "platform/desktop.h"

#include <algorithm>

#include "platform/process.h"
#include "platform/text.h"

void NoDesktop::Message(const std::u16string& /*text*/) {}

bool NoDesktop::Confirm(const std::u16string& /*question*/) {
    return false;
}

void NoDesktop::Report(const Failure& failure) {
    std::string line = "bannersmith: " + To_Utf8(failure.subject) + ": " + failure.reason;
    const auto breaks_the_line = [](char byte) { return byte >= 0 && byte < ' '; };
    std::replace_if(line.begin(), line.end(), breaks_the_line, '?');
    Print(line + "\n", stderr);
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
