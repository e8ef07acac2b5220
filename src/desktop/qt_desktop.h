#pragma once

#include "forms/desktop.h"

namespace bannersmith {

/// The desktop through the toolkit: modal boxes over the active window. Failures also go to
/// standard error.
class QtDesktop : public Desktop {
 public:
    void Message(const std::u16string& text) override;
    bool Confirm(const std::u16string& question) override;
    std::size_t Choose(const std::u16string& question,
                       const std::vector<std::u16string>& answers) override;
    void Report(const Failure& failure) override;
    std::u16string Open_File(const std::u16string& filter, const std::u16string& last) override;
    std::u16string Save_File(const std::u16string& filter, const std::u16string& name) override;
    std::u16string Ask(const std::u16string& prompt, const std::u16string& title) override;
    Color Choose_Color(Color color) override;
    float Text_Width(std::u16string_view text, const Font& font) override;
    std::u16string In_Code_Page(std::u16string_view text) override;
};

}  // namespace bannersmith
