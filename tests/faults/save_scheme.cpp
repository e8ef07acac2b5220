// save-scheme NAME: saves a scheme as a person does in the windows of the program folder that it lies in.
#include <cstdio>

#include "../noting_desktop.h"
#include "mainwindow/form1.h"
#include "system/process.h"

using namespace bannersmith;

int main(int argc, char** argv) {
    NotingDesktop desktop;
    Form1 main({Program_Folder(), u""}, desktop);
    if (!main.Form_Load()) return 1;
    main.txtSrc.Set(u"none");  // a layout that cannot be read would leave other colours to save
    main.cmdEditColor_Click();
    desktop.said.clear();
    desktop.answer = Command_Line(argc, argv);
    main.ColorWindow->cmdSaveScheme_Click();
    const std::size_t failure = desktop.said.find('{');
    if (failure != std::string::npos) std::fprintf(stderr, "bannersmith: %s\n", desktop.said.c_str() + failure);
    return desktop.said.ends_with(']') ? 0 : 1;
}
