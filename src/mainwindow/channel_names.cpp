#include "mainwindow/channel_names.h"

#include <algorithm>
#include <utility>

#include "forms/say.h"

namespace bannersmith {

ChannelNamesPage::ChannelNamesPage(const Banner& banner,
                                   std::function<void(const Edit& edit)> apply)
    : banner_(banner), apply_(std::move(apply)) {
    for (auto& lines : txtNames) {
        for (TextBox& line : lines) {
            line.Change = [this] {
                Show_Marks();
                Typed.Raise();
            };
        }
    }
}

void ChannelNamesPage::Show_Marks() {
    const auto names = banner_.Names();
    for (std::size_t language = 0; language < txtNames.size(); ++language) {
        for (std::size_t line = 0; line < NameLines; ++line) {
            TextBox& box = txtNames[language][line];
            const bool is_unset = names && (*names)[language][line] != box.Text();
            box.Set_Mark(is_unset ? Say("Typed, but not set yet") : u"");
        }
    }
}

void ChannelNamesPage::Show_Set() {
    const auto names = banner_.Names();
    for (std::size_t language = 0; names && language < txtNames.size(); ++language) {
        for (std::size_t line = 0; line < NameLines; ++line) {
            TextBox& box = txtNames[language][line];
            if (box.Mark().empty()) box.Set((*names)[language][line]);
        }
    }
    Show_Marks();
}

bool ChannelNamesPage::Has_Unset() const {
    return std::any_of(txtNames.begin(), txtNames.end(), [](const auto& lines) {
        return std::any_of(lines.begin(), lines.end(),
                           [](const TextBox& line) { return !line.Mark().empty(); });
    });
}

ChannelNamesPage::Content ChannelNamesPage::Take_Content() const {
    Content content;
    for (std::size_t language = 0; language < txtNames.size(); ++language) {
        for (std::size_t line = 0; line < NameLines; ++line) {
            content[language][line] = txtNames[language][line].Text();
        }
    }
    return content;
}

void ChannelNamesPage::Give_Back(const Content& content) {
    for (std::size_t language = 0; language < txtNames.size(); ++language) {
        for (std::size_t line = 0; line < NameLines; ++line) {
            txtNames[language][line].Set(content[language][line]);
        }
    }
}

void ChannelNamesPage::Refill() {
    const auto names = banner_.Names();
    names ? page.Show() : page.Hide();
    for (std::size_t language = 0; language < txtNames.size(); ++language) {
        for (std::size_t line = 0; line < NameLines; ++line) {
            txtNames[language][line].Set(names ? (*names)[language][line] : u"");
        }
    }
    Show_Marks();
}

std::size_t ChannelNamesPage::cmdSet_Click() {
    std::size_t written = 0;
    for (std::size_t language = 0; language < txtNames.size(); ++language) {
        for (std::size_t line = 0; line < NameLines; ++line) {
            const std::u16string& text = txtNames[language][line].Text();
            const auto before = banner_.Names();
            if (!before || (*before)[language][line] == text) continue;
            apply_(SetChannelName{std::u16string(NameLanguages[language]), line, text});
            written += banner_.Names() != before;
        }
    }
    Show_Marks();
    return written;
}

}  // namespace bannersmith
