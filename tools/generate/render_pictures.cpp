// render-pictures PROGRAM-FOLDER OUTPUT-FOLDER light|dark: paints each window, with the first
// sample loaded, and the preview in each scheme into PNG files. The scale is the toolkit's
// QT_SCALE_FACTOR.
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <cstdio>
#include <filesystem>

#include "desktop/color_window_view.h"
#include "desktop/game_picture_view.h"
#include "desktop/language_table_view.h"
#include "desktop/main_window_view.h"
#include "desktop/preview_view.h"
#include "desktop/qt_desktop.h"
#include "desktop/settings.h"
#include "desktop/text.h"
#include "desktop/text_editor_view.h"
#include "generate/dark_palette.h"

using namespace bannersmith;

namespace {

namespace fs = std::filesystem;

class Painter {
 public:
    Painter(const fs::path& output, QString theme) : output_(output), theme_(std::move(theme)) {
        fs::create_directories(output);
    }

    void Save(QWidget& widget, const QString& name) const {
        const QString file =
            QString("%1-%2-%3x.png").arg(name, theme_).arg(widget.devicePixelRatioF());
        if (!widget.grab().save(QString::fromStdString((output_ / file.toStdString()).string()))) {
            std::fprintf(stderr, "render-pictures: %s cannot be written\n", qPrintable(file));
            std::exit(1);
        }
    }

 private:
    fs::path output_;
    QString theme_;
};

/// The view of type `View` that was made last.
template <typename View>
View& Find_View() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* view = dynamic_cast<View*>(widget);
        if (view != nullptr && view->isVisible()) return *view;
    }
    std::fputs("render-pictures: a window was not shown\n", stderr);
    std::exit(1);
}

/// What is drawn when there is nothing else to do.
void Wait_For_Picture(LiveView& live) {
    QApplication::processEvents();
    live.Draw();
    QApplication::processEvents();
}

void Render(const std::u16string& program_folder, const Painter& painter) {
    QtDesktop desktop;
    Form1 window({program_folder, {}}, desktop);
    MainWindowView view(window);
    window.Form_Load();
    window.info.txtYear.Set(u"1994");
    window.cmdSetAll_Click(1);
    view.resize(view.sizeHint());
    Wait_For_Picture(window.live);
    painter.Save(view, "first-start");
    Hide_First_Hint();
    for (QWidget* hint : view.findChildren<QWidget*>("first hint")) hint->hide();
    view.resize(view.sizeHint());
    Wait_For_Picture(window.live);
    painter.Save(view, "main-window");
    window.info.txtName.Set(u"Starlight Courier 2");
    window.cmbLogo.Select(1);
    window.cmbLogo.Set_Mark(u"Will be applied to this file, too");
    Wait_For_Picture(window.live);
    painter.Save(view, "main-window-unset");
    window.cmbLogo.Select(0);
    window.cmdSet_Click(0);

    window.cmdLanguages_Click();
    auto& table = Find_View<LanguageTableView>();
    QApplication::processEvents();
    painter.Save(table, "all-languages");
    table.close();
    QApplication::processEvents();

    for (std::size_t field = 0; field < 3; ++field) window.info.cmbRegion[field].Pick(6);
    window.cmdHC_Click();
    window.TextEditor->cmbHC.Pick(28);
    window.TextEditor->cmbHC.Pick(27);
    auto& editor = Find_View<TextEditorView>();
    QApplication::processEvents();
    painter.Save(editor, "text-editor");
    editor.close();
    QApplication::processEvents();
    painter.Save(view, "main-window-japanese");

    view.findChild<QTabWidget*>()->setCurrentIndex(1);
    for (int i = 0; i < 3; ++i) QApplication::processEvents();  // the window grows
    painter.Save(view, "channel-names");
    view.findChild<QTabWidget*>()->setCurrentIndex(0);
    window.cmdPicture_Click();
    auto& picture = Find_View<GamePictureView>();
    QApplication::processEvents();
    painter.Save(picture, "game-picture");
    picture.close();
    QApplication::processEvents();  // the view deletes itself
    for (QComboBox* list : view.findChildren<QComboBox*>()) {
        if (list->accessibleName() != "Logo") continue;
        list->showPopup();
        QApplication::processEvents();
        painter.Save(*list->view(), "logo-list");
        list->hidePopup();
    }

    for (DropDownList& list : window.info.cmbRegion) list.Pick(0);
    window.cmdEditColor_Click();
    window.ColorWindow->pic_Click(u"T_VCTitle", 1);
    auto& colors = Find_View<ColorWindowView>();
    colors.resize(colors.sizeHint());  // the screen of a build may be small
    QApplication::processEvents();
    painter.Save(colors, "color-window");
    PreviewView preview(window.ColorWindow->preview);
    preview.resize(preview.sizeHint());
    for (int scheme = 1; scheme < window.ColorWindow->cmbFileList.Count(); ++scheme) {
        window.ColorWindow->cmbFileList.Pick(scheme);
        painter.Save(
            preview,
            "preview-" +
                Shown(window.ColorWindow->cmbFileList.Selected()).toLower().replace(' ', '-'));
    }
    colors.close();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 4) {
        std::fputs("usage: render-pictures PROGRAM-FOLDER OUTPUT-FOLDER light|dark\n", stderr);
        return 1;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    if (QString(argv[3]) == "dark") QApplication::setPalette(Dark_Palette());
    // Neither the program folder nor the positions that a person's windows had may matter or
    // change.
    const QTemporaryDir copy;
    qputenv("XDG_CONFIG_HOME", copy.path().toUtf8());
    for (const char* folder : {"cfgs", "samples", "schemes", "logos", "fonts"}) {
        fs::copy(fs::path(argv[1]) / folder, fs::path(copy.path().toStdString()) / folder,
                 fs::copy_options::recursive);
    }
    Render(Taken(copy.path()), Painter(argv[2], argv[3]));
    return 0;
}
