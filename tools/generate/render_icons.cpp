// render-icons FOLDER FILE.ICO: paints the program's icon in every size, into a folder as the
// desktop's icon theme wants them, and into a file as Windows does.
#include <QApplication>
#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <cstdio>

#include "desktop/widgets.h"

using namespace bannersmith;

namespace {

/// A directory of pictures, each a PNG file.
bool Write_Windows_Icon(const QIcon& icon, const QString& path) {
    constexpr quint32 HeaderSize = 6, EntrySize = 16;
    constexpr quint16 IsIcon = 1, Planes = 1, Bits = 32;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return false;
    QDataStream out(&file);
    out.setByteOrder(QDataStream::LittleEndian);
    const QList<QSize> sizes = icon.availableSizes();
    out << quint16(0) << IsIcon << quint16(sizes.size());
    QByteArray pictures;
    for (const QSize& size : sizes) {
        QByteArray png;
        QBuffer buffer(&png);
        if (!icon.pixmap(size).save(&buffer, "PNG")) return false;
        const auto offset =
            HeaderSize + EntrySize * quint32(sizes.size()) + quint32(pictures.size());
        out << quint8(size.width()) << quint8(size.height())  // 256 is told by 0
            << quint16(0) << Planes << Bits << quint32(png.size()) << offset;
        pictures += png;
    }
    out.writeRawData(pictures.data(), int(pictures.size()));
    return out.status() == QDataStream::Ok;
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: render-icons FOLDER FILE.ICO\n", stderr);
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
    return Write_Windows_Icon(icon, argv[2]) ? 0 : 1;
}
