// The close question: asked exactly when the curve changed since it was created,
// opened or saved, on every way a curve window closes, and what each answer does.

#include <QDir>

#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

class CloseQuestionTest : public UiTest {
protected:
    // A saved metric curve with a PVI station typed before saving.
    frmCrestCurve& SavedCurve(const QString& path) {
        frmCrestCurve& w = NewCurve();
        TypeInto(w.Field("txtPVISTA"), "3");
        SaveAs(path);
        return w;
    }
    static QString Question(const QString& name) {
        return "The text in [" + name + "] has changed.\r\nDo you want to save the changes?";
    }
};

struct Closing {
    const char* name;
    void (*close)(frmMain&, frmCrestCurve&);
};

void PrintTo(const Closing& c, std::ostream* os) { *os << c.name; }

class ClosingTest : public CloseQuestionTest, public ::testing::WithParamInterface<Closing> {};

TEST_P(ClosingTest, AsksAfterTypingCancelKeepsTheWindowAndNoClosesUnsaved) {
    frmCrestCurve& w = NewCurve();
    TypeInto(w.Field("txtG1"), "7");
    m_platform.AnswerMessage(MessageButton::Cancel);
    GetParam().close(Main(), w);
    Settle();
    ASSERT_EQ(Main().MdiArea().subWindowList().size(), 1);
    EXPECT_TRUE(Changed(w));
    ASSERT_EQ(m_platform.Messages().size(), 1u);
    const MessageRequest& q = m_platform.Messages().front();
    EXPECT_EQ(q.text, Question("Untitled"));
    EXPECT_EQ(q.buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(q.icon, MessageIcon::Exclamation);

    m_platform.AnswerMessage(MessageButton::No);  // asked again on the next attempt
    GetParam().close(Main(), w);
    Settle();
    EXPECT_EQ(m_platform.Messages().size(), 2u);
    EXPECT_FALSE(Main().Slots().AnyCurveWindowOpen());
    EXPECT_TRUE(m_platform.SaveRequests().empty());
}

TEST_P(ClosingTest, AnUnchangedWindowClosesWithoutAQuestion) {
    frmCrestCurve& w = NewCurve();
    GetParam().close(Main(), w);
    Settle();
    EXPECT_TRUE(Messages().isEmpty());
    EXPECT_TRUE(Main().MdiArea().subWindowList().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Ways, ClosingTest,
    ::testing::Values(Closing{"CloseBox", [](frmMain&, frmCrestCurve& w) { w.parentWidget()->close(); }},
                      Closing{"CloseAll", [](frmMain& m, frmCrestCurve&) { m.Menus().mnuCloseAll->trigger(); }},
                      Closing{"MainWindow", [](frmMain& m, frmCrestCurve&) { m.close(); }}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(CloseQuestionTest, YesOnAnUntitledCurveAsksForAPathAndCancellingThatClosesUnsaved) {
    for (const bool chosen : {true, false}) {
        SCOPED_TRACE(chosen ? "path chosen" : "save dialog cancelled");
        frmCrestCurve& w = NewCurve();
        TypeInto(w.Field("txtPVIEval"), "250");
        m_platform.AnswerMessage(MessageButton::Yes);
        m_platform.AnswerSaveFile(chosen ? std::optional(FilePath("kept.gwf")) : std::nullopt);
        Close(w);
        EXPECT_EQ(m_platform.SaveRequests().back().fileName, "untitled");
        EXPECT_TRUE(Main().MdiArea().subWindowList().isEmpty());
    }
    EXPECT_EQ(QDir(FilePath("")).entryList(QDir::Files), QStringList{"kept.gwf"});
    EXPECT_TRUE(Bytes(FilePath("kept.gwf")).contains("\"250\""));
}

TEST_F(CloseQuestionTest, YesOnASavedCurveNamesItsPathAndWritesWithoutADialog) {
    const QString path = FilePath("saved.gwf");
    frmCrestCurve& w = SavedCurve(path);
    TypeInto(w.Field("txtPVIEval"), "99");
    m_platform.AnswerMessage(MessageButton::Yes);
    Close(w);
    EXPECT_EQ(Messages(), QStringList{Question(path)});
    EXPECT_EQ(m_platform.SaveRequests().size(), 1u);  // the Save As before, none since
    EXPECT_TRUE(Bytes(path).contains("\"99\""));
}

TEST_F(CloseQuestionTest, AFailedWriteIsReportedAndTheWindowStillCloses) {
    QDir(FilePath("")).mkdir("sub");
    frmCrestCurve& w = SavedCurve(FilePath("sub/c.gwf"));
    ASSERT_TRUE(QDir(FilePath("sub")).removeRecursively());
    TypeInto(w.Field("txtPVIEval"), "1");
    m_platform.AnswerMessage(MessageButton::Yes);
    m_platform.AnswerMessage(MessageButton::Ok);
    Close(w);
    ASSERT_EQ(m_platform.Messages().size(), 2u);
    EXPECT_EQ(m_platform.Messages()[1].icon, MessageIcon::Exclamation);
    EXPECT_TRUE(Main().MdiArea().subWindowList().isEmpty());
}

TEST_F(CloseQuestionTest, OnlyTypingAsksAfterASaveInTheCurveOrItsElevationsWindow) {
    frmCrestCurve& w = SolvedEnglishCurve();
    SaveAs(FilePath("e.gwf"));
    QTest::mouseClick(w.findChild<QPushButton*>("cmdCalcP"), Qt::LeftButton);
    ASSERT_FALSE(Changed(w));  // a mouse command
    CalculateElevations(w, [](ElevationsWindow& e) {
        QTest::keyClicks(e.Field("txtVOffset"), "1");
        e.hide();
    });
    EXPECT_TRUE(Changed(w));
    m_platform.AnswerMessage(MessageButton::No);
    Close(w);
    EXPECT_EQ(Messages().size(), 1);
}

TEST_F(CloseQuestionTest, ClosingABackWindowSavesThatWindowNotTheActiveOne) {
    const QString pathA = FilePath("a.gwf");
    frmCrestCurve& a = SavedCurve(pathA);
    TypeInto(a.Field("txtPVIEval"), "11");
    frmCrestCurve& b = NewCurve();
    TypeInto(b.Field("txtPVIEval"), "22");
    ASSERT_EQ(Main().ActiveCurveWindow(), &b);
    m_platform.AnswerMessage(MessageButton::Yes);
    Close(a);
    EXPECT_EQ(Messages().front(), Question(pathA));
    EXPECT_TRUE(Bytes(pathA).contains("\"11\""));
    EXPECT_EQ(b.windowTitle(), "Vertical Curve - Metric: Untitled");
    m_platform.AnswerMessage(MessageButton::No);
    Close(b);
}

}  // namespace
}  // namespace gw::test
