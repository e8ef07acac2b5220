#include "mainwindow/channel_names.h"

#include <utility>

namespace bannersmith {

ChannelNamesPage::ChannelNamesPage(const Banner& banner,
                                   std::function<void(const Edit& edit)> apply)
    : banner_(banner), apply_(std::move(apply)) {}

void ChannelNamesPage::Refill() {
    const auto names = banner_.Names();
    names ? page.Show() : page.Hide();
    for (std::size_t language = 0; language < txtNames.size(); ++language) {
        for (std::size_t line = 0; line < NameLines; ++line) {
            txtNames[language][line].Set(names ? (*names)[language][line] : u"");
        }
    }
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
    return written;
}

}  // namespace bannersmith
