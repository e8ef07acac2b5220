#include "colors/scheme.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "base/text.h"
#include "system/files.h"

namespace bannersmith {

namespace {

constexpr std::string_view Blanks = " \r\n";
constexpr std::string_view Separators = " \r\n,";

/// Takes the next number's text off the front: what stands up to a separator, and the separator
/// itself, which may be one comma with blanks and line ends around it.
std::string_view Take_Number(std::string_view& rest) {
    const auto skip_blanks = [&] {
        rest.remove_prefix(std::min(rest.find_first_not_of(Blanks), rest.size()));
    };
    skip_blanks();
    const std::string_view number = rest.substr(0, rest.find_first_of(Separators));
    rest.remove_prefix(number.size());
    skip_blanks();
    if (rest.starts_with(',')) rest.remove_prefix(1);
    return number;
}

Failure Fault(std::string reason) {
    return {{}, std::move(reason)};
}

Result<std::uint8_t> Parse_Component(std::string_view text) {
    std::string_view digits = text;
    if (digits.starts_with('+')) digits.remove_prefix(1);
    long value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    const bool whole =
        end == digits.data() + digits.size() && !digits.empty() && !text.starts_with("+-");
    if (error == std::errc::invalid_argument || !whole) {
        return Fault("\"" + std::string(text) + "\" is not a whole number");
    }
    if (error != std::errc() || value < 0 || value > 255) {
        return Fault(std::string(text) + " is not between 0 and 255");
    }
    return static_cast<std::uint8_t>(value);
}

void Append_Number(std::string& line, std::uint8_t number) {
    line += ' ' + std::to_string(number) + ' ';
}

}  // namespace

std::u16string Scheme_Folder(std::u16string_view program_folder) {
    return std::u16string(program_folder) + u"\\schemes\\";
}

std::u16string Scheme_Path(std::u16string_view program_folder, std::u16string_view name) {
    const std::u16string folder = Scheme_Folder(program_folder);
    const std::u16string path = folder + std::u16string(name) + From_Utf8(SchemeEnding);
    if (Ordinary_File_Exists(path)) return path;
    const auto files = List_Files(folder, {SchemeEnding});
    if (!files) return path;
    for (const std::u16string& file : *files) {
        if (Without_Ending(file) == name) return folder + file;
    }
    return path;
}

std::u16string_view Without_Ending(std::u16string_view file) {
    return file.substr(0, file.size() - SchemeEnding.size());
}

std::string Format_Scheme(const Scheme& scheme) {
    std::string contents;
    for (const ColorPair& pair : scheme) {
        for (const Color color : pair) {
            Append_Number(contents, Red_Of(color));
            Append_Number(contents, Green_Of(color));
            Append_Number(contents, Blue_Of(color));
        }
        contents += "\r\n";
    }
    return contents;
}

Result<Scheme> Parse_Scheme(std::string_view contents) {
    constexpr std::size_t NumbersPerElement = 6;
    std::vector<std::uint8_t> numbers;
    std::string_view rest = contents;
    while (numbers.size() < Elements.size() * NumbersPerElement) {
        if (rest.find_first_not_of(Blanks) == rest.npos) {
            return Fault("ends after " + std::to_string(numbers.size()) + " of 114 numbers");
        }
        const auto component = Parse_Component(Take_Number(rest));
        if (!component) {
            return Fault(To_Utf8(Elements[numbers.size() / NumbersPerElement].key) + ": " +
                         component.Why().reason);
        }
        numbers.push_back(*component);
    }
    Scheme scheme{};
    const std::uint8_t* next = numbers.data();
    for (ColorPair& pair : scheme) {
        for (Color& color : pair) {
            color = Make_Color(next[0], next[1], next[2]);
            next += 3;
        }
    }
    return scheme;
}

Result<Scheme> Load_Scheme(const std::u16string& path) {
    const auto contents = Read_File(path);
    if (!contents) return contents.Why();
    return Parse_Scheme(*contents).About(path);
}

}  // namespace bannersmith
