#include "mainwindow/edit_names.h"

#include <array>

#include "forms/say.h"

namespace bannersmith {

namespace {

struct Naming {
    std::u16string operator()(const SetField& edit) const {
        return Name_Of(edit.field) + u" (" + edit.code + u")";
    }
    std::u16string operator()(const SetFieldEverywhere& edit) const {
        return Name_Of(edit.field) + u" (" + Say("all languages") + u")";
    }
    std::u16string operator()(const WriteBox& edit) const {
        return edit.name == SystemBox ? u"System" : edit.name;
    }
    std::u16string operator()(const ApplyScheme& /*edit*/) const { return Say("Colors"); }
    std::u16string operator()(const SetColors& /*edit*/) const { return Say("Colors"); }
    std::u16string operator()(const ReplaceLogo& /*edit*/) const { return Say("Logo"); }
    std::u16string operator()(const ReplacePicture& /*edit*/) const { return Say("Game picture"); }
    std::u16string operator()(const ForceRegion& edit) const {
        return Filled(Say("Region %1"), edit.code);
    }
    std::u16string operator()(const SetPadding& /*edit*/) const { return Say("Padding"); }
    std::u16string operator()(const SetChannelName& edit) const {
        return Filled(Say("Channel name (%1)"), edit.code);
    }
    std::u16string operator()(const SetChannelNames& /*edit*/) const {
        return Say("Channel names");
    }
};

}  // namespace

std::u16string Name_Of(const Edit& edit) {
    return std::visit(Naming(), edit);
}

/// As the window's captions have them.
std::u16string Name_Of(Field field) {
    constexpr std::array<const char16_t*, FieldPrefixes.size()> Names = {
        u"Name", u"Year", u"Players", u"ESRB Rating"};
    return Names[static_cast<std::size_t>(field)];
}

}  // namespace bannersmith
