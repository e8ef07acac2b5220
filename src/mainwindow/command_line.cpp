// Batch mode: the command line's layout path and options.
#include <algorithm>
#include <array>
#include <new>

#include "colors/materials.h"
#include "gameinfo/boxes.h"
#include "gameinfo/composing.h"
#include "layout/mod_globals.h"
#include "mainwindow/form1.h"
#include "platform/files.h"
#include "platform/text.h"

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

int Form1::Run_Batch() {
    try {
        ParseClo();
    } catch (const std::bad_alloc&) {
        Fail(Failed, {txtSrc.Text(), "Not enough memory"});
    }
    if (status_ == Done) {
        cmdSave_Click();
    } else {
        Put_Textures_Back();
    }
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

void Form1::Take_Layout_Path(std::u16string_view piece) {
    std::u16string path(Trim(piece));
    if (!path.empty()) {
        if (!Is_Full_Path(path)) {
            if (!path.starts_with(u'\\')) path.insert(0, u"\\");
            path.insert(0, process_.program_folder);
        }
        BrlytPath = path;
        txtSrc.Set(path);
    }
    if (BrlytData.size() < HeaderBytes) Fail(NoLayout, Why_No_Layout());
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
