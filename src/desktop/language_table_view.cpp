#include "desktop/language_table_view.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTableView>
#include <array>
#include <utility>

#include "desktop/binding.h"
#include "desktop/fonts.h"
#include "desktop/languages.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

namespace bannersmith {

namespace {

constexpr int WordingRole = Qt::UserRole;

std::size_t Row(const QModelIndex& cell) {
    return static_cast<std::size_t>(cell.row());
}
std::size_t Column(const QModelIndex& cell) {
    return static_cast<std::size_t>(cell.column());
}

/// The table as the toolkit asks for it.
class TableModel : public QAbstractTableModel {
 public:
    TableModel(LanguageTable& table, QObject* parent) : QAbstractTableModel(parent), table_(table) {
        table_.Filled = [this] { Show(); };
    }

    int rowCount(const QModelIndex& /*parent*/) const override { return rows_; }
    int columnCount(const QModelIndex& /*parent*/) const override {
        return static_cast<int>(LanguageTable::Columns);
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (role != Qt::DisplayRole)
            return QAbstractTableModel::headerData(section, orientation, role);
        if (orientation == Qt::Horizontal) {
            constexpr std::array<const char*, LanguageTable::Columns> Names = {
                "Name", "Year", "Players", "ESRB Rating"};
            return QString(Names[static_cast<std::size_t>(section)]);
        }
        const std::u16string& code = table_.Rows()[static_cast<std::size_t>(section)];
        return code.empty() ? Said("All languages") : Shown(code) + "  " + Language_In_Words(code);
    }

    QVariant data(const QModelIndex& cell, int role) const override {
        const std::u16string text = table_.Cell(Row(cell), Column(cell));
        switch (role) {
            case Qt::DisplayRole:
            case Qt::EditRole:
                return Shown(text);
            case WordingRole:
            case Qt::ToolTipRole:
                return text.empty() ? QString()
                                    : Shown(table_.Wording(Row(cell), Column(cell), text));
            case Qt::AccessibleDescriptionRole:
                return headerData(cell.row(), Qt::Vertical, Qt::DisplayRole);
            default:
                return {};
        }
    }

    Qt::ItemFlags flags(const QModelIndex& cell) const override {
        if (!table_.Can_Edit(Row(cell), Column(cell))) return Qt::NoItemFlags;
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
    }

    bool setData(const QModelIndex& cell, const QVariant& value, int /*role*/) override {
        table_.Type(Row(cell), Column(cell), Taken(value.toString()));
        return true;
    }

 private:
    /// A reset would take the cell that is worked on out of sight.
    void Show() {
        const int rows = static_cast<int>(table_.Rows().size());
        if (rows == rows_) {
            emit dataChanged(index(0, 0),
                             index(rows - 1, static_cast<int>(LanguageTable::Columns) - 1));
            return;
        }
        beginResetModel();
        rows_ = rows;
        endResetModel();
    }

    LanguageTable& table_;
    int rows_ = 0;
};

/// Below each value, smaller, the wording that the banner shows for it.
class CellDelegate : public QStyledItemDelegate {
 public:
    CellDelegate(std::function<void(const QString& text)> typed, QObject* parent)
        : QStyledItemDelegate(parent), typed_(std::move(typed)) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*cell*/) const override {
        return {option.fontMetrics.horizontalAdvance("0000000000000000"),
                option.fontMetrics.height() * 2 + Room};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& cell) const override {
        QStyleOptionViewItem ground = option;
        initStyleOption(&ground, cell);
        const QString text = std::exchange(ground.text, QString());
        if (!ground.state.testFlag(QStyle::State_Enabled)) {
            painter->fillRect(option.rect, option.palette.brush(QPalette::Window));
            return;
        }
        option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter,
                                            option.widget);
        const bool is_selected = ground.state.testFlag(QStyle::State_Selected);
        painter->setPen(
            option.palette.color(is_selected ? QPalette::HighlightedText : QPalette::Text));
        const QRect inside = option.rect.adjusted(6, Room / 2, -6, -Room / 2);
        const QString wording = cell.data(WordingRole).toString();
        painter->setFont(ground.font);
        Draw(*painter, inside, wording.isEmpty() ? Qt::AlignVCenter : Qt::AlignTop, text);
        QFont small = ground.font;
        small.setPointSizeF(small.pointSizeF() * 0.85);
        painter->setFont(small);
        Draw(*painter, inside, Qt::AlignBottom, wording);
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& cell) const override {
        auto* edit = new QLineEdit(parent);
        edit->setFont(option.font);
        edit->setAccessibleName(cell.data(Qt::AccessibleDescriptionRole).toString());
        edit->setAccessibleDescription(Said("The text of this cell"));
        connect(edit, &QLineEdit::textChanged, edit, typed_);
        return edit;
    }

 private:
    static constexpr int Room = 8;

    static void Draw(QPainter& painter, const QRect& inside, Qt::Alignment alignment,
                     const QString& text) {
        painter.drawText(inside, static_cast<int>(alignment | Qt::AlignLeft),
                         painter.fontMetrics().elidedText(text, Qt::ElideRight, inside.width()));
    }

    std::function<void(const QString& text)> typed_;
};

/// After Enter the next line is typed, as in a spreadsheet.
class Cells : public QTableView {
 protected:
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override {
        QTableView::closeEditor(editor, hint);
        if (hint == QAbstractItemDelegate::SubmitModelCache) {
            const QModelIndex below = currentIndex().siblingAtRow(currentIndex().row() + 1);
            if (below.isValid()) setCurrentIndex(below);
        }
    }
};

}  // namespace

LanguageTableView::LanguageTableView(LanguageTable& table, std::function<void()> closed,
                                     QWidget* parent)
    : SecondWindow("language table", std::move(closed), parent),
      table_(table),
      cells_(new Cells),
      wording_(new QLabel) {
    setWindowTitle(Said("All Languages"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    cells_->setModel(new TableModel(table, this));
    connect(cells_->model(), &QAbstractItemModel::modelReset, this,
            [this] { cells_->setCurrentIndex(cells_->model()->index(0, 0)); });
    connect(cells_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& cell) { Show_Wording(cell.data().toString()); });
    cells_->setItemDelegate(
        new CellDelegate([this](const QString& typed) { Show_Wording(typed); }, this));
    cells_->setFont(Japanese_Font(FieldFont, QApplication::font().pointSizeF()));
    cells_->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                            QAbstractItemView::EditKeyPressed);
    // The toolkit's own light blue is too light for a white text.
    QPalette palette = cells_->palette();
    palette.setColor(QPalette::Highlight, QColor(0x1A, 0x5C, 0x97));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    cells_->setPalette(palette);
    cells_->setAccessibleName(Said("Texts of all languages"));
    cells_->setAccessibleDescription(Said("A row for each language, a column for each field"));
    cells_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    cells_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    cells_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    wording_->setTextFormat(Qt::PlainText);
    auto* shown = new ListBox;
    shown->setToolTip(Said(
        "Values, around which the banner has the wording of each language; or its whole texts"));
    auto* grid = new QGridLayout(this);
    auto* about =
        new QLabel(Said("Type into a cell; Enter goes to the next language. Cells can be pasted "
                        "from a spreadsheet."));
    about->setWordWrap(true);
    grid->addWidget(about, 0, 0);
    grid->addWidget(Make_Label(Said("&Show:"), shown), 0, 1);
    grid->addWidget(shown, 0, 2);
    grid->addWidget(cells_, 1, 0, 1, 3);
    grid->addWidget(wording_, 2, 0, 1, 3);
    grid->setColumnStretch(0, 1);
    Bind(*shown, table.cmbShown);
    new QShortcut(QKeySequence::Paste, cells_, [this] { Paste(); });
    new QShortcut(QKeySequence::Undo, this, [this] { table_.Undo_Click(); });
    new QShortcut(QKeySequence("Ctrl+Shift+Z"), this, [this] { table_.Redo_Click(); });
    resize(760, 480);
    cells_->setFocus();
    Follow(table.form);
}

/// What stands in the banner once the cell that is worked on is left.
void LanguageTableView::Show_Wording(const QString& typed) {
    const QModelIndex cell = cells_->currentIndex();
    const QString wording = cell.isValid() && !typed.isEmpty()
                                ? Shown(table_.Wording(Row(cell), Column(cell), Taken(typed)))
                                : QString();
    wording_->setText(wording.isEmpty() ? QString()
                                        : Filled(Said("The banner will say: %1"), wording));
}

void LanguageTableView::Paste() {
    const QModelIndex cell = cells_->currentIndex();
    if (cell.isValid())
        table_.Paste(Row(cell), Column(cell), Taken(QApplication::clipboard()->text()));
}

}  // namespace bannersmith
