#pragma once

#include "desktop/second_window.h"
#include "languagetable/language_table.h"

class QLabel;
class QTableView;

namespace bannersmith {

/// The view of the table of all languages.
class LanguageTableView : public SecondWindow {
 public:
    LanguageTableView(LanguageTable& table, std::function<void()> closed, QWidget* parent);

 private:
    void Show_Wording(const QString& typed);
    void Paste();

    LanguageTable& table_;
    QTableView* cells_;
    QLabel* wording_;
};

}  // namespace bannersmith
