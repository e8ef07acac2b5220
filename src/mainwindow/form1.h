// The main window: the layout file's path, the game information, and what a save applies. It is the
// whole program: batch mode runs the same object without a view.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "colors/window/frm_color.h"
#include "forms/controls.h"
#include "forms/desktop.h"
#include "gameinfo/game_info.h"
#include "layout/file_length.h"
#include "manualeditor/frm_hc.h"
#include "system/files.h"
#include "system/replace_files.h"

namespace bannersmith {

/// The main window as state and events, and the batch run. There is one at a time: the layout that
/// it works on is the program's one `BrlytData`.
class Form1 {
 public:
    /// Exit statuses of a batch run.
    static constexpr int Done = 0;
    static constexpr int Failed = 1;    ///< the layout file and the logo texture are as they were
    static constexpr int NoLayout = 2;  ///< the command line names no layout that can be read

    /// `desktop` must outlive the window.
    Form1(Process process, Desktop& desktop);
    Form1(const Form1&) = delete;
    Form1& operator=(const Form1&) = delete;

    Form form;
    GameInfo info;
    TextBox txtSrc;            ///< the layout's path as typed; a change runs `txtSrc_Change`
    TextBox txtPad{u"12000"};  ///< read by each save, see `Read_Padding`
    /// What each save applies: a scheme and a logo, none for the first entry, and a forced
    /// language.
    DropDownList cmbFileList, cmbLogo, cmbForce;
    /// The files listed last: of the schemes folder, and of the logos or the timg folder.
    FileList File1{".vccs"}, File2{".tpl"};
    Label lblLoaded;       ///< what is loaded: file, languages, size, unsaved changes
    Label lblLastCommand;  ///< what the last command changed

    /// The other two windows while they are open. A view is made on the event, before they load.
    std::unique_ptr<frmColor> ColorWindow;
    std::unique_ptr<frmHC> TextEditor;
    Event ColorWindowMade, TextEditorMade;

    /// Start-up. Loads the layout that the configuration names; then shows the window and fills its
    /// lists, or, with command-line text, runs it and saves. The result is the exit status of a
    /// program that ends here; nothing when the window waits for the user.
    std::optional<int> Form_Load();

    /// Empties `BrlytData`, and loads and remembers the file that the path box names, if there is
    /// one.
    void txtSrc_Change();

    /// Lets the user choose a file, and takes it.
    void cmdFileBrowse_Click();

    /// Puts the full path of a file into the path box, unless there are unsaved changes that the
    /// user does not give up. The program's folder and the separator behind it become "\\",
    /// wherever they stand in it, so that a path below it is named relative to it.
    void Take_File(const std::u16string& file);

    /// The events of the language lists, see `GameInfo`.
    void cmbRegion_click(std::int16_t Index) { info.cmbRegion_click(Index); }
    void cmbRegion_Change(std::int16_t Index) { cmbRegion_click(Index); }
    /// Set and Set All of the fields, see `GameInfo`.
    void cmdSet_Click(std::int16_t Index);
    void cmdSetAll_Click(std::int16_t Index);

    /// Open the colour window and the manual text editor and return at once; this window is
    /// disabled until the other one is closed.
    void cmdEditColor_Click();
    void cmdHC_Click();

    /// The user closed the other window: it is unloaded and no longer there.
    void Close_Color_Window();
    void Close_Text_Editor();

    /// Whether the layout in memory differs from the file as it was loaded or saved last.
    bool Has_Unsaved_Changes() const;

    /// Whether the window may be closed: it is enabled, and there are no unsaved changes or the
    /// user gives them up.
    bool May_Close();

    /// Saves the layout and the textures that go with it, and loads the saved file. A failure is
    /// reported and leaves the files and `BrlytData` as they were. A file that another program
    /// changed since it was loaded is a failure; with a window, it is saved when the user says so,
    /// and so is a file that is no layout.
    void cmdSave_Click();

    /// Fills the scheme list with "Current Brlyt", which it selects, and the names of the schemes.
    void RefreshColorList_Here();

    /// Fills the logo list with "Current Logo", which it selects, and the logo files.
    void RefreshLogoList();

    /// Reads the logo file `lgPath`, which the save that follows puts in the place of the banner's
    /// logo texture: the first ".tpl" file in the "timg" folder beside the layout's folder whose
    /// name begins with "my_Back". A bare name is taken from the logos folder, "\..." from the
    /// program's folder, a full path as it is; `lgPath` becomes the path used. A banner without
    /// such a folder or texture is left alone, and so is one whose layout lies in a root folder,
    /// beside which nothing lies.
    Outcome ReplaceLogo(std::u16string& lgPath);

    /// Selects the entry of the force list that equals `REG` in capitals, if there is one. `REG`
    /// itself becomes capitals.
    void SetForce(std::u16string& REG);

    /// Applies the command line: a layout path, then an option behind each hyphen. Stops at the
    /// first failure, which is reported and gives the run its exit status.
    void ParseClo();

 private:
    struct NamedOption;
    struct PrefixedOption;

    void Load_Brlyt();
    std::u16string Configuration_Path() const;
    Outcome Read_Configuration(std::u16string& line) const;
    void Store_Path() const;

    std::u16string Layout_Path() const;
    bool Has_Window() const { return process_.command_line.empty(); }
    bool Lose_Changes(const std::u16string& question);
    bool Changed_Elsewhere() const;
    void Tell_What_Was_Odd(std::string_view saved);
    Outcome Check_Save(Padding& padding) const;
    bool Save_Is_Wanted();
    Outcome Save(const Padding& padding);
    Outcome Write_Layout(const Padding& padding);
    Outcome Apply_Chosen_Looks();
    Outcome Read_Logo(const std::u16string& path, std::string& logo) const;

    void Tell_Changes(std::u16string_view command, const std::string& before);
    void Tell_What_Is_Loaded();

    int Run_Batch(const std::u16string& configured);
    void Take_Configured_Path(const std::u16string& path);
    bool Hold_Folder_Of(const std::u16string& layout);
    std::u16string Typed_Path(std::u16string_view text) const;
    void Take_Layout_Path(std::u16string_view piece);
    void Tell_Of_Cut_Path(std::size_t hyphen);
    void Take_Option(std::u16string_view piece);
    Failure Why_No_Layout() const;
    void Fail(int status, const Failure& failure);

    void Option_Logo(std::u16string_view value);
    void Option_Force(std::u16string_view value);
    void Option_Color(std::u16string_view value);
    void Option_Title(std::u16string_view value);
    void Option_Year(std::u16string_view value);
    void Option_Play(std::u16string_view value);
    void Option_System(std::u16string_view value);
    void Option_Esrb(std::u16string_view value);
    void Option_Pad(std::u16string_view value);

    Process process_;
    Desktop& desktop_;
    std::u16string BrlytPath;
    std::string why_not_loaded_;   ///< the reason where the path names a file that cannot be edited
    FolderLock lock_;              ///< of the layout that a batch run edits, from load to save
    std::string on_disk_;          ///< the file's bytes when it was loaded
    std::size_t layout_size_ = 0;  ///< those in front of the padding
    std::vector<NewContents> to_save_;  ///< by the save: the textures replaced, then the layout
    bool colors_applied_ = false;       ///< by an option of this run
    int status_ = Done;
};

}  // namespace bannersmith
