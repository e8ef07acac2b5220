#pragma once

#include "desktop/second_window.h"
#include "gamepicture/game_picture.h"

namespace bannersmith {

/// The view of the game's picture.
class GamePictureView : public SecondWindow {
 public:
    GamePictureView(GamePicture& window, std::function<void()> closed, QWidget* parent);
};

}  // namespace bannersmith
