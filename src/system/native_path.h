#pragma once

#include <filesystem>
#include <string_view>

namespace bannersmith {

/// `path` as the file system takes it. A path with a zero code unit names nothing and becomes
/// empty.
std::filesystem::path Native_Path(std::u16string_view path);

}  // namespace bannersmith
