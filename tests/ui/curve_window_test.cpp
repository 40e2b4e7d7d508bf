// The curve window: its layout, the two modes, Calc, Clear All, Enter and the
// changed flag.

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "ui_fixture.h"

namespace gw::test {
namespace {

const QStringList kPVIInputs = {"txtPVISTA", "txtPVISTAM", "txtPVIEval", "txtG1", "txtG2", "txtLC"};
const QStringList kPVCPVTInputs = {"txtG1",     "txtPVCSTA",  "txtPVCSTAM", "txtPVCEval",
                                   "txtPVTSTA", "txtPVTSTAM", "txtPVTEval"};

class CurveWindowTest : public UiTest {
protected:
    static QStringList FieldNames(const frmCrestCurve& w) {
        QStringList names;
        for (QLineEdit* f : w.findChildren<QLineEdit*>()) names << f->objectName();
        return names;
    }
    static QStringList Inputs(const frmCrestCurve& w) {
        QStringList names;
        for (QLineEdit* f : w.findChildren<QLineEdit*>()) {
            if (!f->isReadOnly()) names << f->objectName();
        }
        return names;
    }
    // Presses Tab from the first input and notes where the focus goes.
    static QStringList TabWalk(frmCrestCurve& w, const QString& first, int steps) {
        ClickInto(w.Field(first.toStdString()));
        QStringList visited{first};
        for (int i = 1; i < steps; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            Settle();
            visited << QApplication::focusWidget()->objectName();
        }
        return visited;
    }
    static void SolveMetricExample(frmCrestCurve& w) {
        TypeInto(w.Field("txtPVISTA"), "1");
        TypeInto(w.Field("txtPVISTAM"), "250");
        TypeInto(w.Field("txtPVIEval"), "100");
        TypeInto(w.Field("txtG1"), "2");
        TypeInto(w.Field("txtG2"), "-2");
        TypeInto(w.Field("txtLC"), "200");
        QTest::keyClick(w.Field("txtLC"), Qt::Key_Return);
    }
};

TEST_F(CurveWindowTest, ControlsFitTheFixedClientAreaWithoutOverlapping) {
    frmCrestCurve& w = NewCurve();
    EXPECT_EQ(w.size(), QSize(598, 357));
    EXPECT_EQ(w.minimumSize(), w.maximumSize());
    QList<QWidget*> controls;
    for (QWidget* c : w.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (c->objectName() != "Picture1" && c->objectName() != "lblMorF") controls << c;
        EXPECT_TRUE(QRect(QPoint(0, 0), w.size()).contains(c->geometry())) << c->objectName().toStdString();
    }
    for (int i = 0; i < controls.size(); ++i) {
        for (int j = i + 1; j < controls.size(); ++j) {
            EXPECT_FALSE(controls[i]->geometry().intersects(controls[j]->geometry()))
                << controls[i]->objectName().toStdString() << " / " << controls[j]->objectName().toStdString();
        }
    }
    EXPECT_FALSE(w.findChild<QLabel*>("lblMorF")->isVisible());
    EXPECT_EQ(w.Field("txtPVCSTAM")->toolTip(), QStringLiteral("Calculated PVC station"));
}

TEST_F(CurveWindowTest, NewWindowStartsEmptyInThePVIMode) {
    frmCrestCurve& w = NewCurve();
    EXPECT_TRUE(w.findChild<QRadioButton*>("optPVI")->isChecked());
    EXPECT_EQ(w.findChild<QPushButton*>("cmdCalcP")->text(), QStringLiteral("Calc PVC/PVT"));
    EXPECT_EQ(w.findChild<QPushButton*>("cmdCalcP")->toolTip(), QStringLiteral("Calculate PVC / PVT info"));
    QStringList inputs = Inputs(w);
    inputs.sort();
    QStringList expected = kPVIInputs;
    expected.sort();
    EXPECT_EQ(inputs, expected);
    for (QLineEdit* f : w.findChildren<QLineEdit*>()) {
        EXPECT_TRUE(f->text().isEmpty()) << f->objectName().toStdString();
        EXPECT_TRUE(f->isEnabled()) << f->objectName().toStdString();
        EXPECT_EQ(f->focusPolicy() == Qt::ClickFocus, f->isReadOnly()) << f->objectName().toStdString();
    }
    const QColor input = w.Field("txtPVISTA")->palette().color(QPalette::Base);
    const QColor result = w.Field("txtPVCSTA")->palette().color(QPalette::Base);
    EXPECT_NE(input, result);
    EXPECT_EQ(w.Field("txtMO")->palette().color(QPalette::Base), result);
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
    full.elevations.txtVOffset = "1";
    full.elevations.txtPVCSTA = "3";
    w.ScatterSheet(full);
    const bool changedBefore = Main().Slots().State(1).changed;

    QTest::mouseClick(w.findChild<QRadioButton*>(c.option), Qt::LeftButton);
    Settle();

    for (QLineEdit* f : w.findChildren<QLineEdit*>()) EXPECT_TRUE(f->text().isEmpty()) << f->objectName().toStdString();
    EXPECT_TRUE(w.findChild<QLabel*>("lblSDL")->text().isEmpty());
    const ElevationTable& rows = Main().Slots().Elevations(1);
    EXPECT_TRUE(rows.rows[19].txtTOTSTAM1.empty());
    EXPECT_TRUE(rows.txtVOffset.empty());
    EXPECT_EQ(rows.txtPVCSTA, "3");  // the elevations window's station copies stay
    EXPECT_EQ(Main().Slots().State(1).changed, changedBefore);
    EXPECT_EQ(w.findChild<QPushButton*>("cmdCalcP")->text(), QString::fromLatin1(c.calcCaption));
    EXPECT_EQ(QApplication::focusWidget(), w.Field(c.tabOrder.front().toStdString()));

    QStringList inputs = Inputs(w);
    QStringList expected = c.tabOrder;
    inputs.sort();
    expected.sort();
    EXPECT_EQ(inputs, expected);
    EXPECT_EQ(TabWalk(w, c.tabOrder.front(), int(c.tabOrder.size())), c.tabOrder);
}

INSTANTIATE_TEST_SUITE_P(Modes, ModeTest,
                         ::testing::Values(ModeCase{"PVCPVT", "optPVCPVT", "Calc PVI", kPVCPVTInputs},
                                           ModeCase{"PVI", "optPVI", "Calc PVC/PVT", kPVIInputs}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(CurveWindowTest, TypingStopsAtTheFieldLimitsButResultsAreWrittenWhole) {
    frmCrestCurve& w = NewCurve();
    TypeInto(w.Field("txtPVISTA"), "1234567");
    TypeInto(w.Field("txtPVISTAM"), "999.9999");
    EXPECT_EQ(w.Field("txtPVISTA")->text(), QStringLiteral("12345"));
    EXPECT_EQ(w.Field("txtPVISTAM")->text(), QStringLiteral("999.999"));

    QTest::mouseClick(w.findChild<QRadioButton*>("optPVCPVT"), Qt::LeftButton);
    TypeInto(w.Field("txtPVCSTAM"), "12.345678");
    TypeInto(w.Field("txtPVTSTAM"), "12.345678");
    EXPECT_EQ(w.Field("txtPVCSTAM")->text(), QStringLiteral("12.3456"));
    EXPECT_EQ(w.Field("txtPVTSTAM")->text(), QStringLiteral("12.3456"));

    CurveSheet sheet = w.GatherSheet();
    sheet.txtPVISTAM = "345.6789";
    sheet.txtPVISTA = "123456";
    w.ScatterSheet(sheet);
    EXPECT_EQ(w.Field("txtPVISTAM")->text(), QStringLiteral("345.6789"));
    EXPECT_EQ(w.Field("txtPVISTA")->text(), QStringLiteral("123456"));
}

TEST_F(CurveWindowTest, EnterInTheLastFieldSolvesTheCurveAndTypesNothing) {
    frmCrestCurve& w = NewCurve();
    SolveMetricExample(w);
    EXPECT_TRUE(Messages().isEmpty()) << Messages().join('|').toStdString();
    EXPECT_EQ(w.Field("txtLC")->text(), QStringLiteral("200"));
    EXPECT_EQ(w.Field("txtPVCSTA")->text(), QStringLiteral("1"));
    EXPECT_EQ(w.Field("txtPVCSTAM")->text(), QStringLiteral("150.0"));
    EXPECT_EQ(w.Field("txtPVTSTAM")->text(), QStringLiteral("350.0"));
    EXPECT_EQ(w.Field("txtPVCEval")->text(), QStringLiteral("98.0"));
    EXPECT_EQ(w.findChild<QLabel*>("lblSDL")->text(), QStringLiteral("SSD"));
    EXPECT_FALSE(w.Field("txtSD")->text().isEmpty());
}

TEST_F(CurveWindowTest, EnterInAResultFieldStillCalculates) {
    frmCrestCurve& w = NewCurve();
    ClickInto(w.Field("txtPVCEval"));
    m_platform.AnswerMessage(MessageButton::Ok);
    QTest::keyClick(w.Field("txtPVCEval"), Qt::Key_Return);
    Settle();
    EXPECT_EQ(Messages(), QStringList{"PVI Station needs to be entered."});
    EXPECT_EQ(m_platform.Messages().front().title, QStringLiteral("Gradewise"));
    EXPECT_EQ(m_platform.Messages().front().buttons, MessageButtons::Ok);
    EXPECT_TRUE(Main().Slots().State(1).changed);
    EXPECT_EQ(QApplication::focusWidget(), w.Field("txtPVISTA"));
}

TEST_F(CurveWindowTest, EnterCalculatesWithoutTheFieldsOwnCheck) {
    frmCrestCurve& w = NewCurve();
    TypeInto(w.Field("txtPVISTAM"), "0");  // would fail "Can not have a 0 station." on leaving
    m_platform.AnswerMessage(MessageButton::Ok);
    QTest::keyClick(w.Field("txtPVISTAM"), Qt::Key_Enter);
    Settle();
    EXPECT_EQ(Messages(), QStringList{"PVI Station needs to be entered."});
    EXPECT_EQ(w.Field("txtPVISTAM")->text(), QStringLiteral("0"));
}

TEST_F(CurveWindowTest, CalculateElevationsOnAnEmptySheetShowsCalcsFirstMessageOnly) {
    frmCrestCurve& w = NewCurve(false);
    m_platform.AnswerMessage(MessageButton::Ok);
    QTest::mouseClick(w.findChild<QPushButton*>("cmdMoreTOS"), Qt::LeftButton);
    Settle();
    EXPECT_EQ(Messages(), QStringList{"PVI Station needs to be entered."});
    EXPECT_EQ(m_platform.ShownDialogs(), QStringList{"frmInformation"});
}

struct KeyCase {
    const char* name;
    Qt::Key key;
    bool marksChanged;
};

void PrintTo(const KeyCase& c, std::ostream* os) { *os << c.name; }

class ChangedKeyTest : public CurveWindowTest, public ::testing::WithParamInterface<KeyCase> {};

TEST_P(ChangedKeyTest, OnlyCharacterKeysMarkTheCurveChanged) {
    frmCrestCurve& w = NewCurve();
    TypeInto(w.Field("txtPVISTA"), QString());  // focus only
    QTest::keyClick(w.Field("txtPVISTA"), GetParam().key);
    EXPECT_EQ(Main().Slots().State(1).changed, GetParam().marksChanged);
}

INSTANTIATE_TEST_SUITE_P(Keys, ChangedKeyTest,
                         ::testing::Values(KeyCase{"Letter", Qt::Key_Q, true}, KeyCase{"Digit", Qt::Key_7, true},
                                           KeyCase{"Minus", Qt::Key_Minus, true},
                                           KeyCase{"Backspace", Qt::Key_Backspace, true},
                                           KeyCase{"LeftArrow", Qt::Key_Left, false},
                                           KeyCase{"Delete", Qt::Key_Delete, false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(CurveWindowTest, MouseCommandsLeaveChangedAlone) {
    frmCrestCurve& w = NewCurve();
    QTest::mouseClick(w.findChild<QPushButton*>("cmdClear"), Qt::LeftButton);
    QTest::mouseClick(w.findChild<QRadioButton*>("optPVCPVT"), Qt::LeftButton);
    EXPECT_FALSE(Main().Slots().State(1).changed);

    ClickInto(w.Field("txtG1"));
    QTest::keyClick(w.Field("txtG1"), Qt::Key_1);
    QTest::mouseClick(w.findChild<QPushButton*>("cmdClear"), Qt::LeftButton);
    EXPECT_TRUE(Main().Slots().State(1).changed);
}

TEST_F(CurveWindowTest, CalcEmptiesTheRowsOnlyWhenAStationMoves) {
    frmCrestCurve& w = NewCurve();
    Main().Slots().Elevations(1).rows[0].txtTOTSTA1 = "1";
    SolveMetricExample(w);
    EXPECT_TRUE(Main().Slots().Elevations(1).rows[0].txtTOTSTA1.empty());
    Main().Slots().State(1).changed = false;
    Main().Slots().Elevations(1).rows[0].txtTOTSTA1 = "1";

    QTest::mouseClick(w.findChild<QPushButton*>("cmdCalcP"), Qt::LeftButton);  // nothing moves
    EXPECT_FALSE(Main().Slots().State(1).changed);
    EXPECT_EQ(Main().Slots().Elevations(1).rows[0].txtTOTSTA1, "1");
}

}  // namespace
}  // namespace gw::test
