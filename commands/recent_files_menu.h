#pragma once
// The recent-files list shown on the File menu's six mnuRecentFile entries.

#include <QString>
#include <array>

#include "files/recent_files.h"

class QAction;

namespace gw {

class RecentFilesMenu {
public:
    using Entries = std::array<QAction*, RecentFiles::kEntries>;

    RecentFilesMenu(SettingsStore& store, const Entries& entries);

    void AddRecentFile(const QString& path);
    bool IsRecentFile(const QString& path) const;
    void UpdateRecentFileMenu();
    // The path that entry `index` shows.
    QString PathOf(int index) const;

private:
    void Mirror();

    RecentFiles m_list;
    Entries m_entries;
};

}  // namespace gw
