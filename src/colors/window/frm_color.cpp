#include "colors/window/frm_color.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "banner/source.h"
#include "base/text.h"
#include "colors/materials.h"
#include "colors/window/scheme_list.h"
#include "forms/say.h"
#include "system/files.h"
#include "system/interruptions.h"
#include "system/replace_files.h"

namespace bannersmith {

namespace {

constexpr std::u16string_view NotFound = u"NF";

/// The whole number that a text stands for; nothing when it is none that fits 16 bits.
std::optional<int> Whole_Number(std::u16string_view text) {
    const std::string digits = To_Utf8(Trim(text));
    const char* first = digits.data() + (digits.starts_with('+') ? 1 : 0);
    const char* last = digits.data() + digits.size();
    double number = 0;
    const auto [end, error] = std::from_chars(first, last, number);
    if (error != std::errc() || end != last || digits.starts_with("+-")) return std::nullopt;
    const double whole = std::nearbyint(number);  // halves go to the even neighbour
    using Limits = std::numeric_limits<std::int16_t>;
    if (!(whole >= Limits::min() && whole <= Limits::max())) return std::nullopt;
    return static_cast<int>(whole);
}

/// The colour that six hexadecimal digits stand for, red first.
std::optional<Color> Hex_Color(std::u16string_view text) {
    std::string digits = To_Utf8(Trim(text));
    if (digits.starts_with('#')) digits.erase(0, 1);
    constexpr int Base = 16;
    unsigned number = 0;
    const char* last = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), last, number, Base);
    if (digits.size() != 6 || error != std::errc() || end != last) return std::nullopt;
    const auto part = [number](unsigned shift) {
        return static_cast<std::uint8_t>(number >> shift);
    };
    return Make_Color(part(16), part(8), part(0));
}

std::u16string Hex_Text(Color color) {
    constexpr std::u16string_view Digits = u"0123456789ABCDEF";
    std::u16string text;
    for (const unsigned part : {Red_Of(color), Green_Of(color), Blue_Of(color)}) {
        text += {Digits[part / Digits.size()], Digits[part % Digits.size()]};
    }
    return text;
}

}  // namespace

std::u16string Set_Pic_Colors_brlyt(std::string_view data, std::string_view name, ColorBox& first,
                                    ColorBox& second) {
    const auto colors = Get_Mat_Colors(data, name);
    if (!colors) return std::u16string(NotFound);
    first.Set((*colors)[0]);
    second.Set((*colors)[1]);
    return {};
}

std::u16string VbColor2RGB(Color color) {
    return From_Utf8(std::to_string(Red_Of(color)) + "|" + std::to_string(Green_Of(color)) + "|" +
                     std::to_string(Blue_Of(color)));
}

frmColor::frmColor(MainWindowForColors main, std::u16string program_folder, Desktop& desktop)
    : preview(desktop),
      live({main.banner, [this] { return Unset_Edits(); },
            [this] { return main_.cmbRegion[static_cast<std::size_t>(Field::title)].Selected(); },
            program_folder},
           desktop),
      main_(std::move(main)),
      program_folder_(std::move(program_folder)),
      desktop_(desktop) {
    cmbFileList.Click = [this] { cmbFileList_Click(); };
    for (TextBox* box : {&txtR, &txtG, &txtB}) box->Change = [this] { UpDatePicClr(); };
    drawn_ = kept_ = Colors();
    txtHex.Change = [this] { Take_Hex(); };
    cmbFileList.picture_of = [this](int index) {
        return Scheme_Picture(program_folder_, cmbFileList, index);
    };
}

void frmColor::Form_Load() {
    RefreshColorList(true);
    txtBannerPath.Set(main_.txtSrc.Text());
    cmbFileList.Select(main_.cmbFileList.Index());
}

void frmColor::Form_Unload() {
    main_.form.Set_Enabled(true);
    main_.cmbFileList.Select(cmbFileList.Index());
}

void frmColor::RefreshColorList(bool dont_Set) {
    Fill_Scheme_List(cmbFileList, File1, program_folder_);
    if (dont_Set) return;
    Fill_Scheme_List(main_.cmbFileList, File1, program_folder_);
    main_.cmbFileList.Select(cmbFileList.Index());
}

void frmColor::cmbFileList_Click() {
    if (cmbFileList.Index() == DropDownList::NoSelection) return;
    if (cmbFileList.Index() == 0) {
        cmdGetScheme_Click();
    } else {
        Load_Scheme_Colors(cmbFileList.Selected());
    }
}

void frmColor::cmdGetScheme_Click() {
    std::u16string path = txtBannerPath.Text();
    if (path.starts_with(u'\\')) path.insert(0, program_folder_ + u"\\");
    path = Layout_File_Of(path);
    if (!Ordinary_File_Exists(path)) {
        desktop_.Message(u"File Not Found!");
        return;
    }
    const auto data = BannerSource(path).Read();
    if (!data) {
        desktop_.Report(data.Why());
        return;
    }
    Read_Element_Set(*data);
    kept_ = Colors();
    MakePreview();
}

void frmColor::Read_Element_Set(std::string_view data) {
    for (std::size_t i = 0; i < pic.size(); ++i) {
        const auto& text = Elements[i].text;
        std::u16string name(Elements[i].material);
        if (text) name += main_.cmbRegion[static_cast<std::size_t>(*text)].Selected();
        const auto found = Set_Pic_Colors_brlyt(data, To_Utf8(name), pic[i][0], pic[i][1]);
        if (found == NotFound && text) {
            const std::string neutral = To_Utf8(Neutral_Box(Elements[i].material));
            Set_Pic_Colors_brlyt(data, neutral, pic[i][0], pic[i][1]);
        }
    }
}

Scheme frmColor::Colors() const {
    Scheme scheme{};
    for (std::size_t i = 0; i < pic.size(); ++i) scheme[i] = {pic[i][0].Value(), pic[i][1].Value()};
    return scheme;
}

void frmColor::cmdSaveScheme_Click() {
    const std::u16string name = desktop_.Ask(u"Type a Name for the New Scheme", u"Save Scheme");
    if (name.empty()) return;
    if (Ordinary_File_Exists(Scheme_Path(program_folder_, name)) &&
        !desktop_.Confirm(Filled(Say("There is a scheme %1 already. Replace it?"), name))) {
        return;
    }
    if (const auto saved = Save_Scheme(name); !saved) {
        desktop_.Report(saved.Why());
        return;
    }
    kept_ = Colors();
    desktop_.Message(u"Color Scheme saved as " + name);
    RefreshColorList();
}

Result<> frmColor::Save_Scheme(const std::u16string& name) {
    if (name.starts_with(u'.') || name.find_first_of(u"\\/") != name.npos) {
        return Failure{name, "A scheme's name cannot begin with . or hold \\ or /"};
    }
    const InterruptionsHeld held;
    return Replace_File(Scheme_Path(program_folder_, name), Format_Scheme(Colors()),
                        [this](const Failure& loss) { desktop_.Report(loss); });
}

frmColor::Boxes* frmColor::Find_Boxes(std::u16string_view key) {
    const std::size_t index = Element_Index(key);
    return index == Elements.size() ? nullptr : &pic[index];
}

/// Each of the three texts runs `UpDatePicClr` as it changes.
void frmColor::Show_Components(Color color) {
    const std::u16string components = VbColor2RGB(color);
    txtR.Set(Piece_Of(components, u'|', 0));
    txtG.Set(Piece_Of(components, u'|', 1));
    txtB.Set(Piece_Of(components, u'|', 2));
}

void frmColor::pic_Click(std::u16string_view key, std::int16_t Index) {
    Boxes* boxes = Find_Boxes(key);
    if (boxes == nullptr || Index < 0 || Index > 1) return;
    if (ColorBox* before = Edited_Box()) before->Set_Mark(u"");
    lblEdit.Set(u"");  // the numbers are not yet those of the box
    Show_Components((*boxes)[static_cast<std::size_t>(Index)].Value());
    lblEdit.Set(std::u16string(key) + (Index == 0 ? u" 0" : u" 1"));
    Edited_Box()->Set_Mark(Say("Being edited"));
    UpDatePicClr();
}

/// Nothing before one was clicked.
ColorBox* frmColor::Edited_Box() {
    Boxes* boxes = Find_Boxes(Piece_Of(lblEdit.Caption(), u' ', 0));
    if (boxes == nullptr) return nullptr;
    return &(*boxes)[Piece_Of(lblEdit.Caption(), u' ', 1) == u"1" ? 1 : 0];
}

void frmColor::UpDatePicClr() {
    const auto red = Whole_Number(txtR.Text());
    const auto green = Whole_Number(txtG.Text());
    const auto blue = Whole_Number(txtB.Text());
    if (!red || !green || !blue) return;
    const auto component = [](int number) {
        return static_cast<std::uint8_t>(std::clamp(number, 0, WholeByte));
    };
    picClr.Set(Make_Color(component(*red), component(*green), component(*blue)));
    Show_Hex();
    if (ColorBox* box = Edited_Box()) {
        Scheme tried = Colors();
        const std::size_t element = Element_Index(Piece_Of(lblEdit.Caption(), u' ', 0));
        tried[element][box == &pic[element][1] ? 1 : 0] = picClr.Value();
        Draw_With(tried);
    }
}

/// Only where it says another colour, as somebody may be typing it.
void frmColor::Show_Hex() {
    if (Hex_Color(txtHex.Text()) != picClr.Value()) txtHex.Set(Hex_Text(picClr.Value()));
}

void frmColor::Take_Hex() {
    const auto color = Hex_Color(txtHex.Text());
    if (color && *color != picClr.Value()) Show_Components(*color);
}

void frmColor::picClr_Click() {
    picClr.Set(desktop_.Choose_Color(picClr.Value()));
    Show_Components(picClr.Value());
}

void frmColor::cmdColor_Click() {
    if (ColorBox* box = Edited_Box()) box->Set(picClr.Value());
    MakePreview();
}

void frmColor::Load_Scheme_Colors(std::u16string_view name) {
    const auto scheme = Load_Scheme(Scheme_Path(program_folder_, name));
    if (!scheme) {
        desktop_.Report(scheme.Why());
        return;
    }
    for (std::size_t i = 0; i < pic.size(); ++i) {
        pic[i][0].Set((*scheme)[i][0]);
        pic[i][1].Set((*scheme)[i][1]);
    }
    kept_ = Colors();
    MakePreview();
}

void frmColor::MakePreview() {
    Draw_With(Colors());
}

void frmColor::Draw_With(const Scheme& colors) {
    drawn_ = colors;
    preview.Draw(drawn_, main_.texts());
    live.Take_Changes();
}

void frmColor::Preview_Click(float x, float y) {
    const auto [key, box] = preview.Color_At(x, y);
    pic_Click(key, box);
}

/// The second colour of an element is the one that is seen where a stage mixes two.
void frmColor::Live_Click(float x, float y) {
    for (const std::u16string& material : live.Materials_At(x, y)) {
        for (const Element& element : Elements) {
            const bool is_its = element.text ? material.starts_with(Neutral_Box(element.material))
                                             : material == element.material;
            if (is_its) return pic_Click(element.key, 1);
        }
    }
}

bool frmColor::May_Close() {
    if (drawn_ == kept_) return true;
    const auto answer = desktop_.Choose(Say("These colors are in no scheme and would be lost."),
                                        {Say("Save as a scheme"), Say("Discard"), Say("Cancel")});
    if (answer == 0) {
        cmdColor_Click();
        cmdSaveScheme_Click();
        return drawn_ == kept_;
    }
    return answer == 1;
}

/// What is typed in the main window, in the colours that are shown.
std::vector<Edit> frmColor::Unset_Edits() const {
    std::vector<Edit> edits = main_.unset();
    SetColors colors;
    for (std::size_t i = 0; i < drawn_.size(); ++i) colors.pairs[i] = drawn_[i];
    edits.emplace_back(std::move(colors));
    return edits;
}

}  // namespace bannersmith
