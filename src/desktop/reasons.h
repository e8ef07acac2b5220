#pragma once

#include <QString>
#include <string>

namespace bannersmith {

/// A failure's reason in the user's language; the reason itself where nobody has translated it.
QString Reason_In_Words(const std::string& reason);

}  // namespace bannersmith
