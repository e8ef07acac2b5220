#include "mainwindow/run.h"

#include <algorithm>
#include <cstdlib>
#include <span>

#include "base/text.h"
#include "mainwindow/batch_run.h"
#include "system/data_folder.h"
#include "system/process.h"

namespace bannersmith {

namespace {

constexpr std::u16string_view HelpWords[] = {u"--help", u"-h", u"-help", u"-?"};
constexpr std::u16string_view VersionWords[] = {u"--version", u"-v", u"-version"};

bool Is_One_Of(std::span<const std::u16string_view> words, std::u16string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// Fails where a command line cannot be meant as it stands.
Result<> Check(std::u16string_view command_line) {
    const std::u16string subject = u"Command line";
    const bool broken = command_line.find_first_of(u"\r\n") != command_line.npos;
    if (broken) return Failure{subject, "Holds a line break"};
    if (!Is_Utf8(command_line)) return Failure{subject, "Is no UTF-8 text"};
    return {};
}

}  // namespace

std::optional<int> Answer_About(const std::u16string& command_line, const std::string& program,
                                const std::string& usage) {
    if (Is_One_Of(HelpWords, command_line)) return Print(usage, stdout) ? 0 : 1;
    if (Is_One_Of(VersionWords, command_line)) {
        return Print(program + " " BANNERSMITH_VERSION "\n", stdout) ? 0 : 1;
    }
    const bool one_word = command_line.find(u' ') == command_line.npos;
    if (!one_word || !command_line.starts_with(u"--")) return std::nullopt;
    Print(usage, stderr);
    return 2;
}

std::optional<std::u16string> File_To_Open(const std::vector<std::u16string>& arguments) {
    if (!arguments.empty() && arguments[0] != u"--open") return std::nullopt;
    std::u16string file;
    for (std::size_t i = 1; i < arguments.size(); ++i) file += (i > 1 ? u" " : u"") + arguments[i];
    return file;
}

int Run_Batch_Mode(const std::u16string& command_line) {
    if (const auto checked = Check(command_line); !checked) {
        Print_Failure(checked.Why());
        return BatchRun::Failed;
    }
    return BatchRun({Data_Folder(std::getenv), command_line}, Print_Failure).Run();
}

}  // namespace bannersmith
