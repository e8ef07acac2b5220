// The window of the game's picture: shows it, takes another one, and writes it out.
#pragma once

#include <functional>
#include <string>

#include "banner/banner.h"
#include "forms/controls.h"

namespace bannersmith {

/// What the window needs of the main window.
struct MainWindowForPicture {
    Form& form;                                   ///< disabled while this window is open
    const Banner& banner;                         ///< whose picture it is
    std::function<void(const Edit& edit)> apply;  ///< applies an edit to the banner
    std::function<void()> undo, redo;             ///< the last change of the banner
};

/// The window as state and events. A picture that is taken goes into the banner at once.
class GamePicture {
 public:
    /// What `main` refers to, and `desktop`, must outlive this window.
    GamePicture(MainWindowForPicture main, Desktop& desktop);
    GamePicture(const GamePicture&) = delete;
    GamePicture& operator=(const GamePicture&) = delete;

    Form form;
    PictureBox picture;  ///< as the console will show it
    DropDownList fits;   ///< what happens to a picture with other sides, in the order of `Fit`
    Label what;          ///< format and size of the texture

    /// Disables the main window and shows the picture.
    void Form_Load();
    /// Enables the main window.
    void Form_Unload();
    /// Lets the user choose a picture, and puts it into the banner.
    void Replace_Click();
    /// Lets the user name a file, and writes the picture there as PNG.
    void Export_Click();
    /// Takes back the last change of the banner, or brings it again, and shows the picture.
    void Undo_Click();
    void Redo_Click();

 private:
    void Put_In();
    void Show_What_Is_There();

    MainWindowForPicture main_;
    Desktop& desktop_;
    std::u16string file_;  ///< the picture that was taken last; none at first
};

}  // namespace bannersmith
