// How what became of a shelf is told.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

#include "exchange/shelf.h"

namespace bannersmith {

/// The lines of an outcome that a person reads on standard output, each ended: "FILE: saved, 3
/// changes", with `diff` each change below it. Empty for a failed one.
std::string Outcome_Lines(const Outcome& outcome, bool diff);

/// The lines for standard error: the failure, or what was odd.
std::string Trouble_Lines(const Outcome& outcome);

/// The outcome as a JSON object, in ASCII.
std::string Outcome_Json(const Outcome& outcome);

/// A line that shows how far a run is: "128 of 1000, 450 a second, 2 s left".
std::string Progress_Line(std::size_t done, std::size_t all, std::chrono::duration<double> elapsed);

}  // namespace bannersmith
