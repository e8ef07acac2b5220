// hold-file FILE: keeps FILE open, as a program does that lets others read it only. Says "held" when it does and
// ends with its standard input.
#include <windows.h>

#include <cstdio>

int main(int argc, char** argv) {
    const HANDLE file = ::CreateFileA(argc > 1 ? argv[1] : "", GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return 1;
    std::puts("held");
    std::fflush(stdout);
    std::getchar();
    return 0;
}
