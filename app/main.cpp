// gradewise: the desktop program.

#include <QApplication>
#include <QDir>
#include <QTimer>

#include "platform/qt_platform.h"
#include "shell/app_icon.h"
#include "shell/command_line.h"
#include "shell/main_window.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Gradewise"));
    QApplication::setWindowIcon(gw::AppIcon());
    // The program ends by its own rule: when the frame has closed every curve window.
    QApplication::setQuitOnLastWindowClosed(false);

    // Read before start-up moves the current folder to the program's own.
    const QStringList files = gw::CurveFileArguments(QCoreApplication::arguments().mid(1), QDir::currentPath());

    gw::QtPlatform platform;
    gw::frmMain mainWindow(platform);
    QObject::connect(&mainWindow, &gw::frmMain::programEnded, &app, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    if (!mainWindow.MDIForm_Load()) return 1;
    mainWindow.OpenFiles(files);

    // For the start-up benchmark: leave as soon as the shown window has gone idle.
    if (qEnvironmentVariableIsSet("GRADEWISE_QUIT_WHEN_IDLE")) {
        QTimer::singleShot(0, &app, &QCoreApplication::quit);
    }
    return app.exec();
}
