#include "desktop/color_window_view.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>
#include <array>
#include <map>
#include <utility>

#include "desktop/binding.h"
#include "desktop/live_view_widget.h"
#include "desktop/preview_view.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

namespace bannersmith {

ColorWindowView::ColorWindowView(frmColor& window, std::function<void()> closed, QWidget* parent)
    : SecondWindow("color window", std::move(closed), parent), content_(new QWidget) {
    setWindowTitle("Bannersmith Colors");
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    QHBoxLayout* upper = Make_Row(window, 0);
    QHBoxLayout* lower = Make_Row(window, 1);
    lower->addWidget(Make_Edit_Area(window), 7);
    for (QHBoxLayout* row : {upper, lower}) row->setSpacing(3);

    auto* rows = new QVBoxLayout(content_);
    rows->addLayout(Make_Bar(window));
    rows->addLayout(upper);
    rows->addLayout(lower);
    auto* previews = new QTabWidget;
    previews->setDocumentMode(true);
    previews->addTab(new PreviewView(window.preview), "Pre&view");
    previews->addTab(new LiveViewWidget(window.live), "As the console &draws it");
    rows->addWidget(previews, 1);
    auto* scrolled = new QScrollArea;
    scrolled->setFrameStyle(QFrame::NoFrame);
    scrolled->setFocusPolicy(Qt::NoFocus);
    scrolled->setWidgetResizable(true);
    scrolled->setWidget(content_);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scrolled);
    resize(ColorWindowView::sizeHint().boundedTo(screen()->availableSize()));
    Follow(window.form);
}

QSize ColorWindowView::sizeHint() const {
    return content_->sizeHint();
}

QBoxLayout* ColorWindowView::Make_Bar(frmColor& window) {
    auto* schemes = new ListBox;
    schemes->setMinimumWidth(150);
    schemes->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    schemes->setToolTip("Colors of the layout file, or a saved scheme");
    auto* path = new QLineEdit;
    path->setToolTip("The layout file to read colors from");
    auto* bar = new QHBoxLayout;
    bar->addWidget(Make_Label("Select Sc&heme:", schemes));
    bar->addWidget(schemes);
    bar->addWidget(Make_Button("SaveScheme", "Save all colors as a scheme", QKeySequence::Save,
                               [&window] { window.cmdSaveScheme_Click(); }));
    bar->addSpacing(12);
    bar->addWidget(Make_Label("Load From &brlyt:", path));
    bar->addWidget(path, 1);
    bar->addWidget(Make_Button("Get Color Scheme", "Read the colors of that layout file",
                               QKeySequence("Ctrl+G"), [&window] { window.cmdGetScheme_Click(); }));
    Bind(*schemes, window.cmbFileList);
    Bind(*path, window.txtBannerPath);
    return bar;
}

/// The elements of a row by their columns.
QHBoxLayout* ColorWindowView::Make_Row(frmColor& window, std::size_t row) {
    std::map<std::size_t, std::size_t> columns;
    for (std::size_t i = 0; i < Elements.size(); ++i) {
        if (Elements[i].row == row) columns[Elements[i].column] = i;
    }
    auto* boxes = new QHBoxLayout;
    for (const auto& [column, element] : columns) {
        boxes->addWidget(Make_Element(window, element), 1);
    }
    return boxes;
}

QWidget* ColorWindowView::Make_Element(frmColor& window, std::size_t element) {
    constexpr QSize BoxSize(46, 18);
    const std::u16string_view key = Elements[element].key;
    auto* frame = new QGroupBox(Shown(key));
    QFont small = frame->font();
    small.setPointSizeF(small.pointSizeF() * 0.8);
    frame->setFont(small);
    auto* boxes = new QVBoxLayout(frame);
    boxes->setContentsMargins(4, 5, 4, 5);
    boxes->setSpacing(3);
    for (std::int16_t index = 0; index < 2; ++index) {
        auto* box = new ColorButton(window.pic[element][static_cast<std::size_t>(index)],
                                    Shown(key) + " " + QString::number(index), BoxSize);
        connect(box, &QAbstractButton::clicked,
                [&window, key, index] { window.pic_Click(key, index); });
        boxes->addWidget(box);
    }
    return frame;
}

QWidget* ColorWindowView::Make_Edit_Area(frmColor& window) {
    auto* area = new QWidget;
    auto* instruction = new QLabel(
        "Select a Color by Clicking on it and edit it to the right.  Click the \"Set\" button to "
        "update.");
    instruction->setWordWrap(true);
    // There is room for its lines beside the boxes. Were the height to follow the width, the window
    // would scroll before the preview became smaller.
    QSizePolicy policy = instruction->sizePolicy();
    policy.setHeightForWidth(false);
    instruction->setSizePolicy(policy);
    auto* numbers = new QHBoxLayout;
    const std::array<std::pair<const char*, TextBox*>, 3> components = {
        {{"Red", &window.txtR}, {"Green", &window.txtG}, {"Blue", &window.txtB}}};
    for (const auto& [name, box] : components) {
        auto* edit = new QLineEdit;
        edit->setFixedWidth(edit->fontMetrics().horizontalAdvance("000000"));
        edit->setAlignment(Qt::AlignRight);
        edit->setAccessibleName(name);
        edit->setToolTip(QString(name) + ", 0 to 255");
        Bind(*edit, *box);
        numbers->addWidget(edit);
    }
    auto* swatch = new ColorButton(window.picClr, "Color being edited", QSize(40, 24));
    connect(swatch, &QAbstractButton::clicked, [&window] { window.picClr_Click(); });
    numbers->addWidget(swatch, 1);
    auto* edited = new QLabel;
    edited->setMinimumWidth(edited->fontMetrics().horizontalAdvance("T_VCTitle 0"));
    Bind(*edited, window.lblEdit);
    numbers->addWidget(edited);
    auto* set = Make_Button("Set", "Give the box being edited this color",
                            QKeySequence("Ctrl+Return"), [&window] { window.cmdColor_Click(); });

    auto* right = new QVBoxLayout;
    right->addLayout(numbers);
    right->addWidget(set);
    auto* columns = new QHBoxLayout(area);
    columns->setContentsMargins(6, 0, 0, 0);
    columns->addWidget(instruction, 1);
    columns->addLayout(right);
    return area;
}

}  // namespace bannersmith
