// A banner as a value: one layout, where it came from, and what was done to it.
#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "banner/edit.h"
#include "banner/source.h"
#include "base/result.h"
#include "system/replace_files.h"

namespace bannersmith {

/// What a save writes.
struct SavePlan {
    /// Which files get which bytes: the textures that are replaced, in the order of their edits,
    /// then the layout; or the archive that has them all.
    std::vector<NewContents> files;
    std::vector<NewContents> replaced;  ///< the textures among them as they are now
    std::string packed_layout;          ///< the layout in the archive; empty for a layout file
    bool has_logo = false;              ///< whether the logo is replaced
    std::vector<std::string> notices;  ///< what to say of it behind "Saved, ": "but the scheme ..."

    /// The layout with its padding.
    std::string_view Layout() const {
        return packed_layout.empty() ? std::string_view(files.back().bytes) : packed_layout;
    }
};

/// One banner. Nothing of it is shared: different banners can be used by different threads. A lack
/// of memory is a failure of the routine, unless it says otherwise.
class Banner {
 public:
    /// Bytes of memory that the history of a banner takes at most.
    static constexpr std::size_t MostHistory = std::size_t{32} << 20;

    /// No banner: it has no bytes, and no edit gives it any.
    Banner() = default;

    /// Reads the layout and cuts its padding. `history`: how many bytes of what edits replaced may
    /// be kept for `Undo`; 0 keeps nothing. The failure has the name of the source.
    static Result<Banner> Load(BannerSource source, std::size_t history = MostHistory);

    /// The same for bytes that were read already. Throws where memory lacks.
    static Banner From_Bytes(std::string file, BannerSource source = {},
                             std::size_t history = MostHistory);

    /// The layout, without padding behind its end. Stays at its place while the object does.
    const std::string& Bytes() const { return state_.layout; }

    /// The code of the language in whose wording the neutral boxes are composed, as it was found
    /// when the banner was loaded; empty for a banner with a name of its own for some language.
    const std::u16string& Neutral() const { return neutral_; }

    /// Where it was loaded from.
    const BannerSource& Source() const { return source_; }
    bool Is_Loaded() const { return !source_.Path().empty(); }

    /// The layout as it was loaded, with its padding.
    const std::string& On_Disk() const { return on_disk_; }

    /// The lines that the console's menu shows; nothing for a banner that is in no archive with a
    /// header for them.
    std::optional<ChannelNames> Names() const;

    /// The picture of the game as it is now, edits included: the banner's, or the icon's. The
    /// failure has the name of the source or of the texture.
    Result<Picture> Game_Picture() const;

    /// The files of a part of the channel, see `BannerSource`, as they are now, edits included.
    std::map<std::string, std::string> Files_Of_Part(bool of_other) const;

    /// The paths of the textures that edits have replaced, as `BannerSource` tells them.
    std::vector<std::u16string> Replaced_Textures() const;

    /// The one way to change a banner. What fails leaves it as it was. A text for a box that the
    /// layout lacks, and a colour without its material, are passed over. Several edits are one step
    /// of the history, and all or none. `what`: how that step is called.
    Result<> Apply(const Edit& edit, const std::u16string& what = {}) {
        return Apply(std::span(&edit, 1), what);
    }
    Result<> Apply(std::span<const Edit> edits, const std::u16string& what = {});

    /// The layout as it would be after these edits; those that fail are passed over.
    std::string Layout_After(std::span<const Edit> edits) const;

    /// Takes back what `Apply` changed last, and brings it again. False where there is nothing to
    /// take back or to bring, and for lack of memory.
    bool Undo();
    bool Redo();

    /// What `Undo` would take back, and `Redo` would bring, as `Apply` was told; nothing where
    /// there is nothing.
    std::optional<std::u16string> Undo_Name() const;
    std::optional<std::u16string> Redo_Name() const;

    /// Whether layout, textures or names differ from what was loaded.
    bool Has_Unsaved_Changes() const;

    /// What forcing that region would lose, see `Lost_By_Force`. Throws where memory lacks.
    std::string Lost_By_Force_Of(const std::u16string& code) const;

    /// Whether another program wrote the file since it was loaded or saved last.
    bool Was_Changed_Elsewhere() const;

    /// What a save would write, after `last`, edits that are not kept: each language's texts and
    /// the console's name pass once through the writer, the header gets the length, then come
    /// `last`, the forced region and the padding. Changes nothing.
    Result<SavePlan> Plan_Save(std::span<const Edit> last = {}) const;

    /// Writes all files of a plan or none, see `Replace_Files`. `lock` and `notice` are passed on.
    /// The banner itself stays as it is; load it again to go on with what is on the disk.
    Result<> Save(const SavePlan& plan, const FolderLock& lock = {},
                  const Notice& notice = {}) const;

    /// For a banner that was just loaded from what `plan` of `saved` wrote: takes over its history,
    /// which then leads back to what stood in the file before. `what`: how the step is called that
    /// leads to the state before the save, for one that did more than to write what was edited;
    /// without a name, and where it changed nothing, there is no such step.
    void Continue(Banner saved, const SavePlan& plan, const std::u16string& what);

 private:
    /// What edits change beside the layout.
    struct Rest {
        std::vector<NewContents> textures;  ///< that the save replaces
        bool has_logo = false;              ///< whether one of them is the logo
        bool has_scheme = false;            ///< whether a scheme was applied
        std::string about_logo;
        std::u16string forced;
        std::optional<std::u16string> padding;
        std::optional<ChannelNames> names;  ///< where they were edited

        bool operator==(const Rest& other) const;
        void Replace_Texture(const std::u16string& path, std::string bytes);
    };

    struct State : Rest {
        std::string layout;
    };

    /// A step to another state: the stretch of the layout that becomes another one, and the rest.
    struct Step {
        std::u16string what;
        std::size_t at = 0, size = 0;
        std::string stretch;
        Rest rest;

        std::size_t Size() const;
    };
    using Steps = std::list<Step>;

    struct Applying;
    Result<> Apply_To(State& state, const Edit& edit) const;
    Result<std::string> Texture_Now(const State& state, const std::u16string& path) const;
    Result<std::vector<std::u16string>> Find_Game_Pictures() const;
    std::string Lost_By_Force_Of(const State& state, const std::u16string& code) const;
    std::vector<std::string> Notices_Of(const State& state, const std::string& lost,
                                        std::string_view saved) const;
    bool Has_Other_Content(const State& next) const;
    static Step Step_Between(const State& from, const State& to, const std::u16string& what);
    void Take(Step& step);
    void Remember(Step step);
    bool Move(Steps& from, Steps& to);
    void Refer_To_Saved(const Banner& saved, const SavePlan& plan, Rest& rest) const;

    BannerSource source_;
    std::u16string neutral_;
    std::string on_disk_;
    std::size_t loaded_size_ = 0;  ///< of the layout in `on_disk_`
    State state_;
    Steps undo_, redo_;
    std::size_t most_history_ = 0;
};

}  // namespace bannersmith
