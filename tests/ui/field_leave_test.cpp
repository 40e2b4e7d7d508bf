// Checks on leaving a field of the curve window, driven by real focus changes.

#include <cstring>

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <QTest>

#include "ui_fixture.h"

namespace gw::test {
namespace {

struct LeaveCase {
    const char* name;
    bool metric;
    const char* field;
    const char* text;
    const char* wholeText;  // typed first into the whole-station field of the same station
    const char* message;    // "" when leaving is accepted
};

void PrintTo(const LeaveCase& c, std::ostream* os) { *os << c.name; }

class LeaveTest : public UiTest, public ::testing::WithParamInterface<LeaveCase> {};

TEST_P(LeaveTest, ShowsTheMessageOnceAndPutsTheFocusBackWithTheTextAsTyped) {
    const LeaveCase& c = GetParam();
    frmCrestCurve& w = NewCurve(c.metric);
    QLineEdit* field = w.Field(c.field);
    if (*c.wholeText) {
        TypeInto(w.Field(std::string(c.field, std::strlen(c.field) - 1)), c.wholeText);
    }
    TypeInto(field, c.text);
    const bool fails = *c.message;
    if (fails) m_platform.AnswerMessage(MessageButton::Ok);
    QTest::keyClick(field, Qt::Key_Tab);
    Settle();

    if (fails) {
        EXPECT_EQ(Messages(), QStringList{c.message});
        EXPECT_EQ(QApplication::focusWidget(), field);
    } else {
        EXPECT_TRUE(Messages().isEmpty()) << Messages().join('|').toStdString();
        EXPECT_NE(QApplication::focusWidget(), field);
    }
    EXPECT_EQ(field->text(), QString::fromLatin1(c.text));
}

INSTANTIATE_TEST_SUITE_P(
    CurveFields, LeaveTest,
    ::testing::Values(
        LeaveCase{"EmptyLengthFails", true, "txtLC", "", "", "Length of Curve can not be 0."},
        LeaveCase{"LettersInLengthReadAsZero", true, "txtLC", "abc", "", "Length of Curve can not be 0."},
        LeaveCase{"GradeWithLetterIsNotNumeric", true, "txtG1", "12a", "", "Must be numeric."},
        LeaveCase{"EmptyGradePasses", true, "txtG2", "", "", ""},
        LeaveCase{"EmptyStationPasses", true, "txtPVISTA", "", "", ""},
        LeaveCase{"WholeStationWithLetter", true, "txtPVISTA", "1x", "", "Must be numeric."},
        LeaveCase{"EnglishLargestPlusAccepted", false, "txtPVISTAM", "99.99", "1", ""},
        LeaveCase{"EnglishPlusBeyondLimit", false, "txtPVISTAM", "99.995", "1",
                  "Measurement must be less than 100 feet."},
        LeaveCase{"MetricLargestPlusAccepted", true, "txtPVISTAM", "999.999", "1", ""},
        LeaveCase{"MetricPlusBeyondLimit", true, "txtPVISTAM", "1000", "1",
                  "Measurement must be less than 1000 meters."},
        LeaveCase{"MetricLimitDoesNotApplyToEnglish", false, "txtPVISTAM", "150", "1",
                  "Measurement must be less than 100 feet."},
        LeaveCase{"ZeroStationWithEmptyWhole", true, "txtPVISTAM", "0", "", "Can not have a 0 station."},
        LeaveCase{"ZeroStationWithZeroWhole", false, "txtPVISTAM", "0", "0", "Can not have a 0 station."},
        LeaveCase{"HalfAMetreIsAStation", true, "txtPVISTAM", "0.5", "0", ""},
        LeaveCase{"NegativePlusPasses", true, "txtPVISTAM", "-5", "2", ""},
        LeaveCase{"ElevationIsNotChecked", true, "txtPVIEval", "abc", "", ""}),
    [](const auto& info) { return std::string(info.param.name); });

class LeaveFocusTest : public UiTest {};

TEST_F(LeaveFocusTest, TabBetweenTwoBadFieldsReportsOnlyTheFirst) {
    frmCrestCurve& w = NewCurve();
    w.Field("txtG2")->setText("y");  // bad already, as a loaded curve could be
    TypeInto(w.Field("txtG1"), "12a");

    m_platform.AnswerMessage(MessageButton::Ok);
    QTest::keyClick(w.Field("txtG1"), Qt::Key_Tab);  // on to G2, and the box brings the focus back
    Settle();
    EXPECT_EQ(Messages(), QStringList{"Must be numeric."});
    EXPECT_EQ(QApplication::focusWidget(), w.Field("txtG1"));

    // Once G1 is right, leaving G2 is checked as usual.
    QTest::keyClick(w.Field("txtG1"), Qt::Key_Backspace);
    QTest::keyClick(w.Field("txtG1"), Qt::Key_Tab);
    Settle();
    EXPECT_EQ(QApplication::focusWidget(), w.Field("txtG2"));
    m_platform.AnswerMessage(MessageButton::Ok);
    QTest::keyClick(w.Field("txtG2"), Qt::Key_Tab);
    Settle();
    EXPECT_EQ(Messages(), (QStringList{"Must be numeric.", "Must be numeric."}));
    EXPECT_EQ(QApplication::focusWidget(), w.Field("txtG2"));
}

TEST_F(LeaveFocusTest, MovingToAnotherCurveWindowIsNotLeavingTheField) {
    frmCrestCurve& first = NewCurve();
    frmCrestCurve& second = NewCurve(false);
    Main().MdiArea().setActiveSubWindow(qobject_cast<QMdiSubWindow*>(first.parentWidget()));
    TypeInto(first.Field("txtG1"), "12a");
    ClickInto(second.Field("txtG1"));
    EXPECT_TRUE(Messages().isEmpty()) << Messages().join('|').toStdString();
    EXPECT_EQ(Main().ActiveCurveWindow(), &second);
}

TEST_F(LeaveFocusTest, ClickingIntoAResultAndLeavingChecksItToo) {
    frmCrestCurve& w = NewCurve();
    QTest::mouseClick(w.findChild<QRadioButton*>("optPVCPVT"), Qt::LeftButton);
    ClickInto(w.Field("txtLC"));  // a result in this mode
    m_platform.AnswerMessage(MessageButton::Ok);
    ClickInto(w.Field("txtG1"));
    EXPECT_EQ(Messages(), QStringList{"Length of Curve can not be 0."});
    EXPECT_EQ(QApplication::focusWidget(), w.Field("txtLC"));
}

}  // namespace
}  // namespace gw::test
