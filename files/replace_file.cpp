#include "files/replace_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace gw {
namespace {

bool WriteAll(int fd, std::string_view bytes, off_t offset, int& err) {
    while (!bytes.empty()) {
        const ssize_t n = ::pwrite(fd, bytes.data(), bytes.size(), offset);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            err = n < 0 ? errno : EIO;
            return false;
        }
        bytes.remove_prefix(static_cast<size_t>(n));
        offset += n;
    }
    return true;
}

bool CloseChecked(int fd, int& err) {
    // Some file systems report a failed write only here.
    if (::close(fd) != 0 && errno != EINTR) {
        err = errno;
        return false;
    }
    return true;
}

std::string Folder(const std::string& path) {
    const size_t slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

// The file a chain of symbolic links leads to; the path itself when it is none.
// Links that loop, or go on too long, stop the walk and are reported by the writes.
std::string FollowLinks(std::string path) {
    for (int hops = 0; hops < 40; ++hops) {
        char target[4096];
        const ssize_t n = ::readlink(path.c_str(), target, sizeof target);
        if (n <= 0 || static_cast<size_t>(n) >= sizeof target) return path;
        std::string next(target, static_cast<size_t>(n));
        path = next[0] == '/' ? next : Folder(path) + "/" + next;
    }
    return path;
}

void SyncFolder(const std::string& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);  // the rename itself reaches the disk; best effort
    ::close(fd);
}

// A new file beside the target, with a name of our own; -1 and `err` when the folder
// takes none.
int MakeTemporary(const std::string& folder, std::string& name, int& err) {
    std::random_device seed;
    std::mt19937 random(seed());
    for (int attempt = 0; attempt < 100; ++attempt) {
        name = folder + "/.gradewise-" + std::to_string(random() % 100000000u) + ".tmp";
        // 0666 less the user's umask, as any new file; an existing target's mode is
        // copied over it below.
        const int fd = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0) return fd;
        if (errno != EEXIST) break;
    }
    err = errno;
    return -1;
}

// Writes a device or pipe as it is: nothing else can be done with one.
bool WriteInPlace(const std::string& path, std::string_view bytes, int& err) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        err = errno;
        return false;
    }
    ::fcntl(fd, F_SETFL, 0);  // opened without waiting for a reader; written waiting
    bool ok = true;
    for (std::string_view left = bytes; ok && !left.empty();) {
        const ssize_t n = ::write(fd, left.data(), left.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            err = n < 0 ? errno : EIO;
            ok = false;
        } else {
            left.remove_prefix(static_cast<size_t>(n));
        }
    }
    return CloseChecked(fd, err) && ok;
}

// The folder takes no new file but the file itself is writable: reserve the room for
// the new content first, so that a full disk is found before anything is overwritten.
bool RewriteReserved(const std::string& path, std::string_view bytes, int& err) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    if (fd < 0) {
        err = errno;
        return false;
    }
    bool ok = true;
    if (!bytes.empty()) {
        const int reserved = ::posix_fallocate(fd, 0, static_cast<off_t>(bytes.size()));
        if (reserved != 0) {
            err = reserved;
            ok = false;
        }
    }
    ok = ok && WriteAll(fd, bytes, 0, err);
    if (ok && ::ftruncate(fd, static_cast<off_t>(bytes.size())) != 0) {
        err = errno;
        ok = false;
    }
    if (ok && ::fsync(fd) != 0) {
        err = errno;
        ok = false;
    }
    return CloseChecked(fd, err) && ok;
}

bool Replace(const std::string& path, std::string_view bytes, int& err) {
    const std::string target = FollowLinks(path);
    struct stat old {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (exists && S_ISDIR(old.st_mode)) {
        err = EISDIR;
        return false;
    }
    if (exists && !S_ISREG(old.st_mode)) return WriteInPlace(target, bytes, err);

    const std::string folder = Folder(target);
    std::string temporary;
    const int fd = MakeTemporary(folder, temporary, err);
    if (fd < 0) {
        if (exists && (err == EACCES || err == EPERM)) return RewriteReserved(target, bytes, err);
        return false;
    }
    bool ok = true;
    if (exists) {
        if (::fchmod(fd, old.st_mode & 07777) != 0) {
            err = errno;
            ok = false;
        }
        // Root saving someone's file leaves it theirs; anyone else cannot give files away.
        if (ok && ::geteuid() == 0) (void)!::fchown(fd, old.st_uid, old.st_gid);
    }
    ok = ok && WriteAll(fd, bytes, 0, err);
    if (ok && ::fsync(fd) != 0) {
        err = errno;
        ok = false;
    }
    ok = CloseChecked(fd, err) && ok;
    if (ok && ::rename(temporary.c_str(), target.c_str()) != 0) {
        err = errno;
        ok = false;
    }
    if (!ok) {
        ::unlink(temporary.c_str());
        return false;
    }
    SyncFolder(folder);
    return true;
}

}  // namespace

bool ReplaceFile(const std::string& path, std::string_view bytes, std::string& error) {
    int err = 0;
    if (path.empty()) {
        error = std::strerror(ENOENT);
        return false;
    }
    if (Replace(path, bytes, err)) return true;
    error = std::strerror(err);
    return false;
}

}  // namespace gw
