// Archives as a whole: what comes out of one, what a change changes, and what is refused.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <regex>

#include "base/numbers.h"
#include "container/archive.h"
#include "container/md5.h"
#include "generate/channel.h"
#include "support.h"

using namespace bannersmith;

namespace {

using namespace std::string_literals;

const std::string Layout = "meta/banner.bin/arc/blyt/banner.brlyt";
constexpr std::size_t Block = 0x40, Outer = 0x640;

std::string Stored(const StoredPart& stored) {
    return std::string(stored.part.header) + std::string(stored.part.payload);
}

TEST(Md5, IsThatOfRfc1321) {
    EXPECT_EQ(Hex(Md5("")), "d41d8cd98f00b204e9800998ecf8427e");
    EXPECT_EQ(Hex(Md5("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789")),
              "d174ab98d277d9f5a5611c2c9f419d9f");
    EXPECT_EQ(Hex(Md5(std::string(1000000, 'a'))), "7707d6ae4e027c70eea2a935c2296f21");
}

TEST(Lz77, GivesBackWhatWasPacked) {
    std::mt19937 random(20261124);
    for (const std::size_t size : {0, 1, 2, 3, 4, 17, 18, 19, 272, 273, 274, 4095, 4096, 4097, 4115, 70000}) {
        for (const unsigned kinds : {1U, 2U, 5U, 256U}) {
            std::string bytes;
            while (bytes.size() < size) bytes += static_cast<char>(random() % kinds);
            for (const auto type : {Lz77Form::short_copies, Lz77Form::long_copies}) {
                const std::string stream = Lz77_Compress(bytes, {true, type});
                EXPECT_LE(stream.size(), 12 + size + size / 8 + 1);
                const auto back = Lz77_Decompress(stream + "rest");
                ASSERT_TRUE(back && back->bytes == bytes && back->stream_size == stream.size()) << size << " " << kinds;
                for (int edit = 0; edit < 8; ++edit) {  // at the ends, or anywhere, longer or shorter
                    const std::size_t at = edit % 3 == 0 ? 0 : edit % 3 == 1 ? size : random() % (size + 1);
                    std::string changed = bytes;
                    changed.replace(at, random() % 30 * (edit % 2), std::string(random() % 30, 'x'));
                    const std::string again = Lz77_Compress(changed, {true, type}, {stream, bytes});
                    ASSERT_TRUE(Lz77_Decompress(again)->bytes == changed) << size << " " << kinds << " " << at;
                }
                EXPECT_EQ(Lz77_Compress(bytes, {true, type}, {stream, bytes}), stream);
                for (std::size_t cut = 0; size > 0 && cut < stream.size(); cut += 1 + cut / 8) {
                    ASSERT_FALSE(Lz77_Decompress(stream.substr(0, cut)));
                }
            }
        }
    }
    EXPECT_EQ(Lz77_Compress(std::string(1000, 'x'), {true, Lz77Form::long_copies}),
              "LZ77\x11\xE8\3\0\x40x\x10\x2D\x60\0"s);
}

/// Tokens of each kind, and streams that lie.
TEST(Lz77, IsReadAsTheConsoleDoes) {
    const std::tuple<std::string, std::string, std::string> rows[] = {
        {"LZ77\x10\5\0\0\x20"s + "ab\x00\x01"s, "ababa", ""},
        {"LZ77\x10\0\0\0\5\0\0\0\x20"s + "ab\x00\x01"s, "ababa", ""},
        {"LZ77\x11\x05\0\0\x20"s + "ab\x20\x01"s, "ababa", ""},
        {"LZ77\x11\x12\0\0\x40"s + "a\x00\x00\x00"s, std::string(18, 'a'), ""},
        {"LZ77\x11\x12\x01\0\x40"s + "a\x10\x00\x00\x00"s, std::string(274, 'a'), ""},
        {"LZ77\x10\4\0\0\x20"s + "ab\x00\x01"s, "", "LZ77 stream holds more than it says"},
        {"LZ77\x10\5\0\0\x20"s + "ab\x00\x02"s, "", "LZ77 stream copies from before its start"},
        {"LZ77\x10\5\0\0\x20"s + "ab\x00"s, "", "LZ77 stream ends too early"},
        {"LZ77\x12\5\0\0\x20"s + "ab\x00\x01"s, "", "LZ77 stream is of an unknown kind"},
        {"LZ77\x10\0\0\0\xFF\xFF\xFF\xFF\x20"s + "ab", "", "LZ77 stream says that it holds more than 32 MiB"}};
    for (const auto& [stream, bytes, reason] : rows) {
        const auto read = Lz77_Decompress(stream);
        EXPECT_EQ(read ? "" : read.Why().reason, reason);
        EXPECT_EQ(read ? read->bytes : "", bytes);
    }
}

TEST(Archive, GivesBackWhatItWasAndKeepsWhatIsNotChanged) {
    const std::string file = Sample_Channel();
    const Archive archive = *Archive::Read(file);
    EXPECT_EQ(archive.Layout_Path(), Layout);
    EXPECT_EQ(archive.Warnings(), std::vector<std::string>());
    EXPECT_EQ(archive.Find_Texture("my_Back"), "meta/banner.bin/arc/timg/my_BackSample_a.tpl");
    const std::string layout(archive.Layout());
    EXPECT_TRUE(*archive.With({{Layout, layout}}, archive.Names()) == file);
    EXPECT_FALSE(archive.With({{"meta/banner.bin/none", ""}}, {}));

    const std::string saved = *archive.With({{Layout, layout + "more"}}, {});
    const Archive again = *Archive::Read(saved);
    EXPECT_EQ(again.Warnings(), std::vector<std::string>());
    EXPECT_TRUE(again.Layout() == layout + "more");
    for (const std::size_t part : {1, 2}) EXPECT_TRUE(Stored(again.Parts()[part]) == Stored(archive.Parts()[part]));
    std::vector<PackedFile> files, parts;  // which the generator, sharing no line with the writer, packs alike
    ASSERT_TRUE(again.Visit_Files([&](const std::string& path, std::string_view bytes) {
        if (path.starts_with("meta/banner.bin/")) files.push_back({path.substr(16), std::string(bytes)});
        return Result<>();
    }));
    for (const StoredPart& part : again.Parts()) parts.push_back({part.path, Stored(part)});
    const std::string content = Open_Part(again.Parts()[0])->content.bytes, packed = parts[0].bytes;
    EXPECT_TRUE(content == U8_Archive(files) && saved.substr(Outer) == U8_Archive(parts));
    EXPECT_TRUE(packed.size() % 4 == 0 && Read_U32(packed, 4) == packed.size() - 32);
    EXPECT_EQ(packed.substr(16, 16), Md5(packed.substr(32)));
    std::string header = file.substr(0, Outer - 16);
    Write_U32(header, Block + 0x50, static_cast<std::uint32_t>(content.size()));
    header += Md5(header.substr(Block) + std::string(16, '\0'));
    EXPECT_TRUE(saved.substr(0, Outer) == header) << "with another size and checksum alone";
    EXPECT_TRUE(*again.With({{Layout, layout}}, {}) == file) << "the way there and back";

    ChannelNames names = *archive.Names();
    names[9][1] = u"\uD55C";
    const std::string named = *archive.With({}, names);
    EXPECT_EQ(Archive::Read(named)->Names(), names);
    EXPECT_TRUE(named.substr(0, Block + 0x37A) == file.substr(0, Block + 0x37A)) << "where that line stands";
    EXPECT_TRUE(named.substr(Outer) == file.substr(Outer));
}

TEST(Archive, IsOpenedFromEachShell) {
    const Archive whole = *Archive::Read(Sample_Channel());
    const Part& part = whole.Parts()[0].part;
    const std::string content = Open_Part(whole.Parts()[0])->content.bytes;
    for (const std::string& shell :
         {Stored(whole.Parts()[0]), std::string(part.payload), content,
          Lz77_Compress(content, {false, Lz77Form::long_copies}), Lz77_Compress(content, {true, Lz77Form::long_copies}),
          Sample_Channel().substr(Block), Sample_Channel().substr(Outer)}) {
        ASSERT_TRUE(Archive::Begins_As_One(shell));
        const auto archive = Archive::Read(shell);
        ASSERT_TRUE(archive);
        EXPECT_TRUE(archive->Layout() == whole.Layout() && archive->Refusal().empty());
        EXPECT_TRUE(*archive->With({}, {}) == shell);
        const std::string saved = *archive->With({{archive->Layout_Path(), "new"}}, {});
        const auto again = Archive::Read(saved);
        EXPECT_TRUE(again && again->Layout() == "new" && again->Warnings().empty());
        EXPECT_EQ(Lz77_Form_Of(saved).has_value(), Lz77_Form_Of(shell).has_value());
    }
}

TEST(Archive, TellsOfChecksumsAndSizesThatDoNotHold) {
    const std::string file = Sample_Channel();
    const std::vector<U8Member> members = *Read_U8(std::string_view(file).substr(Outer));
    for (const std::size_t part : {0, 1}) {
        std::string bytes = file;
        bytes[Outer + members[part].offset + 0x10] ^= 1;
        const Archive archive = *Archive::Read(bytes);
        const std::string warning = members[part].path + ": IMD5 checksum does not hold";
        EXPECT_EQ(archive.Warnings().front(), warning);
        EXPECT_EQ(archive.Refusal(), part == 0 ? warning : "") << "the layout's part alone";
    }
    const std::string lying = file.substr(0, Block) + Sealed(file.substr(Block, 0x600), {1, 2, 3}) + file.substr(Outer);
    const Archive liar = *Archive::Read(lying);
    EXPECT_TRUE(liar.Warnings().size() == 3 && liar.Refusal().empty());
    EXPECT_TRUE(Archive::Read(*liar.With({{Layout, "new"}}, {}))->Warnings().empty());
}

/// As home-made ones are: empty files, a sound that nobody here can read, capitals, bytes where none should be.
TEST(Archive, IsSavedRightlyWhereItIsUnusual) {
    const std::string part =
        U8_Archive({{"ARC/BLYT/BANNER.BRLYT", std::string(99, 'x')}, {"ARC/TIMG/MY_BACK.TPL", "x"}, {"ARC/ZZ", ""}});
    const std::string file = Channel_File(
        "", {}, {7, part.size(), 9},
        U8_Archive({{"meta/BANNER.BIN", Channel_Part(part)}, {"meta/sound.bin", "odd"}, {"meta/none", ""}}));
    const Archive archive = *Archive::Read(file + "!");
    EXPECT_EQ(archive.Warnings(), std::vector<std::string>{"U8 archive: bytes other than zero where no file is"});
    EXPECT_EQ(archive.Find_Texture("my_Back"), "meta/BANNER.BIN/ARC/TIMG/MY_BACK.TPL");
    const std::string saved = *archive.With({{archive.Layout_Path(), "short"}}, {});
    ASSERT_TRUE(Archive::Read(saved));
    EXPECT_EQ(Sizes_Of(saved.substr(Block)), (PartSizes{7, part.size() - 96, 9})) << "what cannot be told stays";
}

TEST(Archive, IsRefusedWhereItIsCutOrLeadsOut) {
    const std::string file = Sample_Channel();
    for (std::size_t size = 0; size < file.size() - 32; size += 16) {
        const auto archive = Archive::Read(file.substr(0, size));
        ASSERT_TRUE(!archive && !archive.Why().reason.empty()) << size;
    }
    const std::string leading_out = std::string(file).replace(file.find("meta"), 4, "..\0a"s);
    std::string twice = file;
    Write_U32(twice, Outer + 0x20 + 3 * 12, Read_U32(file, Outer + 0x20 + 2 * 12));  // a name's place in a node
    EXPECT_EQ(Archive::Read(twice).Why().reason, "U8 archive: meta/banner.bin is there twice");
    EXPECT_EQ(Archive::Read(leading_out).Why().reason, "U8 archive: a name cannot be one of a file: \"..\"");
}

/// How often each lie of a single byte is told of: a check that lets one more pass, or one less, changes a number.
TEST(Archive, IsRefusedOrSoundWhateverByteOfItsTablesLies) {
    const std::string part = U8_Archive({{"arc/blyt/banner.brlyt", "old"}});
    const std::string file = Channel_File(
        "", {}, {part.size(), part.size(), 5},
        U8_Archive({{"meta/banner.bin", Channel_Part(part)}, {"meta/icon.bin", part}, {"meta/sound.bin", "sound"}}));
    std::map<std::string, int> refused;
    for (std::size_t at = Block + 0x40; at < Outer + 0xA0; ++at) {
        if (at == Block + 0x5C) at = Block + 0x5F0;
        for (const int change : {1, 4, 6, 0x80, 0xFF}) {
            std::string bytes = file;
            bytes[at] = static_cast<char>(bytes[at] ^ change);
            const auto archive = Archive::Read(bytes);
            const std::string reason = archive ? archive->Refusal() : archive.Why().reason;
            ++refused[std::regex_replace(reason, std::regex("U8 archive: |meta[^ ]* ?|\".*\""), "")];
            if (!archive || !archive->Refusal().empty()) continue;
            const auto again = Archive::Read(*archive->With({{archive->Layout_Path(), "new"}}, {}));
            ASSERT_TRUE(again && again->Layout() == "new") << at;
        }
    }
    std::string all;
    for (const auto& [reason, count] : refused) all += std::to_string(count) + " " + reason + "; ";
    EXPECT_EQ(all,
              "366 ; 1 Holds no layout; 80 IMD5 checksum does not hold; 20 IMD5 header tells of more bytes "
              "than there are; 160 IMET checksum does not hold; 40 IMET header is of another size or version "
              "than the console's; 2 LZ77 stream ends too early; 9 a name cannot be one of a file: ; 53 a "
              "name lies outside of the table; 1 arc/blyt/banner.brlyt lies outside of it; 41 folder does not"
              " lie in the one that it is in; 63 has no whole header; 16 is neither file nor folder; 27 its "
              "root is no folder of the table; 28 its table lies outside of it; 102 lies outside of it; 11 "
              "shares bytes with another member; ");
}

}  // namespace
