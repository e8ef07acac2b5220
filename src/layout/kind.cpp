#include "layout/kind.h"

#include <algorithm>
#include <iterator>

#include "layout/format.h"

namespace bannersmith {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view Programs[] = {
    "\x7F"
    "ELF"sv,
    "MZ"sv};

}  // namespace

bool Is_Layout(std::string_view data) {
    return data.size() >= header::Size && data.starts_with(header::Magic);
}

bool Is_Program(std::string_view data) {
    return std::any_of(std::begin(Programs), std::end(Programs),
                       [&](std::string_view magic) { return data.starts_with(magic); });
}

}  // namespace bannersmith
