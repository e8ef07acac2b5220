// The page of the names that the console's menu shows for a channel.
#pragma once

#include <array>
#include <cstddef>
#include <functional>

#include "banner/banner.h"
#include "forms/controls.h"

namespace bannersmith {

/// The page as state and events.
class ChannelNamesPage {
 public:
    /// `banner`, whose names are shown, must outlive the page; `apply` applies an edit to it.
    ChannelNamesPage(const Banner& banner, std::function<void(const Edit& edit)> apply);

    Form page;  ///< visible while the banner has such names

    /// By language, in the order of `NameLanguages`, and line.
    std::array<std::array<TextBox, NameLines>, NameLanguages.size()> txtNames;

    /// Shows the page or hides it, and what stands in the banner.
    void Refill();
    /// Shows what stands in the banner, but where a text is not set yet.
    void Show_Set();
    /// What is typed; `Give_Back` shows it again.
    using Content = std::array<std::array<std::u16string, NameLines>, NameLanguages.size()>;
    Content Take_Content() const;
    void Give_Back(const Content& content);

    Event Typed;  ///< a line's text is another one

    /// Whether a line holds a text that was typed and is not set. Its box has a mark then.
    bool Has_Unset() const;

    /// Writes each line that differs from the banner's, and says how many that were. One that
    /// cannot be written is passed over.
    std::size_t cmdSet_Click();

 private:
    void Show_Marks();

    const Banner& banner_;
    std::function<void(const Edit& edit)> apply_;
};

}  // namespace bannersmith
