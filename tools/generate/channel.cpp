#include "generate/channel.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include "container/archive.h"
#include "container/md5.h"
#include "container/part.h"
#include "generate/animation.h"
#include "generate/banners.h"
#include "generate/layout_builder.h"
#include "generate/texture.h"

namespace bannersmith {

namespace {

constexpr std::size_t Alignment = 32;

/// Collects nodes and names in the order of a walk through the folders.
class U8Builder {
 public:
    explicit U8Builder(const std::vector<PackedFile>& files) : files_(files) {
        Add_Node(true, "");
        Add_Folder("", 0, 0);
    }

    std::string Archive() const {
        const std::size_t table = nodes_.size() * 12 + names_.Data().size();
        const std::size_t data = (0x20 + table + Alignment - 1) / Alignment * Alignment;
        ByteWriter contents, out;
        out.U32(0x55AA382D).U32(0x20).U32(Word(table)).U32(Word(data)).Zeros(16);
        for (const Node& node : nodes_) {
            const std::size_t place = data + contents.Align(Alignment).Data().size();
            out.U32(Word(node.name | (node.is_folder ? 1U << 24 : 0)));
            out.U32(Word(node.is_folder ? node.parent : place));
            out.U32(Word(node.is_folder ? node.end : files_[node.file].bytes.size()));
            if (!node.is_folder) contents.Bytes(files_[node.file].bytes);
        }
        out.Bytes(names_.Data()).Align(Alignment);
        return out.Bytes(contents.Align(Alignment).Data()).Data();
    }

 private:
    struct Node {
        bool is_folder;
        std::size_t name, parent, end, file;
    };

    static std::uint32_t Word(std::size_t number) { return static_cast<std::uint32_t>(number); }

    std::size_t Add_Node(bool is_folder, std::string_view name, std::size_t parent = 0,
                         std::size_t file = 0) {
        nodes_.push_back({is_folder, names_.Data().size(), parent, 0, file});
        names_.Bytes(name).Zeros(1);
        return nodes_.size() - 1;
    }

    /// The files from `file` on whose paths begin with `folder`; returns the first that does not.
    std::size_t Add_Folder(const std::string& folder, std::size_t node, std::size_t file) {
        while (file < files_.size() && files_[file].path.starts_with(folder)) {
            const std::string rest = files_[file].path.substr(folder.size());
            const std::size_t slash = rest.find('/');
            if (slash == rest.npos) {
                Add_Node(false, rest, node, file++);
            } else {
                const std::size_t inner = Add_Node(true, rest.substr(0, slash), node);
                file = Add_Folder(folder + rest.substr(0, slash + 1), inner, file);
            }
        }
        nodes_[node].end = nodes_.size();
        return file;
    }

    const std::vector<PackedFile>& files_;
    std::vector<Node> nodes_;
    ByteWriter names_;
};

Pixel Grey(double light) {
    return {light, light, light, light};
}

/// A hill under a starry sky, the game's picture.
Pixel Game_Picture(int x, int y, int width) {
    const double across = 1.0 * x / width, down = 4.0 * y / (3 * width);
    const double hill = 0.75 + 0.12 * std::sin(across * 2 * std::numbers::pi);
    const bool star = (x * 7919 + y * 104729) % 997 == 0;
    if (down > hill) return {0.1, 0.35 + 0.2 * (down - hill), 0.15, 1};
    if (star) return {1, 1, 0.9, 1};
    return {0.1 + 0.3 * down, 0.1 + 0.2 * down, 0.35 + 0.3 * down, 1};
}

std::string Texture(const std::string& name) {
    using enum TextureFormat;
    if (name == "VCPic") {
        return Texture_File(rgb565, 256, 192, [](int x, int y) { return Game_Picture(x, y, 256); });
    }
    if (name == "IconVCPic") {
        return Texture_File(rgb565, 128, 96, [](int x, int y) { return Game_Picture(x, y, 128); });
    }
    if (name == "LogoSample") {
        return Texture_File(rgb5a3, 112, 32, [](int x, int y) {
            const bool inside = (x / 4 + y / 4) % 3 != 0;
            return Pixel{0.9, 0.4, 0.1 + x / 224.0, inside ? 1.0 : 0.0};
        });
    }
    if (name == "my_VCLine_e") {  // a band that ends in a bright line
        return Texture_File(ia4, 128, 64, [](int, int y) {
            const bool is_line = y >= 58;
            return Pixel{0, is_line ? 1.0 : y / 116.0, 0, is_line ? 1.0 : 0.4 + y / 116.0};
        });
    }
    if (name == "my_BackSample_a") {  // a comet in each square
        return Texture_File(i4, 512, 64, [](int x, int y) {
            const double across = x % 64 - 40, down = y - 32;
            const double head = 9 - std::hypot(across, down);
            const double tail = across < 0 ? 7 * (1 + across / 36) - std::abs(down) : 0;
            return Grey(std::clamp(std::max(head, tail), 0.0, 1.0));
        });
    }
    if (name == "my_TVW_a") {  // the shape of a screen
        return Texture_File(i4, 128, 128, [](int x, int y) {
            const double across = std::max(std::abs(x - 63.5) - 52, 0.0);
            const double down = std::max(std::abs(y - 63.5) - 48, 0.0) * 0.75;
            return Grey(std::clamp(11 - std::hypot(across, down), 0.0, 1.0));
        });
    }
    if (name == "my_Shade_a") {  // soft at its sides
        return Texture_File(i4, 32, 32, [](int x, int y) {
            const double side = std::max(std::abs(x - 15.5), std::abs(y - 15.5)) / 15.5;
            return Grey(std::clamp((1 - side) * 5, 0.0, 1.0) * 0.5);
        });
    }
    if (name == "my_Grad_b") {  // a ramp from top to bottom
        return Texture_File(i4, 8, 32, [](int, int y) { return Grey(y / 31.0); });
    }
    return Texture_File(i4, 16, 16, [](int x, int y) { return Grey((x + y) % 2 == 0 ? 0.2 : 0); });
}

void Add_Textures(std::vector<PackedFile>& files, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        files.push_back({"arc/timg/" + name + ".tpl", Texture(name)});
    }
}

std::string Banner_Content() {
    const std::vector<Curve> start = {
        {"N_VCPic", false, "RLVC", 16, {{0, 0, 0}, {60, 0, 0}, {120, 255, 0}}},
        {"N_VCPic", false, "RLPA", 0, {{0, 400, 0}, {120, 130, 0}}},
        {"Back1", true, "RLTS", 0, {{0, -1, 0.02F}, {210, 0, 0.001F}}},
        {"Back2", true, "RLTS", 0, {{0, 1, -0.02F}, {210, 0, -0.001F}}},
        {"Back3", true, "RLTS", 0, {{0, -1, 0.02F}, {210, 0, 0.001F}}},
        {"Back4", true, "RLTS", 0, {{0, 1, -0.02F}, {210, 0, -0.001F}}},
    };
    const auto along = [](const char* name, float by) {
        return Curve{name, true, "RLTS", 0, {{0, 0, by / 3998}, {3998, by, by / 3998}}};
    };
    const std::vector<Curve> loop = {
        {"N_VCPic", false, "RLVC", 16, {{0, 255, 0}, {3998, 255, 0}}},
        {"N_VCPic", false, "RLPA", 0, {{0, 130, 0}, {3998, 130, 0}}},
        {"N_VCPic", false, "RLPA", 1, {{0, 44, 0}, {2000, 48, 0}, {3998, 44, 0}}},
        along("Back1", 4),
        along("Back2", -4),
        along("Back3", 4),
        along("Back4", -4),
    };
    std::string layout = Channel_Banner();
    layout.resize(12000, '\0');  // the room that channels reserve
    std::vector<PackedFile> files = {
        {"arc/anim/banner_Loop.brlan", Animation_File(3999, true, loop)},
        {"arc/anim/banner_Start.brlan", Animation_File(211, false, start)},
        {"arc/blyt/banner.brlyt", layout},
    };
    Add_Textures(files, {"my_BackSample_a", "my_Beta16x16_a", "my_Grad_b", "my_Shade_a", "my_TVW_a",
                         "my_VCLine_e", "VCPic"});
    return U8_Archive(files);
}

std::string Icon_Content() {
    const std::vector<Curve> curves = {
        {"IconVCPic", false, "RLVC", 16, {{0, 255, 0}, {300, 128, 0}, {599, 255, 0}}}};
    std::vector<PackedFile> files = {
        {"arc/anim/icon.brlan", Animation_File(600, true, curves)},
        {"arc/blyt/icon.brlyt", Channel_Icon()},
    };
    Add_Textures(files, {"Back_a", "IconVCPic", "LogoSample"});
    return U8_Archive(files);
}

/// Three seconds of nothing.
std::string Silence() {
    constexpr unsigned InfoSize = 0xA0, Rate = 32000, Samples = 3 * Rate / 14 * 14;
    constexpr std::size_t DataSize = 8 + Samples / 14 * 8;
    ByteWriter info, file;
    info.Bytes("INFO").U32(InfoSize).U8(0).U8(0).U8(1).U8(0).U16(Rate).U16(0).U32(0).U32(Samples);
    info.U32(0x18).U32(0).U32(0x1C).U32(0).U32(0x28).U32(0).Zeros(InfoSize - 0x34);
    file.Bytes("BNS ").U32(0xFEFF0100).U32(0x20 + InfoSize + DataSize).U16(0x20).U16(2);
    file.U32(0x20).U32(InfoSize).U32(0x20 + InfoSize).U32(DataSize).Bytes(info.Data());
    return file.Bytes("DATA").U32(DataSize).Zeros(DataSize - 8).Data();
}

/// The slots that are nobody's here stay empty.
ChannelNames Sample_Names() {
    ChannelNames names;
    names[0][0] = u"\u661F\u5C4A\u3051\u4EBA\u306E\u65C5";
    for (std::size_t language = 1; language < 7; ++language) {
        names[language][0] = u"Starlight Courier";
        names[language][1] = u" ";
    }
    names[2][0] = u"Der Sternenbote";
    names[2][1] = u"Die Reise beginnt";
    return names;
}

}  // namespace

std::string Sample_Channel() {
    const std::string banner = Banner_Content(), icon = Icon_Content(), sound = Silence();
    return Channel_File("sample/0000000001", Sample_Names(),
                        {icon.size(), banner.size(), sound.size()},
                        U8_Archive({{"meta/banner.bin", Channel_Part(banner)},
                                    {"meta/icon.bin", Channel_Part(icon)},
                                    {"meta/sound.bin", Channel_Part(sound)}}));
}

std::string U8_Archive(const std::vector<PackedFile>& files) {
    return U8Builder(files).Archive();
}

std::string Channel_Part(std::string_view content) {
    ByteWriter payload, part;
    payload.Bytes(Lz77_Compress(content, {})).Align(4);
    part.Bytes("IMD5").U32(static_cast<std::uint32_t>(payload.Data().size())).Zeros(8);
    return part.Bytes(Md5(payload.Data())).Bytes(payload.Data()).Data();
}

std::string Channel_File(std::string_view build_tag, const ChannelNames& names,
                         const PartSizes& sizes, std::string_view archive) {
    ByteWriter header;
    header.Zeros(0x40).Bytes("IMET").U32(0x600).U32(3).Zeros(0x600 - 0x4C);
    std::string block = header.Data();
    for (std::size_t language = 0; language < names.size(); ++language) {
        for (std::size_t line = 0; line < NameLines; ++line) {
            block = With_Name(std::move(block), language, line, names[language][line]);
        }
    }
    ByteWriter file;
    return file.Name(build_tag, 64).Bytes(Sealed(block, sizes)).Bytes(archive).Data();
}

std::string Real_Size_Channel() {
    std::mt19937 random(1);
    const auto photograph = [&](int width, int height) {
        return Texture_File(TextureFormat::rgb565, width, height, [&](int x, int y) {
            const auto noise = [&] { return static_cast<double>(random() % 1000) / 4000; };
            return Pixel{noise() + x * 0.5 / width, noise() + y * 0.5 / height, noise() + 0.2, 1};
        });
    };
    const NewFiles pictures = {{"meta/banner.bin/arc/timg/VCPic.tpl", photograph(256, 192)},
                               {"meta/icon.bin/arc/timg/IconVCPic.tpl", photograph(128, 96)}};
    return *Archive::Read(Sample_Channel())->With(pictures, {});
}

}  // namespace bannersmith
