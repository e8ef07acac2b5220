#pragma once

namespace bannersmith {

/// Takes the memory that a run on an ordinary banner needs from the system in one call. Page by
/// page, as it is touched, it can cost a short run more time than all of its work. Does nothing on
/// systems that have no such call.
void Take_Memory_At_Once();

}  // namespace bannersmith
