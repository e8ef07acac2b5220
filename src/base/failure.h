#pragma once

#include <optional>
#include <string>

namespace bannersmith {

/// Why something could not be done: what it concerns (a file as the user named it, or a control)
/// and the reason, a short text without a full stop.
struct Failure {
    std::u16string subject;
    std::string reason;
};

/// Empty: done. Otherwise nothing was done, for the reason given.
using Outcome = std::optional<Failure>;

}  // namespace bannersmith
