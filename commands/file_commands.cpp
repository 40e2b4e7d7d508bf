#include "commands/file_commands.h"

#include <QCoreApplication>

#include "commands/curve_window_host.h"
#include "commands/recent_files_menu.h"
#include "core/curve_file.h"
#include "core/titles.h"
#include "files/curve_file_io.h"
#include "files/replace_file.h"
#include "platform/file_names.h"
#include "platform/texts.h"
#include "ui/curve/curve_window.h"
#include "ui/curve/window_slots.h"

namespace gw {
namespace {

const char* const kFileDoesNotExist = "This file does not exist.";
// The file dialogs' filter list: every file, then curve files (shown first).
const char* const kAllFiles = "All Files (*.*)";
const char* const kAllFilesPattern = "*.*";
const char* const kCurveFiles = "Gradewise files (*.gwf)";
const char* const kCurveFilesPattern = "*.gwf";
// What Save As proposes when the close question saves an untitled curve.
const char* const kProposedName = "untitled";

// Without its leading blanks: the two-blank title of a saved untitled window
// gives its path with one.
QString WithoutLeadingBlanks(const QString& path) {
    qsizetype start = 0;
    while (start < path.size() && path.at(start) == QLatin1Char(' ')) ++start;
    return path.mid(start);
}

}  // namespace

FileCommands::FileCommands(CurveWindowHost& host, WindowSlots& windowSlots, Platform& platform, RecentFilesMenu& recent,
                           QWidget* owner)
    : m_host(host), m_slots(windowSlots), m_platform(platform), m_recent(recent), m_owner(owner) {}

FileDialogRequest FileCommands::DialogRequest(const QString& fileName) {
    FileDialogRequest request;
    request.folder = QCoreApplication::applicationDirPath();
    request.fileName = fileName;
    request.filters = {{QString::fromLatin1(kAllFiles), QString::fromLatin1(kAllFilesPattern)},
                       {QString::fromLatin1(kCurveFiles), QString::fromLatin1(kCurveFilesPattern)}};
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
        ShowRefusal(m_platform, m_owner, QString::fromLatin1(kFileDoesNotExist));
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
    frmCrestCurve* curve = m_slots.AnyCurveWindowOpen() ? m_host.ActiveCurveWindow() : nullptr;
    if (curve) Save(*curve, {});
}

void FileCommands::SaveBeforeClosing(frmCrestCurve& curve) { Save(curve, QString::fromLatin1(kProposedName)); }

void FileCommands::Save(frmCrestCurve& curve, const QString& proposedName) {
    const std::string title = FileNameBytes(curve.windowTitle());
    QString path;
    if (IsUntitledTitle(title)) {
        path = ShowSaveAsDialog(proposedName);
        if (path.isEmpty()) return;
        curve.setWindowTitle(FileNameFromBytes(TitleAfterSave(title, FileNameBytes(path))));
    } else {
        path = FileNameFromBytes(PathFromTitle(title));
    }
    WriteCurveFile(curve, path, curve.windowTitle());
}

void FileCommands::SaveCurveFileAs() {
    frmCrestCurve* curve = m_slots.AnyCurveWindowOpen() ? m_host.ActiveCurveWindow() : nullptr;
    if (!curve) return;
    const QString path = ShowSaveAsDialog({});
    if (path.isEmpty()) return;
    const QString newTitle =
        FileNameFromBytes(TitleAfterSaveAs(FileNameBytes(curve->windowTitle()), FileNameBytes(path)));
    // Title and list follow the chosen path even if the write then fails.
    curve->setWindowTitle(newTitle);
    m_recent.AddRecentFile(path);
    WriteCurveFile(*curve, path, newTitle);
}

QString FileCommands::ShowSaveAsDialog(const QString& initialName) {
    return m_platform.GetSaveFileName(m_owner, DialogRequest(initialName)).value_or(QString());
}

void FileCommands::WriteCurveFile(frmCrestCurve& curve, const QString& path, const QString& newTitle) {
    m_platform.SetBusyCursor(true);
    // The one file writer: a failure at any step leaves the previous file as it was.
    std::string error;
    const bool written =
        ReplaceFile(FileNameBytes(WithoutLeadingBlanks(path)), CurveFileBytes(curve.GatherSheet()), error);
    m_platform.SetBusyCursor(false);
    if (!written) {
        ReportFailure(QString::fromLocal8Bit(error.c_str()));
        return;
    }
    curve.setWindowTitle(newTitle);
    m_slots[curve.Slot()].changed = false;
}

void FileCommands::LoadCurveFile(const QString& path) {
    m_platform.SetBusyCursor(true);
    std::string bytes;
    std::string error;
    const bool read = ReadFileBytes(FileNameBytes(path), bytes, error);
    m_platform.SetBusyCursor(false);
    if (!read) {
        // A file that exists but cannot be read opens nothing and is not listed.
        ReportFailure(QString::fromLocal8Bit(error.c_str()));
        return;
    }
    const CurveSheet stored = ParseCurveFile(bytes);

    WindowSlot& slot = m_slots.AllocateWindowSlot();
    slot.changed = false;
    frmCrestCurve& curve = m_host.OpenCurveWindow(slot);
    curve.setWindowTitle(
        FileNameFromBytes(TitleForLoadedFile(FileNameBytes(curve.windowTitle()), stored.lblMorF, FileNameBytes(path))));
    curve.ShowStoredCurve(LoadStoredCurve(stored, curve.UnitSystem().toStdString()));
    m_recent.AddRecentFile(path);
}

void FileCommands::ReportFailure(const QString& description) {
    MessageRequest request;
    request.title = AppTitle();
    request.text = description;
    request.icon = MessageIcon::Exclamation;
    m_platform.ShowMessage(m_owner, request);
}

}  // namespace gw
