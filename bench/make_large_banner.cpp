// make-large-banner BYTES BOXES: writes such a layout to standard output. make-large-banner channel: a channel's file
// whose pictures compress as badly as photographs, so that it is as large as real ones.
#include <cstdio>
#include <cstdlib>
#include <random>

#include "container/archive.h"
#include "generate/channel.h"
#include "generate/texture.h"
#include "large_banner.h"

using namespace bannersmith;

namespace {

std::string Real_Size_Channel() {
    std::mt19937 random(1);
    const auto photograph = [&](int width, int height) {
        return Texture_File(TextureFormat::rgb565, width, height, [&](int x, int y) {
            const auto noise = [&] { return static_cast<double>(random() % 1000) / 4000; };
            return Pixel{noise() + x * 0.5 / width, noise() + y * 0.5 / height, noise() + 0.2, 1};
        });
    };
    const NewFiles pictures = {{"meta/banner.bin/arc/timg/VCPic.tpl", photograph(256, 192)},
                               {"meta/icon.bin/arc/timg/IconVCPic.tpl", photograph(128, 96)}};
    return *Archive::Read(Sample_Channel())->With(pictures, {});
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2 && argc != 3) return 1;
    const std::string banner =
        argc == 2 ? Real_Size_Channel()
                  : Large_Banner(std::strtoul(argv[1], nullptr, 10), std::strtoul(argv[2], nullptr, 10));
    return std::fwrite(banner.data(), 1, banner.size(), stdout) == banner.size() ? 0 : 1;
}
