#include "desktop/game_picture_view.h"

#include <QGridLayout>
#include <QShortcut>
#include <utility>

#include "desktop/binding.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

namespace bannersmith {

GamePictureView::GamePictureView(GamePicture& window, std::function<void()> closed, QWidget* parent)
    : SecondWindow("game picture", std::move(closed), parent) {
    setWindowTitle(Said("Game Picture"));
    auto* shown = new QLabel;
    shown->setAlignment(Qt::AlignCenter);
    shown->setFrameShape(QFrame::StyledPanel);
    shown->setMinimumSize(PictureSize + QSize(8, 8));
    shown->setAccessibleName(Said("Picture of the game"));
    auto* what = new QLabel;
    what->setAlignment(Qt::AlignCenter);
    auto* fits = new ListBox;
    fits->setToolTip(Said("What happens to a picture whose sides are in another ratio"));

    auto* grid = new QGridLayout(this);
    grid->addWidget(shown, 0, 0, 1, 2);
    grid->addWidget(what, 1, 0, 1, 2);
    grid->addWidget(Make_Label(Said("&Fit:"), fits), 2, 0);
    grid->addWidget(fits, 2, 1);
    grid->addWidget(
        Make_Button(Said("&Replace..."), Said("Take another picture, for banner and icon"),
                    QKeySequence::Open, [&window] { window.Replace_Click(); }),
        3, 0, 1, 2);
    grid->addWidget(Make_Button(Said("&Export..."), Said("Write the picture into a PNG file"), {},
                                [&window] { window.Export_Click(); }),
                    4, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(0, 1);

    new QShortcut(QKeySequence::Undo, this, [&window] { window.Undo_Click(); });
    new QShortcut(QKeySequence("Ctrl+Shift+Z"), this, [&window] { window.Redo_Click(); });
    Bind(*shown, window.picture);
    Bind(*what, window.what);
    Bind(*fits, window.fits);
    Follow(window.form);
}

}  // namespace bannersmith
