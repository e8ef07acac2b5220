// grouped_limit FILE...: the least that saving many files safely in groups takes: read each, write a temporary file
// beside it; then sync them all, put each in its place, and sync each folder once.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr int MostInGroup = 64;

struct Fresh {
    std::string file, temporary, folder;
    int written;
};

bool Write(const char* file, Fresh& fresh) {
    const int old = ::open(file, O_RDONLY);
    struct stat info {};
    if (old < 0 || ::fstat(old, &info) != 0) return false;
    std::string bytes(static_cast<std::size_t>(info.st_size), '\0');
    if (::read(old, bytes.data(), bytes.size()) != info.st_size) return false;
    ::close(old);
    fresh.file = file;
    fresh.folder = fresh.file.substr(0, fresh.file.rfind('/'));
    fresh.temporary = fresh.file + ".limit";
    fresh.written = ::open(fresh.temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    return fresh.written >= 0 && ::write(fresh.written, bytes.data(), bytes.size()) == info.st_size;
}

bool Save(const std::vector<Fresh>& group) {
    std::set<std::string> folders;
    for (const Fresh& fresh : group) {
        if (::fsync(fresh.written) != 0 || ::close(fresh.written) != 0) return false;
    }
    for (const Fresh& fresh : group) {
        if (::rename(fresh.temporary.c_str(), fresh.file.c_str()) != 0) return false;
        folders.insert(fresh.folder);
    }
    for (const std::string& folder : folders) {
        const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY);
        if (::fsync(opened) != 0) return false;
        ::close(opened);
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<Fresh> group;
    for (int i = 1; i < argc; ++i) {
        group.emplace_back();
        if (!Write(argv[i], group.back())) return 1;
        if (group.size() < MostInGroup && i + 1 < argc) continue;
        if (!Save(group)) return 1;
        group.clear();
    }
    return 0;
}
