#pragma once
// Open, Save and Save As of the File menu, the recent-file entries, and the writer
// and reader between a curve window (with its slot's elevations) and a curve file.
// The window's title is the only record of its file's path.

#include <QString>

#include "platform/platform.h"
#include "ui/curve/curve_saver.h"

class QWidget;

namespace gw {

class CurveWindowHost;
class RecentFilesMenu;
class WindowSlots;

class FileCommands final : public CurveSaver {
public:
    // `owner` is the frame: the dialogs and boxes are shown over it.
    FileCommands(CurveWindowHost& host, WindowSlots& windowSlots, Platform& platform, RecentFilesMenu& recent,
                 QWidget* owner);

    void OpenCurveFile();
    void SaveCurveFile();
    void SaveCurveFileAs();
    // A recent-file entry chosen from the menu.
    void OpenRecentFile(int index);
    // What Open does once a path is chosen, for any other way of naming a file (the
    // command line): a missing file is reported, an existing one loaded. True when
    // the file existed.
    bool OpenNamedFile(const QString& path);

    void SaveBeforeClosing(frmCrestCurve& curve) override;

    // Both file dialogs are set up alike; only the proposed name differs.
    static FileDialogRequest DialogRequest(const QString& fileName);

private:
    // Save: to the path in the title, or through the Save As dialog for an untitled
    // curve, proposing `proposedName`.
    void Save(frmCrestCurve& curve, const QString& proposedName);
    QString ShowSaveAsDialog(const QString& initialName);
    // On success the curve takes `newTitle` and is unchanged.
    void WriteCurveFile(frmCrestCurve& curve, const QString& path, const QString& newTitle);
    // Opens the file in a new window and lists it among the recent files.
    void LoadCurveFile(const QString& path);
    void ReportFailure(const QString& description);

    CurveWindowHost& m_host;
    WindowSlots& m_slots;
    Platform& m_platform;
    RecentFilesMenu& m_recent;
    QWidget* m_owner;
};

}  // namespace gw
