// The mock-up of a banner in the lower part of the colour window.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "colors/scheme.h"
#include "forms/controls.h"
#include "forms/desktop.h"
#include "forms/drawing.h"

namespace bannersmith {

/// What the preview shows of the main window's fields.
struct PreviewTexts {
    std::u16string title, system;  ///< as the fields have them
    /// As the layout words them in the languages chosen; nothing where the field is empty.
    std::optional<std::u16string> year, players, rating;
};

/// The preview's shapes and labels as they were last drawn. Nothing changes between two drawings,
/// and a label whose text box is empty keeps the text it had.
class Preview {
 public:
    /// `desktop` measures texts and must outlive the preview.
    explicit Preview(Desktop& desktop) : desktop_(desktop) {}

    /// Draws everything anew.
    void Draw(const Scheme& colors, const PreviewTexts& texts);

    /// The key of the element whose colour lies at a place, and which of its two colours it is; an
    /// empty key where none lies there.
    std::pair<std::u16string_view, std::int16_t> Color_At(float x, float y) const;

    /// Runs after each drawing.
    Event Drawn;

    /// The colour window's own surface, which lies beneath everything else.
    Surface surface{11600, 9720};

    /// The bar above the banner, and the banner's own ground.
    Shape Shape1{{240, 2400, 11115, 300}, false, 0, DarkGrey};
    Shape shpBack1{{360, 2640, 10815, 3735}, false, 0, White};
    /// The bar, the frame around the console's name, which lies over both bars, and the bar again.
    std::array<Shape, 3> shpPFLine{{{{480, 2640, 10575, 495}, false, Thin, White},
                                    {{8880, 2640, 2295, 855}, true, Thin, White},
                                    {{375, 2655, 10755, 465}, false, Thin, White}}};
    /// The picture with its frame, and the ground of the lower part.
    Shape shpVcPic{{4080, 4920, 3495, 2415}, true, Thick, White};
    Shape shpBackMask2{{360, 7560, 10815, 2055}, false, 0, White};
    static constexpr Area shpBackMask1{360, 6360, 10790, 1215};  ///< only marks the lower fade

    /// The lines below year and players: where they lie, and what is painted into them.
    static constexpr Area YearLineArea{600, 3960, 3045, 45}, PlayLineArea{600, 4920, 3045, 45};
    Surface shpYearLine{YearLineArea.width, YearLineArea.height};
    Surface shpPlayLine{PlayLineArea.width, PlayLineArea.height};

    /// The texts, as wide as they may be before they wrap.
    DrawnLabel lblT_PF{{6240, 3000, 4590, 390}, u"Console  ", ConsoleFont, Alignment::centre};
    Area lbl_PFSize{9870, 3360, 945, 390};                    ///< as wide as the console's name
    static constexpr Area lbl_PlayPos{600, 4005, 3015, 420};  ///< where the players text may begin
    DrawnLabel lblT_Year{{600, 3480, 3315, 495}, u"Released:", InfoFont};
    DrawnLabel lblT_Play{{600, 4440, 3015, 1095}, u"Players: ?-?", InfoFont};
    DrawnLabel lblT_VCTitle{{360, 7440, 10815, 1365}, u"Game Title", TitleFont, Alignment::right};
    DrawnLabel lblT_ESRB{{360, 9120, 10785, 465}, u"", InfoFont, Alignment::right, false};
    /// The rows of large text, by the number of the background element that colours them less one.
    std::array<DrawnLabel, 4> lblBack1{
        {{{360, 7800, 10815, 1830}, u"LOGO LOGO LO", RowFont, Alignment::left, false, LightGrey},
         {{480, 3120, 10845, 1830}, u"LOGO LOGO LO", RowFont, Alignment::left, false, LightGrey},
         {{360, 6360, 10700, 1695}, u"GO LOGO LOGO", RowFont, Alignment::left, false, LightGrey},
         {{360, 4800, 10800, 1830}, u"GO LOGO LOGO", RowFont, Alignment::left, false, LightGrey}}};

 private:
    static constexpr float Thin = 15, Thick = 60;
    static constexpr Color White = 0xFFFFFF, LightGrey = 0xE0E0E0, DarkGrey = 0x606060;
    static constexpr std::u16string_view Gothic = u"Wii NTLG Gothic Regular";
    static constexpr Font ConsoleFont{Gothic, 14.25F}, InfoFont{Gothic, 18}, TitleFont{Gothic, 24};
    static constexpr Font RowFont{u"@Arial Unicode MS", 68.25F};

    void Draw_Colors(const Scheme& colors);
    void Show_Texts(const PreviewTexts& texts);
    void Show_Console(std::u16string_view text);
    Area Written_Area(const DrawnLabel& label) const;

    Desktop& desktop_;
};

}  // namespace bannersmith
