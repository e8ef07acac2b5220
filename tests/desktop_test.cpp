// The real widgets, shown offscreen and worked with as a person does.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <cstdlib>
#include <memory>

#include "base/text.h"
#include "desktop/color_window_view.h"
#include "desktop/game_picture_view.h"
#include "desktop/main_window_view.h"
#include "desktop/preview_view.h"
#include "desktop/qt_desktop.h"
#include "desktop/text.h"
#include "desktop/text_editor_view.h"
#include "desktop/widgets.h"
#include "generate/banners.h"
#include "generate/channel.h"
#include "generate/layout_builder.h"
#include "generate/texture.h"
#include "mainwindow/batch_run.h"
#include "mainwindow/form1.h"
#include "support.h"

using namespace bannersmith;

namespace {

constexpr char Layout[] = "b/arc/blyt/banner.brlyt";
constexpr char Texture[] = "b/arc/timg/my_BackX.tpl";

/// Notes what it is shown and answers what it is told to.
class TestDesktop : public QtDesktop {
 public:
    std::vector<std::u16string> messages, failures;
    std::u16string answer, file;
    Color color = 0;

    std::u16string Open_File(const std::u16string& /*filter*/, const std::u16string& /*last*/) override { return file; }
    std::u16string Save_File(const std::u16string& /*filter*/, const std::u16string& /*name*/) override { return file; }
    Color Choose_Color(Color /*color*/) override { return color; }
    void Message(const std::u16string& text) override { messages.push_back(text); }
    void Report(const Failure& failure) override { failures.push_back(failure.subject); }
    std::u16string Ask(const std::u16string& /*prompt*/, const std::u16string& /*title*/) override { return answer; }
    bool Confirm(const std::u16string& /*question*/) override { return true; }
};

class Widgets : public testing::Test {
 public:
    Widgets() {
        Fill(folder);
        window = std::make_unique<Form1>(Process{folder.Text(), u""}, desktop);
        view = std::make_unique<MainWindowView>(*window);
        window->Form_Load();
        view->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(view.get()));
    }
    ~Widgets() override {
        if (window->ColorWindow) Find<ColorWindowView>()->close();
        if (window->TextEditor) Find<TextEditorView>()->close();
    }

    static void Fill(const TempFolder& folder) {
        folder.Write("cfgs/vcinfopath.cfg", "\\b\\arc\\blyt\\banner.brlyt\r\n");
        folder.Write(Layout, German_Japanese_Banner());
        folder.Write(Texture, "old");
        folder.Write("logos/New.tpl", "new");
        folder.Write("schemes/Mine.vccs", Format_Scheme(Shipped_Schemes()[2].scheme));
    }

    template <typename View>
    static View* Find() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* found = dynamic_cast<View*>(widget);
            if (found != nullptr && found->isVisible()) return found;
        }
        return nullptr;
    }

    template <typename Widget>
    static Widget& Named(QWidget& parent, const QString& name) {
        for (Widget* widget : parent.findChildren<Widget*>()) {
            if (widget->accessibleName() == name) return *widget;
        }
        throw std::runtime_error("no widget is called " + name.toStdString());
    }

    static void Type(QLineEdit& edit, const QString& text) {
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }

    static void Choose(QComboBox& list, const QString& entry) {
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Home);
        for (int i = 0; i <= list.count() && list.currentText() != entry; ++i) QTest::keyClick(&list, Qt::Key_Down);
        EXPECT_EQ(list.currentText(), entry);
    }

    static void Press(QWidget& parent, const QString& tooltip) {
        for (QAbstractButton* button : parent.findChildren<QAbstractButton*>()) {
            if (!button->toolTip().startsWith(tooltip)) continue;
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
        FAIL() << "no button does " << tooltip.toStdString();
    }

    TempFolder folder;
    TestDesktop desktop;
    std::unique_ptr<Form1> window;
    std::unique_ptr<MainWindowView> view;
};

TEST_F(Widgets, WriteTheSameBytesAsABatchRun) {
    EXPECT_EQ(Named<QLineEdit>(*view, "Name").text(), "Der Sternenbote");
    Type(Named<QLineEdit>(*view, "Name"), "All");
    Press(*view, "Write the name for every");
    Choose(Named<QComboBox>(*view, "Language of the name"), "JPN");
    EXPECT_EQ(Named<QLineEdit>(*view, "Name").text(), "All");
    Type(Named<QLineEdit>(*view, "Name"), "One^Two");
    Press(*view, "Write the name for this");
    Type(Named<QLineEdit>(*view, "Year"), "2001");
    Press(*view, "Write the year for every");
    Choose(Named<QComboBox>(*view, "Language of the year"), "JPN");
    Type(Named<QLineEdit>(*view, "Year"), "1999");
    Press(*view, "Write the year for this");
    Type(Named<QLineEdit>(*view, "Players"), "4");
    Press(*view, "Write the number of players");
    Type(Named<QLineEdit>(*view, "System"), "MEGA");
    Press(*view, "Write the console");
    Type(Named<QLineEdit>(*view, "ESRB Rating"), "T");
    Press(*view, "Write the rating for every");
    Choose(Named<QComboBox>(*view, "Language of the rating"), "GER");
    Type(Named<QLineEdit>(*view, "ESRB Rating"), "M");
    Press(*view, "Write the rating for this");
    EXPECT_TRUE(view->isWindowModified());
    Choose(Named<QComboBox>(*view, "Colors"), "Mine");
    Choose(Named<QComboBox>(*view, "Logo"), "New.tpl");
    Choose(Named<QComboBox>(*view, "Region Force"), "ITA");
    Type(Named<QLineEdit>(*view, "Padding (fixes corrupted images)"), "+16");
    QTest::keyClick(view.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desktop.messages, std::vector<std::u16string>{u"File Successfully Saved!"});
    EXPECT_FALSE(view->isWindowModified());

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
    folder.Write("before.app", Sample_Channel());
    folder.Write("c/00000000.app", Sample_Channel());
    folder.Write("logos/Sky.png", Write_Png(sky));
    folder.Write("game.jpg", Jpeg_File(sky));
    window->RefreshLogoList();
    Type(Named<QLineEdit>(*view, "File"), QString::fromStdString((folder.Path() / "c/00000000.app").string()));
    auto* pages = view->findChild<QTabWidget*>();
    ASSERT_EQ(pages->count(), 2);
    for (const auto& [field, value, button] : {std::tuple{"Name", "Moonlight", "Write the name for every"},
                                               {"Year", "2001", "Write the year for every"},
                                               {"Players", "4", "Write the number of players"}}) {
        Type(Named<QLineEdit>(*view, field), value);
        Press(*view, button);
    }
    Choose(Named<QComboBox>(*view, "Colors"), "Mine");
    Choose(Named<QComboBox>(*view, "Logo"), "Sky.png");
    EXPECT_FALSE(window->cmbLogo.picture_of(0));
    EXPECT_EQ(*window->cmbLogo.picture_of(window->cmbLogo.Index()), sky);
    Press(*view, "See, replace");
    auto* picture = Find<GamePictureView>();
    desktop.file = folder.Text() + u"/game.jpg";
    Press(*picture, "Take another");
    desktop.file = folder.Text() + u"/out";
    Press(*picture, "Write the picture");
    EXPECT_FALSE(Named<QLabel>(*picture, "Picture of the game").pixmap(Qt::ReturnByValue).isNull());
    picture->close();
    EXPECT_EQ(Read_Picture(folder.Read("out.png"))->width, 256U);
    pages->setCurrentIndex(1);
    for (const char* line : {"ENG, line 1", "GER, line 2", "KOR, line 1"}) {
        Type(Named<QLineEdit>(*view, line), QString(line).left(20));
    }
    Type(Named<QLineEdit>(*view, "FRA, line 1"), QString(21, 'x'));
    Press(*view, "Write the names");
    EXPECT_EQ(desktop.failures, std::vector<std::u16string>{u"Channel name FRA"});
    EXPECT_EQ(window->lblLastCommand.Caption(), u"Channel names: 3 lines changed");
    QTest::keyClick(view.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desktop.messages, std::vector<std::u16string>{u"File Successfully Saved!"});
    EXPECT_EQ((*Archive::Read(folder.Read("c/00000000.app"))->Names())[2][1], u"GER, line 2");
    const std::string banner = " meta/banner.bin/arc/", icon = " meta/icon.bin/arc/";
    const std::string read = "python3 '" READ_CHANNEL "' before.app c/00000000.app names" + banner +
                             "blyt/banner.brlyt" + banner + "timg/VCPic.tpl" + banner + "timg/my_BackSample_a.tpl" +
                             icon + "timg/IconVCPic.tpl";
    EXPECT_EQ(std::system(("cd '" + folder.Path().string() + "' && " + read).c_str()), 0);
    Type(Named<QLineEdit>(*view, "File"), "nothing");
    EXPECT_EQ(pages->count(), 1);
}

TEST_F(Widgets, TakePathsKeyByKey) {
    const QString path = "\\b\\arc\\blyt\\banner.brlyt";
    QLineEdit& edit = Named<QLineEdit>(*view, "File");
    EXPECT_EQ(edit.text(), path);
    Type(edit, path + "x");
    EXPECT_EQ(window->BrlytData, "");
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(window->BrlytData, German_Japanese_Banner());
    Type(edit, "\\b\\");
    Type(edit, "/dev/null");
    EXPECT_TRUE(desktop.failures.empty() && desktop.messages.empty());

    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(Shown(folder.Text()) + "/" + Layout)});
    for (const Qt::DropActions actions : {Qt::DropActions(Qt::MoveAction), Qt::MoveAction | Qt::CopyAction}) {
        QDragEnterEvent enter(QPoint(5, 5), actions, &dropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view.get(), &enter);
        const bool copies = actions.testFlag(Qt::CopyAction);
        EXPECT_EQ(enter.isAccepted(), copies) << "the file would be deleted where it was";
        if (!copies) continue;
        QDropEvent drop(QPointF(5, 5), actions, &dropped, Qt::LeftButton, Qt::NoModifier);
        drop.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(view.get(), &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    }
    EXPECT_EQ(edit.text(), "/dev/null") << "before the drag has ended";
    QApplication::processEvents();
    EXPECT_EQ(edit.text(), QString("\\") + Layout);
    EXPECT_EQ(window->BrlytData, German_Japanese_Banner());
    desktop.file = u"chosen";
    Press(*view, "Choose a layout file");
    EXPECT_EQ(edit.text(), "chosen");
}

TEST_F(Widgets, KeepTheMainWindowBehindTheOthers) {
    for (int way = 0; way < 2; ++way) {
        Press(*view, "Edit colors");
        auto* colors = Find<ColorWindowView>();
        ASSERT_TRUE(colors);
        EXPECT_FALSE(view->centralWidget()->isEnabled());
        EXPECT_TRUE(colors->isEnabled());
        EXPECT_FALSE(view->close());
        Choose(Named<QComboBox>(*colors, "Select Scheme"), way ? "Current Brlyt" : "Mine");
        if (way) {
            colors->close();
        } else {
            QTest::keyClick(colors, Qt::Key_Escape);
        }
        EXPECT_TRUE(view->centralWidget()->isEnabled());
        EXPECT_EQ(Named<QComboBox>(*view, "Colors").currentText(), way ? "Current Brlyt" : "Mine");
        EXPECT_FALSE(window->ColorWindow);
    }
    Press(*view, "Show and replace");
    auto* editor = Find<TextEditorView>();
    ASSERT_TRUE(editor);
    EXPECT_EQ(editor->windowTitle(), "\"Hardcore\" Manual Text Editor");
    Choose(Named<QComboBox>(*editor, "Entry Name"), "T_Year_GER");
    Type(Named<QLineEdit>(*editor, "Value"), "Erschienen: 1877");
    Press(*editor, "Write the text");
    editor->close();
    EXPECT_EQ(Named<QLineEdit>(*view, "Year").text(), "1877");
    EXPECT_TRUE(view->isWindowModified());
    EXPECT_TRUE(view->close());
}

TEST_F(Widgets, LeaveListsAloneWhenThePersonScrolls) {
    Press(*view, "Edit colors");
    window->cmdHC_Click();
    const auto lists = view->findChildren<QComboBox*>();  // of the other windows, too, which are its children
    EXPECT_EQ(lists.size(), 8);
    for (QComboBox* list : lists) {
        EXPECT_EQ(list->focusPolicy(), Qt::StrongFocus) << "the next letter typed would choose";
        const int before = list->currentIndex();
        for (const int turn : {120, -120}) {
            QWheelEvent wheel({5, 5}, list->mapToGlobal(QPointF(5, 5)), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(list, &wheel);
            EXPECT_EQ(list->currentIndex(), before) << qPrintable(list->accessibleName());
        }
    }
}

TEST_F(Widgets, ScrollColorsOnASmallScreen) {
    Press(*view, "Edit colors");
    auto* colors = Find<ColorWindowView>();
    auto& scrolled = *colors->findChild<QScrollArea*>();
    for (const bool small : {true, false}) {
        colors->resize(small ? QSize(600, 400) : colors->sizeHint());
        QApplication::processEvents();
        EXPECT_EQ(scrolled.horizontalScrollBar()->maximum() > 0, small);
        EXPECT_EQ(scrolled.verticalScrollBar()->maximum() > 0, small);
    }
    EXPECT_FALSE(scrolled.focusPolicy() & Qt::TabFocus);
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
}

/// Every caption of a window, in alphabetical order.
std::string Captions(const QWidget& window) {
    QStringList captions;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const QString caption = widget->property(qobject_cast<const QGroupBox*>(widget) ? "title" : "text").toString();
        const bool input = qobject_cast<const QLineEdit*>(widget) || widget->inherits("ElidedLabel");
        if (!input && !caption.isEmpty() && widget->isVisibleTo(&window)) captions << QString(caption).remove('&');
    }
    captions.sort();
    return captions.join("|").toStdString();
}

TEST_F(Widgets, EditColorsAndPaintThem) {
    Press(*view, "Edit colors");
    auto* colors = Find<ColorWindowView>();
    Press(*colors, "Back1 0");
    Type(Named<QLineEdit>(*colors, "Red"), "300");
    Type(Named<QLineEdit>(*colors, "Green"), "17");
    Type(Named<QLineEdit>(*colors, "Blue"), "18");
    Press(*colors, "Give the box");
    EXPECT_NE(Captions(*colors).find("|Back1 0|"), std::string::npos) << "which box is being edited";
    desktop.answer = u"New";
    Press(*colors, "Save all colors");
    EXPECT_EQ(Named<QComboBox>(*view, "Colors").count(), 3);
    EXPECT_EQ(Named<QComboBox>(*view, "Colors").currentIndex(), -1);
    EXPECT_NE(folder.Read("schemes/New.vccs").find(" 255  17  18 "), std::string::npos);

    PreviewView preview(window->ColorWindow->preview);
    preview.resize(preview.sizeHint());
    const QImage image = preview.grab().toImage();
    const auto pixel = [&](double x, double y) {
        return image.pixelColor(static_cast<int>(x / 15), static_cast<int>((y - 2400) / 15));
    };
    const auto box = [&](std::u16string_view element, std::size_t i) {
        return Shown_Color(window->ColorWindow->pic[Element_Index(element)][i].Value());
    };
    const QColor outside = pixel(100, 9000), paper = box(u"Back1", 0);
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
                             {240, 2500, QColor(0x60, 0x60, 0x60), outside},
                             {11355, 2500, outside, QColor(0x60, 0x60, 0x60)}}) {
        EXPECT_EQ(pixel(edge.x, edge.y), edge.inside) << edge.x << "," << edge.y;
        EXPECT_EQ(pixel(edge.x - 15, edge.y), edge.beyond) << edge.x << "," << edge.y;
    }
    EXPECT_EQ(pixel(5800, 6000), box(u"VCPic", 1));
    EXPECT_EQ(pixel(400, 9700), outside);

    desktop.color = Make_Color(1, 2, 3);
    Press(*colors, "Color being edited");
    EXPECT_EQ(Named<QLineEdit>(*colors, "Blue").text(), "3");
    const Color before = window->ColorWindow->pic[0][0].Value();
    Choose(Named<QComboBox>(*colors, "Select Scheme"), "Mine");
    EXPECT_NE(window->ColorWindow->pic[0][0].Value(), before);
    folder.Write("other.brlyt", Layout_File({Material_Section({{"PFLine", {7, 8, 9, 0}}})}));
    Type(Named<QLineEdit>(*colors, "Load From brlyt"), "\\other.brlyt");
    Press(*colors, "Read the colors");
    EXPECT_EQ(window->ColorWindow->pic[0][0].Value(), Make_Color(7, 8, 9));
}

TEST_F(Widgets, AreCaptionedAsTheyShouldBe) {
    window->lblLoaded.Set(u"");
    EXPECT_EQ(Captions(*view),
              "....|Color Editor And Preview|Colors:|ESRB Rating:|File:|Game Info|Game Picture...|Hardcore Manual Text "
              "Editor|Logo:|"
              "Name:|No Dashes!!  (E.g.  Type \"2\" for \"1-2\")|Padding (fixes corrupted images)|Players:|"
              "Region Force:|Save Changes|Set|Set|Set|Set|Set|Set All|Set All|Set All|System:|Year:");
    Press(*view, "Edit colors");
    EXPECT_EQ(Captions(*Find<ColorWindowView>()),
              "Back0|Back1|Back2|Back3|Back4|BackMask1|BackMask2|Get Color Scheme|Load From brlyt:|PFLINE|PlayLine|"
              "SaveScheme|Select Scheme:|Select a Color by Clicking on it and edit it to the right.  Click the \"Set\" "
              "button to update.|Set|Shade|T_ESRB|T_PF|T_Play|T_VCTitle|T_Year|VCPic|VCPicBase|VCPicSha|YearLine");
    window->cmdHC_Click();
    EXPECT_EQ(Captions(*Find<TextEditorView>()), "Entry Name:|Set|Value:");
    for (const auto& [name, bold] :
         {std::pair{"Name", true}, {"System", true}, {"Year", true}, {"Players", true}, {"ESRB Rating", false}}) {
        const QLineEdit* field = &Named<QLineEdit>(*view, name);
        EXPECT_EQ(field->font().bold(), bold) << name;
        EXPECT_EQ(field->font().pointSizeF(), 8.25) << name;
        EXPECT_EQ(field->alignment().testFlag(Qt::AlignHCenter), std::string(name) == "Players");
    }
}

TEST_F(Widgets, KeepTextsAsTheyAre) {
    for (const std::u16string text : {u"\xFEFF"
                                      u"a",
                                      u"\xFFFE"
                                      u"a",
                                      u"\xD800 \xDC00", u"\u65E5^"}) {
        window->info.txtName.Set(text);
        QLineEdit& edit = Named<QLineEdit>(*view, "Name");
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_End);
        QTest::keyClicks(&edit, "x");
        EXPECT_EQ(Hex(To_Utf8(window->info.txtName.Text())), Hex(To_Utf8(text + u"x")));
    }
}

TEST_F(Widgets, NameEveryInput) {
    Press(*view, "Edit colors");
    Press(*view, "Show and replace");  // disabled: stays closed
    EXPECT_FALSE(window->TextEditor);
    window->cmdHC_Click();
    for (QWidget* top : {static_cast<QWidget*>(view.get()), static_cast<QWidget*>(Find<ColorWindowView>()),
                         static_cast<QWidget*>(Find<TextEditorView>())}) {
        int inputs = 0;
        for (QWidget* widget : top->findChildren<QWidget*>()) {
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            const bool input = button != nullptr || qobject_cast<QLineEdit*>(widget) != nullptr ||
                               qobject_cast<QComboBox*>(widget) != nullptr;
            if (!input || !widget->isVisibleTo(top)) continue;
            ++inputs;
            const bool named = !widget->accessibleName().isEmpty() || (button && button->text().size() > 1);
            EXPECT_TRUE(named) << widget->metaObject()->className() << " in " << qPrintable(top->windowTitle());
            EXPECT_TRUE(button == nullptr || !button->toolTip().isEmpty()) << qPrintable(button->text());
        }
        EXPECT_GE(inputs, 3);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const TempFolder settings;  // the windows' positions of this person must neither matter nor change
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_CONFIG_HOME", settings.Path().string().c_str());
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
