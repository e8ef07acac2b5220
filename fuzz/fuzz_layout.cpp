// The layout routines on fuzzed bytes: a script of reads, writes, loads, forces and colours, each compared with
// the plainest form of the rules or with what must hold.
#include <cstdlib>

#include "banner/region_force.h"
#include "colors/materials.h"
#include "gameinfo/fields.h"
#include "layout/file_length.h"
#include "plain_rules.h"

using namespace bannersmith;

namespace {

using namespace std::string_literals;

void Require(bool holds) {
    if (!holds) std::abort();
}

const std::vector<std::string> Names = {"T_VCTitle_ENG", "T_Year_GER", "T_Year", "T_PF", "T_VCTitle_NONE", "", "A"};
const std::vector<std::u16string> Texts = {u"", u"1", u"ab", u"x\u7478\u7431y", u"\u7478\u7431", u"a^b", u"\xD800"};

void Write_And_Read(std::string& data, const std::string& name, const std::u16string& text) {
    const std::string expected = plain::Set(data, name, text);
    Require(Set_Texts(data, std::vector<BoxText>{{name, text}}) == expected);
    // Where reading and writing mean the same clean record, what was written is what is read.
    const bool same_record = plain::Find(data, name, name) == plain::Find(data, name, name + "\0\0"s);
    const bool clean = !plain::Find(data, name, name).empty() && !name.ends_with("_NONE") && !text.empty();
    data = Set_Text(std::move(data), name, text);
    if (clean && same_record && plain::Find(data, name, name) == plain::Find(data, name, name + "\0\0"s)) {
        const std::string record = plain::Find(data, name, name);
        if (!record.empty() && plain::Tail(record) <= record.size() - 0x50 && data == expected) {
            Require(Get_Text(data, name) == plain::Get(data, name));
        }
    }
}

void Run_Step(unsigned char step, std::string& data) {
    const std::string& name = Names[step / 8 % Names.size()];
    switch (step % 8) {
        case 0:
            Require(Get_Text(data, name) == plain::Get(data, name));
            break;
        case 1:
            Write_And_Read(data, name, Texts[step / 32 % Texts.size()]);
            break;
        case 2: {
            std::string expected = data;
            for (const std::string& each : Names) expected = plain::Set(expected, each, plain::Get(expected, each));
            data = Rewrite_Texts(std::move(data), Names);
            Require(data == expected);
            break;
        }
        case 3: {
            const std::size_t size = data.size();
            Region_Force(data, step & 64 ? "JPN" : "ITA");
            Set_Mat_Colors(data, "T_PF", {0x010203, 0x040506});
            data = Set_File_Len(std::move(data));
            Require(data.size() == size);
            break;
        }
        case 4: {
            const std::string cut = CutPadding(data);
            Require(data.starts_with(cut) && CutPadding(cut) == cut);
            Require(CutPadding(AddPadding(cut, {true, 5})) == cut || cut == data);
            data = cut;
            break;
        }
        case 5: {
            const auto field = static_cast<Field>(step / 8 % 4);
            data = Set_Field_Everywhere(std::move(data), field, u"1", Neutral_Language(data));
            break;
        }
        default:
            Require(Text_Box_Names(data).size() + 1 == plain::Split(data).size());
            break;
    }
}

}  // namespace

/// The first byte counts the steps, which follow; the rest is the layout.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    if (size == 0) return 0;
    const std::size_t steps = std::min<std::size_t>(bytes[0] % 8, size - 1);
    std::string data(reinterpret_cast<const char*>(bytes) + 1 + steps, size - 1 - steps);
    for (std::size_t i = 0; i < steps && data.size() < 100000; ++i) Run_Step(bytes[1 + i], data);
    return 0;
}
