// Soak: opens, solves, lays out, saves, reopens and closes curve windows through
// the real windows, answered by the scripted platform, and reports how the
// process's memory moves; fails when the peak grows by more than 1 MiB after the
// first hundred rounds. Usage: gw_soak [ROUNDS]  (default 1000)

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <cstdio>
#include <fstream>
#include <string>

#include "commands/file_commands.h"
#include "core/curve_file.h"
#include "platform/scripted_platform.h"
#include "shell/main_menus.h"
#include "shell/main_window.h"
#include "ui/curve/curve_window.h"

namespace {

// Resident and peak resident memory of this process, in KiB.
long StatusKiB(const char* key) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind(key, 0) == 0) return std::stol(line.substr(std::string(key).size()));
    }
    return -1;
}

void Click(QWidget& parent, const char* name) {
    if (auto* b = parent.findChild<QPushButton*>(name)) b->click();
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    QApplication app(argc, argv);
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 1000;

    gw::ScriptedPlatform platform;
    int unexpected = 0;
    platform.OnUnexpected([&](const QString& what) {
        if (++unexpected <= 5) std::fprintf(stderr, "unexpected: %s\n", qPrintable(what));
    });
    gw::frmMain main(platform);
    if (!main.MDIForm_Load()) return 1;

    std::printf("| rounds | resident (KiB) | peak resident (KiB) |\n|---|---|---|\n");
    long peakAfterFirstHundred = 0;
    for (int round = 1; round <= rounds; ++round) {
        const bool metric = round % 2 == 0;
        platform.AnswerDialog([metric](QDialog& d) {
            d.findChild<QRadioButton*>(metric ? "optMetric" : "optEnglish")->click();
            Click(d, "cmdOK");
        });
        main.mnuVerticalCrest_Click();
        gw::frmCrestCurve* curve = main.ActiveCurveWindow();
        const char* values[][2] = {{"txtPVISTA", "12"}, {"txtPVISTAM", "0"}, {"txtPVIEval", "104"},
                                   {"txtG1", "2"},      {"txtG2", "-2"},     {"txtLC", "400"}};
        for (const auto& [name, text] : values) curve->Field(name)->setText(text);

        // Calculate Elevations, ten points by auto-stationing, OK.
        platform.AnswerDialog([&platform](QDialog& elevations) {
            platform.AnswerDialog([](QDialog& autoStation) { Click(autoStation, "OKButton"); });
            Click(elevations, "cmdAutoStation");
            Click(elevations, "cmdOK");
        });
        Click(*curve, "cmdMoreTOS");

        const QString path = home.filePath(QString("curve%1.gwf").arg(round % 10));
        platform.AnswerSaveFile(path);
        main.Menus().mnuSaveAs->trigger();
        main.MdiArea().closeActiveSubWindow();
        platform.AnswerOpenFile(path);
        main.Menus().mnuOpen->trigger();
        main.MdiArea().closeActiveSubWindow();
        // The stand-in platform records every box and dialog request it answers (two
        // file dialogs a round, about 1 KiB); a test reads them once, so the soak lets
        // them go as a test would. Kept, they were the soak's only growth.
        platform.ClearRecords();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();

        if (round == 100) peakAfterFirstHundred = StatusKiB("VmHWM:");
        if (round % 100 == 0 || round == rounds) {
            std::printf("| %d | %ld | %ld |\n", round, StatusKiB("VmRSS:"), StatusKiB("VmHWM:"));
        }
    }
    // The rounds really ran: the last file holds ten auto-stationed elevations.
    QFile last(home.filePath(QString("curve%1.gwf").arg(rounds % 10)));
    last.open(QIODevice::ReadOnly);
    const gw::CurveSheet saved = gw::ParseCurveFile(last.readAll().toStdString());
    const bool worked = saved.elevations.rows[9].txtTotalTopSlab1 == "100.0" && !saved.txtSD.empty();
    const long growth = StatusKiB("VmHWM:") - peakAfterFirstHundred;
    std::printf(
        "\npeak growth after the first hundred rounds: %ld KiB; unexpected boxes or dialogs: %d; "
        "windows left open: %lld\n",
        growth, unexpected, static_cast<long long>(main.MdiArea().subWindowList().size()));
    if (!worked) {
        std::printf("the saved curves are not what the rounds should have made: SD '%s', row 9 '%s'\n",
                    saved.txtSD.c_str(), saved.elevations.rows[9].txtTotalTopSlab1.c_str());
    }
    // Flat: what the first hundred rounds reached holds, within 1 MiB, to the end.
    const bool flat = rounds <= 100 || growth <= 1024;
    if (!flat) std::printf("memory grew by more than 1 MiB after the first hundred rounds\n");
    return worked && flat && unexpected == 0 && main.MdiArea().subWindowList().isEmpty() ? 0 : 1;
}
