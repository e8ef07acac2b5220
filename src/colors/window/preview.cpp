#include "colors/window/preview.h"

#include <algorithm>
#include <tuple>

#include "base/text.h"
#include "colors/window/gradients.h"

namespace bannersmith {

namespace {

constexpr std::int16_t FadeSteps = 256;
constexpr float FrameBeforeConsole = 525;

std::u16string With_Line_Breaks(std::u16string_view text) {
    return Replace_All(text, u"^", u"\r\n");
}

/// Where a hand finds a thin line.
Area Widened(Area area) {
    constexpr float Reach = 60;
    return {area.left, area.top - Reach, area.width, area.height + 2 * Reach};
}

/// Where a row's letters are, between which the ground can be clicked.
Area Letters(Area area) {
    return {area.left, area.top + area.height / 4, area.width, area.height / 2};
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

/// Where the lines of a label are, which can be less than its area.
Area Preview::Written_Area(const DrawnLabel& label) const {
    float width = 0;
    for (std::size_t from = 0; from <= label.text.size();) {
        const std::size_t end = std::min(label.text.find(u"\r\n", from), label.text.size());
        const auto line = std::u16string_view(label.text).substr(from, end - from);
        width = std::max(width, desktop_.Text_Width(line, label.font));
        from = end + 2;
    }
    width = std::min(width, label.area.width);
    Area area = label.area;
    if (label.alignment == Alignment::right) area.left = area.Right() - width;
    if (label.alignment == Alignment::centre) area.left += (area.width - width) / 2;
    area.width = width;
    return area;
}

/// From the front to the back.
std::pair<std::u16string_view, std::int16_t> Preview::Color_At(float x, float y) const {
    const auto lies_in = [x, y](const Area& area) {
        return x >= area.left && x < area.Right() && y >= area.top && y < area.Bottom();
    };
    Area screen = shpVcPic.area;
    screen = {screen.left + Thick, screen.top + Thick, screen.width - 2 * Thick,
              screen.height - 2 * Thick};
    const std::tuple<Area, std::u16string_view, std::int16_t> places[] = {
        {Widened(YearLineArea), u"YearLine", 1},
        {Widened(PlayLineArea), u"PlayLine", 1},
        {Written_Area(lblT_PF), u"T_PF", 1},
        {Written_Area(lblT_Year), u"T_Year", 1},
        {Written_Area(lblT_Play), u"T_Play", 1},
        {screen, u"VCPic", 1},
        {shpVcPic.area, u"VCPic", 0},
        {Written_Area(lblT_VCTitle), u"T_VCTitle", 1},
        {Written_Area(lblT_ESRB), u"T_ESRB", 1},
        {shpPFLine[0].area, u"PFLINE", 1},
        {shpPFLine[1].area, u"PFLINE", 1},
        {Letters(lblBack1[0].area), u"Back1", 1},
        {Letters(lblBack1[1].area), u"Back2", 1},
        {Letters(lblBack1[2].area), u"Back3", 1},
        {Letters(lblBack1[3].area), u"Back4", 1},
        {shpBackMask1, u"BackMask1", 1},
        {shpBackMask2.area, u"BackMask2", 1},
        {shpBack1.area, u"Back1", 0},
    };
    for (const auto& [area, key, box] : places) {
        if (lies_in(area)) return {key, box};
    }
    return {};
}

}  // namespace bannersmith
