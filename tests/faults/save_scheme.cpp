// save-scheme NAME: saves a scheme as a person does in the windows of the program folder that it lies in.
#include "mainwindow/form1.h"
#include "system/process.h"

using namespace bannersmith;

namespace {

/// Answers with the scheme's name.
struct Person : Desktop {
    std::u16string name;
    int status = 1;

    void Report(const Failure& failure) override { Print_Failure(failure); }
    void Message(const std::u16string&) override { status = 0; }
    bool Confirm(const std::u16string&) override { return false; }
    std::u16string Open_File(const std::u16string&, const std::u16string&) override { return {}; }
    std::u16string Save_File(const std::u16string&, const std::u16string&) override { return {}; }
    std::u16string Ask(const std::u16string&, const std::u16string&) override { return name; }
    Color Choose_Color(Color color) override { return color; }
    float Text_Width(std::u16string_view, const Font&) override { return 0; }
    std::u16string In_Code_Page(std::u16string_view text) override { return std::u16string(text); }
};

}  // namespace

int main(int argc, char** argv) {
    Person person;
    Form1 main({Program_Folder(), u""}, person);
    if (!main.Form_Load()) return 1;
    main.txtSrc.Set(u"none");  // a layout that cannot be read would leave other colours to save
    main.cmdEditColor_Click();
    person.name = Command_Line(argc, argv);
    person.status = 1;  // whatever was told up to here
    main.ColorWindow->cmdSaveScheme_Click();
    return person.status;
}
