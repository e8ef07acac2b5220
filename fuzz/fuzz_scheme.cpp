// The scheme reader: a text is refused with a reason and changes nothing, or is read, and then survives being
// written and read again.
#include <cstdlib>

#include "colors/scheme.h"

using namespace bannersmith;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    const Scheme before{};
    Scheme scheme = before, again = before;
    if (!Parse_Scheme({reinterpret_cast<const char*>(bytes), size}, scheme).empty()) {
        if (scheme != before) std::abort();
        return 0;
    }
    const std::string contents = Format_Scheme(scheme);
    if (!Parse_Scheme(contents, again).empty() || again != scheme) std::abort();
    return 0;
}
