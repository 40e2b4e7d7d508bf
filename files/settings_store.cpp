#include "settings_store.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace gw {
namespace {

namespace fs = std::filesystem;

constexpr size_t kMaxStoreBytes = 1 << 20;  // a hand-edited monster is not read whole

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

}  // namespace

SettingsStore::SettingsStore(std::string filePath) : m_path(std::move(filePath)) {}

std::vector<SettingsStore::Section> SettingsStore::Load() const {
    std::vector<Section> sections;
    std::ifstream in(m_path, std::ios::binary);
    if (!in) return sections;
    std::string content(kMaxStoreBytes, '\0');
    in.read(content.data(), static_cast<std::streamsize>(content.size()));
    content.resize(static_cast<size_t>(in.gcount()));

    std::istringstream lines(content);
    std::string line;
    Section* current = nullptr;
    while (std::getline(lines, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty() || line[0] == ';' || line[0] == '#') continue;
        if (line[0] == '[') {
            const size_t close = line.find(']');
            if (close == std::string::npos) {
                current = nullptr;  // garbled header: ignore its keys
                continue;
            }
            const std::string name = line.substr(1, close - 1);
            current = nullptr;
            for (Section& s : sections) {
                if (s.name == name) current = &s;
            }
            if (!current) {
                sections.push_back({name, {}});
                current = &sections.back();
            }
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

bool SettingsStore::Save(const std::vector<Section>& sections, std::string* error) const {
    auto fail = [&](int err) {
        if (error) *error = std::strerror(err);
        return false;
    };
    std::error_code ec;
    const fs::path path(m_path);
    if (path.has_parent_path()) {
        fs::create_directories(path.parent_path(), ec);
        if (ec) return fail(ec.value());
    }
    std::string text;
    for (const Section& s : sections) {
        text += "[" + s.name + "]\n";
        for (const auto& [k, v] : s.entries) text += k + "=" + Escape(v) + "\n";
        text += "\n";
    }
    // Write beside the old file and rename over it, so a crash or a full disk
    // never leaves a half-written store.
    const std::string temp = m_path + ".tmp" + std::to_string(::getpid());
    std::FILE* f = std::fopen(temp.c_str(), "wb");
    if (!f) return fail(errno);
    bool ok = std::fwrite(text.data(), 1, text.size(), f) == text.size() && std::fflush(f) == 0 &&
              ::fsync(::fileno(f)) == 0;
    int err = errno;
    if (std::fclose(f) != 0 && ok) {
        ok = false;
        err = errno;
    }
    if (ok && std::rename(temp.c_str(), m_path.c_str()) != 0) {
        ok = false;
        err = errno;
    }
    if (!ok) {
        std::remove(temp.c_str());
        return fail(err);
    }
    return true;
}

std::string SettingsStore::GetSetting(const std::string& section, const std::string& key,
                                      const std::string& defaultValue) const {
    for (const Section& s : Load()) {
        if (s.name != section) continue;
        for (const auto& [k, v] : s.entries) {
            if (k == key) return v;
        }
    }
    return defaultValue;
}

bool SettingsStore::SaveSetting(const std::string& section, const std::string& key, const std::string& value,
                                std::string* error) {
    std::vector<Section> sections = Load();
    Section* target = nullptr;
    for (Section& s : sections) {
        if (s.name == section) target = &s;
    }
    if (!target) {
        sections.push_back({section, {}});
        target = &sections.back();
    }
    bool found = false;
    for (auto& [k, v] : target->entries) {
        if (k == key) {
            v = value;
            found = true;
        }
    }
    if (!found) target->entries.emplace_back(key, value);
    return Save(sections, error);
}

std::vector<std::string> SettingsStore::GetAllValues(const std::string& section) const {
    std::vector<std::string> values;
    for (const Section& s : Load()) {
        if (s.name != section) continue;
        for (const auto& entry : s.entries) values.push_back(entry.second);
    }
    return values;
}

}  // namespace gw
