#pragma once
// The menu bar of frmMain: every entry carries its control name as objectName.

#include <array>

class QAction;
class QMenu;
class QMenuBar;

namespace gw {

struct MainMenus {
    QMenu* mnuFile = nullptr;
    QAction* mnuOpen = nullptr;
    QAction* mnuSave = nullptr;
    QAction* mnuSaveAs = nullptr;
    QAction* mnuFilePrint = nullptr;
    QAction* mnuFileExit = nullptr;
    QAction* mnuSeparator = nullptr;
    std::array<QAction*, 6> mnuRecentFile{};
    QMenu* mnuOptions = nullptr;
    QMenu* mnuCurves = nullptr;
    QAction* mnuVerticalCrest = nullptr;
    QAction* mnuSpiral = nullptr;
    QAction* mnuHorizontalCurve = nullptr;
    QMenu* mnuWindow = nullptr;
    QAction* mnuWindowCascade = nullptr;
    QAction* mnuWindowTileHorizontal = nullptr;
    QAction* mnuWindowTileVertical = nullptr;
    QAction* mnuWindowArrangeIcons = nullptr;
    QAction* mnusep = nullptr;
    QAction* mnuCloseAll = nullptr;
    QMenu* mnuHelp = nullptr;
    QAction* mnuHelpAbout = nullptr;
    QAction* mnuGradewise_web = nullptr;
};

MainMenus BuildMainMenus(QMenuBar& bar);

}  // namespace gw
