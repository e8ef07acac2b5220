#include "desktop/game_info_view.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QToolButton>
#include <array>

#include "desktop/binding.h"
#include "desktop/fields.h"
#include "desktop/languages.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

namespace bannersmith {

namespace {

/// The columns of the frame "Game Info". Each kind of button has one of its own.
enum Column { caption, field, selector, set, set_all, columns };

QLabel* Wrapped(const QString& text) {
    auto* label = new QLabel(text);
    QFont small = label->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    label->setFont(small);
    label->setWordWrap(true);
    return label;
}

/// The frame, row by row.
class GameInfoFrame : public QGroupBox {
 public:
    GameInfoFrame(Form1& window, MainMenu& menu)
        : QGroupBox("Game Info"), window_(window), menu_(menu), grid_(*new QGridLayout(this)) {
        GameInfo& info = window.info;
        Add_Field(0, "&Name:", info.txtName, true, Said("The game's name; ^ is a line break"));
        Add_Selector(0, Said("Language of the name"), Field::title);
        Add_Set(0, 0, Said("Write the name for this language"));
        Add_Set_All(0, 0, Said("Write the name for every language"));
        Add_Field(1, "S&ystem:", info.txtSystem, true, Said("The console's name"));
        grid_.addWidget(Button("Set", Said("Write the console's name"), 3), 1, set);
        Add_Field(2, "Y&ear:", info.txtYear, true, Said("The year of the release"));
        Add_Selector(2, Said("Language of the year"), Field::year);
        Add_Set(2, 1, Said("Write the year for this language"));
        Add_Set_All(2, 1, Said("Write the year for every language"));
        Add_Players(3);
        Add_Field(4, "ESRB &Rating:", info.txtESRB, false, Said("The rating: E, T, M..."));
        Add_Selector(4, Said("Language of the rating"), Field::rating);
        Add_Set(4, 2, Said("Write the rating for this language"));
        Add_Set_All(4, 4, Said("Write the rating for every language"));
        grid_.addWidget(Make_Button("Hardcore Manual Text Editor",
                                    Said("Show and replace the text of any text box"), *menu.texts),
                        5, 0, 1, columns);
        Add_Padding(6);
        Add_Looks(7);
        grid_.setColumnStretch(field, 1);
    }

 private:
    void Add_Field(int row, const QString& name, TextBox& box, bool bold, const QString& about) {
        constexpr int Narrowest = 120;
        QLineEdit* edit = Make_Field(box, bold);
        edit->setMinimumWidth(Narrowest);
        edit->setToolTip(about);
        grid_.addWidget(Make_Label(name, edit), row, caption);
        grid_.addWidget(edit, row, field);
    }

    void Add_Selector(int row, const QString& name, Field list) {
        constexpr int Letters = 4;  // of a code
        auto* combo = new ListBox;
        combo->setMinimumContentsLength(Letters);
        combo->setIconSize({12, 12});  // of a mark
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        Bind(*combo, window_.info.cmbRegion[static_cast<std::size_t>(list)]);
        combo->Speak_Entries([](const QString& code) { return Language_In_Words(Taken(code)); });
        combo->setAccessibleName(name);
        combo->setToolTip(Said("The language that is shown"));
        grid_.addWidget(combo, row, selector);
    }

    /// Buttons by their indexes.
    void Add_Set(int row, std::int16_t index, const QString& tooltip) {
        grid_.addWidget(
            Make_Button("Set", tooltip, {}, [this, index] { window_.cmdSet_Click(index); }), row,
            set);
    }
    void Add_Set_All(int row, std::int16_t index, const QString& tooltip) {
        grid_.addWidget(Button("Set All", tooltip, index), row, set_all);
    }
    QPushButton* Button(const QString& name, const QString& tooltip, std::int16_t index) {
        return Make_Button(name, tooltip, {}, [this, index] { window_.cmdSetAll_Click(index); });
    }

    /// The number of players needs little room and has no language of its own.
    void Add_Players(int row) {
        constexpr int Width = 56;
        QLineEdit* narrow = Make_Field(window_.info.txtPlayers, true);
        narrow->setAlignment(Qt::AlignCenter);
        narrow->setFixedWidth(Width);
        narrow->setToolTip(Said("The highest number of players"));
        grid_.addWidget(Make_Label("&Players:", narrow), row, caption);
        grid_.addWidget(narrow, row, field);
        grid_.addWidget(Button("Set", Said("Write the number of players for every language"), 2),
                        row, set);
        grid_.addWidget(Wrapped("No Dashes!!  (E.g.  Type \"2\" for \"1-2\")"), row, set_all);
    }

    void Add_Padding(int row) {
        auto* padding = new QLineEdit;
        padding->setFixedWidth(padding->fontMetrics().horizontalAdvance("+2684354560"));
        padding->setToolTip(Said("Length to fill the file up to; +N appends N bytes; 0 for none"));
        Bind(*padding, window_.txtPad);
        auto* boxes = new QHBoxLayout;
        boxes->addWidget(Make_Label("Paddin&g (fixes corrupted images)", padding));
        boxes->addWidget(padding);
        boxes->addStretch();
        grid_.addLayout(boxes, row, 0, 1, columns);
    }

    /// What a save does beside writing the texts.
    void Add_Looks(int row) {
        Add_Choice(row, "&Colors:", window_.cmbFileList,
                   Said("The color scheme that the next save applies"), Said("Choose a scheme"));
        Add_Wide(row, Make_Button("Color Editor And Preview",
                                  Said("Edit colors and see the banner"), *menu_.colors));
        Add_Choice(row + 1, "&Logo:", window_.cmbLogo,
                   Said("The logo texture that the next save puts into the banner"), {});
        Add_Wide(row + 1,
                 Make_Button(Said("Game Pic&ture..."),
                             Said("See, replace and export the game's picture"), *menu_.picture));
        Add_Choice(row + 2, "Region F&orce:", window_.cmbForce,
                   Said("The language that the next save lets another one answer to"), {});
        Add_Wide(row + 2,
                 Make_Button(Said("All Languages..."),
                             Said("The texts of all languages in one table"), *menu_.languages));
    }

    void Add_Wide(int row, QPushButton* button) {
        grid_.addWidget(button, row, selector, 1, columns - selector);
    }

    /// A list, and behind it the way to take back what stays chosen for another file.
    void Add_Choice(int row, const QString& name, DropDownList& list, const QString& tooltip,
                    const QString& when_none) {
        auto* combo = new ListBox;
        combo->setToolTip(tooltip);
        combo->setPlaceholderText(when_none);
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        Bind(*combo, list);
        auto* take_back = new QToolButton;
        take_back->setText("\u2715");
        take_back->setAccessibleName(Said("Do not apply"));
        take_back->setAccessibleDescription(Said("Take back what was chosen for another file"));
        take_back->setToolTip(Said("Take back what was chosen for another file"));
        take_back->setVisible(false);
        connect(take_back, &QToolButton::clicked,
                [this, &list] { window_.Take_Back_Choice(list); });
        list.Shown += [take_back, &list] { take_back->setVisible(!list.Mark().empty()); };
        auto* boxes = new QHBoxLayout;
        boxes->setSpacing(2);
        boxes->addWidget(combo, 1);
        boxes->addWidget(take_back);
        grid_.addWidget(Make_Label(name, combo), row, caption);
        grid_.addLayout(boxes, row, field);
    }

    Form1& window_;
    MainMenu& menu_;
    QGridLayout& grid_;
};

}  // namespace

QWidget* Make_Game_Info(Form1& window, MainMenu& menu) {
    return new GameInfoFrame(window, menu);
}

QWidget* Make_Channel_Names(Form1& window) {
    auto* page = new QGroupBox(Said("Channel names"));
    auto* grid = new QGridLayout(page);
    grid->addWidget(Wrapped(Said("Up to 20 characters a line, as the console's menu shows them")),
                    0, 1, 1, 2);
    int row = 1;
    for (std::size_t language = 0; language < NameLanguages.size(); ++language, ++row) {
        const QString code = Shown(std::u16string(NameLanguages[language]));
        grid->addWidget(new QLabel(code + ":"), row, 0);
        for (std::size_t line = 0; line < NameLines; ++line) {
            QLineEdit* edit = Make_Field(window.names.txtNames[language][line], false);
            edit->setAccessibleName(Filled(Said("%1, line %2"), code, QString::number(line + 1)));
            edit->setToolTip(Language_In_Words(NameLanguages[language]));
            edit->setMinimumHeight(edit->sizeHint().height());  // the window grows instead
            grid->addWidget(edit, row, 1 + static_cast<int>(line));
        }
    }
    grid->addWidget(Make_Button("Set", Said("Write the names that differ"), {},
                                [&window] { window.cmdSetNames_Click(); }),
                    row, 1, 1, 2);
    return page;
}

}  // namespace bannersmith
