// What the file routines of each system share.
#pragma once

#include <cstdint>
#include <filesystem>
#include <new>
#include <string>

#include "base/result.h"
#include "system/native_path.h"

namespace bannersmith {

/// In bytes. A layout's length field ends at 4 GiB; no banner comes near a part of that.
constexpr std::int64_t LargestFile = std::int64_t{1} << 30;

/// A reason whose subject is filled in where it is known.
inline Failure Because(std::string reason) {
    return {{}, std::move(reason)};
}

/// What `steps` returns for `path` as the file system takes it. A failure becomes one of `path`,
/// and so does a lack of memory.
template <typename Steps>
auto Run_Steps(const std::u16string& path, Steps steps) -> decltype(steps(Native_Path(path))) {
    try {
        return steps(Native_Path(path)).About(path);
    } catch (const std::bad_alloc&) {
        return Failure{path, "Not enough memory"};
    }
}

}  // namespace bannersmith
