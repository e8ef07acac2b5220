// make-large-banner BYTES BOXES: writes such a layout to standard output. make-large-banner channel: a channel's file
// whose pictures compress as badly as photographs, so that it is as large as real ones.
#include <cstdio>
#include <cstdlib>

#include "generate/channel.h"
#include "large_banner.h"

using namespace bannersmith;

int main(int argc, char** argv) {
    if (argc != 2 && argc != 3) return 1;
    const std::string banner =
        argc == 2 ? Real_Size_Channel()
                  : Large_Banner(std::strtoul(argv[1], nullptr, 10), std::strtoul(argv[2], nullptr, 10));
    return std::fwrite(banner.data(), 1, banner.size(), stdout) == banner.size() ? 0 : 1;
}
