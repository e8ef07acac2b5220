// The logic of the three windows, worked with as a person does, without a toolkit.
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <variant>

#include "generate/banners.h"
#include "generate/channel.h"
#include "generate/layout_builder.h"
#include "layout/file_length.h"
#include "layout/text_box.h"
#include "mainwindow/batch_run.h"
#include "mainwindow/form1.h"
#include "mainwindow/run.h"
#include "noting_desktop.h"
#include "support.h"

using namespace bannersmith;

namespace {

using namespace std::string_literals;

std::string Shown(Color color) { return To_Utf8(VbColor2RGB(color)); }
std::string Red(Color color) { return std::to_string(Red_Of(color)) + " "; }

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

    /// What a person does step by step: "name New" types into a box, "logo 1" picks from a list, "save" presses a
    /// button,
    /// "?name" looks. Returns what was said and seen, commas between, the program's folder being "HOME".
    std::string Do(const std::u16string& steps) {
        std::string seen;
        for (std::size_t at = 0, end = 0; end != steps.npos; at = end + 2) {
            end = steps.find(u"; ", at);
            const std::u16string step = steps.substr(at, end - at), word = step.substr(0, step.find(u' ')),
                                 to = step.substr(std::min(step.size(), word.size() + 1));
            if (word.starts_with(u'?')) {
                seen += Look(word.substr(1), to) + ", ";
            } else if (!Controls().contains(word)) {
                Press(word, to);
            } else if (const Either control = Controls()[word]; control.index() == 0) {
                std::get<TextBox*>(control)->Set(to);
            } else {
                std::get<DropDownList*>(control)->Pick(std::stoi(To_Utf8(to)));
            }
            if (!desktop.said.empty()) seen += In_Home(std::exchange(desktop.said, {})) + ", ";
            if (word == u"set" || word == u"all" || word == u"save" || word == u"write")
                seen += Look(u"told", u"") + ", ";
        }
        return seen.substr(0, seen.rfind(", "));
    }
    void Walk(const std::vector<std::pair<std::u16string, std::string>>& ways, const std::u16string& then = {}) {
        for (const auto& [steps, seen] : ways) EXPECT_EQ(Do(steps + then), seen) << To_Utf8(steps);
    }
    std::string In_Home(std::string_view text) const {
        return Line_Of(Replace_All(From_Utf8(text), home.Text(), u"HOME"));
    }
    static std::string Entries(const DropDownList& list) {
        std::string line;
        for (const std::u16string& entry : list.Entries()) line += To_Utf8(entry) + "|";
        return line;
    }
    frmColor& Window() { return *main.ColorWindow; }

    TempFolder home;
    NotingDesktop desktop;
    Form1 main{{home.Text(), u""}, desktop};
    GameInfo& info = main.info;

 private:
    using Either = std::variant<TextBox*, DropDownList*>;

    std::map<std::u16string, Either> Controls() {
        std::map<std::u16string, Either> all = {{u"path", &main.txtSrc},        {u"pad", &main.txtPad},
                                                {u"name", &info.txtName},       {u"year", &info.txtYear},
                                                {u"players", &info.txtPlayers}, {u"rating", &info.txtESRB},
                                                {u"system", &info.txtSystem},   {u"scheme", &main.cmbFileList},
                                                {u"logo", &main.cmbLogo},       {u"force", &main.cmbForce}};
        for (std::size_t i = 0; i < 4; ++i) all[u"language" + From_Utf8(std::to_string(i))] = &info.cmbRegion[i];
        if (frmHC* editor = main.TextEditor.get()) all.insert({{u"text", &editor->txtHC}, {u"box", &editor->cmbHC}});
        if (frmColor* colors = main.ColorWindow.get())
            all.insert({{u"red", &colors->txtR},
                        {u"green", &colors->txtG},
                        {u"blue", &colors->txtB},
                        {u"source", &colors->txtBannerPath},
                        {u"colors", &colors->cmbFileList}});
        return all;
    }
    void Press(const std::u16string& word, const std::u16string& to) {
        const auto index = static_cast<std::int16_t>(to.empty() ? 0 : to[0] - u'0');  // "/" is -1
        if (word == u"answer") return static_cast<void>(desktop.answer = to);
        if (word == u"set") return main.cmdSet_Click(index);
        if (word == u"all") return main.cmdSetAll_Click(index);
        if (word == u"save") return main.cmdSave_Click();
        if (word == u"leave") return main.txtSrc_Leave();
        if (word == u"look") return main.Look_At_File();
        if (word == u"undo") return main.Undo_Click();
        if (word == u"redo") return main.Redo_Click();
        if (word == u"browse") return main.cmdFileBrowse_Click();
        if (word == u"texts") return main.TextEditor ? main.Close_Text_Editor() : main.cmdHC_Click();
        if (word == u"write") return main.TextEditor->cmdSet_Click();
        if (word == u"window") return main.ColorWindow ? main.Close_Color_Window() : main.cmdEditColor_Click();
        if (word == u"edit") return Window().pic_Click(to.substr(2), index);
        if (word == u"choose") return Window().picClr_Click();
        if (word == u"use") return Window().cmdColor_Click();
        if (word == u"get") return Window().cmdGetScheme_Click();
        if (word == u"keep") return Window().cmdSaveScheme_Click();
        if (word == u"refresh") return Window().RefreshColorList();
        if (!word.empty()) throw std::invalid_argument("no step is called " + To_Utf8(word));
    }
    std::string Look(const std::u16string& word, const std::u16string& at) {
        if (word == u"undo") return Line_Of(main.lblUndo.Caption());
        if (word == u"redo") return Line_Of(main.lblRedo.Caption());
        if (word == u"marked") return Line_Of(main.cmbLogo.Mark());
        if (word == u"told") return Line_Of(main.lblLastCommand.Caption());
        if (word == u"loaded") return Line_Of(main.lblLoaded.Caption());
        if (word == u"file") return In_Home(home.Read(To_Utf8(at)));
        if (word == u"may") return main.form.Enabled() ? "enabled" : "disabled";
        if (word == u"close") return main.May_Close() ? "closes" : "stays";
        if (word == u"is") return Line_Of(Get_Text(main.BrlytData, To_Utf8(at)));
        if (word == u"swatch") return Shown(Window().picClr.Value()) + " " + Line_Of(Window().lblEdit.Caption());
        if (word == u"fields") {
            return Do(u"?name; ?year; ?players; ?rating; ?system; ?language0; ?language1; ?language2; ?language3");
        }
        if (!Controls().contains(word)) {
            const auto& boxes = Window().pic.at(Element_Index(word));
            return Shown(boxes[0].Value()) + " " + Shown(boxes[1].Value());
        }
        const Either control = Controls()[word];
        return Line_Of(control.index() == 0 ? std::get<TextBox*>(control)->Text()
                                            : std::get<DropDownList*>(control)->Selected());
    }
};

TEST_F(Windows, StartWithWhatTheConfigurationNames) {
    home.Write("cfgs/vcinfopath.cfg", "");
    EXPECT_FALSE(main.Form_Load());
    EXPECT_EQ(Do(u""), "{HOME\\cfgs\\vcinfopath.cfg: Holds no line; write one with any path into it}");
    home.Write("cfgs/vcinfopath.cfg", "\\b/arc/blyt/x\nsecond");
    EXPECT_TRUE(main.Form_Load() && main.form.Visible());
    EXPECT_EQ(Entries(main.cmbFileList) + Entries(main.cmbLogo) + Entries(main.cmbForce),
              "Current Brlyt|Aurora|Cherry Cola|Current Logo|Comet.tpl|ENG|GER|FRA|ITA|SPA|NED|JPN|NONE|");
    Walk({{u"?file cfgs/vcinfopath.cfg; ?path; ?pad", "\\b/arc/blyt/x/, \\b/arc/blyt/x, 12000"},
          {u"?scheme; ?logo; ?force", "Current Brlyt, Current Logo, NONE"},
          {u"?fields", "Starlight Courier, 1991, 2, E, SUPER 16, ENG, ENG, ENG, ENG"},
          {u"?loaded", "x  |  texts as in the file  |  ENG GER FRA ITA SPA NED JPN  |  10876 bytes"}});
}

TEST_F(Windows, TakePathsAsTheyAreTyped) {
    Start({u"T_VCTitle_ENG One"});
    home.Write("text", "no layout, but long enough");
    home.Write("x\r", Boxes({u"T_PF P"}));
    Walk({{u"path \\b/arc/blyt/x", "One, x  |  texts as in the file  |  ENG  |  148 bytes, \\b/arc/blyt/x/"},
          {u"path \\b/arc/blyt/", "One, No layout loaded, \\b/arc/blyt//"},
          {u"path \\x\r", ", x\r  |  texts as in the file  |  no titles  |  144 bytes, \\b/arc/blyt//"},
          {u"path \\text", ", text  |  texts as in the file  |  not a layout file  |  26 bytes, \\text/"}},
         u"; ?name; ?loaded; ?file cfgs/vcinfopath.cfg");
    EXPECT_TRUE(Do(u"answer /dev/null; browse").ends_with("|Brlyt Files (*.brlyt)|*.brlyt|All Files (*.*)|*.*>"));
    for (const auto& [file, taken] : {std::pair{home.Text() + u"\\d\\e/f", u"\\d\\e/f"s},
                                      {home.Text() + u"/a" + home.Text() + u"/b", u"\\a\\b"},
                                      {u"", u"\\a\\b"}}) {
        Do(u"answer " + file + u"; browse");
        EXPECT_EQ(main.txtSrc.Text(), taken);
    }
}

TEST_F(Windows, ShowTheFirstValueOfEachField) {
    using Texts = std::vector<std::u16string>;
    const std::pair<Texts, std::string> rows[] = {
        {{}, ", , , , , NONE, NONE, NONE, NONE, x  |  texts as in the file  |  no titles  |  24 bytes"},
        {{u"T_VCTitle_KOR Korea", u"T_Play_KOR x^1-4x"},
         "Korea, , 4, , , KOR, NONE, KOR, NONE, x  |  texts as in the file  |  KOR  |  284 bytes"},
        {{u"T_VCTitle N", u"T_Year Publié en 1990", u"T_Play Joueurs: 1-3", u"T_ESRB Classement ESRB: T"},
         "N, 1990, 3, T, , NONE, NONE, NONE, NONE, x  |  texts as in the file  |  one text for all languages  |  592 "
         "bytes"},
        {{u"T_PF SYS", u"T_VCTitle_JPN J", u"T_VCTitle_GER G", u"T_Year_ITA Pubblicato: 1990", u"T_Play_ENG novalue",
          u"T_Play_FRA Joueurs: 1-3", u"T_ESRB_NED ESRB Rating: T", u"T_Year Erschienen: 1"},
         "G, 1990, 3, T, SYS, GER, ITA, FRA, NED, x  |  texts as in the file  |  GER JPN  |  1108 bytes"}};
    for (const auto& [boxes, seen] : rows) {
        Do(u"path ");
        Start(boxes);
        EXPECT_EQ(Do(u"?fields; ?loaded"), seen);
    }
    Walk({{u"language0 4; language1 4; language2 4; language3 4; ?fields", ", 1990, , , SYS, SPA, SPA, SPA, SPA"},
          {u"name typed; language0 -1; ?name", "<Name (SPA) was typed and is not set.>, typed"},
          {u"answer Discard; language0 1; ?name", "<Name (SPA) was typed and is not set.>, G"}});
    EXPECT_EQ(info.cmbRegion[0].Count(), 8) << "without Korean, which this layout does not have";
    for (const int index : {4, -1}) main.cmbRegion_click(static_cast<std::int16_t>(index));
}

TEST_F(Windows, TellWhatACommandChanged) {
    Start({u"T_VCTitle_ENG E", u"T_VCTitle_GER G", u"T_Year_GER Erschienen: 1", u"T_ESRB_FRA Classement ESRB: E",
           u"T_Play_ENG 1", u"T_PF P"});
    Walk({{u"language0 1; name Neu; set 0; all 0",
           "Name: 1 text changed: T_VCTitle_GER, Name: 1 text changed: T_VCTitle_ENG"},
          {u"year 2001; set 1; all 1", "Year: 1 text changed: T_Year_GER, Year: nothing changed"},
          {u"rating T; set 2; set 2", "ESRB Rating: 1 text changed: T_ESRB_FRA, ESRB Rating: nothing changed"},
          {u"players 3; all 2; name ; set 0", "Players: 1 text changed: T_Play_ENG, Name: nothing changed"},
          {u"system Q; all 3; all 4", "System: 1 text changed: T_PF, ESRB Rating: nothing changed"},
          {u"?is T_VCTitle_GER; ?is T_VCTitle_ENG; ?is T_Year_GER", "Neu, Neu, Erschienen: 2001"},
          {u"?is T_ESRB_FRA; ?is T_Play_ENG; ?is T_PF", "Classement ESRB: T, Players: 1-3, Q"}});
}

TEST_F(Windows, SaveWhatIsChosen) {
    Start({u"T_VCTitle_GER G", u"T_Year_GER 1990", u"T_PLAY_GER x"});
    const std::size_t size = main.BrlytData.size();
    home.Write("cfgs/vcinfopath.cfg", "spoilt");
    Walk({{u"logo 1; force 0; pad +10; year typed and not set; answer Discard; save",
           "<What was typed is not set, and would not be saved: Year (GER)>[File Successfully Saved!], Saved"},
          {u"?fields; ?logo; ?force", "G, 1990, , , , GER, GER, NONE, NONE, Comet.tpl, ENG"},
          {u"?file b/arc/timg/my_Back_x.tpl; ?file cfgs/vcinfopath.cfg", "comet, \\b/arc/blyt/x/"}});
    EXPECT_EQ(home.Read("b/arc/blyt/x").size(), size + 10);
    EXPECT_EQ(Line_Of(Get_Text(home.Read("b/arc/blyt/x"), "T_PLAY_ENG")), "x");
    EXPECT_EQ(main.BrlytData.size(), size);
    std::filesystem::remove(home.Path() / "b/arc/timg/my_Back_x.tpl");
    Walk({{u"save", "[File Successfully Saved!], Saved; the banner has no logo texture to replace"},
          {u"logo 0; save", "[File Successfully Saved!], Saved"}});
}

TEST_F(Windows, LeaveEverythingAsItWasWhenASaveFails) {
    const auto file = home.Path() / "b/arc/blyt/x";
    Start({u"T_VCTitle_GER G"});
    Do(u"scheme 1; logo 1; name New; all 0");
    const std::string memory = main.BrlytData, disk = home.Read("b/arc/blyt/x");
    const auto fails = [&](const std::string& how) {
        EXPECT_EQ(Do(u"save; ?loaded; ?file b/arc/timg/my_Back_x.tpl"),
                  "{" + how + "}, Not saved, x  |  texts not saved  |  GER  |  148 bytes, old");
        EXPECT_TRUE(main.BrlytData == memory);
    };
    Do(u"pad 12k");
    fails("Padding \"12k\": Not a whole number up to 268435456, with or without + in front of it");
    Do(u"pad ");
    std::filesystem::remove(home.Path() / "logos/Comet.tpl");
    fails("HOME\\logos\\Comet.tpl: No such file or directory");
    Do(u"logo 0");
    EXPECT_EQ(home.Read("b/arc/blyt/x"), disk);
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    fails("HOME\\b/arc/blyt/x: Is a directory");
    std::filesystem::remove(file);
    Walk({{u"path \\none; answer Discard; save",
           "<\\b/arc/blyt/x does not have the latest changes.>{\\none: No such file or directory}, Not saved"},
          {u"path ; save; ?file none", "{File: Names no layout file}, Not saved, (none)"}});
}

TEST_F(Windows, AskBeforeSomethingIsLost) {
    Start({u"T_VCTitle_ENG One", u"T_PF X"});
    home.Write("two", "two");
    const std::string lacks = "<\\b/arc/blyt/x does not have the latest changes.>";
    Walk({{u"?close; system New; all 3", "closes, System: 1 text changed: T_PF"},
          {u"?close", "stays, " + lacks},
          {u"answer /dev/null; browse; ?path",
           "<HOME\\b/arc/blyt/x: Layouts and Banners (*.brlyt *.app *.bnr *.bin)|*.brlyt;*.app;*.bnr;*.bin|Brlyt Files "
           "(*.brlyt)|*.brlyt|All Files (*.*)|*.*>" +
               lacks + ", \\b/arc/blyt/x"},
          {u"texts; ?close; texts", "stays"},  // behind another window
          // Typed over, the path leads away from the work and back to it.
          {u"name Typed; path \\b; path \\b/arc/blyt/x; ?name; ?is T_PF", "Typed, New"},
          {u"path \\two; ?name; ?is T_PF", ", "},
          {u"leave; ?path; ?name; ?is T_PF", lacks + ", \\b/arc/blyt/x, Typed, New"},
          {u"path \\two; answer Save; leave; ?path; ?file two", lacks + "[File Successfully Saved!], \\two, two"},
          {u"path \\b/arc/blyt/x; ?is T_PF; ?is T_VCTitle_ENG", "New, Typed"},
          {u"name Other; path \\two; answer nothing; texts; ?may; ?path; ?name",
           lacks + ", enabled, \\b/arc/blyt/x, Other"},
          {u"name Other; path \\two; answer Discard; leave; path \\b/arc/blyt/x; ?name", lacks + ", Typed"},
          {u"name Again; answer Set it first; language0 2; ?is T_VCTitle_ENG",
           "<Name (ENG) was typed and is not set.>, Again"},
          {u"language0 0; name Last; answer Save; ?close; ?is T_VCTitle_ENG",
           "closes, <\\b/arc/blyt/x does not have the latest changes./Not set yet: Name (ENG)>[File Successfully "
           "Saved!], Last"},
          {u"name Lost; system Lost; all 3; answer Discard; ?close; ?is T_PF",
           "System: 1 text changed: T_PF, closes, <\\b/arc/blyt/x does not have the latest changes./Not set yet: Name "
           "(ENG)>, "}});
    main.Take_File(u"\\b/arc/blyt/x");
    EXPECT_EQ(main.info.txtSystem.Text(), u"New") << "what was given up is loaded anew";
    home.Write("shelf/a.app", Sample_Channel());
    main.Take_File(home.Text() + u"/shelf");
    EXPECT_TRUE(main.Loaded_File().ends_with(u"a.app")) << "the one banner of a folder";
    main.Take_File(u"\\b/arc/blyt/x");

    // Each save asks; without an answer it leaves the file as it is.
    const auto asks = [&](const std::string& file, const std::u16string& answer, const std::string& question) {
        const std::string kept = home.Read(file);
        Do(u"answer ");
        EXPECT_EQ(Do(u"save"), "<" + question + ">, Not saved");
        EXPECT_TRUE(home.Read(file) == kept);
        Do(u"answer " + answer);
        EXPECT_TRUE(Do(u"save").starts_with("<" + question + ">[File Successfully Saved!], Saved"));
        EXPECT_FALSE(home.Read(file) == kept);
    };
    const std::string changed = "\\b/arc/blyt/x was changed by another program since it was loaded.";
    home.Write("b/arc/blyt/x", "other");
    EXPECT_EQ(Do(u"look; look; ?name"), "<" + changed + ">, Last") << "once";
    asks("b/arc/blyt/x", u"Overwrite", changed + " Save over it?");
    home.Write("b/arc/blyt/x", Boxes({u"T_VCTitle_ENG Elsewhere"}));
    Walk({{u"answer Reload; look; ?name", "<" + changed + ">, Elsewhere"},
          {u"name Here; all 0; ?name", "Name: 1 text changed: T_VCTitle_ENG, Here"}});
    std::filesystem::remove(home.Path() / "b/arc/blyt/x");
    EXPECT_EQ(Do(u"look; save; ?name"), "[File Successfully Saved!], Saved, Here")
        << "nothing is lost where no file is";
    home.Write("two", German_Japanese_Banner());
    Do(u"path \\two; force 0");
    asks("two", u"yes", "question: \\two: region force leaves the group GER. Force the region all the same?");
    home.Write("named", "rLYT123456789012");
    Do(u"path \\named; pad ");
    asks("named", u"yes", "question: \\named is not a layout file. Save it all the same?");
    EXPECT_EQ(home.Read("named"), "rLYT1234\0\0\0\x10"s + "9012");
    EXPECT_EQ(Do(u"pad much; save").find("question"), std::string::npos) << "what cannot be done is not asked about";
}

TEST_F(Windows, TakeBackWhatWasDone) {
    Start({u"T_VCTitle_ENG One", u"T_Year_ENG Released: 1990", u"T_PF X"});
    const std::string loaded = main.BrlytData;
    Walk({{u"undo; redo; name Two; set 0; year 2001; all 1; ?undo; ?redo",
           "Name: 1 text changed: T_VCTitle_ENG, Year: 1 text changed: T_Year_ENG, Year (all languages), "},
          {u"system typed; undo; ?told; ?fields; ?redo",
           "Taken back: Year (all languages), Two, 1990, , , typed, ENG, ENG, NONE, NONE, Year (all languages)"},
          {u"answer Set it first; logo 1; pad 0; save",
           "<What was typed is not set, and would not be saved: System>[File "
           "Successfully Saved!], Saved"},
          {u"?undo; undo; undo; undo; ?undo; ?name; ?redo", "Save with Logo, , One, Name (ENG)"}});
    EXPECT_TRUE(main.BrlytData == loaded) << "the very layout, across the save";
    Walk(
        {{u"logo 0; save; ?file b/arc/timg/my_Back_x.tpl", "[File Successfully Saved!], Saved, old"},
         {u"redo; redo; redo; ?told; ?is T_PF; ?loaded",
          "Brought again: Save with Logo, typed, x  |  texts not saved  |  ENG  |  424 bytes"},
         {u"logo 1; path \\b/arc/blyt/../blyt/x; answer Save; leave; ?logo; ?marked",
          "<\\b/arc/blyt/x does not have the latest changes.>[File Successfully Saved!], Comet.tpl, Will be applied to "
          "this file, too"}});
}

TEST_F(Windows, EditAllLanguagesInOneTable) {
    Start({u"T_VCTitle_ENG One", u"T_VCTitle_JPN \u3042", u"T_Year_ENG Released: 1990", u"T_Year_JPN 1990\u5E74",
           u"T_Play_JPN x^1\uFF5E2\u4EBA", u"T_Year Released: 1990", u"T_ESRB_GER x: a", u"T_PF P"});
    const auto table = [&](const std::function<void(LanguageTable&)>& work) {
        main.cmdLanguages_Click();
        work(*main.TableWindow);
        main.Close_Table_Window();
    };
    table([&](LanguageTable& all) {
        EXPECT_FALSE(main.form.Enabled());
        EXPECT_EQ(all.Rows(), (std::vector<std::u16string>{u"ENG", u"GER", u"JPN", u"NONE", u""}));
        std::string cells;
        for (std::size_t row = 0; row < all.Rows().size(); ++row) {
            for (std::size_t column = 0; column < LanguageTable::Columns; ++column) {
                cells += all.Can_Edit(row, column) ? Line_Of(all.Cell(row, column)) + "|" : "-|";
            }
        }
        EXPECT_EQ(cells, "One|1990|-|-|-|-|-|a|あ|1990|2|-|-|1990|-|-||1990|2|a|");
        EXPECT_EQ(all.Wording(2, 1, u"7") + all.Wording(3, 1, u"8") + all.Wording(0, 0, u"T") + all.Wording(4, 1, u"9"),
                  u"7\u5E74\u767A\u58F2Released: 8");
        all.Type(0, 0, u"New");
        all.Paste(1, 3, u"T\toutside\r\n\r\nno box\n");
        all.Paste(2, 0, u"\"a \"\"b\"\"\"\t2001\t\n\t2002\n");
        all.Type(4, 2, u"4");
        all.cmbShown.Pick(1);
        all.Type(3, 1, u"raw^");
        all.Type(0, 1, u"");
        EXPECT_EQ(all.Cell(4, 3), u"ESRB Rating: T") << "all that there are";
    });
    const std::string typed = main.BrlytData;
    Walk({{u"?undo; undo; undo; ?undo", "T_Year, All languages"},
          {u"undo; undo; undo; ?is T_VCTitle_ENG; ?undo", "One, "},
          {u"language0 0; name New; set 0; language3 1; rating T; set 2",
           "Name: 1 text changed: T_VCTitle_ENG, ESRB "
           "Rating: 1 text changed: T_ESRB_GER"},
          {u"language0 6; name a \"b\"; set 0; language1 6; year 2001; set 1",
           "Name: 1 text changed: T_VCTitle_JPN, Year: 1 "
           "text changed: T_Year_JPN"}});
    Do(u"language1 7; year 2002; set 1; players 4; all 2; texts; box 5; text raw^; write; texts");
    EXPECT_TRUE(main.BrlytData == typed) << "the same by hand";
}

TEST_F(Windows, EditAnyTextByItsName) {
    Start({u"T_PF S", u"T_Year 11", u"caf\u00E9 x", u"T_Year_ENG 22222", u"T_VCTitle_ENG name", u"T_PF longer",
           u"T_Play_ENG Players: 1"});
    EXPECT_EQ(Do(u"texts; ?may; ?box; ?text"), "disabled, T_PF, longer");
    EXPECT_EQ(Entries(main.TextEditor->cmbHC), "T_PF|T_Year|café|T_Year_ENG|T_VCTitle_ENG|T_PF|T_Play_ENG|");
    Walk({{u"box 2; ?text; text a^b; write", "x, Text editor: other texts changed"},
          {u"box 1; ?text; text 1999; write", "11, Text editor: 1 text changed: T_Year_ENG"},
          {u"box 0; ?text; text New; write", "longer, Text editor: 1 text changed: T_PF"},
          {u"text not set; box 4; ?text", "<T_PF was typed and is not set.>, not set"},
          {u"answer Discard; box 4; ?text; text renamed; write",
           "<T_PF was typed and is not set.>, name, Text editor: 1 text changed: T_VCTitle_ENG"},
          {u"box 6; ?text; text 1-4; write", "Players: 1, Text editor: 1 text changed: T_Play_ENG"},
          {u"?fields", "name, 2222, 1, , longer, ENG, ENG, ENG, NONE"},
          {u"texts; ?may; ?fields", "enabled, renamed, 1999, , , New, ENG, ENG, ENG, NONE"},
          {u"path ; texts; text x; write", ""}});
    EXPECT_EQ(main.BrlytData, "");
}

class Colors : public Windows {
 protected:
    /// Opens the colour window over the sample with seven languages.
    void Open() {
        ASSERT_TRUE(main.Form_Load());
        Do(u"window");
    }
    /// A scheme of 114 numbers in sequence.
    void Make_Scheme(const std::string& name, int first, int step) const {
        std::string numbers;
        for (int i = 0; i < 114; ++i) numbers += std::to_string(first + step * i) + " ";
        home.Write("schemes/" + name + ".vccs", numbers);
    }
};

TEST_F(Colors, ComeFromTheLayoutOrAScheme) {
    Open();
    Walk({{u"?may; ?source; ?colors", "disabled, \\b/arc/blyt/x, Current Brlyt"},
          {u"?red; ?green; ?blue; ?swatch", "0, 0, 0, 224|224|224 "},
          {u"?PFLINE; ?T_VCTitle", "53|214|168 14|59|74, 3|8|13 143|240|207"},
          {u"colors 2; ?PFLINE; ?BackMask2", "217|71|90 122|15|28, 22|4|6 58|10|16"},
          {u"window; ?may; ?scheme; window; ?colors", "enabled, Cherry Cola, Cherry Cola"}});
    // A text's colours are those of the language shown, or else those for all; what is missing stays.
    std::vector<Material> materials;
    for (const char* name :
         {"T_VCTitle_", "T_VCTitle_GER", "T_VCTitle", "T_Play_FRA", "T_Year", "T_ESRB_NONE", "Shade"}) {
        const auto red = static_cast<std::int16_t>(materials.size());
        materials.push_back({name, {red, -1, 2, 9}, {static_cast<std::int16_t>(256 + red), 3, 4, 9}, -1});
    }
    home.Write("other", Layout_File({Material_Section(materials)}));
    home.Write("channel", Sample_Channel());
    Walk({{u"language0 1; language1 5; language2 2; language3 3; source \\other; get", ""},
          {u"?T_VCTitle; ?T_Play; ?T_Year", "1|255|2 1|3|4, 3|255|2 3|3|4, 4|255|2 4|3|4"},
          {u"?T_ESRB; ?Shade", "22|4|6 244|185|169, 6|255|2 6|3|4"},
          {u"language0 6; language3 7; get; ?T_VCTitle; ?T_ESRB", "2|255|2 2|3|4, 5|255|2 5|3|4"},
          {u"source \\channel; get; ?Shade", "3|8|13 7|21|34"},
          {u"source \\none; get", "[File Not Found!]"},
          {u"source \\schemes\\; get", "{HOME\\\\schemes\\: Is a directory}"}});
    EXPECT_EQ(Do(u"?is T_VCTitle_ENG"), "Starlight Courier") << "the layout that is edited is still the same";
}

TEST_F(Colors, AreEditedBoxByBox) {
    Make_Scheme("Black", 0, 0);
    Open();
    EXPECT_EQ(Do(u"colors 2; edit 0 Back0; ?swatch"), "0|0|0 Back0 0") << "although the numbers stay";
    EXPECT_EQ(Do(u"colors 1; edit 1 T_ESRB; ?red; ?green; ?blue; ?swatch"), "185, 217, 230, 185|217|230 T_ESRB 1");
    std::string swatches;
    for (const char16_t* red : {u"7", u"300", u"a", u"2.5", u"3.5", u"", u"32767", u"1", u"32768", u"-5", u" 9 ", u"9x",
                                u"nan", u"-32769", u"+-8", u"+8"}) {
        Window().txtR.Set(red);
        swatches += Red(Window().picClr.Value());
    }
    EXPECT_EQ(swatches, "7 255 255 2 4 4 255 1 1 0 9 9 9 9 9 8 ");
    Walk({{u"use; ?T_ESRB", "3|8|13 8|217|230"},
          {u"choose; ?red; ?swatch", "8, 8|217|230 T_ESRB 1"},
          {u"answer a color; choose; edit 0 none; edit 2 Shade; edit / Shade", ""},
          {u"?red; ?green; ?blue; ?swatch", "1, 2, 3, 1|2|3 T_ESRB 1"},
          {u"edit 0 PFLINE; green a; blue 7; ?red; ?swatch", "53, 53|214|168 PFLINE 0"},
          {u"green 300; ?swatch", "53|255|7 PFLINE 0"}});
}

TEST_F(Colors, AreSavedAsASchemeThatBothListsHave) {
    std::filesystem::rename(home.Path() / "schemes/Aurora.vccs", home.Path() / "schemes/Aurora.VCCS");
    const std::string asked = "<Save Scheme: Type a Name for the New Scheme>";
    Open();
    Walk({{u"keep", asked},
          {u"answer Aurora; keep; ?file schemes/Aurora.vccs",
           asked + "<question: There is a scheme Aurora already. Replace it?>, (none)"},
          {u"answer Bright; keep; ?colors; ?scheme", asked + "[Color Scheme saved as Bright], , "}});
    EXPECT_EQ(Entries(Window().cmbFileList), "Current Brlyt|Aurora|Bright|Cherry Cola|");
    EXPECT_EQ(Entries(main.cmbFileList), Entries(Window().cmbFileList));
    EXPECT_EQ(home.Read("schemes/Bright.vccs"), home.Read("schemes/Aurora.VCCS"));
    home.Write("schemes/Bright.vccs", "broken");
    const std::string wrong = ": A scheme's name cannot begin with . or hold \\ or /}";
    Walk({{u"window; ?scheme; window; ?colors; ?PFLINE", ", , 224|224|224 224|224|224"},
          {u"colors 2; ?PFLINE",
           "{HOME\\schemes\\Bright.vccs: PFLINE: \"broken\" is not a whole number}, 224|224|224 224|224|224"},
          {u"answer a/b; keep", asked + "{a/b" + wrong},
          {u"answer a\\b; keep", asked + "{a\\b" + wrong},
          {u"answer .hidden; keep", asked + "{.hidden" + wrong}});
    // A scheme may have the name of the first entry; its place tells them apart.
    Make_Scheme("Current Brlyt", 100, 1);
    Walk({{u"refresh; colors 4; ?colors; ?BackMask2", "Current Brlyt, 208|209|210 211|212|213"},
          {u"window; save", "[File Successfully Saved!], Saved"},
          {u"window; keep; window; save", asked + "{.hidden" + wrong + ", [File Successfully Saved!], Saved"},
          {u"window; colors 0; ?VCPic", "184|185|186 187|188|189"}});
}

TEST_F(Colors, AreSeenWhileTheyAreTyped) {
    Open();
    const auto shown = [&] { return Shown(Window().preview.lblT_VCTitle.color) + " "; };
    const std::string before = shown();
    Do(u"edit 1 T_VCTitle; red 1; green 2");
    EXPECT_EQ(shown(), "1|2|207 ");
    EXPECT_EQ(Do(u"?T_VCTitle"), "3|8|13 143|240|207") << "the box waits for Set";
    for (const char16_t* text : {u"#0a0B0c", u"0A0B0", u"0A0B0G", u" 0D0E0F "}) Window().txtHex.Set(text);
    EXPECT_EQ(Do(u"?red; ?green; ?blue; ?swatch") + shown(), "13, 14, 15, 13|14|15 T_VCTitle 113|14|15 ");
    Window().txtR.Set(u"255");
    EXPECT_EQ(Window().txtHex.Text(), u"FF0E0F");
    const std::string lost = "<These colors are in no scheme and would be lost.>";
    EXPECT_FALSE(Window().May_Close());
    EXPECT_EQ(desktop.said, lost);
    Do(u"answer Discard");
    EXPECT_TRUE(Window().May_Close());
    Do(u"edit 0 T_VCTitle; answer nothing");
    EXPECT_TRUE(Window().May_Close()) << "no longer typed";
    EXPECT_EQ(shown(), before);
    Do(u"red 77; use; answer Seventy; keep");
    EXPECT_TRUE(Window().May_Close());
    // Each place of the sketch has the element whose color is seen there.
    const std::tuple<float, float, std::string> places[] = {
        {600, 3700, "T_Year 1"}, {700, 3970, "YearLine 1"},   {5000, 6000, "VCPic 1"},     {4090, 6000, "VCPic 0"},
        {500, 2700, "PFLINE 1"}, {1000, 6500, "BackMask1 1"}, {2000, 9580, "BackMask2 1"}, {11100, 8000, "T_VCTitle 1"},
        {7000, 3900, "Back2 1"}, {8000, 4800, "Back1 0"},     {10, 10, "Back1 0"}};
    for (const auto& [x, y, box] : places) {
        Window().Preview_Click(x, y);
        EXPECT_EQ(Line_Of(Window().lblEdit.Caption()), box) << x << "," << y;
    }
    EXPECT_EQ(std::count_if(Window().pic.begin(), Window().pic.end(),
                            [](const auto& boxes) { return !boxes[0].Mark().empty() || !boxes[1].Mark().empty(); }),
              1);
    main.Close_Color_Window();
    home.Write("channel", Sample_Channel());
    main.Take_File(u"\\channel");
    main.cmdEditColor_Click();
    Window().live.Draw();
    Window().Live_Click(400, 130);
    EXPECT_EQ(Line_Of(Window().lblEdit.Caption()), "VCPic 1");
    EXPECT_EQ(main.cmbFileList.picture_of(1)->width, 48U);
    EXPECT_FALSE(main.cmbFileList.picture_of(0));
}

/// In a scheme of odd numbers in sequence every box has a red of its own.
TEST_F(Colors, AreDrawnInThePreview) {
    Make_Scheme("S", 1, 2);
    Open();
    Do(u"colors 3");
    const Preview& drawn = Window().preview;
    const auto& [bar, frame, upper_bar] = drawn.shpPFLine;
    std::string reds;
    float numbers = 0;  // of all places, sizes and fonts: a change of one changes the sum
    const auto add = [&](const Area& at, float more) {
        numbers += at.left + 2 * at.top + 3 * at.width + 5 * at.height + more;
    };
    for (const Shape* shape :
         {&drawn.Shape1, &drawn.shpBack1, &bar, &frame, &upper_bar, &drawn.shpVcPic, &drawn.shpBackMask2}) {
        reds += Red(shape->border) + Red(shape->fill);
        add(shape->area, shape->thickness + (shape->rounded ? 1 : 0));
    }
    const auto& rows = drawn.lblBack1;
    for (const DrawnLabel* label : {&drawn.lblT_PF, &drawn.lblT_Year, &drawn.lblT_Play, &drawn.lblT_VCTitle,
                                    &drawn.lblT_ESRB, &rows[0], &rows[1], &rows[2], &rows[3]}) {
        reds += Red(label->color);
        add(label->area, label->font.points + 2 * static_cast<float>(label->alignment) + (label->wraps ? 1 : 0));
    }
    EXPECT_EQ(reds, "0 96 0 49 1 7 1 7 1 7 169 175 0 223 19 151 139 127 163 55 67 79 91 ");
    EXPECT_EQ(numbers, 685221.25);
    std::ostringstream fades;  // the first and last band of each
    for (const Surface* surface : {&drawn.shpYearLine, &drawn.shpPlayLine, &drawn.surface}) {
        for (const FilledRectangle& band : {surface->Painted().front(), surface->Painted().at(255)})
            fades << Shown(band.color) << " " << band.x1 << " " << band.y1 << " " << band.x2 << " " << band.y2 << "; ";
    }
    EXPECT_EQ(fades.str(),
              "103|105|107 0 0 11.8945 45; 50|52|54 3033.11 0 3045 45; "
              "115|117|119 0 0 11.8945 45; 50|52|54 3033.11 0 3045 45; "
              "49|51|53 360 6360 11150 6364.75; 210|212|214 360 7570.25 11150 7575; ");
}

TEST_F(Colors, AreDrawnWithTheTextsOfTheMainWindow) {
    const auto texts = [](const Preview& preview) {
        std::ostringstream out;
        for (const DrawnLabel* label :
             {&preview.lblT_PF, &preview.lblT_Year, &preview.lblT_Play, &preview.lblT_VCTitle, &preview.lblT_ESRB}) {
            out << Line_Of(label->text) << "|";
        }
        const Area &console = preview.lblT_PF.area, &frame = preview.shpPFLine[1].area;
        out << console.left << " " << console.width << " " << frame.left << " " << preview.lblT_Play.area.top;
        return out.str();
    };
    EXPECT_EQ(texts(Preview(desktop)), "Console  |Released:|Players: ?-?|Game Title||6240 4590 8880 4440");
    Start({u"T_VCTitle_ENG One^Two", u"T_Year_GER Erschienen^1", u"T_Play_ENG Players: 1", u"T_Play a^b: 1",
           u"T_ESRB_ENG x: ^y", u"T_ESRB neutral: r", u"T_Year 1985", u"T_PF AB"});
    for (const auto& [steps, drawn] :
         {std::pair{u"window", "AB|Erschienen^1|Players: 1|One/Two|x: /y|10245 570 9720 4425"},
          {u"name Typed^x; system A^B; language1 7; language3 7; use",
           "A^B|1985|Players: 1|Typed/x|neutral: r|9960 855 9435 4425"},
          {u"language1 4; use; language2 7; name ; year ; rating ; system Aあ; use",  // not measured, so with more room
           "Aあ||a/b: 1|Typed/x|neutral: r|9390 1425 8865 4005"}}) {
        Do(steps);
        EXPECT_EQ(texts(Window().preview), drawn);
    }
}

std::size_t allocations_left = 0;  ///< until one fails that has room for a layout; none does at 0

class BatchRuns : public Windows {
 protected:
    /// What is told, and the status.
    std::string Run(const std::u16string& line) {
        const Process process{home.Text(), Replace_All(line, u"HOME", home.Text())};
        const int status = BatchRun(process, [this](const Failure& told) { desktop.Report(told); }).Run();
        return In_Home(std::exchange(desktop.said, {})) + std::to_string(status);
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
         {Row{u"  b/arc/blyt/x  -YEAR 1", "0", "HOME\\b/arc/blyt/x/"},
          {u"\\b\\arc/blyt/x -YEAR 1", "0", "HOME\\b\\arc/blyt/x/"},
          {u"none -LOGO Comet.tpl", "{HOME\\none: No such file or directory}2"},
          {u"-PAD 0", "0", "\\b/arc/blyt/x/", "-------", "\\b/arc/blyt/x"},
          {u"-PAD 0", "{HOME\\cfgs\\vcinfopath.cfg: Names no layout file}2", "/\\x", "-------", "\r\n\\x"},
          {u"-PAD 0", "{\\none: No such file or directory}2", "\\none/x", "-------", "\\none\r\nx"},
          {u"x-y z -PAD +4 -TITLE x",
           "{HOME\\x-y z: Is not edited, because a hyphen ends the path on a command line}"
           "{HOME\\x: Saved, but its other names (hard links) keep the old contents}0",
           "HOME\\x/"},
          {u"C:/x-w -PAD 0", "0", "C:/x/"},
          {u"-LOGO Comet.tpl -COLOR none -COLOR none", "{HOME\\schemes\\none.vccs: No such file or directory}1"},
          {u"-LOGO \\other.tpl", "0", "\\b/arc/blyt/x/", "--other----"},
          {u"-LOGO HOME/logos/Comet.tpl", "0", "\\b/arc/blyt/x/", "--comet----"},
          {u"p/blyt/l2/blyt/l -LOGO Comet.tpl", "0", "HOME\\p/blyt/l2/blyt/l/", "-----comet-"},
          {u"C:\\x -LOGO None.tpl", "0", "C:\\x/"},
          {u"-LOGO Comet.tpl", "0", "q/x/", "------comet", "q/x"},
          {u"-LOGO Comet.tpl", "{x: Names no folder to look for the logo texture beside}1", "x/", "-------",
           "x\r\n"}}) {
        home.Write("cfgs/vcinfopath.cfg", row.config);
        for (const char* name : textures) home.Write(name, "-");
        home.Write("b/arc/blyt/x", layout);
        SCOPED_TRACE(To_Utf8(row.line));
        EXPECT_EQ(Run(row.line), row.told);
        std::string now;
        for (const char* name : textures) now += home.Read(name);
        EXPECT_EQ(now, row.textures);
        EXPECT_EQ(In_Home(home.Read("cfgs/vcinfopath.cfg")), row.stored);
        if (!row.told.ends_with('0')) { EXPECT_TRUE(home.Read("b/arc/blyt/x") == layout); }
    }
    std::filesystem::current_path(before);
}

TEST(Programs, OpenAFileWithoutSavingIt) {
    EXPECT_EQ(File_To_Open({}), u"");
    EXPECT_EQ(File_To_Open({u"--open"}), u"");
    EXPECT_EQ(File_To_Open({u"--open", u"my", u"file.app"}), u"my file.app")
        << "as a desktop may call it without quotes";
    EXPECT_EQ(File_To_Open({u"file.app", u"--open"}), std::nullopt) << "a batch run";
}

TEST_F(BatchRuns, TellWhatWasOdd) {
    const std::string header = "RLYT\xFE\xFF\0\x08\0\0\0\x10\0\x10\0\0"s;
    const std::string warned = "{\\b/arc/blyt/x: Saved, but bannersmith-inspect warns of what was written: ";
    const std::tuple<std::string, const char16_t*, std::string> rows[] = {
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
    for (std::size_t allocation = 1, lacked = 1; lacked != 0; ++allocation) {
        home.Write("b/arc/blyt/x", old);
        home.Write("b/arc/timg/my_Back_x.tpl", "old");
        std::string reason;
        BatchRun run({home.Text(), u"-T_ENG Long name -LOGO Comet.tpl -PAD 0"},
                     [&](const Failure& failure) { reason = failure.reason; });
        allocations_left = allocation;
        const bool done = run.Run() == BatchRun::Done;
        lacked = std::exchange(allocations_left, 0) == 0;
        const std::string now = home.Read("b/arc/blyt/x") + home.Read("b/arc/timg/my_Back_x.tpl") + reason;
        EXPECT_TRUE(now == (done ? fresh + "comet" : old + "oldNot enough memory")) << allocation;
        EXPECT_EQ(home.Names().size(), files) << allocation;

        home.Write("b/arc/blyt/x", old);
        Form1 window({home.Text(), u""}, desktop);
        allocations_left = allocation;
        try {
            window.txtSrc.Set(u"\\b/arc/blyt/x");
            window.info.txtName.Set(u"Long name");
            window.cmdSet_Click(0);
        } catch (const std::bad_alloc&) {}
        lacked += std::exchange(allocations_left, 0) == 0;
        const bool told = window.lblLoaded.Caption() == u"No layout loaded: Not enough memory";
        EXPECT_TRUE(told ? window.BrlytData.empty() : window.BrlytData == old || window.BrlytData == changed);
    }
}

}  // namespace

void* operator new(std::size_t size) {
    const bool fails = size > 1024 && allocations_left > 0 && --allocations_left == 0;
    void* const place = fails ? nullptr : std::malloc(size);
    if (place == nullptr) throw std::bad_alloc();
    return place;
}
/// Of the library's sorting, which takes less where there is less.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return std::malloc(size); }
[[gnu::noinline]] void operator delete(void* place) noexcept { std::free(place); }
[[gnu::noinline]] void operator delete(void* place, std::size_t) noexcept { std::free(place); }
