// The letters that stand in for those of the console's own font, which nobody may hand on.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "base/result.h"
#include "still/sampling.h"

namespace bannersmith::still {

/// A letter as an intensity texture, with an empty texel around it. Where it lies is told in texels
/// from the pen on the baseline, y up.
struct Glyph {
    std::unique_ptr<Texels> texels;  ///< null for one without ink
    double left = 0, top = 0;
};

/// Fonts that complete each other: each letter is taken from the first file that has it. Not to be
/// used by two threads at once.
class Font {
 public:
    /// The fonts that come with the programs, in the folder "fonts" beside them, behind a file of
    /// the user's own, which may be empty. A file that comes with the programs is passed over where
    /// it is missing; the user's own that cannot be read is a failure. A file is read when a letter
    /// is looked for in it.
    static Result<Font> Open(const std::u16string& program_folder, const std::u16string& own);

    /// The same for a font file's bytes alone; fails, without a subject, where they are none.
    static Result<Font> From_Bytes(std::string bytes);

    Font(Font&&) noexcept;
    Font& operator=(Font&&) noexcept;
    ~Font();

    /// Whether any file can be read.
    bool Has_Letters();

    /// How far the pen moves for a letter, in widths of an em.
    double Advance(char32_t letter);

    /// The letter with an em of `width` x `height` texels, above 0; what is larger than can be made
    /// is made smaller. Valid until the next call.
    const Glyph& Take(char32_t letter, double width, double height);

    /// The longest side of an em.
    static constexpr double LargestEm = 512;

 private:
    struct Faces;
    explicit Font(std::unique_ptr<Faces> faces);

    std::unique_ptr<Faces> faces_;
};

}  // namespace bannersmith::still
