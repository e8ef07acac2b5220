#include "exchange/options.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "colors/scheme.h"
#include "container/imet.h"
#include "exchange/edit_usage.h"
#include "gameinfo/fields.h"
#include "gameinfo/languages.h"
#include "layout/file_length.h"
#include "system/files.h"

namespace bannersmith {

namespace {

/// Code units: more than a banner shows, and with its wording inside a box's 65,535 bytes.
constexpr std::size_t LongestText = 32000;

Failure Refused(std::string reason) {
    return {{}, std::move(reason)};
}

/// An option as it was read: which language, box or element, in capitals for a language and empty
/// where there is none.
struct Asked {
    std::u16string key, value;
    const std::u16string& program_folder;
};

using Read = Result<Wanted>;

/// A bare name lies in the folder of the program unless only the current folder has it.
std::u16string Find_Beside_Program(const std::u16string& in_program, const std::u16string& value) {
    const bool bare = value.find_first_of(u"\\/") == value.npos && !Is_Full_Path(value);
    if (!bare) return value;
    return !Ordinary_File_Exists(in_program) && Ordinary_File_Exists(value) ? value : in_program;
}

template <Field field>
Read Take_Field(const Asked& asked) {
    if (std::string why = Refused_Value(field, asked.value); !why.empty()) return Refused(why);
    if (asked.key.empty()) return Wanted(SetFieldEverywhere{field, asked.value});
    return Wanted(SetField{field, asked.key, asked.value});
}

Read Take_System(const Asked& asked) {
    if (asked.value.empty()) return Refused("Is empty");
    return Wanted(WriteBox{std::u16string(SystemBox), asked.value});
}

Read Take_Text(const Asked& asked) {
    if (asked.key.empty() || !To_Bytes(asked.key)) return Refused("Is not BOX=TEXT");
    if (asked.value.empty()) return Refused("Is empty");
    return Wanted(WriteBox{asked.key, asked.value, true});
}

Read Take_Colors(const Asked& asked) {
    const bool is_file = Capitals(asked.value).ends_with(u".VCCS");
    const auto scheme =
        Load_Scheme(Find_Beside_Program(is_file ? Scheme_Folder(asked.program_folder) + asked.value
                                                : Scheme_Path(asked.program_folder, asked.value),
                                        asked.value));
    if (!scheme) return Refused(To_Utf8(scheme.Why().subject) + ": " + scheme.Why().reason);
    SetColors edit;
    for (std::size_t i = 0; i < Elements.size(); ++i) edit.pairs[i] = (*scheme)[i];
    return Wanted(std::move(edit));
}

/// Six hexadecimal digits.
std::optional<Color> Read_Color(std::u16string_view digits) {
    constexpr std::u16string_view Hexadecimal = u"0123456789ABCDEF";
    if (digits.size() != 6) return std::nullopt;
    std::array<std::uint8_t, 3> components{};
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const std::size_t digit = Hexadecimal.find(Capitals(digits)[i]);
        if (digit == Hexadecimal.npos) return std::nullopt;
        components[i / 2] = static_cast<std::uint8_t>(components[i / 2] << 4 | digit);
    }
    return Make_Color(components[0], components[1], components[2]);
}

Read Take_Color(const Asked& asked) {
    const auto element = std::find_if(Elements.begin(), Elements.end(), [&](const Element& each) {
        return Capitals(each.key) == Capitals(asked.key);
    });
    if (element == Elements.end()) return Refused("Names no element that has colors");
    const std::size_t comma = std::min(asked.value.find(u','), asked.value.size());
    const auto first = Read_Color(Trim(std::u16string_view(asked.value).substr(0, comma)));
    const auto second = Read_Color(
        Trim(std::u16string_view(asked.value).substr(std::min(comma + 1, asked.value.size()))));
    if (!first || !second) return Refused("Is not RRGGBB,RRGGBB");
    const auto index = static_cast<std::size_t>(element - Elements.begin());
    return Wanted(SetColors{{{index, ColorPair{*first, *second}}}});
}

Read Take_Logo(const Asked& asked) {
    if (asked.value.empty()) return Refused("Is empty");
    return Wanted(ReplaceLogo{
        Find_Beside_Program(asked.program_folder + u"\\logos\\" + asked.value, asked.value)});
}

Read Take_Picture(const Asked& asked) {
    if (asked.value.empty()) return Refused("Is empty");
    return Wanted(ReplacePicture{asked.value});
}

Read Take_Force(const Asked& asked) {
    const std::u16string code = Capitals(asked.value);
    if (std::find(Languages.begin(), Languages.end(), code) == Languages.end()) {
        return Refused("Is none of eng, ger, fra, ita, spa, ned, jpn");
    }
    return Wanted(ForceRegion{code});
}

Read Take_Pad(const Asked& asked) {
    const auto padding = asked.value.empty() ? Refused("Is empty") : Read_Padding(asked.value);
    if (!padding) return Refused(padding.Why().reason);
    return Wanted(SetPadding{asked.value});
}

template <std::size_t line>
Read Take_Name(const Asked& asked) {
    if (std::string why = Too_Long_For_A_Name(asked.value); !why.empty()) return Refused(why);
    if (asked.key.empty()) return Wanted(SetChannelNames{asked.value});
    return Wanted(SetChannelName{asked.key, line, asked.value});
}

Read Take_Export(const Asked& asked) {
    if (!Capitals(asked.value).ends_with(u".PNG")) return Refused("Is no name that ends in .png");
    return Wanted(ExportPicture{asked.value});
}

/// How the value of each option is read.
struct Reader {
    std::string_view name;
    Read (*read)(const Asked&);
};

constexpr Reader Readers[] = {
    {"title", Take_Field<Field::title>},
    {"year", Take_Field<Field::year>},
    {"players", Take_Field<Field::players>},
    {"rating", Take_Field<Field::rating>},
    {"system", Take_System},
    {"text", Take_Text},
    {"colors", Take_Colors},
    {"color", Take_Color},
    {"logo", Take_Logo},
    {"picture", Take_Picture},
    {"force", Take_Force},
    {"pad", Take_Pad},
    {"name", Take_Name<0>},
    {"subtitle", Take_Name<1>},
    {"export-picture", Take_Export},
};

/// The option of a name, and the language of it in capitals, which may be empty.
struct Named {
    const OptionInfo* option = nullptr;
    std::u16string language;
};

Named Find_Option(std::string_view name) {
    for (const OptionInfo& option : Edit_Options()) {
        const OptionKey key = option.key;
        if (name == option.name && key != OptionKey::each_language) return {&option, u""};
        if (key != OptionKey::language && key != OptionKey::each_language) continue;
        for (const std::string_view code : Option_Languages()) {
            if (name != std::string(option.name).append("-").append(code)) continue;
            return {&option, Capitals(From_Utf8(code))};
        }
    }
    return {};
}

/// Lines of a cell are lines of a box. A name has none.
std::u16string In_One_Line(const OptionInfo& option, std::u16string_view value) {
    if (option.name == "name" || option.name == "subtitle") return std::u16string(value);
    return Replace_All(Replace_All(value, u"\r\n", u"^"), u"\n", u"^");
}

Result<Wish> Read_Named(std::string_view name, std::u16string_view value,
                        const std::u16string& program_folder) {
    const std::size_t colon = std::min(name.find(':'), name.size());
    const Named named = Find_Option(name.substr(0, colon));
    const OptionInfo* const option = named.option;
    if (option == nullptr) return Refused("Is no option");
    if (value.size() > LongestText) return Refused("Is too long");
    if (!Is_Utf8(value)) return Refused("Is no UTF-8 text");
    if (value.find(u'\0') != value.npos) return Refused("Holds a zero character");
    Asked asked{named.language, In_One_Line(*option, value), program_folder};
    const bool keyed = option->key == OptionKey::box || option->key == OptionKey::element;
    if (!keyed && colon < name.size()) return Refused("Is no option");
    if (keyed && colon < name.size()) asked.key = From_Utf8(name.substr(colon + 1));
    if (keyed && colon == name.size()) {
        const std::size_t equals = std::min(asked.value.find(u'='), asked.value.size());
        asked.key = asked.value.substr(0, equals);
        asked.value.erase(0, equals + 1);
    }
    const auto* const reader =
        std::find_if(std::begin(Readers), std::end(Readers),
                     [&](const Reader& each) { return each.name == option->name; });
    auto read = reader->read(asked);
    if (!read) return read.Why();
    return Wish{"--" + std::string(name), std::move(*read)};
}

}  // namespace

bool Is_Option(std::string_view name) {
    const std::size_t colon = std::min(name.find(':'), name.size());
    const OptionInfo* const option = Find_Option(name.substr(0, colon)).option;
    return option != nullptr && (colon == name.size() || option->key == OptionKey::box ||
                                 option->key == OptionKey::element);
}

Result<Wish> Read_Wish(std::string_view name, std::u16string_view value,
                       const std::u16string& program_folder) {
    return Read_Named(name, value, program_folder).About(u"--" + From_Utf8(name));
}

}  // namespace bannersmith
