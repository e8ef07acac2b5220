// What the main window tells about the layout and about the last command, beside the fields.
#include <algorithm>
#include <array>

#include "base/text.h"
#include "forms/say.h"
#include "gameinfo/boxes.h"
#include "gameinfo/languages.h"
#include "inspect/archive_info.h"
#include "inspect/drawing.h"
#include "layout/kind.h"
#include "layout/text_box.h"
#include "mainwindow/form1.h"
#include "system/files.h"

namespace bannersmith {

namespace {

constexpr std::array<std::u16string_view, 3> SetNames = {u"Name", u"Year", u"ESRB Rating"};
constexpr std::array<std::u16string_view, 5> SetAllNames = {u"Name", u"Year", u"Players", u"System",
                                                            u"ESRB Rating"};

std::u16string Number(std::size_t number) {
    return From_Utf8(std::to_string(number));
}

/// The codes of the languages that have a title, or what there is in their place.
std::u16string Languages_Present(std::string_view layout) {
    std::vector<std::u16string> names;
    for (const std::u16string_view code : Languages) names.push_back(Box_Of(Field::title, code));
    names.push_back(Box_Of(Field::title, Korean));
    for (const std::u16string_view prefix : FieldPrefixes) names.emplace_back(Neutral_Box(prefix));
    const auto texts = Read_Boxes(layout, names);
    std::u16string codes;
    bool has_one_for_all = false;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (texts[i].empty()) continue;
        has_one_for_all = has_one_for_all || i > Languages.size();
        if (i > Languages.size()) continue;
        codes.append(codes.empty() ? u"" : u" ").append(names[i].substr(box_prefix::Title.size()));
    }
    if (!codes.empty()) return codes;
    return has_one_for_all ? Say("one text for all languages") : Say("no titles");
}

/// The text boxes that the fields write, as far as their texts differ between two layouts.
std::vector<std::u16string> Changed_Boxes(const std::string& before, const std::string& after) {
    std::vector<std::u16string> names, changed;
    for (const std::u16string_view prefix : FieldPrefixes) {
        for (const std::u16string_view code : Codes_For(after)) {
            names.push_back(code == NoLanguage ? std::u16string(Neutral_Box(prefix))
                                               : std::u16string(prefix).append(code));
        }
    }
    names.emplace_back(SystemBox);
    const auto old = Read_Boxes(before, names), now = Read_Boxes(after, names);
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (old[i] != now[i]) changed.push_back(names[i]);
    }
    return changed;
}

/// In front of what is told behind something else in the line.
constexpr std::u16string_view Bar = u"  |  ";

std::u16string Column(std::u16string_view text) {
    return std::u16string(Bar).append(text);
}

std::u16string Describe(const std::vector<std::u16string>& boxes, bool same) {
    if (same) return Say("nothing changed");
    if (boxes.empty()) return Say("other texts changed");
    std::u16string text = boxes.size() == 1
                              ? Say("1 text changed:")
                              : Filled(Say("%1 texts changed:"), Number(boxes.size()));
    for (const std::u16string& name : boxes) text += u" " + name;
    return text;
}

}  // namespace

void Form1::cmdSet_Click(std::int16_t Index) {
    const auto field = static_cast<std::size_t>(Index);
    const std::string before = BrlytData;
    info.cmdSet_Click(Index);
    Tell_Changes(field < SetNames.size() ? SetNames[field] : u"", before);
}

void Form1::cmdSetAll_Click(std::int16_t Index) {
    const auto field = static_cast<std::size_t>(Index);
    const std::string before = BrlytData;
    info.cmdSetAll_Click(Index);
    Tell_Changes(field < SetAllNames.size() ? SetAllNames[field] : u"", before);
}

void Form1::cmdSetNames_Click() {
    const std::size_t written = names.cmdSet_Click();
    const std::u16string told = written == 0   ? Say("nothing changed")
                                : written == 1 ? Say("1 line changed")
                                               : Filled(Say("%1 lines changed"), Number(written));
    lblLastCommand.Set(Say("Channel names") + u": " + told);
    Tell_What_Is_Loaded();
}

void Form1::Tell_Changes(std::u16string_view command, const std::string& before) {
    const std::u16string changes = Describe(Changed_Boxes(before, BrlytData), before == BrlytData);
    lblLastCommand.Set(std::u16string(command) + u": " + changes);
    Tell_What_Is_Loaded();
}

bool Form1::Has_Unsaved_Changes() const {
    return opened_.banner.Has_Unsaved_Changes();
}

bool Form1::May_Close() {
    return form.Enabled() && Settle_Work();
}

void Form1::Undo_Click() {
    if (const auto name = opened_.banner.Undo_Name()) {
        Step_Through_History(&Banner::Undo, Filled(Say("Taken back: %1"), *name));
    }
}

void Form1::Redo_Click() {
    if (const auto name = opened_.banner.Redo_Name()) {
        Step_Through_History(&Banner::Redo, Filled(Say("Brought again: %1"), *name));
    }
}

void Form1::Step_Through_History(bool (Banner::*step)(), const std::u16string& told) {
    const bool had_textures = !opened_.banner.Replaced_Textures().empty();
    if (!(opened_.banner.*step)()) return;
    info.Show_Selected();
    names.Show_Set();
    const bool has_textures = !opened_.banner.Replaced_Textures().empty();
    had_textures || has_textures ? live.Take_Banner() : live.Take_Changes();
    lblLastCommand.Set(told);
    Tell_What_Is_Loaded();
}

void Form1::Read_Archive() {
    archive_faults_.clear();
    archive_contents_.clear();
    for (const Warning& warning : Find_Menu_Warnings(opened_.banner)) {
        archive_faults_ += Column(Filled(Say("Warning: %1"), From_Utf8(warning.text)));
    }
    const Archive* archive = opened_.banner.Source().Packed_In();
    if (archive == nullptr) return;
    const ArchiveInfo held = Read_Archive_Info(*archive);
    for (const std::string& warning : held.warnings) {
        archive_faults_ += Column(Filled(Say("Warning: %1"), From_Utf8(warning)));
    }
    archive_contents_ = Column(
        Filled(Say("%1 files in %2 bytes"), Number(held.files.size()), Number(held.file_size)));
    for (const ArchiveFileInfo& file : held.files) {
        archive_contents_ += Column(From_Utf8(file.path + " " + std::to_string(file.size) +
                                              (file.texture ? " " + file.texture->Text() : "")));
    }
    for (std::size_t i = 0; held.names && i < held.names->size(); ++i) {
        const auto& [first, second] = (*held.names)[i];
        if (first.empty() && second.empty()) continue;
        archive_contents_ += Column(std::u16string(NameLanguages[i]) + u" " + first +
                                    (second.empty() ? u"" : u" / " + second));
    }
}

void Form1::Tell_What_Is_Loaded() {
    lblUndo.Set(opened_.banner.Undo_Name().value_or(u""));
    lblRedo.Set(opened_.banner.Redo_Name().value_or(u""));
    if (BrlytData.empty()) {
        const std::string reason = opened_.why_not.empty() ? "" : ": " + opened_.why_not;
        lblLoaded.Set(Say("No layout loaded") + From_Utf8(reason));
        return;
    }
    const std::u16string path = With_Backslashes(txtSrc.Text());
    const Archive* archive = opened_.banner.Source().Packed_In();
    const std::u16string packed = archive ? u": " + From_Utf8(archive->Layout_Path()) : u"";
    lblLoaded.Set(path.substr(path.rfind(u'\\') + 1) + packed + archive_faults_ + u"  |  " +
                  (Has_Unsaved_Changes() ? Say("texts not saved") : Say("texts as in the file")) +
                  u"  |  " +
                  (Is_Layout(BrlytData) ? Languages_Present(BrlytData) : Say("not a layout file")) +
                  u"  |  " + Filled(Say("%1 bytes"), Number(BrlytData.size())) + archive_contents_);
}

}  // namespace bannersmith
