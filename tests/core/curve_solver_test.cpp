// Calc in both modes: the worked curves, the checks in table order, the turning point,
// when the rows empty, and inputs that leave nothing sensible to show.
#include <gtest/gtest.h>

#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "tests/core/sheet_builders.h"

namespace gw {
namespace {

using test::EndsSheet;
using test::FillRows;
using test::PviSheet;

TEST(CurveSolverTest, TheWorkedCurveFromItsPviAndFromItsEnds) {
    CurveSheet s = PviSheet("English", "10", "0", "100", "2", "-2", "400");
    ASSERT_FALSE(Calculate(s));
    for (auto [name, text] : {std::pair{"txtPVCSTA", "8"},
                              {"txtPVCSTAM", "0.0"},
                              {"txtPVTSTA", "12"},
                              {"txtPVTSTAM", "0.0"},
                              {"txtPVCEval", "96.0"},
                              {"txtPVTEval", "96.0"},
                              {"txtMO", "2.0"},
                              {"txtTPSTA", "10"},
                              {"txtTPSTAM", "0.0"},
                              {"txtSD", "364.5545"},
                              {"txtPVIEval", "100"},
                              {"txtLC", "400"}}) {  // inputs are never rewritten
        EXPECT_EQ(*s.Field(name), text) << name;
    }
    EXPECT_EQ(s.lblSDL, "SSD");

    CurveSheet e = EndsSheet("English", "8", "0", "96", "12", "0", "96", "2");
    e.txtG2 = "abc";  // a result in this mode, whatever it held
    ASSERT_FALSE(Calculate(e));
    for (auto [name, text] : {std::pair{"txtLC", "400.0"},
                              {"txtPVISTA", "10"},
                              {"txtPVISTAM", "0.0"},
                              {"txtPVIEval", "100.0"},
                              {"txtG2", "-2.0"},
                              {"txtMO", "2.0"},
                              {"txtSD", "364.5545"}}) {
        EXPECT_EQ(*e.Field(name), text) << name;
    }
}

TEST(CurveSolverTest, MetricStationsAndRoundedResultsCarryingIntoLaterSteps) {
    CurveSheet s = PviSheet("Metric", "1", "500", "50", "-1", "1", "200");
    ASSERT_FALSE(Calculate(s));
    EXPECT_EQ(s.txtPVCSTAM, "400.0");
    EXPECT_EQ(s.txtPVTSTAM, "600.0");
    CurveSheet e = EndsSheet("Metric", "1", "900", "50", "2", "100", "52", "1");
    ASSERT_FALSE(Calculate(e));
    EXPECT_EQ(e.txtLC, "200.0");
    EXPECT_EQ(e.txtPVISTA, "2");

    CurveSheet r = EndsSheet("English", "10", "0", "100", "13", "0", "100.5", "-1");
    ASSERT_FALSE(Calculate(r));
    EXPECT_EQ(r.txtPVIEval, "98.5");
    EXPECT_EQ(r.txtG2, "1.3333");
    EXPECT_EQ(r.txtMO, "0.875");  // |(-1 - 1.3333)| / 100 * 300 / 8, from the grade as written
    EXPECT_EQ(r.lblSDL, "HSD");
}

struct Check {
    const char* field;
    const char* message;
};

// Every field from the checked one on is missing: the earliest is reported, and a
// refused Calc writes nothing.
TEST(CurveSolverChecksTest, RefuseInTableOrderAndWriteNothing) {
    const std::vector<Check> pvi = {{"txtPVISTA", "PVI Station needs to be entered."},
                                    {"txtPVISTAM", "PVI Station needs to be entered."},
                                    {"txtPVIEval", "PVI Elevation needs to be entered."},
                                    {"txtG1", "G1 needs to be entered."},
                                    {"txtG2", "G2 needs to be entered."},
                                    {"txtLC", "Length of Curve needs to be entered."}};
    const std::vector<Check> ends = {{"txtPVCSTA", "PVC Station needs to be entered."},
                                     {"txtPVCSTAM", "PVC Station needs to be entered."},
                                     {"txtPVCEval", "PVC Elevation needs to be entered."},
                                     {"txtPVTSTA", "PVT Station needs to be entered."},
                                     {"txtPVTSTAM", "PVT Station needs to be entered."},
                                     {"txtPVTEval", "PVT Elevation needs to be entered."},
                                     {"txtG1", "G1 needs to be entered."}};
    for (const bool pviMode : {true, false}) {
        const std::vector<Check>& order = pviMode ? pvi : ends;
        for (size_t missing = 0; missing < order.size(); ++missing) {
            CurveSheet s = pviMode ? PviSheet("English", "10", "0", "100", "2", "-2", "400")
                                   : EndsSheet("English", "8", "0", "96", "12", "0", "96", "2");
            FillRows(s);
            for (size_t k = missing; k < order.size(); ++k) *s.Field(order[k].field) = k % 2 ? "" : "?";
            const std::string before = CurveFileBytes(s);
            Outcome refused = Calculate(s);
            ASSERT_TRUE(refused) << order[missing].field;
            EXPECT_EQ(refused->field, order[missing].field);
            EXPECT_EQ(refused->message, order[missing].message);
            EXPECT_EQ(CurveFileBytes(s), before);
            EXPECT_FALSE(s.changed);
        }
    }
    for (const char* pvtSta : {"8", "10"}) {  // a PVC not before the PVT
        CurveSheet s = EndsSheet("English", "10", "0", "96", pvtSta, "0", "96", "2");
        EXPECT_EQ(Calculate(s), (Refusal{"PVC station must be less than PVT station.", "txtPVCSTA"})) << pvtSta;
    }
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
                         ::testing::Values(TurningCase{"0", "-2", "8", "0.0"},  // at the PVC
                                           TurningCase{"2", "0", "12", "0.0"},  // at the PVT
                                           TurningCase{"3", "1", "", "N/A"},    // both positive
                                           TurningCase{"0", "0", "0", "0.0"},   // flat: r is 0
                                           TurningCase{"-3", "1", "11", "0.0"}));

TEST(CurveSolverChangeTest, OnlyAMovedStationEmptiesTheRowsAndMarksChanged) {
    for (const bool pviMode : {true, false}) {
        SCOPED_TRACE(pviMode ? "PVI mode" : "PVC/PVT mode");
        CurveSheet s = pviMode ? PviSheet("English", "10", "0", "100", "2", "-2", "400")
                               : EndsSheet("English", "8", "0", "96", "12", "0", "96", "2");
        ASSERT_FALSE(Calculate(s));
        EXPECT_TRUE(s.changed);  // a first solve moves the stations off 0
        s.changed = false;
        FillRows(s);
        ASSERT_FALSE(Calculate(s));
        *s.Field(pviMode ? "txtPVIEval" : "txtPVCEval") = "150";  // elevations move, stations do not
        ASSERT_FALSE(Calculate(s));
        EXPECT_FALSE(s.changed);
        EXPECT_EQ(s.elevations.rows[19].txtTOTSTA1, "1");

        *s.Field(pviMode ? "txtLC" : "txtPVTSTA") = pviMode ? "300" : "14";
        ASSERT_FALSE(Calculate(s));
        EXPECT_TRUE(s.changed);
        for (const ElevationRow& row : s.elevations.rows) {
            EXPECT_EQ(row.txtTOTSTA1 + row.txtTOTSTAM1 + row.txtTotalTopSlab1, "");
        }
    }
}

TEST(CurveSolverDegenerateTest, ZeroNegativeAndHugeInputsShowNoNonsense) {
    for (const char* g2 : {"-2", "2", "0"}) {
        CurveSheet s = PviSheet("English", "10", "0", "100", "0", g2, "0");
        ASSERT_FALSE(Calculate(s));
        EXPECT_EQ(s.txtPVCSTA, "10");
        EXPECT_EQ(s.txtMO, "0.0");
        for (const std::string* t : {&s.txtTPSTA, &s.txtTPSTAM, &s.txtSD}) {
            EXPECT_EQ(t->find_first_of("naif"), std::string::npos) << *t;
        }
    }
    CurveSheet negative = PviSheet("English", "10", "0", "100", "2", "-2", "-400");
    ASSERT_FALSE(Calculate(negative));
    EXPECT_EQ(negative.txtPVCSTA, "12");
    EXPECT_EQ(negative.txtSD, "");

    CurveSheet ends = EndsSheet("English", "0", "1", "96", "0", "1.00001", "96", "2");  // rounds to L = 0
    ASSERT_FALSE(Calculate(ends));
    EXPECT_EQ(ends.txtLC, "0.0");
    EXPECT_EQ(ends.txtG2, "");

    CurveSheet huge = PviSheet("English", "1e307", "0", "1e308", "1e308", "-1e308", "1e308");
    ASSERT_FALSE(Calculate(huge));
    for (std::string_view name : CurveSheet::CurveFieldNames()) {
        if (name == "txtPVISTA" || name == "txtPVIEval" || name == "txtG1" || name == "txtG2" || name == "txtLC")
            continue;
        EXPECT_EQ(huge.Field(name)->find_first_of("nie"), std::string::npos) << name << " = " << *huge.Field(name);
    }
}

}  // namespace
}  // namespace gw
