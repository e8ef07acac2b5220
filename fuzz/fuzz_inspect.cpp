// The inspect tool on any bytes.
#include <string>

#include "inspect/report.h"
#include "inspect/warnings.h"
#include "layout/kind.h"
#include "layout/sections.h"

using namespace bannersmith;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    const std::string data(reinterpret_cast<const char*>(bytes), size);
    if (!Is_Layout(data)) return 0;
    FileReport report{"fuzzed", {}, Read_Layout(data), {}};
    report.warnings = Find_Warnings(data, report.info);
    const auto nowhere = [](std::string_view) {};
    Write_Text(report, nowhere);
    Write_Json(report, nowhere);
    return 0;
}
