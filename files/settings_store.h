#pragma once
// The per-user settings: sections of keys and text values in a small text file.
// Unlike QSettings it keeps keys in the order they were first created, which the
// recent-files list depends on.

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace gw {

class SettingsStore {
public:
    // What the store holds, as one change sees it.
    class Sections {
    public:
        // The value, or nothing when the key is missing.
        const std::string* Find(const std::string& section, const std::string& key) const;
        // Writes the key, creating it at the end of its section when new.
        void Set(const std::string& section, const std::string& key, const std::string& value);
        // The section's values in the order their keys were created.
        std::vector<std::string> Values(const std::string& section) const;

    private:
        friend class SettingsStore;
        struct Section {
            std::string name;
            std::vector<std::pair<std::string, std::string>> entries;
        };
        Section& Named(const std::string& name);
        std::vector<Section> m_sections;
    };

    // The store lives in `filePath`; its folder is created on the first write.
    explicit SettingsStore(std::string filePath);

    const std::string& FilePath() const { return m_path; }

    // The value, or `defaultValue` when the key (or the whole store) is missing.
    std::string GetSetting(const std::string& section, const std::string& key,
                           const std::string& defaultValue = {}) const;

    // Writes the key, creating it at the end of its section when new. False with a
    // description in `error` when the store cannot be written.
    bool SaveSetting(const std::string& section, const std::string& key, const std::string& value,
                     std::string* error = nullptr);

    // The section's values in the order their keys were created.
    std::vector<std::string> GetAllValues(const std::string& section) const;

    // Reads the store afresh, lets `change` edit it and replaces the file atomically,
    // while other running copies of the program wait for their turn: each adds to what
    // the others wrote, and none loses another's change.
    bool Change(const std::function<void(Sections&)>& change, std::string* error = nullptr);

    // Empty, or what the user is told once the file was found but could not be read
    // (not a plain file, unreadable, too large). Such a store is never written while
    // the program runs, so that nothing it held is lost; reads give the defaults.
    const std::string& ReadProblem() const { return m_readProblem; }

private:
    // Read on every call, so that two running copies of the program see each other's
    // writes; a missing, unreadable or garbled file reads as empty.
    Sections Load() const;

    std::string m_path;
    mutable std::string m_readProblem;
};

}  // namespace gw
