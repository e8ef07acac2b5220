#include "generate/banners.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "base/text.h"
#include "gameinfo/boxes.h"
#include "gameinfo/composing.h"
#include "gameinfo/languages.h"
#include "generate/layout_builder.h"

namespace bannersmith {

namespace {

/// What a banner says about its game.
struct Game {
    std::u16string_view year, players, rating, system;
};

constexpr Game Sample = {u"1991", u"2", u"E", u"SUPER 16"};

/// The game's name in the language of each code.
std::u16string Title(std::u16string_view code) {
    static const std::map<std::u16string_view, std::u16string_view> titles = {
        {u"ENG", u"Starlight Courier"},
        {u"GER", u"Der Sternenbote"},
        {u"FRA", u"Le Messager des \u00E9toiles"},
        {u"ITA", u"Il messaggero delle stelle"},
        {u"SPA", u"El mensajero de las estrellas"},
        {u"NED", u"De sterrenkoerier"},
        {u"JPN", u"\u661F\u5C4A\u3051\u4EBA\u306E\u65C5"},
    };
    return std::u16string(titles.at(code));
}

/// A field's box: its name in front of the code, where it lies and how large it is written.
struct BoxKind {
    std::u16string_view prefix;
    Place place;
    float font_size;
};

constexpr BoxKind TitleBox = {box_prefix::Title, {0, -150, 560, 60}, 27.2F};
constexpr BoxKind YearBox = {box_prefix::Year, {-190, 70, 200, 30}, 17.6F};
constexpr BoxKind PlayersBox = {box_prefix::Players, {-190, 10, 200, 60}, 17.6F};
constexpr BoxKind RatingBox = {box_prefix::Rating, {130, -200, 300, 30}, 14.4F};

std::u16string Stored_Text(const BoxKind& kind, std::u16string_view code) {
    std::u16string value;
    if (kind.prefix == box_prefix::Title) return Title(code);
    if (kind.prefix == box_prefix::Year) return Make_Year(value = Sample.year, code);
    if (kind.prefix == box_prefix::Players) return Make_Players(value = Sample.players, code);
    return Make_ESRB(value = Sample.rating, code);
}

/// Collects the materials while boxes and pictures ask for theirs.
class MaterialList {
 public:
    /// Adds a material in the colours of an element of the scheme and returns its index.
    unsigned Add(std::string_view name, std::u16string_view element, int texture = -1) {
        Material material{std::string(name)};
        material.texture = texture;
        return Add(std::move(material), element, 255);
    }

    /// The same for a material with textures and stages; `alpha` is that of the second colour.
    unsigned Add(Material material, std::u16string_view element, std::int16_t alpha) {
        const ColorPair& pair = colors_[Element_Index(element)];
        material.first = Rgba_Of(pair[0], 0);
        material.second = Rgba_Of(pair[1], alpha);
        list_.push_back(std::move(material));
        return static_cast<unsigned>(list_.size() - 1);
    }

    const std::vector<Material>& All() const { return list_; }

 private:
    static Rgba Rgba_Of(Color color, std::int16_t alpha) {
        return {Red_Of(color), Green_Of(color), Blue_Of(color), alpha};
    }

    std::vector<Material> list_;
    Scheme colors_ = Shipped_Schemes().front().scheme;
};

struct Picture {
    const char* name;
    const char16_t* element;
    Place place;
    int texture;
};

constexpr Picture Pictures[] = {
    {"Back0", u"Back0", {0, 0, 608, 456}, 0},
    {"Back1", u"Back1", {0, 120, 608, 80}, 0},
    {"Back2", u"Back2", {0, 40, 608, 80}, 0},
    {"Back3", u"Back3", {0, -40, 608, 80}, 0},
    {"Back4", u"Back4", {0, -120, 608, 80}, 0},
    {"Shade", u"Shade", {0, -200, 608, 56}, 2},
    {"BackMask1", u"BackMask1", {0, -90, 608, 60}, 2},
    {"BackMask2", u"BackMask2", {0, -170, 608, 110}, 2},
    {"PFLine", u"PFLINE", {0, 205, 608, 30}, 2},
    {"YearLine", u"YearLine", {-190, 52, 200, 4}, 2},
    {"PlayLine", u"PlayLine", {-190, -20, 200, 4}, 2},
    {"VCPicSha", u"VCPicSha", {124, 16, 236, 178}, 2},
    {"VCPicBase", u"VCPicBase", {120, 20, 232, 174}, 2},
    {"VCPic", u"VCPic", {120, 20, 224, 168}, 1},
};

/// The textures of a channel's banner, in the order of its list.
enum ChannelTexture : unsigned { logo, game, mask, ramp, shadow, line };

constexpr std::array<float, 8> WholeSet = {0, 0, 1, 0, 0, 1, 1, 1};
constexpr std::array<float, 8> UpsideDown = {0, 1, 1, 1, 0, 0, 1, 0};

/// The logo in rows: one colour, and its shape as the alpha.
constexpr StageSpec ShapeOnly{0, {15, 15, 15, 4}, {7, 2, 4, 7}};

/// The game's picture, cut to the shape of a screen.
constexpr StageSpec GameColors{0, {15, 15, 15, 8}, {7, 7, 7, 5}};
constexpr StageSpec CutToMask{1, {15, 15, 15, 0}, {7, 0, 4, 7}};

/// Its reflection: tinted, and fading away as the ramp says.
constexpr StageSpec TintedGame{0, {15, 4, 8, 15}, {7, 7, 7, 7}};
constexpr StageSpec FadeByRamp{1, {15, 15, 15, 0}, {1, 2, 4, 7}};
constexpr StageSpec MaskWithoutIt{2, {15, 15, 15, 0}, {0, 7, 7, 4}, true};

/// A picture of a channel's banner, drawn as the console's own banners are.
struct ChannelPicture {
    Material material;
    const char16_t* element;
    std::int16_t alpha;
    Place place;
    PictureLook look{};
};

/// As often as the logo fits, `beside` texels to the side.
std::array<float, 8> Row_Of_Logos(float beside) {
    const float left = beside / 512, right = left + 608.F / 512;
    return {left, 0, right, 0, left, 1, right, 1};
}

std::vector<ChannelPicture> Channel_Background() {
    const auto row = [](const char* name, const char16_t* element, float y, float beside) {
        return ChannelPicture{{name, {}, {}, -1, {{logo, 1, 1}}, {ShapeOnly}},
                              element,
                              112,
                              {0, y, 608, 64},
                              {.sets = {Row_Of_Logos(beside)}}};
    };
    return {
        {{"Back0", {}, {}, ramp}, u"Back0", 255, {0, 0, 608, 456}},
        row("Back1", u"Back1", 128, 0),
        row("Back2", u"Back2", 50, 32),
        row("Back3", u"Back3", -28, 0),
        row("Back4", u"Back4", -106, 32),
        {{"BackMask1", {}, {}, ramp}, u"BackMask1", 255, {0, -120, 608, 40}},
        {{"BackMask2", {}, {}, -1}, u"BackMask2", 255, {0, -184, 608, 88}},
        {{"PFLine", {}, {}, line}, u"PFLINE", 255, {0, 204, 608, 36}},
        {{"YearLine", {}, {}, -1}, u"YearLine", 255, {-190, 52, 200, 2}},
        {{"PlayLine", {}, {}, -1}, u"PlayLine", 255, {-190, -20, 200, 2}},
    };
}

std::vector<ChannelPicture> Channel_Game_Picture() {
    return {
        {{"Shade", {}, {}, shadow}, u"Shade", 255, {6, -6, 256, 200}},
        {{"VCPicSha",
          {},
          {},
          -1,
          {{game}, {ramp}, {mask}},
          {TintedGame, FadeByRamp, MaskWithoutIt}},
         u"VCPicSha",
         255,
         {0, -150, 224, 132},
         {.sets = {UpsideDown, WholeSet, UpsideDown}}},
        {{"VCPicBase", {}, {}, mask}, u"VCPicBase", 255, {0, 0, 234, 178}},
        {{"VCPic", {}, {}, -1, {{game}, {mask}}, {GameColors, CutToMask}},
         u"VCPic",
         255,
         {0, 0, 224, 168},
         {.sets = {WholeSet, WholeSet}}},
    };
}

/// Which pictures a banner has.
enum class BannerKind { plain, channel };

/// The sections of a banner, put together in the order that the format asks for.
class Banner {
 public:
    explicit Banner(BannerKind kind = BannerKind::plain) {
        kind == BannerKind::plain ? Add_Pictures() : Add_Channel_Pictures();
        Add_Text("T_PF", u"T_PF", Sample.system, {160, 205, 280, 26}, 16.64F);
    }

    /// The four texts of one language and its group. The group has three members: the title, the
    /// pane with year and players, and the rating.
    void Add_Language(std::u16string_view code) {
        const std::string name = To_Utf8(code), info = "N_Info_" + name;
        Add_Box(TitleBox, code, "_" + name);
        panes_.push_back(Pane_Section(info, {}));
        panes_.push_back(Empty_Section("pas1"));
        Add_Box(YearBox, code, "_" + name);
        Add_Box(PlayersBox, code, "_" + name);
        panes_.push_back(Empty_Section("pae1"));
        Add_Box(RatingBox, code, "_" + name);
        groups_.push_back(Group_Section(name, {"T_VCTitle_" + name, info, "T_ESRB_" + name}));
    }

    /// The four texts that serve all languages, in the wording of one.
    void Add_Neutral(std::u16string_view wording) {
        for (const BoxKind& kind : {TitleBox, YearBox, PlayersBox, RatingBox}) {
            Add_Box(kind, wording, "");
        }
    }

    std::string File(bool closing_group,
                     const std::vector<std::string>& textures = {"my_Back_logo.tpl", "my_VCPic.tpl",
                                                                 "my_White.tpl"}) const {
        std::vector<std::string> sections = {
            Section("lyt1", ByteWriter().U8(1).Zeros(3).F32(608).F32(456).Data()),
            Name_List_Section("txl1", textures),
            Name_List_Section("fnl1", {"wbf1.brfna"}),
            Material_Section(materials_.All()),
            Pane_Section("RootPane", {0, 0, 608, 456}),
            Empty_Section("pas1"),
        };
        sections.insert(sections.end(), panes_.begin(), panes_.end());
        sections.push_back(Empty_Section("pae1"));
        sections.push_back(Group_Section("RootGroup", {}));
        if (closing_group) {
            sections.push_back(Empty_Section("grs1"));
            sections.insert(sections.end(), groups_.begin(), groups_.end());
            sections.push_back(Empty_Section("gre1"));
        }
        return Layout_File(sections);
    }

 private:
    void Add_Pictures() {
        for (const Picture& picture : Pictures) {
            const unsigned material =
                materials_.Add(picture.name, picture.element, picture.texture);
            panes_.push_back(Picture_Section(picture.name, material, picture.place));
        }
    }

    void Add_Channel_Picture(const ChannelPicture& picture) {
        const unsigned material = materials_.Add(picture.material, picture.element, picture.alpha);
        panes_.push_back(
            Picture_Section(picture.material.name, material, picture.place, picture.look));
    }

    void Add_Channel_Pictures() {
        for (const ChannelPicture& picture : Channel_Background()) Add_Channel_Picture(picture);
        panes_.push_back(Pane_Section("N_VCPic", {130, 44, 0, 0}, true));
        panes_.push_back(Empty_Section("pas1"));
        for (const ChannelPicture& picture : Channel_Game_Picture()) Add_Channel_Picture(picture);
        panes_.push_back(Empty_Section("pae1"));
    }

    void Add_Text(const std::string& name, std::u16string_view element, std::u16string_view text,
                  Place place, float font_size) {
        const unsigned material = materials_.Add(name, element);
        panes_.push_back(Text_Box_Section(Clean_Text_Box(name, text, material, place, font_size)));
    }

    void Add_Box(const BoxKind& kind, std::u16string_view code, const std::string& ending) {
        const std::u16string_view element = Neutral_Box(kind.prefix);
        Add_Text(To_Utf8(element) + ending, element, Stored_Text(kind, code), kind.place,
                 kind.font_size);
    }

    MaterialList materials_;
    std::vector<std::string> panes_, groups_;
};

}  // namespace

std::string Seven_Language_Banner() {
    Banner banner;
    for (const std::u16string_view code : LanguageList) {
        if (code != NoLanguage) banner.Add_Language(code);
    }
    return banner.File(true);
}

std::string Channel_Banner() {
    Banner banner(BannerKind::channel);
    for (const std::u16string_view code : Languages) banner.Add_Language(code);
    return banner.File(true, {"my_BackSample_a.tpl", "VCPic.tpl", "my_TVW_a.tpl", "my_Grad_b.tpl",
                              "my_Shade_a.tpl", "my_VCLine_e.tpl"});
}

std::string Channel_Icon() {
    const std::vector<Material> materials = {{"Back", {0, 0, 0, 0}, {255, 255, 255, 255}, 0},
                                             {"IconVCPic", {0, 0, 0, 0}, {255, 255, 255, 255}, 1},
                                             {"Logo", {0, 0, 0, 0}, {255, 255, 255, 255}, 2}};
    return Layout_File({
        Section("lyt1", ByteWriter().U8(1).Zeros(3).F32(608).F32(456).Data()),
        Name_List_Section("txl1", {"Back_a.tpl", "IconVCPic.tpl", "LogoSample.tpl"}),
        Material_Section(materials),
        Pane_Section("RootPane", {0, 0, 608, 456}),
        Empty_Section("pas1"),
        Picture_Section("Back", 0, {0, 0, 128, 96}),
        Picture_Section("IconVCPic", 1, {0, 0, 128, 96}),
        Picture_Section("Logo", 2, {0, -28, 112, 32}),
        Empty_Section("pae1"),
        Group_Section("RootGroup", {}),
    });
}

std::string Neutral_Banner() {
    Banner banner;
    banner.Add_Neutral(Japanese);
    return banner.File(true);
}

std::string German_Japanese_Banner() {
    Banner banner;
    banner.Add_Language(u"GER");
    banner.Add_Language(Japanese);
    return banner.File(true);
}

std::string Banner_Without_Closing_Group() {
    Banner banner;
    banner.Add_Language(u"ENG");
    return banner.File(false);
}

}  // namespace bannersmith
