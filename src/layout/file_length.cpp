#include "layout/file_length.h"

#include "base/numbers.h"

namespace bannersmith {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t FileLengthOffset = 8;
constexpr std::string_view ClosingGroup = "gre1\0\0\0\x08"sv;
constexpr std::string_view EmptyRootGroup = "RootGroup\0\0\0\0\0\0\0\0\0\0\0"sv;

std::optional<std::size_t> Read_Count(std::u16string_view digits) {
    if (digits.empty()) return std::nullopt;
    std::size_t count = 0;
    for (const char16_t digit : digits) {
        if (digit < u'0' || digit > u'9') return std::nullopt;
        count = count * 10 + (digit - u'0');
        if (count > MostPadding) return std::nullopt;
    }
    return count;
}

/// Groups can be nested, so the layout ends with the last closing group, not with the first.
std::size_t Find_Last(std::string_view data, std::string_view wanted) {
    std::size_t last = data.npos;
    for (std::size_t at = data.find(wanted); at != data.npos; at = data.find(wanted, at + 1))
        last = at;
    return last;
}

}  // namespace

std::string Set_File_Len(std::string tmpFile) {
    if (tmpFile.size() < HeaderBytes) return tmpFile;
    Write_U32(tmpFile, FileLengthOffset, static_cast<std::uint32_t>(tmpFile.size()));
    return tmpFile;
}

std::optional<Padding> Read_Padding(std::u16string_view text) {
    if (text.empty()) return Padding{true, 0};
    const bool append = text.front() == u'+';
    const auto count = Read_Count(text.substr(append ? 1 : 0));
    if (!count) return std::nullopt;
    return Padding{append, *count};
}

std::string AddPadding(std::string TheFile, const Padding& padding) {
    const std::size_t wanted = padding.count + (padding.append ? TheFile.size() : 0);
    if (wanted > TheFile.size()) TheFile.resize(wanted, '\0');
    return TheFile;
}

std::string CutPadding(std::string TheFile) {
    if (const std::size_t at = Find_Last(TheFile, ClosingGroup); at != TheFile.npos) {
        TheFile.resize(at + ClosingGroup.size());
    } else if (const std::size_t root = TheFile.find(EmptyRootGroup); root != TheFile.npos) {
        TheFile.resize(root + EmptyRootGroup.size());
    }
    return TheFile;
}

}  // namespace bannersmith
