#include "exchange/changes.h"

#include "base/text.h"
#include "inspect/values.h"
#include "layout/sections.h"

namespace bannersmith {

namespace {

ColorPair Colors_Of(const MaterialInfo& material) {
    const auto color = [](const std::array<std::int16_t, 4>& components) {
        const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(components[i]); };
        return Make_Color(byte(0), byte(1), byte(2));
    };
    return {color(material.first), color(material.second)};
}

class Comparing {
 public:
    std::vector<Change> changes;

    void Add(const char* kind, const std::string& where, const std::u16string& before,
             const std::u16string& after) {
        if (before != after) changes.push_back({kind, where, before, after});
    }

    /// An edit neither adds nor removes any; a damaged layout may show others than before.
    void Layouts(const LayoutInfo& before, const LayoutInfo& after) {
        for (std::size_t i = 0; i < std::min(before.boxes.size(), after.boxes.size()); ++i) {
            const TextBoxInfo &old = before.boxes[i], &now = after.boxes[i];
            Add("renamed", "text box", From_Bytes(old.name), From_Bytes(now.name));
            Add("text", To_Utf8(From_Bytes(now.name)), old.text, now.text);
        }
        const std::size_t materials = std::min(before.materials.size(), after.materials.size());
        for (std::size_t i = 0; i < materials; ++i) {
            const MaterialInfo &old = before.materials[i], &now = after.materials[i];
            Add("renamed", "material", From_Bytes(old.name), From_Bytes(now.name));
            Add("color", To_Utf8(From_Bytes(now.name)), Colors_Text(Colors_Of(old)),
                Colors_Text(Colors_Of(now)));
        }
    }

    void Names(const ChannelNames& before, const ChannelNames& after) {
        for (std::size_t i = 0; i < before.size(); ++i) {
            Add("name", To_Utf8(NameLanguages[i]), before[i][0], after[i][0]);
            Add("subtitle", To_Utf8(NameLanguages[i]), before[i][1], after[i][1]);
        }
    }
};

std::u16string Bytes_Text(std::size_t size) {
    return From_Utf8(std::to_string(size) + " bytes");
}

}  // namespace

std::vector<Change> Changes_Of(const Banner& banner, const SavePlan& plan) {
    Comparing comparing;
    comparing.Layouts(Read_Layout(banner.On_Disk()), Read_Layout(plan.Layout()));
    if (banner.Names()) {
        comparing.Names(*banner.Source().Packed_In()->Names(), *banner.Names());
    }
    for (const std::u16string& texture : banner.Replaced_Textures()) {
        comparing.Add("texture", To_Utf8(texture), u"old", u"new");
    }
    comparing.Add("size", "layout", Bytes_Text(banner.On_Disk().size()),
                  Bytes_Text(plan.Layout().size()));
    return std::move(comparing.changes);
}

}  // namespace bannersmith
