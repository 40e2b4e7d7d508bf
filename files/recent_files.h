#pragma once
// The list of the four curve files most recently opened or saved under a new
// name, kept in the settings store and shown on six File-menu entries.

#include <array>
#include <string>

#include "files/settings_store.h"

namespace gw {

struct RecentFileEntry {
    std::string caption;
    bool visible = false;
};

class RecentFiles {
public:
    static constexpr const char* kSection = "Recent Files";
    static constexpr int kEntries = 6;

    explicit RecentFiles(SettingsStore& store);

    // The menu entries as they should be shown: design captions "-" and
    // "RecentFile1" to "RecentFile5", all hidden until filled.
    const std::array<RecentFileEntry, kEntries>& Entries() const { return m_entries; }

    // Puts the path at the head unless a shown entry already names it (exactly,
    // letter case included), then refreshes the entries.
    void AddRecentFile(const std::string& path);
    bool IsRecentFile(const std::string& path) const;
    // Moves the stored paths one key down and stores the path as "RecentFile1".
    void StoreRecentFile(const std::string& path);
    // Shows the stored list; a missing or empty "RecentFile1" leaves the entries
    // alone, and an entry once shown is never hidden again.
    void UpdateRecentFileMenu();

private:
    SettingsStore& m_store;
    std::array<RecentFileEntry, kEntries> m_entries;
};

}  // namespace gw
