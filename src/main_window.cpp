// bannersmith-window: the editor's windows. With command-line text it makes the same batch run as
// bannersmith.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <cstdlib>
#include <new>

#include "desktop/end_by_signal.h"
#include "desktop/languages.h"
#include "desktop/main_window_view.h"
#include "desktop/qt_desktop.h"
#include "desktop/text.h"
#include "desktop/widgets.h"
#include "mainwindow/run.h"
#include "mainwindow/usage.h"
#include "system/data_folder.h"
#include "system/process.h"

using namespace bannersmith;

namespace {

int No_Display() {
    Print_Failure({u"display", "None can be reached, so the windows cannot be shown"});
    return 1;
}

bool Is_Named(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

bool Display_Is_Named() {
#ifdef __linux__
    return Is_Named("DISPLAY") || Is_Named("WAYLAND_DISPLAY") || Is_Named("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

/// The toolkit ends with an abort when it cannot reach the display; this comes before that.
void Leave_On_Fatal_Message(QtMsgType type, const QMessageLogContext& /*context*/,
                            const QString& text) {
    if (type == QtFatalMsg) {
        Print_Failure({u"window", text.toStdString()});
        if (Is_Named("WAYLAND_DISPLAY") && !Is_Named("DISPLAY")) {
            Print_Failure({u"window", "Under Wayland the windows need the package qt6-wayland"});
        }
        std::_Exit(1);
    }
    if (type == QtCriticalMsg) Print_Failure({u"window", text.toStdString()});
}

/// From the current folder, as a file that is opened later must not depend on it.
std::u16string Full_Path(const std::u16string& file) {
    if (file.empty()) return file;
    return Taken(QDir::toNativeSeparators(QFileInfo(Shown(file)).absoluteFilePath()));
}

/// The toolkit's own, but a command for which memory lacks is reported and the editor goes on.
class Application : public QApplication {
 public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::bad_alloc&) {
            QtDesktop().Report({u"Bannersmith", "Not enough memory"});
            return true;
        }
    }
};

int Run_Windows(int argc, char** argv, const std::u16string& file) {
    if (!Display_Is_Named()) return No_Display();
    qInstallMessageHandler(Leave_On_Fatal_Message);
    EndBySignal end_by_signal;
    const Application application(argc, argv);
    end_by_signal.Watch();
    QApplication::setApplicationName("Bannersmith");
    QApplication::setDesktopFileName(DesktopFileName);
    QApplication::setWindowIcon(Program_Icon());
    Speak_Users_Language();
    QtDesktop desktop;
    Form1 window({Data_Folder(std::getenv), {}}, desktop);
    MainWindowView view(window);
    if (!window.Form_Load(Full_Path(file))) return 1;
    const int ended = QApplication::exec();
    end_by_signal.End_Process();
    return ended;
}

}  // namespace

int main(int argc, char** argv) {
    if (const auto file = File_To_Open(Arguments(argc, argv)))
        return Run_Windows(argc, argv, *file);
    const std::u16string command_line = Command_Line(argc, argv);
    if (const auto status = Answer_About(command_line, "bannersmith-window", Usage)) return *status;
    return Run_Batch_Mode(command_line);
}
