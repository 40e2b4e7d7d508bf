#include "commands/recent_files_menu.h"

#include <QAction>

#include "platform/file_names.h"

namespace gw {

RecentFilesMenu::RecentFilesMenu(SettingsStore& store, const Entries& entries) : m_list(store), m_entries(entries) {}

void RecentFilesMenu::AddRecentFile(const QString& path) {
    m_list.AddRecentFile(FileNameBytes(path));
    Mirror();
}

bool RecentFilesMenu::IsRecentFile(const QString& path) const { return m_list.IsRecentFile(FileNameBytes(path)); }

void RecentFilesMenu::UpdateRecentFileMenu() {
    m_list.UpdateRecentFileMenu();
    Mirror();
}

QString RecentFilesMenu::PathOf(int index) const {
    if (index < 0 || index >= RecentFiles::kEntries) return {};
    return FileNameFromBytes(m_list.Entries()[size_t(index)].caption);
}

void RecentFilesMenu::Mirror() {
    for (size_t i = 0; i < m_entries.size(); ++i) {
        const RecentFileEntry& entry = m_list.Entries()[i];
        QString caption = FileNameFromBytes(entry.caption);
        // A path is shown as it stands: an ampersand in it is no mnemonic.
        m_entries[i]->setText(caption.replace(QLatin1Char('&'), QLatin1String("&&")));
        m_entries[i]->setVisible(entry.visible);
    }
}

}  // namespace gw
