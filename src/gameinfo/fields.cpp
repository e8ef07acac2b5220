#include "gameinfo/fields.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/text.h"
#include "gameinfo/composing.h"
#include "gameinfo/languages.h"

namespace bannersmith {

namespace {

/// The name has no wording: its text is the value.
std::u16string As_It_Is(std::u16string& value, std::u16string_view /*code*/) {
    return value;
}

/// How a value becomes a language's text, and a text the value that is shown.
struct Wording {
    std::u16string (*compose)(std::u16string& value, std::u16string_view code);
    std::u16string (*bare)(std::u16string_view text);
};

constexpr std::array<Wording, FieldPrefixes.size()> Wordings = {{
    {As_It_Is, [](std::u16string_view text) { return std::u16string(text); }},
    {Make_Year, bare_value::Year},
    {Make_Players, bare_value::Players},
    {Make_ESRB, bare_value::Rating},
}};

const Wording& Wording_Of(Field field) {
    return Wordings[static_cast<std::size_t>(field)];
}

std::u16string Text_For(Field field, std::u16string_view value, std::u16string_view code) {
    std::u16string text(value);
    return Wording_Of(field).compose(text, code);
}

/// The text for the box of a language, which is Korean in layouts that are.
std::u16string Text_In(std::string_view layout, Field field, std::u16string_view value,
                       std::u16string_view code) {
    const std::u16string text = Text_For(field, value, code);
    if (field != Field::year || code != Korean) return text;
    const std::u16string before = Read_Box(layout, Box_Of(field, code));
    const std::size_t line_end = before.find(u'^');
    if (line_end == before.npos) return text;
    return before.substr(0, line_end) + text.substr(text.find(u'\n'));
}

std::u16string_view Last_Characters(std::u16string_view text, std::size_t count) {
    return text.substr(text.size() - std::min(text.size(), count));
}

std::u16string_view Players_Piece(std::u16string_view text) {
    if (text.find(u':') != text.npos) return Trim(Piece_Of(text, u':', 1));
    if (text.find(u' ') != text.npos) return Trim(Piece_Of(text, u' ', 0));
    std::u16string_view second_line = Piece_Of(text, u'^', 1);
    if (!second_line.empty()) second_line.remove_suffix(1);
    return second_line;
}

}  // namespace

namespace bare_value {

std::u16string Year(std::u16string_view text) {
    const bool digit_first = !text.empty() && text.front() >= u'0' && text.front() <= u'9';
    return std::u16string(digit_first ? text.substr(0, 4) : Last_Characters(text, 4));
}

std::u16string Players(std::u16string_view text) {
    return std::u16string(Last_Characters(Players_Piece(text), 1));
}

std::u16string Rating(std::u16string_view text) {
    return std::u16string(Trim(Piece_Of(text, u':', 1)));
}

std::u16string Korean_Number(std::u16string_view text, std::size_t most) {
    std::u16string_view line = Piece_Of(text, u'^', 1);
    if (!line.empty()) line.remove_suffix(1);
    return std::u16string(Last_Characters(line, most));
}

}  // namespace bare_value

std::u16string Bare_Value(Field field, std::u16string_view text, std::u16string_view code) {
    constexpr std::size_t YearLength = 4;
    if (code == Korean && text.find(u'^') != text.npos) {
        if (field == Field::year) return bare_value::Korean_Number(text, YearLength);
        if (field == Field::players) return bare_value::Korean_Number(text, 1);
    }
    return Wording_Of(field).bare(text);
}

std::u16string Get_Year_Lang(std::string_view layout) {
    struct Word {
        std::u16string_view word, code;
    };
    static constexpr Word Words[] = {
        {year_words::English, u"ENG"}, {year_words::German, u"GER"}, {year_words::Italian, u"ITA"},
        {year_words::Spanish, u"SPA"}, {year_words::Dutch, u"NED"},
    };
    const std::u16string text = Read_Box(layout, Neutral_Box(box_prefix::Year));
    if (text.starts_with(year_words::French)) return u"FRA";
    if (text.find(u':') == text.npos) return std::u16string(Japanese);
    for (const Word& word : Words) {
        if (Piece_Of(text, u':', 0) == word.word) return std::u16string(word.code);
    }
    return u"ENG";
}

std::u16string Neutral_Language(std::string_view layout) {
    for (const std::u16string_view code : Codes_For(layout)) {
        if (code == NoLanguage) continue;
        if (!Read_Box(layout, Box_Of(Field::title, code)).empty()) return {};
    }
    return Get_Year_Lang(layout);
}

std::string Refused_Value(Field field, std::u16string_view value) {
    const bool digits = !value.empty() && value.find_first_not_of(u"0123456789") == value.npos;
    if (value.empty()) return "Is empty";
    if (field == Field::year && !(digits && value.size() == 4)) return "Is no year, four digits";
    const bool is_number = digits && value.size() <= 2 && value.front() != u'0';
    if (field == Field::players && !is_number) return "Is no number from 1 to 99";
    return {};
}

std::u16string Worded(std::string_view layout, Field field, std::u16string_view code,
                      std::u16string_view value, std::u16string_view neutral) {
    const std::u16string text = Text_In(layout, field, value, code == NoLanguage ? neutral : code);
    return Replace_All(text, u"\n", u"^");
}

std::string Set_Field(std::string layout, Field field, std::u16string_view code,
                      std::u16string_view value, std::u16string_view neutral) {
    const std::u16string_view wording = code == NoLanguage ? neutral : code;
    const std::u16string text = Text_In(layout, field, value, wording);
    return Write_Box(std::move(layout), Box_Of(field, code), text);
}

std::string Set_Field_Everywhere(std::string layout, Field field, std::u16string_view value,
                                 std::u16string_view neutral) {
    std::vector<NamedText> texts;
    for (const std::u16string_view code : Codes_For(layout)) {
        texts.push_back({Box_Of(field, code), Text_In(layout, field, value, code)});
    }
    // The entry "NONE" has just written the neutral box in English wording; this has the last word.
    if (!neutral.empty()) {
        texts.push_back(
            {std::u16string(Neutral_Box(Prefix_Of(field))), Text_For(field, value, neutral)});
    }
    return Write_Boxes(std::move(layout), texts);
}

}  // namespace bannersmith
