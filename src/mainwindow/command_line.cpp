// Batch mode: the command line's layout path and options.
#include <algorithm>
#include <array>
#include <new>

#include "base/text.h"
#include "colors/materials.h"
#include "gameinfo/boxes.h"
#include "gameinfo/composing.h"
#include "layout/mod_globals.h"
#include "mainwindow/form1.h"
#include "system/files.h"

namespace bannersmith {

namespace {

std::u16string_view First_Word(std::u16string_view piece) {
    return piece.substr(0, piece.find(u' '));
}

std::u16string_view Last_Three(std::u16string_view word) {
    return word.substr(word.size() - std::min<std::size_t>(word.size(), 3));
}

std::u16string Without_Quotes(std::u16string_view value) {
    return Replace_All(value, u"\"", u"");
}

void Write_Title(std::u16string_view word, std::u16string& value) {
    Write_Box(std::u16string(box_prefix::Title).append(Last_Three(word)), value);
}

void Write_Year(std::u16string_view word, std::u16string& value) {
    Write_Box(std::u16string(box_prefix::Year).append(Last_Three(word)),
              Make_Year(value, Last_Three(word)));
}

void Write_Rating(std::u16string_view word, std::u16string& value) {
    Write_Box(std::u16string(box_prefix::Rating).append(Last_Three(word)),
              Make_ESRB(value, Last_Three(word)));
}

}  // namespace

/// An option told by its whole word.
struct Form1::NamedOption {
    std::u16string_view word;
    std::size_t skipped;  ///< characters of the piece in front of the value
    bool quotes_removed;
    void (Form1::*apply)(std::u16string_view value);
};

/// An option told by the first two characters of its word, which ends in a language code.
struct Form1::PrefixedOption {
    std::u16string_view prefix;
    void (*apply)(std::u16string_view word, std::u16string& value);
};

/// `configured`: the path of the layout that is edited when the command line names none.
int Form1::Run_Batch(const std::u16string& configured) {
    try {
        Take_Configured_Path(configured);
        if (status_ == Done) ParseClo();
    } catch (const std::bad_alloc&) {
        Fail(Failed, {txtSrc.Text(), "Not enough memory"});
    }
    if (status_ == Done) cmdSave_Click();
    return status_;
}

void Form1::ParseClo() {
    std::u16string_view rest = process_.command_line;
    Take_Layout_Path(rest.substr(0, rest.find(u'-')));
    for (std::size_t hyphen = rest.find(u'-'); hyphen != rest.npos && status_ == Done;
         hyphen = rest.find(u'-')) {
        rest.remove_prefix(hyphen + 1);
        Take_Option(rest.substr(0, rest.find(u'-')));
    }
}

/// Loaded also where the command line names another file, but then not held for a save.
void Form1::Take_Configured_Path(const std::u16string& path) {
    const std::u16string named = Typed_Path(Piece_Of(process_.command_line, u'-', 0));
    const bool edited = named.empty() || named == path;
    if (edited && !Hold_Folder_Of(Resolve(process_.program_folder, path))) return;
    txtSrc.Set(path);
}

/// Until the end of the run no other one changes the layout, so neither loses what the other wrote.
bool Form1::Hold_Folder_Of(const std::u16string& layout) {
    if (!Ordinary_File_Exists(layout)) return true;
    const auto failure = lock_.Take(layout);
    if (failure) Fail(Failed, *failure);
    return !failure;
}

std::u16string Form1::Typed_Path(std::u16string_view text) const {
    std::u16string path(Trim(text));
    if (path.empty() || Is_Full_Path(path)) return path;
    return process_.program_folder + (path.starts_with(u'\\') ? u"" : u"\\") + path;
}

void Form1::Take_Layout_Path(std::u16string_view piece) {
    const std::u16string path = Typed_Path(piece);
    if (!path.empty()) {
        Tell_Of_Cut_Path(piece.size());
        if (path != txtSrc.Text() && !Hold_Folder_Of(path)) return;
        BrlytPath = path;
        txtSrc.Set(path);
    }
    if (BrlytData.size() < HeaderBytes) Fail(NoLayout, Why_No_Layout());
}

/// A path that was cut at a hyphen inside a name may name another file than was meant. Where the
/// whole name is one of a file, that is told; the name goes on to an option or to the end.
void Form1::Tell_Of_Cut_Path(std::size_t hyphen) {
    const std::u16string_view text = process_.command_line;
    if (hyphen >= text.size() || text[hyphen - 1] == u' ') return;
    for (std::size_t end = hyphen; end != text.npos;) {
        end = text.find(u" -", end + 1);
        const std::u16string whole = Typed_Path(text.substr(0, end));
        if (!Ordinary_File_Exists(whole)) continue;
        desktop_.Report({whole, "Is not edited, because a hyphen ends the path on a command line"});
        return;
    }
}

void Form1::Take_Option(std::u16string_view piece) {
    static constexpr std::array<NamedOption, 9> Named = {{
        {u"LOGO", 5, true, &Form1::Option_Logo},
        {u"FORCE", 5, true, &Form1::Option_Force},
        {u"COLOR", 6, true, &Form1::Option_Color},
        {u"TITLE", 6, true, &Form1::Option_Title},
        {u"YEAR", 5, false, &Form1::Option_Year},
        {u"PLAY", 5, true, &Form1::Option_Play},
        {u"SYSTEM", 7, true, &Form1::Option_System},
        {u"ESRB", 5, true, &Form1::Option_Esrb},
        {u"PAD", 4, true, &Form1::Option_Pad},
    }};
    static constexpr std::array<PrefixedOption, 3> Prefixed = {{
        {u"T_", Write_Title},
        {u"Y_", Write_Year},
        {u"E_", Write_Rating},
    }};
    constexpr std::size_t PrefixedSkipped = 6;

    const std::u16string_view typed_word = First_Word(piece);
    const std::u16string word = Capitals(typed_word);
    for (const NamedOption& option : Named) {
        if (word != option.word) continue;
        if (piece.size() < option.skipped) return;
        const std::u16string_view value = Trim(piece.substr(option.skipped));
        (this->*option.apply)(option.quotes_removed ? Without_Quotes(value)
                                                    : std::u16string(value));
        return;
    }
    if (word == u"2" || word == u"3" || word == u"4" || word == u"5") {
        info.txtPlayers.Set(word);
        return;
    }
    for (const PrefixedOption& option : Prefixed) {
        if (!word.starts_with(option.prefix) || piece.size() < PrefixedSkipped) continue;
        std::u16string value = Without_Quotes(Trim(piece.substr(PrefixedSkipped)));
        option.apply(word, value);
        return;
    }
    if (word.starts_with(u"H_")) {
        Write_Box(typed_word.substr(2), Without_Quotes(Trim(piece.substr(typed_word.size()))));
    }
}

void Form1::Option_Logo(std::u16string_view value) {
    std::u16string logo(value);
    if (const auto failure = ReplaceLogo(logo)) Fail(Failed, *failure);
}

void Form1::Option_Force(std::u16string_view value) {
    std::u16string code(value);
    SetForce(code);
}

void Form1::Option_Color(std::u16string_view value) {
    const auto failure = Apply_Color_Scheme(process_.program_folder, value);
    if (failure) Fail(Failed, *failure);
    colors_applied_ = true;
}

void Form1::Option_Title(std::u16string_view value) {
    info.txtName.Set(value);
    cmdSetAll_Click(0);
}

void Form1::Option_Year(std::u16string_view value) {
    info.txtYear.Set(value);
    cmdSetAll_Click(1);
}

void Form1::Option_Play(std::u16string_view value) {
    info.txtPlayers.Set(value);
    cmdSetAll_Click(2);
}

void Form1::Option_System(std::u16string_view value) {
    info.txtSystem.Set(value);
    cmdSetAll_Click(3);
}

void Form1::Option_Esrb(std::u16string_view value) {
    info.txtESRB.Set(value);
    cmdSetAll_Click(4);
}

void Form1::Option_Pad(std::u16string_view value) {
    txtPad.Set(value);
}

void Form1::Fail(int status, const Failure& failure) {
    status_ = status;
    desktop_.Report(failure);
}

}  // namespace bannersmith
