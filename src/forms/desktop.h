// What the windows ask of the desktop and of the process they run in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/color.h"
#include "base/result.h"

namespace bannersmith {

/// A font by the family's name and its size in points. A family that is not installed is replaced
/// by one that has Japanese characters.
struct Font {
    std::u16string_view family;
    float points = 0;
};

/// The questions, messages and measures of the windows. A call returns when the user has answered.
class Desktop {
 public:
    virtual ~Desktop() = default;

    /// Shows `text` with an OK button.
    virtual void Message(const std::u16string& text) = 0;

    /// Whether the user says yes to `question`; whoever only presses Enter says no.
    virtual bool Confirm(const std::u16string& question) = 0;

    /// Which of `answers` the user gives to `question`, by its place, the first being the one for
    /// whoever only presses Enter; the last one, which takes back what led to the question, also
    /// where the user gives none.
    virtual std::size_t Choose(const std::u16string& question,
                               const std::vector<std::u16string>& answers) = 0;

    /// Tells the user what went wrong with what.
    virtual void Report(const Failure& failure) = 0;

    /// The full path of a file of the user's choice, or an empty text when there was none.
    /// `filter`: pairs of a description and a pattern, all separated by "|". `last`: the path of
    /// the file chosen last, in whose folder the choice begins if it is there.
    virtual std::u16string Open_File(const std::u16string& filter, const std::u16string& last) = 0;

    /// The full path of a file that the user wants to be written, or an empty text. `filter` as
    /// above; `name`: what the file is called when the user says nothing else.
    virtual std::u16string Save_File(const std::u16string& filter, const std::u16string& name) = 0;

    /// The user's answer to `prompt`, under `title`; empty when there was none.
    virtual std::u16string Ask(const std::u16string& prompt, const std::u16string& title) = 0;

    /// The colour that the user chooses, `color` being the one to begin with and the one that stays
    /// when there was no choice.
    virtual Color Choose_Color(Color color) = 0;

    /// The width of a line of text in twips (1/1440 inch).
    virtual float Text_Width(std::u16string_view text, const Font& font) = 0;

    /// What is left of `text` in a control that shows the system's code page only. On systems whose
    /// code page has every character, all of it.
    virtual std::u16string In_Code_Page(std::u16string_view text) = 0;
};

}  // namespace bannersmith
