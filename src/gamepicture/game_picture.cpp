#include "gamepicture/game_picture.h"

#include <utility>

#include "base/text.h"
#include "forms/say.h"
#include "system/replace_files.h"

namespace bannersmith {

namespace {

constexpr std::u16string_view PictureFilter =
    u"Pictures (*.png *.jpg *.jpeg *.tpl)|*.png;*.jpg;*.jpeg;*.tpl|All Files (*.*)|*.*";
constexpr std::u16string_view ExportFilter = u"PNG Pictures (*.png)|*.png";
constexpr std::u16string_view PngEnding = u".png";

}  // namespace

GamePicture::GamePicture(MainWindowForPicture main, Desktop& desktop)
    : fits({Say("Crop"), Say("Border"), Say("Stretch")}),
      main_(std::move(main)),
      desktop_(desktop) {
    fits.Select(0);
    fits.Click = [this] { Put_In(); };
}

void GamePicture::Form_Load() {
    main_.form.Set_Enabled(false);
    Show_What_Is_There();
}

void GamePicture::Form_Unload() {
    main_.form.Set_Enabled(true);
}

void GamePicture::Replace_Click() {
    const std::u16string& last = file_.empty() ? main_.banner.Source().Path() : file_;
    const std::u16string file = desktop_.Open_File(std::u16string(PictureFilter), last);
    if (file.empty()) return;
    file_ = file;
    Put_In();
}

/// Once more when the user wants it fitted otherwise.
void GamePicture::Put_In() {
    if (file_.empty()) return;
    main_.apply(ReplacePicture{file_, {.fit = static_cast<Fit>(fits.Index())}});
    Show_What_Is_There();
}

void GamePicture::Show_What_Is_There() {
    auto now = main_.banner.Game_Picture();
    if (!now) return;
    what.Set(From_Utf8(std::to_string(now->width) + " x " + std::to_string(now->height)));
    picture.Set(std::move(*now));
}

void GamePicture::Undo_Click() {
    main_.undo();
    Show_What_Is_There();
}

void GamePicture::Redo_Click() {
    main_.redo();
    Show_What_Is_There();
}

void GamePicture::Export_Click() {
    std::u16string file = desktop_.Save_File(std::u16string(ExportFilter), u"game.png");
    if (file.empty()) return;
    if (!Capitals(file).ends_with(Capitals(PngEnding))) file += PngEnding;
    const auto written = Replace_File(file, Write_Png(picture.Value()));
    if (!written) desktop_.Report(written.Why());
}

}  // namespace bannersmith
