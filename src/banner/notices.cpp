#include "banner/notices.h"

#include <algorithm>
#include <array>

#include "banner/region_force.h"
#include "base/text.h"
#include "gameinfo/boxes.h"
#include "gameinfo/languages.h"
#include "layout/sections.h"
#include "layout/text_box.h"

namespace bannersmith {

namespace {

constexpr std::array<const char*, FieldPrefixes.size()> FieldNames = {"name", "year", "players",
                                                                      "ESRB"};

std::string File_Name(const std::u16string& path) {
    return To_Utf8(path.substr(path.find_last_of(u"\\/") + 1));
}

bool Has_Group(const LayoutInfo& layout, std::string_view name) {
    return std::any_of(layout.groups.begin(), layout.groups.end(),
                       [&](const GroupInfo& group) { return group.name == name; });
}

std::string Joined(const std::vector<std::string>& items, std::string_view between) {
    std::string text;
    for (const std::string& item : items) text += (text.empty() ? "" : std::string(between)) + item;
    return text;
}

}  // namespace

std::string Lost_By_Force(std::string_view layout, std::string_view region,
                          std::span<const NewContents> animations) {
    const std::string source = Forced_From(layout, region);
    if (source.empty()) return {};
    std::vector<std::string> losses;
    if (Has_Group(Read_Layout(layout), source)) {
        losses.push_back("region force leaves the group " + source);
    }
    for (const NewContents& animation : animations) {
        for (const std::string_view stem : ForcedStems) {
            const std::string name = std::string(stem) + source;
            if (layout.find(name) == layout.npos ||
                animation.bytes.find(name) == std::string::npos) {
                continue;
            }
            losses.push_back(File_Name(animation.path) + " names " + name +
                             ", which gets another name");
        }
    }
    return Joined(losses, ", and ");
}

std::string Left_By_Scheme(std::string_view layout) {
    std::vector<std::string> left;
    for (const MaterialInfo& material : Read_Layout(layout).materials) {
        for (const std::u16string_view prefix : FieldPrefixes) {
            const bool is_left = material.name == To_Utf8(Neutral_Box(prefix)) ||
                                 material.name == To_Utf8(prefix).append(To_Utf8(Korean));
            if (is_left) left.push_back(material.name);
        }
    }
    return left.empty() ? "" : "the scheme leaves the colors of " + Joined(left, ", ");
}

std::vector<std::string> Shared_Texts(std::string_view before, std::string_view after) {
    const LayoutInfo layout = Read_Layout(after);
    std::vector<std::string> shared;
    for (std::size_t field = 0; field < FieldPrefixes.size(); ++field) {
        for (const std::u16string_view code : Languages) {
            const std::string box = To_Utf8(FieldPrefixes[field]) + To_Utf8(code);
            std::vector<std::string> others;
            for (const GroupInfo& group : layout.groups) {
                const bool shows = std::find(group.members.begin(), group.members.end(), box) !=
                                   group.members.end();
                const std::u16string name = From_Utf8(group.name);
                const bool is_other = name != code && std::find(Languages.begin(), Languages.end(),
                                                                name) != Languages.end();
                if (shows && is_other) others.push_back(group.name);
            }
            if (others.empty() || Get_Text(before, box) == Get_Text(after, box)) continue;
            shared.push_back("the " + std::string(FieldNames[field]) + " text of " + To_Utf8(code) +
                             " is shown for " + Joined(others, ", ") + ", too");
        }
    }
    return shared;
}

}  // namespace bannersmith
