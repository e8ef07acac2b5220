// The command line's options on a small layout in memory; where files are named there are none.
#include <cstdlib>

#include "base/text.h"
#include "generate/banners.h"
#include "layout/mod_globals.h"
#include "mainwindow/form1.h"

using namespace bannersmith;

namespace {

/// Counts failures in place of telling them.
class Silent : public NoDesktop {
 public:
    int failures = 0;
    void Report(const Failure& failure) override {
        if (failure.reason.empty()) std::abort();
        ++failures;
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    static const std::string banner = Banner_Without_Closing_Group();
    BrlytData = banner;
    Silent desktop;
    // The hyphen makes the layout path empty, so that the layout in memory is the one that is edited.
    Form1 window({u"/nowhere", u"-" + From_Utf8({reinterpret_cast<const char*>(bytes), size})}, desktop);
    window.ParseClo();
    if (desktop.failures > 1) std::abort();  // the first one ends the run
    if (!BrlytData.starts_with("RLYT") || BrlytData.size() < banner.size() / 2) std::abort();
    return 0;
}
