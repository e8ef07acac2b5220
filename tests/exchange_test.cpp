// The strict command: its options, recipes, and shelves of banners.
#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "base/text.h"
#include "exchange/report.h"
#include "exchange/shelf_jobs.h"
#include "generate/banners.h"
#include "generate/channel.h"
#include "mainwindow/command_line.h"
#include "support.h"

using namespace bannersmith;

namespace {

TEST(Csv, GivesBackWhatWasWritten) {
    std::mt19937 random(20261124);
    for (int round = 0; round < 2000; ++round) {
        std::string table;
        std::vector<std::vector<std::string>> rows(1 + random() % 3);
        for (auto& row : rows) {
            row.resize(2 + random() % 3);
            for (std::string& cell : row) {
                for (auto length = random() % 4; length-- > 0;) cell += "ab\",;\r\n "[random() % 8];
            }
            row[0] += "x";  // a row without a character is none
            table += Csv_Row(row);
        }
        table.insert(0, random() % 2 ? "\xEF\xBB\xBFx,y\n\n" : "x,y\r\n");
        CsvReader reader(table);
        static_cast<void>(reader.Next());
        for (const auto& row : rows) ASSERT_EQ((*reader.Next())->cells, row) << table;
        ASSERT_FALSE(*reader.Next());
    }
}

class Shelves : public testing::Test {
 protected:
    Shelves() {
        before = std::filesystem::current_path();
        std::filesystem::current_path(folder.Path());
        folder.Write("schemes/Mine.vccs", Format_Scheme(Shipped_Schemes()[2].scheme));
        folder.Write("a.app", Sample_Channel());
        folder.Write("arc/blyt/b.brlyt", Seven_Language_Banner() + std::string(99, '\0'));
        folder.Write("neutral", Neutral_Banner());
    }
    ~Shelves() override { std::filesystem::current_path(before); }

    /// What is told of a command line of words between blanks.
    std::string Run(const std::string& line) {
        std::vector<std::u16string> arguments;
        std::istringstream words(line);
        for (std::string word; words >> word;) arguments.push_back(From_Utf8(word));
        auto command = Read_Edit_Command(arguments, program_folder);
        if (!command) return "2 " + command.Why().reason;
        const std::string recipe = command->recipe.empty() ? "" : folder.Read(To_Utf8(command->recipe));
        command->shelf.current_folder = folder.Text();
        ShelfJobs jobs(*command, recipe, program_folder);
        const auto count = jobs.Check();
        if (!count) return "2 " + To_Utf8(count.Why().subject) + ": " + count.Why().reason;
        std::string told;
        const auto next = [&] { return *jobs.Next(); };
        const auto tell = [&](const Outcome& each) {
            told += Outcome_Lines(each, command->diff) + Trouble_Lines(each);
        };
        EXPECT_TRUE(Shelf(command->shelf, next, tell).Run());
        return told;
    }

    TempFolder folder;
    const std::u16string program_folder = folder.Text();
    std::filesystem::path before;
};

TEST_F(Shelves, AreRefusedBeforeAnythingIsTouched) {
    for (const auto& [options, reason] :
         {std::pair<std::string, std::string>{"", "No edit is named"},
          {"--titel x", "The following argument was not expected: --titel"},
          {"--title x --title y", "--title is there twice"},
          {"--players 0", "--players \"0\": Is no number from 1 to 99"},
          {"--players 100", "--players \"100\": Is no number from 1 to 99"},
          {"--rating=", "--rating \"\": Is empty"},
          {"--color Back9=0,0", "--color \"Back9=0,0\": Names no element that has colors"},
          {"--color Back0=123456,12345G", "--color \"Back0=123456,12345G\": Is not RRGGBB,RRGGBB"},
          {"--force kor", "--force \"kor\": Is none of eng, ger, fra, ita, spa, ned, jpn"},
          {"--name aaaaaaaaaaaaaaaaaaaaa", "--name \"aaaaaaaaaaaaaaaaaaaaa\": Has 21 characters, where 20 have room"},
          {"neutral --title x --output y", "--output is for one banner"},
          {"none --title x", "Command line: none: No such banner"}}) {
        EXPECT_EQ(Run("a.app " + options), "2 " + reason);
    }
    EXPECT_EQ(Run("--title x"), "2 No banner is named");
    for (const auto& [recipe, reason] :
         {std::pair<std::string, std::string>{"banner,title\n./a.app,x\n", "2: ./a.app is there twice"},
          {"\uFEFFbanner;title;year\r\nneutral;\"\n\";1990\r\nb;;90", "4: year \"90\": Is no year, four digits"},
          {"\uFEFF[{\"banner\": \"neutral\"},\n {\"banner\": \"c\", \"titel\": 1}]", "2: titel \"1\": Is no option"},
          {"\n{\"banner\": \"b\"", "2: An object does not end"},
          {"{\"banner\": \"b\",\n \"title\": }", "1: Is no JSON: "},
          {"{\"banner\": \"b\", \"title\": [1]}", "1: title is neither text nor whole number"},
          {"[{\"banner\": \"neutral\"},", "1: Is no JSON object"},
          {"{\"banner\": \"b\", \"banner\": \"c\"}", "1: banner is there twice"},
          {"banner,titel\nb,\n", "1: titel: Is no option"},
          {"title\nx\n", "1: Has no column called banner"},
          {"banner,title\n,x\n", "2: Names no banner"},
          {"banner,title\nb,caf\xE9\n", "2: Is no UTF-8 text"},
          {"banner,title\nb,x,y\n", "2: Has more cells than columns"},
          {"banner,title\nb,\"x\n\n", "2: Quotes are not closed"}}) {
        folder.Write("r", recipe);
        const std::string told = "2 r: Line " + reason;
        EXPECT_EQ(Run("a.app --recipe r").substr(0, told.size()), told);
    }
    EXPECT_EQ(folder.Read("a.app"), Sample_Channel());
}

TEST_F(Shelves, AreEditedAsTheClassicCommandLineDoes) {
    for (const auto& [strict, classic] :
         {std::pair{"--title-ger -Neu- --title=A^B --year 1999 --pad 0", u"-T_GER x-TITLE A^B-YEAR 1999-PAD 0"},
          {"--colors Mine --rating E10+ --text T_Play_NED=raw --pad +8 --force ita",
           u"-COLOR Mine-ESRB E10+-H_T_Play_NED raw-PAD +8-FORCE ITA"},
          {"--system X --year-fra 2001", u"-SYSTEM X-Y_FRA 2001"}}) {
        const std::string old = folder.Read("arc/blyt/b.brlyt");
        Banner banner = *Banner::Load(BannerSource(u"arc/blyt/b.brlyt"));
        const std::u16string line = u"-PAD " + From_Utf8(std::to_string(old.size())) + classic;
        for (const Edit& edit : ParseClo(line, program_folder).edits) { ASSERT_TRUE(banner.Apply(edit)); }
        Run("arc/blyt/b.brlyt --backup .old --lenient " + std::string(strict));
        EXPECT_TRUE(folder.Read("arc/blyt/b.brlyt") == banner.Plan_Save()->Layout()) << strict;
        EXPECT_EQ(folder.Read("arc/blyt/b.brlyt.old"), old);
        std::filesystem::remove("arc/blyt/b.brlyt.old");
    }
    EXPECT_NE(Run("neutral --colors Mine --dry-run --diff").find("color T_VCTitle: "), std::string::npos);
    EXPECT_EQ(folder.Read("neutral"), Neutral_Banner());
}

TEST_F(Shelves, TellWhatFindsNothingToChange) {
    folder.Write("text", "no layout, but long enough");
    EXPECT_EQ(Run("neutral text --text T_Y=x --picture t.png --logo s --name N --lenient --title New --jobs 1"),
              "neutral: saved, 1 change\nbannersmith-edit: neutral: no text box T_Y; --text changed nothing\n"
              "bannersmith-edit: neutral: no texture VCPic*; --picture changed nothing\n"
              "bannersmith-edit: neutral: no texture my_Back*; --logo changed nothing\n"
              "bannersmith-edit: neutral: no channel names; --name changed nothing\n"
              "bannersmith-edit: text: Is neither a layout file nor an archive\n");
}

TEST_F(Shelves, GoThroughRecipesInGroups) {
    const auto name = [](int i) { return "shelf/" + std::to_string(i) + (i % 3 ? "/b.brlyt" : ".app"); };
    const std::string layout = Seven_Language_Banner(), channel = Sample_Channel();
    std::string recipe = "banner,title-ita,color:Back0,name-ger\r\n";
    for (int i = 0; i < 150; ++i) {
        folder.Write(name(i), i % 3 ? layout : channel);
        recipe += Csv_Row({name(i), "Titolo " + std::to_string(i), i % 2 ? "" : "010203,FFFEFD", i % 3 ? "" : "Neu"});
    }
    folder.Write("r.csv", recipe);
    for (const std::string how : {" --output-folder copies", " --jobs 3", ""}) {
        const std::string told = Run("--recipe r.csv" + how), in = how.ends_with("copies") ? "copies/" : "";
        EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 150);
        EXPECT_EQ(told.find(how.empty() ? ": saved" : ": unchanged"), told.npos) << told;
        for (int i = 0; i < 150; ++i) {
            EXPECT_EQ(folder.Read(name(i)) == (i % 3 ? layout : channel), in == "copies/") << name(i);
            const Banner banner = *Banner::Load(BannerSource(From_Utf8(in + name(i))));
            EXPECT_EQ(Read_Box(banner.Bytes(), u"T_VCTitle_ITA"), From_Utf8("Titolo " + std::to_string(i)));
            EXPECT_TRUE(i % 3 || (*banner.Names())[2][0] == u"Neu");
        }
    }
}

}  // namespace
