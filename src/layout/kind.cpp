#include "layout/kind.h"

#include <cstddef>

#include "layout/format.h"

namespace bannersmith {

namespace {

using namespace std::string_view_literals;

struct Kind {
    std::size_t offset;
    std::string_view magic;
    std::string_view what;
};

constexpr auto Archive = "Is an archive; edit the layout (banner.brlyt) that is packed in it"sv;
constexpr auto Program = "Is a program, not a layout file"sv;

constexpr Kind Kinds[] = {
    {0x40, "IMET"sv, Archive},
    {0x80, "IMET"sv, Archive},
    {0, "IMD5"sv, Archive},
    {0, "LZ77"sv, Archive},
    {0, "\x55\xAA\x38\x2D"sv, Archive},
    {0,
     "\x7F"
     "ELF"sv,
     Program},
    {0, "MZ"sv, Program},
};

}  // namespace

bool Is_Layout(std::string_view data) {
    return data.size() >= header::Size && data.starts_with(header::Magic);
}

std::string_view Not_To_Be_Edited(std::string_view data) {
    if (Is_Layout(data)) return {};
    for (const Kind& kind : Kinds) {
        if (data.size() > kind.offset && data.substr(kind.offset).starts_with(kind.magic)) {
            return kind.what;
        }
    }
    return {};
}

}  // namespace bannersmith
