// Any bytes as an archive: what is read is given back as it was, and holds what is put into it.
#include <cstdlib>

#include "container/archive.h"
#include "texture/tpl.h"

using namespace bannersmith;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    const std::string file(reinterpret_cast<const char*>(bytes), size);
    const auto archive = Archive::Read(file);
    if (!archive && archive.Why().reason.empty()) std::abort();
    if (!archive) return 0;
    const auto look = [](const std::string&, std::string_view content) {
        static_cast<void>(Decode_Texture(content));
        return Result<>();
    };
    static_cast<void>(archive->Visit_Files(look));
    const std::string layout(archive->Layout());
    if (*archive->With({}, archive->Names()) != file) std::abort();
    const auto saved = archive->With({{archive->Layout_Path(), layout + "more"}}, {});
    if (!saved) {
        if (archive->Warnings().empty()) std::abort();
        return 0;
    }
    const auto again = Archive::Read(*saved);
    if (!layout.empty() && (!again || again->Layout() != layout + "more")) std::abort();
    return 0;
}
