// How a failure is worded for people.
#pragma once

#include <string>
#include <string_view>

#include "base/result.h"

namespace bannersmith {

/// A part of a message as UTF-8: control characters are escaped, and what is too long to be read is
/// cut.
std::string Readable(std::u16string_view text);

/// A failure as a line of a terminal, "SUBJECT: REASON", without the line's end.
std::string One_Line(const Failure& failure);

}  // namespace bannersmith
