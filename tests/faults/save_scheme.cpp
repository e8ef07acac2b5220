// save-scheme NAME: saves a scheme as a person does in the windows of the program folder that it lies in.
#include "../noting_desktop.h"
#include "mainwindow/form1.h"
#include "system/process.h"

using namespace bannersmith;

namespace {

struct Person : NotingDesktop {
    void Report(const Failure& failure) override { Print_Failure(failure); }
};

}  // namespace

int main(int argc, char** argv) {
    Person person;
    Form1 main({Program_Folder(), u""}, person);
    if (!main.Form_Load()) return 1;
    main.txtSrc.Set(u"none");  // a layout that cannot be read would leave other colours to save
    main.cmdEditColor_Click();
    person.answer = Command_Line(argc, argv);
    main.ColorWindow->cmdSaveScheme_Click();
    return person.said.ends_with(']') ? 0 : 1;  // a message behind the question: it is saved
}
