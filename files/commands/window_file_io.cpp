// WriteCurveFile and LoadCurveFile: between a curve window with its slot's
// elevations and a curve file on disk.

#include "core/curve_file.h"
#include "core/titles.h"
#include "curve_window_host.h"
#include "file_commands.h"
#include "files/curve_file_io.h"
#include "files/replace_file.h"
#include "platform/file_names.h"
#include "recent_files_menu.h"
#include "ui/curve/curve_window.h"
#include "ui/curve/window_slots.h"

namespace gw {
namespace {

// Without its leading blanks: the two-blank title of a saved untitled window
// gives its path with one.
QString WithoutLeadingBlanks(const QString& path) {
    qsizetype start = 0;
    while (start < path.size() && path.at(start) == QLatin1Char(' ')) ++start;
    return path.mid(start);
}

}  // namespace

void FileCommands::WriteCurveFile(const QString& path, const QString& newTitle) {
    frmCrestCurve* curve = m_host.ActiveCurveWindow();
    if (!curve) return;
    m_platform.SetBusyCursor(true);
    // The sheet carries the slot's elevation rows and offsets as its window keeps them.
    const std::string bytes = CurveFileBytes(curve->GatherSheet());
    // The one file writer: a failure at any step leaves the previous file as it was.
    std::string error;
    const bool written = ReplaceFile(FileNameBytes(WithoutLeadingBlanks(path)), bytes, error);
    m_platform.SetBusyCursor(false);
    if (!written) {
        ReportFailure(QString::fromLocal8Bit(error.c_str()));
        return;
    }
    curve->setWindowTitle(newTitle);
    m_slots.State(curve->Slot()).changed = false;
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

    const int slot = m_slots.AllocateWindowSlot();
    m_slots.State(slot).changed = false;
    frmCrestCurve* curve = m_host.OpenCurveWindow(slot);
    curve->setWindowTitle(FileNameFromBytes(
        TitleForLoadedFile(FileNameBytes(curve->windowTitle()), stored.lblMorF, FileNameBytes(path))));
    curve->ShowStoredCurve(LoadStoredCurve(stored, curve->UnitSystem().toStdString()));
    m_recent.AddRecentFile(path);
}

}  // namespace gw
