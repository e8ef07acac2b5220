#include "still/textures.h"

#include "texture/tpl.h"

namespace bannersmith::still {

Textures::Entry& Textures::Read(const std::string& name) {
    const auto known = known_.find(name);
    if (known != known_.end()) return known->second;
    Entry& entry = known_[name];
    const auto bytes = read_ ? read_(name) : std::nullopt;
    if (!bytes) {
        entry.fault = "texture " + name + " is missing";
        return entry;
    }
    auto picture = Decode_Texture(*bytes);
    if (picture)
        entry.picture = std::move(*picture);
    else
        entry.fault = "texture " + name + ": " + picture.Why().reason;
    return entry;
}

const Texels* Textures::Find(const std::string& name, Wrap s, Wrap t) {
    Entry& entry = Read(name);
    if (!entry.fault.empty()) return nullptr;
    const std::size_t kind = (Texels::Goes_Around(s) ? 1 : 0) + (Texels::Goes_Around(t) ? 2 : 0);
    auto& ready = entry.ready[kind];
    if (!ready) ready = std::make_unique<Texels>(entry.picture, s, t);
    return ready.get();
}

}  // namespace bannersmith::still
