#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <string_view>

#include "forms/say.h"

namespace bannersmith {

/// The same code units as the toolkit's text, and back.
inline QString Shown(std::u16string_view text) {
    return QStringView(text.data(), static_cast<qsizetype>(text.size())).toString();
}

inline std::u16string Taken(const QString& text) {
    return text.toStdU16String();
}

/// What `Say` says.
inline QString Said(const char* text) {
    return Shown(Say(text));
}

/// `pattern` with the values in the places of "%1" and "%2".
inline QString Filled(const QString& pattern, const QString& first, const QString& second = {}) {
    return Shown(Filled(Taken(pattern), Taken(first), Taken(second)));
}

}  // namespace bannersmith
