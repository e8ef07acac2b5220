// The languages of the windows, and those of a banner in words.
#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <string_view>

namespace bannersmith {

/// The languages that the windows can speak: codes (empty for the system's), and how they call
/// themselves.
QList<QPair<QString, QString>> Window_Languages();

/// Lets the windows speak the language that the user chose, or the system's, as far as the
/// program's folder has it. To be called before any window is made, and again for a choice to take
/// effect.
void Speak_Users_Language();

/// The language that a code of the banner stands for, in words; empty for others.
QString Language_In_Words(std::u16string_view code);

}  // namespace bannersmith
