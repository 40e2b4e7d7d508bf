// The File menu's file entries: Open, Save, Save As and the six recent-file entries.

#include <QAction>

#include "commands/file_commands.h"
#include "commands/recent_files_menu.h"
#include "main_window.h"

namespace gw {

void frmMain::ConnectFileMenu() {
    m_recent = std::make_unique<RecentFilesMenu>(m_platform.Settings(), m_menus.mnuRecentFile);
    m_files = std::make_unique<FileCommands>(*this, m_slots, m_platform, *m_recent, this);
    connect(m_menus.mnuOpen, &QAction::triggered, this, &frmMain::mnuOpen_Click);
    connect(m_menus.mnuSave, &QAction::triggered, this, &frmMain::mnuSave_Click);
    connect(m_menus.mnuSaveAs, &QAction::triggered, this, &frmMain::mnuSaveAs_Click);
    for (int i = 0; i < int(m_menus.mnuRecentFile.size()); ++i) {
        connect(m_menus.mnuRecentFile[size_t(i)], &QAction::triggered, this, [this, i] { mnuRecentFile_Click(i); });
    }
}

void frmMain::mnuOpen_Click() { m_files->OpenCurveFile(); }

void frmMain::mnuSave_Click() { m_files->SaveCurveFile(); }

void frmMain::mnuSaveAs_Click() { m_files->SaveCurveFileAs(); }

void frmMain::mnuRecentFile_Click(int index) { m_files->OpenRecentFile(index); }

void frmMain::OpenFiles(const QStringList& paths) {
    for (const QString& path : paths) m_files->OpenNamedFile(path);
}

}  // namespace gw
