#include <gtest/gtest.h>

#include "colors/materials.h"
#include "colors/scheme.h"
#include "layout/mod_globals.h"
#include "samples/banners.h"
#include "support.h"

namespace {

using namespace std::string_literals;

std::string Numbers(int count, const std::string& separator, const std::string& number = "7") {
    std::string text;
    for (int i = 0; i < count; ++i) text += (i ? separator : "") + number;
    return text;
}

/// A scheme in which each of the 114 numbers is another one.
Scheme Distinct_Scheme() {
    Scheme scheme;
    std::uint8_t next = 100;
    for (ColorPair& pair : scheme) {
        for (Color& color : pair) {
            const std::uint8_t red = next++, green = next++, blue = next++;
            color = Make_Color(red, green, blue);
        }
    }
    return scheme;
}

TEST(SchemeFile, HasOneLineForEachElement) {
    Scheme scheme{};
    scheme[0] = {Make_Color(255, 0, 128), Make_Color(0, 64, 255)};
    const std::string contents = Format_Scheme(scheme);
    const std::string black = " 0  0  0  0  0  0 \r\n";
    std::string expected = " 255  0  128  0  64  255 \r\n";
    for (int i = 1; i < 19; ++i) expected += black;
    EXPECT_EQ(contents, expected);
}

TEST(SchemeFile, IsReadBackWhateverItsLines) {
    const Scheme scheme = Distinct_Scheme();
    std::string contents = Format_Scheme(scheme);
    Scheme read{};
    EXPECT_EQ(Parse_Scheme(contents, read), "");
    EXPECT_EQ(read, scheme);
    for (char& c : contents) c = c == '\r' || c == '\n' ? ' ' : c;
    read = {};
    EXPECT_EQ(Parse_Scheme(contents + "and more", read), "");
    EXPECT_EQ(read, scheme);
    for (const char* separator : {",", " , ", "\n", "\r\n", ",\r\n", "  ", "\r"}) {
        EXPECT_EQ(Parse_Scheme(Numbers(114, separator), read), "") << separator;
        EXPECT_EQ(read[18][1], Make_Color(7, 7, 7)) << separator;
    }
}

TEST(SchemeFile, IsRefusedWhole) {
    const Scheme before = Distinct_Scheme();
    for (const std::string& contents :
         {""s, " \r\n"s, Numbers(113, " "), Numbers(113, " ") + ",", Numbers(113, " ") + " 256",
          Numbers(113, " ") + " -1", Numbers(113, " ") + " 1.5", Numbers(113, " ") + " x", Numbers(113, " ") + " 7x",
          "5,," + Numbers(114, " "), "7\t" + Numbers(114, " "), Numbers(113, " ") + " 99999999999999999999",
          "+-1 " + Numbers(114, " ")}) {
        Scheme scheme = before;
        EXPECT_NE(Parse_Scheme(contents, scheme), "") << contents;
        EXPECT_EQ(scheme, before);
    }
    Scheme scheme;
    EXPECT_EQ(Parse_Scheme(Numbers(13, " ") + " 256", scheme), "Shade: 256 is not between 0 and 255");
}

TEST(MaterialColors, AreThirteenBytesBehindTheName) {
    std::string data = "..VCPicBase" + std::string(11, '\0') + std::string(30, '\x11') + "VCPic" +
                       std::string(15, '\0') + std::string(30, '\x22') + "VCPic" + std::string(40, '\0');
    const std::string before = data;
    const std::size_t at = data.find("VCPic\0"s);
    const ColorPair colors = {Make_Color(1, 2, 3), Make_Color(4, 5, 6)};
    EXPECT_EQ(&Set_Mat_Colors(data, "VCPic", colors), &data);
    EXPECT_EQ(Hex(data.substr(at + 20, 16)),
              "22"
              "01000200030000000400050006"
              "2222");
    EXPECT_EQ(data.substr(0, at + 20), before.substr(0, at + 20));
    EXPECT_EQ(data.substr(at + 36), before.substr(at + 36));
    ColorPair read{};
    EXPECT_TRUE(Get_Mat_Colors(data, "VCPic", read));
    EXPECT_EQ(read, colors);
    EXPECT_FALSE(Get_Mat_Colors(data, "vcpic", read));
    EXPECT_EQ(read, colors);
}

TEST(MaterialColors, StayInsideTheData) {
    const std::string name = "Shade" + std::string(15, '\0');
    for (std::size_t behind = 0; behind < 20; ++behind) {
        std::string data = name + std::string(behind, 'x');
        const std::string before = data;
        ColorPair read{};
        EXPECT_EQ(Get_Mat_Colors(data, "Shade", read), behind >= 14);
        Set_Mat_Colors(data, "Shade", {0, 0});
        EXPECT_EQ(data == before, behind < 14);
        EXPECT_EQ(data.size(), before.size());
    }
}

TEST(ApplyColorScheme, WritesEachElementIntoItsMaterials) {
    const std::pair<const char*, std::size_t> elements[] = {
        {"PFLine", 0},         {"T_PF", 1},           {"Shade", 2},       {"Back0", 3},       {"Back1", 4},
        {"Back2", 5},          {"Back3", 6},          {"Back4", 7},       {"YearLine", 8},    {"PlayLine", 9},
        {"T_VCTitle_ENG", 10}, {"T_VCTitle_JPN", 10}, {"T_Play_NED", 11}, {"T_Year_GER", 12}, {"T_ESRB_SPA", 13},
        {"VCPic", 14},         {"VCPicBase", 15},     {"VCPicSha", 16},   {"BackMask1", 17},  {"BackMask2", 18}};
    const TempFolder folder;
    const Scheme scheme = Distinct_Scheme();
    folder.Write("schemes/Mine.vccs", Format_Scheme(scheme));
    folder.Write("schemes/Short.vccs", Format_Scheme(scheme).substr(0, 400));
    const std::string before = BrlytData = Seven_Language_Banner();

    EXPECT_EQ(Apply_Color_Scheme(folder.Text(), u"None")->subject, folder.Text() + u"\\schemes\\None.vccs");
    EXPECT_TRUE(Apply_Color_Scheme(folder.Text(), u"Short"));
    EXPECT_EQ(BrlytData, before);

    EXPECT_FALSE(Apply_Color_Scheme(folder.Text(), u"Mine"));
    for (const auto& [material, element] : elements) {
        ColorPair read{};
        EXPECT_TRUE(Get_Mat_Colors(BrlytData, material, read));
        EXPECT_EQ(read, scheme[element]) << material;
    }
    for (const char* code : {"ENG", "GER", "FRA", "ITA", "SPA", "NED", "JPN"}) {
        ColorPair read{};
        EXPECT_TRUE(Get_Mat_Colors(BrlytData, "T_ESRB_" + std::string(code), read));
        EXPECT_EQ(read, scheme[13]) << code;
    }
    BrlytData = "T_Year_NONE" + std::string(40, '\0');
    const std::string none = BrlytData;
    EXPECT_FALSE(Apply_Color_Scheme(folder.Text(), u"Mine"));
    EXPECT_EQ(BrlytData, none);
    BrlytData = "T_VCTitle" + std::string(40, '\0');
    const std::string neutral = BrlytData;
    EXPECT_FALSE(Apply_Color_Scheme(folder.Text(), u"Mine"));
    EXPECT_EQ(BrlytData, neutral);
}

}  // namespace
