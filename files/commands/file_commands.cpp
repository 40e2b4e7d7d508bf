#include "file_commands.h"

#include <QCoreApplication>

#include "platform/texts.h"
#include "core/titles.h"
#include "curve_window_host.h"
#include "file_texts.h"
#include "platform/file_names.h"
#include "recent_files_menu.h"
#include "ui/curve/curve_window.h"
#include "ui/curve/window_slots.h"

namespace gw {

FileCommands::FileCommands(CurveWindowHost& host, WindowSlots& windowSlots, Platform& platform,
                           RecentFilesMenu& recent, QWidget* owner)
    : m_host(host), m_slots(windowSlots), m_platform(platform), m_recent(recent), m_owner(owner) {}

FileDialogRequest FileCommands::DialogRequest(const QString& fileName) {
    FileDialogRequest request;
    request.folder = QCoreApplication::applicationDirPath();
    request.fileName = fileName;
    request.filters = {{QString::fromLatin1(file_text::kAllFiles), QString::fromLatin1(file_text::kAllFilesPattern)},
                       {QString::fromLatin1(file_text::kCurveFiles),
                        QString::fromLatin1(file_text::kCurveFilesPattern)}};
    request.selectedFilter = 1;
    return request;
}

void FileCommands::OpenCurveFile() {
    const std::optional<QString> path = m_platform.GetOpenFileName(m_owner, DialogRequest({}));
    if (!path) return;
    OpenNamedFile(*path);
}

bool FileCommands::OpenNamedFile(const QString& path) {
    if (!IsPlainFile(path)) {
        ReportMissingFile();
        return false;
    }
    LoadCurveFile(path);
    return true;
}

void FileCommands::OpenRecentFile(int index) {
    // The entry stays listed: a file that comes back can be opened from it again.
    if (OpenNamedFile(m_recent.PathOf(index))) m_recent.UpdateRecentFileMenu();
}

void FileCommands::SaveCurveFile() {
    if (!m_slots.AnyCurveWindowOpen()) return;
    frmCrestCurve* curve = m_host.ActiveCurveWindow();
    if (!curve) return;
    const std::string title = FileNameBytes(curve->windowTitle());
    QString path;
    if (IsUntitledTitle(title)) {
        path = ShowSaveAsDialog({});
        if (path.isEmpty()) return;
        curve->setWindowTitle(FileNameFromBytes(TitleAfterSave(title, FileNameBytes(path))));
    } else {
        path = FileNameFromBytes(PathFromTitle(title));
    }
    WriteCurveFile(path, curve->windowTitle());
}

void FileCommands::SaveCurveFileAs() {
    if (!m_slots.AnyCurveWindowOpen()) return;
    frmCrestCurve* curve = m_host.ActiveCurveWindow();
    if (!curve) return;
    const QString path = ShowSaveAsDialog({});
    if (path.isEmpty()) return;
    const QString newTitle = FileNameFromBytes(TitleAfterSaveAs(FileNameBytes(curve->windowTitle()), FileNameBytes(path)));
    // Title and list follow the chosen path even if the write then fails.
    curve->setWindowTitle(newTitle);
    m_recent.AddRecentFile(path);
    WriteCurveFile(path, newTitle);
}

QString FileCommands::ShowSaveAsDialog(const QString& initialName) {
    return m_platform.GetSaveFileName(m_owner, DialogRequest(initialName)).value_or(QString());
}

void FileCommands::ReportMissingFile() {
    ShowRefusal(m_platform, m_owner, QString::fromLatin1(file_text::kFileDoesNotExist));
}

void FileCommands::ReportFailure(const QString& description) {
    MessageRequest request;
    request.title = AppTitle();
    request.text = description;
    request.icon = MessageIcon::Exclamation;
    m_platform.ShowMessage(m_owner, request);
}

}  // namespace gw
