#include "files/curve_file_io.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>

namespace gw {
namespace {

std::string Describe(int err) { return std::strerror(err); }

}  // namespace

bool ReadFileBytes(const std::string& path, std::string& bytes, std::string& error, std::size_t limit) {
    struct stat info {};
    if (stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode)) {
        error = Describe(EISDIR);
        return false;
    }
    std::FILE* f = std::fopen(path.c_str(), "rb");
    if (!f) {
        error = Describe(errno);
        return false;
    }
    bytes.clear();
    char buffer[65536];
    while (bytes.size() < limit) {
        size_t want = std::min(sizeof buffer, limit - bytes.size());
        size_t got = std::fread(buffer, 1, want, f);
        bytes.append(buffer, got);
        if (got < want) break;
    }
    const bool failed = std::ferror(f) != 0;
    const int err = errno;
    std::fclose(f);
    if (failed) {
        error = Describe(err);
        return false;
    }
    return true;
}

}  // namespace gw
