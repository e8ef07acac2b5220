// A command line on a small layout in memory, beside the plainest form of the rules; where files are named there are
// none.
#include <cstdlib>

#include "banner/banner.h"
#include "base/text.h"
#include "generate/banners.h"
#include "mainwindow/command_line.h"
#include "plain_rules.h"

using namespace bannersmith;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    static const std::string file = Banner_Without_Closing_Group();
    const std::u16string text = u"-" + From_Utf8({reinterpret_cast<const char*>(bytes), size});
    Banner banner = Banner::From_Bytes(file, BannerSource(u"/nowhere/x"));
    bool failed = false;
    for (const Edit& edit : ParseClo(text, u"/nowhere").edits) {
        const auto applied = banner.Apply(edit);
        failed = failed || !applied;
        if (!applied && applied.Why().reason.empty()) std::abort();
    }
    if (failed) return 0;
    const auto plan = banner.Plan_Save();
    const auto expected = plain::Batch(file, text);
    // The plain rules are told for bytes and for no more padding than a fuzzer should make.
    if (plan && expected && plan->Layout() != *expected) std::abort();
    return 0;
}
