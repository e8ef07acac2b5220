#include <gtest/gtest.h>

#include <random>

#include "layout/file_length.h"
#include "layout/numbers.h"
#include "layout/text_box.h"
#include "plain_rules.h"
#include "platform/text.h"
#include "support.h"

namespace {

using namespace std::string_literals;

TEST(GetText, CutsTheTextOffTheRecordsEnd) {
    struct Case {
        const char* what;
        std::string stored;
        unsigned text_length;
        std::u16string text;
    };
    const Case cases[] = {
        {"padded", "\0H\0i\0\0\0\0"s, 6, u"Hi"},
        {"not padded", "\0H\0e\0y\0\0"s, 8, u"Hey"},
        {"line feed", "\0001\0\n\0002\0\0"s, 8, u"1^2"},
        {"carriage return stays", "\0\r\0a\0b\0\0"s, 8, u"\rab"},
        {"terminator alone", "\0\0\0\0"s, 2, u""},
        {"zero units inside close up", "\0a\0\0\0\0\0b\0c\0\0"s, 12, u"abc"},
        {"surrogates, also lone ones", "\xD8\x3D\xDE\0\xDC\x01\0\0"s, 8, u"\xD83D\xDE00\xDC01"},
        {"length shorter than stored: the end counts", "\0a\0b\0c\0\0"s, 4, u"c"},
        {"odd length cannot be read", "\0H\0i\0\0\0\0"s, 5, u""},
        {"length beyond the record cannot be read", "\0H\0i\0\0\0\0"s, 0x270F + 1, u""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Get_Text(Layout_With({Odd_Box("B", c.stored, 999, c.text_length)}), "B"), c.text) << c.what;
    }
}

TEST(GetText, TakesTheLastExactNameButTheFirstWithItsKey) {
    const std::string same_size_1 = Box("T_Year", u"1111"), same_size_2 = Box("T_Year", u"2222");
    const std::string longer = Box("T_Year", u"longer text");
    struct Case {
        const char* what;
        std::vector<std::string> boxes;
        const char* name;
        std::u16string text;
    };
    const Case cases[] = {
        {"last of two sizes", {same_size_1, longer}, "T_Year", u"longer text"},
        {"same key: first of them", {same_size_1, same_size_2}, "T_Year", u"1111"},
        {"same key in front of another", {same_size_1, longer, same_size_2}, "T_Year", u"1111"},
        {"not a longer name", {Box("T_Year_ENG", u"x")}, "T_Year", u""},
        {"not a shorter name", {Box("T_Year", u"x")}, "T_Year_ENG", u""},
        {"case counts", {Box("t_year", u"x")}, "T_Year", u""},
        {"stray tag that starts no record", {Section("usd1", "..txt1.."), Box("A", u"x")}, "A", u"x"},
        {"stray tag between", {Box("A", u"x"), Section("usd1", "txt1txt1")}, "A", u"x"},
    };
    for (const Case& c : cases) EXPECT_EQ(Get_Text(Layout_With(c.boxes), c.name), c.text) << c.what;
}

TEST(GetText, NeedsTwoZeroBytesBehindTheName) {
    std::string layout = Layout_With({Box("0123456789abcdef", u"x")});
    EXPECT_EQ(Get_Text(layout, "0123456789abcdef"), u"x");
    layout[layout.find("0123456789abcdef") + 17] = 1;  // the second byte of the user data
    EXPECT_EQ(Get_Text(layout, "0123456789abcdef"), u"");
}

TEST(GetText, ReadsNothingOutsideTheData) {
    const std::string layout = Layout_With({Box("A", u"some text"), Box("AB", u"more")});
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

TEST(SetText, RebuildsTheRecord) {
    struct Case {
        std::u16string text;
        const char* tail;
        std::uint32_t section_size;
        unsigned text_length;
    };
    const Case cases[] = {
        {u"Hey", "0048006500790000", 0x7C, 8},
        {u"A", "00410000", 0x78, 4},
        {u"AB", "0041004200000000", 0x7C, 6},
        {u"a^b", "0061000a00620000", 0x7C, 8},
        {u"\xD83D\xDE00\x2028", "d83dde0020280000", 0x7C, 8},
    };
    const std::string before = Layout_With({Box("Q", u"?"), Odd_Box("B", "\0H\0i\0\0\0\0"s, 999, 6)});
    const std::size_t at = before.rfind("txt1");
    for (const Case& c : cases) {
        const std::string after = Set_Text(before, "B", c.text);
        const std::string record = after.substr(at, c.section_size);
        EXPECT_EQ(Hex(record.substr(0x74)), c.tail);
        EXPECT_EQ(Read_U32(record, 4), c.section_size);
        EXPECT_EQ(Read_U16(record, 0x4C), c.text_length);
        EXPECT_EQ(Read_U16(record, 0x4E), c.text_length);
        EXPECT_EQ(record.substr(8, 0x4C - 8), before.substr(at + 8, 0x4C - 8));
        EXPECT_EQ(record.substr(0x50, 0x24), before.substr(at + 0x50, 0x24));
        EXPECT_EQ(after.substr(0, at), before.substr(0, at));
        EXPECT_EQ(after.substr(at + c.section_size), before.substr(at + 0x7C));
        EXPECT_EQ(Get_Text(after, "B"), c.text);
    }
}

TEST(SetText, LeavesTheDataAloneWhenThereIsNothingToWrite) {
    const std::string layout = Layout_With({Box("B", u"text")});
    EXPECT_EQ(Set_Text(layout, "B", u""), layout);
    EXPECT_EQ(Set_Text(layout, "C", u"x"), layout);
    EXPECT_EQ(Set_Text(layout, "B", std::u16string(32767, u'x')), layout);
    EXPECT_EQ(Get_Text(Set_Text(layout, "B", std::u16string(32766, u'x')), "B").size(), 32766U);
    EXPECT_EQ(Set_Text(layout, "B", u"text"), layout);
}

TEST(SetText, FindsItsBoxByThePrefix) {
    struct Case {
        const char* what;
        std::vector<std::string> names;
        const char* name;
        std::string changed;
    };
    const Case cases[] = {
        {"last with the prefix", {"T_Year", "T_Year_ENG", "T_Play"}, "T_Year", "T_Year_ENG"},
        {"itself when it is last", {"T_Year_ENG", "T_Year"}, "T_Year", "T_Year"},
        {"neutral box only", {"T_Year", "T_Year_ENG"}, "T_Year_NONE", "T_Year"},
        {"no neutral box", {"T_Year_ENG"}, "T_Year_NONE", ""},
        {"ending in other letters", {"T_Year"}, "T_Year_none", ""},
        {"ending in mixed letters", {"T_Year"}, "T_Year_None", ""},
    };
    for (const Case& c : cases) {
        std::vector<std::string> boxes;
        for (const std::string& name : c.names) boxes.push_back(Box(name, std::u16string(name.size(), u'.')));
        const std::string after = Set_Text(Layout_With(boxes), c.name, u"fresh");
        std::string changed;
        for (const std::string& name : c.names) {
            if (Get_Text(after, name) == u"fresh") changed += name;
        }
        EXPECT_EQ(changed, c.changed) << c.what;
    }
}

TEST(SetText, WritesBehindTheFieldsOfAnEmptyRecord) {
    std::string box = Box("B", u"x").substr(0, 0x50);
    Write_U32(box, 4, 0x50);
    Write_U16(box, 0x4E, 0);
    EXPECT_EQ(Get_Text(Set_Text(Layout_With({box}), "B", u"new"), "B"), u"new");
}

TEST(GetText, TestsThePieceInFrontOfTheFirstTag) {
    const std::string box = Box("T_Year_ENG", u"x");
    EXPECT_EQ(Get_Text(box.substr(4, 8) + "T_Year\0\0"s + box, "T_Year"), u"x");
}

TEST(SetText, ReplacesEveryIdenticalRecord) {
    const std::string twin = Box("B", u"same"), other = Box("B", u"else");
    for (const char16_t* text : {u"x", u"a much longer text", u"four"}) {
        EXPECT_EQ(Set_Text(Layout_With({twin, other, twin, Box("C", u"c"), twin}), "B", text).substr(16),
                  Layout_With({Box("B", text), other, Box("B", text), Box("C", u"c"), Box("B", text)}).substr(16));
    }
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
            if (pick(3) == 0) sections.push_back(sections[pick(sections.size())]);
        }
        std::string expected = Layout_With(sections);
        const std::string data = expected;
        std::vector<BoxText> writes;
        std::vector<std::string> all(std::begin(names), std::end(names));
        for (std::size_t i = pick(6); i-- > 0;) writes.push_back({names[pick(7)], texts[pick(9)]});
        for (const BoxText& write : writes) expected = plain::Set(expected, write.name, write.text);
        std::string written = Set_Texts(data, writes);
        ASSERT_EQ(Hex(written), Hex(expected)) << "round " << round;
        for (const std::string& name : all) {
            ASSERT_EQ(Get_Text(expected, name), plain::Get(expected, name)) << "round " << round;
            expected = plain::Set(expected, name, plain::Get(expected, name));
        }
        ASSERT_EQ(Hex(Rewrite_Texts(written, all)), Hex(expected)) << "round " << round;
    }
}

TEST(FileLength, IsWrittenBehindTheVersion) {
    const std::string layout = Layout_With({}) + std::string(0x1F40 - 24, '\x55');
    std::string expected = layout;
    expected.replace(8, 4, "\0\0\x1F\x40"s);
    EXPECT_EQ(Set_File_Len(layout), expected);
    EXPECT_EQ(Set_File_Len("12345678901"), "12345678901");
    EXPECT_EQ(Set_File_Len("123456789012"), "12345678\0\0\0\x0C"s);
}

TEST(Padding, MayBeAsLongAsItsLimit) { EXPECT_EQ(Read_Padding(u"268435456")->count, 268435456U); }

TEST(CutPadding, CutsBehindTheLayoutsEnd) {
    const std::string closing = "gre1\0\0\0\x08"s, root = "RootGroup"s + std::string(11, '\0');
    struct Case {
        std::string before, after;
    };
    const Case cases[] = {
        {"abc" + closing, "abc" + closing},
        {"abc" + closing + std::string(700, '\0'), "abc" + closing},
        {"abc" + closing + "anything", "abc" + closing},
        {"a" + closing + "b" + closing + "c", "a" + closing + "b" + closing},
        {root + "abc" + closing + "d", root + "abc" + closing},
        {"abc" + root + "def" + root + "g", "abc" + root},
        {"abcRootGroup" + std::string(10, '\0') + "x", "abcRootGroup" + std::string(10, '\0') + "x"},
        {"gre1\0\0\0\x0C rest"s, "gre1\0\0\0\x0C rest"s},
        {"", ""},
    };
    for (const Case& c : cases) EXPECT_EQ(Hex(CutPadding(c.before)), Hex(c.after));
}

}  // namespace
