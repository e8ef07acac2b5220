#pragma once

#include <QFont>
#include <string_view>

namespace bannersmith {

/// The console's own font for what fields hold.
inline constexpr std::u16string_view FieldFont = u"Wii NTLG PGothic Regular";

/// A font of the family called `family` where it is installed, else of the first installed family
/// with Japanese characters: the proportional gothics in front, the toolkit's own choice last.
QFont Japanese_Font(std::u16string_view family, double points);

}  // namespace bannersmith
