#pragma once

#include <QPalette>

namespace bannersmith {

/// The colours of a dark desktop, as pictures and tests of the windows have them.
inline QPalette Dark_Palette() {
    QPalette palette;
    const QColor window(0x2B, 0x2D, 0x30), base(0x1E, 0x1F, 0x22), text(0xE6, 0xE6, 0xE6);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, base);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::PlaceholderText, QColor(0xA0, 0xA4, 0xA8));
    palette.setColor(QPalette::Highlight, QColor(0x2A, 0x5F, 0xAB));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x8A, 0xB4, 0xF8));
    return palette;
}

}  // namespace bannersmith
