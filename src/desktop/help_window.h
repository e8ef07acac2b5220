#pragma once

class QWidget;

namespace bannersmith {

/// Shows the manual in a window of its own.
void Show_Manual(QWidget& parent);

/// Tells what this program is, and which version.
void Show_About(QWidget& parent);

}  // namespace bannersmith
