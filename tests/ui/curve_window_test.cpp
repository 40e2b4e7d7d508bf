// The curve window: its layout, the two modes, Enter, the changed flag and the
// checks on leaving a field, driven by real key presses and focus changes.

#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <cstring>
#include <memory>

#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

const QStringList kPVIInputs = {"txtPVISTA", "txtPVISTAM", "txtPVIEval", "txtG1", "txtG2", "txtLC"};
const QStringList kPVCPVTInputs = {"txtG1",     "txtPVCSTA",  "txtPVCSTAM", "txtPVCEval",
                                   "txtPVTSTA", "txtPVTSTAM", "txtPVTEval"};

class CurveWindowTest : public UiTest {
protected:
    static QStringList SortedInputs(const frmCrestCurve& w) {
        QStringList names;
        for (QLineEdit* f : w.findChildren<QLineEdit*>()) {
            if (!f->isReadOnly()) names << f->objectName();
        }
        names.sort();
        return names;
    }
    static QStringList Sorted(QStringList names) {
        names.sort();
        return names;
    }
    bool Changed() { return Main().Slots()[1].changed; }
    static void Press(QWidget* w, Qt::Key key) {
        QTest::keyClick(w, key);
        Settle();
    }
};

TEST_F(CurveWindowTest, NewWindowIsEmptyWithResultsOutOfTheTabOrder) {
    frmCrestCurve& w = NewCurve();
    EXPECT_EQ(w.size(), QSize(598, 357));
    for (QLineEdit* f : w.findChildren<QLineEdit*>()) {
        EXPECT_TRUE(f->text().isEmpty()) << f->objectName().toStdString();
        EXPECT_EQ(f->focusPolicy() == Qt::ClickFocus, f->isReadOnly()) << f->objectName().toStdString();
    }
}

struct ModeCase {
    const char* name;
    const char* option;
    const char* calcCaption;
    QStringList tabOrder;
};

void PrintTo(const ModeCase& c, std::ostream* os) { *os << c.name; }

class ModeTest : public CurveWindowTest, public ::testing::WithParamInterface<ModeCase> {};

TEST_P(ModeTest, SwitchingEmptiesTheSheetAndSetsInputsTabOrderAndCaption) {
    const ModeCase& c = GetParam();
    frmCrestCurve& w = NewCurve();
    // Something in every field, the kind label and the elevations.
    CurveSheet full = w.GatherSheet();
    for (std::string_view name : CurveSheet::CurveFieldNames()) *full.Field(name) = "7";
    full.lblSDL = "SSD";
    full.elevations.rows[19].txtTOTSTAM1 = "5";
    full.elevations.txtPVCSTA = "3";
    w.ScatterSheet(full);

    QTest::mouseClick(w.findChild<QRadioButton*>(c.option), Qt::LeftButton);
    Settle();

    for (QLineEdit* f : w.findChildren<QLineEdit*>()) EXPECT_TRUE(f->text().isEmpty()) << f->objectName().toStdString();
    EXPECT_TRUE(w.findChild<QLabel*>("lblSDL")->text().isEmpty());
    EXPECT_TRUE(Main().Slots()[1].elevationsWindow->Table().rows[19].txtTOTSTAM1.empty());
    EXPECT_EQ(Main().Slots()[1].elevationsWindow->Table().txtPVCSTA,
              "3");           // the elevations window's station copies stay
    EXPECT_FALSE(Changed());  // a mouse command
    EXPECT_EQ(w.findChild<QPushButton*>("cmdCalcP")->text(), QString::fromLatin1(c.calcCaption));
    EXPECT_EQ(SortedInputs(w), Sorted(c.tabOrder));
    // Tab walks the inputs in order, starting where the switch put the focus.
    QStringList visited{QApplication::focusWidget()->objectName()};
    for (int i = 1; i < c.tabOrder.size(); ++i) {
        Press(QApplication::focusWidget(), Qt::Key_Tab);
        visited << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(visited, c.tabOrder);
}

INSTANTIATE_TEST_SUITE_P(Modes, ModeTest,
                         ::testing::Values(ModeCase{"PVCPVT", "optPVCPVT", "Calc PVI", kPVCPVTInputs},
                                           ModeCase{"PVI", "optPVI", "Calc PVC/PVT", kPVIInputs}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(CurveWindowTest, TypingStopsAtTheFieldLimits) {
    frmCrestCurve& w = NewCurve();
    TypeInto(w.Field("txtPVISTA"), "1234567");
    TypeInto(w.Field("txtPVISTAM"), "999.9999");
    EXPECT_EQ(w.Field("txtPVISTA")->text(), "12345");
    EXPECT_EQ(w.Field("txtPVISTAM")->text(), "999.999");
}

// Every way the user can change a field's text: the curve is changed, and what is
// pasted stops at the field's limit.
struct EditWay {
    const char* name;
    void (*edit)(QLineEdit&);
    const char* after;         // from "123" set by the program, cursor at the start
    bool marksChanged = true;  // keys that produce no character leave the flag alone
};

void PrintTo(const EditWay& c, std::ostream* os) { *os << c.name; }

void FromContextMenu(QLineEdit& field, const char* caption) {
    std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
    for (QAction* a : menu->actions()) {
        if (a->text().startsWith(QLatin1String(caption))) return a->trigger();
    }
    ADD_FAILURE() << "no context menu entry " << caption;
}

class UserEditTest : public CurveWindowTest, public ::testing::WithParamInterface<EditWay> {};

TEST_P(UserEditTest, MarksTheCurveChangedByWhatItTypesAndKeepsTheLimit) {
    frmCrestCurve& w = NewCurve();
    QLineEdit* field = w.Field("txtPVISTA");  // at most 5 characters
    ClickInto(field);
    field->setText("123");
    field->setCursorPosition(0);
    QApplication::clipboard()->setText("987654321");
    ASSERT_FALSE(Changed());
    GetParam().edit(*field);
    EXPECT_EQ(field->text(), QString::fromLatin1(GetParam().after));
    EXPECT_EQ(Changed(), GetParam().marksChanged);
}

INSTANTIATE_TEST_SUITE_P(
    Edits, UserEditTest,
    ::testing::Values(
        EditWay{"CtrlV", [](QLineEdit& f) { QTest::keyClick(&f, Qt::Key_V, Qt::ControlModifier); }, "98123"},
        EditWay{"ShiftInsert", [](QLineEdit& f) { QTest::keyClick(&f, Qt::Key_Insert, Qt::ShiftModifier); }, "98123"},
        EditWay{"MenuPaste", [](QLineEdit& f) { FromContextMenu(f, "&Paste"); }, "98123"},
        EditWay{"CtrlX",
                [](QLineEdit& f) {
                    f.selectAll();
                    QTest::keyClick(&f, Qt::Key_X, Qt::ControlModifier);
                },
                ""},
        EditWay{"MenuCut",
                [](QLineEdit& f) {
                    f.selectAll();
                    FromContextMenu(f, "Cu&t");
                },
                ""},
        EditWay{"MenuDelete",
                [](QLineEdit& f) {
                    f.selectAll();
                    FromContextMenu(f, "Delete");
                },
                ""},
        EditWay{"DeleteKey", [](QLineEdit& f) { QTest::keyClick(&f, Qt::Key_Delete); }, "23", false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(CurveWindowTest, EnterCalculatesFromAnyFieldWithoutTheFieldsOwnCheck) {
    frmCrestCurve& w = NewCurve();
    {
        SCOPED_TRACE("in a result field of an empty sheet");
        ClickInto(w.Field("txtPVCEval"));
        m_platform.AnswerMessage(MessageButton::Ok);
        Press(w.Field("txtPVCEval"), Qt::Key_Return);
        EXPECT_EQ(Messages(), QStringList{"PVI Station needs to be entered."});
        EXPECT_EQ(QApplication::focusWidget(), w.Field("txtPVISTA"));
    }
    {
        SCOPED_TRACE("in a field that would fail its check on leaving");
        TypeInto(w.Field("txtPVISTAM"), "0");
        m_platform.AnswerMessage(MessageButton::Ok);
        Press(w.Field("txtPVISTAM"), Qt::Key_Enter);
        EXPECT_EQ(Messages().size(), 2);
        EXPECT_EQ(Messages().back(), "PVI Station needs to be entered.");
    }
    {
        SCOPED_TRACE("in the last input of a full sheet");
        for (auto [name, text] : {std::pair{"txtPVISTA", "1"},
                                  {"txtPVISTAM", "250"},
                                  {"txtPVIEval", "100"},
                                  {"txtG1", "2"},
                                  {"txtG2", "-2"},
                                  {"txtLC", "200"}}) {
            w.Field(name)->setText(text);
        }
        Press(w.Field("txtLC"), Qt::Key_Return);
        EXPECT_EQ(Messages().size(), 2);
        EXPECT_EQ(w.Field("txtLC")->text(), "200");  // Enter types nothing
        EXPECT_EQ(w.Field("txtPVCSTAM")->text(), "150.0");
    }
}

TEST_F(CurveWindowTest, ClearAllMarksChangedOnlyAfterTyping) {
    frmCrestCurve& w = NewCurve();
    QTest::mouseClick(w.findChild<QPushButton*>("cmdClear"), Qt::LeftButton);
    EXPECT_FALSE(Changed());
    ClickInto(w.Field("txtG1"));
    QTest::keyClick(w.Field("txtG1"), Qt::Key_1);
    QTest::mouseClick(w.findChild<QPushButton*>("cmdClear"), Qt::LeftButton);
    EXPECT_TRUE(Changed());
}

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
    if (*c.wholeText) TypeInto(w.Field(std::string(c.field, std::strlen(c.field) - 1)), c.wholeText);
    TypeInto(field, c.text);
    if (*c.message) m_platform.AnswerMessage(MessageButton::Ok);
    QTest::keyClick(field, Qt::Key_Tab);
    Settle();
    EXPECT_EQ(Messages(), *c.message ? QStringList{c.message} : QStringList{});
    EXPECT_EQ(QApplication::focusWidget() == field, *c.message != '\0');
    EXPECT_EQ(field->text(), QString::fromLatin1(c.text));
}

// The checks themselves are the core's; these rows show each kind reaches the window
// with the window's own unit system.
INSTANTIATE_TEST_SUITE_P(CurveFields, LeaveTest,
                         ::testing::Values(LeaveCase{"GradeWithLetter", true, "txtG1", "12a", "", "Must be numeric."},
                                           LeaveCase{"EnglishPlusBeyondLimit", false, "txtPVISTAM", "150", "1",
                                                     "Measurement must be less than 100 feet."},
                                           LeaveCase{"MetricPlusBeyondLimit", true, "txtPVISTAM", "1000", "1",
                                                     "Measurement must be less than 1000 meters."},
                                           LeaveCase{"ZeroStation", false, "txtPVISTAM", "0", "0",
                                                     "Can not have a 0 station."}),
                         [](const auto& info) { return std::string(info.param.name); });

using LeaveFocusTest = UiTest;

TEST_F(LeaveFocusTest, TabBetweenTwoBadFieldsReportsOnlyTheFirst) {
    frmCrestCurve& w = NewCurve();
    w.Field("txtG2")->setText("y");  // bad already, as a loaded curve could be
    TypeInto(w.Field("txtG1"), "12a");
    m_platform.AnswerMessage(MessageButton::Ok);
    QTest::keyClick(w.Field("txtG1"), Qt::Key_Tab);  // on to G2, and the box brings the focus back
    Settle();
    EXPECT_EQ(Messages(), QStringList{"Must be numeric."});
    EXPECT_EQ(QApplication::focusWidget(), w.Field("txtG1"));
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

struct LeaveWay {
    const char* name;
    void (*leave)(frmCrestCurve&);
};

void PrintTo(const LeaveWay& c, std::ostream* os) { *os << c.name; }

class LeaveResultTest : public UiTest, public ::testing::WithParamInterface<LeaveWay> {};

// A result is out of the tab order, so Tab from it passes through the document
// window's frame on its way to the next input.
TEST_P(LeaveResultTest, AResultClickedIntoIsCheckedHoweverItIsLeft) {
    frmCrestCurve& w = NewCurve();
    QTest::mouseClick(w.findChild<QRadioButton*>("optPVCPVT"), Qt::LeftButton);
    ClickInto(w.Field("txtLC"));  // a result in this mode
    m_platform.AnswerMessage(MessageButton::Ok);
    GetParam().leave(w);
    Settle();
    EXPECT_EQ(Messages(), QStringList{"Length of Curve can not be 0."});
    EXPECT_EQ(QApplication::focusWidget(), w.Field("txtLC"));
}

INSTANTIATE_TEST_SUITE_P(
    Ways, LeaveResultTest,
    ::testing::Values(LeaveWay{"Click", [](frmCrestCurve& w) { QTest::mouseClick(w.Field("txtG1"), Qt::LeftButton); }},
                      LeaveWay{"Tab", [](frmCrestCurve& w) { QTest::keyClick(w.Field("txtLC"), Qt::Key_Tab); }},
                      LeaveWay{"ShiftTab",
                               [](frmCrestCurve& w) { QTest::keyClick(w.Field("txtLC"), Qt::Key_Backtab); }}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace gw::test
