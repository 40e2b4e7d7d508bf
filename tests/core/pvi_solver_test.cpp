#include <gtest/gtest.h>

#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "sheet_builders.h"

namespace gw {
namespace {

using test::FillRows;
using test::PviSheet;

TEST(PviSolverTest, SolvesTheWorkedEnglishCurve) {
    CurveSheet s = PviSheet("English", "10", "0", "100", "2", "-2", "400");
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtPVCSTA, "8");
    EXPECT_EQ(s.txtPVCSTAM, "0.0");
    EXPECT_EQ(s.txtPVTSTA, "12");
    EXPECT_EQ(s.txtPVTSTAM, "0.0");
    EXPECT_EQ(s.txtPVCEval, "96.0");
    EXPECT_EQ(s.txtPVTEval, "96.0");
    EXPECT_EQ(s.txtMO, "2.0");
    EXPECT_EQ(s.txtTPSTA, "10");
    EXPECT_EQ(s.txtTPSTAM, "0.0");
    EXPECT_EQ(s.lblSDL, "SSD");
    EXPECT_EQ(s.txtSD, "364.5545");
    // Inputs are never rewritten.
    EXPECT_EQ(s.txtPVIEval, "100");
    EXPECT_EQ(s.txtLC, "400");
}

TEST(PviSolverTest, MetricStationsUseThousandMetreStations) {
    CurveSheet s = PviSheet("Metric", "1", "500", "50", "-1", "1", "200");
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtPVCSTA, "1");
    EXPECT_EQ(s.txtPVCSTAM, "400.0");
    EXPECT_EQ(s.txtPVTSTA, "1");
    EXPECT_EQ(s.txtPVTSTAM, "600.0");
}

struct MissingCase {
    const char* field;
    const char* message;
};

class PviChecksTest : public ::testing::TestWithParam<MissingCase> {};

TEST_P(PviChecksTest, RefusesTheFirstMissingInputAndWritesNothing) {
    CurveSheet s = PviSheet("English", "10", "0", "100", "2", "-2", "400");
    FillRows(s);
    *s.Field(GetParam().field) = "";
    const CurveSheet before = s;
    Outcome refused = Calculate(s);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->message, GetParam().message);
    EXPECT_EQ(refused->field, GetParam().field);
    EXPECT_EQ(CurveFileBytes(s), CurveFileBytes(before));
    EXPECT_EQ(s.changed, before.changed);
}

INSTANTIATE_TEST_SUITE_P(InOrder, PviChecksTest,
                         ::testing::Values(MissingCase{"txtPVISTA", "PVI Station needs to be entered."},
                                           MissingCase{"txtPVISTAM", "PVI Station needs to be entered."},
                                           MissingCase{"txtPVIEval", "PVI Elevation needs to be entered."},
                                           MissingCase{"txtG1", "G1 needs to be entered."},
                                           MissingCase{"txtG2", "G2 needs to be entered."},
                                           MissingCase{"txtLC", "Length of Curve needs to be entered."}));

TEST(PviChecksTest, ChecksRunInTableOrder) {
    CurveSheet s = NewCurveSheet("English");
    s.txtPVISTA = "10";
    s.txtG2 = "x";
    Outcome refused = Calculate(s);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->field, "txtPVISTAM");
    s.txtPVISTAM = "0";
    s.txtPVIEval = "100";
    s.txtG1 = "1";
    refused = Calculate(s);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->message, "G2 needs to be entered.");
}

struct TurningCase {
    const char* g1;
    const char* g2;
    const char* tpSta;
    const char* tpStam;
};

class TurningPointTest : public ::testing::TestWithParam<TurningCase> {};

TEST_P(TurningPointTest, FollowsTheSignsOfTheGrades) {
    const TurningCase& c = GetParam();
    CurveSheet s = PviSheet("English", "10", "0", "100", c.g1, c.g2, "400");
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtTPSTA, c.tpSta);
    EXPECT_EQ(s.txtTPSTAM, c.tpStam);
}

INSTANTIATE_TEST_SUITE_P(Grades, TurningPointTest,
                         ::testing::Values(TurningCase{"0", "-2", "8", "0.0"},    // at the PVC
                                           TurningCase{"2", "0", "12", "0.0"},    // at the PVT
                                           TurningCase{"3", "1", "", "N/A"},      // both positive
                                           TurningCase{"-1", "-4", "", "N/A"},    // both negative
                                           TurningCase{"0", "0", "0", "0.0"},     // flat: r is 0
                                           TurningCase{"-3", "1", "11", "0.0"}));

TEST(PviSolverTest, EqualGradesLeaveTheSightDistanceAlone) {
    CurveSheet s = PviSheet("English", "10", "0", "100", "0", "0", "400");
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtMO, "0.0");
    EXPECT_EQ(s.lblSDL, "");
    EXPECT_EQ(s.txtSD, "");
    s.lblSDL = "SSD";
    s.txtSD = "1.0";
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.lblSDL, "SSD");
    EXPECT_EQ(s.txtSD, "1.0");
}

TEST(PviChangeTest, OnlyAMovedStationEmptiesTheRowsAndMarksChanged) {
    CurveSheet s = PviSheet("English", "10", "0", "100", "2", "-2", "400");
    ASSERT_FALSE(Calculate(s));
    EXPECT_TRUE(s.changed);  // a first solve moves the stations off 0

    s.changed = false;
    FillRows(s);
    ASSERT_FALSE(Calculate(s));
    EXPECT_FALSE(s.changed);
    EXPECT_EQ(s.elevations.rows[19].txtTOTSTA1, "1");

    s.txtPVIEval = "150";  // elevations move, stations do not
    ASSERT_FALSE(Calculate(s));
    EXPECT_FALSE(s.changed);
    EXPECT_EQ(s.elevations.rows[0].txtTotalTopSlab1, "3");

    s.txtLC = "300";
    ASSERT_FALSE(Calculate(s));
    EXPECT_TRUE(s.changed);
    for (const ElevationRow& row : s.elevations.rows) {
        EXPECT_EQ(row.txtTOTSTA1, "");
        EXPECT_EQ(row.txtTOTSTAM1, "");
        EXPECT_EQ(row.txtTotalTopSlab1, "");
    }
}

TEST(PviDegenerateTest, ZeroLengthCompletesWithoutNonsense) {
    for (const char* g2 : {"-2", "2", "0"}) {
        CurveSheet s = PviSheet("English", "10", "0", "100", "0", g2, "0");
        ASSERT_FALSE(Calculate(s));
        EXPECT_EQ(s.txtPVCSTA, "10");
        EXPECT_EQ(s.txtPVCEval, "100.0");
        EXPECT_EQ(s.txtMO, "0.0");
        for (const std::string* t : {&s.txtTPSTA, &s.txtTPSTAM, &s.txtSD}) {
            EXPECT_EQ(t->find_first_of("naif"), std::string::npos) << *t;
        }
    }
}

TEST(PviDegenerateTest, NegativeLengthShowsNoSightDistance) {
    CurveSheet s = PviSheet("English", "10", "0", "100", "2", "-2", "-400");
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtPVCSTA, "12");
    EXPECT_EQ(s.lblSDL, "SSD");
    EXPECT_EQ(s.txtSD, "");
}

TEST(PviDegenerateTest, HugeInputsNeverShowInfinity) {
    CurveSheet s = PviSheet("English", "1e307", "0", "1e308", "1e308", "-1e308", "1e308");
    ASSERT_FALSE(Calculate(s));
    for (std::string_view name : {"txtPVCSTA", "txtPVCSTAM", "txtPVTSTA", "txtPVTSTAM", "txtPVCEval",
                                  "txtPVTEval", "txtMO", "txtSD", "txtTPSTA", "txtTPSTAM"}) {
        const std::string& t = *s.Field(name);
        EXPECT_EQ(t.find("inf"), std::string::npos) << name << " = " << t;
        EXPECT_EQ(t.find("nan"), std::string::npos) << name << " = " << t;
        EXPECT_EQ(t.find('e'), std::string::npos) << name << " = " << t;
    }
}

}  // namespace
}  // namespace gw
