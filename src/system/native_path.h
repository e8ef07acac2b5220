#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace bannersmith {

/// `path` as the file system takes it. A path with a zero code unit names nothing and becomes
/// empty.
std::filesystem::path Native_Path(std::u16string_view path);

/// The text of a path that the file system has told.
std::u16string Text_Of(const std::filesystem::path& path);

}  // namespace bannersmith
