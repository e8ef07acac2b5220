// The strict command: its options, recipes, and shelves of banners.
#include <gtest/gtest.h>

#include <random>

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
        const std::u16string text = From_Utf8(line);
        for (std::size_t i = 0; !Piece_Of(text, u' ', i).empty(); ++i) {
            arguments.emplace_back(Piece_Of(text, u' ', i));
        }
        auto command = Read_Edit_Command(arguments, program_folder);
        if (!command) return "2 " + command.Why().reason;
        const std::string recipe = command->recipe.empty() ? "" : folder.Read(To_Utf8(command->recipe));
        command->shelf.current_folder = folder.Text();
        ShelfJobs jobs(*command, recipe, program_folder);
        const auto count = jobs.Check();
        if (!count) return "2 " + To_Utf8(count.Why().subject) + ": " + count.Why().reason;
        std::string told;
        const auto tell = [&](const Outcome& outcome) {
            told += Outcome_Lines(outcome, command->diff) + Trouble_Lines(outcome);
        };
        EXPECT_TRUE(Shelf(
                        command->shelf, [&] { return *jobs.Next(); }, tell)
                        .Run());
        return told;
    }

    TempFolder folder;
    const std::u16string program_folder = folder.Text();
    std::filesystem::path before;
};

TEST_F(Shelves, AreRefusedBeforeAnythingIsTouched) {
    const auto files = folder.Names();
    folder.Write("twice.csv", "banner,title\n./a.app,x\n");
    folder.Write("late.csv",
                 "\xEF\xBB\xBF"
                 "banner;title;year\r\na.app;\"x\r\ny\";1990\r\nneutral;;90\r\n");
    folder.Write("key.json",
                 "[{\"banner\": \"a.app\", \"title\": \"x\"},\n {\"banner\": \"neutral\", \"titel\": \"x\"}]");
    folder.Write("broken.json", "{\"banner\": \"a.app\",\n \"title\": }");
    folder.Write("open.json", "\n{\"banner\": \"a.app\"");
    folder.Write("list.json", "{\"banner\": \"a.app\", \"title\": [1]}");
    folder.Write("none.csv", "title\nx\n");
    folder.Write("empty.csv", "banner,title\n,x\n");
    folder.Write("latin.csv", "banner,title\na.app,caf\xE9\n");
    folder.Write("wide.csv", "banner,title\na.app,x,y\n");
    folder.Write("quote.csv", "banner,title\na.app,\"x\n\n");
    for (const auto& [line, told] :
         {std::pair{"a.app", "2 No edit is named"},
          {"--title x", "2 No banner is named"},
          {"a.app --titel x", "2 The following argument was not expected: --titel"},
          {"a.app --title", "2 --title needs a value"},
          {"a.app --title x --title y", "2 --title is there twice"},
          {"a.app --year-kor 199", "2 --year-kor \"199\": Is no year, four digits"},
          {"a.app --players 0", "2 --players \"0\": Is no number from 1 to 99"},
          {"a.app --players 100", "2 --players \"100\": Is no number from 1 to 99"},
          {"a.app --rating=", "2 --rating \"\": Is empty"},
          {"a.app --text T_PF", "2 --text \"T_PF\": Is empty"},
          {"a.app --color Back9=0,0", "2 --color \"Back9=0,0\": Names no element that has colors"},
          {"a.app --color Back0=123456,12345G", "2 --color \"Back0=123456,12345G\": Is not RRGGBB,RRGGBB"},
          {"a.app --force kor", "2 --force \"kor\": Is none of eng, ger, fra, ita, spa, ned, jpn"},
          {"a.app --name 123456789012345678901",
           "2 --name \"123456789012345678901\": Has 21 characters, where 20 have room"},
          {"a.app --subtitle x", "2 The following argument was not expected: --subtitle"},
          {"a.app --title x --jobs 0", "2 --jobs is a number from 1 to 64"},
          {"a.app neutral --title x --output y", "2 --output is for one banner"},
          {"a.app a.app --title x", "2 Command line: a.app is there twice"},
          {"a.app none --title x", "2 Command line: none: No such banner"},
          {"a.app --recipe twice.csv", "2 twice.csv: Line 2: ./a.app is there twice"},
          {"--recipe late.csv", "2 late.csv: Line 4: year \"90\": Is no year, four digits"},
          {"--recipe key.json", "2 key.json: Line 2: titel \"x\": Is no option"},
          {"--recipe open.json", "2 open.json: Line 2: An object does not end"},
          {"--recipe list.json", "2 list.json: Line 1: title is neither text nor whole number"},
          {"--recipe none.csv", "2 none.csv: Line 1: Has no column called banner, or several"},
          {"--recipe empty.csv", "2 empty.csv: Line 2: Names no banner"},
          {"--recipe latin.csv", "2 latin.csv: Line 2: Is no UTF-8 text"},
          {"--recipe wide.csv", "2 wide.csv: Line 2: Has more cells than columns"},
          {"--recipe quote.csv", "2 quote.csv: Line 2: Quotes are not closed"}}) {
        EXPECT_EQ(Run(line), told);
    }
    EXPECT_TRUE(Run("--recipe broken.json").starts_with("2 broken.json: Line 1: Is no JSON: "));
    EXPECT_EQ(folder.Read("a.app"), Sample_Channel());
}

TEST_F(Shelves, AreEditedAsTheClassicCommandLineDoes) {
    for (const auto& [strict, classic] : {std::pair{"--title-ger -Neu- --title=A^B --year 1999 --players-jpn 3 --pad 0",
                                                    u"-T_GER x-TITLE A^B-YEAR 1999-PAD 0"},
                                          {"--colors Mine --rating E10+ --text T_Play_NED=raw --pad +8 --force ita",
                                           u"-COLOR Mine-ESRB E10+-H_T_Play_NED raw-PAD +8-FORCE ITA"},
                                          {"--system X --year-fra 2001", u"-SYSTEM X-Y_FRA 2001"}}) {
        const std::string old = folder.Read("arc/blyt/b.brlyt");
        Banner banner = *Banner::Load(BannerSource(u"arc/blyt/b.brlyt"));
        const std::u16string kept = u"-PAD " + From_Utf8(std::to_string(old.size()));
        for (const Edit& edit : ParseClo(kept + classic, program_folder).edits) { ASSERT_TRUE(banner.Apply(edit)); }
        if (std::string(strict).find("players-jpn") != std::string::npos) {
            ASSERT_TRUE(banner.Apply(SetField{Field::players, u"JPN", u"3"}));
        }
        EXPECT_EQ(Run("arc/blyt/b.brlyt --backup .old --lenient " + std::string(strict)).substr(0, 23),
                  "arc/blyt/b.brlyt: saved");
        EXPECT_TRUE(folder.Read("arc/blyt/b.brlyt") == banner.Plan_Save()->Layout()) << strict;
        EXPECT_EQ(folder.Read("arc/blyt/b.brlyt.old"), old);
    }
    EXPECT_EQ(Run("neutral --colors Mine --dry-run --diff").find("color T_VCTitle: ") == std::string::npos, false)
        << "which a scheme leaves on the classic command line";
    EXPECT_EQ(folder.Read("neutral"), Neutral_Banner());
}

TEST_F(Shelves, TellWhatFindsNothingToChange) {
    folder.Write("cfg", "no layout, but long enough");
    EXPECT_EQ(Run("neutral a.app cfg --title-spa X --name N --jobs 1"),
              "bannersmith-edit: neutral: no text box T_VCTitle_SPA; --title-spa changed nothing, "
              "no channel names; --name changed nothing\n"
              "a.app: saved, 8 changes\nbannersmith-edit: cfg: Is neither a layout file nor an archive\n");
    EXPECT_EQ(Run("neutral --text T_Year_ENG=x --picture none --logo none --lenient --title New"),
              "neutral: saved, 1 change\nbannersmith-edit: neutral: no text box T_Year_ENG; --text changed nothing\n"
              "bannersmith-edit: neutral: no texture VCPic*; --picture changed nothing\n"
              "bannersmith-edit: neutral: no texture my_Back*; --logo changed nothing\n");
    EXPECT_EQ(Run("a.app --force eng"),
              "bannersmith-edit: a.app: no language whose items would become those of ENG; --force changed nothing\n");
}

TEST_F(Shelves, GoThroughRecipesInGroups) {
    std::string recipe = "banner,title-ita,color:Back0,name-ger\r\n";
    for (int i = 0; i < 150; ++i) {
        const std::string name = "shelf/" + std::to_string(i) + (i % 3 ? "/b.brlyt" : ".app");
        folder.Write(name, i % 3 ? Seven_Language_Banner() : Sample_Channel());
        recipe += Csv_Row({name, "Titolo " + std::to_string(i), i % 2 ? "" : "010203,FFFEFD", i % 3 ? "" : "Neu"});
    }
    folder.Write("r.csv", recipe);
    const auto files = folder.Names();
    for (const std::string line :
         {"--recipe r.csv --output-folder copies", "--recipe r.csv --jobs 3", "--recipe r.csv"}) {
        const std::string told = Run(line);
        const bool again = line == "--recipe r.csv";
        EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 150);
        EXPECT_EQ(told.find(again ? ": saved" : ": unchanged"), std::string::npos) << told;
        for (int i = 0; i < 150; ++i) {
            const std::string name = "shelf/" + std::to_string(i) + (i % 3 ? "/b.brlyt" : ".app");
            const std::string& old = i % 3 ? Seven_Language_Banner() : Sample_Channel();
            const bool copied = line.ends_with("copies");
            EXPECT_EQ(folder.Read(name) == old, copied) << name;
            EXPECT_EQ(folder.Read("copies/" + name) == "(none)", false);
            const Banner banner = *Banner::Load(BannerSource(From_Utf8((copied ? "copies/" : "") + name)));
            EXPECT_EQ(Read_Box(banner.Bytes(), u"T_VCTitle_ITA"), From_Utf8("Titolo " + std::to_string(i)));
            EXPECT_EQ(i % 3 || (*banner.Names())[2][0] == u"Neu", true);
        }
    }
    EXPECT_EQ(folder.Names().size(), files.size() + 150);
}

}  // namespace
