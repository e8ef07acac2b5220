#include <gtest/gtest.h>

#include "inspect/report.h"
#include "inspect/sections.h"
#include "inspect/warnings.h"
#include "layout/text_box.h"
#include "samples/banners.h"
#include "support.h"

namespace {

using namespace std::string_literals;

std::string All_Warnings(const std::string& layout) {
    std::string all;
    for (const std::string& warning : Find_Warnings(layout, Read_Layout(layout))) all += warning + "|";
    return all;
}

TEST(Samples, AreSafeToEditAndStayAsTheyAre) {
    for (const std::string& layout :
         {Seven_Language_Banner(), Neutral_Banner(), German_Japanese_Banner(), Banner_Without_Closing_Group()}) {
        EXPECT_EQ(All_Warnings(layout), "");
        const LayoutInfo info = Read_Layout(layout);
        std::vector<std::string> names;
        for (const TextBoxInfo& box : info.boxes) {
            names.push_back(box.name);
            EXPECT_EQ(Get_Text(layout, box.name), box.text);
        }
        EXPECT_GE(names.size(), 5U);
        EXPECT_EQ(Rewrite_Texts(layout, names), layout);
    }
}

TEST(Inspect, ShowsWhatTheLayoutHolds) {
    const std::string layout =
        Layout_With({Material_Section({{"Shade", {1, 2, 3, 4}, {5, 6, 7, -8}}}), Box("A", u"a\"\n\u3042\xD800"),
                     Group_Section("ENG", {"A", "B"}), Group_Section("R\\", {})});
    const FileReport report{"f", Read_Layout(layout), {"w"}};
    EXPECT_EQ(As_Text(report),
              "f\n  header length 320, file size 320\n"
              "  text     A                buffer    12 length    12  a\"^\xE3\x81\x82\xEF\xBF\xBD\n"
              "  material Shade              1   2   3   4     5   6   7  -8\n"
              "  group    ENG              A B\n  group    R\\              \n  warning: w\n");
    EXPECT_EQ(As_Json({report}),
              R"([{"file": "f", "file_size": 320, "header_length": 320, "text_boxes": [{"name": "A", )"
              R"("text": "a\"^\u3042\ud800", "buffer_length": 12, "text_length": 12}], "materials": )"
              R"([{"name": "Shade", "first": [1, 2, 3, 4], "second": [5, 6, 7, -8]}], "groups": )"
              R"([{"name": "ENG", "members": ["A", "B"]}, {"name": "R\\", "members": []}], "warnings": ["w"]}])"
              "\n");
}

TEST(Inspect, WarnsOfWhatAnEditWouldNotRewriteCleanly) {
    const std::string hi = "\0H\0i\0\0\0\0"s;
    struct Case {
        const char* words;
        std::vector<std::string> sections;
    };
    const Case cases[] = {
        {"", {Odd_Box("A", hi, 40, 6)}},  // spare buffer is common and harmless
        {"odd text length 5", {Odd_Box("A", hi, 6, 5)}},
        {"text length 34 with 8 bytes stored", {Odd_Box("A", hi, 34, 34)}},
        {"another place", {Odd_Box("A", hi + hi, 6, 6)}},
        {"another place", {Odd_Box("A", "", 0, 0)}},
        {"below text length", {Odd_Box("A", hi, 4, 6)}},
        {"zero code units", {Odd_Box("A", "\0a\0\0\0\0\0\0"s, 6, 6)}},
        {"does not end with the layout", {"abcd\0\0\0\x64"s}},
        {"zero code units", {Odd_Box("A", "\0a\0\0\0b\0\0"s, 8, 8)}},
        {"begins the name point_o", {Box("point", u"a"), Box("point_o", u"b")}},
        {"another record", {Box("A", u"a"), Box("A", u"bbb")}},
        {"material Line: the first place", {Material_Section({{"PFLine"}, {"Line"}})}},
        {"has size 4", {"abcd\0\0\0\x04"s}},
        {"outside its section", {Section("mat1", "\0\x01\0\0\0\0\xFF\0"s)}},
    };
    for (const Case& c : cases) {
        const std::string found = All_Warnings(Layout_With(c.sections));
        EXPECT_NE(found.find(c.words), found.npos) << c.words << " in " << found;
        EXPECT_EQ(found.empty(), c.words[0] == '\0') << found;
    }
    const std::string layout = Layout_With({Box("A", u"a")});
    EXPECT_EQ(All_Warnings(layout + std::string(100, '\0')), "") << "padding";
    EXPECT_NE(All_Warnings(layout + "x"), "");
    EXPECT_NE(All_Warnings(layout.substr(0, layout.size() - 8)), "");
}

TEST(Inspect, ReadsNothingOutsideTheData) {
    const std::string layout = Seven_Language_Banner();
    for (std::size_t size = 16; size < layout.size(); size += 3) {
        const std::string cut = layout.substr(0, size);
        EXPECT_NE(All_Warnings(cut), "");
    }
    EXPECT_FALSE(Is_Layout(layout.substr(0, 15)));
    EXPECT_FALSE(Is_Layout("RLYX" + layout.substr(4)));
}

}  // namespace
