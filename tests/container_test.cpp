// Archives as a whole: what comes out of one, what a change changes, and what is refused.
#include <gtest/gtest.h>

#include <random>

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

std::string Stored(const Archive& archive, std::size_t part) {
    const Part& stored = archive.Parts()[part].part;
    return std::string(stored.header) + std::string(stored.payload);
}

TEST(Md5, IsThatOfRfc1321) {
    EXPECT_EQ(Hex(Md5("")), "d41d8cd98f00b204e9800998ecf8427e");
    EXPECT_EQ(Hex(Md5("abcdefghijklmnopqrstuvwxyz")), "c3fcd3d76192e4007dfb496cca67e13b");
    EXPECT_EQ(Hex(Md5("1234567890123456789012345678901234567890123456789012345678901234567890"
                      "1234567890")),
              "57edf4a22be3c955ac49da2e2107b67a");
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
                ASSERT_TRUE(back) << size << " " << kinds << back.Why().reason;
                ASSERT_TRUE(back->bytes == bytes && back->stream_size == stream.size()) << size << " " << kinds;
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
              "LZ77\x11\xE8\3\0\x40x\x12\xD6\0\0"s.substr(0, 10) + "\x10\x2D\x60\0"s);
}

/// Tokens of each kind, and streams that lie.
TEST(Lz77, IsReadAsTheConsoleDoes) {
    struct Row {
        std::string stream, bytes, reason;
    };
    for (const Row& row :
         {Row{"LZ77\x10\5\0\0\x20"s + "ab\x00\x01"s, "ababa", ""},
          {"LZ77\x10\0\0\0\5\0\0\0\x20"s + "ab\x00\x01"s, "ababa", ""},
          {"LZ77\x11\x05\0\0\x20"s + "ab\x20\x01"s, "ababa", ""},
          {"LZ77\x11\x12\0\0\x40"s + "a\x00\x00\x00"s, std::string(18, 'a'), ""},
          {"LZ77\x11\x12\x01\0\x40"s + "a\x10\x00\x00\x00"s, std::string(274, 'a'), ""},
          {"LZ77\x10\4\0\0\x20"s + "ab\x00\x01"s, "", "LZ77 stream holds more than it says"},
          {"LZ77\x10\5\0\0\x20"s + "ab\x00\x02"s, "", "LZ77 stream copies from before its start"},
          {"LZ77\x10\5\0\0\x20"s + "ab\x00"s, "", "LZ77 stream ends too early"},
          {"LZ77\x12\5\0\0\x20"s + "ab\x00\x01"s, "", "LZ77 stream is of an unknown kind"},
          {"LZ77\x10\0\0\0\xFF\xFF\xFF\xFF\x20"s + "ab", "", "LZ77 stream says that it holds more than 32 MiB"}}) {
        const auto read = Lz77_Decompress(row.stream);
        EXPECT_EQ(read ? "" : read.Why().reason, row.reason);
        EXPECT_EQ(read ? read->bytes : "", row.bytes);
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

    const std::string saved = *archive.With({{Layout, layout + "more"}}, {});
    const Archive again = *Archive::Read(saved);
    EXPECT_EQ(again.Warnings(), std::vector<std::string>());
    EXPECT_TRUE(again.Layout() == layout + "more");
    EXPECT_EQ(Stored(again, 0).size() % 4, 0U);
    for (const std::size_t part : {1, 2}) EXPECT_TRUE(Stored(again, part) == Stored(archive, part));
    for (std::size_t at = 0; at < Outer; ++at) {
        const bool follows = (at >= Block + 0x50 && at < Block + 0x54) || at >= Block + 0x5F0;
        ASSERT_TRUE(follows || saved[at] == file[at]) << at;
    }
    const auto before = Open_Part(archive.Parts()[0]), after = Open_Part(again.Parts()[0]);
    for (std::size_t i = 0; i < before->files.size(); ++i) {
        const U8Member &old = before->files[i], &now = after->files[i];
        if (old.path == "arc/blyt/banner.brlyt") continue;
        EXPECT_EQ(now.path, old.path);
        EXPECT_TRUE(after->content.bytes.substr(now.offset, now.size) ==
                    before->content.bytes.substr(old.offset, old.size));
    }
    EXPECT_TRUE(*again.With({{Layout, layout}}, {}) == file) << "the way there and back";
    EXPECT_FALSE(archive.With({{"meta/banner.bin/none", ""}}, {}));
}

TEST(Archive, ChangesNothingButTheNameThatIsSet) {
    const std::string file = Sample_Channel();
    const Archive archive = *Archive::Read(file);
    ChannelNames names = *archive.Names();
    names[9][1] = u"\uD55C";
    const std::string saved = *archive.With({}, names);
    EXPECT_EQ(Archive::Read(saved)->Names(), names);
    for (std::size_t at = 0; at < file.size(); ++at) {
        const bool follows = (at >= Block + 0x37A && at < Block + 0x3A4) || (at >= Block + 0x5F0 && at < Outer);
        ASSERT_TRUE(follows || saved[at] == file[at]) << at;
    }
}

TEST(Archive, IsOpenedFromEachShell) {
    const Archive whole = *Archive::Read(Sample_Channel());
    const Part& part = whole.Parts()[0].part;
    const std::string content = Open_Part(whole.Parts()[0])->content.bytes;
    for (const std::string& shell :
         {Stored(whole, 0), std::string(part.payload), content, Lz77_Compress(content, {false, Lz77Form::long_copies}),
          Lz77_Compress(content, {true, Lz77Form::long_copies}), Sample_Channel().substr(Block),
          Sample_Channel().substr(Outer)}) {
        ASSERT_TRUE(Archive::Begins_As_One(shell));
        const auto archive = Archive::Read(shell);
        ASSERT_TRUE(archive) << archive.Why().reason;
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
    const auto broken = [&](std::size_t at) {
        std::string bytes = file;
        bytes[at] = static_cast<char>(bytes[at] ^ 1);
        const Archive archive = *Archive::Read(bytes);
        return archive.Warnings().front() + "|" + archive.Refusal();
    };
    EXPECT_EQ(broken(Block + 0x100), "IMET checksum does not hold|IMET checksum does not hold");
    EXPECT_EQ(broken(Outer + members[0].offset + 0x10),
              "meta/banner.bin: IMD5 checksum does not hold|meta/banner.bin: IMD5 checksum does not hold");
    EXPECT_EQ(broken(Outer + members[1].offset + 0x10), "meta/icon.bin: IMD5 checksum does not hold|");
    const std::string lying = file.substr(0, Block) + Sealed(file.substr(Block, 0x600), {1, 2, 3}) + file.substr(Outer);
    const Archive liar = *Archive::Read(lying);
    EXPECT_EQ(liar.Warnings().size(), 3U);
    EXPECT_EQ(liar.Refusal(), "");
    EXPECT_EQ(Archive::Read(*liar.With({{Layout, "new"}}, {}))->Warnings(), std::vector<std::string>());
}

TEST(Archive, IsRefusedWhereItIsCutOrLies) {
    const std::string file = Sample_Channel();
    for (std::size_t size = 0; size < file.size(); size += 16) {
        const auto archive = Archive::Read(file.substr(0, size));
        if (size < file.size() - 32) { ASSERT_TRUE(!archive && !archive.Why().reason.empty()) << size; }
    }
    // Nodes: 0 root, 1 meta, 2 to 4 the parts.
    const auto with = [&](std::size_t at, std::uint32_t word) {
        std::string bytes = file;
        Write_U32(bytes, Outer + at, word);
        const auto archive = Archive::Read(bytes);
        return archive ? "" : archive.Why().reason;
    };
    constexpr std::size_t Node = 12, Table = 0x20;
    EXPECT_EQ(with(4, 0xFFFFFFF0), "U8 archive: its table lies outside of it");
    EXPECT_EQ(with(8, 0xFFFFFFF0), "U8 archive: its table lies outside of it");
    EXPECT_EQ(with(Table + 8, 0x7FFFFFFF), "U8 archive: its root is no folder of the table");
    EXPECT_EQ(with(Table + Node, 0x01FFFFFF), "U8 archive: a name lies outside of the table");
    EXPECT_EQ(with(Table + Node, 0x01000000), "U8 archive: a name cannot be one of a file: \"\"");
    EXPECT_EQ(with(Table + Node + 4, 1), "U8 archive: folder meta does not lie in the one that it is in");
    EXPECT_EQ(with(Table + Node + 8, 1), "U8 archive: folder meta does not lie in the one that it is in");
    EXPECT_EQ(with(Table + Node + 8, 6), "U8 archive: folder meta does not lie in the one that it is in");
    EXPECT_EQ(with(Table + 2 * Node + 4, 0xFFFFFFFF), "U8 archive: meta/banner.bin lies outside of it");
    EXPECT_EQ(with(Table + 2 * Node + 8, 0xFFFFFFFF), "U8 archive: meta/banner.bin lies outside of it");
    EXPECT_EQ(with(Table + 3 * Node + 4, 0xA0), "U8 archive: meta/icon.bin shares bytes with another member");
    EXPECT_EQ(with(Table + 3 * Node, Read_U32(file, Outer + Table + 2 * Node)),
              "U8 archive: meta/banner.bin is there twice");
    std::string leading_out = file;
    leading_out.replace(file.find("meta"), 4, "..\0a"s);
    EXPECT_EQ(Archive::Read(leading_out).Why().reason, "U8 archive: a name cannot be one of a file: \"..\"");
}

TEST(Archive, SurvivesEveryByteOfItsTables) {
    const std::string file = Sample_Channel();
    for (std::size_t at = Block + 0x40; at < Outer + 0xA0; ++at) {
        if (at == Block + 0x5C) at = Block + 0x5F0;
        for (const int change : {1, 0x80, 0xFF}) {
            std::string bytes = file;
            bytes[at] = static_cast<char>(bytes[at] ^ change);
            const auto archive = Archive::Read(bytes);
            if (!archive || !archive->Refusal().empty()) continue;
            const auto saved = archive->With({{archive->Layout_Path(), "new"}}, {});
            ASSERT_TRUE(saved);
            const auto again = Archive::Read(*saved);
            ASSERT_TRUE(again && again->Layout() == "new") << at;
        }
    }
}

}  // namespace
