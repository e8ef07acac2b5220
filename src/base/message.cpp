#include "base/message.h"

#include "base/text.h"

namespace bannersmith {

std::string Readable(std::u16string_view text) {
    constexpr std::size_t Most = 1000;  // code units: longer than paths are, short enough to read
    return Printable(Shortened(text, Most));
}

std::string One_Line(const Failure& failure) {
    return Readable(failure.subject) + ": " + Readable(From_Utf8(failure.reason));
}

}  // namespace bannersmith
