#include "mainwindow/run.h"

#include <algorithm>
#include <span>

#include "base/text.h"
#include "mainwindow/batch_run.h"
#include "system/process.h"

namespace bannersmith {

namespace {

constexpr std::u16string_view HelpWords[] = {u"--help", u"-h", u"-help", u"-?"};
constexpr std::u16string_view VersionWords[] = {u"--version", u"-v", u"-version"};

bool Is_One_Of(std::span<const std::u16string_view> words, std::u16string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// Why a command line cannot be meant as it stands; empty when it can.
std::string Fault_Of(std::u16string_view command_line) {
    if (command_line.find_first_of(u"\r\n") != command_line.npos) return "Holds a line break";
    return Is_Utf8(command_line) ? "" : "Is no UTF-8 text";
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

int Run_Batch_Mode(const std::u16string& command_line) {
    if (const std::string fault = Fault_Of(command_line); !fault.empty()) {
        Print_Failure({u"Command line", fault});
        return BatchRun::Failed;
    }
    return BatchRun({Program_Folder(), command_line}, Print_Failure).Run();
}

}  // namespace bannersmith
