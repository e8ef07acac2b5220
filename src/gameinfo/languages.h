#pragma once

#include <array>
#include <string_view>

/// The seven languages of a banner by their codes, then "NONE", the last entry of every language
/// list, which stands for the text boxes that serve all languages.
inline constexpr std::array<std::u16string_view, 8> LanguageList = {
    u"ENG", u"GER", u"FRA", u"ITA", u"SPA", u"NED", u"JPN", u"NONE"};

inline constexpr std::u16string_view NoLanguage = LanguageList.back();
inline constexpr std::u16string_view Japanese = u"JPN";
