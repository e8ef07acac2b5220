#include "desktop/help_window.h"

#include <QDesktopServices>
#include <QDialog>
#include <QFile>
#include <QMessageBox>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "desktop/text.h"
#include "system/process.h"

namespace bannersmith {

namespace {

QString Manual() {
    return Shown(Program_Folder()) + "/docs/manual.md";
}

/// Links within the manual are followed here, others by the desktop.
void Follow_Link(QTextBrowser& shown, const QUrl& link) {
    if (link.scheme() == "http" || link.scheme() == "https") {
        QDesktopServices::openUrl(link);
    } else if (link.path().isEmpty()) {
        shown.scrollToAnchor(link.fragment());
    } else {
        shown.setSource(shown.source().resolved(link), QTextDocument::MarkdownResource);
    }
}

}  // namespace

void Show_Manual(QWidget& parent) {
    if (!QFile::exists(Manual())) {
        QMessageBox::warning(&parent, "Bannersmith",
                             Filled(Said("The manual is not there: %1"), Manual()));
        return;
    }
    auto* window = new QDialog(&parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(Said("Manual"));
    auto* shown = new QTextBrowser;
    shown->setAccessibleName(Said("Manual"));
    shown->setAccessibleDescription(Said("How to work with the editor"));
    shown->setOpenLinks(false);
    shown->setSource(QUrl::fromLocalFile(Manual()), QTextDocument::MarkdownResource);
    QObject::connect(shown, &QTextBrowser::anchorClicked, shown,
                     [shown](const QUrl& link) { Follow_Link(*shown, link); });
    auto* rows = new QVBoxLayout(window);
    rows->setContentsMargins({});
    rows->addWidget(shown);
    window->resize(820, 640);
    window->show();
}

void Show_About(QWidget& parent) {
    QMessageBox::about(
        &parent, Said("About Bannersmith"),
        "<h3>Bannersmith " BANNERSMITH_VERSION "</h3><p>" +
            Said("The editor for the banners of Virtual Console channels.").toHtmlEscaped() +
            "</p><p>" + Filled(Said("Qt %1, used under the LGPL"), qVersion()).toHtmlEscaped() +
            "</p>");
}

}  // namespace bannersmith
