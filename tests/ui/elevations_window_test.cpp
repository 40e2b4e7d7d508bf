#include <QLabel>

#include "elevations_fixture.h"

namespace gw::test {
namespace {

using ElevationsWindowTest = ElevationsFixture;

TEST_F(ElevationsWindowTest, FirstShowingCopiesTheEndsWithEmptyRowsAndTheCurvesUnits) {
    Show();
    EXPECT_EQ(window.Field("txtPVTSTA")->text(), "14");
    EXPECT_EQ(window.findChild<QLabel*>("lblvoffsetm")->text(), "(ft)");
    EXPECT_EQ(QApplication::focusWidget(), Row("txtTOTSTA1", 0));
    EXPECT_TRUE(window.Field("txtPVCSTA")->isReadOnly());
    EXPECT_FALSE(slot.changed);
    window.hide();
    slot.curve.lblMorF = "Metric";
    Show();
    EXPECT_EQ(window.findChild<QLabel*>("lblvoffsetm")->text(), "(m)");
}

TEST_F(ElevationsWindowTest, TypedStationIsComputedByOkAndKeptAcrossShowings) {
    Show();
    TypeStation(0, "11", "0");
    EXPECT_TRUE(slot.changed);  // typing marks the curve changed
    Click("cmdOK");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(slot.table.rows[0].txtTotalTopSlab1, "101.5");
    Show();
    EXPECT_EQ(Row("txtTOTSTA1", 0)->text(), "11");
    EXPECT_EQ(Elevation(0), "101.5");
}

TEST_F(ElevationsWindowTest, AStationBeforeThePvcStopsTheRunAndKeepsTheWindow) {
    slot.table.txtPVCSTA = "10";  // shown before: the copies match, nothing recomputes on showing
    slot.table.txtPVCSTAM = "0.0";
    slot.table.txtPVTSTA = "14";
    slot.table.txtPVTSTAM = "0.0";
    for (int i = 0; i < 10; ++i) slot.table.rows[i] = {"11", "0", "old"};
    slot.table.rows[5] = {"9", "50", "old"};
    Show();
    platform.AnswerMessage(MessageButton::Ok);
    Click("cmdOK");
    EXPECT_EQ(Messages(), QStringList{"Top of Slab Station must be between PVC and PVT stations."});
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Elevation(4), "101.5");
    EXPECT_EQ(Elevation(6), "old");
    EXPECT_EQ(QApplication::focusWidget(), Row("txtTOTSTAM1", 5));
}

TEST_F(ElevationsWindowTest, LeavingAWholeStationOfLettersGivesTwoMessages) {
    Show();
    platform.AnswerMessage(MessageButton::Ok);
    platform.AnswerMessage(MessageButton::Ok);
    QTest::keyClicks(Row("txtTOTSTA1", 0), "x");
    QTest::keyClick(Row("txtTOTSTA1", 0), Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(Messages(), (QStringList{"Must be numeric.", "Must be >= to PVCSTA."}));
    EXPECT_EQ(QApplication::focusWidget(), Row("txtTOTSTA1", 0));
    EXPECT_EQ(Row("txtTOTSTA1", 0)->text(), "x");
}

TEST_F(ElevationsWindowTest, ClearAllEmptiesRowsAndOffsetsButKeepsTheEnds) {
    slot.table.rows[3] = {"11", "0", "101.5"};
    slot.table.txtVOffset = "0.5";
    Show();
    slot.changed = false;
    Click("cmdClear");
    EXPECT_TRUE(slot.changed);
    EXPECT_EQ(Row("txtTOTSTA1", 3)->text(), "");
    EXPECT_EQ(window.Field("txtVOffset")->text(), "");
    EXPECT_EQ(window.Field("txtPVTSTA")->text(), "14");
}

TEST_F(ElevationsWindowTest, EscapeDoesNotCloseButTheCloseBoxUnloads) {
    slot.table.rows[0] = {"11", "0", ""};
    Show();
    QTest::keyClick(Row("txtTOTSTA1", 0), Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(slot.table.rows[0].txtTOTSTA1, "");
    EXPECT_EQ(slot.table.txtPVCSTA, "");
}

TEST_F(ElevationsWindowTest, TabOrderRunsFromOkThroughTheRowsToTheOffsets) {
    Show();
    QWidget* ok = window.findChild<QPushButton*>("cmdOK");
    EXPECT_EQ(ok->nextInFocusChain(), Row("txtTOTSTA1", 0));
    EXPECT_EQ(Row("txtTOTSTA1", 0)->nextInFocusChain(), Row("txtTOTSTAM1", 0));
    EXPECT_EQ(Row("txtTOTSTAM1", 19)->nextInFocusChain(), window.findChild<QPushButton*>("cmdCalculateTOS"));
    EXPECT_EQ(window.findChild<QPushButton*>("cmdAutoStation")->nextInFocusChain(), window.Field("txtVOffset"));
    EXPECT_EQ(Row("txtTotalTopSlab1", 0)->focusPolicy(), Qt::ClickFocus);
}

}  // namespace
}  // namespace gw::test
