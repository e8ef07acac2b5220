// One wish about a banner, as a value. Command lines, recipes and buttons are all read into these.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <variant>

#include "colors/scheme.h"
#include "gameinfo/boxes.h"
#include "texture/fitting.h"

namespace bannersmith {

/// A field in the wording of one language; the code "NONE" stands for the neutral box.
struct SetField {
    Field field;
    std::u16string code;
    std::u16string value;
};

/// A field in every language and in the neutral box, each in its wording.
struct SetFieldEverywhere {
    Field field;
    std::u16string value;
};

/// The raw text of any text box, "^" for a line break.
struct WriteBox {
    std::u16string name;
    std::u16string text;
    bool exact = false;  ///< not a box whose name only begins with that one
};

/// The colours of a scheme file.
struct ApplyScheme {
    std::u16string file;
};

/// The colours of some elements. Other than a scheme it also colours the texts that serve all
/// languages or Korean alone.
struct SetColors {
    std::map<std::size_t, ColorPair> pairs;  ///< by the place in `Elements`
};

/// A texture file, or a picture that becomes a texture, in the place of the banner's logo texture,
/// the first one whose name begins with "my_Back". A banner without it is left alone.
struct ReplaceLogo {
    std::u16string file;
};

/// A picture, or the one that a texture file shows, in the place of the game's: the textures whose
/// names begin with "VCPic", and in the channel's icon with "IconVCPic". They keep size and format.
struct ReplacePicture {
    std::u16string file;
    Fitting fitting = {};
};

/// A language code whose items the save makes of those that the banner has; "NONE" for none.
struct ForceRegion {
    std::u16string code;
};

/// What `Read_Padding` takes, read by the save. Without this edit a save fills the file up to the
/// length that it had.
struct SetPadding {
    std::u16string text;
};

/// A line of the name that the console's menu shows in a language, one of `NameLanguages`. Only an
/// archive with an IMET header has names.
struct SetChannelName {
    std::u16string code;
    std::size_t line;
    std::u16string text;
};

/// The first line of the name in each language that has one.
struct SetChannelNames {
    std::u16string text;
};

/// Any of them.
using Edit =
    std::variant<SetField, SetFieldEverywhere, WriteBox, ApplyScheme, SetColors, ReplaceLogo,
                 ReplacePicture, ForceRegion, SetPadding, SetChannelName, SetChannelNames>;

}  // namespace bannersmith
