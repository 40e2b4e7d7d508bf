// The floor for gradewise's start-up: a bare Qt main window with an MDI area, shown,
// leaving as soon as it is idle when GRADEWISE_QUIT_WHEN_IDLE is set (as gradewise does).
// With --menu it also has a one-entry menu bar: the first text on screen is what makes
// Qt load its fonts, and that is most of the difference to a real program.

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <cstring>
#include <QTimer>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QMdiArea(&window));
    if (argc > 1 && std::strcmp(argv[1], "--menu") == 0)
        window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&Open"));
    window.resize(1000, 700);
    window.show();
    if (qEnvironmentVariableIsSet("GRADEWISE_QUIT_WHEN_IDLE")) QTimer::singleShot(0, &app, &QCoreApplication::quit);
    return app.exec();
}
