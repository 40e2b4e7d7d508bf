#pragma once
// frmMain: the frame with the menus, the status bar and the curve windows.

#include <QMainWindow>
#include <QStringList>
#include <memory>

#include "commands/curve_window_host.h"
#include "shell/main_menus.h"
#include "shell/placement.h"
#include "ui/curve/window_slots.h"

class QMdiArea;

namespace gw {

class FileCommands;
class MainStatusBar;
class RecentFilesMenu;
class Platform;
class frmCrestCurve;
class frmInformation;

class frmMain : public QMainWindow, public CurveWindowHost {
    Q_OBJECT

public:
    explicit frmMain(Platform& platform, QWidget* parent = nullptr);
    ~frmMain() override;

    // Start-up: shows the frame and makes the program's folder the current folder.
    // False when the display check refuses the screen: the program must end.
    bool MDIForm_Load();

    WindowSlots& Slots() { return m_slots; }
    QMdiArea& MdiArea() { return *m_mdi; }
    const MainMenus& Menus() const { return m_menus; }
    MainStatusBar& StatusBar() { return *m_status; }
    // The curve window commands act on: the current child even while the frame is
    // not the active window.
    frmCrestCurve* ActiveCurveWindow() const override;
    frmCrestCurve& OpenCurveWindow(WindowSlot& slot) override;
    // Created on first use and kept, hidden, with its last answer.
    frmInformation& UnitsDialog();

    void mnuVerticalCrest_Click();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuRecentFile_Click(int index);
    // The curve files named at start-up, each opened as Open opens a chosen file.
    void OpenFiles(const QStringList& paths);
    void mnuFileExit_Click();
    void mnuCloseAll_Click();
    void mnuWindowCascade_Click();
    void mnuWindowTileHorizontal_Click();
    void mnuWindowTileVertical_Click();
    void mnuWindowArrangeIcons_Click();
    void mnuGradewise_web_Click();
    void mnuFilePrint_Click();
    void mnuHelpAbout_Click();

signals:
    // Every curve window has closed with the frame: the program ends.
    void programEnded();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void ConnectMenus();
    void MDIForm_Unload();
    void RestorePlacement();

    Platform& m_platform;
    WindowSlots m_slots;
    QMdiArea* m_mdi = nullptr;
    MainStatusBar* m_status = nullptr;
    MainMenus m_menus;
    Placement m_restored;  // as read at start-up
    frmInformation* m_units = nullptr;
    std::unique_ptr<RecentFilesMenu> m_recent;
    std::unique_ptr<FileCommands> m_files;
};

}  // namespace gw
