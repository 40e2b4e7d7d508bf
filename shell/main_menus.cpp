#include "shell/main_menus.h"

#include <QMenu>
#include <QMenuBar>

namespace gw {
namespace {

QMenu* Menu(QWidget& parent, const char* name, const char* caption) {
    auto* menu = new QMenu(QString::fromLatin1(caption), &parent);
    menu->setObjectName(QString::fromLatin1(name));
    menu->menuAction()->setObjectName(QString::fromLatin1(name));
    return menu;
}

QAction* Entry(QMenu& menu, const QString& name, const QString& caption) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(name);
    return action;
}

QAction* Entry(QMenu& menu, const char* name, const char* caption) {
    return Entry(menu, QString::fromLatin1(name), QString::fromLatin1(caption));
}

QAction* Separator(QMenu& menu, const char* name) {
    QAction* action = menu.addSeparator();
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

}  // namespace

MainMenus BuildMainMenus(QMenuBar& bar) {
    MainMenus m;
    m.mnuFile = Menu(bar, "mnuFile", "&File");
    // The separator after Exit is always drawn, recent files or none.
    m.mnuFile->setSeparatorsCollapsible(false);
    m.mnuOpen = Entry(*m.mnuFile, "mnuOpen", "&Open");
    m.mnuSave = Entry(*m.mnuFile, "mnuSave", "&Save");
    m.mnuSaveAs = Entry(*m.mnuFile, "mnuSaveAs", "Save&As");
    m.mnuFilePrint = Entry(*m.mnuFile, "mnuFilePrint", "&Print");
    m.mnuFileExit = Entry(*m.mnuFile, "mnuFileExit", "E&xit");
    m.mnuSeparator = Separator(*m.mnuFile, "mnuSeparator");
    for (int i = 0; i < int(m.mnuRecentFile.size()); ++i) {
        // Hidden until the recent-files list fills them.
        const QString caption = i == 0 ? QStringLiteral("-") : QStringLiteral("RecentFile%1").arg(i);
        m.mnuRecentFile[size_t(i)] = Entry(*m.mnuFile, QStringLiteral("mnuRecentFile_%1").arg(i), caption);
        m.mnuRecentFile[size_t(i)]->setVisible(false);
    }
    bar.addMenu(m.mnuFile);

    m.mnuOptions = Menu(bar, "mnuOptions", "&Options");
    m.mnuCurves = Menu(*m.mnuOptions, "mnuCurves", "&Curves");
    m.mnuVerticalCrest = Entry(*m.mnuCurves, "mnuVerticalCrest", "&Vertical");
    m.mnuSpiral = Entry(*m.mnuCurves, "mnuSpiral", "&Spiral");
    m.mnuSpiral->setEnabled(false);
    m.mnuHorizontalCurve = Entry(*m.mnuCurves, "mnuHorizontalCurve", "&Horizontal");
    m.mnuHorizontalCurve->setEnabled(false);
    m.mnuOptions->addMenu(m.mnuCurves);
    bar.addMenu(m.mnuOptions);

    m.mnuWindow = Menu(bar, "mnuWindow", "&Window");
    m.mnuWindowCascade = Entry(*m.mnuWindow, "mnuWindowCascade", "&Cascade");
    m.mnuWindowTileHorizontal = Entry(*m.mnuWindow, "mnuWindowTileHorizontal", "Tile &Horizontal");
    m.mnuWindowTileVertical = Entry(*m.mnuWindow, "mnuWindowTileVertical", "Tile &Vertical");
    m.mnuWindowArrangeIcons = Entry(*m.mnuWindow, "mnuWindowArrangeIcons", "&Arrange Icons");
    m.mnusep = Separator(*m.mnuWindow, "mnusep");
    m.mnuCloseAll = Entry(*m.mnuWindow, "mnuCloseAll", "Close All");
    bar.addMenu(m.mnuWindow);

    m.mnuHelp = Menu(bar, "mnuHelp", "&Help");
    m.mnuHelpAbout = Entry(*m.mnuHelp, "mnuHelpAbout", "&About Gradewise...");
    m.mnuGradewise_web = Entry(*m.mnuHelp, "mnuGradewise_web", "&Gradewise on the Web ");
    bar.addMenu(m.mnuHelp);
    return m;
}

}  // namespace gw
