#include "core/elevations.h"

#include <gtest/gtest.h>

#include "core/curve_solver.h"
#include "tests/core/sheet_builders.h"

namespace gw {
namespace {

// English curve with PVC 10+00 at 100.0, G1 2, G2 -2 and 400 ft of curve (PVT 14+00),
// shown in its elevations window.
CurveSheet ShownCurve() {
    CurveSheet s = test::PviSheet("English", "12", "0", "104", "2", "-2", "400");
    EXPECT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtPVCEval, "100.0");
    CopyCurveStations(s);
    return s;
}

void SetRow(CurveSheet& s, int i, const char* whole, const char* plus) {
    s.elevations.rows[i].txtTOTSTA1 = whole;
    s.elevations.rows[i].txtTOTSTAM1 = plus;
}

struct OffsetCase {
    const char* v;
    const char* h;
    const char* x;
    const char* elevationAt1200;
};

class ElevationOffsetsTest : public ::testing::TestWithParam<OffsetCase> {};

TEST_P(ElevationOffsetsTest, AddsOffsetsStageByStage) {
    CurveSheet s = ShownCurve();
    SetRow(s, 0, "12", "0");
    s.elevations.txtVOffset = GetParam().v;
    s.elevations.txtHOffset = GetParam().h;
    s.elevations.txtXSlope = GetParam().x;
    ASSERT_FALSE(CalculateTOS(s));
    EXPECT_EQ(s.elevations.rows[0].txtTotalTopSlab1, GetParam().elevationAt1200);
}

INSTANTIATE_TEST_SUITE_P(Offsets, ElevationOffsetsTest,
                         ::testing::Values(OffsetCase{"", "", "", "102.0"}, OffsetCase{"0.5", "", "", "102.5"},
                                           OffsetCase{"0.5", "12", "-2", "102.26"},
                                           OffsetCase{"", "12", "", "102.0"},       // H without X adds nothing
                                           OffsetCase{"x", "12", "2", "102.24"}));  // bad V is ignored

TEST(ElevationRunTest, ComputesEveryFilledRowOnTheCurve) {
    CurveSheet s = ShownCurve();
    SetRow(s, 3, "11", "0");
    SetRow(s, 7, "14", "0");
    SetRow(s, 12, "10", "0");
    ASSERT_FALSE(CalculateTOS(s));
    EXPECT_TRUE(s.elevations.bCalcOK);
    EXPECT_EQ(s.elevations.rows[3].txtTotalTopSlab1, "101.5");
    EXPECT_EQ(s.elevations.rows[7].txtTotalTopSlab1, "100.0");   // E0 + (g1 + g2) L / 2
    EXPECT_EQ(s.elevations.rows[12].txtTotalTopSlab1, "100.0");  // the PVC itself
    EXPECT_EQ(s.elevations.rows[4].txtTotalTopSlab1, "");
}

TEST(ElevationRunTest, StopsAtAStationBeforeThePvc) {
    CurveSheet s = ShownCurve();
    for (int i = 0; i < 10; ++i) SetRow(s, i, "11", "0");
    for (int i = 0; i < 10; ++i) s.elevations.rows[i].txtTotalTopSlab1 = "old";
    SetRow(s, 5, "9", "50");
    Outcome stopped = CalculateTOS(s);
    ASSERT_TRUE(stopped);
    EXPECT_EQ(stopped->message, "Top of Slab Station must be between PVC and PVT stations.");
    EXPECT_EQ(stopped->field, "txtTOTSTAM1");
    EXPECT_EQ(stopped->row, 5);
    EXPECT_FALSE(s.elevations.bCalcOK);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(s.elevations.rows[i].txtTotalTopSlab1, "101.5");
    EXPECT_EQ(s.elevations.rows[5].txtTotalTopSlab1, "");
    for (int i = 6; i < 10; ++i) EXPECT_EQ(s.elevations.rows[i].txtTotalTopSlab1, "old");
    EXPECT_TRUE(ConfirmElevations(s));  // OK refuses to hide
}

TEST(ElevationRunTest, ZeroLengthLeavesElevationsEmpty) {
    CurveSheet s = ShownCurve();
    s.txtLC = "";
    SetRow(s, 0, "11", "0");
    s.elevations.txtVOffset = "1";
    ASSERT_FALSE(CalculateTOS(s));
    EXPECT_EQ(s.elevations.rows[0].txtTotalTopSlab1, "");
    EXPECT_TRUE(s.elevations.bCalcOK);
}

TEST(ElevationActivationTest, RecomputesOnlyWhenTheEndsMoved) {
    CurveSheet s = test::PviSheet("English", "12", "0", "104", "2", "-2", "400");
    ASSERT_FALSE(Calculate(s));
    SetRow(s, 0, "11", "0");
    ASSERT_FALSE(ActivateElevations(s));  // first showing: copies were empty
    EXPECT_EQ(s.elevations.txtPVCSTA, "10");
    EXPECT_EQ(s.elevations.txtPVTSTAM, "0.0");
    EXPECT_EQ(s.elevations.rows[0].txtTotalTopSlab1, "101.5");

    s.elevations.rows[0].txtTotalTopSlab1 = "kept";
    ASSERT_FALSE(ActivateElevations(s));
    EXPECT_EQ(s.elevations.rows[0].txtTotalTopSlab1, "kept");

    s.txtPVCSTAM = "0";  // same value, different text: it counts as a change
    ASSERT_FALSE(ActivateElevations(s));
    EXPECT_EQ(s.elevations.rows[0].txtTotalTopSlab1, "101.5");
}

TEST(ElevationClearTest, EmptiesRowsAndOffsetsKeepsCopiesAndMarksChanged) {
    CurveSheet s = ShownCurve();
    test::FillRows(s);
    s.elevations.txtVOffset = "1";
    s.changed = false;
    ClearElevations(s);
    EXPECT_TRUE(s.changed);
    EXPECT_EQ(s.elevations.rows[19].txtTOTSTAM1, "");
    EXPECT_EQ(s.elevations.txtVOffset, "");
    EXPECT_EQ(s.elevations.txtPVCSTA, "10");
}

TEST(ElevationRowChecksTest, WholeStationChecksCanGiveTwoMessages) {
    CurveSheet s = ShownCurve();
    using V = std::vector<std::string_view>;
    SetRow(s, 0, "x", "");
    EXPECT_EQ(CheckRowWholeStation(s, 0), (V{"Must be numeric.", "Must be >= to PVCSTA."}));
    SetRow(s, 0, "9", "");
    EXPECT_EQ(CheckRowWholeStation(s, 0), (V{"Must be >= to PVCSTA."}));
    SetRow(s, 0, "15", "");
    EXPECT_EQ(CheckRowWholeStation(s, 0), (V{"Must be <= to PVTSTA."}));
    SetRow(s, 0, "14", "");
    EXPECT_EQ(CheckRowWholeStation(s, 0), V{});
}

TEST(ElevationRowChecksTest, PlusPartLimitsPerUnitSystem) {
    using V = std::vector<std::string_view>;
    CurveSheet s = ShownCurve();
    SetRow(s, 4, "11", "100");
    EXPECT_EQ(CheckRowPlus(s, 4), (V{"Measurement must be less than 100 feet."}));
    SetRow(s, 4, "11", "abc");
    EXPECT_EQ(CheckRowPlus(s, 4), (V{"Must be numeric."}));
    s.lblMorF = "Metric";
    SetRow(s, 4, "1", "999.999");
    EXPECT_EQ(CheckRowPlus(s, 4), V{});
    SetRow(s, 4, "1", "1000");
    EXPECT_EQ(CheckRowPlus(s, 4), (V{"Measurement must be less than 1000 meters."}));
}

}  // namespace
}  // namespace gw
