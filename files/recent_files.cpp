#include "files/recent_files.h"

#include <vector>

namespace gw {
namespace {

std::string Key(int n) { return "RecentFile" + std::to_string(n); }

}  // namespace

RecentFiles::RecentFiles(SettingsStore& store) : m_store(store) {
    m_entries[0].caption = "-";
    for (int i = 1; i < kEntries; ++i) m_entries[i].caption = Key(i);
}

bool RecentFiles::IsRecentFile(const std::string& path) const {
    for (const RecentFileEntry& e : m_entries) {
        if (e.visible && e.caption == path) return true;
    }
    return false;
}

void RecentFiles::AddRecentFile(const std::string& path) {
    if (!IsRecentFile(path)) StoreRecentFile(path);
    UpdateRecentFileMenu();
}

void RecentFiles::StoreRecentFile(const std::string& path) {
    // One change of the store: another copy of the program adding a file meanwhile
    // either sees this one's list or is seen by it, so neither entry is lost.
    m_store.Change([&](SettingsStore::Sections& s) {
        for (int n = 3; n >= 1; --n) {
            const std::string* found = s.Find(kSection, Key(n));
            const std::string value = found ? *found : std::string();
            if (!value.empty()) s.Set(kSection, Key(n + 1), value);
        }
        s.Set(kSection, Key(1), path);
    });
}

void RecentFiles::UpdateRecentFileMenu() {
    if (m_store.GetSetting(kSection, Key(1)).empty()) return;
    const std::vector<std::string> values = m_store.GetAllValues(kSection);
    // A section edited by hand to hold more than six values shows the first six.
    for (size_t k = 0; k < values.size() && k < m_entries.size(); ++k) {
        m_entries[k].caption = values[k];
        m_entries[k].visible = true;
    }
}

}  // namespace gw
