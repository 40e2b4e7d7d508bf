// WriteCurveFile and LoadCurveFile: between a curve window with its slot's
// elevations and a curve file on disk.

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "core/curve_file.h"
#include "core/titles.h"
#include "curve_window_host.h"
#include "file_commands.h"
#include "files/curve_file_io.h"
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

// Writes through a temporary file renamed over the old one, so a failure leaves
// the previous file as it was; a folder that cannot take a temporary file is
// written directly. Empty on success, else the system's description.
// Writes every byte through an open, unbuffered device; empty or the system's reason.
QString WriteAll(QFileDevice& file, const std::string& bytes) {
    const char* data = bytes.data();
    qint64 left = qint64(bytes.size());
    while (left > 0) {
        const qint64 written = file.write(data, left);
        if (written <= 0) return file.errorString();
        data += written;
        left -= written;
    }
    return {};
}

// A device or pipe named as the file is written in place: a temporary file renamed
// over it would replace the device itself with a plain file.
QString WriteInPlace(const QString& path, const std::string& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return file.errorString();
    QString error = WriteAll(file, bytes);
    file.close();
    if (error.isEmpty() && file.error() != QFileDevice::NoError) error = file.errorString();
    return error;
}

QString WriteBytes(const QString& path, const std::string& bytes) {
    const QFileInfo target(path);
    if (target.exists() && !target.isFile() && !target.isDir()) return WriteInPlace(path, bytes);
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    // Unbuffered: a short write (a full disk) then shows here with the system's
    // reason; left to the final flush it would go unnoticed and be committed.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return file.errorString();
    if (const QString error = WriteAll(file, bytes); !error.isEmpty()) {
        file.cancelWriting();  // the temporary file goes with `file`
        return error;
    }
    if (!file.commit()) return file.errorString();
    return {};
}

}  // namespace

void FileCommands::WriteCurveFile(const QString& path, const QString& newTitle) {
    frmCrestCurve* curve = m_host.ActiveCurveWindow();
    if (!curve) return;
    m_platform.SetBusyCursor(true);
    // The sheet carries the slot's elevation rows and offsets as its window keeps them.
    const std::string bytes = CurveFileBytes(curve->GatherSheet());
    const QString error = WriteBytes(WithoutLeadingBlanks(path), bytes);
    m_platform.SetBusyCursor(false);
    if (!error.isEmpty()) {
        ReportFailure(error);
        return;
    }
    curve->setWindowTitle(newTitle);
    m_slots.State(curve->Slot()).changed = false;
}

void FileCommands::LoadCurveFile(const QString& path) {
    m_platform.SetBusyCursor(true);
    std::string bytes;
    std::string error;
    const bool read = ReadFileBytes(QFile::encodeName(path).toStdString(), bytes, error);
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
    curve->setWindowTitle(QString::fromStdString(
        TitleForLoadedFile(curve->windowTitle().toStdString(), stored.lblMorF, path.toStdString())));
    curve->ShowStoredCurve(LoadStoredCurve(stored, curve->UnitSystem().toStdString()));
    m_recent.AddRecentFile(path);
}

}  // namespace gw
