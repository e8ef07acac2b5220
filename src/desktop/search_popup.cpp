#include "desktop/search_popup.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/text.h"

namespace bannersmith {

namespace {

class SearchPopup : public QFrame {
 public:
    SearchPopup(QComboBox& box, std::function<void(int index)> chosen)
        : QFrame(&box, Qt::Popup), chosen_(std::move(chosen)) {
        setAttribute(Qt::WA_DeleteOnClose);
        setFrameShape(QFrame::StyledPanel);
        found_.setSourceModel(box.model());
        found_.setFilterCaseSensitivity(Qt::CaseInsensitive);
        list_.setModel(&found_);
        list_.setIconSize(box.iconSize());
        list_.setCurrentIndex(found_.mapFromSource(box.model()->index(box.currentIndex(), 0)));
        list_.setAccessibleName(box.accessibleName());
        list_.setAccessibleDescription(Said("The entries that hold what is searched for"));
        search_.setPlaceholderText(Said("Search"));
        search_.setAccessibleName(Said("Search"));
        search_.setAccessibleDescription(Said("Leaves the entries that hold the text"));
        search_.installEventFilter(this);
        auto* rows = new QVBoxLayout(this);
        rows->setContentsMargins(2, 2, 2, 2);
        rows->addWidget(&search_);
        rows->addWidget(&list_);
        connect(&search_, &QLineEdit::textChanged, this, [this](const QString& text) {
            found_.setFilterFixedString(text);
            if (!list_.currentIndex().isValid()) list_.setCurrentIndex(found_.index(0, 0));
        });
        connect(&search_, &QLineEdit::returnPressed, this, [this] { Take(list_.currentIndex()); });
        connect(&list_, &QListView::clicked, this, &SearchPopup::Take);
        connect(&list_, &QListView::activated, this, &SearchPopup::Take);
    }

 protected:
    /// The keys that move in the list move there while the user types.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            for (const int moving : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) {
                if (key == moving) return QCoreApplication::sendEvent(&list_, event);
            }
        }
        return QFrame::eventFilter(watched, event);
    }

    void showEvent(QShowEvent* event) override {
        QFrame::showEvent(event);
        search_.setFocus();
        list_.scrollTo(list_.currentIndex(), QAbstractItemView::PositionAtCenter);
    }

 private:
    void Take(const QModelIndex& entry) {
        const int row = found_.mapToSource(entry).row();
        close();
        if (row >= 0) std::exchange(chosen_, [](int) {})(row);
    }

    std::function<void(int index)> chosen_;
    QSortFilterProxyModel found_;
    QLineEdit search_;
    QListView list_;
};

}  // namespace

void Show_Search(QComboBox& box, std::function<void(int index)> chosen) {
    auto* popup = new SearchPopup(box, std::move(chosen));
    constexpr int Height = 320, Narrowest = 220;
    popup->resize(std::max(box.width(), Narrowest), Height);
    QPoint place = box.mapToGlobal(QPoint(0, box.height()));
    place.setY(std::min(place.y(), box.screen()->availableGeometry().bottom() - Height));
    popup->move(place);
    popup->show();
}

}  // namespace bannersmith
