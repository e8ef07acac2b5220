// bannersmith: batch mode itself; without command-line text it hands over to the program with the
// windows, so that a batch run never pays for a toolkit.
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "mainwindow/run.h"
#include "mainwindow/usage.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/memory.h"
#include "platform/text.h"

namespace {

/// Replaces this process by the program with the windows; returns only when that fails.
int Start_Window(char** argv) {
    const std::u16string window = Program_Folder() + u"/bannersmith-window";
    ::execv(To_Utf8(window).c_str(), argv);
    NoDesktop().Report(
        {window, std::string("The windows cannot be started: ") + std::strerror(errno)});
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    const std::u16string command_line = Command_Line(argc, argv);
    if (Answer_About(command_line, "bannersmith", Usage)) return 0;
    if (command_line.empty()) return Start_Window(argv);
    Take_Memory_At_Once();
    return Run_Batch_Mode(command_line);
}
