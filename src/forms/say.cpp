#include "forms/say.h"

#include <utility>

#include "base/text.h"

namespace bannersmith {

namespace {

/// One for the process, as all its windows have one user.
std::function<std::u16string(const char*)>& Translation() {
    static std::function<std::u16string(const char*)> translate;
    return translate;
}

}  // namespace

void Speak_With(std::function<std::u16string(const char* text)> translate) {
    Translation() = std::move(translate);
}

std::u16string Say(const char* text) {
    std::u16string said = Translation() ? Translation()(text) : std::u16string();
    return said.empty() ? From_Utf8(text) : said;
}

/// Both values at once, as the first can hold what looks like the place of the second.
std::u16string Filled(std::u16string_view pattern, std::u16string_view first,
                      std::u16string_view second) {
    std::u16string filled;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const std::u16string_view place = pattern.substr(i, 2);
        const bool is_first = place == u"%1", is_place = is_first || place == u"%2";
        if (is_place) {
            filled += is_first ? first : second;
            ++i;
        } else {
            filled += pattern[i];
        }
    }
    return filled;
}

}  // namespace bannersmith
