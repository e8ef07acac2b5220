// first_window editor|empty|text: shows the editor's main window, an empty one of the toolkit, or one with a
// line of Latin and Japanese text, and ends as soon as it is painted.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <cstdlib>
#include <cstring>

#include "desktop/main_window_view.h"
#include "desktop/qt_desktop.h"
#include "desktop/widgets.h"
#include "system/process.h"

using namespace bannersmith;

namespace {

/// Ends the process behind the first painting of a window.
class EndWhenPainted : public QObject {
 public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::UpdateRequest && watched->isWidgetType()) {
            watched->event(event);
            std::_Exit(0);
        }
        return false;
    }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    EndWhenPainted end;
    application.installEventFilter(&end);
    if (argc == 2 && std::strcmp(argv[1], "editor") != 0) {
        QMainWindow window;
        if (std::strcmp(argv[1], "text") == 0) window.setCentralWidget(new QLabel("Name: \u540D\u524D"));
        window.resize(600, 450);
        window.show();
        return QApplication::exec();
    }
    QApplication::setWindowIcon(Program_Icon());
    QtDesktop desktop;
    Form1 window({Program_Folder(), {}}, desktop);
    MainWindowView view(window);
    if (!window.Form_Load()) return 1;
    return QApplication::exec();
}
