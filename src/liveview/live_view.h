// The banner as the console will draw it, beside the controls that change it.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "banner/banner.h"
#include "forms/controls.h"
#include "still/part.h"

namespace bannersmith {

/// What the view shows.
struct LiveSource {
    const Banner& banner;
    std::function<std::vector<Edit>()> unset;  ///< what was typed or chosen and not yet set
    std::function<std::u16string()> language;  ///< the code of the one that is worked on
    std::u16string program_folder;             ///< where the fonts are
};

/// The view as state and events. Nothing is drawn before `Draw`, which a view calls when it has
/// nothing else to do, so that many changes make one picture.
class LiveView {
 public:
    /// What `source` refers to, and `desktop`, must outlive this object.
    LiveView(LiveSource source, Desktop& desktop);
    LiveView(const LiveView&) = delete;
    LiveView& operator=(const LiveView&) = delete;

    /// What of the banner is shown: the language that is worked on, or one of its own; the banner
    /// or the icon; 4:3 or 16:9.
    DropDownList cmbLanguage, cmbPart, cmbWidth;
    PictureBox picture;  ///< no texels where there is none
    Label lblPlay;       ///< what the button does: "Play" or "Stop"
    Label lblAbout;      ///< what the picture lacks
    Event Wanted;        ///< `Draw` would draw something else

    /// Another banner was loaded, or textures of it were replaced.
    void Take_Banner();
    /// Something was typed, chosen or set.
    void Take_Changes();

    /// Draws what is shown now, if that may have changed.
    void Draw();

    /// Plays the animation from its beginning, or stops it and shows all in its place.
    void Play_Click();
    bool Is_Playing() const { return is_playing_; }
    /// Goes to the moment so many seconds behind the beginning.
    void Play_To(double seconds);

    /// Lets the user name a file, and writes the picture there as PNG.
    void Save_Click();

    /// What could not be drawn, as outlines with their reasons, by `Region::missing`.
    const std::vector<still::Region>& Regions() const { return regions_; }
    /// What lies at a place of the picture, topmost first, a line each; the place in pixels.
    std::u16string What_Is_At(float x, float y) const;
    /// The names of the materials there, topmost first.
    std::vector<std::u16string> Materials_At(float x, float y) const;

 private:
    still::PartKind Part() const;
    bool Is_Own_Part() const;
    void Read_Part();
    void Fill_Languages();
    std::string Layout_Now() const;
    void Show_Nothing(const std::u16string& why);
    void Want();

    LiveSource source_;
    Desktop& desktop_;
    std::optional<still::Still> still_;
    std::optional<still::Font> font_;
    std::vector<still::Region> regions_;
    /// What has changed since it was drawn last: the banner, its texts and colours, or anything.
    bool has_other_banner_ = true, has_other_layout_ = true, has_changes_ = true;
    bool is_playing_ = false;
    std::size_t frame_ = 0;
};

}  // namespace bannersmith
