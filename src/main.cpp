// bannersmith: batch mode itself; without command-line text it hands over to the program with the
// windows, so that a batch run never pays for a toolkit.
#include "mainwindow/run.h"
#include "mainwindow/usage.h"
#include "system/process.h"

using namespace bannersmith;

namespace {

/// On success the windows have taken over; the exit status otherwise.
int Start_Window(char** argv) {
    const auto started = Start_Program(u"bannersmith-window", argv);
    if (started) return 0;
    Print_Failure(
        {started.Why().subject, "The windows cannot be started: " + started.Why().reason});
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (File_To_Open(Arguments(argc, argv))) return Start_Window(argv);
    const std::u16string command_line = Command_Line(argc, argv);
    if (const auto status = Answer_About(command_line, "bannersmith", Usage)) return *status;
    return Run_Batch_Mode(command_line);
}
