// What the strict small tools begin and end with: the questions about the program, the parser of
// its options, and what is told where it cannot work.
#pragma once

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <new>
#include <string>
#include <vector>

#include "base/message.h"
#include "base/text.h"
#include "system/process.h"

namespace bannersmith {

/// The exit statuses of such a tool.
namespace tool_status {
inline constexpr int Done = 0, NotWritten = 1, NotRead = 2;
}

/// A tool by its name, with what `--help` prints.
struct Tool {
    const char *name, *usage;

    /// Writes a failure to standard error as one line behind the tool's name.
    void Tell(const Failure& failure) const { Say(One_Line(failure) + "\n"); }

    /// Runs `work`, which takes the arguments and returns the exit status, unless they ask about
    /// the program. Options that the parser refuses are told with the usage, and lack of memory.
    template <typename Work>
    int Run(int argc, char** argv, Work work) const {
        const std::vector<std::u16string> arguments = Arguments(argc, argv);
        if (arguments == std::vector<std::u16string>{u"--help"}) return Answer(usage);
        if (arguments == std::vector<std::u16string>{u"--version"}) {
            return Answer(std::string(name) + " " BANNERSMITH_VERSION "\n");
        }
        try {
            return work(arguments);
        } catch (const CLI::Error& error) {
            Say(std::string(error.what()) + "\n" + usage);
        } catch (const std::bad_alloc&) {
            Tell({u"", "Not enough memory"});
        }
        return tool_status::NotRead;
    }

    /// Lets `parser` read the arguments, which it takes from the last to the first.
    static void Parse(CLI::App& parser, const std::vector<std::u16string>& arguments) {
        std::vector<std::string> backwards;
        backwards.reserve(arguments.size());
        for (const std::u16string& argument : arguments) backwards.push_back(To_Utf8(argument));
        std::reverse(backwards.begin(), backwards.end());
        parser.set_help_flag();
        parser.allow_windows_style_options(false);  // a path begins with a slash
        parser.parse(std::move(backwards));
    }

 private:
    void Say(const std::string& text) const { Print(std::string(name) + ": " + text, stderr); }
    static int Answer(const std::string& text) {
        return Print(text, stdout) ? tool_status::Done : tool_status::NotWritten;
    }
};

}  // namespace bannersmith
