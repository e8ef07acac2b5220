// Damaged layouts: loaded, edited and saved in memory. What matters beside the asserts is the run under sanitizers.
#include <gtest/gtest.h>

#include "banner/region_force.h"
#include "colors/materials.h"
#include "gameinfo/fields.h"
#include "generate/banners.h"
#include "inspect/report.h"
#include "inspect/warnings.h"
#include "layout/file_length.h"
#include "layout/kind.h"
#include "layout/text_box.h"

using namespace bannersmith;

namespace {

/// The bytes behind the header's length field that a save of `damaged`, edited in every way, writes.
std::string Edit_And_Save(const std::string& damaged) {
    static const std::vector<std::string> names = {"T_VCTitle_ENG", "T_Year_ENG", "T_Play_ENG", "T_VCTitle_NONE",
                                                   "T_PF"};
    std::string data = CutPadding(damaged);
    const std::u16string neutral = Neutral_Language(data);
    for (const Field field : {Field::title, Field::year, Field::players}) {
        data = Set_Field_Everywhere(std::move(data), field, u"A longer name than before", neutral);
    }
    data = Set_File_Len(Rewrite_Texts(std::move(data), names));
    Set_Mat_Colors(data, "T_PF", {0x112233, 0x445566});
    Region_Force(data, "ITA");
    if (Is_Layout(data)) {
        const LayoutInfo layout = Read_Layout(data);
        Write_Json({"damaged", layout, Find_Warnings(data, layout)}, [](std::string_view) {});
    }
    return data;
}

TEST(Damaged, EveryPrefixOfEachSample) {
    for (const std::string& sample :
         {Neutral_Banner(), Banner_Without_Closing_Group(), German_Japanese_Banner(), Seven_Language_Banner()}) {
        const std::string whole = Edit_And_Save(sample);
        for (std::size_t size = 0; size < sample.size(); ++size) {
            const std::string saved = Edit_And_Save(sample.substr(0, size));
            ASSERT_LE(saved.size(), whole.size() + 64);
            ASSERT_TRUE(saved.starts_with(sample.substr(0, std::min<std::size_t>(size, 8))));
        }
    }
}

TEST(Damaged, EveryByteOfTheSmallestSample) {
    const std::string sample = Neutral_Banner();
    for (std::size_t at = 0; at < sample.size(); ++at) {
        for (const char value :
             {'\x00', '\xFF', static_cast<char>(sample[at] ^ 1), static_cast<char>(sample[at] ^ 0x80)}) {
            std::string damaged = sample;
            damaged[at] = value;
            const std::string saved = Edit_And_Save(damaged);
            ASSERT_TRUE(saved.starts_with(damaged.substr(0, 8))) << at;
            ASSERT_LE(saved.size(), 2 * sample.size()) << at;
        }
    }
}

}  // namespace
