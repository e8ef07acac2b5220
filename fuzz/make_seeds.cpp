// make-seeds FOLDER: writes the first inputs of each fuzz target.
#include <filesystem>
#include <fstream>

#include "colors/scheme.h"
#include "generate/animation.h"
#include "generate/banners.h"
#include "generate/channel.h"
#include "generate/layout_builder.h"
#include "generate/texture.h"

using namespace bannersmith;
using namespace std::string_literals;

int main(int argc, char** argv) {
    if (argc != 2) return 1;
    const std::string boxes = Text_Box_Section(Clean_Text_Box("T_VCTitle_ENG", u"ab", 0)) +
                              Text_Box_Section(Clean_Text_Box("T_Year", u"1", 0)) +
                              Text_Box_Section(Clean_Text_Box("T_PF", u"x", 0));
    const std::string small =
        Layout_File({Material_Section({{"T_PF", {1, 2, 3, 4}, {5, 6, 7, 8}, 0}}), boxes, boxes,
                     Group_Section("RootGroup", {}), Group_Section("ENG", {"A"}), Empty_Section("gre1")});
    const std::string archive = U8_Archive({{"arc/blyt/banner.brlyt", small}, {"arc/timg/my_Back.tpl", "x"}});
    const Picture picture{9, 7, std::string(9 * 7 * TexelSize, 'x')};
    std::string jpeg = Jpeg_File(picture);
    const auto pixel = [](int x, int y) { return Pixel{0.1 * x, 0.1 * y, 0, 0.1 * x}; };
    Material staged{"M"};
    staged.more = {{0, 1, 2}, {1, 2, 0}};
    staged.stages = {{0, {15, 4, 8, 10}, {7, 2, 4, 5}}, {1, {0, 9, 11, 14}, {0, 7, 7, 4}, true}};
    const std::string game = Layout_File(
        {Name_List_Section("txl1", {"a", "b"}), Material_Section({staged}), Pane_Section("P", {1, 2, 9, 9}, true),
         Empty_Section("pas1"), Picture_Section("Q", 0, {0, 0, 60, 40}), Empty_Section("pae1"),
         Group_Section("RootGroup", {}), Empty_Section("grs1"), Group_Section("GER", {"Q"}), Empty_Section("gre1")});
    const std::pair<const char*, std::string> seeds[] = {
        {"layout/fields", "TITLE A \"b\"-YEAR 1985-PLAY 4-ESRB E-SYSTEM X^Y-PAD +4\n" + small},
        {"layout/others", "T_ENG t-Y_ENG 1-E_ENG e-H_T_PF raw-FORCE jpn-LOGO x-3\n" + Banner_Without_Closing_Group()},
        // Broke the reader once: sections that tell of more materials than they have room for.
        {"layout/many_materials", "x\n" + Layout_File(std::vector(300, "mat1\0\0\0\x0C\xFF\xFF\0\0"s))},
        {"archive/part", Channel_Part(archive)},
        {"archive/channel", Channel_File("x", {}, {0, archive.size(), 0}, U8_Archive({{"meta/banner.bin", archive}}))},
        {"texture/png", Write_Png(picture)},
        {"texture/jpeg", jpeg},
        // Broke the reader once: codes that no table explains.
        {"texture/jpeg_without_tables", jpeg.replace(jpeg.find("\xFF\xC4"), 2, "\xFF\xE5")},
        {"texture/rgb5a3", Texture_File(TextureFormat::rgb5a3, 9, 7, pixel)},
        {"recipe/table", "banner;title-ger;color:Back0\r\nx;\"a\"\"b\";010203,040506\r\n"},
        {"recipe/objects", "[{\"banner\": \"x\", \"text:T_PF\": \"\\u3042\"},\n {\"banner\": \"y\", \"year\": 1990}]"},
        {"still/icon", Channel_Icon()},
        {"still/texts", small},
        {"still/game", game},
        {"animation/curves", Animation_File(60, true,
                                            {{"IconVCPic", false, "RLVC", 16, {{0, 0, 0}, {60, 255, 1}}},
                                             {"Logo", true, "RLTS", 0, {{0, 0, 1}, {60, 1, 0}}}})},
        {"scheme/shipped", Format_Scheme(Shipped_Schemes()[1].scheme)}};
    for (const auto& [name, bytes] : seeds) {
        const auto path = std::filesystem::path(argv[1]) / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
    }
    return 0;
}
