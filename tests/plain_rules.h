#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "banner/banner.h"
#include "base/numbers.h"
#include "base/text.h"
#include "inspect/report.h"
#include "inspect/warnings.h"
#include "layout/kind.h"
#include "layout/pieces.h"
#include "layout/text_box.h"
#include "mainwindow/command_line.h"

namespace bannersmith {

/// The rules of lookup and writing in their plainest form: split, search and replace as strings.
namespace plain {

using namespace std::string_literals;

inline std::vector<std::string> Split(const std::string& data, const std::string& separator = "|") {
    std::vector<std::string> pieces;
    std::size_t start = 0;
    for (std::size_t at; (at = data.find(separator, start)) != data.npos; start = at + separator.size()) {
        pieces.push_back(data.substr(start, at - start));
    }
    pieces.push_back(data.substr(start));
    return pieces;
}

template <typename Text>
Text Replaced(Text text, const Text& old, const Text& fresh) {
    for (std::size_t at = 0; (at = text.find(old, at)) != text.npos; at += fresh.size())
        text.replace(at, old.size(), fresh);
    return text;
}

inline std::string Find(const std::string& data, const std::string& name, const std::string& wanted) {
    std::string key;
    for (const std::string& piece : Split(data, "txt1")) {
        if (wanted.empty() || (piece.size() >= 8 + wanted.size() && piece.substr(8, wanted.size()) == wanted)) {
            key = "txt1" + piece.substr(0, 8 + name.size());
        }
    }
    const std::size_t at = key.empty() ? data.npos : data.find(key);
    if (at == data.npos || data.size() - at < 8) return {};
    const std::string record = data.substr(at, Read_U32(data, at + 4));
    if (record.size() < 0x50 || Read_U16(record, 0x4E) % 2) return {};
    return record;
}

inline std::size_t Tail(const std::string& record) {
    return Read_U16(record, 0x4E) + (record.ends_with("\0\0\0\0"s) ? 2U : 0U);
}

inline std::u16string Get(const std::string& data, const std::string& name) {
    const std::string record = Find(data, name, name + "\0\0"s);
    if (record.empty() || Tail(record) > record.size() - 0x50) return {};
    return Decode_Text(record.substr(record.size() - Tail(record)));
}

inline std::string Set(const std::string& data, std::string name, const std::u16string& text) {
    if (name.ends_with("_NONE")) name = name.substr(0, name.size() - 5) + '\0';
    const std::string old = text.empty() ? "" : Find(data, name, name);
    if (old.empty() || Tail(old) > old.size() - 0x50) return data;
    std::string fresh = old.substr(0, old.size() - Tail(old)) + Encode_Text(text) + "\0\0"s;
    const auto length = static_cast<std::uint16_t>(2 * text.size() + 2);
    if (length % 4) fresh += "\0\0"s;
    Write_U32(fresh, 4, static_cast<std::uint32_t>(fresh.size()));
    Write_U16(fresh, 0x4C, length);
    Write_U16(fresh, 0x4E, length);
    return Replaced(data, old, fresh);
}

inline const std::vector<std::string> Codes = Split("ENG|GER|FRA|ITA|SPA|NED|JPN|NONE");

/// The wording of a field ('T'itle, 'Y'ear, 'P'layers, or 'E'SRB) with "#" for the value.
inline std::u16string Wording(char field, const std::string& code) {
    static const std::vector<std::string> Wordings[] = {
        Split("Released: #|Erschienen: #|Publié en #|Pubblicato: #|Año: #|Release: #|#年発売"),
        Split("Players: #|# Spieler|Joueurs: #|Giocatori: #|Jugadores: #|# speler(s)|プレイ人数\n#人"),
        Split("ESRB Rating: #|ESRB Rating: #|Classement ESRB: #"),
        {"#"}};
    const std::vector<std::string>& words = Wordings[std::string("YPET").find(field)];
    const auto at = static_cast<std::size_t>(std::find(Codes.begin(), Codes.end(), code) - Codes.begin());
    return From_Utf8(at < words.size() ? words[at] : words[0]);
}

inline std::u16string Compose(char field, std::u16string value, const std::string& code) {
    if (value.empty() && field != 'T') value = field == 'P' ? u"2" : u"????";
    if (field == 'P' && value != u"1") value = u"1-" + value;
    if (field == 'P' && code == "JPN") value = Replaced<std::u16string>(value, u"-", u"～");
    return Replaced<std::u16string>(Wording(field, code), u"#", value);
}

inline std::string Prefix(char field) {
    return field == 'T' ? "T_VCTitle_" : field == 'Y' ? "T_Year_" : field == 'P' ? "T_Play_" : "T_ESRB_";
}

inline std::string Cut(const std::string& file) {
    if (const std::size_t at = file.rfind("gre1\0\0\0\x08"s); at != file.npos) return file.substr(0, at + 8);
    const std::size_t at = file.find("RootGroup\0\0\0\0\0\0\0\0\0\0\0"s);
    return at == file.npos ? file : file.substr(0, at + 20);
}

inline std::string Neutral(const std::string& data) {
    for (const std::string& code : Codes) {
        if (code != "NONE" && !Get(data, "T_VCTitle_" + code).empty()) return "";
    }
    const std::u16string year = Get(data, "T_Year");
    if (year.starts_with(u"Publié en ")) return "FRA";
    if (year.find(u':') == year.npos) return "JPN";
    for (const char* code : {"GER", "ITA", "SPA", "NED"}) {
        const std::u16string words = Wording('Y', code);
        if (year.substr(0, year.find(u':')) == words.substr(0, words.find(u':'))) return code;
    }
    return "ENG";
}

inline std::string Set_All(std::string data, char field, const std::u16string& value, const std::string& neutral) {
    for (const std::string& code : Codes) data = Set(data, Prefix(field) + code, Compose(field, value, code));
    if (neutral.empty()) return data;
    const std::string prefix = Prefix(field);
    return Set(data, prefix.substr(0, prefix.size() - 1), Compose(field, value, neutral));
}

/// Red, green and blue of the first and of the second colour.
using Six = std::vector<int>;

inline const std::vector<std::string> Materials = Split(
    "PFLine|T_PF|Shade|Back0|Back1|Back2|Back3|Back4|YearLine|PlayLine|T_VCTitle_|T_Play_|T_Year_|T_ESRB_|VCPic|"
    "VCPicBase|VCPicSha|BackMask1|BackMask2");

/// `scheme`: 19 times six numbers.
inline std::string Colored(std::string data, const std::vector<Six>& scheme) {
    for (std::size_t i = 0; i < Materials.size(); ++i) {
        for (std::size_t code = 0; code < 7; ++code) {
            std::string name = Materials[i].ends_with('_') ? Materials[i] + Codes[code] : Materials[i];
            name.resize(20, '\0');
            const std::size_t at = data.find(name);
            if (at == data.npos || at + 34 > data.size()) continue;
            data.replace(at + 22, 12, 12, '\0');
            for (std::size_t j = 0; j < 6; ++j) data[at + 21 + 2 * j + j / 3 * 2] = static_cast<char>(scheme[i][j]);
        }
    }
    return data;
}

inline std::string Forced(std::string data, const std::string& region) {
    const auto has_title = [&](const std::string& code) {
        return code != "NONE" && !Get(data, "T_VCTitle_" + code).empty();
    };
    const auto from = std::find_if(Codes.begin(), Codes.end(), has_title);
    if (region == "NONE" || has_title(region) || from == Codes.end()) return data;
    for (const char* stem : {"T_YEAR_", "T_PLAY_", "T_ESRB_", "L"}) data = Replaced(data, stem + *from, stem + region);
    return data;
}

inline std::string Trimmed(const std::string& text) { return *To_Bytes(Trim(From_Bytes(text))); }

inline std::string Capital(const std::string& text) { return *To_Bytes(Capitals(From_Bytes(text))); }

/// What a batch run makes of a file; nothing where it fails. The line has no path, each character of it is a byte, and
/// every scheme that it names is `scheme`.
inline std::optional<std::string> Batch(const std::string& file, const std::string& line,
                                        const std::vector<Six>& scheme = {}) {
    std::string data = Cut(file), force = "NONE", pad = "12000";
    const std::string neutral = Neutral(data);
    const std::vector<std::string> pieces = Split(line, "-");
    for (auto piece = pieces.begin() + 1; piece != pieces.end(); ++piece) {
        const std::string typed = piece->substr(0, piece->find(' ')), word = Capital(typed), start = word.substr(0, 2);
        const std::string code = word.substr(word.size() - std::min<std::size_t>(word.size(), 3));
        const bool of_a_language = start == "T_" || start == "Y_" || start == "E_";
        const std::size_t skipped = of_a_language ? 6 : word.size() + (word == "FORCE" || start == "H_" ? 0 : 1);
        if (piece->size() < skipped) continue;
        std::string value = Trimmed(piece->substr(skipped));
        if (word != "YEAR") value = Replaced<std::string>(value, "\"", "");
        if (word == "FORCE") {
            if (std::find(Codes.begin(), Codes.end(), Capital(value)) != Codes.end()) force = Capital(value);
        } else if (word == "COLOR") {
            data = Colored(data, scheme);
        } else if (word == "TITLE" || word == "YEAR" || word == "PLAY" || word == "ESRB") {
            data = Set_All(data, word[0], From_Bytes(value), neutral);
        } else if (word == "SYSTEM") {
            data = Set(data, "T_PF", From_Bytes(value));
        } else if (word == "PAD") {
            pad = value;
        } else if (of_a_language) {
            data = Set(data, Prefix(word[0]) + code, Compose(word[0], From_Bytes(value), code));
        } else if (start == "H_") {
            data = Set(data, typed.substr(2), From_Bytes(value));
        }
    }
    const bool add = pad.starts_with('+');
    if (add) pad.erase(0, 1);
    if ((pad.empty() && add) || pad.find_first_not_of("0123456789") != pad.npos) return std::nullopt;
    const double count = std::strtod(pad.c_str(), nullptr);
    if (count > 268435456) return std::nullopt;
    for (const std::string& code : Codes) {
        for (const char field : {'T', 'Y', 'P', 'E'})
            data = Set(data, Prefix(field) + code, Get(data, Prefix(field) + code));
    }
    data = Set(data, "T_PF", Get(data, "T_PF"));
    Write_U32(data, 8, static_cast<std::uint32_t>(data.size()));
    data = Forced(data, force);
    const std::size_t wanted = static_cast<std::size_t>(count) + (add ? data.size() : 0);
    return data + std::string(std::max(wanted, data.size()) - data.size(), '\0');
}

/// What the editor does otherwise than the rules say with a file and a command line, where every scheme named is
/// `scheme`, or there is none; empty where it keeps to them.
inline std::string Difference(const std::string& file, const std::string& line, const std::u16string& folder,
                              const std::vector<Six>& scheme = {}) {
    Banner banner = Banner::From_Bytes(file, BannerSource(folder + u"/a/b/c"));
    const std::string loaded = banner.Bytes();
    for (const Edit& edit : ParseClo(From_Bytes(line), folder).edits) {
        const std::string before = banner.Bytes();
        if (!banner.Apply(edit)) return scheme.empty() && std::holds_alternative<ApplyScheme>(edit) ? "" : "a failure";
        if (before == banner.Bytes()) continue;
        if (!banner.Undo() || banner.Bytes() != before || !banner.Redo() || banner.Redo()) return "undo, or redo";
    }
    if (banner.Has_Unsaved_Changes() != (banner.Bytes() != loaded)) return "unsaved changes";
    const auto plan = banner.Plan_Save();
    const auto expected = loaded.size() < 12 ? std::nullopt : Batch(file, line, scheme);
    if (static_cast<bool>(plan) != expected.has_value()) return "what fails";
    if (plan && plan->Layout() != *expected) return "bytes saved";
    while (banner.Undo()) continue;
    if (banner.Bytes() != loaded) return "the way back";
    std::string fields = loaded;
    for (const auto& [field, letter] : {std::pair{Field::players, 'P'}, {Field::year, 'Y'}, {Field::rating, 'E'}}) {
        for (const std::string code : {"NONE", "GER", "FRA"}) {
            static_cast<void>(banner.Apply(SetField{field, From_Bytes(code), u"7"}));
            fields = Set(fields, Prefix(letter) + code, Compose(letter, u"7", code == "NONE" ? Neutral(loaded) : code));
        }
    }
    if (banner.Bytes() != fields) return "single fields";
    const std::vector<std::string> names = Text_Box_Names(file);
    if (names.size() + 1 != Split(file, "txt1").size()) return "number of boxes";
    for (const auto test : {Pieces::Test::exact, Pieces::Test::prefix}) {
        const auto found =
            Pieces(file).Find_Records(file, std::vector<std::string_view>(names.begin(), names.end()), test);
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (found[i] != Pieces(file).Find_Record(file, names[i], test)) return "records found at once";
        }
    }
    if (!Is_Layout(file)) return "";
    const LayoutInfo layout = Read_Layout(file);
    for (const auto write : {Write_Json, Write_Text}) {
        write({"any", {}, layout, Find_Warnings(file, layout)}, [](std::string_view) {});
    }
    return "";
}

}  // namespace plain

}  // namespace bannersmith
