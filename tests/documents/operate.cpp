// operate: works in the windows of the program folder that it lies in, without a toolkit. Each line of standard input
// is something that a person does or looks at; messages, questions and what is looked at go to standard output,
// failures to standard error. Controls have their names in the code, those of the second windows behind "colors." and
// "editor."; TEXT is UTF-8 and runs to the end of the line.
//     set BOX TEXT              types into a text box
//     pick LIST ENTRY           picks an entry by its text, or by its number from 0
//     click BUTTON [ARGUMENTS]  what a click, or the end of a window, runs
//     show CONTROL...           what they show
//     list LIST                 all entries
//     read NAME                 a text box of the layout in memory
//     write NAME TEXT           the same, written
//     keep FILE                 writes the layout in memory to a file
//     answer TEXT               what questions are answered with from now on; only "yes" confirms
//     ! COMMAND                 runs a command of the shell
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>
#include <variant>

#include "base/text.h"
#include "gameinfo/boxes.h"
#include "mainwindow/form1.h"
#include "system/process.h"

using namespace bannersmith;

namespace {

using AnyControl = std::variant<TextBox*, DropDownList*, Label*, ColorBox*>;

std::string Line(std::u16string_view text) {
    return To_Utf8(Replace_All(Replace_All(text, u"\r", u"\\r"), u"\n", u"\\n"));
}
std::string Line(Color color) { return Line(VbColor2RGB(color)); }
std::string Line(const TextBox* box) { return Line(box->Text()); }
std::string Line(const DropDownList* list) { return Line(list->Selected()); }
std::string Line(const Label* label) { return Line(label->Caption()); }
std::string Line(const ColorBox* box) { return Line(box->Value()); }

std::string Line(const Area& area) {
    std::ostringstream line;
    line << " at " << area.left << " " << area.top << " " << area.width << " " << area.height;
    return line.str();
}
std::string Line(const Shape& shape) {
    return Line(shape.fill) + " in " + Line(shape.border) + Line(shape.area) + (shape.rounded ? " rounded" : "");
}

std::string Line(const DrawnLabel& label) {
    constexpr const char* Alignments[] = {"left", "centre", "right"};
    std::ostringstream line;
    line << Line(label.color) << " " << Line(label.text) << Line(label.area) << ", " << Line(label.font.family) << " "
         << label.font.points << " " << Alignments[static_cast<int>(label.alignment)]
         << (label.wraps ? " wrapped" : "");
    return line.str();
}

/// The first, the second and the last band of a fade.
std::string Line(const Surface& surface) {
    const auto& bands = surface.Painted();
    std::ostringstream line;
    line << bands.size() << " bands";
    for (const std::size_t i : {std::size_t{0}, std::size_t{1}, bands.size() - 1}) {
        if (i >= bands.size()) continue;
        line << ", " << Line(bands[i].color) << Line(Area{bands[i].x1, bands[i].y1, bands[i].x2, bands[i].y2});
    }
    return line.str();
}

std::string Line(const Preview& preview) {
    std::string lines;
    const auto add = [&](const char* name, const auto& shown) { lines += "\n  " + (name + (" " + Line(shown))); };
    add("Shape1", preview.Shape1);
    add("shpBack1", preview.shpBack1);
    for (const Shape& line : preview.shpPFLine) add("shpPFLine", line);
    add("shpVcPic", preview.shpVcPic);
    add("shpBackMask2", preview.shpBackMask2);
    add("lblT_PF", preview.lblT_PF);
    add("lblT_Year", preview.lblT_Year);
    add("lblT_Play", preview.lblT_Play);
    add("lblT_VCTitle", preview.lblT_VCTitle);
    add("lblT_ESRB", preview.lblT_ESRB);
    for (const DrawnLabel& row : preview.lblBack1) add("lblBack1", row);
    add("shpYearLine", preview.shpYearLine);
    add("shpPlayLine", preview.shpPlayLine);
    add("surface", preview.surface);
    return lines + "\n  lines" + Line(Preview::YearLineArea) + " and" + Line(Preview::PlayLineArea);
}

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
    std::u16string Open_File(const std::u16string& filter, const std::u16string& last) override {
        return Ask(filter, u"file beside " + last);
    }
    std::u16string Ask(const std::u16string& prompt, const std::u16string& title) override {
        std::cout << Line(title) << ": " << Line(prompt) << std::endl;
        return answer;
    }
    Color Choose_Color(Color color) override {
        return answer.empty() ? color : static_cast<Color>(std::stoul(To_Utf8(answer), nullptr, 16));
    }
    /// Each character as wide as the font is high.
    float Text_Width(std::u16string_view text, const Font& font) override {
        return static_cast<float>(text.size()) * font.points * 20;
    }
    /// Has no character beyond ASCII.
    std::u16string In_Code_Page(std::u16string_view text) override {
        std::u16string kept(text);
        std::replace_if(
            kept.begin(), kept.end(), [](char16_t unit) { return unit > 0x7F; }, u'?');
        return kept;
    }
};

class Person {
 public:
    /// Does what the lines say. The status is 1 when what was told last is a failure, 2 when a line cannot be done.
    int Work(std::istream& lines) {
        if (!main_.Form_Load()) return 1;
        for (std::string line; std::getline(lines, line);) {
            try {
                Do(line);
            } catch (const std::bad_alloc&) {  // a window goes on
                desktop_.Report({u"operate", "Not enough memory"});
            } catch (const std::exception&) {
                Print("operate: cannot do: " + line + "\n", stderr);
                return 2;
            }
        }
        return desktop_.failed ? 1 : 0;
    }

 private:
    using Acts = std::map<std::string, std::function<void(std::istream&)>>;

    void Do(const std::string& line) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        std::istringstream rest(line.substr(std::min(blank + 1, line.size())));
        acts_.at(line.substr(0, blank))(rest);
    }

    static std::string Word(std::istream& line) {
        std::string word;
        line >> word;
        return word;
    }
    static std::u16string Rest(std::istream& line) {
        std::string text;
        std::getline(line.peek() == ' ' ? line.ignore() : line, text);
        return From_Utf8(text);
    }
    static std::int16_t Number(std::istream& line) {
        std::int16_t number = -1;
        line >> number;
        return number;
    }

    std::map<std::string, AnyControl> Controls() {
        GameInfo& info = main_.info;
        std::map<std::string, AnyControl> controls = {
            {"txtSrc", &main_.txtSrc},           {"txtPad", &main_.txtPad},
            {"txtName", &info.txtName},          {"txtYear", &info.txtYear},
            {"txtPlayers", &info.txtPlayers},    {"txtESRB", &info.txtESRB},
            {"txtSystem", &info.txtSystem},      {"cmbName", &info.cmbRegion[0]},
            {"cmbYear", &info.cmbRegion[1]},     {"cmbPlayers", &info.cmbRegion[2]},
            {"cmbESRB", &info.cmbRegion[3]},     {"cmbForce", &main_.cmbForce},
            {"cmbFileList", &main_.cmbFileList}, {"cmbLogo", &main_.cmbLogo},
            {"lblLoaded", &main_.lblLoaded},     {"lblLastCommand", &main_.lblLastCommand}};
        if (frmColor* colors = main_.ColorWindow.get()) {
            controls.merge(std::map<std::string, AnyControl>{{"colors.cmbFileList", &colors->cmbFileList},
                                                             {"colors.txtBannerPath", &colors->txtBannerPath},
                                                             {"colors.txtR", &colors->txtR},
                                                             {"colors.txtG", &colors->txtG},
                                                             {"colors.txtB", &colors->txtB},
                                                             {"colors.picClr", &colors->picClr},
                                                             {"colors.lblEdit", &colors->lblEdit}});
        }
        if (frmHC* editor = main_.TextEditor.get()) {
            controls.merge(
                std::map<std::string, AnyControl>{{"editor.cmbHC", &editor->cmbHC}, {"editor.txtHC", &editor->txtHC}});
        }
        return controls;
    }
    DropDownList& List(std::istream& line) { return *std::get<DropDownList*>(Controls().at(Word(line))); }

    static void Say(const std::string& name, const std::string& shown) {
        std::cout << name << (shown.empty() || shown[0] == '\n' ? ":" : ": ") << shown << std::endl;
    }

    void Show(const std::string& name) {
        std::string shown;
        if (name == "form") {
            shown = main_.form.Enabled() ? "enabled" : "disabled";
        } else if (name == "colors.preview") {
            shown = Line(main_.ColorWindow->preview);
        } else if (name == "colors.pic") {
            for (const frmColor::Boxes& pair : main_.ColorWindow->pic) {
                shown += (shown.empty() ? "" : " ") + Line(&pair[0]) + "," + Line(&pair[1]);
            }
        } else {
            shown = std::visit([](const auto* control) { return Line(control); }, Controls().at(name));
        }
        Say(name, shown);
    }

    void Pick(std::istream& line) {
        DropDownList& list = List(line);
        const std::u16string entry = Rest(line);
        const auto& entries = list.Entries();
        const auto found = std::find(entries.begin(), entries.end(), entry);
        list.Pick(found == entries.end() ? std::stoi(To_Utf8(entry)) : static_cast<int>(found - entries.begin()));
    }

    TalkingDesktop desktop_;
    Form1 main_{{Program_Folder(), u""}, desktop_};

    const Acts buttons_ = {
        {"cmdSet", [this](std::istream& line) { main_.cmdSet_Click(Number(line)); }},
        {"cmdSetAll", [this](std::istream& line) { main_.cmdSetAll_Click(Number(line)); }},
        {"cmbRegion", [this](std::istream& line) { main_.cmbRegion_click(Number(line)); }},
        {"cmdSave", [this](std::istream&) { main_.cmdSave_Click(); }},
        {"cmdFileBrowse", [this](std::istream&) { main_.cmdFileBrowse_Click(); }},
        {"cmdEditColor", [this](std::istream&) { main_.cmdEditColor_Click(); }},
        {"cmdHC", [this](std::istream&) { main_.cmdHC_Click(); }},
        {"close", [this](std::istream&) { std::cout << (main_.May_Close() ? "closes" : "stays open") << std::endl; }},
        {"colors.cmdGetScheme", [this](std::istream&) { main_.ColorWindow->cmdGetScheme_Click(); }},
        {"colors.cmdSaveScheme", [this](std::istream&) { main_.ColorWindow->cmdSaveScheme_Click(); }},
        {"colors.cmdColor", [this](std::istream&) { main_.ColorWindow->cmdColor_Click(); }},
        {"colors.picClr", [this](std::istream&) { main_.ColorWindow->picClr_Click(); }},
        {"colors.pic",
         [this](std::istream& line) {
             const std::u16string key = From_Utf8(Word(line));
             main_.ColorWindow->pic_Click(key, Number(line));
         }},
        {"colors.close", [this](std::istream&) { main_.Close_Color_Window(); }},
        {"editor.cmdSet", [this](std::istream&) { main_.TextEditor->cmdSet_Click(); }},
        {"editor.close", [this](std::istream&) { main_.Close_Text_Editor(); }},
    };
    const Acts acts_ = {
        {"set",
         [this](std::istream& line) {
             auto* box = std::get<TextBox*>(Controls().at(Word(line)));
             box->Set(Rest(line));
         }},
        {"pick", [this](std::istream& line) { Pick(line); }},
        {"click", [this](std::istream& line) { buttons_.at(Word(line))(line); }},
        {"show",
         [this](std::istream& line) {
             for (std::string name; line >> name;) Show(name);
         }},
        {"list",
         [this](std::istream& line) {
             for (const std::u16string& entry : List(line).Entries()) std::cout << Line(entry) << "|";
             std::cout << std::endl;
         }},
        {"read",
         [this](std::istream& line) {
             const std::string name = Word(line);
             Say(name, Line(Read_Box(main_.BrlytData, From_Utf8(name))));
         }},
        {"write",
         [this](std::istream& line) {
             const std::u16string name = From_Utf8(Word(line));
             main_.Apply(WriteBox{name, Rest(line)});
         }},
        {"keep", [this](std::istream& line) { std::ofstream(Word(line), std::ios::binary) << main_.BrlytData; }},
        {"answer", [this](std::istream& line) { desktop_.answer = Rest(line); }},
        {"!",
         [](std::istream& line) {
             const std::u16string command = Rest(line);
             if (std::system(To_Utf8(command).c_str()) != 0) std::cout << "failed: " << Line(command) << std::endl;
         }},
    };
};

}  // namespace

int main() {
    std::ostringstream lines;
    lines << std::cin.rdbuf();
    if (std::ferror(stdin) != 0) {
        Print("bannersmith: standard input: cannot be read\n", stderr);
        return 1;
    }
    std::istringstream input(lines.str());
    return Person().Work(input);
}
