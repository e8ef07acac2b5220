#include "desktop/color_window_view.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <numeric>
#include <utility>
#include <vector>

#include "desktop/binding.h"
#include "desktop/live_view_widget.h"
#include "desktop/preview_view.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

namespace bannersmith {

namespace {

/// What an element is, in words.
QString Element_In_Words(std::u16string_view key) {
    const std::array<std::pair<std::u16string_view, QString>, Elements.size()> words = {{
        {u"PFLINE", Said("the bar at the top")},
        {u"T_PF", Said("the console's name")},
        {u"Shade", Said("the shade over the ground")},
        {u"VCPic", Said("the picture and its frame")},
        {u"VCPicBase", Said("the picture's mirror image")},
        {u"VCPicSha", Said("the picture's shadow")},
        {u"Back0", Said("the ground")},
        {u"Back1", Said("the first row of the pattern")},
        {u"Back2", Said("the second row of the pattern")},
        {u"Back3", Said("the third row of the pattern")},
        {u"Back4", Said("the fourth row of the pattern")},
        {u"BackMask1", Said("the fade to the floor")},
        {u"BackMask2", Said("the floor")},
        {u"YearLine", Said("the line below the year")},
        {u"PlayLine", Said("the line below the players")},
        {u"T_VCTitle", Said("the game's name")},
        {u"T_Year", Said("the year")},
        {u"T_Play", Said("the number of players")},
        {u"T_ESRB", Said("the rating")},
    }};
    for (const auto& [name, text] : words) {
        if (name == key) return text;
    }
    return {};
}

/// By rows and columns, as they lie in the banner.
std::vector<std::size_t> In_Their_Order() {
    std::vector<std::size_t> order(Elements.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [](std::size_t a, std::size_t b) {
        return std::pair(Elements[a].row, Elements[a].column) <
               std::pair(Elements[b].row, Elements[b].column);
    });
    return order;
}

}  // namespace

ColorWindowView::ColorWindowView(frmColor& window, std::function<void()> closed, QWidget* parent)
    : SecondWindow("color window", std::move(closed), parent),
      window_(window),
      content_(new QWidget) {
    setWindowTitle("Bannersmith Colors");
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    may_close = [this] { return window_.May_Close(); };
    auto* right = new QVBoxLayout;
    right->addWidget(Make_Previews(), 1);
    right->addWidget(Make_Edit_Area());
    auto* columns = new QHBoxLayout;
    columns->addWidget(Make_Elements());
    columns->addLayout(right, 1);
    auto* rows = new QVBoxLayout(content_);
    rows->addLayout(Make_Bar());
    rows->addLayout(columns, 1);
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

QBoxLayout* ColorWindowView::Make_Bar() {
    auto* schemes = new ListBox;
    schemes->setMinimumWidth(150);
    schemes->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    schemes->setPlaceholderText(Said("Choose a scheme"));
    schemes->setToolTip(Said("Colors of the layout file, or a saved scheme"));
    auto* path = new QLineEdit;
    path->setToolTip(Said("The layout file to read colors from"));
    auto* bar = new QHBoxLayout;
    bar->addWidget(Make_Label("Select Sc&heme:", schemes));
    bar->addWidget(schemes);
    bar->addWidget(Make_Button("SaveScheme", Said("Save all colors as a scheme"),
                               QKeySequence::Save, [this] { window_.cmdSaveScheme_Click(); }));
    bar->addSpacing(12);
    bar->addWidget(Make_Label("Load From &brlyt:", path));
    bar->addWidget(path, 1);
    bar->addWidget(Make_Button("Get Color Scheme", Said("Read the colors of that layout file"),
                               QKeySequence("Ctrl+G"), [this] { window_.cmdGetScheme_Click(); }));
    Bind(*schemes, window_.cmbFileList);
    Bind(*path, window_.txtBannerPath);
    return bar;
}

/// A line for each, its two boxes side by side.
QWidget* ColorWindowView::Make_Elements() {
    constexpr QSize BoxSize(46, 18);
    auto* column = new QWidget;
    auto* grid = new QGridLayout(column);
    grid->setContentsMargins(0, 0, 6, 0);
    grid->setSpacing(3);
    int row = 0;
    for (const std::size_t element : In_Their_Order()) {
        const std::u16string_view key = Elements[element].key;
        auto* name = new QLabel(Shown(key));
        name->setToolTip(Element_In_Words(key));
        grid->addWidget(name, row, 0);
        for (std::int16_t index = 0; index < 2; ++index) {
            auto* box = new ColorButton(window_.pic[element][static_cast<std::size_t>(index)],
                                        Shown(key) + " " + QString::number(index),
                                        Element_In_Words(key), BoxSize);
            connect(box, &QAbstractButton::clicked,
                    [this, key, index] { window_.pic_Click(key, index); });
            grid->addWidget(box, row, 1 + index);
        }
        ++row;
    }
    grid->setRowStretch(row, 1);
    return column;
}

/// A click into either of them chooses what lies there.
QWidget* ColorWindowView::Make_Previews() {
    auto* sketch = new PreviewView(window_.preview);
    sketch->clicked = [this](float x, float y) { window_.Preview_Click(x, y); };
    auto* live = new LiveViewWidget(window_.live);
    live->clicked = [this](float x, float y) { window_.Live_Click(x, y); };
    auto* previews = new QTabWidget;
    previews->setDocumentMode(true);
    previews->addTab(sketch, Said("Pre&view"));
    previews->addTab(live, Said("As the console &draws it"));
    return previews;
}

QWidget* ColorWindowView::Make_Edit_Area() {
    auto* area = new QWidget;
    auto* instruction = new QLabel(
        "Select a Color by Clicking on it and edit it to the right.  Click the \"Set\" button to "
        "update.");
    instruction->setWordWrap(true);
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins({});
    grid->addWidget(instruction, 0, 0, 2, 1);
    grid->setColumnStretch(0, 1);
    struct Number {
        const char* caption;
        QString name, tooltip;
        TextBox* box;
        const char* widest;
    };
    const Number numbers[] = {
        {"R", Said("Red"), Said("Red, 0 to 255"), &window_.txtR, "000000"},
        {"G", Said("Green"), Said("Green, 0 to 255"), &window_.txtG, "000000"},
        {"B", Said("Blue"), Said("Blue, 0 to 255"), &window_.txtB, "000000"},
        {"Hex", Said("Hex"), Said("All three as six hexadecimal digits"), &window_.txtHex,
         "DDDDDDDD"}};
    int column = 1;
    for (const Number& number : numbers) {
        auto* edit = new QLineEdit;
        edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(number.widest));
        edit->setAlignment(Qt::AlignRight);
        edit->setAccessibleName(number.name);
        edit->setToolTip(number.tooltip);
        Bind(*edit, *number.box);
        auto* caption = new QLabel(number.caption);
        caption->setAlignment(Qt::AlignCenter);
        caption->setBuddy(edit);
        grid->addWidget(caption, 0, column);
        grid->addWidget(edit, 1, column++);
    }
    auto* edited = new QLabel;
    edited->setMinimumWidth(edited->fontMetrics().horizontalAdvance("BackMask2 0 "));
    edited->setAlignment(Qt::AlignCenter);
    Bind(*edited, window_.lblEdit);
    auto* swatch =
        new ColorButton(window_.picClr, Said("Color being edited"), QString(), QSize(56, 24));
    connect(swatch, &QAbstractButton::clicked, [this] { window_.picClr_Click(); });
    grid->addWidget(edited, 0, column);
    grid->addWidget(swatch, 1, column++);
    grid->addWidget(Make_Button("Set", Said("Give the box being edited this color"),
                                QKeySequence("Ctrl+Return"), [this] { window_.cmdColor_Click(); }),
                    1, column);
    return area;
}

}  // namespace bannersmith
