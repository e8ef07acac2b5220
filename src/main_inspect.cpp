// bannersmith-inspect: shows what layout files hold and what an edit would not rewrite cleanly.
#include <cstdio>
#include <new>
#include <string>
#include <vector>

#include "inspect/report.h"
#include "inspect/sections.h"
#include "inspect/warnings.h"
#include "layout/file_length.h"
#include "platform/files.h"
#include "platform/process.h"
#include "platform/text.h"

namespace {

constexpr char Usage[] =
    "usage: bannersmith-inspect [--json] FILE...\n"
    "       bannersmith-inspect --help | --version\n"
    "\n"
    "Shows each layout file's lengths, text boxes, material colours and groups, and\n"
    "warns of everything that an edit would not rewrite cleanly. Changes nothing.\n"
    "\n"
    "Exit status: 0 no warning; 1 a warning; 2 a file that cannot be read or is no\n"
    "layout.\n";

/// Fills `report`, which points into `data`. The reason when the file cannot be inspected.
std::string Inspect(const std::u16string& file, std::string& data, FileReport& report) {
    try {
        if (const auto failure = Read_File(file, data)) return failure->reason;
        if (!Is_Layout(data)) return "Not a layout file";
        report.file = To_Utf8(file);
        report.info = Read_Layout(data);
        report.warnings = Find_Warnings(data, report.info);
        return {};
    } catch (const std::bad_alloc&) {
        return "Not enough memory";
    }
}

int Inspect_All(const std::vector<std::u16string>& files, bool json) {
    std::vector<FileReport> reports;
    std::vector<std::string> contents(files.size());  // the reports point into them
    int status = 0;
    for (std::size_t i = 0; i < files.size(); ++i) {
        FileReport report;
        const std::string reason = Inspect(files[i], contents[i], report);
        if (!reason.empty()) {
            Print("bannersmith-inspect: " + To_Utf8(files[i]) + ": " + reason + "\n", stderr);
            status = 2;
            continue;
        }
        if (!report.warnings.empty() && status == 0) status = 1;
        if (!json) Print(As_Text(report), stdout);
        reports.push_back(std::move(report));
    }
    if (json) Print(As_Json(reports), stdout);
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::u16string> files = Arguments(argc, argv);
    if (files.size() == 1 && files[0] == u"--help") return Print(Usage, stdout), 0;
    if (files.size() == 1 && files[0] == u"--version") {
        return Print("bannersmith-inspect " BANNERSMITH_VERSION "\n", stdout), 0;
    }
    const bool json = std::erase(files, u"--json") > 0;
    if (files.empty()) return Print(Usage, stderr), 2;
    return Inspect_All(files, json);
}
