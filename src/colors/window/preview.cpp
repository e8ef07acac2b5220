#include "colors/window/preview.h"

#include "base/text.h"
#include "colors/window/gradients.h"

namespace bannersmith {

namespace {

constexpr std::int16_t FadeSteps = 256;
constexpr float FrameBeforeConsole = 525;

std::u16string With_Line_Breaks(std::u16string_view text) {
    return Replace_All(text, u"^", u"\r\n");
}

}  // namespace

void Preview::Draw(const Scheme& colors, const PreviewTexts& texts) {
    Draw_Colors(colors);
    Show_Texts(texts);
    shpPFLine[1].area.left = lblT_PF.area.left - FrameBeforeConsole;
    shpPFLine[1].area.width = shpBackMask1.Right() - shpPFLine[1].area.left;
    Drawn.Raise();
}

void Preview::Draw_Colors(const Scheme& colors) {
    const auto color = [&](std::u16string_view element, std::size_t box) {
        return colors[Element_Index(element)][box];
    };
    for (Shape& shape : shpPFLine) {
        shape.fill = color(u"PFLINE", 1);
        shape.border = color(u"PFLINE", 0);
    }
    lblT_PF.color = color(u"T_PF", 1);
    shpBack1.fill = color(u"Back1", 0);
    lblT_Year.color = color(u"T_Year", 1);
    lblT_Play.color = color(u"T_Play", 1);
    lblT_ESRB.color = color(u"T_ESRB", 1);

    const Color paper = shpBack1.fill;
    shpYearLine.Clear();
    BackgroundHorizontalGradient(shpYearLine, color(u"YearLine", 1), paper, FadeSteps, 0,
                                 shpYearLine.Height(), 0, YearLineArea.width);
    shpPlayLine.Clear();
    BackgroundHorizontalGradient(shpPlayLine, color(u"PlayLine", 1), paper, FadeSteps, 0,
                                 shpPlayLine.Height(), 0, PlayLineArea.width);
    surface.Clear();
    BackgroundVerticalGradient(surface, paper, color(u"BackMask1", 1), FadeSteps, shpBackMask1.top,
                               shpBackMask1.Bottom(), shpBackMask1.left, shpBackMask1.Right());

    shpBackMask2.fill = color(u"BackMask2", 1);
    lblT_VCTitle.color = color(u"T_VCTitle", 1);
    lblBack1[0].color = color(u"Back1", 1);
    lblBack1[1].color = color(u"Back2", 1);
    lblBack1[2].color = color(u"Back3", 1);
    lblBack1[3].color = color(u"Back4", 1);
    shpVcPic.border = color(u"VCPic", 0);
    shpVcPic.fill = color(u"VCPic", 1);
}

/// A label whose field is empty keeps the text that it had.
void Preview::Show_Texts(const PreviewTexts& texts) {
    if (!texts.title.empty()) lblT_VCTitle.text = With_Line_Breaks(texts.title);
    if (!texts.system.empty()) Show_Console(texts.system);
    if (texts.year) lblT_Year.text = *texts.year;
    if (texts.players) {
        lblT_Play.text = With_Line_Breaks(*texts.players);
        const bool lines = lblT_Play.text.find(u"\r\n") != std::u16string::npos;
        lblT_Play.area.top = lines ? lbl_PlayPos.top : lbl_PlayPos.Bottom();
    }
    if (texts.rating) lblT_ESRB.text = With_Line_Breaks(*texts.rating);
}

/// The console's name keeps its right edge. A name that the measuring label cannot show gets room
/// for characters that are wider than the ones that were measured.
void Preview::Show_Console(std::u16string_view text) {
    const std::u16string measured = desktop_.In_Code_Page(text);
    const float right = lbl_PFSize.Right();
    lbl_PFSize.width = desktop_.Text_Width(measured, lblT_PF.font);
    lbl_PFSize.left = right - lbl_PFSize.width;
    const float room = measured == text ? 0 : 1.5F * lbl_PFSize.width;
    lblT_PF.text = text;
    lblT_PF.area.left = lbl_PFSize.left - room;
    lblT_PF.area.width = lbl_PFSize.width + room;
}

}  // namespace bannersmith
