// The sample banners: structurally complete layouts of a made-up game.
#pragma once

#include <string>
#include <vector>

#include "colors/scheme.h"

namespace bannersmith {

/// A banner with every text in seven languages, a group for each language, and a closing group.
std::string Seven_Language_Banner();

/// A banner whose four texts serve all languages, in Japanese wording.
std::string Neutral_Banner();

/// A banner with German and Japanese texts only.
std::string German_Japanese_Banner();

/// A banner in English whose last section is the empty root group.
std::string Banner_Without_Closing_Group();

/// The same texts as the first in the banner of a channel, whose textures have names as channels
/// have them, and the channel's icon.
std::string Channel_Banner();
std::string Channel_Icon();

/// A colour scheme of our own with its name.
struct NamedScheme {
    std::u16string name;
    Scheme scheme;
};

/// The schemes that come with the program, sorted by name.
std::vector<NamedScheme> Shipped_Schemes();

}  // namespace bannersmith
