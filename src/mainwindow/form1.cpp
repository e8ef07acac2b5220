#include "mainwindow/form1.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "colors/window/scheme_list.h"
#include "gameinfo/languages.h"
#include "layout/kind.h"
#include "layout/mod_globals.h"
#include "system/code_page.h"
#include "system/files.h"

namespace bannersmith {

namespace {

constexpr std::u16string_view CurrentLogo = u"Current Logo";

}  // namespace

Form1::Form1(Process process, Desktop& desktop)
    : cmbForce({LanguageList.begin(), LanguageList.end()}),
      process_(std::move(process)),
      desktop_(desktop) {
    txtSrc.Change = [this] { txtSrc_Change(); };
}

std::optional<int> Form1::Form_Load() {
    cmbForce.Select(cmbForce.Count() - 1);
    std::u16string line;
    if (const auto failure = Read_Configuration(line)) {
        desktop_.Report(*failure);
        return Failed;
    }
    if (!Has_Window()) return Run_Batch(line);
    txtSrc.Set(line);
    form.Show();
    Tell_What_Is_Loaded();
    RefreshColorList_Here();
    RefreshLogoList();
    return std::nullopt;
}

std::u16string Form1::Configuration_Path() const {
    return process_.program_folder + u"\\cfgs\\vcinfopath.cfg";
}

Outcome Form1::Read_Configuration(std::u16string& line) const {
    std::string contents;
    if (auto failure = Read_File(Configuration_Path(), contents)) return failure;
    if (contents.empty()) {
        return Failure{Configuration_Path(), "Holds no line; write one with any path into it"};
    }
    line = From_Code_Page(contents.substr(0, contents.find_first_of("\r\n")));
    return std::nullopt;
}

/// A path that cannot be stored is no reason to stop working, so a failure is not reported. One
/// that the code page has not, or of more than a line, would come back as another path, so the last
/// one stays.
void Form1::Store_Path() const {
    const std::string path = To_Code_Page(txtSrc.Text());
    const bool one_line = path.find_first_of("\r\n") == path.npos;
    if (!one_line || From_Code_Page(path) != txtSrc.Text()) return;
    const std::string line = path + "\r\n";
    std::string stored;
    if (!Read_File(Configuration_Path(), stored) && stored == line) return;
    static_cast<void>(Replace_File(Configuration_Path(), line));
}

std::u16string Form1::Layout_Path() const {
    return Resolve(process_.program_folder, txtSrc.Text());
}

void Form1::txtSrc_Change() {
    BrlytData.clear();
    on_disk_.clear();
    layout_size_ = 0;
    why_not_loaded_.clear();
    const std::u16string path = Layout_Path();
    if (Ordinary_File_Exists(path)) {
        BrlytPath = path;
        Load_Brlyt();
        Store_Path();
    }
    if (!Has_Window()) return;
    lblLastCommand.Set(u"");
    Tell_What_Is_Loaded();
}

void Form1::Load_Brlyt() {
    NoneRegion.clear();
    if (!Ordinary_File_Exists(BrlytPath) || Ends_In_Separator(BrlytPath)) return;
    try {
        if (const auto failure = Read_File(BrlytPath, on_disk_)) {
            why_not_loaded_ = failure->reason;
            return;
        }
        why_not_loaded_ = Not_To_Be_Edited(on_disk_);
        if (!why_not_loaded_.empty()) return;
        BrlytData = CutPadding(on_disk_);
        layout_size_ = BrlytData.size();
        info.Refill();
    } catch (const std::bad_alloc&) {
        BrlytData = on_disk_ = {};
        layout_size_ = 0;
        why_not_loaded_ = "Not enough memory";
    }
}

Failure Form1::Why_No_Layout() const {
    if (txtSrc.Text().empty()) {
        return {Has_Window() ? u"File" : Configuration_Path(), "Names no layout file"};
    }
    if (!why_not_loaded_.empty()) return {txtSrc.Text(), why_not_loaded_};
    std::string bytes;
    if (const auto failure = Read_File(Layout_Path(), bytes)) {
        return {txtSrc.Text(), failure->reason};
    }
    return {txtSrc.Text(),
            bytes.size() < HeaderBytes ? "Too short to be a layout" : "No layout is loaded"};
}

void Form1::cmdFileBrowse_Click() {
    const std::u16string file =
        desktop_.Open_File(u"Brlyt Files (*.brlyt)|*.brlyt|All Files (*.*)|*.*", Layout_Path());
    if (!file.empty()) Take_File(file);
}

void Form1::Take_File(const std::u16string& file) {
    if (!Lose_Changes(u" does not have the latest changes. Take another file without saving?")) {
        return;
    }
    txtSrc.Set(file);
    // Dialogs answer with the platform's own separator, so the program's folder is looked for with
    // either one behind it.
    const std::u16string& folder = process_.program_folder;
    for (const char16_t separator : {u'\\', u'/'}) {
        txtSrc.Set(Replace_All(txtSrc.Text(), folder + separator, u"\\"));
    }
    if (Has_Unsaved_Changes()) txtSrc_Change();  // the same file once more
}

void Form1::RefreshColorList_Here() {
    Fill_Scheme_List(cmbFileList, File1, process_.program_folder);
    cmbFileList.Select(0);
}

void Form1::RefreshLogoList() {
    static_cast<void>(File2.Set_Path(process_.program_folder + u"\\logos\\"));  // none: no logos
    cmbLogo.Clear();
    cmbLogo.Add({std::u16string(CurrentLogo)});
    cmbLogo.Add(File2.Names());
    cmbLogo.Select(0);
}

void Form1::cmdEditColor_Click() {
    ColorWindow = std::make_unique<frmColor>(MainWindowForColors{form, txtSrc, cmbFileList, info},
                                             process_.program_folder, desktop_);
    ColorWindowMade.Raise();
    ColorWindow->Form_Load();
    ColorWindow->form.Show();
    ColorWindow->cmbFileList.Select(cmbFileList.Index());
    form.Set_Enabled(false);
}

void Form1::Close_Color_Window() {
    ColorWindow->Form_Unload();
    ColorWindow.reset();
}

void Form1::cmdHC_Click() {
    TextEditor = std::make_unique<frmHC>(form, info);
    TextEditor->Written = [this, before = BrlytData]() mutable {
        Tell_Changes(u"Text editor", before);
        before = BrlytData;
    };
    TextEditorMade.Raise();
    TextEditor->Form_Load();
    TextEditor->form.Show();
}

void Form1::Close_Text_Editor() {
    TextEditor->Form_Unload();
    TextEditor.reset();
}

void Form1::SetForce(std::u16string& REG) {
    REG = Capitals(REG);
    const auto& entries = cmbForce.Entries();
    const auto entry = std::find(entries.begin(), entries.end(), REG);
    if (entry != entries.end()) cmbForce.Select(static_cast<int>(entry - entries.begin()));
}

}  // namespace bannersmith
