#include <gtest/gtest.h>

#include <memory>

#include "colors/materials.h"
#include "gameinfo/boxes.h"
#include "layout/mod_globals.h"
#include "layout/numbers.h"
#include "layout/text_box.h"
#include "mainwindow/region_force.h"
#include "platform/text.h"
#include "samples/banners.h"
#include "support.h"

namespace {

using namespace std::string_literals;

/// A program folder with one banner, and the main window on it.
class MainWindow : public testing::Test {
 public:
    static constexpr char Configuration[] = "cfgs/vcinfopath.cfg";
    static constexpr char Layout[] = "b/arc/blyt/banner.brlyt";
    static constexpr char Texture[] = "b/arc/timg/my_BackX.tpl";

    MainWindow() {
        BrlytData.clear();
        folder.Write(Configuration, "\\b\\arc\\blyt\\banner.brlyt\r\n");
        folder.Write(Layout, Seven_Language_Banner());
        folder.Write(Texture, "old texture");
        folder.Write("logos/New.tpl", "new texture");
        folder.Write("schemes/Zebra.vccs", Format_Scheme(Scheme{}));
        folder.Write("schemes/apple.vccs", Format_Scheme(Scheme{}));
    }

    /// Starts the window, or the batch run of a command line.
    std::optional<int> Start(const std::u16string& command_line = u"") {
        window = std::make_unique<Form1>(Process{folder.Text(), command_line}, desktop);
        return window->Form_Load();
    }

    std::string On_Disk(const char* box) const { return To_Utf8(Get_Text(folder.Read(Layout), box)); }

    TempFolder folder;
    TestDesktop desktop;
    std::unique_ptr<Form1> window;
};

TEST_F(MainWindow, StartsWithTheConfiguredLayout) {
    EXPECT_EQ(Start(), std::nullopt);
    EXPECT_TRUE(window->form.Visible());
    EXPECT_EQ(window->info.txtName.Text(), u"Starlight Courier");
    EXPECT_EQ(window->cmbForce.Selected(), u"NONE");
    EXPECT_EQ(window->txtPad.Text(), u"12000");
    using Entries = std::vector<std::u16string>;
    EXPECT_EQ(window->cmbFileList.Entries(), (Entries{u"Current Brlyt", u"apple", u"Zebra"}));
    EXPECT_EQ(window->cmbLogo.Entries(), (Entries{u"Current Logo", u"New.tpl"}));
    EXPECT_EQ(window->cmbFileList.Index() + window->cmbLogo.Index(), 0);
    window->RefreshColorList_Here();
    window->RefreshLogoList();
    EXPECT_EQ(window->cmbFileList.Count() + window->cmbLogo.Count(), 5);
}

TEST_F(MainWindow, NeedsItsConfiguration) {
    folder.Write(Configuration, "");
    EXPECT_EQ(Start(), Form1::Failed);
    std::filesystem::remove(folder.Path() / Configuration);
    EXPECT_EQ(Start(u"-PAD 0"), Form1::Failed);
    ASSERT_EQ(desktop.failures.size(), 2U);
    EXPECT_EQ(desktop.failures[1].subject, folder.Text() + u"\\cfgs\\vcinfopath.cfg");
    EXPECT_FALSE(window->form.Visible());
}

TEST_F(MainWindow, FollowsThePathBoxAtEachKeystroke) {
    Start();
    const std::u16string path = u"\\b\\arc\\blyt\\banner.brlyt";
    const std::string configured = folder.Read(Configuration);
    for (std::size_t typed = 0; typed < path.size(); ++typed) {
        window->txtSrc.Set(path.substr(0, typed));
        EXPECT_EQ(BrlytData, "");
        EXPECT_EQ(window->info.txtName.Text(), u"Starlight Courier") << "the fields stay";
    }
    const bool last_folder_was_stored = folder.Read(Configuration) == "\\b\\arc\\blyt\\\r\n";
    EXPECT_TRUE(last_folder_was_stored) << "a folder with files is found, and nothing loaded";
    window->txtSrc.Set(path);
    EXPECT_EQ(BrlytData, Seven_Language_Banner());
    EXPECT_EQ(folder.Read(Configuration), configured);
    folder.Write("huge", "");
    std::filesystem::resize_file(folder.Path() / "huge", (std::uintmax_t{1} << 30) + 1);
    window->txtSrc.Set(u"\\huge");
    EXPECT_EQ(folder.Read(Configuration), "\\huge\r\n") << "a file that cannot be read is stored as well";
    EXPECT_EQ(BrlytData, "");
    EXPECT_EQ(window->lblLoaded.Caption(), u"No layout loaded: File too large");
    NoneRegion = u"JPN";
    window->txtSrc.Set(u"\\logos\\");
    EXPECT_EQ(NoneRegion, u"");
    EXPECT_TRUE(desktop.failures.empty());
}

TEST_F(MainWindow, BrowsesForAFile) {
    Start();
    window->cmdFileBrowse_Click();
    EXPECT_EQ(desktop.filter, u"Brlyt Files (*.brlyt)|*.brlyt|All Files (*.*)|*.*");
    EXPECT_EQ(window->txtSrc.Text(), u"\\b\\arc\\blyt\\banner.brlyt") << "a cancel changes nothing";
    folder.Write("c/arc/blyt/other.brlyt", Neutral_Banner());
    desktop.file = folder.Text() + u"/c/arc/blyt/other.brlyt";
    window->cmdFileBrowse_Click();
    EXPECT_EQ(window->txtSrc.Text(), u"\\c/arc/blyt/other.brlyt");
    EXPECT_EQ(folder.Read(Configuration), "\\c/arc/blyt/other.brlyt\r\n");
    EXPECT_EQ(BrlytData, Neutral_Banner());
    desktop.file = folder.Text() + u"\\c\\arc\\blyt\\other.brlyt";
    window->cmdFileBrowse_Click();
    EXPECT_EQ(window->txtSrc.Text(), u"\\c\\arc\\blyt\\other.brlyt");
    const TempFolder elsewhere;
    elsewhere.Write("x.brlyt", Neutral_Banner());
    desktop.file = elsewhere.Text() + u"/x.brlyt";
    window->cmdFileBrowse_Click();
    EXPECT_EQ(window->txtSrc.Text(), desktop.file);
    desktop.file = folder.Text() + u"/a" + folder.Text() + u"/b";
    window->cmdFileBrowse_Click();
    EXPECT_EQ(window->txtSrc.Text(), u"\\a\\b") << "the program's folder goes wherever it stands";
}

TEST_F(MainWindow, SavesOnlyWhatTheWriterChanges) {
    std::string layout = Seven_Language_Banner();
    for (const char* box : {"T_VCTitle_ENG", "T_Year_JPN", "T_Play_GER", "T_ESRB_NED", "T_PF"}) {
        const std::size_t buffer = layout.find(box, layout.find("txt1")) - 0x0C + 0x4C;
        Write_U16(layout, buffer, 100);
    }
    folder.Write(Layout, layout + std::string(999, '\0'));
    Start();
    window->cmdSave_Click();
    EXPECT_EQ(desktop.messages, std::vector<std::u16string>{u"File Successfully Saved!"});
    std::string expected = Seven_Language_Banner();
    EXPECT_EQ(BrlytData, expected);
    expected.resize(12000, '\0');
    EXPECT_EQ(Hex(folder.Read(Layout)), Hex(expected));
    EXPECT_EQ(folder.Read(Texture), "old texture");
    std::string neutral = Neutral_Banner();
    for (const char* box : {"T_VCTitle", "T_Year", "T_Play", "T_ESRB"}) {
        Write_U16(neutral, neutral.find(box, neutral.find("txt1")) - 0x0C + 0x4C, 100);
    }
    folder.Write(Layout, neutral);
    Start();
    window->txtPad.Set(u"");
    window->cmdSave_Click();
    EXPECT_EQ(Hex(folder.Read(Layout)), Hex(neutral)) << "neutral boxes take no part";
    folder.Write(Layout, Layout_With({Box("T_Year", u"11"), Box("T_Year_NONE", u"22")}));
    Start();
    window->cmdSave_Click();
    EXPECT_EQ(On_Disk("T_Year"), "22") << "unless a box has the name that stands for them";
}

TEST_F(MainWindow, SavesWithASchemeAloneAndStoresThePath) {
    folder.Write("schemes/My.1.vccs", Format_Scheme(Shipped_Schemes()[3].scheme));
    Start();
    EXPECT_EQ(window->cmbFileList.Entries()[2], u"My.1");
    window->cmbFileList.Pick(2);
    window->cmbLogo.Pick(1);
    folder.Write(Configuration, "x");
    NoneRegion = u"JPN";
    window->cmdSave_Click();
    EXPECT_EQ(folder.Read(Configuration), "\\b\\arc\\blyt\\banner.brlyt\r\n");
    EXPECT_EQ(NoneRegion, u"");
    ColorPair pair;
    ASSERT_TRUE(Get_Mat_Colors(folder.Read(Layout), "VCPic", pair));
    EXPECT_EQ(pair, Shipped_Schemes()[3].scheme[14]);
    window->txtPad.Set(u"x");
    window->cmdSave_Click();
    EXPECT_EQ(folder.Read(Texture), "new texture") << "a failure afterwards takes nothing back";
}

TEST_F(MainWindow, SavesWithLooksForceAndPadding) {
    folder.Write("schemes/Mine.vccs", Format_Scheme(Shipped_Schemes()[3].scheme));
    folder.Write(Layout, Layout_With({German_Japanese_Banner().substr(16), Material_Section({{"T_ESRB_ENG"}})}));
    Start();
    window->cmbFileList.Pick(2);
    window->cmbLogo.Pick(1);
    window->cmbForce.Pick(0);
    window->txtPad.Set(u"+10");
    window->cmdSave_Click();
    const std::string saved = folder.Read(Layout);
    EXPECT_EQ(Read_U32(saved, 8), saved.size() - 10);
    EXPECT_EQ(saved.substr(saved.size() - 18), "gre1\0\0\0\x08"s + std::string(10, '\0'));
    ColorPair pair;
    ASSERT_TRUE(Get_Mat_Colors(saved, "VCPic", pair));
    EXPECT_EQ(pair, Shipped_Schemes()[3].scheme[14]);
    EXPECT_NE(saved.find("T_ESRB_ENG"), saved.npos);
    for (std::size_t at = saved.find("T_ESRB_ENG\0\0\0\0\0\0\0\0\0\0"s); at != saved.npos;
         at = saved.find("T_ESRB_ENG\0\0\0\0\0\0\0\0\0\0"s, at + 1)) {
        if (saved.substr(at - 0x0C, 4) == "txt1") continue;
        ASSERT_TRUE(Get_Mat_Colors(std::string_view(saved).substr(at), "T_ESRB_ENG", pair));
        EXPECT_EQ(pair, Shipped_Schemes()[3].scheme[13]) << "force is after the scheme";
    }
    EXPECT_EQ(folder.Read(Texture), "new texture");
    EXPECT_EQ(window->cmbFileList.Index(), 2) << "the lists keep their selections";
    EXPECT_TRUE(desktop.failures.empty());
}

TEST_F(MainWindow, AFailedSaveLeavesEverythingAsItWas) {
    struct Case {
        const char* what;
        std::function<void(MainWindow&)> spoil;
    };
    const Case cases[] = {
        {"padding", [](MainWindow& t) { t.window->txtPad.Set(u"12k"); }},
        {"scheme", [](MainWindow& t) { t.folder.Write("schemes/Zebra.vccs", "1 2 3"); }},
        {"logo", [](MainWindow& t) { std::filesystem::remove(t.folder.Path() / "logos/New.tpl"); }},
        {"layout",
         [](MainWindow& t) {
             std::filesystem::remove(t.folder.Path() / Layout);
             t.folder.Write(Layout + "/in the way"s, "");
         }},
    };
    for (const Case& c : cases) {
        folder.Write("logos/New.tpl", "new texture");
        Start();
        window->cmbFileList.Pick(2);
        window->cmbLogo.Pick(1);
        window->info.txtYear.Set(u"2020");
        window->cmdSetAll_Click(1);
        const std::string before = BrlytData;
        desktop.failures.clear();
        c.spoil(*this);
        const auto names = folder.Names();
        window->cmdSave_Click();
        EXPECT_EQ(BrlytData, before) << c.what;
        EXPECT_EQ(folder.Names(), names) << c.what;
        EXPECT_EQ(folder.Read(Texture), "old texture") << c.what;
        EXPECT_EQ(desktop.failures.size(), 1U) << c.what;
        EXPECT_TRUE(desktop.messages.empty()) << c.what;
        folder.Write("schemes/Zebra.vccs", Format_Scheme(Scheme{}));
    }
}

TEST_F(MainWindow, RefusesToSaveNothing) {
    folder.Write(Layout, "RLYT12345678");
    EXPECT_EQ(Start(u"-PAD 0"), Form1::Done);
    EXPECT_EQ(folder.Read(Layout), "RLYT1234\0\0\0\x0C"s);
    for (const char* contents : {"", "RLYT\xFE\xFF\0\x08\0\0\0"}) {
        folder.Write(Layout, contents);
        Start();
        window->cmdSave_Click();
        EXPECT_EQ(folder.Read(Layout), contents);
    }
    window->txtSrc.Set(u"\\none.brlyt");
    window->cmdSave_Click();
    EXPECT_EQ(folder.Read("none.brlyt"), "(none)");
    EXPECT_EQ(desktop.failures.size(), 3U);
}

TEST_F(MainWindow, ReplacesTheFirstTextureThatIsTheLogo) {
    folder.Write("b/arc/timg/my_BackY.tpl", "second");
    folder.Write("b/arc/timg/my_backA.tpl", "not the logo");
    folder.Write("b/arc/timg/my_BackA.txt", "no texture");
    folder.Write("b/arc/timg/my_Bac.tpl", "no logo");
    folder.Write("other.tpl", "other");
    Start();
    struct Case {
        std::u16string logo, path;
        std::string texture;
    };
    const Case cases[] = {
        {u"New.tpl", folder.Text() + u"\\logos\\New.tpl", "new texture"},
        {u"\\other.tpl", folder.Text() + u"\\other.tpl", "other"},
        {folder.Text() + u"/logos/New.tpl", folder.Text() + u"/logos/New.tpl", "new texture"},
    };
    for (const Case& c : cases) {
        std::u16string logo = c.logo;
        EXPECT_FALSE(window->ReplaceLogo(logo));
        EXPECT_EQ(logo, c.path);
        EXPECT_EQ(folder.Read(Texture), c.texture);
    }
    EXPECT_EQ(folder.Read("b/arc/timg/my_BackY.tpl"), "second");
    EXPECT_EQ(folder.Read("b/arc/timg/my_Bac.tpl"), "no logo");
    folder.Write("p/blyt/l.brlyt2/blyt/l.brlyt", Neutral_Banner());
    folder.Write("p/2/timg/my_Back.tpl", "old");
    window->txtSrc.Set(u"\\p\\blyt\\l.brlyt2\\blyt\\l.brlyt");
    std::u16string twice = u"New.tpl";
    EXPECT_FALSE(window->ReplaceLogo(twice));
    EXPECT_EQ(folder.Read("p/2/timg/my_Back.tpl"), "new texture");
    window->txtSrc.Set(folder.Text() + u"/b/arc/blyt/banner.brlyt");
    twice = u"\\other.tpl";
    EXPECT_FALSE(window->ReplaceLogo(twice));
    EXPECT_EQ(folder.Read(Texture), "other");
    EXPECT_EQ(folder.Read("b/arc/timg/my_backA.tpl"), "not the logo");

    std::u16string drive = u"C:\\None.tpl";
    EXPECT_TRUE(window->ReplaceLogo(drive));
    EXPECT_EQ(drive, u"C:\\None.tpl");
    std::u16string missing = u"None.tpl";
    EXPECT_TRUE(window->ReplaceLogo(missing));
    std::filesystem::rename(folder.Path() / "b/arc/timg", folder.Path() / "b/arc/TIMG2");
    EXPECT_FALSE(window->ReplaceLogo(missing)) << "no texture folder: nothing to do";
    for (const char16_t* path : {u"banner.brlyt", u"/banner.brlyt"}) {
        window->txtSrc.Set(path);
        EXPECT_TRUE(window->ReplaceLogo(missing)) << To_Utf8(path);
    }
}

TEST_F(MainWindow, SetForceSelectsByCode) {
    Start();
    for (const auto& [code, selected] :
         {std::pair{u"jpn", u"JPN"}, {u"XXX", u"JPN"}, {u"", u"JPN"}, {u"None", u"NONE"}, {u"ita ", u"NONE"}}) {
        std::u16string argument = code;
        window->SetForce(argument);
        EXPECT_EQ(window->cmbForce.Selected(), selected);
        EXPECT_EQ(argument, Capitals(code));
    }
}

TEST(RegionForce, RenamesTheFirstTitledLanguagesItems) {
    const std::string titles = Box("T_VCTitle_JPN", u"J") + Box("T_VCTitle_GER", u"G");
    const std::string items = "T_YEAR_GER T_PLAY_GER T_ESRB_GER LGER LLGER T_Year_GER t_ESRB_GER LJPN";
    const std::string forced = "T_YEAR_ITA T_PLAY_ITA T_ESRB_ITA LITA LLITA T_Year_GER t_ESRB_GER LJPN";
    std::string data = titles + items;
    EXPECT_EQ(&Region_Force(data, "ITA"), &data);
    EXPECT_EQ(data, titles + forced);
    for (const char* region : {"NONE", "", "GER", "JPN"}) {
        data = titles + items;
        EXPECT_EQ(Region_Force(data, region), titles + items) << region;
    }
    data = Box("T_VCTitle_GER", u"") + Box("T_VCTitle_NONE", u"x") + items + "LNONE";
    const std::string untitled = data;
    EXPECT_EQ(Region_Force(data, "ITA"), untitled);
}

}  // namespace
