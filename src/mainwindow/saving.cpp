// The save sequence of the main window and the replacement of the logo texture.
#include <algorithm>
#include <new>
#include <utility>

#include "base/text.h"
#include "colors/materials.h"
#include "gameinfo/boxes.h"
#include "gameinfo/languages.h"
#include "inspect/warnings.h"
#include "layout/kind.h"
#include "layout/mod_globals.h"
#include "layout/text_box.h"
#include "mainwindow/form1.h"
#include "mainwindow/region_force.h"
#include "system/files.h"

namespace bannersmith {

namespace {

/// Every text box that the save passes through the writer: language by language the four fields,
/// then the system.
std::vector<std::string> Boxes_To_Rewrite() {
    std::vector<std::string> names;
    for (const std::u16string_view code : LanguageList) {
        for (const std::u16string_view prefix : FieldPrefixes) {
            names.push_back(To_Utf8(prefix) + To_Utf8(code));
        }
    }
    names.push_back(To_Utf8(SystemBox));
    return names;
}

/// The folder "timg" beside the folder of the layout file: the layout's path, which has a
/// separator, without its last two parts. Empty for a layout in a root folder: what would be left
/// of its path is the current folder, which may be anyone's.
std::u16string Texture_Folder(std::u16string_view layout_path) {
    const std::u16string path = With_Backslashes(layout_path);
    const std::size_t last = path.rfind(u'\\');
    const std::size_t before = last == 0 ? path.npos : path.rfind(u'\\', last - 1);
    const std::u16string_view last_two =
        std::u16string_view(path).substr(before == path.npos ? 0 : before + 1);
    const std::u16string rest = Replace_All(path, last_two, u"");
    if (rest.empty() && Is_Full_Path(layout_path)) return {};
    return rest + u"timg\\";
}

}  // namespace

void Form1::cmdSave_Click() {
    Padding padding{};
    Outcome failure = Check_Save(padding);
    if (!failure && !Save_Is_Wanted()) {
        lblLastCommand.Set(u"Not saved");
        return;
    }
    if (!failure) failure = Save(padding);
    const bool logo_unplaced = cmbLogo.Index() > 0 && to_save_.size() == 1;
    if (!failure && !Has_Window()) Tell_What_Was_Odd(to_save_.back().bytes);
    to_save_.clear();
    if (failure) {
        Fail(Failed, *failure);
        lblLastCommand.Set(u"Not saved");
        return;
    }
    if (Has_Window()) desktop_.Message(u"File Successfully Saved!");
    txtSrc_Change();
    lblLastCommand.Set(logo_unplaced ? u"Saved; the banner has no logo texture to replace"
                                     : u"Saved");
}

/// In a batch run nobody has seen what was edited, so it is told when it looks wrong.
void Form1::Tell_What_Was_Odd(std::string_view saved) {
    if (!Is_Layout(on_disk_)) {
        desktop_.Report({txtSrc.Text(), "Saved, but it does not begin as a layout file"});
        return;
    }
    const LayoutInfo before = Read_Layout(on_disk_);
    std::vector<Warning> warnings;
    if (colors_applied_) warnings = Find_Color_Warnings(on_disk_, before);
    std::vector<Warning> of_texts = Find_Text_Warnings(on_disk_, before);
    if (!of_texts.empty()) {
        const LayoutInfo after = Read_Layout(saved);
        std::erase_if(of_texts, [&](const Warning& warning) {
            return *warning.box < after.boxes.size() &&
                   after.boxes[*warning.box].record == before.boxes[*warning.box].record;
        });
    }
    warnings.insert(warnings.end(), of_texts.begin(), of_texts.end());
    if (warnings.empty()) return;
    desktop_.Report({txtSrc.Text(), "Saved, but bannersmith-inspect warns of what was written: " +
                                        warnings.front().text});
}

/// Everything that can be refused is refused before anything is asked or changed.
Outcome Form1::Check_Save(Padding& padding) const {
    if (BrlytData.size() < HeaderBytes) return Why_No_Layout();
    const auto wanted = Read_Padding(txtPad.Text());
    if (!wanted) {
        return Failure{u"Padding \"" + txtPad.Text() + u"\"",
                       "Not a whole number up to 268435456, with or without + in front of it"};
    }
    if (!Has_Window() && Changed_Elsewhere()) {
        return Failure{txtSrc.Text(), "Was changed by another program since it was loaded"};
    }
    padding = *wanted;
    return std::nullopt;
}

/// A file that is no longer there is made anew.
bool Form1::Changed_Elsewhere() const {
    std::string now;
    return !Read_File(Layout_Path(), now) && now != on_disk_;
}

/// Whoever named another file by mistake would not get it back, nor what another program wrote.
bool Form1::Save_Is_Wanted() {
    if (!Has_Window()) return true;
    if (!Is_Layout(BrlytData) &&
        !desktop_.Confirm(txtSrc.Text() + u" is not a layout file. Save it all the same?")) {
        return false;
    }
    return !Changed_Elsewhere() ||
           desktop_.Confirm(txtSrc.Text() +
                            u" was changed by another program since it was loaded. Save over it?");
}

/// What fails leaves the data in memory as it was: a second try must not find its own padding
/// counted into the layout.
Outcome Form1::Save(const Padding& padding) {
    std::string before;
    Outcome failure;
    try {
        before = BrlytData;
        failure = Write_Layout(padding);
    } catch (const std::bad_alloc&) {
        failure = Failure{txtSrc.Text(), "Not enough memory"};
    }
    if (failure && !before.empty()) BrlytData = std::move(before);
    return failure;
}

Outcome Form1::Write_Layout(const Padding& padding) {
    const std::u16string path = Layout_Path();
    BrlytData = Rewrite_Texts(std::move(BrlytData), Boxes_To_Rewrite());
    BrlytData = Set_File_Len(std::move(BrlytData));
    if (Has_Window()) {
        if (auto failure = Apply_Chosen_Looks()) return failure;
    }
    Region_Force(BrlytData, To_Utf8(cmbForce.Selected()));
    to_save_.push_back({path, AddPadding(std::move(BrlytData), padding)});
    return Replace_Files(to_save_, lock_, [this](const Failure& loss) { desktop_.Report(loss); });
}

/// The first entry of either list stands for what the banner has.
Outcome Form1::Apply_Chosen_Looks() {
    if (cmbFileList.Index() > 0) {
        auto failure = Apply_Color_Scheme(process_.program_folder, cmbFileList.Selected());
        if (failure) return failure;
    }
    if (cmbLogo.Index() > 0) {
        std::u16string logo = cmbLogo.Selected();
        return ReplaceLogo(logo);
    }
    return std::nullopt;
}

Outcome Form1::ReplaceLogo(std::u16string& lgPath) {
    if (lgPath.starts_with(u'\\')) {
        lgPath = process_.program_folder + lgPath;
    } else if (!Is_Full_Path(lgPath)) {
        lgPath = process_.program_folder + u"\\logos\\" + lgPath;
    }
    const std::u16string layout = Layout_Path();
    if (With_Backslashes(layout).find(u'\\') == layout.npos) {
        return Failure{txtSrc.Text(), "Names no folder to look for the logo texture beside"};
    }
    const std::u16string folder = Texture_Folder(layout);
    if (folder.empty()) return std::nullopt;
    bool found = false;
    if (auto failure = Find_Folder(folder, found); failure || !found) return failure;
    if (auto failure = File2.Set_Path(folder)) return failure;
    for (const std::u16string& name : File2.Names()) {
        if (!name.starts_with(u"my_Back")) continue;
        std::string logo;
        if (auto failure = Read_Logo(lgPath, logo)) return failure;
        to_save_.push_back({folder + name, std::move(logo)});
        break;
    }
    return std::nullopt;
}

/// A logo may be the texture that an option before this one has replaced.
Outcome Form1::Read_Logo(const std::u16string& path, std::string& logo) const {
    const auto replaced =
        std::find_if(to_save_.rbegin(), to_save_.rend(),
                     [&](const NewContents& texture) { return Same_File(texture.path, path); });
    if (replaced == to_save_.rend()) return Read_File(path, logo);
    logo = replaced->bytes;
    return std::nullopt;
}

}  // namespace bannersmith
