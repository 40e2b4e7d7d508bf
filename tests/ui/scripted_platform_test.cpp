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

TEST(ScriptedPlatformTest, AnswersAreGivenInTheOrderQueued) {
    ScriptedPlatform platform;
    Recorder recorder;
    recorder.Attach(platform);
    platform.AnswerMessage(MessageButton::No);
    platform.AnswerMessage(MessageButton::Yes);
    platform.AnswerSaveFile(QStringLiteral("/tmp/a.gwf"));
    platform.AnswerSaveFile(std::nullopt);
    EXPECT_EQ(platform.ShowMessage(nullptr, {}), MessageButton::No);
    EXPECT_EQ(platform.ShowMessage(nullptr, {}), MessageButton::Yes);
    EXPECT_EQ(platform.GetSaveFileName(nullptr, {}), std::optional<QString>("/tmp/a.gwf"));
    EXPECT_EQ(platform.GetSaveFileName(nullptr, {}), std::nullopt);
    EXPECT_TRUE(recorder.reports.isEmpty());
    EXPECT_TRUE(platform.Unused().isEmpty());
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
