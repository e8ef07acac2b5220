// bannersmith-inspect: shows what layout files hold and what an edit would not rewrite cleanly.
#include <cstdio>
#include <new>
#include <string>
#include <vector>

#include "banner/banner.h"
#include "base/message.h"
#include "base/text.h"
#include "inspect/drawing.h"
#include "inspect/extract.h"
#include "inspect/report.h"
#include "inspect/warnings.h"
#include "layout/file_length.h"
#include "layout/kind.h"
#include "layout/sections.h"
#include "system/files.h"
#include "system/process.h"

using namespace bannersmith;

namespace {

constexpr char Usage[] =
    "usage: bannersmith-inspect [--json] FILE...\n"
    "       bannersmith-inspect --extract FOLDER FILE\n"
    "       bannersmith-inspect --help | --version\n"
    "\n"
    "Shows each layout's lengths, text boxes, material colours and groups, for one in\n"
    "an archive also its files and the channel's names, and warns of everything that\n"
    "an edit would not rewrite cleanly. Changes nothing.\n"
    "\n"
    "  --json             write one JSON array for all files\n"
    "  --extract FOLDER   write the files of an archive, unpacked, below FOLDER\n"
    "\n"
    "Exit status: 0 no warning; 1 a warning, or the output cannot be written; 2 a\n"
    "file that cannot be read or is no layout.\n";

constexpr int Clean = 0, Warned = 1, NotRead = 2;

/// Standard output in large pieces.
class StandardOutput {
 public:
    void Write(std::string_view text) {
        constexpr std::size_t Piece = std::size_t{1} << 16;
        buffer_ += text;
        if (buffer_.size() > Piece) Flush();
    }

    /// Whether everything up to here has been written.
    bool Flush() {
        written_ = written_ && Print(buffer_, stdout);
        buffer_.clear();
        return written_;
    }

 private:
    std::string buffer_;
    bool written_ = true;
};

/// The layout of a file, which may be an archive.
struct Opened {
    std::string data;
    std::optional<Archive> archive;
};

Result<Opened> Open(const std::u16string& file) {
    auto data = Read_File(Layout_File_Of(file)).About(file);
    if (!data) return data.Why();
    if (Is_Layout(*data)) return Opened{std::move(*data), {}};
    if (Is_Program(*data)) return Failure{file, "Is a program, not a layout file"};
    if (!Archive::Begins_As_One(*data)) return Failure{file, "Not a layout file"};
    auto archive = Archive::Read(std::move(*data)).About(file);
    if (!archive) return archive.Why();
    const std::string layout(archive->Layout());
    if (!Is_Layout(layout)) return Failure{file, archive->Layout_Path() + ": Not a layout file"};
    return Opened{layout, std::move(*archive)};
}

std::optional<ChannelNames> Names_Of(const Opened& opened) {
    return opened.archive ? opened.archive->Names() : std::nullopt;
}

/// What the menu would show otherwise than it is meant; nothing of an archive that is not read.
void Add_Drawing_Warnings(const std::u16string& file, FileReport& report) {
    const auto banner = Banner::Load(BannerSource(Layout_File_Of(file), file), 0);
    if (!banner || !Is_Layout(banner->Bytes())) return;
    static auto font = still::Font::Open(Program_Folder(), u"");
    still::Font* letters = font && font->Has_Letters() ? &*font : nullptr;
    for (Warning& warning : Find_Drawing_Warnings(*banner, report.info, letters)) {
        report.warnings.push_back(std::move(warning));
    }
}

/// Writes the report of a file behind `before`. Returns the file's exit status.
Result<int> Inspect(const std::u16string& file, bool json, const char* before,
                    StandardOutput& output) {
    try {
        const auto opened = Open(file);
        if (!opened) return opened.Why();
        FileReport report{To_Utf8(file), {}, Read_Layout(opened->data), {}};
        report.warnings = Find_Warnings(opened->data, report.info);
        Add_Drawing_Warnings(file, report);
        if (opened->archive) report.archive = Read_Archive_Info(*opened->archive);
        if (json) report.values = Values_Of(CutPadding(opened->data), Names_Of(*opened));
        output.Write(before);
        const auto write = [&](std::string_view text) { output.Write(text); };
        json ? Write_Json(report, write) : Write_Text(report, write);
        const bool warned =
            !report.warnings.empty() || (report.archive && !report.archive->warnings.empty());
        return warned ? Warned : Clean;
    } catch (const std::bad_alloc&) {
        return Failure{file, "Not enough memory"};
    }
}

/// One file after the other, so that no more than one is in memory.
int Inspect_All(const std::vector<std::u16string>& files, bool json) {
    StandardOutput output;
    int status = Clean;
    const char* before = json ? "[" : "";
    for (const std::u16string& file : files) {
        const auto inspected = Inspect(file, json, before, output);
        if (inspected) {
            before = json ? ", " : "";
        } else {
            output.Flush();
            Print("bannersmith-inspect: " + One_Line(inspected.Why()) + "\n", stderr);
        }
        status = std::max(status, inspected ? *inspected : NotRead);
    }
    if (json) output.Write(*before == '[' ? "[]\n" : "]\n");
    if (output.Flush()) return status;
    Print("bannersmith-inspect: standard output: Cannot be written\n", stderr);
    return Warned;
}

int Extract(const std::u16string& folder, const std::u16string& file) {
    const auto opened = Open(file);
    const auto extracted = !opened            ? Result<>(opened.Why())
                           : !opened->archive ? Failure{file, "Is no archive"}
                                              : Extract_Files(*opened->archive, folder);
    if (extracted) return Clean;
    Print("bannersmith-inspect: " + One_Line(extracted.Why()) + "\n", stderr);
    return opened && opened->archive ? Warned : NotRead;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::u16string> files = Arguments(argc, argv);
    if (files.size() == 1 && files[0] == u"--help") return Print(Usage, stdout) ? 0 : 1;
    if (files.size() == 1 && files[0] == u"--version") {
        return Print("bannersmith-inspect " BANNERSMITH_VERSION "\n", stdout) ? 0 : 1;
    }
    if (files.size() == 3 && files[0] == u"--extract") return Extract(files[1], files[2]);
    const bool json = std::erase(files, u"--json") > 0;
    const bool misused = !files.empty() && files[0] == u"--extract";
    if (files.empty() || misused) return Print(Usage, stderr), 2;
    return Inspect_All(files, json);
}
