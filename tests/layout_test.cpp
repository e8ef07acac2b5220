#include <gtest/gtest.h>

#include <random>

#include "base/numbers.h"
#include "generate/layout_builder.h"
#include "layout/file_length.h"
#include "layout/pieces.h"
#include "layout/text_box.h"
#include "plain_rules.h"
#include "support.h"

using namespace bannersmith;

namespace {

using namespace std::string_literals;

std::string Box(std::string_view name, std::u16string_view text) {
    return Text_Box_Section(Clean_Text_Box(name, text, 0));
}

TEST(GetText, NeedsTwoZeroBytesBehindTheName) {
    std::string layout = Layout_File({Box("0123456789abcdef", u"x")});
    EXPECT_EQ(Get_Text(layout, "0123456789abcdef"), u"x");
    layout[layout.find("0123456789abcdef") + 17] = 1;  // the second byte of the user data
    EXPECT_EQ(Get_Text(layout, "0123456789abcdef"), u"");
}

TEST(GetText, ReadsNothingOutsideTheData) {
    const std::string layout = Layout_File({Box("A", u"some text"), Box("AB", u"more")});
    for (std::size_t size = 0; size <= layout.size(); ++size) {
        const std::string cut = layout.substr(0, size);
        const std::string written = Set_Text(cut, "A", u"fresh");
        if (size < 0x50) { EXPECT_EQ(written, cut); }
        Get_Text(cut, "A");
        Get_Text(cut, "");
    }
    EXPECT_EQ(Set_Text("", "A", u"x"), "");
}

TEST(GetText, ARecordCutByTheEndIsWhatRemains) {
    const std::string layout = Layout_File({Box("A", u"abcdef")});  // 14 bytes and two of padding
    EXPECT_EQ(Get_Text(layout.substr(0, layout.size() - 2), "A"), u"abcdef");
}

TEST(SetText, WritesBehindTheFieldsOfAnEmptyRecord) {
    std::string box = Box("B", u"x").substr(0, 0x50);
    Write_U32(box, 4, 0x50);
    Write_U16(box, 0x4E, 0);
    EXPECT_EQ(Get_Text(Set_Text(Layout_File({box}), "B", u"new"), "B"), u"new");
}

TEST(GetText, TestsThePieceInFrontOfTheFirstTag) {
    const std::string box = Box("T_Year_ENG", u"x");
    EXPECT_EQ(Get_Text(box.substr(4, 8) + "T_Year\0\0"s + box, "T_Year"), u"x");
}

TEST(SetText, FollowsThePlainRulesOnRandomLayouts) {
    std::mt19937 random(20261122);
    const auto pick = [&](std::size_t count) { return random() % count; };
    const std::string names[] = {"T_Year", "T_Year_ENG", "T_Yea", "T_PF", "T_Play_NONE", "", "L"};
    const std::u16string texts[] = {u"",    u"1",      u"ab", u"x\u7478\u7431y", u"same text", u"\u7478\u7431",
                                    u"\0z", u"\xD800", u"a^b"};
    const auto any_box = [&] {
        std::string box = Box(names[pick(7)], texts[pick(9)]);
        if (pick(8) == 0) Write_U32(box, 4, static_cast<std::uint32_t>(pick(600)));
        if (pick(8) == 0) Write_U16(box, 0x4E, static_cast<std::uint16_t>(pick(60)));
        if (pick(8) == 0) box.resize(pick(box.size()));
        return box;
    };
    for (int round = 0; round < 3000; ++round) {
        std::vector<std::string> sections;
        for (std::size_t i = pick(7); i-- > 0;) {
            sections.push_back(pick(5) ? any_box() : Section("usd1", "..txt1T_Ye"));
            const std::string repeated = sections[pick(sections.size())];
            for (std::size_t copies = pick(4) ? pick(3) / 2 : 9; copies-- > 0;) sections.push_back(repeated);
        }
        std::string expected = Layout_File(sections);
        const std::string data = expected;
        std::vector<BoxText> writes;
        std::vector<std::string> all(std::begin(names), std::end(names));
        for (std::size_t i = pick(6); i-- > 0;) writes.push_back({names[pick(7)], texts[pick(9)]});
        for (const BoxText& write : writes) expected = plain::Set(expected, write.name, write.text);
        const std::vector<std::string_view> names_at_once(std::begin(names), std::end(names));
        for (const auto test : {Pieces::Test::exact, Pieces::Test::prefix}) {
            const auto found = Pieces(data).Find_Records(data, names_at_once, test);
            for (std::size_t i = 0; i < found.size(); ++i) {
                ASSERT_EQ(found[i], Pieces(data).Find_Record(data, names[i], test)) << "round " << round;
            }
        }
        std::string written = Set_Texts(data, writes);
        ASSERT_EQ(Hex(written), Hex(expected)) << "round " << round;
        for (const std::string& name : all) {
            ASSERT_EQ(Get_Text(expected, name), plain::Get(expected, name)) << "round " << round;
            expected = plain::Set(expected, name, plain::Get(expected, name));
        }
        ASSERT_EQ(Hex(Rewrite_Texts(written, all)), Hex(expected)) << "round " << round;
    }
}

TEST(Padding, IsAWholeNumberUpToItsLimit) {
    EXPECT_EQ(Read_Padding(u"268435456")->count, 268435456U);
    EXPECT_TRUE(Read_Padding(u"+007")->append && Read_Padding(u"+007")->count == 7 && !Read_Padding(u"7")->append);
    for (const std::u16string text :
         {u"abc", u"+", u"-1", u"1.5", u"1 2", u"\u0661", u"268435457", u"+99999999999999999999"}) {
        EXPECT_EQ(Read_Padding(text).Why().subject, u"Padding \"" + text + u"\"");
    }
}

}  // namespace
