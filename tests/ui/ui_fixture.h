#pragma once
// One set-up for every window test: a scripted platform that fails the test on any
// box or dialog it was not told about, a fresh main window, a check that nothing is
// left open afterwards, and a folder for curve files with the File menu driven
// through its actions.

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QString>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>

#include "commands/recent_files_menu.h"
#include "ui/elevations/elevations_window.h"

#include "platform/scripted_platform.h"
#include "shell/main_window.h"
#include "ui/curve/curve_window.h"

namespace gw::test {

class UiTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // The main window after start-up, shown and active.
    frmMain& Main();
    // Ends the main window's run and starts a new one over the same settings folder.
    frmMain& RestartMain();
    // New curve with the units dialog answered by choosing the units and pressing Enter.
    frmCrestCurve& NewCurve(bool metric = true);

    // Lets queued reports and activations run.
    static void Settle();
    // A real mouse click into the field (the focus moves as a user would move it).
    static void ClickInto(QWidget* widget);
    static void TypeInto(QLineEdit* field, const QString& text);

    QStringList Messages() const { return m_platform.MessageTexts(); }

    ScriptedPlatform m_platform;

    QString FilePath(const QString& name) const { return m_folder.filePath(name); }

    static QByteArray Bytes(const QString& path) {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    static void PutBytes(const QString& path, const QByteArray& bytes) {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }

    void Save() {
        Main().Menus().mnuSave->trigger();
        Settle();
    }
    void SaveAs(const QString& path) {
        m_platform.AnswerSaveFile(path);
        Main().Menus().mnuSaveAs->trigger();
        Settle();
    }
    // Open through the dialog; the window it opened, or nullptr.
    frmCrestCurve* Open(const QString& path) {
        const int before = int(Main().MdiArea().subWindowList().size());
        m_platform.AnswerOpenFile(path);
        Main().Menus().mnuOpen->trigger();
        Settle();
        return int(Main().MdiArea().subWindowList().size()) > before ? Main().ActiveCurveWindow() : nullptr;
    }
    void Close(frmCrestCurve& w) {
        w.parentWidget()->close();
        Settle();
    }

    bool Changed(const frmCrestCurve& w) { return Main().Slots()[w.Slot()].changed; }
    static QString Title(const frmCrestCurve& w) { return w.windowTitle(); }

    // What the recent-file entries show, visible ones only.
    QStringList RecentShown() {
        QStringList shown;
        for (QAction* a : Main().Menus().mnuRecentFile) {
            if (a->isVisible()) shown << a->text();
        }
        return shown;
    }

    // An English crest curve solved from its PVI: PVC 10+00, PVT 14+00.
    frmCrestCurve& SolvedEnglishCurve() {
        frmCrestCurve& w = NewCurve(false);
        TypeInto(w.Field("txtPVISTA"), "12");
        TypeInto(w.Field("txtPVISTAM"), "0");
        TypeInto(w.Field("txtPVIEval"), "104");
        TypeInto(w.Field("txtG1"), "2");
        TypeInto(w.Field("txtG2"), "-2");
        TypeInto(w.Field("txtLC"), "400");
        QTest::keyClick(w.Field("txtLC"), Qt::Key_Return);
        return w;
    }

    // Calculate Elevations with its window answered by `script`.
    void CalculateElevations(frmCrestCurve& w, std::function<void(ElevationsWindow&)> script) {
        m_platform.AnswerDialog([script](QDialog& d) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&d));
            script(static_cast<ElevationsWindow&>(d));
        });
        w.findChild<QPushButton*>("cmdMoreTOS")->click();
        Settle();
    }

private:
    QTemporaryDir m_settings;
    QTemporaryDir m_folder;
    std::unique_ptr<frmMain> m_main;
};

// The bytes of a curve saved straight after it was created.
inline QByteArray EmptyCurveBytes(const char* units) {
    auto empties = [](int n) {
        QByteArray line;
        for (int i = 0; i < n; ++i) line += i ? ",\"\"" : "\"\"";
        return line + "\r\n";
    };
    return "\"\",\"" + QByteArray(units) + "\",,,,\"\"\r\n" + empties(7) + empties(6) + "#TRUE#,#FALSE#,\"\",\"\"\r\n" +
           empties(20) + empties(20) + empties(20) + empties(3);
}

}  // namespace gw::test
