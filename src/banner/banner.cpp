#include "banner/banner.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

#include "banner/notices.h"
#include "banner/pictures.h"
#include "banner/region_force.h"
#include "base/text.h"
#include "colors/materials.h"
#include "gameinfo/fields.h"
#include "gameinfo/languages.h"
#include "layout/file_length.h"
#include "layout/format.h"
#include "layout/kind.h"
#include "layout/text_box.h"
#include "system/files.h"

namespace bannersmith {

namespace {

/// Every text box that the save passes through the writer: language by language the four fields,
/// then the system.
std::vector<std::string> Boxes_To_Rewrite() {
    std::vector<std::string> names;
    for (const std::u16string_view code : LanguageList) {
        for (const std::u16string_view prefix : FieldPrefixes) {
            names.push_back(To_Utf8(prefix) + To_Utf8(code));
        }
    }
    names.push_back(To_Utf8(SystemBox));
    return names;
}

/// What `work` returns, or a lack of memory as a failure of `source`.
template <typename Work>
auto Within_Memory(const BannerSource& source, Work work) -> decltype(work()) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return Failure{source.Name(), "Not enough memory"};
    }
}

}  // namespace

bool Banner::Rest::operator==(const Rest& other) const {
    const auto same = [](const NewContents& a, const NewContents& b) {
        return a.path == b.path && a.bytes == b.bytes;
    };
    return forced == other.forced && padding == other.padding && names == other.names &&
           has_scheme == other.has_scheme &&
           std::equal(textures.begin(), textures.end(), other.textures.begin(),
                      other.textures.end(), same);
}

std::size_t Banner::Step::Size() const {
    std::size_t total = stretch.size();
    for (const NewContents& texture : rest.textures) total += texture.bytes.size();
    return total;
}

/// A later one takes the place of an earlier one.
void Banner::Rest::Replace_Texture(const std::u16string& path, std::string bytes) {
    std::erase_if(textures, [&](const NewContents& texture) { return texture.path == path; });
    textures.push_back({path, std::move(bytes)});
}

Result<Banner> Banner::Load(BannerSource source, std::size_t history) {
    return Within_Memory(source, [&]() -> Result<Banner> {
        auto bytes = source.Read();
        if (!bytes) return bytes.Why();
        return From_Bytes(std::move(*bytes), source, history);
    });
}

Banner Banner::From_Bytes(std::string file, BannerSource source, std::size_t history) {
    Banner banner;
    banner.source_ = std::move(source);
    banner.on_disk_ = std::move(file);
    banner.state_.layout = CutPadding(banner.on_disk_);
    banner.loaded_size_ = banner.state_.layout.size();
    banner.neutral_ = Neutral_Language(banner.state_.layout);
    banner.most_history_ = history;
    return banner;
}

/// How each kind of edit changes a state.
struct Banner::Applying {
    const Banner& banner;
    State& state;

    Result<> operator()(const SetField& edit) const {
        state.layout =
            Set_Field(std::move(state.layout), edit.field, edit.code, edit.value, banner.neutral_);
        return {};
    }

    Result<> operator()(const SetFieldEverywhere& edit) const {
        state.layout =
            Set_Field_Everywhere(std::move(state.layout), edit.field, edit.value, banner.neutral_);
        return {};
    }

    Result<> operator()(const WriteBox& edit) const {
        state.layout = edit.exact ? Write_Exact_Box(std::move(state.layout), edit.name, edit.text)
                                  : Write_Box(std::move(state.layout), edit.name, edit.text);
        return {};
    }

    Result<> operator()(const ApplyScheme& edit) const {
        auto colored = Apply_Color_Scheme(std::move(state.layout), edit.file);
        if (!colored) return colored.Why();
        state.layout = std::move(*colored);
        state.has_scheme = true;
        return {};
    }

    Result<> operator()(const SetColors& edit) const {
        state.layout = Set_Colors(std::move(state.layout), edit.pairs);
        return {};
    }

    Result<> operator()(const ReplaceLogo& edit) const {
        const auto texture = banner.source_.Find_Texture(LogoTexture);
        if (!texture) return texture.Why();
        if (!*texture) return {};
        auto logo = Read_Logo(edit.file);
        if (!logo) return logo.Why();
        const bool is_picture = Is_Picture(*logo) || Is_Called_A_Picture(edit.file);
        if (is_picture) {
            const auto picture = Read_Picture(*logo).About(edit.file);
            if (!picture) return picture.Why();
            logo = Made_Like(**texture, *picture, {.fit = Fit::border});  // nothing of it is cut
            if (!logo) return logo.Why();
        }
        const std::string old = banner.source_.Texture(**texture).Value_Or("");
        state.has_logo = true;
        state.about_logo = About_Logo(old, *logo, is_picture);
        state.Replace_Texture(**texture, std::move(*logo));
        return {};
    }

    Result<> operator()(const ReplacePicture& edit) const {
        const auto places = banner.Find_Game_Pictures();
        if (!places) return places.Why();
        const auto picture = Read_Picture_File(edit.file);
        if (!picture) return picture.Why();
        for (const std::u16string& place : *places) {
            auto made = Made_Like(place, *picture, edit.fitting);
            if (!made) return made.Why();
            state.Replace_Texture(place, std::move(*made));
        }
        return {};
    }

    Result<> operator()(const ForceRegion& edit) const {
        state.forced = edit.code;
        return {};
    }

    Result<> operator()(const SetPadding& edit) const {
        state.padding = edit.text;
        return {};
    }

    Result<> operator()(const SetChannelName& edit) const {
        auto names = state.names ? state.names : banner.Names();
        const auto language = std::find(NameLanguages.begin(), NameLanguages.end(), edit.code);
        if (!names || language == NameLanguages.end() || edit.line >= NameLines) {
            return Failure{banner.source_.Name(), "Has no such channel name"};
        }
        if (const std::string why = Too_Long_For_A_Name(edit.text); !why.empty()) {
            return Failure{u"Channel name " + edit.code, why};
        }
        const auto index = static_cast<std::size_t>(language - NameLanguages.begin());
        (*names)[index][edit.line] = edit.text;
        state.names = std::move(names);
        return {};
    }

    Result<> operator()(const SetChannelNames& edit) const {
        const std::string why = Too_Long_For_A_Name(edit.text);
        if (!why.empty()) return Failure{u"Channel name", why};
        state.names = state.names ? state.names : banner.Names();
        if (!state.names) return {};
        for (auto& lines : *state.names) {
            if (!lines[0].empty()) lines[0] = edit.text;
        }
        return {};
    }

    /// A texture as the banner's own at that place.
    Result<std::string> Made_Like(const std::u16string& place, const Picture& picture,
                                  const Fitting& fitting) const {
        const auto old = banner.source_.Texture(place);
        if (!old) return old.Why();
        return Make_Texture_Like(*old, picture, fitting).About(place);
    }

    /// A logo may be the texture that an edit before this one has replaced.
    Result<std::string> Read_Logo(const std::u16string& file) const {
        const auto replaced =
            std::find_if(state.textures.rbegin(), state.textures.rend(),
                         [&](const NewContents& texture) { return Same_File(texture.path, file); });
        if (replaced == state.textures.rend() || banner.source_.Packed_In()) return Read_File(file);
        return replaced->bytes;
    }
};

Result<> Banner::Apply_To(State& state, const Edit& edit) const {
    return std::visit(Applying{*this, state}, edit);
}

Result<std::string> Banner::Texture_Now(const State& state, const std::u16string& path) const {
    const auto edited =
        std::find_if(state.textures.begin(), state.textures.end(),
                     [&](const NewContents& texture) { return texture.path == path; });
    if (edited == state.textures.end()) return source_.Texture(path);
    return edited->bytes;
}

/// At least one.
Result<std::vector<std::u16string>> Banner::Find_Game_Pictures() const {
    auto found = source_.Find_Game_Pictures();
    if (found && found->empty()) return Failure{source_.Name(), "Has no picture of the game"};
    return found;
}

Result<Picture> Banner::Game_Picture() const {
    return Within_Memory(source_, [&]() -> Result<Picture> {
        const auto places = Find_Game_Pictures();
        if (!places) return places.Why();
        const auto texture = Texture_Now(state_, places->front());
        if (!texture) return texture.Why();
        return Decode_Texture(*texture).About(places->front());
    });
}

Result<> Banner::Apply(std::span<const Edit> edits, const std::u16string& what) {
    return Within_Memory(source_, [&]() -> Result<> {
        State next = state_;
        for (const Edit& edit : edits) {
            if (auto applied = Apply_To(next, edit); !applied) return applied;
        }
        if (!Has_Other_Content(next)) return {};
        if (most_history_ > 0) Remember(Step_Between(next, state_, what));
        state_ = std::move(next);
        return {};
    });
}

std::string Banner::Layout_After(std::span<const Edit> edits) const {
    State next = state_;
    for (const Edit& edit : edits) {
        State tried = next;
        if (Apply_To(tried, edit)) next = std::move(tried);
    }
    return std::move(next.layout);
}

bool Banner::Has_Other_Content(const State& next) const {
    const Rest& rest = next;
    return next.layout != state_.layout || !(rest == state_);
}

/// What two layouts have alike at both ends is no part of the step between them.
Banner::Step Banner::Step_Between(const State& from, const State& to, const std::u16string& what) {
    const std::string &a = from.layout, &b = to.layout;
    const std::size_t shorter = std::min(a.size(), b.size());
    const auto front =
        std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(shorter), b.begin());
    const auto at = static_cast<std::size_t>(front.first - a.begin());
    const auto back = std::mismatch(
        a.rbegin(), a.rbegin() + static_cast<std::ptrdiff_t>(shorter - at), b.rbegin());
    const auto end = static_cast<std::size_t>(back.first - a.rbegin());
    const Rest& rest = to;
    return {what, at, a.size() - end - at, b.substr(at, b.size() - end - at), rest};
}

/// Makes of the step the one that leads back. What can lack memory comes first.
void Banner::Take(Step& step) {
    std::string before = state_.layout.substr(step.at, step.size);
    state_.layout.reserve(state_.layout.size() - step.size + step.stretch.size());
    state_.layout.replace(step.at, step.size, step.stretch);
    step.size = step.stretch.size();
    step.stretch = std::move(before);
    Rest& rest = state_;
    std::swap(rest, step.rest);
}

/// The oldest steps go first.
void Banner::Remember(Step step) {
    undo_.push_back(std::move(step));
    redo_.clear();
    std::size_t size = 0;
    for (const Step& each : undo_) size += each.Size();
    while (size > most_history_) {
        size -= undo_.front().Size();
        undo_.pop_front();
    }
}

bool Banner::Move(Steps& from, Steps& to) {
    const auto moved = Within_Memory(source_, [&]() -> Result<> {
        Take(from.back());
        to.splice(to.end(), from, std::prev(from.end()));
        return {};
    });
    return static_cast<bool>(moved);
}

bool Banner::Undo() {
    return !undo_.empty() && Move(undo_, redo_);
}

bool Banner::Redo() {
    return !redo_.empty() && Move(redo_, undo_);
}

namespace {

template <typename Steps>
std::optional<std::u16string> Name_Of_Last(const Steps& steps) {
    return steps.empty() ? std::nullopt : std::optional(steps.back().what);
}

}  // namespace

std::optional<std::u16string> Banner::Undo_Name() const {
    return Name_Of_Last(undo_);
}

std::optional<std::u16string> Banner::Redo_Name() const {
    return Name_Of_Last(redo_);
}

std::optional<ChannelNames> Banner::Names() const {
    if (state_.names || !source_.Packed_In()) return state_.names;
    return source_.Packed_In()->Names();
}

std::map<std::string, std::string> Banner::Files_Of_Part(bool of_other) const {
    std::map<std::string, std::string> files = source_.Files_Of_Part(of_other);
    const auto folder = source_.Folder_Of_Part(of_other);
    for (const NewContents& texture : state_.textures) {
        if (!folder || !texture.path.starts_with(*folder)) continue;
        const std::u16string path = texture.path.substr(folder->size());
        files[To_Utf8(Replace_All(path, u"\\", u"/"))] = texture.bytes;
    }
    return files;
}

std::vector<std::u16string> Banner::Replaced_Textures() const {
    std::vector<std::u16string> paths;
    for (const NewContents& texture : state_.textures) paths.push_back(texture.path);
    return paths;
}

bool Banner::Has_Unsaved_Changes() const {
    return state_.layout != std::string_view(on_disk_).substr(0, loaded_size_) ||
           !state_.textures.empty() ||
           (state_.names && state_.names != source_.Packed_In()->Names());
}

bool Banner::Was_Changed_Elsewhere() const {
    return source_.Holds_Other(on_disk_);
}

Result<SavePlan> Banner::Plan_Save(std::span<const Edit> last) const {
    return Within_Memory(source_, [&]() -> Result<SavePlan> {
        if (state_.layout.size() < header::LengthEnd) {
            return Failure{source_.Name(), "No layout is loaded"};
        }
        State state = state_;
        state.layout = Set_File_Len(Rewrite_Texts(std::move(state.layout), Boxes_To_Rewrite()));
        for (const Edit& edit : last) {
            if (auto applied = Apply_To(state, edit); !applied) return applied.Why();
        }
        auto padding = state.padding ? Read_Padding(*state.padding)
                                     : Result<Padding>(Padding{false, on_disk_.size()});
        if (!padding) return padding.Why();
        SavePlan plan;
        plan.has_logo = state.has_logo;
        const std::string lost = Lost_By_Force_Of(state, state.forced);
        Region_Force(state.layout, To_Utf8(state.forced));
        state.layout = AddPadding(std::move(state.layout), *padding);
        if (source_.Packed_In()) plan.packed_layout = state.layout;
        for (const NewContents& texture : state.textures) {
            if (most_history_ == 0) break;
            plan.replaced.push_back({texture.path, source_.Texture(texture.path).Value_Or("")});
        }
        auto files = source_.Plan(std::move(state.layout), std::move(state.textures), state.names);
        if (!files) return files.Why();
        plan.files = std::move(*files);
        plan.notices = Notices_Of(state, lost, plan.Layout());
        return plan;
    });
}

std::string Banner::Lost_By_Force_Of(const State& state, const std::u16string& code) const {
    if (!Is_Layout(state.layout) || Forced_From(state.layout, To_Utf8(code)).empty()) return {};
    return Lost_By_Force(state.layout, To_Utf8(code), source_.Animations());
}

std::string Banner::Lost_By_Force_Of(const std::u16string& code) const {
    return Lost_By_Force_Of(state_, code);
}

std::vector<std::string> Banner::Notices_Of(const State& state, const std::string& lost,
                                            std::string_view saved) const {
    std::vector<std::string> notices;
    const auto add = [&](const std::string& what) {
        if (!what.empty()) notices.push_back("but " + what);
    };
    if (!state.about_logo.empty()) notices.push_back(state.about_logo);
    add(lost);
    if (!Is_Layout(saved)) return notices;
    if (state.has_scheme) add(Left_By_Scheme(saved));
    // What was forced upon a region has other names now, not other texts.
    if (!Forced_From(state_.layout, To_Utf8(state.forced)).empty()) return notices;
    for (const std::string& shared : Shared_Texts(on_disk_, saved)) add(shared);
    return notices;
}

Result<> Banner::Save(const SavePlan& plan, const FolderLock& lock, const Notice& notice) const {
    return Replace_Files(plan.files, lock, notice);
}

/// Textures and names that a step has not count as those on the disk, which the save has replaced.
void Banner::Refer_To_Saved(const Banner& saved, const SavePlan& plan, Rest& rest) const {
    for (const NewContents& before : plan.replaced) {
        const std::string now = source_.Texture(before.path).Value_Or("");
        const auto known =
            std::find_if(rest.textures.begin(), rest.textures.end(),
                         [&](const NewContents& texture) { return texture.path == before.path; });
        if (known == rest.textures.end()) {
            if (before.bytes != now) rest.textures.push_back(before);
        } else if (known->bytes == now) {
            rest.textures.erase(known);
        }
    }
    if (!source_.Packed_In() || !saved.source_.Packed_In()) return;
    if (!rest.names) rest.names = saved.source_.Packed_In()->Names();
    if (rest.names == source_.Packed_In()->Names()) rest.names.reset();
}

/// The save makes lengths and texts right, so the first steps lead from what it wrote.
void Banner::Continue(Banner saved, const SavePlan& plan, const std::u16string& what) {
    Refer_To_Saved(saved, plan, saved.state_);
    for (Steps* steps : {&saved.undo_, &saved.redo_}) {
        for (Step& step : *steps) Refer_To_Saved(saved, plan, step.rest);
    }
    if (!what.empty() && Has_Other_Content(saved.state_)) {
        undo_ = std::move(saved.undo_);
        undo_.push_back(Step_Between(state_, saved.state_, what));
        return;
    }
    Banner before = saved, after = saved;
    if (before.Undo()) {
        undo_ = std::move(before.undo_);
        undo_.push_back(Step_Between(state_, before.state_, *saved.Undo_Name()));
    }
    if (after.Redo()) {
        redo_ = std::move(after.redo_);
        redo_.push_back(Step_Between(state_, after.state_, *saved.Redo_Name()));
    }
}

}  // namespace bannersmith
