#pragma once

#include <string>
#include <string_view>

namespace bannersmith {

/// The MD5 digest of `bytes` (RFC 1321), 16 bytes. Our own code, because no library of it can be
/// had for all systems that the programs are built for.
std::string Md5(std::string_view bytes);

}  // namespace bannersmith
