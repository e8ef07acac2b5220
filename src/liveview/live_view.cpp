#include "liveview/live_view.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"
#include "forms/say.h"
#include "layout/file_length.h"
#include "layout/kind.h"
#include "system/replace_files.h"

namespace bannersmith {

namespace {

constexpr std::u16string_view ExportFilter = u"PNG pictures (*.png)|*.png", PngEnding = u".png";
constexpr double FramesPerSecond = 60;

/// Whether a place lies in a region, whose sides may lean.
bool Lies_In(const still::Region& region, float x, float y) {
    constexpr std::array<std::size_t, 4> Around = {0, 1, 3, 2};
    int left = 0, right = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        const still::Point from = region.corners[Around[i]];
        const still::Point to = region.corners[Around[(i + 1) % 4]];
        const float side = (to.x - from.x) * (y - from.y) - (to.y - from.y) * (x - from.x);
        (side < 0 ? left : right) += 1;
    }
    return left == 0 || right == 0;
}

}  // namespace

LiveView::LiveView(LiveSource source, Desktop& desktop)
    : cmbLanguage({Say("Language of the name")}),
      cmbPart({Say("Banner"), Say("Icon")}),
      cmbWidth({u"4:3", u"16:9"}),
      source_(std::move(source)),
      desktop_(desktop) {
    lblPlay.Set(Say("Pl&ay"));
    for (DropDownList* list : {&cmbLanguage, &cmbPart, &cmbWidth}) list->Select(0);
    cmbLanguage.Click = [this] { Take_Changes(); };
    cmbWidth.Click = [this] { Take_Changes(); };
    cmbPart.Click = [this] { Take_Banner(); };
}

void LiveView::Want() {
    has_other_layout_ = has_changes_ = true;
    Wanted.Raise();
}

void LiveView::Take_Banner() {
    has_other_banner_ = true;
    if (is_playing_) Play_Click();
    Want();
}

void LiveView::Take_Changes() {
    Want();
}

still::PartKind LiveView::Part() const {
    return cmbPart.Index() == 1 ? still::PartKind::icon : still::PartKind::banner;
}

bool LiveView::Is_Own_Part() const {
    return source_.banner.Source().Is_Icon() == (Part() == still::PartKind::icon);
}

/// The banner's layout with all that is not yet set; what does not fit stays as it is set.
std::string LiveView::Layout_Now() const {
    return Set_File_Len(source_.banner.Layout_After(source_.unset()));
}

void LiveView::Show_Nothing(const std::u16string& why) {
    still_.reset();
    regions_.clear();
    picture.Set({});
    lblAbout.Set(why);
}

void LiveView::Read_Part() {
    has_other_banner_ = false;
    still_.reset();
    if (!source_.banner.Is_Loaded() || !Is_Layout(source_.banner.Bytes())) {
        return Show_Nothing(Say("Drop a channel's file, a layout or a folder here, or open one"));
    }
    auto files = still::Files_For(source_.banner, Part());
    if (!files) return Show_Nothing(From_Utf8(files.Why().reason));
    still_.emplace(std::move(*files));
    frame_ = still_->Start_Frames();
    Fill_Languages();
}

/// The banner's own languages behind the first entry. A choice is kept while it is there.
void LiveView::Fill_Languages() {
    std::vector<std::u16string> codes;
    for (const std::string& code : still::Languages_Of(still_->Layout())) {
        codes.push_back(From_Utf8(code));
    }
    const std::u16string chosen = cmbLanguage.Selected();
    cmbLanguage.Clear();
    cmbLanguage.Add({Say("Language of the name")});
    cmbLanguage.Add(codes);
    const auto& entries = cmbLanguage.Entries();
    const auto kept = std::find(entries.begin(), entries.end(), chosen);
    cmbLanguage.Select(kept == entries.end() ? 0 : static_cast<int>(kept - entries.begin()));
}

void LiveView::Draw() {
    if (!has_changes_) return;
    if (has_other_banner_) Read_Part();
    has_changes_ = false;
    if (!still_) return;
    if (std::exchange(has_other_layout_, false) && Is_Own_Part()) {
        still_->Take_Layout(Layout_Now());
    }
    if (!font_) {
        auto font = still::Font::Open(source_.program_folder, u"");
        if (font) font_ = std::move(*font);
    }
    still::View view;
    view.part = Part();
    view.is_wide = cmbWidth.Index() == 1;
    view.language = To_Utf8(cmbLanguage.Index() > 0 ? cmbLanguage.Selected() : source_.language());
    const auto languages = still::Languages_Of(still_->Layout());
    if (std::find(languages.begin(), languages.end(), view.language) == languages.end()) {
        view.language.clear();
    }
    still::Drawn drawn = still_->Draw(view, frame_, font_ ? &*font_ : nullptr);
    regions_ = std::move(drawn.regions);
    std::u16string about = Say("Approximate font");
    for (const still::TextFit& text : drawn.texts) {
        if (text.is_too_wide)
            about += u"; " + Filled(Say("%1 may not fit its width"), From_Utf8(text.pane));
        if (text.is_too_high)
            about += u"; " + Filled(Say("%1 may not fit its height"), From_Utf8(text.pane));
    }
    for (const std::string& fault : drawn.faults) about += u"; " + From_Utf8(fault);
    lblAbout.Set(about);
    picture.Set(std::move(drawn.picture));
}

void LiveView::Play_Click() {
    is_playing_ = !is_playing_ && still_;
    lblPlay.Set(is_playing_ ? Say("St&op") : Say("Pl&ay"));
    frame_ = is_playing_ || !still_ ? 0 : still_->Start_Frames();
    Want();
}

void LiveView::Play_To(double seconds) {
    if (!is_playing_) return;
    frame_ = static_cast<std::size_t>(seconds * FramesPerSecond);
    has_changes_ = true;
    Draw();
}

void LiveView::Save_Click() {
    if (picture.Value().texels.empty()) return;
    std::u16string file = desktop_.Save_File(std::u16string(ExportFilter), u"banner.png");
    if (file.empty()) return;
    if (!Capitals(file).ends_with(Capitals(PngEnding))) file += PngEnding;
    const auto written = Replace_File(file, Write_Png(picture.Value()));
    if (!written) desktop_.Report(written.Why());
}

std::u16string LiveView::What_Is_At(float x, float y) const {
    std::u16string all;
    constexpr int Most = 6;
    int count = 0;
    for (auto region = regions_.rbegin(); region != regions_.rend() && count < Most; ++region) {
        if (!Lies_In(*region, x, y)) continue;
        all += (all.empty() ? u"" : u"\n") + From_Utf8(region->pane);
        if (!region->material.empty()) all += u" (" + From_Utf8(region->material) + u")";
        if (!region->missing.empty()) all += u": " + From_Utf8(region->missing);
        ++count;
    }
    return all;
}

std::vector<std::u16string> LiveView::Materials_At(float x, float y) const {
    std::vector<std::u16string> materials;
    for (const still::Region& region : regions_) {
        if (!region.material.empty() && Lies_In(region, x, y)) {
            materials.push_back(From_Utf8(region.material));
        }
    }
    std::reverse(materials.begin(), materials.end());
    return materials;
}

}  // namespace bannersmith
