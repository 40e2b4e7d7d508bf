// On a screen of 120 logical pixels per inch the program only says why it will not run.

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "files/settings_store.h"
#include "platform/scripted_platform.h"
#include "shell/display_check.h"
#include "shell/main_window.h"

namespace gw {
namespace {

TEST(DisplayCheckTest, OnlyNinetySixPixelsPerInchPasses) {
    EXPECT_TRUE(IsSmallFontDisplay(96));
    EXPECT_FALSE(IsSmallFontDisplay(120));
    EXPECT_FALSE(IsSmallFontDisplay(72));
    EXPECT_EQ(LogicalPixelsPerInch(*QGuiApplication::primaryScreen()), 120);  // as this process runs
}

TEST(DisplayCheckTest, ALargeFontScreenGetsTheMessageAndNoWindow) {
    QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    ScriptedPlatform platform;
    platform.OnUnexpected([](const QString& what) { ADD_FAILURE() << what.toStdString(); });
    platform.AnswerMessage(MessageButton::Ok);
    frmMain main(platform);
    EXPECT_FALSE(main.MDIForm_Load());
    EXPECT_EQ(platform.MessageTexts(), QStringList{"Must use Windows Small Font to run Gradewise."});
    EXPECT_EQ(platform.Messages().front().title, "Gradewise");
    EXPECT_EQ(platform.Messages().front().icon, MessageIcon::None);
    EXPECT_FALSE(main.isVisible());
    EXPECT_EQ(platform.Settings().GetAllValues("Settings").size(), 0u);  // nothing stored
}

}  // namespace
}  // namespace gw

int main(int argc, char** argv) {
    // A screen scaled to 120 dpi, as a large-font desktop reports it.
    qputenv("QT_FONT_DPI", "120");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
