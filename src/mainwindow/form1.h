// The main window: the layout file's path, the game information, and what a save applies.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "banner/banner.h"
#include "colors/window/frm_color.h"
#include "forms/controls.h"
#include "forms/desktop.h"
#include "gamepicture/game_picture.h"
#include "languagetable/language_table.h"
#include "liveview/live_view.h"
#include "mainwindow/channel_names.h"
#include "mainwindow/edit_names.h"
#include "mainwindow/game_info.h"
#include "mainwindow/layout_file.h"
#include "manualeditor/frm_hc.h"

namespace bannersmith {

/// The main window as state and events.
class Form1 {
    OpenedLayout opened_;

 public:
    /// `desktop` must outlive the window.
    Form1(Process process, Desktop& desktop);
    Form1(const Form1&) = delete;
    Form1& operator=(const Form1&) = delete;

    /// The banner that the window shows: its layout, empty while nothing is loaded, and the
    /// language in whose wording its neutral boxes are composed. What the path names is loaded into
    /// them, and only edits change them.
    const std::string& BrlytData;
    const std::u16string& NoneRegion;

    Form form;
    GameInfo info;
    ChannelNamesPage names;
    LiveView live;   ///< with the texts as they stand in the fields, and the chosen scheme
    TextBox txtSrc;  ///< the layout's path as typed; a change runs `txtSrc_Change`
    /// Read by each save, see `Read_Padding`.
    TextBox txtPad{std::u16string(DefaultPadding)};
    /// What each save applies: a scheme and a logo, none for the first entry, and a forced
    /// language.
    DropDownList cmbFileList, cmbLogo, cmbForce;
    /// The files listed last: of the schemes folder and of the logos folder.
    FileList File1{{".vccs"}}, File2{{".tpl", ".png", ".jpg", ".jpeg"}};
    Label lblLoaded;       ///< what is loaded: file, languages, size, unsaved changes
    Label lblLastCommand;  ///< what the last command changed
    /// What `Undo_Click` takes back and `Redo_Click` brings again; empty where there is nothing.
    Label lblUndo, lblRedo;

    /// The other windows while they are open. A view is made on the event, before they load.
    std::unique_ptr<frmColor> ColorWindow;
    std::unique_ptr<frmHC> TextEditor;
    std::unique_ptr<GamePicture> PictureWindow;
    std::unique_ptr<LanguageTable> TableWindow;
    Event ColorWindowMade, TextEditorMade, PictureWindowMade, TableWindowMade;

    /// Start-up. Loads the layout that the configuration names, or `file`, a full path, in its
    /// place, shows the window and fills its lists. False, and reported, where there is no
    /// configuration.
    bool Form_Load(const std::u16string& file = {});

    /// Empties `BrlytData`, and loads and remembers the file that the path box names, if there is
    /// one. Work that is not saved is kept until the path names its file again or the box is left.
    void txtSrc_Change();

    /// The user leaves the path box: asks what becomes of kept work.
    void txtSrc_Leave();

    /// The user comes back to the window: asks whether to load the file again where another program
    /// changed it.
    void Look_At_File();

    /// Lets the user choose a file, and takes it.
    void cmdFileBrowse_Click();

    /// Puts the full path of a file into the path box, unless there is unsaved work that the user
    /// neither saves nor gives up. The program's folder and the separator behind it become "\\",
    /// wherever they stand in it, so that a path below it is named relative to it.
    void Take_File(const std::u16string& file);

    /// Loads the file again, which takes back all that is not saved.
    void cmdReload_Click();

    /// The events of the language lists, see `GameInfo`.
    void cmbRegion_click(std::int16_t Index) { info.cmbRegion_click(Index); }
    void cmbRegion_Change(std::int16_t Index) { cmbRegion_click(Index); }
    /// Set and Set All of the fields, see `GameInfo`.
    void cmdSet_Click(std::int16_t Index);
    void cmdSetAll_Click(std::int16_t Index);

    /// Applies edits to the banner, all or none; a failure is reported, and false. The fields are
    /// not refreshed.
    bool Apply(const Edit& edit) { return Apply(std::span(&edit, 1), Name_Of(edit)); }
    bool Apply(std::span<const Edit> edits, const std::u16string& what);

    /// Takes back the last change, or brings it again, and shows it. Fields whose text is not set
    /// keep it.
    void Undo_Click();
    void Redo_Click();

    /// Takes back what is chosen in one of the lists of what a save applies.
    void Take_Back_Choice(DropDownList& list);

    /// Set of the page of channel names, see `ChannelNamesPage`.
    void cmdSetNames_Click();

    /// Open the colour window, the manual text editor, the window of the game's picture where the
    /// banner has one, and that of all languages, and return at once; this window is disabled until
    /// the other one is closed. Work that is kept while the path names another file is asked about
    /// first.
    void cmdEditColor_Click();
    void cmdHC_Click();
    void cmdPicture_Click();
    void cmdLanguages_Click();

    /// The user closed the other window: it is unloaded and no longer there.
    void Close_Color_Window();
    void Close_Text_Editor();
    void Close_Picture_Window();
    void Close_Table_Window();

    /// The path of the file that is loaded; empty while none is.
    const std::u16string& Loaded_File() const { return opened_.banner.Source().Path(); }

    /// Whether that is one of the samples that come with the program.
    bool Shows_A_Sample() const;

    /// Whether the layout in memory differs from the file as it was loaded or saved last.
    bool Has_Unsaved_Changes() const;

    /// Whether the window may be closed: it is enabled, and there is no unsaved work or the user
    /// saves it or gives it up.
    bool May_Close();

    /// Saves the layout and the textures that go with it, and loads the saved file. A failure is
    /// reported and leaves the files and `BrlytData` as they were. Asks first where fields are not
    /// set, the file is no layout, or another program changed it since it was loaded.
    void cmdSave_Click() { Save_Changes(); }

    /// Fills the scheme list with "Current Brlyt", which it selects, and the names of the schemes.
    void RefreshColorList_Here();

    /// Fills the logo list with "Current Logo", which it selects, and the logo files: textures and
    /// pictures.
    void RefreshLogoList();

 private:
    std::u16string Layout_Path() const;
    void Load();
    void Show_Loaded();

    std::u16string Unset_Fields() const;
    void Set_Fields();
    void Show_Fields_Again();
    bool Settle_Field(std::size_t field);
    bool Settle_Fields();
    bool Has_Unsaved_Work() const;
    bool Settle_Work();
    void Drop_Work();
    void Keep_Work();
    bool Give_Back_Work();
    bool Settle_Kept_Work();
    bool May_Edit();
    bool Settle_Change_Elsewhere();

    bool Save_Changes();
    std::optional<SavePlan> Save_As_Wanted();
    Result<> Check_Save() const;
    bool Save_Is_Wanted();
    std::vector<Edit> Chosen_Edits() const;
    std::vector<Edit> Unset_Edits() const;
    std::u16string Language_Of_Name() const;
    void Watch_Fields();
    Result<SavePlan> Save();
    void Load_Saved(const SavePlan& plan);
    void Tell_Saved(const SavePlan& plan);
    std::u16string What_A_Save_Adds() const;
    void Mark_What_Stays_Chosen();

    void Step_Through_History(bool (Banner::*step)(), const std::u16string& told);
    void Tell_Changes(std::u16string_view command, const std::string& before);
    std::optional<Picture> Logo_Picture(int index) const;
    void Read_Archive();
    void Tell_What_Is_Loaded();

    /// Work that is not saved, while the path names another file.
    struct KeptWork {
        OpenedLayout opened;
        GameInfo::Content info;
        ChannelNamesPage::Content names;
    };
    std::unique_ptr<KeptWork> kept_;
    bool is_change_known_ = false;  ///< that another program made to the file
    std::u16string loaded_last_;    ///< the path of the file, as typed, that was loaded last

    /// What is told of what is loaded: what is wrong with it, and what an archive holds.
    std::u16string archive_faults_, archive_contents_;

    Process process_;
    Desktop& desktop_;
};

}  // namespace bannersmith
