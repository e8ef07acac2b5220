#pragma once

#include "banner/banner.h"
#include "base/result.h"
#include "still/still.h"

namespace bannersmith::still {

/// What a part of a banner's channel is drawn from, edits included: its layout, its textures and
/// the animations that the menu takes. Where there is one called as the part, "banner.brlan", that
/// one goes on for ever; else "banner_Start.brlan" plays once and "banner_Loop.brlan" goes on.
/// Fails where the channel has no such part, or none can be found from the banner's file.
Result<PartFiles> Files_For(const Banner& banner, PartKind part);

}  // namespace bannersmith::still
