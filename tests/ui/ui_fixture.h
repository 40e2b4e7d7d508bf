#pragma once
// One set-up for every window test: a scripted platform that fails the test on any
// box or dialog it was not told about, a fresh main window, and a check that nothing
// is left open afterwards.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QString>
#include <QTemporaryDir>
#include <memory>

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

private:
    QTemporaryDir m_settings;
    std::unique_ptr<frmMain> m_main;
};

}  // namespace gw::test
