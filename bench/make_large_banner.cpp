// make-large-banner BYTES BOXES: writes such a layout to standard output.
#include <cstdio>
#include <cstdlib>

#include "large_banner.h"

using namespace bannersmith;

int main(int argc, char** argv) {
    if (argc != 3) return 1;
    const std::string banner = Large_Banner(std::strtoul(argv[1], nullptr, 10), std::strtoul(argv[2], nullptr, 10));
    return std::fwrite(banner.data(), 1, banner.size(), stdout) == banner.size() ? 0 : 1;
}
