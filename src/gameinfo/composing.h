// The wording that a banner shows around a bare value, per language.
#pragma once

#include <string>
#include <string_view>

namespace bannersmith {

/// The year text of language `tReg` around the year `yearVal`, "????" where that is empty. A code
/// without wording of its own, "NONE" among them, gets the English one. `yearVal` is overwritten
/// with the text that is returned, so callers hand in a copy.
std::u16string Make_Year(std::u16string& yearVal, std::u16string_view tReg);

/// The rating text around the rating `esrbVal`, in the same way.
std::u16string Make_ESRB(std::u16string& esrbVal, std::u16string_view tReg);

/// The players text around the highest number of players `playVal`, in the same way: empty counts
/// as "2", and everything but "1" becomes a range that begins at 1. The Japanese and the Korean
/// text hold a line feed.
std::u16string Make_Players(std::u16string& playVal, std::u16string_view tReg);

/// The wordings in front of a year by which a language can be told, without the colon behind them.
namespace year_words {
inline constexpr std::u16string_view English = u"Released";
inline constexpr std::u16string_view German = u"Erschienen";
inline constexpr std::u16string_view French = u"Publi\u00E9 en ";  // has no colon, but a blank
inline constexpr std::u16string_view Italian = u"Pubblicato";
inline constexpr std::u16string_view Spanish = u"A\u00F1o";
inline constexpr std::u16string_view Dutch = u"Release";
}  // namespace year_words

}  // namespace bannersmith
