#pragma once

#include <QComboBox>
#include <functional>

namespace bannersmith {

/// Opens the entries of a long list below it, with a line above them: what is typed there leaves
/// the entries that hold it. `chosen` runs with the index of the entry that the user takes; Escape
/// takes none.
void Show_Search(QComboBox& box, std::function<void(int index)> chosen);

}  // namespace bannersmith
