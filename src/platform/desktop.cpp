#include "platform/desktop.h"

#include "platform/process.h"
#include "platform/text.h"

std::string Readable(std::u16string_view text) {
    constexpr std::size_t Most = 1000;  // code units: longer than paths are, short enough to read
    return Printable(Shortened(text, Most));
}

std::string One_Line(const Failure& failure) {
    return Readable(failure.subject) + ": " + Readable(From_Utf8(failure.reason));
}

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
