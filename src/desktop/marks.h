// How a control that has a mark stands out.
#pragma once

#include <QIcon>
#include <QWidget>
#include <string>

namespace bannersmith {

/// Shows a control's mark on its widget, or that it has none: by another ground, and in words in
/// the tooltip and in what a screen reader says.
void Show_Mark(QWidget& widget, const std::u16string& mark);

/// A dot for an entry that stands out.
QIcon Mark_Icon();

}  // namespace bannersmith
