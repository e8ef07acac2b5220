// make-seeds FOLDER: writes the first inputs of each fuzz target.
#include <filesystem>
#include <fstream>

#include "colors/scheme.h"
#include "generate/banners.h"
#include "generate/channel.h"
#include "generate/layout_builder.h"
#include "generate/texture.h"

using namespace bannersmith;

namespace {

namespace fs = std::filesystem;

void Write(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 1;
    const fs::path folder = argv[1];
    const std::string boxes = Text_Box_Section(Clean_Text_Box("T_VCTitle_ENG", u"ab", 0)) +
                              Text_Box_Section(Clean_Text_Box("T_Year", u"1", 0)) +
                              Text_Box_Section(Clean_Text_Box("T_PF", u"x", 0));
    const std::string materials = Material_Section({{"T_PF", {1, 2, 3, 4}, {5, 6, 7, 8}, 0}});
    const std::string small = Layout_File(
        {materials, boxes, Group_Section("RootGroup", {}), Group_Section("ENG", {"A"}), Empty_Section("gre1")});
    Write(folder / "layout/small", "\x05\x01\x02\x03\x04\x05" + small);
    Write(folder / "layout/twins", "\x03\x21\x02\x61" + boxes + boxes);
    Write(folder / "inspect/small", small);
    Write(folder / "inspect/banner", Banner_Without_Closing_Group());
    const std::string archive = U8_Archive({{"arc/blyt/banner.brlyt", small}, {"arc/timg/my_Back.tpl", "x"}});
    Write(folder / "archive/part", Channel_Part(archive));
    Write(folder / "archive/bare", archive);
    Write(folder / "archive/channel",
          Channel_File("x", {}, {0, archive.size(), 0}, U8_Archive({{"meta/banner.bin", archive}})));
    const Picture picture{9, 7, std::string(9 * 7 * TexelSize, 'x')};
    Write(folder / "texture/png", Write_Png(picture));
    Write(folder / "texture/jpeg", Jpeg_File(picture));
    Write(folder / "texture/rgb5a3", Texture_File(TextureFormat::rgb5a3, 9, 7, [](int x, int y) {
              return Pixel{0.1 * x, 0.1 * y, 0, 0.1 * x};
          }));
    Write(folder / "scheme/shipped", Format_Scheme(Shipped_Schemes()[1].scheme));
    Write(folder / "command_line/all",
          "TITLE A \"b\"-YEAR 1985-PLAY 4-ESRB E-SYSTEM X^Y-T_ENG t-Y_ENG 1-E_ENG e-H_T_PF raw-PAD +4-FORCE jpn-3");
    Write(folder / "command_line/files", "LOGO x.tpl-COLOR none");
    return 0;
}
