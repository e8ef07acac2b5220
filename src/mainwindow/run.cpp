#include "mainwindow/run.h"

#include <cstdio>

#include "mainwindow/form1.h"
#include "platform/files.h"
#include "platform/text.h"

std::u16string Command_Line(int argc, char** argv) {
    std::string joined;
    for (int i = 1; i < argc; ++i) joined.append(i > 1 ? " " : "").append(argv[i]);
    return From_Utf8(joined);
}

bool Answer_About(const std::u16string& command_line, const std::string& program,
                  const std::string& usage) {
    std::string answer;
    if (command_line == u"--version") answer = program + " " BANNERSMITH_VERSION "\n";
    if (command_line == u"--help") answer = usage;
    std::fwrite(answer.data(), 1, answer.size(), stdout);
    return !answer.empty();
}

int Run_Batch_Mode(const std::u16string& command_line) {
    NoDesktop desktop;
    Form1 window({Program_Folder(), command_line}, desktop);
    return window.Form_Load().value_or(Form1::Done);
}
