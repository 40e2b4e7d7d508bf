#include "shell/window_list.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPointer>

namespace gw {
namespace {

const char* const kListEntry = "gwWindowListEntry";

}  // namespace

void RefreshWindowList(QMenu& windowMenu, QMdiArea& area) {
    for (QAction* action : windowMenu.actions()) {
        if (action->property(kListEntry).toBool()) {
            windowMenu.removeAction(action);
            delete action;
        }
    }
    const QList<QMdiSubWindow*> windows = area.subWindowList(QMdiArea::CreationOrder);
    if (windows.isEmpty()) return;
    windowMenu.addSeparator()->setProperty(kListEntry, true);
    int number = 0;
    for (QMdiSubWindow* sub : windows) {
        QString caption = sub->windowTitle();
        QAction* entry = windowMenu.addAction(caption.replace(QLatin1Char('&'), QStringLiteral("&&")));
        entry->setObjectName(QStringLiteral("mnuWindowList_%1").arg(++number));
        entry->setProperty(kListEntry, true);
        entry->setCheckable(true);
        entry->setChecked(sub == area.currentSubWindow());
        QPointer<QMdiSubWindow> target = sub;
        QObject::connect(entry, &QAction::triggered, &area, [&area, target] {
            if (target) area.setActiveSubWindow(target);
        });
    }
}

}  // namespace gw
