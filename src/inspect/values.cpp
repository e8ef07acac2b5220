#include "inspect/values.h"

#include <algorithm>
#include <set>

#include "base/text.h"
#include "colors/materials.h"
#include "gameinfo/fields.h"
#include "gameinfo/languages.h"
#include "layout/sections.h"
#include "layout/text_box.h"

namespace bannersmith {

namespace {

char Small(char16_t unit) {
    return static_cast<char>(unit >= u'A' && unit <= u'Z' ? unit - u'A' + u'a' : unit);
}

/// The field and the language code, or `NoLanguage`, of a box that has them.
struct FieldBox {
    Field field;
    std::u16string_view code;
};

std::optional<FieldBox> Field_Box(std::u16string_view name) {
    for (std::size_t i = 0; i < FieldPrefixes.size(); ++i) {
        const auto field = static_cast<Field>(i);
        if (name == Neutral_Box(FieldPrefixes[i])) return FieldBox{field, NoLanguage};
        for (const std::u16string_view code : Languages) {
            if (name == Box_Of(field, code)) return FieldBox{field, code};
        }
        if (name == Box_Of(field, Korean)) return FieldBox{field, Korean};
    }
    return std::nullopt;
}

class Collecting {
 public:
    explicit Collecting(std::string_view layout)
        : layout_(layout), neutral_(Neutral_Language(layout)) {}

    std::vector<OptionValue> values;

    void Texts() {
        const LayoutInfo info = Read_Layout(layout_);
        std::vector<std::string_view> names;
        for (const TextBoxInfo& box : info.boxes) {
            if (boxes_.insert(From_Bytes(box.name)).second) names.push_back(box.name);
        }
        const auto texts = Get_Texts(layout_, names);
        for (std::size_t i = 0; i < names.size(); ++i) Add_Text(From_Bytes(names[i]), texts[i]);
    }

    void Colors() {
        for (std::size_t i = 0; i < Elements.size(); ++i) {
            const std::vector<std::string> names = Materials_Of(layout_, i);
            if (names.empty()) continue;
            const auto colors = Get_Mat_Colors(layout_, names[0]);
            const bool agree = std::all_of(names.begin(), names.end(), [&](const auto& name) {
                return Get_Mat_Colors(layout_, name) == colors;
            });
            if (!agree || !colors) continue;
            values.push_back({"color:" + To_Utf8(Elements[i].key), Colors_Text(*colors)});
        }
    }

    void Names(const ChannelNames& names) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            for (std::size_t line = 0; line < NameLines; ++line) {
                if (names[i][line].empty()) continue;
                const char* const option = line == 0 ? "name" : "subtitle";
                Add(Option_Of(option, NameLanguages[i]), names[i][line]);
            }
        }
    }

 private:
    void Add(const std::string& option, const std::u16string& value) {
        if (From_Utf8(To_Utf8(value)) == value) values.push_back({option, value});
    }

    void Add_Text(const std::u16string& name, const std::u16string& text) {
        if (name.empty() || text.empty()) return;
        const auto box = Field_Box(name);
        if (name == SystemBox && Is_Same_Box(layout_, name, name)) return Add("system", text);
        if (!box || !Add_Value(*box, text)) Add("text:" + To_Utf8(name), text);
    }

    /// False for a text that is not the wording of a value, and for a box that its option does not
    /// find.
    bool Add_Value(const FieldBox& box, const std::u16string& text) {
        const bool neutral = box.code == NoLanguage;
        if (neutral && Has_Language(box.field)) return false;
        const std::u16string written = Box_Of(box.field, box.code);
        if (!Is_Same_Box(layout_, written, Box_To_Read(box.field, box.code))) return false;
        const std::u16string_view wording = neutral ? std::u16string_view(neutral_) : box.code;
        const std::u16string value = Bare_Value(box.field, text, wording);
        if (!Refused_Value(box.field, value).empty()) return false;
        if (Worded(layout_, box.field, box.code, value, neutral_) != text) return false;
        const std::string_view option = FieldOptions[static_cast<std::size_t>(box.field)];
        Add(neutral ? std::string(option) : Option_Of(option, box.code), value);
        return true;
    }

    /// Whether a language has a box of its own for the field.
    bool Has_Language(Field field) const {
        const auto has_box = [&](std::u16string_view code) {
            return Has_Box(layout_, Box_Of(field, code));
        };
        return std::any_of(Languages.begin(), Languages.end(), has_box) || has_box(Korean);
    }

    std::string_view layout_;
    std::u16string neutral_;
    std::set<std::u16string, std::less<>> boxes_;
};

}  // namespace

std::vector<OptionValue> Values_Of(std::string_view layout,
                                   const std::optional<ChannelNames>& names) {
    Collecting collecting(layout);
    collecting.Texts();
    collecting.Colors();
    if (names) collecting.Names(*names);
    return std::move(collecting.values);
}

std::string Option_Of(std::string_view name, std::u16string_view code) {
    std::string option = std::string(name) + "-";
    for (const char16_t unit : code) option += Small(unit);
    return option;
}

std::u16string Colors_Text(const ColorPair& colors) {
    std::u16string text;
    for (const Color color : colors) {
        if (!text.empty()) text += u',';
        for (const unsigned component : {Red_Of(color), Green_Of(color), Blue_Of(color)}) {
            text += u"0123456789ABCDEF"[component >> 4];
            text += u"0123456789ABCDEF"[component & 0xF];
        }
    }
    return text;
}

}  // namespace bannersmith
