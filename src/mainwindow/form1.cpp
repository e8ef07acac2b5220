#include "mainwindow/form1.h"

#include <utility>

#include "banner/pictures.h"
#include "base/text.h"
#include "colors/window/scheme_list.h"
#include "forms/say.h"
#include "gameinfo/languages.h"
#include "system/files.h"

namespace bannersmith {

namespace {

constexpr std::u16string_view CurrentLogo = u"Current Logo";
constexpr std::u16string_view FileFilter =
    u"Layouts and Banners (*.brlyt *.app *.bnr *.bin)|*.brlyt;*.app;*.bnr;*.bin|"
    u"Brlyt Files (*.brlyt)|*.brlyt|All Files (*.*)|*.*";

}  // namespace

Form1::Form1(Process process, Desktop& desktop)
    : BrlytData(opened_.banner.Bytes()),
      NoneRegion(opened_.banner.Neutral()),
      info(opened_.banner, [this](const Edit& edit) { Apply(edit); }),
      names(opened_.banner, [this](const Edit& edit) { Apply(edit); }),
      live({opened_.banner, [this] { return Unset_Edits(); }, [this] { return Language_Of_Name(); },
            process.program_folder},
           desktop),
      cmbForce({LanguageList.begin(), LanguageList.end()}),
      process_(std::move(process)),
      desktop_(desktop) {
    txtSrc.Change = [this] { txtSrc_Change(); };
    cmbFileList.picture_of = [this](int index) {
        return Scheme_Picture(process_.program_folder, cmbFileList, index);
    };
    cmbLogo.picture_of = [this](int index) { return Logo_Picture(index); };
    Watch_Fields();
}

/// What stands in the fields is seen at once.
void Form1::Watch_Fields() {
    info.Typed = [this] { live.Take_Changes(); };
    for (std::size_t i = 0; i < info.cmbRegion.size(); ++i) {
        info.cmbRegion[i].may_pick = [this, i] { return Settle_Field(i); };
    }
    cmbFileList.Click = [this] {
        cmbFileList.Set_Mark(u"");
        live.Take_Changes();
    };
    for (DropDownList* list : {&cmbLogo, &cmbForce}) {
        list->Click = [list] { list->Set_Mark(u""); };
    }
}

std::u16string Form1::Language_Of_Name() const {
    return info.cmbRegion[static_cast<std::size_t>(Field::title)].Selected();
}

/// As Set would write them.
std::vector<Edit> Form1::Unset_Edits() const {
    std::vector<Edit> edits = info.Unset_Edits();
    if (cmbFileList.Index() > 0) {
        edits.emplace_back(
            ApplyScheme{Scheme_Path(process_.program_folder, cmbFileList.Selected())});
    }
    return edits;
}

bool Form1::Form_Load(const std::u16string& file) {
    cmbForce.Select(cmbForce.Count() - 1);
    const auto line = Configuration(process_.program_folder).Read();
    if (!line) {
        desktop_.Report(line.Why());
        return false;
    }
    file.empty() ? txtSrc.Set(*line) : Take_File(file);
    form.Show();
    Tell_What_Is_Loaded();
    RefreshColorList_Here();
    RefreshLogoList();
    return true;
}

void Form1::txtSrc_Change() {
    Keep_Work();
    if (!Give_Back_Work()) return Load();
    Show_Loaded();
}

void Form1::Load() {
    opened_ = {};
    opened_ = Open_Layout(process_.program_folder, txtSrc.Text(), Banner::MostHistory);
    if (opened_.banner.Is_Loaded()) info.Refill();
    names.Refill();
    const std::u16string& name = opened_.banner.Source().Name();
    if (!name.empty() && std::exchange(loaded_last_, name) != name) Mark_What_Stays_Chosen();
    Show_Loaded();
}

/// Beside the fields.
void Form1::Show_Loaded() {
    is_change_known_ = false;
    live.Take_Banner();
    Read_Archive();
    lblLastCommand.Set(u"");
    Tell_What_Is_Loaded();
}

/// It was chosen for another file.
void Form1::Mark_What_Stays_Chosen() {
    const auto mark = [](DropDownList& list, bool is_chosen) {
        list.Set_Mark(is_chosen ? Say("Will be applied to this file, too") : u"");
    };
    mark(cmbFileList, cmbFileList.Index() > 0);
    mark(cmbLogo, cmbLogo.Index() > 0);
    mark(cmbForce, !cmbForce.On_Last_Entry());
}

void Form1::Take_Back_Choice(DropDownList& list) {
    list.Select(&list == &cmbForce ? list.Count() - 1 : 0);
}

bool Form1::Apply(std::span<const Edit> edits, const std::u16string& what) {
    const auto applied = opened_.banner.Apply(edits, what);
    if (!applied) desktop_.Report(applied.Why());
    live.Take_Changes();
    return static_cast<bool>(applied);
}

bool Form1::Shows_A_Sample() const {
    const std::u16string samples = With_Backslashes(process_.program_folder) + u"\\samples\\";
    return With_Backslashes(Loaded_File()).starts_with(samples);
}

std::u16string Form1::Layout_Path() const {
    return Resolve(process_.program_folder, txtSrc.Text());
}

void Form1::cmdFileBrowse_Click() {
    const std::u16string file = desktop_.Open_File(std::u16string(FileFilter), Layout_Path());
    if (!file.empty()) Take_File(file);
}

void Form1::Take_File(const std::u16string& file) {
    if (!Settle_Work()) return;
    txtSrc.Set(Banner_In_Folder(file));
    // Dialogs answer with the platform's own separator, so the program's folder is looked for with
    // either one behind it.
    const std::u16string& folder = process_.program_folder;
    for (const char16_t separator : {u'\\', u'/'}) {
        txtSrc.Set(Replace_All(txtSrc.Text(), folder + separator, u"\\"));
    }
    if (!opened_.banner.Is_Loaded()) Load();  // the same file once more
}

void Form1::cmdReload_Click() {
    if (Settle_Work()) Load();
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

/// The first entry stands for no file.
std::optional<Picture> Form1::Logo_Picture(int index) const {
    if (index <= 0) return std::nullopt;
    const std::u16string& name = cmbLogo.Entries()[static_cast<std::size_t>(index)];
    auto picture = Read_Picture_File(Logo_Path(process_.program_folder, name));
    return picture ? std::optional(std::move(*picture)) : std::nullopt;
}

void Form1::cmdEditColor_Click() {
    if (!May_Edit()) return;
    ColorWindow = std::make_unique<frmColor>(
        MainWindowForColors{form, txtSrc, cmbFileList, info.cmbRegion,
                            [this] { return info.Texts(); }, opened_.banner,
                            [this] { return Unset_Edits(); }},
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
    if (!May_Edit()) return;
    const auto apply = [this](const Edit& edit) {
        const std::string before = BrlytData;
        Apply(edit);
        Tell_Changes(Say("Text editor"), before);
    };
    TextEditor = std::make_unique<frmHC>(
        MainWindowForTexts{form, opened_.banner, apply, [this] { Undo_Click(); },
                           [this] { Redo_Click(); }, [this] { info.Show_Selected(); }},
        desktop_);
    TextEditorMade.Raise();
    TextEditor->Form_Load();
    TextEditor->form.Show();
}

void Form1::Close_Text_Editor() {
    TextEditor->Form_Unload();
    TextEditor.reset();
}

void Form1::cmdPicture_Click() {
    if (!May_Edit()) return;
    if (const auto picture = opened_.banner.Game_Picture(); !picture) {
        desktop_.Report(picture.Why());
        return;
    }
    const auto apply = [this](const Edit& edit) {
        if (!Apply(edit)) return;
        live.Take_Banner();
        lblLastCommand.Set(Say("Game picture: the next save writes it"));
        Tell_What_Is_Loaded();
    };
    PictureWindow = std::make_unique<GamePicture>(
        MainWindowForPicture{form, opened_.banner, apply, [this] { Undo_Click(); },
                             [this] { Redo_Click(); }},
        desktop_);
    PictureWindowMade.Raise();
    PictureWindow->Form_Load();
    PictureWindow->form.Show();
}

void Form1::Close_Picture_Window() {
    PictureWindow->Form_Unload();
    PictureWindow.reset();
}

/// Several edits at once are called by the window.
void Form1::cmdLanguages_Click() {
    if (!May_Edit()) return;
    const auto apply = [this](std::span<const Edit> edits) {
        const std::string before = BrlytData;
        const std::u16string what = edits.size() == 1 ? Name_Of(edits[0]) : Say("All languages");
        Apply(edits, what);
        Tell_Changes(what, before);
    };
    TableWindow = std::make_unique<LanguageTable>(
        MainWindowForTable{form, opened_.banner, apply, [this] { Undo_Click(); },
                           [this] { Redo_Click(); }, [this] { info.Show_Selected(); }});
    TableWindowMade.Raise();
    TableWindow->Form_Load();
    TableWindow->form.Show();
}

void Form1::Close_Table_Window() {
    TableWindow->Form_Unload();
    TableWindow.reset();
}

}  // namespace bannersmith
