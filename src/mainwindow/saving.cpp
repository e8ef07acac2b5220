// The save sequence of the main window and the replacement of the logo texture.
#include <new>
#include <utility>

#include "colors/materials.h"
#include "gameinfo/boxes.h"
#include "gameinfo/languages.h"
#include "layout/mod_globals.h"
#include "layout/text_box.h"
#include "mainwindow/form1.h"
#include "mainwindow/region_force.h"
#include "platform/files.h"
#include "platform/text.h"

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
    if (failure) {
        Put_Textures_Back();
        Fail(Failed, *failure);
        lblLastCommand.Set(u"Not saved");
        return;
    }
    const bool logo_unplaced = cmbLogo.Index() > 0 && replaced_.empty();
    replaced_.clear();
    if (Has_Window()) desktop_.Message(u"File Successfully Saved!");
    txtSrc_Change();
    lblLastCommand.Set(logo_unplaced ? u"Saved; the banner has no logo texture to replace"
                                     : u"Saved");
}

/// Everything that can be refused is refused before anything is asked or changed.
Outcome Form1::Check_Save(Padding& padding) const {
    if (BrlytData.size() < HeaderBytes) return Why_No_Layout();
    const auto wanted = Read_Padding(txtPad.Text());
    if (!wanted) {
        return Failure{u"Padding \"" + txtPad.Text() + u"\"",
                       "Not a whole number up to 268435456, with or without + in front of it"};
    }
    padding = *wanted;
    return std::nullopt;
}

/// Whoever named another file by mistake would not get it back.
bool Form1::Save_Is_Wanted() {
    return !Has_Window() || Is_Layout(BrlytData) ||
           desktop_.Confirm(txtSrc.Text() + u" is not a layout file. Save it all the same?");
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
    BrlytData = AddPadding(std::move(BrlytData), padding);
    return Replace_File(path, BrlytData, Durability::synced, Reporting());
}

Notice Form1::Reporting() {
    return [this](const Failure& loss) { desktop_.Report(loss); };
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
        if (auto failure = Read_File(lgPath, logo)) return failure;
        KeptFile old;
        if (auto failure = old.Keep(folder + name)) return failure;
        if (auto failure = Replace_File(folder + name, logo, Durability::synced, Reporting())) {
            return failure;
        }
        replaced_.push_back(std::move(old));
        break;
    }
    return std::nullopt;
}

/// Newest first, so that a texture replaced twice ends as it was before the first time.
void Form1::Put_Textures_Back() {
    for (; !replaced_.empty(); replaced_.pop_back()) {
        if (const auto failure = replaced_.back().Put_Back()) desktop_.Report(*failure);
    }
}
