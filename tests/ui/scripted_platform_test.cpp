// The test stand-in itself: it must report, never hang, when a box or dialog comes
// that nobody answered.

#include <gtest/gtest.h>

#include <QDialog>

#include "platform/scripted_platform.h"

namespace gw {
namespace {

struct Recorder {
    QStringList reports;
    void Attach(ScriptedPlatform& p) {
        p.OnUnexpected([this](const QString& what) { reports << what; });
    }
};

TEST(ScriptedPlatformTest, UnansweredQuestionIsReportedAndCancelled) {
    ScriptedPlatform platform;
    Recorder recorder;
    recorder.Attach(platform);
    MessageRequest question{"Gradewise", "Save?", MessageButtons::YesNoCancel, MessageIcon::Exclamation,
                            MessageButton::Yes};
    EXPECT_EQ(platform.ShowMessage(nullptr, question), MessageButton::Cancel);
    ASSERT_EQ(recorder.reports.size(), 1);
    EXPECT_TRUE(recorder.reports.front().contains("Save?"));
    EXPECT_EQ(platform.MessageTexts(), QStringList{"Save?"});
}

TEST(ScriptedPlatformTest, DialogLeftOpenByItsScriptIsReportedAndClosed) {
    ScriptedPlatform platform;
    Recorder recorder;
    recorder.Attach(platform);
    QDialog dialog;
    dialog.setObjectName("dlgTest");
    platform.AnswerDialog([](QDialog&) {});
    platform.ShowModal(dialog);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(recorder.reports.size(), 1);

    platform.ShowModal(dialog);  // nothing queued at all
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(recorder.reports.size(), 2);
    EXPECT_EQ(platform.ShownDialogs(), (QStringList{"dlgTest", "dlgTest"}));
}

}  // namespace
}  // namespace gw
