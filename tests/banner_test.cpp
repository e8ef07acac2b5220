// Banners and their edits, as whole files beside the plainest form of the rules.
#include "banner/banner.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <thread>

#include "banner/effect.h"
#include "base/text.h"
#include "exchange/options.h"
#include "gameinfo/fields.h"
#include "generate/banners.h"
#include "generate/channel.h"
#include "generate/layout_builder.h"
#include "inspect/report.h"
#include "layout/kind.h"
#include "mainwindow/command_line.h"
#include "plain_rules.h"
#include "support.h"

using namespace bannersmith;
using namespace std::string_literals;

namespace {

std::mt19937 random_bits(20261124);
std::size_t Pick(std::size_t count) { return random_bits() % count; }
template <typename Items>
auto Any(const Items& items) {
    return *(std::begin(items) + static_cast<std::ptrdiff_t>(Pick(std::size(items))));
}

/// A box may have another one's name as its beginning, user data behind the name, or a tag inside its text.
const auto Names = plain::Split(
    "T_VCTitle_ENG|T_VCTitle_GER|T_VCTitle_JPN|T_VCTitle|T_VCTitle_NONE|T_VCTitle_ENG\0x|T_Year_ENG|T_Year_FRA|T_Year|"
    "T_Year_NED|T_Year_JPN|T_Yea|T_Year_ITA|T_Play_ENG|T_Play_JPN|T_Play_NED|T_Play|T_ESRB_ENG|T_ESRB|T_PF|T_PF2|L_GER|"
    "Years|"s);
const auto Stored = plain::Split(
    "Released: 1985|Erschienen: 1985|Publié en 1985|Pubblicato: 1985|Año: 1985|Release: 1985|1985年発売|1-2 Spieler|"
    "プレイ人数^1～2人|Game|LENG T_YEAR_ENG||\0z|x\u7478\u7431y|\u7478\u7431"s);
const auto Words = plain::Split(
    "TITLE|title|YEAR|Play|PLAY|SYSTEM|ESRB|T_GER|T_ENG|t_jpn|Y_FRA|Y_SPA|Y_ITA|Y_NED|Y_JPN|Y_XYZ|E_FRA|E_GER|h_T_PF|"
    "H_T_Play_ENG|H_Years|H_T_Year_NONE|H_|PAD|PAD|FORCE|COLOR|COLOR|2|LOGO|T_|X_GER||TITLES|Y_TOO_JPN");
const auto Values = plain::Split(
    "1985||1|4| A^B |\"quo\"ted\"|ita|JPN|NONE|+16|0|300|007|268435457|1:|1.5|x|longer than what was there|ENG|+");

std::string Any_Box() {
    TextBoxSpec box = Clean_Text_Box(Any(Names), From_Utf8(Any(Stored)), 0);
    if (Pick(6) == 0) box.text_length = static_cast<unsigned>(Pick(2) * Pick(60));
    if (Pick(6) == 0) box.stored += std::string(2 * Pick(4), '\0');
    std::string section = Text_Box_Section(box);
    constexpr std::uint32_t FieldsEnd = 0x50;
    if (Pick(10) == 0) Write_U32(section, 4, Pick(2) ? FieldsEnd : static_cast<std::uint32_t>(Pick(600)));
    if (Pick(20) == 0) section.resize(Pick(section.size()));
    return section;
}

std::string Any_File() {
    std::vector<Material> materials;
    for (std::size_t i = Pick(6); i-- > 0;) {
        const std::string name = Any(plain::Materials), code = name.ends_with('_') ? Any(plain::Codes) : "";
        materials.push_back({name + code, {0x0102, 3, 4, 5}, {6, 7, 8, 9}, -1});
    }
    std::vector<std::string> sections = {Pick(4) ? Material_Section(materials) : Any_Box()};
    for (std::size_t i = Pick(12); i-- > 0;) sections.push_back(Pick(8) ? Any_Box() : sections.back());
    if (Pick(20) == 0) sections.insert(sections.end(), 9, sections.back());
    if (Pick(6) == 0) sections.push_back(Section("usd1", "..txt1T_Ye"));
    if (Pick(6) == 0) sections.push_back(Group_Section("T_YEAR_ENG", {"LENG", "T_PLAY_ENGLJPN"}));
    if (Pick(3)) sections.push_back(Group_Section("RootGroup", {}));
    for (std::size_t i = Pick(3); i-- > 0;) sections.push_back(Empty_Section("gre1"));
    std::string file = Layout_File(sections) + std::string(Pick(3) * 50, '\0');
    if (Pick(20) == 0) file.erase(0, 16 + 4);  // so that a box's rest stands in front of the first tag
    return Pick(5) ? file : file.substr(0, Pick(3) ? Pick(file.size()) : file.size() - std::min(file.size(), Pick(9)));
}

std::string Any_Line() {
    std::string line;
    for (std::size_t i = Pick(6); i-- > 0;) {
        line += "-" + Any(Words);
        if (Pick(12)) line += (Pick(8) ? " " : "  ") + Any(Values) + (Pick(3) ? " " : "");
    }
    return line.empty() ? "-x" : line;
}

TEST(Banner, IsEditedAsThePlainRulesSay) {
    const TempFolder folder;
    std::vector<plain::Six> scheme;
    std::string file;
    for (int i = 0; i < 19; ++i) {
        scheme.push_back({i, 10 + i, 20 + i, 200 + i, 100 + i, 235 + i});
        for (const int number : scheme.back()) file += " " + std::to_string(number) + " ";
        file += "\r\n";
    }
    for (const std::string& value : Values) {
        folder.Write("schemes/" + plain::Trimmed(plain::Replaced(value, "\""s, ""s)) + ".vccs", file);
    }
    for (int round = 0; round < 20000; ++round) {
        const std::string data = Any_File(), line = Any_Line();
        ASSERT_EQ(plain::Difference(data, line, folder.Text(), scheme), "") << "round " << round << ": " << line << "\n"
                                                                            << Hex(data);
    }
}

/// What the tools tell of a banner says what stands there already.
TEST(Banner, TellsValuesThatLeaveItAsItIs) {
    for (int round = 0; round < 3000; ++round) {
        Banner banner = Banner::From_Bytes(Any_File());
        if (!Is_Layout(banner.Bytes())) continue;
        for (const auto& [option, value] : Values_Of(banner.Bytes(), {})) {
            const auto wish = Read_Wish(option, value, u"/nowhere");
            ASSERT_TRUE(wish) << option << " " << To_Utf8(value);
            EXPECT_TRUE(Holds_Already(banner, std::get<Edit>(wish->what))) << option;
            EXPECT_EQ(Lacks(banner, std::get<Edit>(wish->what)), "");
        }
    }
}

/// In the archive, and in the folders that it is unpacked into.
TEST(Banner, IsEditedInItsArchiveAsInFolders) {
    const TempFolder folder;
    const Archive channel = *Archive::Read(Sample_Channel());
    folder.Write("00000000.app", channel.Bytes());
    ASSERT_TRUE(channel.Visit_Files([&](const std::string& path, std::string_view bytes) {
        return folder.Write("out/" + path, bytes), Result<>();
    }));
    folder.Write("red.png", Write_Png({4, 3, std::string(48, '\xFF')}));
    folder.Write("logo.tpl", "new logo");
    const std::u16string red = folder.Text() + u"/red.png";
    for (const std::u16string path :
         {u"/00000000.app", u"/out/meta/banner.bin/arc/blyt/banner.brlyt", u"/out/meta/icon.bin/arc/blyt/icon.brlyt"}) {
        SCOPED_TRACE(To_Utf8(path));
        Banner banner = *Banner::Load(BannerSource(folder.Text() + path));
        const bool packed = banner.Source().Packed_In() != nullptr, has_logo = !path.ends_with(u"icon.brlyt");
        const Banner untouched = banner;
        const Picture before = *banner.Game_Picture();
        ASSERT_TRUE(banner.Apply(ReplacePicture{red}));
        EXPECT_TRUE(banner.Has_Unsaved_Changes());
        EXPECT_EQ(banner.Game_Picture()->texels, std::string(before.texels.size(), '\xFF'));
        EXPECT_TRUE(banner.Undo() && *banner.Game_Picture() == before && banner.Redo());
        EXPECT_FALSE(banner.Apply(ReplacePicture{folder.Text() + path}));
        for (const Edit& edit : ParseClo(u"-TITLE One-YEAR 1999-FORCE ITA-PAD +4", u"/").edits) {
            ASSERT_TRUE(banner.Apply(edit));
        }
        EXPECT_EQ(static_cast<bool>(banner.Apply(SetChannelName{u"GER", 1, u"Neu"})), packed);
        EXPECT_FALSE(banner.Apply(SetChannelName{u"GER", 0, std::u16string(21, u'x')}));
        for (const auto& [logo, notice] : {std::pair{folder.Text() + u"/logo.tpl", "but the logo is no texture"},
                                           {red, "the logo as I4 512 x 64"}}) {
            ASSERT_TRUE(banner.Apply(ReplaceLogo{logo}));
            EXPECT_EQ(has_logo ? banner.Plan_Save()->notices.front() : notice, notice);
        }
        const auto plan = banner.Plan_Save();
        EXPECT_EQ(plan->has_logo, has_logo);
        EXPECT_FALSE(banner.Was_Changed_Elsewhere());
        ASSERT_TRUE(banner.Save(*plan));
        EXPECT_TRUE(banner.Was_Changed_Elsewhere());
        Banner again = *Banner::Load(BannerSource(folder.Text() + path));
        EXPECT_EQ(again.Game_Picture()->texels, std::string(before.texels.size(), '\xFF'));
        // The way back leads across the save, to the very file that was there, and forth again.
        for (const std::u16string what : {u"Save", u""}) {
            Banner back = again;
            back.Continue(banner, *plan, what);
            EXPECT_EQ(*back.Undo_Name(), what);
            while (back.Undo()) continue;
            EXPECT_TRUE(*back.Game_Picture() == before && back.Names() == untouched.Names());
            EXPECT_EQ(back.Bytes(), untouched.Bytes());
            EXPECT_TRUE(back.Has_Unsaved_Changes());
            const std::string file = back.Plan_Save()->files.back().bytes;
            ASSERT_TRUE(!packed ||
                        Archive::Read(file)->Visit_Files([&](const std::string& member, std::string_view bytes) {
                            EXPECT_TRUE(member.ends_with(".brlyt") ||
                                        channel.Find_File(member).value_or(std::string(bytes)) == bytes)
                                << member;
                            return Result<>();
                        }));
            while (back.Redo()) continue;
            EXPECT_FALSE(back.Has_Unsaved_Changes());
        }
        folder.Write("out/meta/banner.bin/arc/timg/VCPic.tpl",
                     *channel.Find_File("meta/banner.bin/arc/timg/VCPic.tpl"));
    }
    const Archive saved = *Archive::Read(folder.Read("00000000.app"));
    EXPECT_EQ(saved.Warnings(), std::vector<std::string>());
    EXPECT_EQ((*saved.Names())[2], (std::array<std::u16string, 2>{u"Der Sternenbote", u"Neu"}));
    std::string changed;
    ASSERT_TRUE(saved.Visit_Files([&](const std::string& path, std::string_view bytes) {
        if (channel.Find_File(path).value_or(std::string(bytes)) == bytes) return Result<>();
        EXPECT_TRUE(path.find("/VCPic") != path.npos || bytes == folder.Read("out/" + path)) << path;
        return changed += path.substr(path.rfind('/')), Result<>();
    }));
    EXPECT_EQ(changed, "/banner.brlyt/my_BackSample_a.tpl/VCPic.tpl/IconVCPic.tpl");
    Banner same = *Banner::Load(BannerSource(folder.Text() + u"/00000000.app"));
    EXPECT_TRUE(same.Plan_Save()->files[0].bytes == folder.Read("00000000.app")) << "no edit, no change";
    ASSERT_TRUE(same.Apply(SetChannelName{u"KOR", 0, u"x"}));
    EXPECT_TRUE(same.Has_Unsaved_Changes());
    EXPECT_TRUE(same.Undo() && !same.Has_Unsaved_Changes());
    // A layout that lies nowhere like that has no picture, wherever the program was started.
    folder.Write("a/b/x", Neutral_Banner());
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path() / "out/meta/banner.bin/arc");
    EXPECT_FALSE(Banner::Load(BannerSource(folder.Text() + u"/a/b/x"))->Game_Picture());
    EXPECT_FALSE(Banner::From_Bytes(Neutral_Banner(), BannerSource(u"x")).Game_Picture());
    EXPECT_TRUE(Banner::Load(BannerSource(u"blyt/banner.brlyt"))->Game_Picture());
    std::filesystem::current_path(before);
}

/// Boxes for Korea beside neutral ones and in front of them, as no banner has them, so that each test can go wrong.
TEST(Banner, WritesKoreanInKoreanBoxesAlone) {
    const auto banner = [](std::initializer_list<std::pair<const char*, std::u16string>> boxes) {
        std::string sections;
        for (const auto& [name, text] : boxes) sections += Text_Box_Section(Clean_Text_Box(name, text, 0));
        return Banner::From_Bytes(Layout_File({sections, Empty_Section("gre1")}));
    };
    const auto texts = [](const Banner& from) {
        std::u16string all;
        for (const TextBoxInfo& box : Read_Layout(from.Bytes()).boxes) all += box.text + u"|";
        return all;
    };
    const std::u16string year = u"\uC77C\uBCF8\uD310 \uBC1C\uB9E4\uB144\uB3C4^1997\uB144", players = u"x y^1-4\uBA85";
    Banner korean = banner({{"T_VCTitle_KOR", u"Korea"}, {"T_Year_KOR", year}, {"T_Play_KOR", players}});
    EXPECT_EQ(korean.Neutral(), u"");
    EXPECT_EQ(Bare_Value(Field::year, year, u"KOR") + Bare_Value(Field::players, players, u"KOR"), u"19974");
    for (const Edit& edit :
         std::vector<Edit>{SetFieldEverywhere{Field::year, u"2001"}, WriteBox{u"T_Year", u"raw"},
                           SetField{Field::players, u"KOR", u"3"}, SetFieldEverywhere{Field::title, u"New"}}) {
        ASSERT_TRUE(korean.Apply(edit));
    }
    EXPECT_EQ(texts(korean),
              u"New|\uC77C\uBCF8\uD310 \uBC1C\uB9E4\uB144\uB3C4^2001\uB144|"
              u"\uD50C\uB808\uC774 \uC778\uC6D0\uC218^1-3\uBA85|");
    Banner mixed = banner({{"T_Play_KOR", u"a"}, {"T_Play", u"b"}, {"T_Play_KOR", u"another size"}});
    ASSERT_TRUE(mixed.Apply(WriteBox{u"T_Play", u"Z"}));
    EXPECT_EQ(texts(mixed), u"a|Z|another size|");
}

TEST(Banner, TellsWhatAConsoleWillNotShow) {
    const TempFolder folder;
    const std::string texts = Text_Box_Section(Clean_Text_Box("T_VCTitle_ENG", u"x", 0)) +
                              Text_Box_Section(Clean_Text_Box("T_ESRB_ENG", u"y", 0));
    const std::u16string file = folder.Text() + u"/arc/blyt/x.brlyt";
    folder.Write("arc/anim/banner_Start.brlan", "...T_ESRB_ENG...");
    folder.Write("arc/blyt/x.brlyt",
                 Layout_File({Material_Section({{"T_Year", {}, {}, -1}, {"T_Play_KOR", {}, {}, -1}}), texts,
                              Group_Section("ENG", {"T_ESRB_ENG"}), Group_Section("SPA", {"T_ESRB_ENG"}),
                              Empty_Section("gre1")}));
    folder.Write("a.vccs", Format_Scheme(Shipped_Schemes()[0].scheme));
    const ApplyScheme scheme{folder.Text() + u"/a.vccs"};
    const std::string lost =
        "region force leaves the group ENG, and banner_Start.brlan names T_ESRB_ENG, which gets another name";
    const std::pair<Edit, std::vector<std::string>> rows[] = {
        {SetField{Field::title, u"ENG", u"new"}, {}},
        {SetFieldEverywhere{Field::rating, u"T"}, {"but the ESRB text of ENG is shown for SPA, too"}},
        {scheme, {"but the scheme leaves the colors of T_Year, T_Play_KOR"}},
        {ForceRegion{u"ENG"}, {}},
        {ForceRegion{u"SPA"}, {"but " + lost}},
    };
    for (const auto& [edit, notices] : rows) {
        Banner banner = *Banner::Load(BannerSource(file));
        ASSERT_TRUE(banner.Apply(edit));
        EXPECT_EQ(banner.Plan_Save()->notices, notices);
    }
    EXPECT_EQ(Banner::Load(BannerSource(file))->Lost_By_Force_Of(u"SPA"), lost);
    Banner plain = Banner::From_Bytes(Layout_File({Material_Section({{"T_Year", {}, {}, -1}}), Empty_Section("gre1")}));
    ASSERT_TRUE(plain.Apply(scheme));
    EXPECT_EQ(plain.Plan_Save()->notices.size(), 1U) << "also of a scheme that changes nothing";
}

TEST(Banner, EightThreadsEditAndSaveEightEach) {
    const TempFolder folder;
    folder.Write("schemes/s.vccs", Format_Scheme(Shipped_Schemes()[0].scheme));
    const auto work = [&](int thread) {
        for (int number = 0; number < 8; ++number) {
            const std::string file = std::to_string(thread % 4) + "/" + std::to_string(8 * thread + number);
            folder.Write(file, German_Japanese_Banner());
            Banner banner = *Banner::Load(BannerSource(folder.Text() + u"/" + From_Utf8(file)));
            for (const Edit& edit : ParseClo(u"-TITLE A -YEAR 1 -COLOR s -FORCE JPN -PAD 0", folder.Text()).edits) {
                ASSERT_TRUE(banner.Apply(edit));
            }
            ASSERT_TRUE(banner.Undo() && banner.Redo() && banner.Save(*banner.Plan_Save()));
        }
    };
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 8; ++thread) threads.emplace_back(work, thread);
    threads.clear();
    std::set<std::string> saved;
    for (const std::string& name : folder.Names()) saved.insert(folder.Read(name));
    EXPECT_TRUE(saved.size() == 2 && !saved.contains(German_Japanese_Banner())) << "the scheme, and one banner";
}

TEST(Banner, KeepsHistoryWithinItsBound) {
    Banner banner = Banner::From_Bytes(Seven_Language_Banner(), {}, 1000);
    Banner unremembered = Banner::From_Bytes(Seven_Language_Banner(), {}, 0);
    for (const char16_t title : u"12345"s) {
        ASSERT_TRUE(banner.Apply(WriteBox{u"T_VCTitle_ENG", std::u16string(200, title)}, {title}));
    }
    ASSERT_TRUE(banner.Undo() && *banner.Undo_Name() == u"4" && *banner.Redo_Name() == u"5");
    ASSERT_TRUE(banner.Apply(WriteBox{u"T_PF", u"other"}));
    EXPECT_FALSE(banner.Redo()) << "what was taken back is gone once something else is done";
    while (banner.Undo()) continue;
    EXPECT_EQ(Get_Text(banner.Bytes(), "T_VCTitle_ENG"), std::u16string(200, u'3'));
    ASSERT_TRUE(unremembered.Apply(WriteBox{u"T_PF", u"other"}));
    EXPECT_FALSE(unremembered.Undo());
}

std::string Warnings(const std::string& data) {
    std::string found;
    for (const Warning& warning : Find_Warnings(data, Read_Layout(data))) found += warning.text + "|";
    return found;
}

TEST(Inspect, WarnsOfWhatAnEditWouldNotRewriteCleanly) {
    const auto stored = [](unsigned buffer, unsigned length, const std::u16string& text) {
        return Text_Box_Section({"A", Encode_Text(text), buffer, length, 0, {}});
    };
    const auto box = [](const char* name) { return Text_Box_Section(Clean_Text_Box(name, u"a", 0)); };
    const char* const moved = "text box A: an edit would take the text to begin at another place than the record says|";
    const std::pair<std::string, const char*> rows[] = {
        {stored(40, 6, u"Hi\0\0"s), ""},
        {stored(6, 6, u"a\0\0\0"s), ""},
        {stored(6, 5, u"Hi\0\0"s), "text box A: odd text length 5|"},
        {stored(34, 34, u"Hi\0\0"s), "text box A: text length 34 with 8 bytes stored|"},
        {stored(6, 6, u"Hi\0\0\0\0\0\0"s), moved},
        {stored(0, 0, u""), moved},
        {stored(4, 6, u"Hi\0\0"s), "text box A: buffer length 4 below text length 6|"},
        {stored(8, 8, u"a\0b\0"s), "text box A: zero code units inside the text|"},
        {box("point") + box("point_o"), ""},
        {box("A") + stored(4, 4, u"b\0"s), "text box A: another record, or none, is read under this name|"},
        {box("PFLine"), "no material PFLine: its colors are written into text box PFLine|"},
        {Pane_Section("Shade", {}), "no material Shade: its colors are written into the bytes at 0x1C|"},
        {Pane_Section("Shade", {}) + Material_Section({{"Shade"}}),
         "material Shade: the first place with this name is another one|"},
        {Section("mat1", "\0\1\0\0\0\0\0\x10"s + std::string(36, 'x')), ""},
        {Section("mat1", "\0\1\0\0\0\0\0\x14"s + std::string(36, 'x')), "material 0 lies outside its section|"},
        {Section("mat1", "\0\1\0\0\0\0\xFF\0"s), "material 0 lies outside its section|"},
        {"abcd\0\0\0\x64"s, "the last section does not end with the layout|"},
        {"abcd\0\0\0\4"s, "section at 0x10 has size 4|"},
        {"txt1\0\0\0\x10"s, "text box at 0x10: no room for its fields|"}};
    for (const auto& [sections, warnings] : rows) {
        EXPECT_EQ(Warnings(Layout_File({sections, Empty_Section("gre1")})), warnings) << Hex(sections);
    }
    for (const std::string& sample :
         {Neutral_Banner(), Banner_Without_Closing_Group(), German_Japanese_Banner(), Seven_Language_Banner()}) {
        EXPECT_EQ(Warnings(sample + std::string(4, '\0')), "");
        EXPECT_EQ(Warnings(sample + '\1'), "bytes other than zero behind the header length|");
        EXPECT_TRUE(Banner::From_Bytes(sample).Plan_Save()->files.back().bytes == sample) << "as an edit leaves it";
    }
    EXPECT_EQ(Warnings(Layout_File({stored(4, 4, u"a\0"s), Empty_Section("gre1")}).substr(0, 136)),
              "header length 144 is larger than the file|");
}

TEST(Inspect, ReportsAsTextAndAsJson) {
    const std::string data =
        Layout_File({Material_Section({{"Shade", {1, 2, 3, 4}, {5, 6, 7, -8}}}),
                     Text_Box_Section(Clean_Text_Box("A\x1b\x7f\xc2\x9b", u"\"\n\u3042\xD800\u0085", 0)),
                     Group_Section("R\\", {"A", "B"})});
    const FileReport report{"odd\x1b", {}, Read_Layout(data), {{"first"}, {"second"}}, {{"title-eng", u"\""}}};
    std::string text, json;
    Write_Text(report, [&](std::string_view part) { text += part; });
    Write_Json(report, [&](std::string_view part) { json += part; });
    EXPECT_EQ(text,
              "odd\\u001b\n  header length 284, file size 284\n"
              "  text     A\\u001b\\u007f\\u009b buffer    12 length    12  \"^あ\xEF\xBF\xBD\\u0085\n"
              "  material Shade              1   2   3   4     5   6   7  -8\n"
              "  group    R\\               A B\n  warning: first\n  warning: second\n");
    EXPECT_EQ(json, R"({"file": "odd\u001b", "file_size": 284, "header_length": 284, "text_boxes": [{)"
                    R"("name": "A\u001b\u007f\u009b", "text": "\"^\u3042\ud800\u0085", )"
                    R"("buffer_length": 12, "text_length": 12}], "materials": [{)"
                    R"("name": "Shade", "first": [1, 2, 3, 4], "second": [5, 6, 7, -8]}], )"
                    R"("groups": [{"name": "R\\", "members": ["A", "B"]}], )"
                    R"("warnings": ["first", "second"], "values": {"title-eng": "\""}})");
}

}  // namespace
