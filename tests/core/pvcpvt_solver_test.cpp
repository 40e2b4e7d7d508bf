#include <gtest/gtest.h>

#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "sheet_builders.h"

namespace gw {
namespace {

using test::EndsSheet;
using test::FillRows;

TEST(PvcPvtSolverTest, SolvesTheWorkedCurveFromItsEnds) {
    CurveSheet s = EndsSheet("English", "8", "0", "96", "12", "0", "96", "2");
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtLC, "400.0");
    EXPECT_EQ(s.txtPVISTA, "10");
    EXPECT_EQ(s.txtPVISTAM, "0.0");
    EXPECT_EQ(s.txtPVIEval, "100.0");
    EXPECT_EQ(s.txtG2, "-2.0");
    EXPECT_EQ(s.txtMO, "2.0");
    EXPECT_EQ(s.txtTPSTA, "10");
    EXPECT_EQ(s.txtTPSTAM, "0.0");
    EXPECT_EQ(s.lblSDL, "SSD");
    EXPECT_EQ(s.txtSD, "364.5545");
}

TEST(PvcPvtSolverTest, RoundedResultsCarryIntoLaterSteps) {
    CurveSheet s = EndsSheet("English", "10", "0", "100", "13", "0", "100.5", "-1");
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtLC, "300.0");
    EXPECT_EQ(s.txtPVIEval, "98.5");
    EXPECT_EQ(s.txtG2, "1.3333");
    // |(-1 - 1.3333)| / 100 * 300 / 8, from the grade as written.
    EXPECT_EQ(s.txtMO, "0.875");
    EXPECT_EQ(s.lblSDL, "HSD");
}

TEST(PvcPvtSolverTest, MetricCurve) {
    CurveSheet s = EndsSheet("Metric", "1", "900", "50", "2", "100", "52", "1");
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtLC, "200.0");
    EXPECT_EQ(s.txtPVISTA, "2");
    EXPECT_EQ(s.txtPVISTAM, "0.0");
}

TEST(PvcPvtSolverTest, OverwritesWhateverG2Held) {
    CurveSheet s = EndsSheet("English", "8", "0", "96", "12", "0", "96", "2");
    s.txtG2 = "abc";
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtG2, "-2.0");
}

struct OrderCase {
    const char* pvcSta;
    const char* pvtSta;
};

class PvcPvtOrderTest : public ::testing::TestWithParam<OrderCase> {};

TEST_P(PvcPvtOrderTest, RefusesAPvcNotBeforeThePvt) {
    CurveSheet s = EndsSheet("English", GetParam().pvcSta, "0", "96", GetParam().pvtSta, "0", "96", "2");
    FillRows(s);
    const std::string before = CurveFileBytes(s);
    Outcome refused = Calculate(s);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->message, "PVC station must be less than PVT station.");
    EXPECT_EQ(refused->field, "txtPVCSTA");
    EXPECT_EQ(CurveFileBytes(s), before);
    EXPECT_FALSE(s.changed);
}

INSTANTIATE_TEST_SUITE_P(Stations, PvcPvtOrderTest,
                         ::testing::Values(OrderCase{"12", "8"}, OrderCase{"10", "10"}));

TEST(PvcPvtChecksTest, RefusesInTableOrder) {
    const std::pair<const char*, const char*> order[] = {
        {"txtPVCSTA", "PVC Station needs to be entered."},  {"txtPVCSTAM", "PVC Station needs to be entered."},
        {"txtPVCEval", "PVC Elevation needs to be entered."}, {"txtPVTSTA", "PVT Station needs to be entered."},
        {"txtPVTSTAM", "PVT Station needs to be entered."},  {"txtPVTEval", "PVT Elevation needs to be entered."},
        {"txtG1", "G1 needs to be entered."},
    };
    for (size_t missing = 0; missing < std::size(order); ++missing) {
        CurveSheet s = EndsSheet("English", "8", "0", "96", "12", "0", "96", "2");
        // Everything from this check on is missing: the earliest one is reported.
        for (size_t k = missing; k < std::size(order); ++k) *s.Field(order[k].first) = "?";
        Outcome refused = Calculate(s);
        ASSERT_TRUE(refused);
        EXPECT_EQ(refused->field, order[missing].first);
        EXPECT_EQ(refused->message, order[missing].second);
    }
}

TEST(PvcPvtChangeTest, MovingThePviEmptiesRowsAndReSolvingDoesNot) {
    CurveSheet s = EndsSheet("English", "8", "0", "96", "12", "0", "96", "2");
    ASSERT_FALSE(Calculate(s));
    s.changed = false;
    FillRows(s);
    ASSERT_FALSE(Calculate(s));
    EXPECT_FALSE(s.changed);
    EXPECT_EQ(s.elevations.rows[5].txtTOTSTA1, "1");
    s.txtPVTSTA = "14";
    ASSERT_FALSE(Calculate(s));
    EXPECT_TRUE(s.changed);
    EXPECT_EQ(s.elevations.rows[5].txtTOTSTA1, "");
}

TEST(PvcPvtDegenerateTest, ALengthThatRoundsToZeroShowsNoGrade) {
    CurveSheet s = EndsSheet("English", "0", "1", "96", "0", "1.00001", "96", "2");
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtLC, "0.0");
    EXPECT_EQ(s.txtG2, "");
}

}  // namespace
}  // namespace gw
