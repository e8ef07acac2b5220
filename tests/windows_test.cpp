// The colour window, its preview and the manual text editor, without a toolkit.
#include <gtest/gtest.h>

#include "colors/gradients.h"
#include "gameinfo/boxes.h"
#include "layout/mod_globals.h"
#include "mainwindow/form1.h"
#include "platform/text.h"
#include "samples/banners.h"
#include "support.h"

namespace {

Color Rgb(int red, int green, int blue) {
    return Make_Color(static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
                      static_cast<std::uint8_t>(blue));
}

/// The main window on a banner, from which the others are opened.
class Windows : public testing::Test {
 public:
    Windows() {
        BrlytData.clear();
        folder.Write("cfgs/vcinfopath.cfg", "\\banner.brlyt\r\n");
        folder.Write("banner.brlyt", Seven_Language_Banner());
        for (const NamedScheme& named : Shipped_Schemes()) {
            folder.Write("schemes/" + To_Utf8(named.name) + ".vccs", Format_Scheme(named.scheme));
        }
        main.Form_Load();
    }

    frmColor& Open_Colors() {
        main.cmdEditColor_Click();
        return *main.ColorWindow;
    }
    frmHC& Open_Editor() {
        main.cmdHC_Click();
        return *main.TextEditor;
    }

    TempFolder folder;
    TestDesktop desktop;
    Form1 main{{folder.Text(), u""}, desktop};
};

Scheme Boxes_Of(const frmColor& window) {
    Scheme scheme{};
    for (std::size_t i = 0; i < scheme.size(); ++i) {
        scheme[i] = {window.pic[i][0].Value(), window.pic[i][1].Value()};
    }
    return scheme;
}

TEST_F(Windows, ColorsOpenOnTheMainWindowsScheme) {
    frmColor& colors = Open_Colors();
    EXPECT_TRUE(colors.form.Visible());
    EXPECT_FALSE(main.form.Enabled());
    EXPECT_EQ(colors.txtBannerPath.Text(), u"\\banner.brlyt");
    EXPECT_EQ(colors.cmbFileList.Index(), 0);
    EXPECT_EQ(Boxes_Of(colors), Shipped_Schemes()[0].scheme) << "the sample's own colours";
    colors.cmbFileList.Pick(3);
    EXPECT_EQ(Boxes_Of(colors), Shipped_Schemes()[2].scheme);
    main.Close_Color_Window();
    EXPECT_TRUE(main.form.Enabled());
    EXPECT_EQ(main.cmbFileList.Index(), 3);
    EXPECT_EQ(Boxes_Of(Open_Colors()), Shipped_Schemes()[2].scheme);
    EXPECT_TRUE(desktop.messages.empty() && desktop.failures.empty());
}

TEST_F(Windows, ColorsOpenWithoutLayoutAndSchemes) {
    std::filesystem::remove_all(folder.Path() / "schemes");
    main.txtSrc.Set(u"\\none");
    frmColor& colors = Open_Colors();
    EXPECT_EQ(desktop.messages, std::vector<std::u16string>{u"File Not Found!"});
    EXPECT_EQ(colors.cmbFileList.Entries(), std::vector<std::u16string>{u"Current Brlyt"});
    const Scheme neutral = Boxes_Of(colors);
    colors.cmdColor_Click();
    EXPECT_EQ(Boxes_Of(colors), neutral) << "nothing is being edited";
    desktop.answer = u"x";
    colors.cmdSaveScheme_Click();
    EXPECT_EQ(desktop.failures.size(), 1U) << "the folder is missing";
}

TEST_F(Windows, ColorsReadTheSelectedLanguagesMaterials) {
    std::vector<Material> materials;
    for (const char* name : {"T_VCTitle", "T_VCTitle_GER", "T_Play_FRA", "T_Year", "T_ESRB_ITA", "Shade"}) {
        const auto shade = static_cast<std::int16_t>(10 * (materials.size() + 1));
        materials.push_back({name, {shade, 1, 2, 9}, {shade, 3, 4, 9}});
    }
    folder.Write("other.brlyt", Layout_With({Material_Section(materials)}));
    frmColor& colors = Open_Colors();
    const Scheme before = Boxes_Of(colors);
    colors.txtBannerPath.Set(u"\\other.brlyt");
    const auto red_of = [&](Element element) {
        return Red_Of(colors.pic[static_cast<std::size_t>(element)][0].Value());
    };
    for (std::size_t i = 0; i < 4; ++i) main.info.cmbRegion[i].Select(i == 0 ? 1 : i == 2 ? 2 : 3);
    colors.cmdGetScheme_Click();
    EXPECT_EQ(red_of(Element::T_VCTitle), 20);
    EXPECT_EQ(red_of(Element::T_Play), 30);
    EXPECT_EQ(red_of(Element::T_Year), 40) << "the one for all languages";
    EXPECT_EQ(red_of(Element::T_ESRB), 50);
    EXPECT_EQ(colors.pic[2][1].Value(), Rgb(60, 3, 4));
    EXPECT_EQ(colors.pic[0][0].Value(), before[0][0]) << "a missing material keeps its boxes";
    main.info.cmbRegion[0].Select(7);
    colors.cmdGetScheme_Click();
    EXPECT_EQ(red_of(Element::T_VCTitle), 10);
    EXPECT_EQ(Set_Pic_Colors_brlyt("", "Shade", colors.pic[0][0], colors.pic[0][1]), u"NF");
}

TEST_F(Windows, ColorsAreEditedBoxByBox) {
    frmColor& colors = Open_Colors();
    EXPECT_EQ(VbColor2RGB(Rgb(255, 128, 7)), u"255|128|7");
    colors.pic_Click(u"T_ESRB", 1);
    EXPECT_EQ(colors.lblEdit.Caption(), u"T_ESRB 1");
    EXPECT_EQ(colors.txtR.Text() + u"," + colors.txtG.Text() + u"," + colors.txtB.Text(), u"185,217,230");
    EXPECT_EQ(colors.picClr.Value(), Rgb(185, 217, 230));
    struct Case {
        const char16_t* typed;
        int red;  ///< of the swatch afterwards
    };
    const Case cases[] = {{u"7", 7},       {u"300", 255},  {u"a", 255},   {u"2.5", 2}, {u"3.5", 4}, {u"", 4},
                          {u"32767", 255}, {u"1", 1},      {u"32768", 1}, {u"-5", 0},  {u" 9 ", 9}, {u"9x", 9},
                          {u"nan", 9},     {u"-32769", 9}, {u"+-8", 9},   {u"+8", 8}};
    for (const Case& c : cases) {
        colors.txtR.Set(c.typed);
        EXPECT_EQ(colors.picClr.Value(), Rgb(c.red, 217, 230)) << To_Utf8(c.typed);
    }
    Scheme expected = Boxes_Of(colors);
    colors.cmdColor_Click();
    expected[13][1] = Rgb(8, 217, 230);
    EXPECT_EQ(Boxes_Of(colors), expected);
    EXPECT_EQ(colors.preview.lblT_ESRB.color, Rgb(8, 217, 230));

    desktop.color = Rgb(1, 2, 3);
    colors.picClr_Click();
    EXPECT_EQ(colors.txtR.Text() + colors.txtG.Text() + colors.txtB.Text(), u"123");
    EXPECT_EQ(colors.lblEdit.Caption(), u"T_ESRB 1");
    colors.pic_Click(u"none", 0);
    colors.pic_Click(u"Shade", 2);
    EXPECT_EQ(colors.lblEdit.Caption(), u"T_ESRB 1");
}

TEST_F(Windows, SavedSchemesAreListed) {
    frmColor& colors = Open_Colors();
    colors.cmdSaveScheme_Click();
    EXPECT_EQ(desktop.question, u"Save Scheme|Type a Name for the New Scheme");
    EXPECT_TRUE(desktop.messages.empty());
    desktop.answer = u"Mine";
    colors.cmdSaveScheme_Click();
    EXPECT_EQ(desktop.messages, std::vector<std::u16string>{u"Color Scheme saved as Mine"});
    EXPECT_EQ(folder.Read("schemes/Mine.vccs"), Format_Scheme(Boxes_Of(colors)));
    EXPECT_EQ(colors.cmbFileList.Entries(), main.cmbFileList.Entries());
    EXPECT_EQ(colors.cmbFileList.Entries()[4], u"Midnight");
    EXPECT_EQ(colors.cmbFileList.Entries()[5], u"Mine");
    EXPECT_EQ(colors.cmbFileList.Index() + main.cmbFileList.Index(), -2);
    main.Close_Color_Window();
    EXPECT_EQ(main.cmbFileList.Index(), -1);
    frmColor& again = Open_Colors();
    folder.Write("schemes/Mine.vccs", "broken");
    const Scheme before = Boxes_Of(again);
    again.cmbFileList.Pick(5);
    EXPECT_EQ(Boxes_Of(again), before);
    for (const char16_t* name : {u"a/b", u"a\\b", u".hidden"}) {
        desktop.answer = name;
        again.cmdSaveScheme_Click();
    }
    EXPECT_EQ(desktop.failures.size(), 4U);
    EXPECT_EQ(desktop.messages.size(), 1U);
}

TEST(Gradients, FadeBandByBand) {
    Surface surface(1000, 500);
    BackgroundVerticalGradient(surface, Rgb(0, 0, 0), Rgb(255, 255, 255), 256);
    const auto& bands = surface.Painted();
    ASSERT_EQ(bands.size(), 256U);
    EXPECT_EQ(bands[0].color + bands[1].color, 0U);
    EXPECT_EQ(bands[255].color, Rgb(254, 254, 254));
    EXPECT_EQ(bands[0].x2, 1000);
    EXPECT_FLOAT_EQ(bands[0].y2, 500 / 256.F);
    EXPECT_NEAR(bands[255].y2, 500, 0.1);

    surface.Clear();
    BackgroundHorizontalGradient(surface, Rgb(200, 10, 0), Rgb(0, 10, 100), 4, 20, 0, 100, 300);
    ASSERT_EQ(surface.Painted().size(), 4U);
    const FilledRectangle& second = surface.Painted()[1];
    EXPECT_EQ(second.color, Rgb(150, 10, 25));
    EXPECT_EQ(std::vector<float>({second.x1, second.y1, second.x2, second.y2}),
              std::vector<float>({150, 20, 200, 500}));
    surface.Clear();
    BackgroundHorizontalGradient(surface, Rgb(200, 0, 0), 0, 256);
    EXPECT_EQ(surface.Painted()[1].color, Rgb(200, 0, 0)) << "rounded towards zero";
}

TEST_F(Windows, PreviewTakesItsColors) {
    frmColor& colors = Open_Colors();
    for (std::size_t i = 0; i < ElementCount; ++i) {
        for (std::size_t box = 0; box < 2; ++box)
            colors.pic[i][box].Set(Rgb(static_cast<int>(i), static_cast<int>(box), 99));
    }
    colors.MakePreview();
    const Preview& p = colors.preview;
    const auto at = [](Element element, int box) { return Rgb(static_cast<int>(element), box, 99); };
    for (const Shape& shape : p.shpPFLine) {
        EXPECT_EQ(shape.fill, at(Element::PFLINE, 1));
        EXPECT_EQ(shape.border, at(Element::PFLINE, 0));
    }
    EXPECT_EQ(p.lblT_PF.color, at(Element::T_PF, 1));
    EXPECT_EQ(p.shpBack1.fill, at(Element::Back1, 0));
    EXPECT_EQ(p.lblT_Year.color, at(Element::T_Year, 1));
    EXPECT_EQ(p.lblT_Play.color, at(Element::T_Play, 1));
    EXPECT_EQ(p.lblT_ESRB.color, at(Element::T_ESRB, 1));
    EXPECT_EQ(p.lblT_VCTitle.color, at(Element::T_VCTitle, 1));
    EXPECT_EQ(p.shpBackMask2.fill, at(Element::BackMask2, 1));
    EXPECT_EQ(p.shpVcPic.border, at(Element::VCPic, 0));
    EXPECT_EQ(p.shpVcPic.fill, at(Element::VCPic, 1));
    for (int row = 0; row < 4; ++row) EXPECT_EQ(p.lblBack1[static_cast<std::size_t>(row)].color, Rgb(4 + row, 1, 99));
    ASSERT_EQ(p.shpYearLine.Painted().size(), 256U);
    EXPECT_EQ(p.shpYearLine.Painted()[0].color, at(Element::YearLine, 1));
    EXPECT_EQ(p.shpPlayLine.Painted()[0].color, at(Element::PlayLine, 1));
    EXPECT_FLOAT_EQ(p.shpPlayLine.Painted()[255].x2, 3045);
    ASSERT_EQ(p.surface.Painted().size(), 256U) << "an old fade is painted over, not kept";
    const FilledRectangle& first = p.surface.Painted()[0];
    EXPECT_EQ(first.color, at(Element::Back1, 0));
    EXPECT_EQ(std::vector<float>({first.x1, first.y1, first.x2}), std::vector<float>({360, 6360, 11150}));
    EXPECT_NEAR(p.surface.Painted()[255].y2, 7575, 0.1);
}

TEST_F(Windows, PreviewShowsTheTexts) {
    main.info.txtName.Set(u"One^Two");
    BrlytData = Layout_With({Box("T_Year_GER", u"Erschienen^1"), Box("T_Play_ENG", u"Players: 1"),
                             Box("T_Play", u"a^b"), Box("T_ESRB_ENG", u"x^y")});
    main.info.cmbRegion[GameInfo::year].Select(1);
    frmColor& colors = Open_Colors();
    const Preview& p = colors.preview;
    EXPECT_EQ(p.lblT_VCTitle.text, u"One\r\nTwo");
    EXPECT_EQ(p.lblT_Year.text, u"Erschienen^1");
    EXPECT_EQ(p.lblT_ESRB.text, u"x\r\ny");
    EXPECT_EQ(p.lblT_Play.text, u"Players: 1");
    EXPECT_EQ(p.lblT_Play.area.top, 4425);
    main.info.txtPlayers.Set(u"2");
    main.info.cmbRegion[GameInfo::players].Select(7);
    main.info.txtPlayers.Set(u"2");
    main.info.txtName.Set(u"");
    colors.MakePreview();
    EXPECT_EQ(p.lblT_Play.text, u"a\r\nb");
    EXPECT_EQ(p.lblT_Play.area.top, 4005);
    EXPECT_EQ(p.lblT_VCTitle.text, u"One\r\nTwo") << "an empty field keeps the text shown";
}

TEST_F(Windows, PreviewMakesRoomForTheConsole) {
    main.info.txtSystem.Set(u"AB");
    frmColor& colors = Open_Colors();
    const Preview& p = colors.preview;
    const float width = 2 * 14.25F * 20;
    EXPECT_FLOAT_EQ(p.lblT_PF.area.left, 10815 - width);
    EXPECT_FLOAT_EQ(p.lblT_PF.area.width, width);
    EXPECT_FLOAT_EQ(p.shpPFLine[1].area.left, 10815 - width - 525);
    EXPECT_FLOAT_EQ(p.shpPFLine[1].area.Right(), 11150);
    desktop.code_page_lacks = u"B";
    colors.MakePreview();
    EXPECT_FLOAT_EQ(p.lblT_PF.area.left, 10815 - 2.5F * width);
    EXPECT_FLOAT_EQ(p.lblT_PF.area.width, 2.5F * width);
    EXPECT_EQ(p.lblT_PF.text, u"AB");
}

TEST_F(Windows, TextEditorShowsAndSetsAnyBox) {
    const std::string raw = Box(std::string("caf\xE9", 4), u"x");
    BrlytData = Layout_With({Box("T_PF", u"S"), Box("T_Year", u"11"), raw, Box("T_Year_ENG", u"22222"),
                             Box("T_VCTitle_ENG", u"name"), Box("T_PF", u"longer")});
    frmHC& editor = Open_Editor();
    EXPECT_FALSE(main.form.Enabled());
    EXPECT_EQ(editor.cmbHC.Entries(), (std::vector<std::u16string>{u"T_PF", u"T_Year", u"caf\u00E9", u"T_Year_ENG",
                                                                   u"T_VCTitle_ENG", u"T_PF"}));
    EXPECT_EQ(editor.txtHC.Text(), u"longer") << "of two with the name the last is read";
    editor.cmbHC.Pick(2);
    EXPECT_EQ(editor.txtHC.Text(), u"x");
    editor.txtHC.Set(u"a^b");
    editor.cmdSet_Click();
    EXPECT_EQ(Read_Box(u"caf\u00E9"), u"a^b");
    editor.cmbHC.Pick(1);
    editor.txtHC.Set(u"1999");
    editor.cmdSet_Click();
    EXPECT_EQ(Read_Box(u"T_Year_ENG"), u"1999") << "the last name that begins with it is written";
    const std::string before = BrlytData;
    editor.txtHC.Set(u"");
    editor.cmdSet_Click();
    EXPECT_EQ(BrlytData, before);
    main.Close_Text_Editor();
    EXPECT_TRUE(main.form.Enabled());
    EXPECT_EQ(main.info.txtName.Text(), u"name");
    EXPECT_EQ(main.info.txtYear.Text(), u"1999");
    EXPECT_EQ(main.info.txtSystem.Text(), u"longer");
}

TEST_F(Windows, TextEditorWithoutLayoutDoesNothing) {
    main.txtSrc.Set(u"");
    frmHC& editor = Open_Editor();
    EXPECT_EQ(editor.cmbHC.Count(), 0);
    editor.txtHC.Set(u"x");
    editor.cmdSet_Click();
    EXPECT_EQ(BrlytData, "");
    main.Close_Text_Editor();
}

TEST_F(Windows, StatusTellsWhatIsLoadedAndChanged) {
    EXPECT_EQ(main.lblLoaded.Caption(),
              u"banner.brlyt  |  ENG GER FRA ITA SPA NED JPN  |  10876 bytes  |  texts as in the file");
    main.info.txtESRB.Set(u"T");
    main.cmdSet_Click(2);
    EXPECT_EQ(main.lblLastCommand.Caption(), u"ESRB Rating: 1 text changed: T_ESRB_ENG");
    EXPECT_TRUE(main.Has_Unsaved_Changes());
    EXPECT_TRUE(main.May_Close());
    EXPECT_NE(desktop.question, u"");
    desktop.confirms = false;
    EXPECT_FALSE(main.May_Close());
    EXPECT_TRUE(main.lblLoaded.Caption().ends_with(u"texts not saved"));
    main.cmdSet_Click(2);
    EXPECT_EQ(main.lblLastCommand.Caption(), u"ESRB Rating: nothing changed");
    main.cmdSave_Click();
    EXPECT_FALSE(main.Has_Unsaved_Changes());
    EXPECT_TRUE(main.May_Close());
    EXPECT_EQ(main.lblLastCommand.Caption(), u"Saved");
    frmHC& editor = Open_Editor();
    editor.txtHC.Set(u"new");
    editor.cmdSet_Click();
    EXPECT_EQ(main.lblLastCommand.Caption(), u"Text editor: 1 text changed: T_PF");
    EXPECT_TRUE(main.lblLoaded.Caption().ends_with(u"texts not saved"));
    main.Close_Text_Editor();
    main.txtPad.Set(u"x");
    main.cmdSave_Click();
    EXPECT_EQ(main.lblLastCommand.Caption(), u"Not saved");
    folder.Write("text.txt", "neither a layout nor short");
    main.txtSrc.Set(u"\\text.txt");
    EXPECT_TRUE(main.lblLoaded.Caption().starts_with(u"text.txt  |  not a layout file"));
    main.txtSrc.Set(u"x");
    EXPECT_EQ(main.lblLoaded.Caption(), u"No layout loaded");
    EXPECT_EQ(main.lblLastCommand.Caption(), u"");
}

}  // namespace
