// A desktop without a person in front of it.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "base/message.h"
#include "base/text.h"
#include "forms/desktop.h"

namespace bannersmith {

/// For messages: a line break is a "/".
inline std::string Line_Of(std::u16string_view text) { return To_Utf8(Replace_All(text, u"\r\n", u"/")); }

/// Notes everything that it is asked and told, and gives the same answer to all questions.
class NotingDesktop : public Desktop {
 public:
    using Text = const std::u16string&;

    std::string said;
    std::u16string answer;

    void Message(Text text) override { said += "[" + Line_Of(text) + "]"; }
    bool Confirm(Text question) override { return Ask(question, u"question") == u"yes"; }
    std::size_t Choose(Text question, const std::vector<std::u16string>& answers) override {
        said += "<" + Line_Of(Replace_All(question, u"\n", u"/")) + ">";
        const auto given = std::find(answers.begin(), answers.end(), answer);
        return static_cast<std::size_t>(std::min(given, answers.end() - 1) - answers.begin());
    }
    void Report(const Failure& failure) override { said += "{" + One_Line(failure) + "}"; }
    std::u16string Open_File(Text filter, Text last) override { return Ask(filter, last); }
    std::u16string Save_File(Text filter, Text name) override { return Ask(filter, name); }
    std::u16string Ask(Text prompt, Text title) override {
        said += "<" + Line_Of(title) + ": " + Line_Of(prompt) + ">";
        return answer;
    }
    Color Choose_Color(Color color) override { return answer.empty() ? color : 0x030201; }
    /// Each character as wide as the font is high.
    float Text_Width(std::u16string_view text, const Font& font) override {
        return static_cast<float>(text.size()) * font.points * 20;
    }
    std::u16string In_Code_Page(std::u16string_view text) override { return Replace_All(text, u"あ", u"?"); }
};

}  // namespace bannersmith
