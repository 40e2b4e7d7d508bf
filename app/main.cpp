// gradewise: the desktop program.

#include <QApplication>
#include <QTimer>

#include "platform/qt_platform.h"
#include "shell/app_icon.h"
#include "shell/main_window.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Gradewise"));
    QApplication::setWindowIcon(gw::AppIcon());
    // The program ends by its own rule: when the frame has closed every curve window.
    QApplication::setQuitOnLastWindowClosed(false);

    gw::QtPlatform platform;
    gw::frmMain mainWindow(platform);
    QObject::connect(&mainWindow, &gw::frmMain::programEnded, &app, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    if (!mainWindow.MDIForm_Load()) return 1;

    // For the start-up benchmark: leave as soon as the shown window has gone idle.
    if (qEnvironmentVariableIsSet("GRADEWISE_QUIT_WHEN_IDLE")) {
        QTimer::singleShot(0, &app, &QCoreApplication::quit);
    }
    return app.exec();
}
