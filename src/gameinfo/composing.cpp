#include "gameinfo/composing.h"

#include <span>

#include "base/text.h"
#include "gameinfo/languages.h"

namespace bannersmith {

namespace {

struct Wording {
    std::u16string_view code;
    std::u16string_view before;
    std::u16string_view after;
};

/// The wording of the code, or the English one, which each table has first.
const Wording& Find(std::span<const Wording> table, std::u16string_view code) {
    for (const Wording& wording : table) {
        if (wording.code == code) return wording;
    }
    return table.front();
}

std::u16string Wrap(const Wording& wording, std::u16string_view value) {
    return std::u16string(wording.before).append(value).append(wording.after);
}

constexpr Wording YearWordings[] = {
    {u"ENG", u"Released: ", u""},
    {u"GER", u"Erschienen: ", u""},
    {u"FRA", year_words::French, u""},
    {u"ITA", u"Pubblicato: ", u""},
    {u"SPA", u"A\u00F1o: ", u""},
    {u"NED", u"Release: ", u""},
    {u"JPN", u"", u"\u5E74\u767A\u58F2"},
    {u"KOR", u"\uBBF8\uAD6D\uD310 \uBC1C\uB9E4\uB144\uB3C4\n", u"\uB144"},
};

constexpr Wording PlayersWordings[] = {
    {u"ENG", u"Players: ", u""},
    {u"GER", u"", u" Spieler"},
    {u"FRA", u"Joueurs: ", u""},
    {u"ITA", u"Giocatori: ", u""},
    {u"SPA", u"Jugadores: ", u""},
    {u"NED", u"", u" speler(s)"},
    {u"JPN", u"\u30D7\u30EC\u30A4\u4EBA\u6570\n", u"\u4EBA"},
    {u"KOR", u"\uD50C\uB808\uC774 \uC778\uC6D0\uC218\n", u"\uBA85"},
};

constexpr Wording RatingWordings[] = {
    {u"ENG", u"ESRB Rating: ", u""},
    {u"FRA", u"Classement ESRB: ", u""},
};

constexpr std::u16string_view UnknownValue = u"????";
constexpr std::u16string_view FullwidthTilde = u"\uFF5E";

}  // namespace

std::u16string Make_Year(std::u16string& yearVal, std::u16string_view tReg) {
    if (yearVal.empty()) yearVal = UnknownValue;
    return yearVal = Wrap(Find(YearWordings, tReg), yearVal);
}

std::u16string Make_ESRB(std::u16string& esrbVal, std::u16string_view tReg) {
    if (esrbVal.empty()) esrbVal = UnknownValue;
    return esrbVal = Wrap(Find(RatingWordings, tReg), esrbVal);
}

std::u16string Make_Players(std::u16string& playVal, std::u16string_view tReg) {
    if (playVal.empty()) playVal = u"2";
    if (playVal != u"1") playVal.insert(0, u"1-");
    if (tReg == Japanese) playVal = Replace_All(playVal, u"-", FullwidthTilde);
    return playVal = Wrap(Find(PlayersWordings, tReg), playVal);
}

}  // namespace bannersmith
