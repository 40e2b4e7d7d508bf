#pragma once
// Disks and folders that refuse writes, for the tests of what a failed write leaves.
//
// FullDisk: a folder on a full disk. Where the machine allows it
// (root, as in CI) a small tmpfs is mounted on the folder and filled to the last
// byte; elsewhere a file-size limit of zero stands in, which fails writes as a full
// disk does (EFBIG instead of ENOSPC). Either way `Errno()` is what a write meets.

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gw::test {

class FullDisk {
public:
    // `folder` is created; with a tmpfs it is the disk's root.
    explicit FullDisk(const std::filesystem::path& folder) : m_folder(folder) {
        std::filesystem::create_directories(folder);
        m_mounted = ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k,mode=0777") == 0;
        if (!m_mounted) {
            std::cerr << "[ note     ] no tmpfs can be mounted here: a file-size limit stands in for the full disk\n";
        }
    }
    ~FullDisk() {
        if (m_mounted) ::umount2(m_folder.c_str(), MNT_DETACH);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    const std::filesystem::path& Folder() const { return m_folder; }
    bool Mounted() const { return m_mounted; }
    int Errno() const { return m_mounted ? ENOSPC : EFBIG; }

    // Takes every free byte of the tmpfs (the limit needs nothing).
    void Fill() {
        if (!m_mounted) return;
        const int fd = ::open((m_folder / "ballast").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        ASSERT_GE(fd, 0);
        const std::string block(4096, 'x');
        while (::write(fd, block.data(), block.size()) > 0) {
        }
        while (::write(fd, "x", 1) > 0) {
        }
        ::close(fd);
    }

    // While it lives, this process writes as onto the full disk (nothing with a tmpfs).
    class Limit {
    public:
        explicit Limit(bool apply) : m_apply(apply) {
            if (!m_apply) return;
            ::getrlimit(RLIMIT_FSIZE, &m_saved);
            m_handler = std::signal(SIGXFSZ, SIG_IGN);
            rlimit none = m_saved;
            none.rlim_cur = 0;
            ::setrlimit(RLIMIT_FSIZE, &none);
        }
        ~Limit() {
            if (!m_apply) return;
            ::setrlimit(RLIMIT_FSIZE, &m_saved);
            std::signal(SIGXFSZ, m_handler);
        }
        Limit(const Limit&) = delete;
        Limit& operator=(const Limit&) = delete;

    private:
        bool m_apply;
        rlimit m_saved{};
        void (*m_handler)(int) = nullptr;
    };
    Limit WritesFail() const { return Limit(!m_mounted); }

    // For a child process between fork and exec: the same as WritesFail.
    void WritesFailInChild() const {
        if (m_mounted) return;
        rlimit none{0, RLIM_INFINITY};
        ::getrlimit(RLIMIT_FSIZE, &none);
        none.rlim_cur = 0;
        ::setrlimit(RLIMIT_FSIZE, &none);
    }

private:
    std::filesystem::path m_folder;
    bool m_mounted = false;
};

// While it lives, `folder` takes no new file but `file` in it may still be written:
// root is "nobody" for the while (root may write into any folder); anyone else has
// the folder's write permission taken away.
class ReadOnlyFolder {
public:
    ReadOnlyFolder(const std::filesystem::path& folder, const std::filesystem::path& file) : m_folder(folder) {
        if (::geteuid() == 0) {
            m_asNobody = true;
            EXPECT_EQ(::chown(file.c_str(), kNobody, kNobody), 0);
            EXPECT_EQ(::chmod(folder.c_str(), 0755), 0);
            EXPECT_EQ(::setegid(kNobody), 0);
            EXPECT_EQ(::seteuid(kNobody), 0);
        } else {
            EXPECT_EQ(::chmod(folder.c_str(), 0555), 0);
        }
    }
    ~ReadOnlyFolder() {
        if (m_asNobody) {
            EXPECT_EQ(::seteuid(0), 0);
            EXPECT_EQ(::setegid(0), 0);
        } else {
            ::chmod(m_folder.c_str(), 0755);
        }
    }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

private:
    static constexpr uid_t kNobody = 65534;
    std::filesystem::path m_folder;
    bool m_asNobody = false;
};

}  // namespace gw::test
