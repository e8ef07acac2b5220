#include "mainwindow/run.h"

#include "mainwindow/form1.h"
#include "platform/process.h"

bool Answer_About(const std::u16string& command_line, const std::string& program,
                  const std::string& usage) {
    std::string answer;
    if (command_line == u"--version") answer = program + " " BANNERSMITH_VERSION "\n";
    if (command_line == u"--help") answer = usage;
    Print(answer, stdout);
    return !answer.empty();
}

int Run_Batch_Mode(const std::u16string& command_line) {
    NoDesktop desktop;
    Form1 window({Program_Folder(), command_line}, desktop);
    return window.Form_Load().value_or(Form1::Done);
}
