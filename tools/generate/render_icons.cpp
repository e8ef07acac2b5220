// render-icons FOLDER: paints the program's icon in every size, as the desktop's icon theme wants
// them.
#include <QApplication>
#include <QDir>
#include <cstdio>

#include "desktop/widgets.h"

using namespace bannersmith;

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: render-icons FOLDER\n", stderr);
        return 1;
    }
    const QIcon icon = Program_Icon();
    for (const QSize& size : icon.availableSizes()) {
        const QString folder = QString("%1/hicolor/%2x%2/apps").arg(argv[1]).arg(size.width());
        const QString file = folder + "/" + DesktopFileName + ".png";
        if (!QDir().mkpath(folder) || !icon.pixmap(size).save(file)) {
            std::fprintf(stderr, "render-icons: %s cannot be written\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
