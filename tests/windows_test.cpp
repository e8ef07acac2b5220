// The logic of the three windows, worked with as a person does, without a toolkit.
#include <gtest/gtest.h>

#include <sstream>

#include "generate/banners.h"
#include "generate/layout_builder.h"
#include "layout/file_length.h"
#include "layout/text_box.h"
#include "mainwindow/batch_run.h"
#include "mainwindow/form1.h"
#include "noting_desktop.h"
#include "support.h"

using namespace bannersmith;

namespace {

using namespace std::string_literals;

std::string Shown(std::u16string_view text) { return Line_Of(text); }
std::string Shown(const TextBox& box) { return Shown(box.Text()); }
std::string Shown(const DropDownList& list) { return Shown(list.Selected()); }
std::string Shown(const Label& label) { return Shown(label.Caption()); }
std::string Shown(Color color) { return To_Utf8(VbColor2RGB(color)); }

/// A layout of text boxes, "NAME TEXT" each.
std::string Boxes(const std::vector<std::u16string>& boxes) {
    std::vector<std::string> sections;
    for (const std::u16string& box : boxes) {
        const std::size_t blank = box.find(u' ');
        sections.push_back(Text_Box_Section(Clean_Text_Box(*To_Bytes(box.substr(0, blank)), box.substr(blank + 1), 0)));
    }
    sections.push_back(Empty_Section("gre1"));
    return Layout_File(sections);
}

class Windows : public testing::Test {
 protected:
    Windows() {
        home.Write("cfgs/vcinfopath.cfg", "\\b/arc/blyt/x\r\n");
        home.Write("b/arc/blyt/x", Seven_Language_Banner());
        home.Write("b/arc/timg/my_Back_x.tpl", "old");
        home.Write("logos/Comet.tpl", "comet");
        for (std::size_t i : {1, 0}) {
            const NamedScheme scheme = Shipped_Schemes()[i];
            home.Write("schemes/" + To_Utf8(scheme.name) + ".vccs", Format_Scheme(scheme.scheme));
        }
    }

    /// Starts with a layout of these boxes.
    void Start(const std::vector<std::u16string>& boxes) {
        home.Write("b/arc/blyt/x", Boxes(boxes));
        ASSERT_TRUE(main.Form_Load());
    }
    /// What was said since the last call, the program's folder being "HOME".
    std::string Said() {
        return To_Utf8(Replace_All(From_Utf8(std::exchange(desktop.said, {})), home.Text(), u"HOME"));
    }
    std::string Fields() const {
        std::string line;
        for (const TextBox* box : {&info.txtName, &info.txtYear, &info.txtPlayers, &info.txtESRB, &info.txtSystem}) {
            line += Shown(*box) + "|";
        }
        for (const DropDownList& list : info.cmbRegion) line += Shown(list) + " ";
        return line;
    }
    std::string Box(std::string_view name) const { return Shown(Get_Text(main.BrlytData, name)); }
    std::string Told() const { return Shown(main.lblLastCommand); }
    static std::string Entries(const DropDownList& list) {
        std::string line;
        for (const std::u16string& entry : list.Entries()) line += Shown(entry) + "|";
        return line;
    }

    TempFolder home;
    NotingDesktop desktop;
    Form1 main{{home.Text(), u""}, desktop};
    GameInfo& info = main.info;
};

TEST_F(Windows, StartWithWhatTheConfigurationNames) {
    home.Write("cfgs/vcinfopath.cfg", "");
    EXPECT_FALSE(main.Form_Load());
    EXPECT_EQ(Said(), "{HOME\\cfgs\\vcinfopath.cfg: Holds no line; write one with any path into it}");
    home.Write("cfgs/vcinfopath.cfg", "\\b/arc/blyt/x\nsecond");
    EXPECT_TRUE(main.Form_Load() && main.form.Visible());
    EXPECT_EQ(home.Read("cfgs/vcinfopath.cfg"), "\\b/arc/blyt/x\r\n");
    EXPECT_EQ(Shown(main.txtSrc) + Shown(main.txtPad), "\\b/arc/blyt/x12000");
    EXPECT_EQ(Fields(), "Starlight Courier|1991|2|E|SUPER 16|ENG ENG ENG ENG ");
    EXPECT_EQ(Entries(main.cmbFileList) + Entries(main.cmbLogo) + Entries(main.cmbForce),
              "Current Brlyt|Aurora|Cherry Cola|Current Logo|Comet.tpl|ENG|GER|FRA|ITA|SPA|NED|JPN|NONE|");
    EXPECT_EQ(Shown(main.cmbFileList) + Shown(main.cmbLogo) + Shown(main.cmbForce), "Current BrlytCurrent LogoNONE");
    EXPECT_EQ(Shown(main.lblLoaded), "x  |  texts as in the file  |  ENG GER FRA ITA SPA NED JPN  |  10876 bytes");
}

TEST_F(Windows, TakePathsAsTheyAreTyped) {
    Start({u"T_VCTitle_ENG One"});
    home.Write("text", "no layout, but long enough");
    home.Write("program", "MZ");
    home.Write("x\r", Boxes({u"T_PF P"}));
    struct Row {
        const char16_t* path;
        const char *name, *loaded, *stored;
    };
    for (const Row& row :
         {Row{u"\\b/arc/blyt/x", "One", "x  |  texts as in the file  |  ENG  |  148 bytes", "\\b/arc/blyt/x"},
          {u"\\b/arc/blyt/", "One", "No layout loaded", "\\b/arc/blyt/"},
          {u"\\b/arc/blyt", "One", "No layout loaded", "\\b/arc/blyt/"},
          {u"\\program", "One", "No layout loaded: Is a program, not a layout file", "\\program"},
          {u"\\x\r", "", "x\r  |  texts as in the file  |  no titles  |  144 bytes", "\\program"},
          {u"\\text", "", "text  |  texts as in the file  |  not a layout file  |  26 bytes", "\\text"}}) {
        main.txtSrc.Set(row.path);
        EXPECT_EQ(Shown(info.txtName), row.name) << Shown(row.path);
        EXPECT_EQ(Shown(main.lblLoaded), row.loaded) << Shown(row.path);
        EXPECT_EQ(home.Read("cfgs/vcinfopath.cfg"), row.stored + "\r\n"s) << Shown(row.path);
    }
    for (const auto& [file, taken] : {std::pair{home.Text() + u"\\d\\e/f", "\\d\\e/f"},
                                      {u"/dev/null", "/dev/null"},
                                      {home.Text() + u"/a" + home.Text() + u"/b", "\\a\\b"},
                                      {u"", "\\a\\b"}}) {
        desktop.answer = file;
        main.cmdFileBrowse_Click();
        EXPECT_EQ(Shown(main.txtSrc), taken);
    }
    EXPECT_TRUE(Said().ends_with("|Brlyt Files (*.brlyt)|*.brlyt|All Files (*.*)|*.*>"));
}

TEST_F(Windows, ShowTheFirstValueOfEachField) {
    using Texts = std::vector<std::u16string>;
    const std::pair<Texts, std::string> rows[] = {
        {{}, "  no titles  |||||NONE NONE NONE NONE "},
        {{u"T_VCTitle_KOR Korea", u"T_Play_KOR x^1-4x"}, "  KOR  Korea||4|||KOR NONE KOR NONE "},
        {{u"T_VCTitle N", u"T_Year Publié en 1990", u"T_Play Joueurs: 1-3", u"T_ESRB Classement ESRB: T"},
         "  one text for all languages  N|1990|3|T||NONE NONE NONE NONE "},
        {{u"T_PF SYS", u"T_VCTitle_JPN J", u"T_VCTitle_GER G", u"T_Year_ITA Pubblicato: 1990", u"T_Play_ENG novalue",
          u"T_Play_FRA Joueurs: 1-3", u"T_ESRB_NED ESRB Rating: T", u"T_Year Erschienen: 1"},
         "  GER JPN  G|1990|3|T|SYS|GER ITA FRA NED "}};
    for (const auto& [boxes, shown] : rows) {
        main.txtSrc.Set(u"");
        Start(boxes);
        EXPECT_EQ(Shown(Piece_Of(main.lblLoaded.Caption(), u'|', 2)) + Fields(), shown);
    }
    for (DropDownList& list : info.cmbRegion) list.Pick(4);  // a language that has nothing
    EXPECT_EQ(Fields(), "|1990|||SYS|SPA SPA SPA SPA ") << "only a year stays";
    EXPECT_EQ(info.cmbRegion[0].Count(), 8) << "without Korean, which this layout does not have";
    info.txtName.Set(u"typed");
    for (const int index : {4, -1}) main.cmbRegion_click(static_cast<std::int16_t>(index));
    info.cmbRegion[0].Pick(-1);
    EXPECT_EQ(Shown(info.txtName), "typed") << "no selection, no value";
    info.cmbRegion[0].Pick(1);
    EXPECT_EQ(Shown(info.txtName), "G");
}

TEST_F(Windows, TellWhatACommandChanged) {
    Start({u"T_VCTitle_ENG E", u"T_VCTitle_GER G", u"T_Year_GER Erschienen: 1", u"T_ESRB_FRA Classement ESRB: E",
           u"T_Play_ENG 1", u"T_PF P"});
    info.cmbRegion[0].Pick(1);
    info.txtName.Set(u"Neu");
    info.txtYear.Set(u"2001");
    info.txtPlayers.Set(u"3");
    info.txtESRB.Set(u"T");
    info.txtSystem.Set(u"Q");
    std::string told;
    for (const int set : {0, 1, 2, 2}) main.cmdSet_Click(static_cast<std::int16_t>(set)), told += Told() + ", ";
    for (const int set : {0, 1, 2, 3, 4}) main.cmdSetAll_Click(static_cast<std::int16_t>(set)), told += Told() + ", ";
    info.txtName.Set(u"");
    main.cmdSet_Click(0);
    EXPECT_EQ(told + Told(),
              "Name: 1 text changed: T_VCTitle_GER, Year: 1 text changed: T_Year_GER, ESRB Rating: 1 text changed: "
              "T_ESRB_FRA, ESRB Rating: nothing changed, Name: 1 text changed: T_VCTitle_ENG, Year: nothing changed, "
              "Players: 1 text changed: T_Play_ENG, System: 1 text changed: T_PF, ESRB Rating: nothing changed, "
              "Name: nothing changed");
    EXPECT_EQ(Box("T_VCTitle_GER") + Box("T_Year_GER") + Box("T_ESRB_FRA") + Box("T_Play_ENG") + Box("T_PF"),
              "NeuErschienen: 2001Classement ESRB: TPlayers: 1-3Q");
    EXPECT_EQ(Shown(main.lblLoaded), "x  |  texts not saved  |  ENG GER  |  844 bytes");
}

TEST_F(Windows, SaveWhatIsChosen) {
    Start({u"T_VCTitle_GER G", u"T_Year_GER 1990", u"T_PLAY_GER x"});
    const std::size_t size = main.BrlytData.size();
    main.cmbLogo.Pick(1);
    main.cmbForce.Pick(0);
    main.txtPad.Set(u"+10");
    info.txtYear.Set(u"typed and not set");
    home.Write("cfgs/vcinfopath.cfg", "spoilt");
    main.cmdSave_Click();
    EXPECT_EQ(Said(), "[File Successfully Saved!]");
    EXPECT_EQ(Told() + Fields(), "SavedG|1990||||GER GER NONE NONE ");
    EXPECT_EQ(home.Read("b/arc/timg/my_Back_x.tpl"), "comet");
    EXPECT_EQ(home.Read("cfgs/vcinfopath.cfg"), "\\b/arc/blyt/x\r\n");
    EXPECT_EQ(home.Read("b/arc/blyt/x").size(), size + 10);
    EXPECT_EQ(Shown(Get_Text(home.Read("b/arc/blyt/x"), "T_PLAY_ENG")), "x");
    EXPECT_EQ(main.BrlytData.size(), size);
    EXPECT_EQ(Shown(main.cmbLogo) + Shown(main.cmbForce), "Comet.tplENG");

    std::filesystem::remove(home.Path() / "b/arc/timg/my_Back_x.tpl");
    std::string told;
    for (const int logo : {1, 0}) main.cmbLogo.Pick(logo), main.cmdSave_Click(), told += Told() + ".";
    EXPECT_EQ(told, "Saved; the banner has no logo texture to replace.Saved.");
}

TEST_F(Windows, LeaveEverythingAsItWasWhenASaveFails) {
    const auto file = home.Path() / "b/arc/blyt/x";
    Start({u"T_VCTitle_GER G"});
    main.cmbFileList.Pick(1);
    main.cmbLogo.Pick(1);
    info.txtName.Set(u"New");
    main.cmdSetAll_Click(0);
    const std::string memory = main.BrlytData, disk = home.Read("b/arc/blyt/x");
    const auto fails = [&](const std::string& how) {
        main.cmdSave_Click();
        EXPECT_EQ(Said(), how);
        EXPECT_TRUE(main.BrlytData == memory);
        EXPECT_EQ(Told() + Shown(main.lblLoaded), "Not savedx  |  texts not saved  |  GER  |  148 bytes");
        EXPECT_EQ(home.Read("b/arc/timg/my_Back_x.tpl"), "old");
    };
    main.txtPad.Set(u"12k");
    fails("{Padding \"12k\": Not a whole number up to 268435456, with or without + in front of it}");
    main.txtPad.Set(u"");
    for (const std::string name : {"schemes/Aurora.vccs", "logos/Comet.tpl"}) {
        std::filesystem::rename(home.Path() / name, home.Path() / "away");
        fails("{HOME\\" + Shown(Replace_All(From_Utf8(name), u"/", u"\\")) + ": No such file or directory}");
        std::filesystem::rename(home.Path() / "away", home.Path() / name);
    }
    EXPECT_EQ(home.Read("b/arc/blyt/x"), disk);
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    fails("{HOME\\b/arc/blyt/x: Is a directory}");
    std::filesystem::remove(file);
    home.Write("short", "RLYT1234567");
    for (const auto& [path, reason] : {std::pair{u"\\none", "{\\none: No such file or directory}"},
                                       {u"\\short", "{\\short: Too short to be a layout}"},
                                       {u"", "{File: Names no layout file}"}}) {
        main.txtSrc.Set(path);
        main.cmdSave_Click();
        EXPECT_EQ(Said(), reason);
    }
    EXPECT_EQ(home.Read("short") + home.Read("none"), "RLYT1234567(none)");
}

TEST_F(Windows, AskBeforeSomethingIsLost) {
    Start({u"T_VCTitle_ENG One", u"T_PF X"});
    EXPECT_TRUE(main.May_Close());
    info.txtSystem.Set(u"New");
    main.cmdSetAll_Click(3);
    EXPECT_FALSE(main.May_Close());
    EXPECT_EQ(Said(), "<question: \\b/arc/blyt/x does not have the latest changes. Close without saving?>");
    desktop.answer = u"/dev/null";
    main.cmdFileBrowse_Click();
    EXPECT_TRUE(Said().ends_with(
        "<question: \\b/arc/blyt/x does not have the latest changes. Take another file without saving?>"));
    EXPECT_EQ(Shown(main.txtSrc), "\\b/arc/blyt/x");
    desktop.answer = u"yes";
    EXPECT_TRUE(main.May_Close());
    main.cmdHC_Click();
    EXPECT_FALSE(main.May_Close()) << "it is behind another window";
    main.Close_Text_Editor();
    main.Take_File(u"\\b/arc/blyt/x");
    EXPECT_EQ(Shown(info.txtSystem), "X") << "the same file once more is loaded anew";

    // Each save asks, without an answer and with one.
    const auto asks = [&](const std::string& question, const std::string& kept) {
        const std::string name = Shown(main.txtSrc).substr(1);
        for (const char16_t* answer : {u"", u"yes"}) {
            Said();
            desktop.answer = answer;
            main.cmdSave_Click();
            const bool saved = Told() != "Not saved";
            EXPECT_EQ(Said(), "<question: " + question + ">" + (saved ? "[File Successfully Saved!]" : ""));
            EXPECT_EQ(saved, *answer == u'y');
            EXPECT_EQ(home.Read(name) == kept, !saved);
        }
    };
    home.Write("b/arc/blyt/x", "other");
    asks("\\b/arc/blyt/x was changed by another program since it was loaded. Save over it?", "other");
    std::filesystem::remove(home.Path() / "b/arc/blyt/x");
    main.cmdSave_Click();
    EXPECT_EQ(Said(), "[File Successfully Saved!]") << "nothing is lost where no file is";
    EXPECT_EQ(Box("T_VCTitle_ENG"), "One");
    home.Write("two", German_Japanese_Banner());
    main.txtSrc.Set(u"\\two");
    main.cmbForce.Select(0);
    asks("\\two: region force leaves the group GER. Force the region all the same?", German_Japanese_Banner());
    home.Write("named", "rLYT123456789012");
    main.txtSrc.Set(u"\\named");
    main.txtPad.Set(u"");
    asks("\\named is not a layout file. Save it all the same?", "rLYT123456789012");
    EXPECT_EQ(home.Read("named"), "rLYT1234\0\0\0\x10"s + "9012");
    main.txtPad.Set(u"much");
    main.cmdSave_Click();
    EXPECT_EQ(Said().find("question"), std::string::npos) << "what cannot be done is not asked about";
}

TEST_F(Windows, EditAnyTextByItsName) {
    Start({u"T_PF S", u"T_Year 11", u"caf\u00E9 x", u"T_Year_ENG 22222", u"T_VCTitle_ENG name", u"T_PF longer",
           u"T_Play_ENG Players: 1", u"T_ESRB_ENG ESRB Rating: E"});
    main.cmdHC_Click();
    frmHC& editor = *main.TextEditor;
    EXPECT_FALSE(main.form.Enabled());
    EXPECT_EQ(Entries(editor.cmbHC), "T_PF|T_Year|café|T_Year_ENG|T_VCTitle_ENG|T_PF|T_Play_ENG|T_ESRB_ENG|");
    EXPECT_EQ(Shown(editor.cmbHC) + Shown(editor.txtHC), "T_PFlonger");
    std::string told;
    for (const auto& [entry, text] :
         {std::pair{2, u"a^b"}, {1, u"1999"}, {1, u""}, {0, u"New"}, {4, u"renamed"}, {6, u"1-4"}, {7, u"x: T"}}) {
        editor.cmbHC.Pick(entry);
        told += Shown(editor.txtHC) + " - ";
        editor.txtHC.Set(text);
        editor.cmdSet_Click();
        told += Told() + "\n";
    }
    EXPECT_EQ(told, R"(x - Text editor: other texts changed
11 - Text editor: 1 text changed: T_Year_ENG
11 - Text editor: nothing changed
longer - Text editor: 1 text changed: T_PF
name - Text editor: 1 text changed: T_VCTitle_ENG
Players: 1 - Text editor: 1 text changed: T_Play_ENG
ESRB Rating: E - Text editor: 1 text changed: T_ESRB_ENG
)");
    EXPECT_EQ(Fields(), "name|2222|1|E|longer|ENG ENG ENG ENG ");
    main.Close_Text_Editor();
    EXPECT_TRUE(main.form.Enabled());
    EXPECT_EQ(Fields(), "renamed|1999||T|New|ENG ENG ENG ENG ");
    main.txtSrc.Set(u"");
    main.cmdHC_Click();
    main.TextEditor->txtHC.Set(u"x");
    main.TextEditor->cmdSet_Click();
    EXPECT_EQ(main.BrlytData + Told(), "");
}

/// What a preview shows, a line each; a fade by its first, second and last band.
std::ostream& operator<<(std::ostream& out, const Area& at) {
    return out << " " << at.left << " " << at.top << " " << at.width << " " << at.height;
}
std::ostream& operator<<(std::ostream& out, const Shape& shape) {
    return out << Shown(shape.fill) << " in " << Shown(shape.border) << (shape.rounded ? " rounded" : "") << shape.area
               << " " << shape.thickness << "\n";
}
std::ostream& operator<<(std::ostream& out, const DrawnLabel& label) {
    return out << Shown(label.color) << " " << Shown(label.text) << " " << Shown(label.font.family) << " "
               << label.font.points << " " << static_cast<int>(label.alignment) << label.wraps << label.area << "\n";
}
std::ostream& operator<<(std::ostream& out, const Surface& surface) {
    const auto& bands = surface.Painted();
    out << bands.size();
    for (const std::size_t i : {std::size_t{0}, std::size_t{1}, bands.size() - 1}) {
        if (i >= bands.size()) continue;
        out << " " << Shown(bands[i].color) << Area{bands[i].x1, bands[i].y1, bands[i].x2, bands[i].y2};
    }
    return out << "\n";
}
std::string Shown(const Preview& preview) {
    std::ostringstream out;
    out << "\n" << preview.Shape1 << preview.shpBack1;
    for (const Shape& line : preview.shpPFLine) out << line;
    out << preview.shpVcPic << preview.shpBackMask2 << preview.lblT_PF << preview.lblT_Year << preview.lblT_Play
        << preview.lblT_VCTitle << preview.lblT_ESRB;
    for (const DrawnLabel& logo : preview.lblBack1) out << logo;
    out << preview.shpYearLine << preview.shpPlayLine << preview.surface << Preview::YearLineArea
        << Preview::PlayLineArea << "\n";
    return out.str();
}

class Colors : public Windows {
 protected:
    /// Opens the colour window over the sample with seven languages.
    void Open() {
        ASSERT_TRUE(main.Form_Load());
        main.cmdEditColor_Click();
    }
    frmColor& Window() { return *main.ColorWindow; }
    /// The colours of an element's two boxes.
    std::string Pair(std::u16string_view key) {
        const auto& boxes = Window().pic[Element_Index(key)];
        return Shown(boxes[0].Value()) + " " + Shown(boxes[1].Value());
    }
    /// A scheme of 114 numbers in sequence.
    void Make_Scheme(const std::string& name, int first, int step) const {
        std::string numbers;
        for (int i = 0; i < 114; ++i) numbers += std::to_string(first + step * i) + " ";
        home.Write("schemes/" + name + ".vccs", numbers);
    }
    std::string Swatch() {
        return Shown(Window().txtR) + " " + Shown(Window().txtG) + " " + Shown(Window().txtB) + " " +
               Shown(Window().picClr.Value()) + " " + Shown(Window().lblEdit);
    }
};

TEST_F(Colors, ComeFromTheLayoutOrAScheme) {
    Open();
    EXPECT_FALSE(main.form.Enabled());
    EXPECT_EQ(Shown(Window().txtBannerPath) + Shown(Window().cmbFileList), "\\b/arc/blyt/xCurrent Brlyt");
    EXPECT_EQ(Swatch(), "0 0 0 224|224|224 ");
    EXPECT_EQ(Pair(u"PFLINE") + Pair(u"T_VCTitle"), "53|214|168 14|59|743|8|13 143|240|207");
    Window().cmbFileList.Pick(2);
    EXPECT_EQ(Pair(u"PFLINE") + Pair(u"BackMask2"), "217|71|90 122|15|2822|4|6 58|10|16");
    main.Close_Color_Window();
    EXPECT_TRUE(main.form.Enabled());
    EXPECT_EQ(Shown(main.cmbFileList), "Cherry Cola");
    main.cmdEditColor_Click();
    EXPECT_EQ(Shown(Window().cmbFileList) + Pair(u"PFLINE"), "Cherry Cola217|71|90 122|15|28");

    // A text's colours are those of the language shown, or else those for all; what is missing stays.
    std::vector<Material> materials;
    for (const char* name :
         {"T_VCTitle_", "T_VCTitle_GER", "T_VCTitle", "T_Play_FRA", "T_Year", "T_ESRB_NONE", "Shade"}) {
        const auto red = static_cast<std::int16_t>(materials.size());
        materials.push_back({name, {red, -1, 2, 9}, {static_cast<std::int16_t>(256 + red), 3, 4, 9}, -1});
    }
    home.Write("other", Layout_File({Material_Section(materials)}));
    const int picks[] = {1, 5, 2, 3};
    for (std::size_t i = 0; i < 4; ++i) info.cmbRegion[i].Pick(picks[i]);
    Window().txtBannerPath.Set(u"\\other");
    Window().cmdGetScheme_Click();
    EXPECT_EQ(Pair(u"T_VCTitle") + "," + Pair(u"T_Play") + "," + Pair(u"T_Year") + "," + Pair(u"T_ESRB") + "," +
                  Pair(u"Shade"),
              "1|255|2 1|3|4,3|255|2 3|3|4,4|255|2 4|3|4,22|4|6 244|185|169,6|255|2 6|3|4");
    info.cmbRegion[0].Pick(6);
    info.cmbRegion[3].Pick(7);
    Window().cmdGetScheme_Click();
    EXPECT_EQ(Pair(u"T_VCTitle") + Pair(u"T_ESRB"), "2|255|2 2|3|45|255|2 5|3|4");
    EXPECT_EQ(Said(), "");
    for (const char16_t* path : {u"\\none", u"\\schemes\\"}) {
        Window().txtBannerPath.Set(path);
        Window().cmdGetScheme_Click();
    }
    EXPECT_EQ(Said(), "[File Not Found!]{HOME\\\\schemes\\: Is a directory}");
    EXPECT_EQ(Box("T_VCTitle_ENG"), "Starlight Courier") << "the layout that is edited is still the same";
}

TEST_F(Colors, AreEditedBoxByBox) {
    Make_Scheme("Black", 0, 0);
    Open();
    Window().cmbFileList.Pick(2);
    Window().pic_Click(u"Back0", 0);
    EXPECT_EQ(Swatch(), "0 0 0 0|0|0 Back0 0") << "although the numbers are the same as before";
    Window().cmbFileList.Pick(1);
    Window().pic_Click(u"T_ESRB", 1);
    EXPECT_EQ(Swatch(), "185 217 230 185|217|230 T_ESRB 1");
    std::string swatches;
    for (const char16_t* red : {u"7", u"300", u"a", u"2.5", u"3.5", u"", u"32767", u"1", u"32768", u"-5", u" 9 ", u"9x",
                                u"nan", u"-32769", u"+-8", u"+8"}) {
        Window().txtR.Set(red);
        swatches += std::to_string(Red_Of(Window().picClr.Value())) + " ";
    }
    EXPECT_EQ(swatches, "7 255 255 2 4 4 255 1 1 0 9 9 9 9 9 8 ");
    Window().cmdColor_Click();
    EXPECT_EQ(Pair(u"T_ESRB"), "3|8|13 8|217|230");
    Window().picClr_Click();
    EXPECT_EQ(Swatch(), "8 217 230 8|217|230 T_ESRB 1") << "no choice, no change";
    desktop.answer = u"a color";
    Window().picClr_Click();
    Window().pic_Click(u"none", 0);
    for (const int index : {2, -1}) Window().pic_Click(u"Shade", static_cast<std::int16_t>(index));
    EXPECT_EQ(Swatch(), "1 2 3 1|2|3 T_ESRB 1");
    Window().pic_Click(u"PFLINE", 0);
    Window().txtG.Set(u"a");
    Window().txtB.Set(u"7");
    EXPECT_EQ(Swatch(), "53 a 7 53|214|168 PFLINE 0");
    Window().txtG.Set(u"300");
    EXPECT_EQ(Shown(Window().picClr.Value()), "53|255|7");
}

TEST_F(Colors, AreSavedAsASchemeThatBothListsHave) {
    const auto save_as = [&](const char16_t* name) {
        desktop.answer = name;
        Window().cmdSaveScheme_Click();
        return Said();
    };
    std::filesystem::rename(home.Path() / "schemes/Aurora.vccs", home.Path() / "schemes/Aurora.VCCS");
    Open();
    EXPECT_EQ(save_as(u""), "<Save Scheme: Type a Name for the New Scheme>");
    EXPECT_EQ(save_as(u"Aurora"), "<Save Scheme: Type a Name for the New Scheme>[Color Scheme saved as Aurora]");
    EXPECT_EQ(home.Read("schemes/Aurora.vccs"), "(none)") << "the name that is there is in other letters";
    save_as(u"Bright");
    EXPECT_EQ(Entries(Window().cmbFileList) + Entries(main.cmbFileList),
              "Current Brlyt|Aurora|Bright|Cherry Cola|Current Brlyt|Aurora|Bright|Cherry Cola|");
    EXPECT_EQ(Shown(Window().cmbFileList) + Shown(main.cmbFileList), "");
    EXPECT_TRUE(home.Read("schemes/Bright.vccs")
                    .starts_with(" 53  214  168  14  59  74 \r\n 33  136  121  232  255  246 \r\n"));
    EXPECT_EQ(home.Read("schemes/Bright.vccs"), home.Read("schemes/Aurora.VCCS"));
    main.Close_Color_Window();
    EXPECT_EQ(Shown(main.cmbFileList), "");
    main.cmdEditColor_Click();
    EXPECT_EQ(Shown(Window().cmbFileList) + Pair(u"PFLINE"), "224|224|224 224|224|224");
    home.Write("schemes/Bright.vccs", "broken");
    Window().cmbFileList.Pick(2);
    EXPECT_EQ(Said() + Pair(u"PFLINE"),
              "{HOME\\schemes\\Bright.vccs: PFLINE: \"broken\" is not a whole number}224|224|224 224|224|224");
    for (const char16_t* name : {u"a/b", u"a\\b", u".hidden"}) {
        EXPECT_TRUE(
            save_as(name).ends_with("{" + Shown(name) + ": A scheme's name cannot begin with . or hold \\ or /}"));
    }
    // A scheme may have the name of the first entry; its place tells them apart.
    Make_Scheme("Current Brlyt", 100, 1);
    Window().RefreshColorList();
    Window().cmbFileList.Pick(4);
    EXPECT_EQ(Shown(Window().cmbFileList) + Pair(u"BackMask2"), "Current Brlyt208|209|210 211|212|213");
    main.Close_Color_Window();
    main.cmdSave_Click();
    main.cmdEditColor_Click();
    Window().cmbFileList.Pick(0);
    EXPECT_EQ(Pair(u"VCPic"), "184|185|186 187|188|189") << "as the layout has it now";
}

TEST_F(Colors, NeedNeitherALayoutNorSchemes) {
    std::filesystem::remove_all(home.Path() / "schemes");
    home.Write("cfgs/vcinfopath.cfg", "\\none\r\n");
    Open();
    Window().cmdColor_Click();
    EXPECT_EQ(Entries(Window().cmbFileList) + Pair(u"Back0"), "Current Brlyt|224|224|224 224|224|224");
    desktop.answer = u"x";
    Window().cmdSaveScheme_Click();
    EXPECT_EQ(Said(),
              "[File Not Found!]<Save Scheme: Type a Name for the New Scheme>{HOME\\schemes\\x.vccs: No such "
              "file or directory}");
}

TEST_F(Colors, AreDrawnInThePreview) {
    Make_Scheme("S", 1, 2);
    Open();
    Window().cmbFileList.Pick(3);
    EXPECT_EQ(Shown(Window().preview), R"(
96|96|96 in 0|0|0 240 2400 11115 300 0
49|51|53 in 0|0|0 360 2640 10815 3735 0
7|9|11 in 1|3|5 480 2640 10575 495 15
7|9|11 in 1|3|5 rounded 8010 2640 3140 855 15
7|9|11 in 1|3|5 375 2655 10755 465 15
175|177|179 in 169|171|173 rounded 4080 4920 3495 2415 60
223|225|227 in 0|0|0 360 7560 10815 2055 0
19|21|23 SUPER 16 Wii NTLG Gothic Regular 14.25 11 8535 3000 2280 390
151|153|155 Released: 1991 Wii NTLG Gothic Regular 18 01 600 3480 3315 495
139|141|143 Players: 1-2 Wii NTLG Gothic Regular 18 01 600 4425 3015 1095
127|129|131 Starlight Courier Wii NTLG Gothic Regular 24 21 360 7440 10815 1365
163|165|167 ESRB Rating: E Wii NTLG Gothic Regular 18 20 360 9120 10785 465
55|57|59 LOGO LOGO LO @Arial Unicode MS 68.25 00 360 7800 10815 1830
67|69|71 LOGO LOGO LO @Arial Unicode MS 68.25 00 480 3120 10845 1830
79|81|83 GO LOGO LOGO @Arial Unicode MS 68.25 00 360 6360 10700 1695
91|93|95 GO LOGO LOGO @Arial Unicode MS 68.25 00 360 4800 10800 1830
256 103|105|107 0 0 11.8945 45 103|105|107 11.8945 0 23.7891 45 50|52|54 3033.11 0 3045 45
256 115|117|119 0 0 11.8945 45 115|117|119 11.8945 0 23.7891 45 50|52|54 3033.11 0 3045 45
256 49|51|53 360 6360 11150 6364.75 49|51|53 360 6364.75 11150 6369.49 210|212|214 360 7570.25 11150 7575
 600 3960 3045 45 600 4920 3045 45
)");
}

TEST_F(Colors, AreDrawnWithTheTextsOfTheMainWindow) {
    const auto texts = [](const Preview& preview) {
        std::ostringstream out;
        for (const DrawnLabel* label :
             {&preview.lblT_PF, &preview.lblT_Year, &preview.lblT_Play, &preview.lblT_VCTitle, &preview.lblT_ESRB}) {
            out << Shown(label->text) << "|";
        }
        out << preview.lblT_PF.area << " " << preview.shpPFLine[1].area.left << " " << preview.lblT_Play.area.top;
        return out.str();
    };
    const Preview before(desktop);
    EXPECT_EQ(texts(before), "Console  |Released:|Players: ?-?|Game Title|| 6240 3000 4590 390 8880 4440");
    EXPECT_EQ(Shown(before.shpPFLine[1].fill) + Shown(before.lblT_PF.color), "255|255|2550|0|0");
    Start({u"T_VCTitle_ENG One^Two", u"T_Year_GER Erschienen^1", u"T_Play_ENG Players: 1", u"T_Play a^b: 1",
           u"T_ESRB_ENG x: ^y", u"T_ESRB neutral: r", u"T_Year 1985", u"T_PF AB"});
    main.cmdEditColor_Click();
    const Preview& preview = Window().preview;
    EXPECT_EQ(texts(preview), "AB|Erschienen^1|Players: 1|One/Two|x: /y| 10245 3000 570 390 9720 4425");
    info.txtName.Set(u"Typed^x");
    info.txtSystem.Set(u"A^B");
    info.cmbRegion[1].Pick(7);
    info.cmbRegion[3].Pick(7);
    Window().cmdColor_Click();
    EXPECT_EQ(texts(preview), "A^B|1985|Players: 1|Typed/x|neutral: r| 9960 3000 855 390 9435 4425");
    info.cmbRegion[1].Pick(4);
    Window().cmdColor_Click();
    info.cmbRegion[2].Pick(7);
    for (TextBox* box : {&info.txtName, &info.txtYear, &info.txtESRB}) box->Set(u"");
    info.txtSystem.Set(u"Aあ");
    Window().cmdColor_Click();
    EXPECT_EQ(texts(preview), "Aあ||a/b: 1|Typed/x|neutral: r| 9390 3000 1425 390 8865 4005")
        << "a name that is not measured gets more room";
}

std::size_t allocations_left = 0;  ///< until one fails that has room for a layout; none does at 0

class BatchRuns : public Windows {
 protected:
    /// What is told, and the status.
    std::string Run(const std::u16string& line) {
        const Process process{home.Text(), Replace_All(line, u"HOME", home.Text())};
        const int status = BatchRun(process, [this](const Failure& told) { desktop.Report(told); }).Run();
        return Said() + std::to_string(status);
    }
};

TEST_F(BatchRuns, TakePathsAndLogosAsTheyAreTyped) {
    const std::string layout = home.Read("b/arc/blyt/x");
    const char* const textures[] = {"b/arc/timg/my_Bac.tpl",    "b/arc/timg/my_Back0.txt", "b/arc/timg/my_Back_x.tpl",
                                    "b/arc/timg/my_Back_y.tpl", "b/arc/timg/my_back0.tpl", "p/2/timg/my_Back.tpl",
                                    "timg/my_Back.tpl"};
    for (const char* name : {"x", "x-y z", "C:/x", "q/x", "p/blyt/l2/blyt/l"}) home.Write(name, layout);
    std::filesystem::create_hard_link(home.Path() / "x", home.Path() / "b/linked");
    home.Write("other.tpl", "other");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(home.Path());
    struct Row {
        std::u16string line;
        std::string told, stored = "\\b/arc/blyt/x/", textures = "-------", config = "\\b/arc/blyt/x\r\n";
    };
    for (const Row& row :
         {Row{u" ", "0"},
          {u"  b/arc/blyt/x  -YEAR 1", "0", "HOME\\b/arc/blyt/x/"},
          {u"\\b\\arc/blyt/x -YEAR 1", "0", "HOME\\b\\arc/blyt/x/"},
          {u"none -LOGO Comet.tpl", "{HOME\\none: No such file or directory}2"},
          {u"-PAD 0", "0", "\\b/arc/blyt/x/", "-------", "\\b/arc/blyt/x"},
          {u"-PAD 0", "{HOME\\cfgs\\vcinfopath.cfg: Names no layout file}2", "/\\x", "-------", "\r\n\\x"},
          {u"-PAD 0", "{\\none: No such file or directory}2", "\\none/x", "-------", "\\none\r\nx"},
          {u"x-y z -PAD +4 -TITLE x",
           "{HOME\\x-y z: Is not edited, because a hyphen ends the path on a command line}"
           "{HOME\\x: Saved, but its other names (hard links) keep the old contents}0",
           "HOME\\x/"},
          {u"C:/x -PAD 0 -TITLE x-y z", "0", "C:/x/"},
          {u"-LOGO Comet.tpl -COLOR none -COLOR none", "{HOME\\schemes\\none.vccs: No such file or directory}1"},
          {u"-TITLE x -LOGO C:\\None.tpl", "{C:\\None.tpl: No such file or directory}1"},
          {u"-LOGO \\other.tpl", "0", "\\b/arc/blyt/x/", "--other----"},
          {u"-LOGO HOME/logos/Comet.tpl", "0", "\\b/arc/blyt/x/", "--comet----"},
          {u"HOME\\b\\arc\\blyt\\x -LOGO Comet.tpl", "0", "HOME\\b\\arc\\blyt\\x/", "--comet----"},
          {u"p/blyt/l2/blyt/l -LOGO Comet.tpl", "0", "HOME\\p/blyt/l2/blyt/l/", "-----comet-"},
          {u"C:\\x -LOGO None.tpl", "0", "C:\\x/"},
          {u"-LOGO Comet.tpl", "0", "q/x/", "------comet", "q/x"},
          {u"-LOGO Comet.tpl", "{x: Names no folder to look for the logo texture beside}1", "x/", "-------",
           "x\r\n"}}) {
        home.Write("cfgs/vcinfopath.cfg", row.config);
        for (const char* name : textures) home.Write(name, "-");
        home.Write("b/arc/blyt/x", layout);
        SCOPED_TRACE(Shown(row.line));
        EXPECT_EQ(Run(row.line), row.told);
        std::string now;
        for (const char* name : textures) now += home.Read(name);
        EXPECT_EQ(now, row.textures);
        EXPECT_EQ(Shown(Replace_All(From_Utf8(home.Read("cfgs/vcinfopath.cfg")), home.Text(), u"HOME")), row.stored);
        if (!row.told.ends_with('0')) { EXPECT_TRUE(home.Read("b/arc/blyt/x") == layout); }
    }
    std::filesystem::current_path(before);
}

TEST_F(BatchRuns, TellWhatWasOdd) {
    const std::string header = "RLYT\xFE\xFF\0\x08\0\0\0\x10\0\x10\0\0"s;
    const std::string warned = "{\\b/arc/blyt/x: Saved, but bannersmith-inspect warns of what was written: ";
    const std::tuple<std::string, const char16_t*, std::string> rows[] = {
        {header.substr(0, 11), u"-PAD 0", "{\\b/arc/blyt/x: Too short to be a layout}2"},
        {header.substr(0, 12), u"-PAD 0", "{\\b/arc/blyt/x: Saved, but it does not begin as a layout file}0"},
        {header, u"-PAD 0", "0"},
        {Boxes({u"T_VCTitle_ENG One"}), u"-TITLE Two", "0"},
        {Boxes({u"T_VCTitle_ENG One"}), u"-COLOR Aurora",
         warned + "no material T_VCTitle_ENG: its colors are written into text box T_VCTitle_ENG}0"},
        {Boxes({u"B 1111", u"B_ENG x"}), u"-H_B_NONE new",
         warned + "text box B: a text for it is written into B_ENG}0"},
        {Boxes({u"B 1111", u"B_ENG x"}), u"-H_B new", "0"}};
    for (const auto& [file, line, told] : rows) {
        home.Write("b/arc/blyt/x", file);
        EXPECT_EQ(Run(line), told);
    }
}

TEST_F(BatchRuns, LeaveWhatOthersWroteAndNothingElse) {
    const auto left = [&](const char* name) { return "b/arc/blyt/.bannersmith-"s + name; };
    for (const char* name : {"1-0", "aB3xY9", "old-1-0"}) home.Write(left(name), "left");
    EXPECT_EQ(Run(u"-PAD 0"), "0");
    EXPECT_EQ(home.Read(left("1-0")) + home.Read(left("aB3xY9")) + home.Read(left("old-1-0")), "(none)(none)left");
    // The hyphen is told between load and save.
    home.Write("b/arc/blyt/x-y", "");
    home.Write("cfgs/vcinfopath.cfg", To_Utf8(home.Text()) + "\\b/arc/blyt/x");
    std::string told;
    const auto change = [&](const Failure& failure) {
        if (told.empty()) home.Write("b/arc/blyt/x", "other");
        told += failure.reason;
    };
    EXPECT_EQ(BatchRun({home.Text(), u"b/arc/blyt/x-y -TITLE One"}, change).Run(), BatchRun::Failed);
    EXPECT_TRUE(told.ends_with("Was changed by another program since it was loaded")) << told;
    EXPECT_EQ(home.Read("b/arc/blyt/x"), "other");
}

/// One allocation after the other fails, until there is none left that could.
TEST_F(BatchRuns, LoseNothingWithoutMemory) {
    const std::string old = Seven_Language_Banner(), changed = Set_Text(old, "T_VCTitle_ENG", u"Long name"),
                      fresh = Set_File_Len(changed);
    const std::size_t files = home.Names().size();
    bool lacked = true;
    for (std::size_t allocation = 1; lacked; ++allocation) {
        home.Write("b/arc/blyt/x", old);
        home.Write("b/arc/timg/my_Back_x.tpl", "old");
        std::string reason;
        BatchRun run({home.Text(), u"-T_ENG Long name -LOGO Comet.tpl -PAD 0"},
                     [&](const Failure& failure) { reason = failure.reason; });
        allocations_left = allocation;
        const int status = run.Run();
        lacked = std::exchange(allocations_left, 0) == 0;
        const std::string now = home.Read("b/arc/blyt/x") + home.Read("b/arc/timg/my_Back_x.tpl");
        EXPECT_TRUE(now == (status == BatchRun::Done ? fresh + "comet" : old + "old")) << allocation;
        EXPECT_EQ(reason, status == BatchRun::Done ? "" : "Not enough memory") << allocation;
        EXPECT_EQ(home.Names().size(), files) << allocation;

        home.Write("b/arc/blyt/x", old);
        Form1 window({home.Text(), u""}, desktop);
        allocations_left = allocation;
        try {
            window.txtSrc.Set(u"\\b/arc/blyt/x");
            window.info.txtName.Set(u"Long name");
            window.cmdSet_Click(0);
        } catch (const std::bad_alloc&) {}
        lacked = std::exchange(allocations_left, 0) == 0 || lacked;
        const bool told = window.lblLoaded.Caption() == u"No layout loaded: Not enough memory";
        EXPECT_TRUE((window.BrlytData.empty() && told) || window.BrlytData == old || window.BrlytData == changed)
            << allocation;
    }
}

}  // namespace

void* operator new(std::size_t size) {
    const bool fails = size > 1024 && allocations_left > 0 && --allocations_left == 0;
    void* const place = fails ? nullptr : std::malloc(size);
    if (place == nullptr) throw std::bad_alloc();
    return place;
}
[[gnu::noinline]] void operator delete(void* place) noexcept { std::free(place); }
[[gnu::noinline]] void operator delete(void* place, std::size_t) noexcept { std::free(place); }
