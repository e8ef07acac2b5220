// The real widgets, shown offscreen and worked with as a person does.
#include <gtest/gtest.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <cmath>
#include <cstdlib>
#include <random>

#include "desktop/main_window_view.h"
#include "desktop/preview_view.h"
#include "desktop/qt_desktop.h"
#include "desktop/text.h"
#include "desktop/widgets.h"
#include "generate/banners.h"
#include "generate/channel.h"
#include "generate/dark_palette.h"
#include "generate/layout_builder.h"
#include "generate/texture.h"
#include "layout/kind.h"
#include "layout/text_box.h"
#include "mainwindow/batch_run.h"
#include "mainwindow/form1.h"
#include "noting_desktop.h"
#include "support.h"

using namespace bannersmith;

namespace {

using namespace std::string_literals;

constexpr char Layout[] = "b/arc/blyt/banner.brlyt";
constexpr char Texture[] = "b/arc/timg/my_BackX.tpl";

/// The list, box or button that has this name, or a tooltip that begins so.
QWidget& Named(QWidget& window, const QString& name) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const bool button = qobject_cast<QAbstractButton*>(widget) != nullptr;
        if (button ? widget->toolTip().startsWith(name) : widget->accessibleName() == name) return *widget;
    }
    throw std::runtime_error("nothing is called " + name.toStdString());
}

/// What a list or a box shows.
std::string Value(QWidget& window, const QString& name) {
    const QWidget& widget = Named(window, name);
    return widget.metaObject()->userProperty().read(&widget).toString().toStdString();
}

/// Step by step as a person does: "NAME=VALUE" types it into the box or chooses it in the list of that name, anything
/// else presses the button of that name.
void Do(QWidget& window, const QString& steps) {
    for (const QString& step : steps.split("; ")) {
        QWidget& widget = Named(window, step.section('=', 0, 0));
        const QString value = step.section('=', 1);
        if (qobject_cast<QAbstractButton*>(&widget)) {
            QTest::mouseClick(&widget, Qt::LeftButton);
        } else if (auto* list = qobject_cast<QComboBox*>(&widget)) {
            list->setFocus();
            QTest::keyClick(list, Qt::Key_Home);
            for (int i = 0; i <= list->count() && list->currentText() != value; ++i)
                QTest::keyClick(list, Qt::Key_Down);
            EXPECT_EQ(list->currentText(), value);
        } else {
            widget.setFocus();
            QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(&widget, value);
        }
    }
}

/// The window that is shown beside the main one.
QWidget& Opened(const QString& title) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowTitle() == title) return *window;
    }
    throw std::runtime_error("no window is called " + title.toStdString());
}

class Widgets : public testing::Test {
 public:
    Widgets() {
        Fill(folder);
        desktop.answer = u"yes";
        window.Form_Load();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }
    ~Widgets() override {
        for (QDialog* other : view.findChildren<QDialog*>()) other->close();
    }

    static void Fill(const TempFolder& folder) {
        folder.Write("cfgs/vcinfopath.cfg", "\\b\\arc\\blyt\\banner.brlyt\r\n");
        folder.Write(Layout, German_Japanese_Banner());
        folder.Write(Texture, "old");
        folder.Write("logos/New.tpl", "new");
        folder.Write("schemes/Mine.vccs", Format_Scheme(Shipped_Schemes()[2].scheme));
    }
    void Control(Qt::Key key) { QTest::keyClick(&view, key, Qt::ControlModifier); }

    TempFolder folder;
    NotingDesktop desktop;
    Form1 window{{folder.Text(), u""}, desktop};
    MainWindowView view{window};
};

TEST_F(Widgets, WriteTheSameBytesAsABatchRun) {
    EXPECT_EQ(Value(view, "Name"), "Der Sternenbote");
    Do(view, "Name=All; Write the name for every; Language of the name=JPN");
    EXPECT_EQ(Value(view, "Name"), "All");
    Do(view, "Name=One^Two; Write the name for this; Year=2001; Write the year for every; Language of the year=JPN");
    Do(view, "Year=1999; Write the year for this; Players=4; Write the number of players; System=MEGA");
    Do(view, "Write the console; ESRB Rating=T; Write the rating for every; Language of the rating=GER");
    Do(view, "ESRB Rating=M; Write the rating for this");
    EXPECT_TRUE(view.isWindowModified());
    Do(view, "Colors=Mine; Logo=New.tpl; Region Force=ITA; Padding (fixes corrupted images)=+16");
    Control(Qt::Key_S);
    EXPECT_TRUE(desktop.said.ends_with("[File Successfully Saved!]"));
    EXPECT_FALSE(view.isWindowModified());

    const TempFolder batch;
    Fill(batch);
    BatchRun run({batch.Text(),
                  u"-TITLE All -T_JPN One^Two -YEAR 2001 -Y_JPN 1999 -PLAY 4 -SYSTEM MEGA -ESRB T -E_GER M "
                  u"-COLOR Mine -LOGO New.tpl -FORCE ITA -PAD +16"},
                 [](const Failure&) {});
    EXPECT_EQ(run.Run(), BatchRun::Done);
    EXPECT_EQ(Hex(folder.Read(Layout)), Hex(batch.Read(Layout)));
    EXPECT_EQ(folder.Read(Texture), "new");
}

/// From the channel's file to the channel's file without another tool.
TEST_F(Widgets, EditAWholeChannel) {
    const Picture sky{640, 448, std::string(std::size_t{640} * 448 * TexelSize, '\x70')};
    for (const char* name : {"before.app", "c/00000000.app"}) folder.Write(name, Real_Size_Channel());
    folder.Write("logos/Sky.png", Write_Png(sky));
    folder.Write("game.jpg", Jpeg_File(sky));
    window.RefreshLogoList();
    Do(view, "File=" + Shown(folder.Text()) + "/c/00000000.app");
    auto* pages = view.findChild<QTabWidget*>();
    ASSERT_EQ(pages->count(), 2);
    Do(view,
       "Name=Moonlight; Write the name for every; Year=2001; Write the year for every; Players=4; "
       "Write the number of players; Colors=Mine; Logo=Sky.png; See, replace");
    EXPECT_FALSE(window.cmbLogo.picture_of(0));
    EXPECT_EQ(*window.cmbLogo.picture_of(window.cmbLogo.Index()), sky);
    QWidget& picture = Opened("Game Picture");
    desktop.answer = folder.Text() + u"/game.jpg";
    Do(picture, "Take another");
    desktop.answer = folder.Text() + u"/out";
    Do(picture, "Write the picture");
    EXPECT_FALSE(static_cast<QLabel&>(Named(picture, "Picture of the game")).pixmap(Qt::ReturnByValue).isNull());
    picture.close();
    EXPECT_EQ(Read_Picture(folder.Read("out.png"))->width, 256U);
    pages->setCurrentIndex(1);
    desktop.said.clear();
    Do(view,
       "ENG, line 1=ENG, line 1; GER, line 2=GER, line 2; KOR, line 1=KOR, line 1; "
       "FRA, line 1=xxxxxxxxxxxxxxxxxxxxx; Write the names");
    EXPECT_TRUE(desktop.said.starts_with("{Channel name FRA: ")) << desktop.said;
    EXPECT_EQ(window.lblLastCommand.Caption(), u"Channel names: 3 lines changed");
    desktop.answer = u"Discard";
    Control(Qt::Key_S);
    EXPECT_TRUE(desktop.said.ends_with("would not be saved: Channel names>[File Successfully Saved!]"));
    EXPECT_EQ((*Archive::Read(folder.Read("c/00000000.app"))->Names())[2][1], u"GER, line 2");
    const std::string read = "' && python3 '" READ_CHANNEL
                             "' before.app c/00000000.app names meta/banner.bin/arc/blyt/banner.brlyt "
                             "meta/banner.bin/arc/timg/VCPic.tpl meta/banner.bin/arc/timg/my_BackSample_a.tpl "
                             "meta/icon.bin/arc/timg/IconVCPic.tpl";
    EXPECT_EQ(std::system(("cd '" + folder.Path().string() + read).c_str()), 0);
    Do(view, "File=nothing");
    EXPECT_EQ(pages->count(), 1);
}

/// Presses keys and types texts where the focus is, and counts the keys beside the texts.
struct Hands {
    int keys = 0;

    /// A server without a window manager gives no window the focus.
    static QWidget* Where() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            const bool is_in_front = window->isVisible() && qobject_cast<QDialog*>(window);
            if (!QApplication::focusWidget() && is_in_front) window->activateWindow();
        }
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
        return QApplication::focusWidget();
    }
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(Where(), Qt::Key(key), modifiers);
        QApplication::processEvents();
        ++keys;
    }
    static void Type(const QString& text) {
        for (const QChar letter : text) QTest::keyClicks(Where(), QString(letter));
    }
};

TEST_F(Widgets, DoTheStandardJobWithFewKeys) {
    folder.Write("c/00000000.app", Real_Size_Channel());
    desktop.answer = u"Discard";
    window.Take_File(folder.Text() + u"/c/00000000.app");
    Named(view, "Name").setFocus();
    Hands hands;
    hands.Press(Qt::Key_L, Qt::ControlModifier);
    for (const char* title : {"Moon", "Mond", "Lune", "Luna", "Luna", "Maan", "Tsuki"}) {
        hands.Type(title);
        hands.Press(Qt::Key_Return);
    }
    hands.Press(Qt::Key_Tab);
    hands.Type("2001");
    hands.Press(Qt::Key_Tab);
    hands.Type("4");
    hands.Press(Qt::Key_Return);
    hands.Press(Qt::Key_Escape);
    EXPECT_EQ(window.TableWindow, nullptr);
    view.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    hands.Press(Qt::Key_C, Qt::AltModifier);
    hands.Press(Qt::Key_M);
    hands.Press(Qt::Key_L, Qt::AltModifier);
    hands.Press(Qt::Key_N);
    desktop.said.clear();
    hands.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desktop.said, "[File Successfully Saved!]");
    EXPECT_LE(hands.keys + 1, 25) << "with the one for the message";
    for (const auto& [box, text] : {std::pair{"T_VCTitle_ENG", u"Moon"},
                                    {"T_VCTitle_FRA", u"Lune"},
                                    {"T_VCTitle_JPN", u"Tsuki"},
                                    {"T_Year_GER", u"Erschienen: 2001"},
                                    {"T_Play_ENG", u"Players: 1-4"}}) {
        EXPECT_EQ(Get_Text(window.BrlytData, box), text) << box;
    }
    EXPECT_EQ(Archive::Read(folder.Read("c/00000000.app"))->Find_File("meta/banner.bin/arc/timg/my_BackSample_a.tpl"),
              "new");
    Control(Qt::Key_Z);
    EXPECT_EQ(Value(view, "Year"), "2001") << "scheme and logo were taken back";
    Control(Qt::Key_Z);
    Control(Qt::Key_Z);
    EXPECT_NE(Value(view, "Year"), "2001");
}

/// The share of light that a color reflects, and how much two colors differ by it (WCAG 2).
double Luminance(const QColor& color) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}
double Contrast(const QColor& a, const QColor& b) {
    const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

/// The color that most of a widget has inside its frame.
QColor Ground(const QWidget& widget) {
    const QRect place(widget.mapTo(widget.window(), QPoint()), widget.size());
    const QImage image = widget.window()->grab(place.adjusted(3, 3, -3, -3)).toImage();
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
    }
    const auto less = [](const auto& a, const auto& b) { return a.second < b.second; };
    return QColor((*std::max_element(counts.keyValueBegin(), counts.keyValueEnd(), less)).first);
}

bool Is_Input(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QTableView*>(&widget);
}

/// Looks at all that a window shows.
void Look_Over(QWidget& window) {
    const QWidget* before = nullptr;
    for (QWidget* widget = window.nextInFocusChain(); widget != &window; widget = widget->nextInFocusChain()) {
        const QString text = widget->property("text").toString();
        const std::string what = qPrintable(window.windowTitle() + ": " + widget->accessibleName() + " " + text);
        const bool is_part = widget->objectName().startsWith("qt_") || qobject_cast<QTableView*>(widget->parent());
        if (!widget->isVisibleTo(&window) || widget->visibleRegion().isEmpty() || is_part) continue;
        if (!text.isEmpty()) {
            const QColor color = widget->palette().color(QPalette::Active, widget->foregroundRole());
            EXPECT_GE(Contrast(color, Ground(*widget)), 4.5)
                << what << qPrintable(color.name() + Ground(*widget).name());
        }
        if (!Is_Input(*widget)) continue;
        const auto* interface = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty()) << what;
        EXPECT_FALSE(interface->text(QAccessible::Description).isEmpty()) << what;
        EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus) << what;
        // What comes next on the keyboard lies to the right or below.
        if (before && before->parentWidget() == widget->parentWidget()) {
            const QRect from = before->geometry(), to = widget->geometry();
            EXPECT_TRUE(to.top() >= from.bottom() || (to.left() >= from.right() && to.bottom() > from.top())) << what;
        }
        before = widget;
    }
}

TEST_F(Widgets, AreNamedInOrderAndReadable) {
    folder.Write("c/00000000.app", Real_Size_Channel());
    desktop.answer = u"Discard";
    window.Take_File(folder.Text() + u"/c/00000000.app");
    window.info.txtName.Set(u"not set");
    window.cmbLogo.Set_Mark(u"stays");
    const QPalette light = QApplication::palette();
    for (const QPalette& palette : {light, Dark_Palette()}) {
        QApplication::setPalette(palette);
        for (QTabWidget* pages : view.findChildren<QTabWidget*>()) {
            for (int page = 0; page < pages->count(); ++page) {
                pages->setCurrentIndex(page);
                QApplication::processEvents();
                Look_Over(view);
            }
        }
        for (const auto open :
             {&Form1::cmdEditColor_Click, &Form1::cmdHC_Click, &Form1::cmdPicture_Click, &Form1::cmdLanguages_Click}) {
            (window.*open)();
            QApplication::processEvents();
            QDialog& opened = *view.findChildren<QDialog*>().last();
            Look_Over(opened);
            opened.close();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    QApplication::setPalette(light);
}

TEST_F(Widgets, TakePathsKeyByKey) {
    Do(view, "File=\\b\\; File=/dev/null");
    EXPECT_EQ(desktop.said, "");

    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(Shown(folder.Text()) + "/" + Layout)});
    for (const Qt::DropActions actions : {Qt::DropActions(Qt::MoveAction), Qt::MoveAction | Qt::CopyAction}) {
        QDragEnterEvent enter(QPoint(5, 5), actions, &dropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &enter);
        EXPECT_EQ(enter.isAccepted(), actions.testFlag(Qt::CopyAction)) << "the file would be deleted where it was";
    }
    QDropEvent drop(QPointF(5, 5), Qt::MoveAction | Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&view, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    EXPECT_EQ(Value(view, "File"), "/dev/null") << "before the drag has ended";
    QApplication::processEvents();
    EXPECT_EQ(Value(view, "File"), "\\"s + Layout);
    EXPECT_EQ(window.BrlytData, German_Japanese_Banner());
    desktop.answer = u"chosen";
    Do(view, "Choose a layout file");
    EXPECT_EQ(Value(view, "File"), "chosen");
}

TEST_F(Widgets, KeepTheMainWindowBehindTheOthers) {
    Control(Qt::Key_P);
    QWidget& colors = Opened("Bannersmith Colors");
    EXPECT_FALSE(view.centralWidget()->isEnabled());
    EXPECT_TRUE(colors.isEnabled());
    EXPECT_FALSE(view.close());
    Do(colors, "Select Scheme=Mine");
    QTest::keyClick(&colors, Qt::Key_Escape);
    EXPECT_TRUE(view.centralWidget()->isEnabled());
    EXPECT_EQ(Value(view, "Colors"), "Mine");
    EXPECT_FALSE(window.ColorWindow);
    Control(Qt::Key_T);
    QWidget& editor = Opened("\"Hardcore\" Manual Text Editor");
    Do(editor, "Entry Name=T_Year_GER; Value=Erschienen: 1877; Write the text");
    editor.close();
    EXPECT_EQ(Value(view, "Year"), "1877");
    EXPECT_TRUE(view.isWindowModified());
    EXPECT_FALSE(view.close());
    desktop.answer = u"Discard";
    EXPECT_TRUE(view.close());
}

TEST_F(Widgets, AskThroughTheToolkit) {
    QtDesktop toolkit;
    QString folder_shown, filters;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        folder_shown = dialog->directory().path();
        filters = dialog->nameFilters().join(";") + (dialog->testOption(QFileDialog::HideNameFilterDetails) ? "" : "?");
        dialog->reject();
    });
    EXPECT_EQ(toolkit.Open_File(u"A (*.a)|*.a|All (*.*)|*.*", folder.Text() + u"\\b/arc\\gone"), u"");
    EXPECT_EQ(folder_shown, Shown(folder.Text()) + "/b/arc");
    EXPECT_EQ(filters, "A (*.a) (*.a);All (*.*) (*)");
    for (const int key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space}) {
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QWidget* target = key == Qt::Key_Space ? box->button(QMessageBox::Yes) : static_cast<QWidget*>(box);
            QTest::keyClick(target, Qt::Key(key));
        });
        EXPECT_EQ(toolkit.Confirm(u"Really?"), key == Qt::Key_Space);
    }
    const Font font{u"Arial", 72};
    EXPECT_NEAR(toolkit.Text_Width(u"MMMM", font) - toolkit.Text_Width(u"MM", font), 2 * 72 * 20, 72 * 20);
}

TEST_F(Widgets, EditColorsAndPaintThem) {
    Do(view, "Edit colors");
    QWidget& colors = Opened("Bannersmith Colors");
    Do(colors, "Back1 0; Red=300; Green=17; Blue=18; Give the box");
    desktop.answer = u"New";
    Do(colors, "Save all colors");
    EXPECT_EQ(static_cast<QComboBox&>(Named(view, "Colors")).count(), 3);
    EXPECT_EQ(Value(view, "Colors"), "");
    EXPECT_NE(folder.Read("schemes/New.vccs").find(" 255  17  18 "), std::string::npos);

    PreviewView preview(window.ColorWindow->preview);
    preview.resize(preview.sizeHint());
    const QImage image = preview.grab().toImage();
    const auto pixel = [&](double x, double y) {
        return image.pixelColor(static_cast<int>(x / 15), static_cast<int>((y - 2400) / 15));
    };
    const auto box = [&](std::u16string_view element, std::size_t i) {
        return Shown_Color(window.ColorWindow->pic[Element_Index(element)][i].Value());
    };
    const QColor outside = pixel(100, 9000), paper = box(u"Back1", 0), floor = QColor(0x60, 0x60, 0x60);
    EXPECT_EQ(paper, QColor(255, 17, paper.blue()));
    struct Edge {
        double x, y;
        QColor inside, beyond;  ///< at the place, and one pixel to the left of it
    };
    for (const Edge& edge : {Edge{360, 6300, paper, outside},
                             {360, 9600, box(u"BackMask2", 1), outside},
                             {11175, 6300, outside, paper},
                             {600, 3970, box(u"YearLine", 1), paper},
                             {4080, 6200, box(u"VCPic", 0), paper},
                             {5800, 6000, box(u"VCPic", 1), box(u"VCPic", 1)},
                             {240, 2500, floor, outside},
                             {11355, 2500, outside, floor},
                             {400, 9700, outside, outside}}) {
        EXPECT_EQ(pixel(edge.x, edge.y), edge.inside) << edge.x << "," << edge.y;
        EXPECT_EQ(pixel(edge.x - 15, edge.y), edge.beyond) << edge.x << "," << edge.y;
    }

    Do(colors, "Color being edited");
    EXPECT_EQ(Value(colors, "Blue"), "3");
    const Color before = window.ColorWindow->pic[0][0].Value();
    Do(colors, "Select Scheme=Mine");
    EXPECT_NE(window.ColorWindow->pic[0][0].Value(), before);
    folder.Write("other.brlyt", Layout_File({Material_Section({{"PFLine", {7, 8, 9, 0}}})}));
    Do(colors, "Load From brlyt=\\other.brlyt; Read the colors");
    EXPECT_EQ(window.ColorWindow->pic[0][0].Value(), Make_Color(7, 8, 9));

    auto& scrolled = *colors.findChild<QScrollArea*>();
    for (const bool small : {true, false}) {
        colors.resize(small ? QSize(600, 400) : colors.sizeHint());
        QApplication::processEvents();
        EXPECT_EQ(scrolled.horizontalScrollBar()->maximum() > 0, small);
    }
    EXPECT_FALSE(scrolled.focusPolicy() & Qt::TabFocus);
    colors.close();

    for (int i = 0; i < 20; ++i)
        folder.Write("schemes/S" + std::to_string(i) + ".vccs", folder.Read("schemes/Mine.vccs"));
    window.RefreshColorList_Here();
    static_cast<QComboBox&>(Named(view, "Colors")).showPopup();
    QWidget& search = Named(view, "Search");
    QTest::keyClicks(&search, "s1");
    QTest::keyClick(&search, Qt::Key_Down);
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(Value(view, "Colors"), "S10") << "the second that holds the letters";
}

TEST_F(Widgets, AreCaptionedAndNamedAndLeftAloneByTheWheel) {
    window.lblLoaded.Set(u"");
    Do(view, "Edit colors; Show and replace; Back1 0");
    EXPECT_FALSE(window.TextEditor) << "its button is behind the colors";
    window.cmdHC_Click();
    std::string captions;  // of all three windows; those of boxes and lists are their names
    for (QWidget* widget : view.findChildren<QWidget*>()) {
        if (!widget->isVisible()) continue;
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        const auto* label = qobject_cast<QLabel*>(widget);
        const auto* box = qobject_cast<QLineEdit*>(widget);
        auto* list = qobject_cast<QComboBox*>(widget);
        const std::string text = widget->property("text").toString().toStdString();
        if (!text.empty() && (button || (label && !label->buddy()))) captions += text + "|";
        if (box && box->font().bold()) captions += box->accessibleName().toStdString() + " is bold|";
        if (!list) continue;
        EXPECT_EQ(list->focusPolicy(), Qt::StrongFocus) << "the next letter typed would choose";
        const int before = list->currentIndex();
        for (const int turn : {120, -120}) {
            QWheelEvent wheel({5, 5}, list->mapToGlobal(QPointF(5, 5)), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(list, &wheel);
            EXPECT_EQ(list->currentIndex(), before) << qPrintable(list->accessibleName());
        }
    }
    EXPECT_EQ(captions,
              "Pl&ay|Sa&ve Picture...|Name is bold|Set|Set All|System is bold|Set|Year is bold|Set|Set All|Players "
              "is bold|Set|No Dashes!!  "
              "(E.g.  Type \"2\" for \"1-2\")|Set|Set All|Hardcore Manual Text Editor|Color Editor And Preview|"
              "Game Pic&ture...|All Languages...|....|&Save Changes|SaveScheme|Get Color "
              "Scheme|PFLINE|T_PF|Shade|VCPic|VCPicBase|VCPicSha|Back0|"
              "Back1|Back2|Back3|Back4|BackMask1|BackMask2|YearLine|PlayLine|T_VCTitle|T_Year|T_Play|T_ESRB|Select a "
              "Color by Clicking on it and edit "
              "it to the right.  Click the \"Set\" button to update.|Back1 0|Set|Set|");
}

/// What a person could do next, by chance: press, pick, type, take back, go elsewhere.
void Do_Anything(MainWindowView& view, std::mt19937& chance, const QStringList& texts) {
    const auto any = [&](auto size) { return static_cast<int>(chance() % static_cast<unsigned>(size)); };
    QList<QWidget*> inputs;
    for (QWidget* widget : QApplication::allWidgets()) {
        if (Is_Input(*widget) && widget->isVisible() && widget->isEnabled()) inputs << widget;
    }
    QWidget* widget = inputs.value(any(inputs.size()));
    const auto actions = view.findChildren<QAction*>();
    QAction* action = actions[any(actions.size())];
    const bool is_command =
        !action->shortcut().isEmpty() && !action->text().contains("Quit") && !action->text().contains("Manual");
    if (any(8) == 0 && is_command) return action->trigger();
    const auto dialogs = view.findChildren<QDialog*>();
    if (any(20) == 0 && !dialogs.isEmpty()) return static_cast<void>(dialogs.last()->close());
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        button->click();
    } else if (auto* list = qobject_cast<QComboBox*>(widget)) {
        if (list->count() > 0) emit list->activated(any(list->count()));
    } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        edit->setFocus();
        edit->setText(texts[any(texts.size())]);
        emit edit->textEdited(edit->text());
    } else if (auto* table = qobject_cast<QTableView*>(widget)) {
        table->model()->setData(table->model()->index(any(table->model()->rowCount()), any(4)),
                                texts[any(texts.size())]);
    }
}

/// For longer than a moment with BANNERSMITH_RANDOM_SECONDS in the environment.
TEST_F(Widgets, KeepFilesWholeWhateverIsDone) {
    std::mt19937 chance(std::random_device{}());
    QStringList texts = {"",   "1",  "1999", "x^y", QString(QChar(0xD800)), "\u6708\u591C", QString(300, 'w'),
                         "\\", "+12"};
    const std::string sound[] = {German_Japanese_Banner(), Seven_Language_Banner(), Neutral_Banner(), Sample_Channel()};
    for (const std::string& bytes : sound) {
        for (int damage = 0; damage < 4; ++damage) {
            std::string file = bytes;
            for (int i = 0; i < damage * damage; ++i) file[chance() % file.size()] = static_cast<char>(chance());
            if (damage == 3) file.resize(chance() % file.size());
            const std::string name = std::to_string(texts.size()) + (damage == 0 ? "/whole.app" : "/damaged.brlyt");
            folder.Write(name, file);
            texts << Shown(folder.Text()) + "/" + QString::fromStdString(name);
        }
    }
    const int seconds = std::max(2, qEnvironmentVariableIntValue("BANNERSMITH_RANDOM_SECONDS"));
    const std::u16string answers[] = {
        u"yes",          u"no",        u"Save",   u"Discard", u"Cancel",
        u"Set it first", u"Overwrite", u"Reload", u"name",    folder.Text() + u"/logo.png"};
    folder.Write("logo.png", Write_Png({4, 3, std::string(48, '\x70')}));
    QElapsedTimer time;
    for (time.start(); time.elapsed() < 1000 * seconds;) {
        desktop.answer = answers[chance() % std::size(answers)];
        desktop.said.clear();
        Do_Anything(view, chance, texts);
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    for (const std::string& name : folder.Names()) {
        if (!name.ends_with("whole.app")) continue;
        const auto banner = Banner::Load(BannerSource(folder.Text() + u"/" + From_Utf8(name)));
        ASSERT_TRUE(banner) << name;
        EXPECT_TRUE(Is_Layout(banner->Bytes()) && Text_Box_Names(banner->Bytes()).size() > 4) << name;
    }
}

TEST_F(Widgets, KeepTextsAsTheyAre) {
    for (const std::u16string& text : {u"\xFEFF "s, u"\xFFFE "s, u"\xD800 \xDC00"s, u"\u65E5^"s}) {
        window.info.txtName.Set(text);
        QTest::keyClick(&Named(view, "Name"), Qt::Key_End);
        QTest::keyClicks(&Named(view, "Name"), "x");
        EXPECT_EQ(Hex(To_Utf8(window.info.txtName.Text())), Hex(To_Utf8(text + u"x")));
    }
}

}  // namespace

int main(int argc, char** argv) {
    const TempFolder settings;  // the windows' positions of this person must neither matter nor change
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_CONFIG_HOME", settings.Path().string().c_str());
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
