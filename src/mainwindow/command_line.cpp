#include "mainwindow/command_line.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "base/text.h"
#include "colors/scheme.h"
#include "gameinfo/languages.h"
#include "mainwindow/layout_file.h"
#include "system/files.h"

namespace bannersmith {

namespace {

std::u16string_view First_Word(std::u16string_view piece) {
    return piece.substr(0, piece.find(u' '));
}

std::u16string Last_Three(std::u16string_view word) {
    return std::u16string(word.substr(word.size() - std::min<std::size_t>(word.size(), 3)));
}

std::u16string Without_Quotes(std::u16string_view value) {
    return Replace_All(value, u"\"", u"");
}

std::u16string Typed_Path(std::u16string_view text, const std::u16string& program_folder) {
    std::u16string path(Trim(text));
    if (path.empty() || Is_Full_Path(path)) return path;
    return program_folder + (path.starts_with(u'\\') ? u"" : u"\\") + path;
}

/// The paths that whoever typed one with a hyphen in it may have meant.
std::vector<std::u16string> Uncut_Paths(std::u16string_view text,
                                        const std::u16string& program_folder) {
    const std::size_t hyphen = text.find(u'-');
    if (hyphen == text.npos || hyphen == 0 || text[hyphen - 1] == u' ') return {};
    std::vector<std::u16string> paths;
    for (std::size_t end = hyphen; end != text.npos;) {
        end = text.find(u" -", end + 1);
        paths.push_back(Typed_Path(text.substr(0, end), program_folder));
    }
    return paths;
}

/// Reads options one after the other.
class Options {
 public:
    explicit Options(const std::u16string& program_folder) : program_folder_(program_folder) {}

    std::vector<Edit> edits = {SetPadding{std::u16string(DefaultPadding)}};

    void Take(std::u16string_view piece) {
        const std::u16string_view typed_word = First_Word(piece);
        const std::u16string word = Capitals(typed_word);
        for (const Named& option : NamedOptions) {
            if (word != option.word) continue;
            if (piece.size() < option.skipped) return;
            const std::u16string_view value = Trim(piece.substr(option.skipped));
            (this->*option.take)(option.quotes_removed ? Without_Quotes(value)
                                                       : std::u16string(value));
            return;
        }
        for (const auto& [prefix, field] : PrefixedOptions) {
            if (!word.starts_with(prefix) || piece.size() < PrefixedSkipped) continue;
            edits.push_back(SetField{field, Last_Three(word),
                                     Without_Quotes(Trim(piece.substr(PrefixedSkipped)))});
            return;
        }
        if (word.starts_with(u"H_")) {
            edits.push_back(WriteBox{std::u16string(typed_word.substr(2)),
                                     Without_Quotes(Trim(piece.substr(typed_word.size())))});
        }
    }

 private:
    /// An option told by its whole word.
    struct Named {
        std::u16string_view word;
        std::size_t skipped;  ///< characters of the piece in front of the value
        bool quotes_removed;
        void (Options::*take)(const std::u16string& value);
    };

    template <Field field>
    void Everywhere(const std::u16string& value) {
        edits.push_back(SetFieldEverywhere{field, value});
    }
    void System(const std::u16string& value) {
        edits.push_back(WriteBox{std::u16string(SystemBox), value});
    }
    void Logo(const std::u16string& value) {
        edits.push_back(ReplaceLogo{Logo_Path(program_folder_, value)});
    }
    void Color(const std::u16string& value) {
        edits.push_back(ApplyScheme{Scheme_Path(program_folder_, value)});
    }
    void Pad(const std::u16string& value) { edits.push_back(SetPadding{value}); }
    void SetForce(const std::u16string& REG) {
        const std::u16string code = Capitals(REG);
        const bool known =
            std::find(LanguageList.begin(), LanguageList.end(), code) != LanguageList.end();
        if (known) edits.push_back(ForceRegion{code});
    }

    /// The value of an option that is told by the beginning of its word, which ends in a language
    /// code, begins behind so many characters.
    static constexpr std::size_t PrefixedSkipped = 6;
    static const std::array<Named, 9> NamedOptions;
    static constexpr std::array<std::pair<std::u16string_view, Field>, 3> PrefixedOptions = {{
        {u"T_", Field::title},
        {u"Y_", Field::year},
        {u"E_", Field::rating},
    }};

    const std::u16string& program_folder_;
};

const std::array<Options::Named, 9> Options::NamedOptions = {{
    {u"LOGO", 5, true, &Options::Logo},
    {u"FORCE", 5, true, &Options::SetForce},
    {u"COLOR", 6, true, &Options::Color},
    {u"TITLE", 6, true, &Options::Everywhere<Field::title>},
    {u"YEAR", 5, false, &Options::Everywhere<Field::year>},
    {u"PLAY", 5, true, &Options::Everywhere<Field::players>},
    {u"SYSTEM", 7, true, &Options::System},
    {u"ESRB", 5, true, &Options::Everywhere<Field::rating>},
    {u"PAD", 4, true, &Options::Pad},
}};

}  // namespace

CommandLine ParseClo(std::u16string_view command_line, const std::u16string& program_folder) {
    std::u16string_view rest = command_line;
    Options options(program_folder);
    for (std::size_t hyphen = rest.find(u'-'); hyphen != rest.npos; hyphen = rest.find(u'-')) {
        rest.remove_prefix(hyphen + 1);
        options.Take(rest.substr(0, rest.find(u'-')));
    }
    return {Typed_Path(Piece_Of(command_line, u'-', 0), program_folder),
            Uncut_Paths(command_line, program_folder), std::move(options.edits)};
}

}  // namespace bannersmith
