#pragma once
// The per-user settings: sections of keys and text values in a small text file.
// Unlike QSettings it keeps keys in the order they were first created, which the
// recent-files list depends on.

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace gw {

class SettingsStore {
public:
    // The store lives in `filePath`; its folder is created on the first write.
    explicit SettingsStore(std::string filePath);

    const std::string& FilePath() const { return m_path; }

    // The value, or `defaultValue` when the key (or the whole store) is missing.
    std::string GetSetting(const std::string& section, const std::string& key,
                           const std::string& defaultValue = {}) const;

    // Writes the key, creating it at the end of its section when new. The file is
    // replaced atomically; false with a description in `error` when it cannot be.
    bool SaveSetting(const std::string& section, const std::string& key, const std::string& value,
                     std::string* error = nullptr);

    // The section's values in the order their keys were created.
    std::vector<std::string> GetAllValues(const std::string& section) const;

private:
    struct Section {
        std::string name;
        std::vector<std::pair<std::string, std::string>> entries;
    };

    // Read on every call, so that two running copies of the program see each
    // other's writes; a missing, unreadable or garbled file reads as empty.
    std::vector<Section> Load() const;
    bool Save(const std::vector<Section>& sections, std::string* error) const;

    std::string m_path;
};

}  // namespace gw
