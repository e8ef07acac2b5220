#pragma once

#include <array>
#include <span>
#include <string_view>

namespace bannersmith {

/// The seven languages of a banner by their codes, then "NONE", the last entry of every language
/// list, which stands for the text boxes that serve all languages.
inline constexpr std::array<std::u16string_view, 8> LanguageList = {
    u"ENG", u"GER", u"FRA", u"ITA", u"SPA", u"NED", u"JPN", u"NONE"};

/// The seven languages alone.
inline constexpr std::span<const std::u16string_view> Languages{LanguageList.data(),
                                                                LanguageList.size() - 1};

/// The entry that stands for the text boxes that serve all languages.
inline constexpr std::u16string_view NoLanguage = LanguageList.back();

/// Of banners for Korea, whose boxes no other banner has: listed for these alone.
inline constexpr std::u16string_view Korean = u"KOR";

/// The one language whose players text has a character of its own for "-".
inline constexpr std::u16string_view Japanese = u"JPN";

}  // namespace bannersmith
