// make-layout BYTES: writes a layout of about that size to standard output.
#include <cstdio>
#include <cstdlib>

#include "samples/layout_builder.h"

int main(int argc, char** argv) {
    if (argc != 2) return 1;
    const std::string filler(std::strtoul(argv[1], nullptr, 10), 'x');
    const std::string layout = Layout_File({Text_Box_Section(Clean_Text_Box("T_VCTitle_ENG", u"A name", 0)),
                                            Text_Box_Section(Clean_Text_Box("T_PF", u"X", 0)), Section("usd1", filler),
                                            Empty_Section("gre1")});
    return std::fwrite(layout.data(), 1, layout.size(), stdout) == layout.size() ? 0 : 1;
}
