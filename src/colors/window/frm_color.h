// The colour window: the colours of a banner as pairs of boxes, read from a layout or a scheme,
// edited box by box, saved as a scheme. It never writes a layout.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "colors/scheme.h"
#include "colors/window/preview.h"
#include "forms/controls.h"
#include "forms/desktop.h"
#include "liveview/live_view.h"

namespace bannersmith {

/// What the colour window needs of the main window.
struct MainWindowForColors {
    Form& form;                 ///< enabled again at the end
    TextBox& txtSrc;            ///< the path of the layout
    DropDownList& cmbFileList;  ///< the schemes; gets this window's list and selection
    /// The languages of the text colours, by their `Field`.
    const std::array<DropDownList, FieldPrefixes.size()>& cmbRegion;
    std::function<PreviewTexts()> texts;       ///< what the preview shows now
    const Banner& banner;                      ///< the one that is open
    std::function<std::vector<Edit>()> unset;  ///< what was typed there and not yet set
};

/// The colour window as state and events. Closing it is the main window's to do.
class frmColor {
 public:
    /// The first and the second colour of an element.
    using Boxes = std::array<ColorBox, 2>;

    /// `main` and `desktop` must outlive the window.
    frmColor(MainWindowForColors main, std::u16string program_folder, Desktop& desktop);
    frmColor(const frmColor&) = delete;
    frmColor& operator=(const frmColor&) = delete;

    Form form;
    std::array<Boxes, Elements.size()> pic;  ///< the elements' boxes, in the order of `Elements`
    DropDownList cmbFileList;                ///< "Current Brlyt" and the schemes
    FileList File1{{".vccs"}};
    TextBox txtBannerPath{u"gen.brlyt"};         ///< the layout to read colours from
    TextBox txtR{u"0"}, txtG{u"0"}, txtB{u"0"};  ///< the colour being edited, 0 to 255 each
    TextBox txtHex;                              ///< all three at once: "FF8000", with # or not
    ColorBox picClr;                             ///< the same as a swatch
    Label lblEdit;                               ///< the box being edited: key, blank, 0 or 1
    Preview preview;
    LiveView live;  ///< the banner in the colours of the boxes

    /// Fills this window's list and takes path and scheme over from the main window.
    void Form_Load();
    /// Enables the main window again and gives it this window's scheme selection.
    void Form_Unload();

    /// Refills this window's scheme list and, unless `dont_Set`, the main window's. Nothing is
    /// selected afterwards.
    void RefreshColorList(bool dont_Set = false);

    /// Loads the selected scheme; the first entry reads the layout, and no selection does nothing.
    void cmbFileList_Click();
    /// Reads the colours of the layout that the path box names, and draws the preview.
    void cmdGetScheme_Click();
    /// Asks for a name and saves the boxes as a scheme, which both lists then have.
    void cmdSaveScheme_Click();
    /// Makes box `Index` (0 or 1) of the element called `key` the one being edited.
    void pic_Click(std::u16string_view key, std::int16_t Index);
    /// Lets the user choose the swatch's colour.
    void picClr_Click();
    /// Puts the swatch's colour into the box being edited, if there is one, and draws the preview.
    void cmdColor_Click();

    /// Sets the swatch from the three numbers: fractions are rounded, to the even one in the
    /// middle, and cut to 0 to 255. Texts that are no 16-bit number leave it as it is.
    void UpDatePicClr();

    /// Puts the scheme's colours into the boxes and draws the preview. A scheme that cannot be read
    /// is reported and changes nothing.
    void Load_Scheme_Colors(std::u16string_view name);

    /// Draws the preview from the boxes and what the main window shows.
    void MakePreview();

    /// Makes the box being edited the one whose colour lies at a place of the preview, in twips, or
    /// of the banner as the console draws it, in pixels; none where there is none.
    void Preview_Click(float x, float y);
    void Live_Click(float x, float y);

    /// Whether the window may be closed: its colours are those of the layout or of a scheme, or the
    /// user saves them or gives them up.
    bool May_Close();

 private:
    static constexpr int WholeByte = 255;

    Result<> Save_Scheme(const std::u16string& name);
    Boxes* Find_Boxes(std::u16string_view key);
    ColorBox* Edited_Box();
    void Take_Hex();
    void Show_Hex();
    void Draw_With(const Scheme& colors);
    void Show_Components(Color color);
    void Read_Element_Set(std::string_view data);
    Scheme Colors() const;
    std::vector<Edit> Unset_Edits() const;

    MainWindowForColors main_;
    std::u16string program_folder_;
    Desktop& desktop_;
    Scheme drawn_{};  ///< what the preview shows: the boxes, and what is typed for one of them
    Scheme kept_{};   ///< as they were read or saved last
};

/// Reads the first two colours of a material of `data` into two boxes: "NF" where the material is
/// missing, which leaves the boxes as they are, otherwise an empty text.
std::u16string Set_Pic_Colors_brlyt(std::string_view data, std::string_view name, ColorBox& first,
                                    ColorBox& second);

/// Red, green and blue of a colour as decimal numbers with "|" between them.
std::u16string VbColor2RGB(Color color);

}  // namespace bannersmith
