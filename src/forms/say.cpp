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

/// The values are put in together, as one can hold what looks like the place of another.
std::u16string Say(const char* text, std::u16string_view first, std::u16string_view second) {
    std::u16string pattern = Translation() ? Translation()(text) : std::u16string();
    if (pattern.empty()) pattern = From_Utf8(text);
    std::u16string said;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char16_t number =
            pattern[i] == u'%' && i + 1 < pattern.size() ? pattern[i + 1] : u' ';
        if (number != u'1' && number != u'2') {
            said += pattern[i];
            continue;
        }
        said += number == u'1' ? first : second;
        ++i;
    }
    return said;
}

}  // namespace bannersmith
