// Calculate Elevations through the real main window: the slot's elevations window,
// what it keeps while hidden and what empties it.

#include <QPushButton>
#include <QTest>

#include "ui/elevations/elevations_window.h"
#include "ui_fixture.h"

namespace gw::test {
namespace {

class ElevationsFlowTest : public UiTest {
protected:
    // English crest: PVC 10+00 at 100.0, PVT 14+00.
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

    // Presses Calculate Elevations with the elevations window answered by `script`.
    void CalculateElevations(frmCrestCurve& w, std::function<void(ElevationsWindow&)> script) {
        m_platform.AnswerDialog([script](QDialog& d) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&d));
            script(static_cast<ElevationsWindow&>(d));
        });
        w.findChild<QPushButton*>("cmdMoreTOS")->click();
        Settle();
    }

    static void TypeRow(ElevationsWindow& e, int row, const char* whole, const char* plus) {
        QTest::keyClicks(e.RowField("txtTOTSTA1", row), whole);
        e.RowField("txtTOTSTAM1", row)->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(e.RowField("txtTOTSTAM1", row), plus);
    }

    static void PressOK(ElevationsWindow& e) { e.findChild<QPushButton*>("cmdOK")->click(); }
};

TEST_F(ElevationsFlowTest, AnEmptySheetShowsCalcsMessageAndNoWindow) {
    frmCrestCurve& w = NewCurve();
    m_platform.AnswerMessage(MessageButton::Ok);
    w.findChild<QPushButton*>("cmdMoreTOS")->click();
    Settle();
    EXPECT_EQ(Messages(), QStringList{"PVI Station needs to be entered."});
    EXPECT_FALSE(m_platform.ShownDialogs().contains("frmTS"));
}

TEST_F(ElevationsFlowTest, RowsTypedAndComputedStayWithTheCurveUntilAStationMoves) {
    frmCrestCurve& w = SolvedEnglishCurve();
    Main().Slots().State(w.Slot()).changed = false;
    CalculateElevations(w, [](ElevationsWindow& e) {
        EXPECT_EQ(e.Field("txtPVCSTA")->text(), "10");
        EXPECT_EQ(e.Field("txtPVTSTA")->text(), "14");
        EXPECT_EQ(QApplication::focusWidget(), e.RowField("txtTOTSTA1", 0));
        TypeRow(e, 0, "11", "0");
        PressOK(e);
        EXPECT_FALSE(e.isVisible());
    });
    EXPECT_TRUE(Main().Slots().State(w.Slot()).changed);  // typing in the elevations window
    EXPECT_EQ(Main().Slots().Elevations(w.Slot()).rows[0].txtTotalTopSlab1, "101.5");

    // Calc again with nothing moved, and the next showing still has the row.
    CalculateElevations(w, [](ElevationsWindow& e) {
        EXPECT_EQ(e.RowField("txtTotalTopSlab1", 0)->text(), "101.5");
        PressOK(e);
    });

    // A new length moves the PVC and PVT: the rows are gone and the ends are new.
    w.Field("txtLC")->setText("200");
    CalculateElevations(w, [](ElevationsWindow& e) {
        EXPECT_EQ(e.RowField("txtTOTSTA1", 0)->text(), "");
        EXPECT_EQ(e.Field("txtPVCSTA")->text(), "11");
        PressOK(e);
    });
}

TEST_F(ElevationsFlowTest, ClearAllOfTheCurveWindowEmptiesTheRows) {
    frmCrestCurve& w = SolvedEnglishCurve();
    CalculateElevations(w, [](ElevationsWindow& e) {
        TypeRow(e, 2, "13", "0");
        e.Field("txtVOffset")->setText("0.5");
        PressOK(e);
    });
    EXPECT_EQ(Main().Slots().Elevations(w.Slot()).rows[2].txtTotalTopSlab1, "102.0");
    w.findChild<QPushButton*>("cmdClear")->click();
    EXPECT_EQ(Main().Slots().Elevations(w.Slot()).rows[2].txtTOTSTA1, "");
    EXPECT_EQ(Main().Slots().Elevations(w.Slot()).txtVOffset, "");
}

TEST_F(ElevationsFlowTest, AFailedCalcStillOpensTheWindowWhenThePvcHoldsNumbers) {
    frmCrestCurve& w = SolvedEnglishCurve();
    w.Field("txtG2")->clear();
    m_platform.AnswerMessage(MessageButton::Ok);
    CalculateElevations(w, [](ElevationsWindow& e) { PressOK(e); });
    EXPECT_EQ(Messages(), QStringList{"G2 needs to be entered."});
    EXPECT_TRUE(m_platform.ShownDialogs().contains("frmTS"));
}

TEST_F(ElevationsFlowTest, EachSlotHasItsOwnElevations) {
    frmCrestCurve& first = SolvedEnglishCurve();
    CalculateElevations(first, [](ElevationsWindow& e) {
        TypeRow(e, 0, "11", "0");
        PressOK(e);
    });
    frmCrestCurve& second = NewCurve(true);
    EXPECT_NE(first.Slot(), second.Slot());
    EXPECT_EQ(Main().Slots().Elevations(second.Slot()).rows[0].txtTOTSTA1, "");
    EXPECT_EQ(Main().Slots().Elevations(first.Slot()).rows[0].txtTOTSTA1, "11");
}

}  // namespace
}  // namespace gw::test
