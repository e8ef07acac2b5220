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

    /// Writes each line that differs from the banner's, and says how many that were. One that
    /// cannot be written is passed over.
    std::size_t cmdSet_Click();

 private:
    const Banner& banner_;
    std::function<void(const Edit& edit)> apply_;
};

}  // namespace bannersmith
