// The scheme reader: a text is refused with a reason, or is read, and then survives being written and read again.
#include <cstdlib>

#include "colors/scheme.h"

using namespace bannersmith;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    const auto scheme = Parse_Scheme({reinterpret_cast<const char*>(bytes), size});
    if (!scheme && scheme.Why().reason.empty()) std::abort();
    if (!scheme) return 0;
    const auto again = Parse_Scheme(Format_Scheme(*scheme));
    if (!again || *again != *scheme) std::abort();
    return 0;
}
