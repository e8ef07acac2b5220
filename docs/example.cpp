// Edits two banners with the engine alone: example FIRST SECOND
#include <cstdio>

#include "banner/banner.h"
#include "base/message.h"
#include "base/text.h"

using namespace bannersmith;

int main(int argc, char** argv) {
    const Edit edits[] = {SetFieldEverywhere{Field::title, u"Comet Chase"},
                          SetField{Field::title, u"GER", u"Kometenjagd"},
                          SetFieldEverywhere{Field::year, u"1994"}};
    for (int i = 1; i < argc; ++i) {
        auto banner = Banner::Load(BannerSource(From_Utf8(argv[i])));
        if (!banner) return std::puts(One_Line(banner.Why()).c_str()), 1;
        for (const Edit& edit : edits) {
            if (const auto done = banner->Apply(edit); !done) return 1;
        }
        if (i == 2) banner->Undo();  // the second one keeps its year
        const auto plan = banner->Plan_Save();
        const auto saved = plan ? banner->Save(*plan) : plan.Why();
        if (!saved) return std::puts(One_Line(saved.Why()).c_str()), 1;
    }
}
