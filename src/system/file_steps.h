// What the file routines of each system share: steps of which the first failure ends the whole.
#pragma once

#include <cstdint>
#include <filesystem>
#include <new>
#include <string>

#include "base/failure.h"
#include "system/native_path.h"

namespace bannersmith {

/// Thrown by a step and caught by `Run_Steps`: why the step failed.
struct StepFailed {
    std::string reason;
};

/// In bytes. A layout's length field ends at 4 GiB; no banner comes near a part of that.
constexpr std::int64_t LargestFile = std::int64_t{1} << 30;

/// Calls `steps` with `path` as the file system takes it. A step that fails, the file system's own
/// errors and a lack of memory become the failure of `path`.
template <typename Steps>
Outcome Run_Steps(const std::u16string& path, Steps steps) {
    try {
        steps(Native_Path(path));
        return std::nullopt;
    } catch (const StepFailed& failed) {
        return Failure{path, failed.reason};
    } catch (const std::filesystem::filesystem_error& failed) {
        return Failure{path, failed.code().message()};
    } catch (const std::bad_alloc&) {
        return Failure{path, "Not enough memory"};
    }
}

}  // namespace bannersmith
