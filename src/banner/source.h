// Where a banner comes from and where it is saved.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"

namespace bannersmith {

/// A layout file, with its textures in the folder "timg" that lies beside the layout's folder.
class FolderSource {
 public:
    FolderSource() = default;

    /// `path` leads to the layout file, as the file routines take it; `name` is how failures call
    /// it.
    FolderSource(std::u16string path, std::u16string name)
        : path_(std::move(path)), name_(std::move(name)) {}
    explicit FolderSource(const std::u16string& path) : FolderSource(path, path) {}

    const std::u16string& Path() const { return path_; }
    const std::u16string& Name() const { return name_; }

    /// The bytes of the layout file. What would be destroyed by an edit, an archive or a program,
    /// is refused.
    Result<std::string> Read() const;

    /// Whether the file holds other bytes than `as_read`. One that is no longer there does not.
    bool Holds_Other(std::string_view as_read) const;

    /// The path of the first texture whose name begins with `beginning`; nothing where there is no
    /// such texture, no folder for it, or nothing that lies beside the layout's folder, which is so
    /// in a root folder. Fails where that cannot be told, and for a layout whose path names no
    /// folder.
    Result<std::optional<std::u16string>> Find_Texture(std::u16string_view beginning) const;

 private:
    std::u16string path_, name_;
};

}  // namespace bannersmith
