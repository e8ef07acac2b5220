// peak COMMAND ARGS...: runs a command and prints its peak memory in KiB. A small program of its own,
// since a process begins with the peak of the one that it was forked from.
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cstdio>

extern char** environ;

int main(int argc, char** argv) {
    pid_t child = 0;
    if (argc < 2 || ::posix_spawn(&child, argv[1], nullptr, nullptr, argv + 1, environ) != 0) return 1;
    int status = 0;
    struct rusage usage {};
    if (::wait4(child, &status, 0, &usage) != child || status != 0) return 1;
    std::printf("%ld\n", usage.ru_maxrss);
}
