#include "mainwindow/layout_file.h"

#include <utility>

#include "layout/format.h"
#include "system/code_page.h"
#include "system/files.h"
#include "system/interruptions.h"

namespace bannersmith {

Configuration::Configuration(const std::u16string& program_folder)
    : path_(program_folder + u"\\cfgs\\vcinfopath.cfg") {}

Result<std::u16string> Configuration::Read() const {
    const auto contents = Read_File(path_);
    if (!contents) return contents.Why();
    if (contents->empty()) {
        return Failure{path_, "Holds no line; write one with any path into it"};
    }
    return From_Code_Page(contents->substr(0, contents->find_first_of("\r\n")));
}

void Configuration::Store(const std::u16string& line) const {
    const std::string stored = To_Code_Page(line);
    const bool one_line = stored.find_first_of("\r\n") == stored.npos;
    if (!one_line || From_Code_Page(stored) != line) return;
    const auto before = Read_File(path_);
    if (before && *before == stored + "\r\n") return;
    const InterruptionsHeld held;
    static_cast<void>(Replace_File(path_, stored + "\r\n"));
}

namespace {

/// Of a path that names a folder nothing is loaded.
OpenedLayout Load_Brlyt(const std::u16string& BrlytPath, const std::u16string& text,
                        std::size_t history) {
    if (Ends_In_Separator(BrlytPath)) return {};
    auto banner = Banner::Load({BrlytPath, text}, history);
    if (!banner) return {{}, banner.Why().reason};
    return {std::move(*banner), {}};
}

}  // namespace

OpenedLayout Open_Layout(const std::u16string& program_folder, const std::u16string& text,
                         std::size_t history) {
    const std::u16string BrlytPath = Layout_File_Of(Resolve(program_folder, text));
    if (!Ordinary_File_Exists(BrlytPath)) return {};
    OpenedLayout opened = Load_Brlyt(BrlytPath, text, history);
    Configuration(program_folder).Store(text);
    return opened;
}

std::u16string Banner_In_Folder(const std::u16string& path) {
    if (!Is_Folder(path).Value_Or(false) || Layout_File_Of(path) != path) return path;
    const auto names = List_Files(path, {".app", ".bnr", ".brlyt"}).Value_Or({});
    const std::u16string name = names.size() == 1 ? names[0] : u"00000000.app";
    return Ordinary_File_Exists(path + u"\\" + name) ? path + u"\\" + name : path;
}

Failure Why_No_Layout(const OpenedLayout& opened, const std::u16string& program_folder,
                      const std::u16string& text, const std::u16string& unnamed) {
    if (text.empty()) return {unnamed, "Names no layout file"};
    if (!opened.why_not.empty()) return {text, opened.why_not};
    const auto bytes = Read_File(Resolve(program_folder, text));
    if (!bytes) return {text, bytes.Why().reason};
    return {text,
            bytes->size() < header::LengthEnd ? "Too short to be a layout" : "No layout is loaded"};
}

Result<> Save_Uninterrupted(const Banner& banner, const SavePlan& plan, const FolderLock& lock,
                            const Notice& notice) {
    const InterruptionsHeld held;
    return banner.Save(plan, lock, notice);
}

std::u16string Logo_Path(const std::u16string& program_folder, std::u16string_view lgPath) {
    std::u16string path(lgPath);
    if (lgPath.starts_with(u'\\')) return program_folder + path;
    return Is_Full_Path(lgPath) ? path : program_folder + u"\\logos\\" + path;
}

}  // namespace bannersmith
