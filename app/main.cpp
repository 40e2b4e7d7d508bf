// gradewise: the desktop program.

#include <QApplication>
#include <QDir>
#include <QTimer>
#include <csignal>
#include <unistd.h>

#include "platform/file_names.h"
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

    // A file-size limit then fails a save like a full disk, with its message.
    std::signal(SIGXFSZ, SIG_IGN);

    // Read before start-up moves the current folder to the program's own. The names
    // are taken as the bytes they are (QApplication has removed its own options).
    QStringList arguments;
    for (int i = 1; i < argc; ++i) arguments << gw::FileNameFromBytes(argv[i]);
    char start[4096];
    const QString startFolder = ::getcwd(start, sizeof start) ? gw::FileNameFromBytes(start) : QDir::currentPath();
    const QStringList files = gw::CurveFileArguments(arguments, startFolder);

    gw::QtPlatform platform;
    gw::frmMain mainWindow(platform);
    QObject::connect(&mainWindow, &gw::frmMain::programEnded, &app, &QCoreApplication::quit, Qt::QueuedConnection);
    if (!mainWindow.MDIForm_Load()) return 1;
    mainWindow.OpenFiles(files);

    // For the start-up benchmark: leave as soon as the shown window has gone idle.
    if (qEnvironmentVariableIsSet("GRADEWISE_QUIT_WHEN_IDLE")) {
        QTimer::singleShot(0, &app, &QCoreApplication::quit);
    }
    return app.exec();
}
