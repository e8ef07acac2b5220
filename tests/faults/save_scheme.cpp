// save-scheme NAME: saves a scheme as the colour window does, for the program folder that it lies in.
#include "colors/frm_color.h"
#include "platform/process.h"
#include "platform/text.h"

namespace {

/// Answers the question for the name; knows whether something went wrong.
class Answering : public NoDesktop {
 public:
    explicit Answering(std::u16string name) : name_(std::move(name)) {}
    std::u16string Ask(const std::u16string& /*prompt*/, const std::u16string& /*title*/) override { return name_; }
    void Message(const std::u16string& /*text*/) override { saved_ = true; }
    bool Saved() const { return saved_; }

 private:
    std::u16string name_;
    bool saved_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    Answering desktop(From_Utf8(argv[1]));
    Form main_form;
    TextBox path;
    DropDownList schemes;
    const GameInfo info;
    frmColor window({main_form, path, schemes, info}, Program_Folder(), desktop);
    window.cmdSaveScheme_Click();
    return desktop.Saved() ? 0 : 1;
}
