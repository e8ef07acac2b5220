// limit FILE FOLDER: the least that saving a file safely takes, in the folder that it lies in: read it,
// write a temporary file, sync, rename, sync the folder.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc != 3) return 1;
    const int file = ::open(argv[1], O_RDONLY);
    struct stat info {};
    if (file < 0 || ::fstat(file, &info) != 0) return 1;
    const auto size = static_cast<std::size_t>(info.st_size);
    auto* bytes = static_cast<char*>(std::malloc(size));
    if (bytes == nullptr || ::read(file, bytes, size) != info.st_size) return 1;
    ::close(file);

    char temporary[4096];
    std::snprintf(temporary, sizeof temporary, "%s/.limit", argv[2]);
    const int fresh = ::open(temporary, O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fresh < 0 || ::write(fresh, bytes, size) != info.st_size) return 1;
    if (::fsync(fresh) != 0 || ::close(fresh) != 0 || ::rename(temporary, argv[1]) != 0) return 1;
    const int folder = ::open(argv[2], O_RDONLY | O_DIRECTORY);
    return ::fsync(folder) == 0 ? 0 : 1;
}
