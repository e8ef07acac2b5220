#include "layout/file_length.h"

#include <optional>

#include "base/numbers.h"
#include "layout/format.h"

namespace bannersmith {

namespace {

using ending::ClosingGroup, ending::EmptyRootGroup;

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
    if (tmpFile.size() < header::LengthEnd) return tmpFile;
    Write_U32(tmpFile, header::FileLength, static_cast<std::uint32_t>(tmpFile.size()));
    return tmpFile;
}

Result<Padding> Read_Padding(std::u16string_view text) {
    if (text.empty()) return Padding{true, 0};
    const bool append = text.front() == u'+';
    const auto count = Read_Count(text.substr(append ? 1 : 0));
    if (count) return Padding{append, *count};
    return Failure{std::u16string(u"Padding \"").append(text).append(u"\""),
                   "Not a whole number up to 268435456, with or without + in front of it"};
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
