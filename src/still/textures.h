#pragma once

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "still/sampling.h"
#include "texture/picture.h"

namespace bannersmith::still {

/// The bytes of a texture, by the name that a layout has for it; nothing where there is none.
using TextureReader = std::function<std::optional<std::string>(const std::string& name)>;

/// The textures of a part of a channel, each read once and made ready to be drawn.
class Textures {
 public:
    explicit Textures(TextureReader read) : read_(std::move(read)) {}

    /// The texture with the border for its wraps; null where it is missing or broken.
    const Texels* Find(const std::string& name, Wrap s, Wrap t);

    /// Why there is no such texture; empty where there is one.
    const std::string& Fault(const std::string& name) { return Read(name).fault; }

 private:
    struct Entry {
        Picture picture;
        std::string fault;
        std::array<std::unique_ptr<Texels>, 4> ready;
    };
    Entry& Read(const std::string& name);

    TextureReader read_;
    std::map<std::string, Entry> known_;
};

}  // namespace bannersmith::still
