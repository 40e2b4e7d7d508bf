#include "files/settings_store.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "files/replace_file.h"

namespace gw {
namespace {

namespace fs = std::filesystem;

constexpr size_t kMaxStoreBytes = 1 << 20;  // far beyond any store the program writes
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Values may hold any character; line breaks and backslashes are escaped so that
// one entry stays one line.
std::string Escape(const std::string& value) {
    std::string out;
    for (char c : value) {
        switch (c) {
            case '\\': out += "\\\\"; break;
            case '\n': out += "\\n"; break;
            case '\r': out += "\\r"; break;
            default: out += c;
        }
    }
    return out;
}

std::string Unescape(const std::string& text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) {
            const char n = text[++i];
            out += n == 'n' ? '\n' : n == 'r' ? '\r' : n;
        } else {
            out += text[i];
        }
    }
    return out;
}

// The file's bytes. A missing file is empty; anything else that gives no bytes is a
// problem, described in `problem`. Only plain files are opened, and never waited on.
std::string ReadStore(const std::string& path, std::string& problem) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        if (errno != ENOENT && errno != ENOTDIR) problem = std::strerror(errno);
        return {};
    }
    std::string content;
    struct stat info {};
    if (::fstat(fd, &info) != 0) {
        problem = std::strerror(errno);
    } else if (!S_ISREG(info.st_mode)) {
        problem = "it is not a plain file";
    } else {
        char buffer[65536];
        for (;;) {
            const ssize_t n = ::read(fd, buffer, sizeof buffer);
            if (n < 0 && errno == EINTR) continue;
            if (n < 0) {
                problem = std::strerror(errno);
                break;
            }
            if (n == 0) break;
            content.append(buffer, static_cast<size_t>(n));
            if (content.size() > kMaxStoreBytes) {
                problem = "it is larger than 1 MiB";
                break;
            }
        }
    }
    ::close(fd);
    if (!problem.empty()) content.clear();
    return content;
}

// Keeps other copies of the program out of the store's folder while one changes it.
// Never waits long: a copy that hangs holding the lock must not hang this one.
class FolderLock {
public:
    explicit FolderLock(const std::string& folder) : m_fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        for (int attempt = 0; m_fd >= 0 && attempt < 300; ++attempt) {
            if (::flock(m_fd, LOCK_EX | LOCK_NB) == 0) return;
            if (errno != EWOULDBLOCK && errno != EINTR) return;  // no locks here: go on without
            ::usleep(10000);
        }
    }
    ~FolderLock() {
        if (m_fd >= 0) ::close(m_fd);  // releases the lock
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

private:
    int m_fd;
};

}  // namespace

const std::string* SettingsStore::Sections::Find(const std::string& section, const std::string& key) const {
    for (const Section& s : m_sections) {
        if (s.name != section) continue;
        for (const auto& [k, v] : s.entries) {
            if (k == key) return &v;
        }
    }
    return nullptr;
}

SettingsStore::Sections::Section& SettingsStore::Sections::Named(const std::string& name) {
    for (Section& s : m_sections) {
        if (s.name == name) return s;
    }
    m_sections.push_back({name, {}});
    return m_sections.back();
}

void SettingsStore::Sections::Set(const std::string& section, const std::string& key, const std::string& value) {
    Section& s = Named(section);
    for (auto& [k, v] : s.entries) {
        if (k == key) {
            v = value;
            return;
        }
    }
    s.entries.emplace_back(key, value);
}

std::vector<std::string> SettingsStore::Sections::Values(const std::string& section) const {
    std::vector<std::string> values;
    for (const Section& s : m_sections) {
        if (s.name != section) continue;
        for (const auto& entry : s.entries) values.push_back(entry.second);
    }
    return values;
}

SettingsStore::SettingsStore(std::string filePath) : m_path(std::move(filePath)) {}

SettingsStore::Sections SettingsStore::Load() const {
    Sections sections;
    std::string problem;
    std::string content = ReadStore(m_path, problem);
    if (!problem.empty()) {
        if (m_readProblem.empty()) {
            m_readProblem = "The settings in " + m_path + " could not be read (" + problem +
                            "). Gradewise works with its defaults and leaves that file as it is.";
        }
        return sections;
    }
    // A store saved by an editor that marks UTF-8 files.
    if (content.compare(0, kByteOrderMark.size(), kByteOrderMark) == 0) content.erase(0, kByteOrderMark.size());

    std::istringstream lines(content);
    std::string line;
    Sections::Section* current = nullptr;
    while (std::getline(lines, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty() || line[0] == ';' || line[0] == '#') continue;
        if (line[0] == '[') {
            const size_t close = line.find(']');
            // A garbled header: its keys are ignored.
            current = close == std::string::npos ? nullptr : &sections.Named(line.substr(1, close - 1));
            continue;
        }
        const size_t eq = line.find('=');
        if (!current || eq == std::string::npos || eq == 0) continue;
        const std::string key = line.substr(0, eq);
        const std::string value = Unescape(line.substr(eq + 1));
        bool replaced = false;
        for (auto& [k, v] : current->entries) {
            if (k == key) {
                v = value;
                replaced = true;
            }
        }
        if (!replaced) current->entries.emplace_back(key, value);
    }
    return sections;
}

bool SettingsStore::Change(const std::function<void(Sections&)>& change, std::string* error) {
    auto fail = [&](const std::string& why) {
        if (error) *error = why;
        return false;
    };
    std::error_code ec;
    const fs::path path(m_path);
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    fs::create_directories(folder, ec);
    if (ec) return fail(std::strerror(ec.value()));
    const FolderLock lock(folder.string());
    Sections sections = Load();
    if (!m_readProblem.empty()) return fail("the settings file could not be read, so it is left as it is");
    change(sections);
    std::string text;
    for (const Sections::Section& s : sections.m_sections) {
        text += "[" + s.name + "]\n";
        for (const auto& [k, v] : s.entries) text += k + "=" + Escape(v) + "\n";
        text += "\n";
    }
    std::string why;
    if (!ReplaceFile(m_path, text, why)) return fail(why);
    return true;
}

std::string SettingsStore::GetSetting(const std::string& section, const std::string& key,
                                      const std::string& defaultValue) const {
    const Sections sections = Load();
    const std::string* value = sections.Find(section, key);
    return value ? *value : defaultValue;
}

bool SettingsStore::SaveSetting(const std::string& section, const std::string& key, const std::string& value,
                                std::string* error) {
    return Change([&](Sections& s) { s.Set(section, key, value); }, error);
}

std::vector<std::string> SettingsStore::GetAllValues(const std::string& section) const {
    return Load().Values(section);
}

}  // namespace gw
