// operate: works in the windows of the program folder that it lies in, without a toolkit, as the lines of standard
// input say; messages, questions and what is looked at go to standard output, failures to standard error. TEXT runs to
// the end.
//     set BOX TEXT              types into txtSrc or txtName
//     click BUTTON [NUMBER]     cmdSave, cmdSet, cmdSetAll, cmdEditColor, colors.cmdSaveScheme
//     show lblLoaded            what is loaded
//     list cmbFileList          the schemes
//     read NAME                 a text box of the layout in memory
//     answer TEXT               what questions are answered with from now on; only "yes" confirms
//     ! COMMAND                 runs a command of the shell
#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <new>
#include <sstream>

#include "base/text.h"
#include "mainwindow/form1.h"
#include "system/process.h"

using namespace bannersmith;

namespace {

std::string Line(std::u16string_view text) { return To_Utf8(Replace_All(text, u"\r", u"\\r")); }

/// Prints what it is shown and gives the same answer to everything.
class TalkingDesktop : public Desktop {
 public:
    std::u16string answer;
    bool failed = false;  ///< what was told last is a failure

    void Report(const Failure& failure) override {
        failed = true;
        Print_Failure(failure);
    }
    void Message(const std::u16string& text) override {
        failed = false;
        std::cout << "message: " << Line(text) << std::endl;
    }
    bool Confirm(const std::u16string& question) override { return Ask(question, u"question") == u"yes"; }
    std::u16string Open_File(const std::u16string&, const std::u16string&) override { return answer; }
    std::u16string Ask(const std::u16string& prompt, const std::u16string& title) override {
        std::cout << Line(title) << ": " << Line(prompt) << std::endl;
        return answer;
    }
    Color Choose_Color(Color color) override { return color; }
    float Text_Width(std::u16string_view, const Font&) override { return 0; }
    std::u16string In_Code_Page(std::u16string_view text) override { return std::u16string(text); }
};

/// Does what the lines say. The status is 1 when what was told last is a failure.
int Work(std::istream& lines) {
    TalkingDesktop desktop;
    Form1 main({Program_Folder(), u""}, desktop);
    if (!main.Form_Load()) return 1;
    using Acts = std::map<std::string, std::function<void(const std::u16string& rest)>>;
    const auto number = [](const std::u16string& rest) { return static_cast<std::int16_t>(std::stoi(To_Utf8(rest))); };
    const Acts acts = {
        {"set txtSrc", [&](const auto& rest) { main.txtSrc.Set(rest); }},
        {"set txtName", [&](const auto& rest) { main.info.txtName.Set(rest); }},
        {"click cmdSave", [&](const auto&) { main.cmdSave_Click(); }},
        {"click cmdSet", [&](const auto& rest) { main.cmdSet_Click(number(rest)); }},
        {"click cmdSetAll", [&](const auto& rest) { main.cmdSetAll_Click(number(rest)); }},
        {"click cmdEditColor", [&](const auto&) { main.cmdEditColor_Click(); }},
        {"click colors.cmdSaveScheme", [&](const auto&) { main.ColorWindow->cmdSaveScheme_Click(); }},
        {"show lblLoaded",
         [&](const auto&) { std::cout << "lblLoaded: " << Line(main.lblLoaded.Caption()) << std::endl; }},
        {"list cmbFileList",
         [&](const auto&) {
             for (const std::u16string& entry : main.cmbFileList.Entries()) std::cout << Line(entry) << "|";
             std::cout << std::endl;
         }},
        {"read T_VCTitle_ENG",
         [&](const auto&) {
             std::cout << "T_VCTitle_ENG: " << Line(Read_Box(main.BrlytData, u"T_VCTitle_ENG")) << std::endl;
         }},
        {"answer", [&](const auto& rest) { desktop.answer = rest; }},
        {"!", [](const auto& rest) { std::cout << (std::system(To_Utf8(rest).c_str()) == 0 ? "" : "failed\n"); }},
    };
    for (std::string line; std::getline(lines, line);) {
        const auto act =
            std::find_if(acts.rbegin(), acts.rend(), [&](const auto& each) { return line.starts_with(each.first); });
        if (act == acts.rend()) return Print("operate: cannot do: " + line + "\n", stderr), 2;
        try {
            act->second(From_Utf8(line.substr(std::min(act->first.size() + 1, line.size()))));
        } catch (const std::bad_alloc&) {  // a window goes on
            desktop.Report({u"operate", "Not enough memory"});
        }
    }
    return desktop.failed ? 1 : 0;
}

}  // namespace

int main() {
    std::ostringstream lines;
    lines << std::cin.rdbuf();
    if (std::ferror(stdin) != 0) {
        Print_Failure({u"standard input", "cannot be read"});
        return 1;
    }
    std::istringstream input(lines.str());
    return Work(input);
}
