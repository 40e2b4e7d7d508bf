#include "core/auto_stationing.h"

#include <gtest/gtest.h>

#include "core/curve_solver.h"
#include "core/elevations.h"
#include "sheet_builders.h"

namespace gw {
namespace {

// PVC 10+00 and PVT 14+00 on an English curve, or 1+000 and 1+400 on a metric one.
CurveSheet ShownCurve(const char* units = "English") {
    const bool metric = std::string(units) == "Metric";
    CurveSheet s = metric ? test::PviSheet(units, "1", "200", "104", "2", "-2", "400")
                          : test::PviSheet(units, "12", "0", "104", "2", "-2", "400");
    EXPECT_FALSE(Calculate(s));
    EXPECT_FALSE(ActivateElevations(s));
    s.changed = false;
    return s;
}

std::vector<std::string> Stations(const CurveSheet& s) {
    std::vector<std::string> out;
    for (const ElevationRow& r : s.elevations.rows) out.push_back(r.txtTOTSTA1 + "+" + r.txtTOTSTAM1);
    return out;
}

AutoStationing Spacing(const CurveSheet& s, const char* beginSta, const char* beginStam, const char* incSta,
                       const char* incStam) {
    AutoStationing d = NewAutoStationing(s);
    d.ChooseSpacing(s.elevations);
    d.txtBeginSTA = beginSta;
    d.txtBeginSTAM = beginStam;
    d.txtIncSTA = incSta;
    d.txtIncSTAM = incStam;
    return d;
}

TEST(AutoStationingTest, TenPointsSpreadFromPvcToPvt) {
    CurveSheet s = ShownCurve();
    AutoStationing d = NewAutoStationing(s);
    EXPECT_EQ(d.txtPoints, "10");
    ASSERT_FALSE(d.Accept());
    EXPECT_EQ(d.ipoints, 10);
    bool filled = false;
    ASSERT_FALSE(ApplyAutoStationing(s, d, &filled));
    EXPECT_TRUE(filled);
    EXPECT_TRUE(s.changed);
    const std::vector<std::string> expected = {
        "10+0.0",     "10+44.4444", "10+88.8889", "11+33.3333", "11+77.7778", "12+22.2222", "12+66.6667",
        "13+11.1111", "13+55.5556", "14+0.0",     "+",          "+",          "+",          "+",
        "+",          "+",          "+",          "+",          "+",          "+"};
    EXPECT_EQ(Stations(s), expected);
    for (int i = 0; i < 10; ++i) EXPECT_NE(s.elevations.rows[i].txtTotalTopSlab1, "") << i;
    EXPECT_EQ(s.elevations.rows[9].txtTotalTopSlab1, "100.0");
    EXPECT_TRUE(s.elevations.bCalcOK);
}

TEST(AutoStationingTest, FiftyFootSpacingStopsAtThePvt) {
    CurveSheet s = ShownCurve();
    AutoStationing d = Spacing(s, "10", "0", "0", "50");
    ASSERT_FALSE(d.Accept());
    ASSERT_FALSE(ApplyAutoStationing(s, d));
    std::vector<std::string> st = Stations(s);
    EXPECT_EQ(st[0], "10+0.0");
    EXPECT_EQ(st[1], "10+50.0");
    EXPECT_EQ(st[8], "14+0.0");
    for (int i = 9; i < kRowCount; ++i) EXPECT_EQ(st[i], "+") << i;
}

TEST(AutoStationingTest, TenFootSpacingFillsTwentyRowsOnly) {
    CurveSheet s = ShownCurve();
    AutoStationing d = Spacing(s, "10", "0", "0", "10");
    ASSERT_FALSE(d.Accept());
    ASSERT_FALSE(ApplyAutoStationing(s, d));
    std::vector<std::string> st = Stations(s);
    EXPECT_EQ(st[0], "10+0.0");
    EXPECT_EQ(st[19], "11+90.0");
}

struct IncrementCase {
    const char* whole;
    const char* plus;
    bool accepted;
};

class IncrementOkTest : public ::testing::TestWithParam<IncrementCase> {};

TEST_P(IncrementOkTest, OkWantsAPositiveIncrement) {
    CurveSheet s = ShownCurve();
    AutoStationing d = Spacing(s, "10", "0", GetParam().whole, GetParam().plus);
    Outcome refused = d.Accept();
    EXPECT_EQ(!refused, GetParam().accepted);
    if (refused) {
        EXPECT_EQ(*refused, (Refusal{"Increment must be greater than 0.", "txtIncSTA"}));
    }
}

INSTANTIATE_TEST_SUITE_P(Increments, IncrementOkTest,
                         ::testing::Values(IncrementCase{"0", "0", false}, IncrementCase{"1", "-5", false},
                                           IncrementCase{"-1", "50", false}, IncrementCase{"0", "5", true},
                                           IncrementCase{"1", "0", true}));

TEST(AutoStationingOkTest, BeginningStationAtEitherEndPassesInBothUnits) {
    for (const char* units : {"English", "Metric"}) {
        CurveSheet s = ShownCurve(units);
        for (bool atPvt : {false, true}) {
            const ElevationTable& t = s.elevations;
            AutoStationing d = Spacing(s, (atPvt ? t.txtPVTSTA : t.txtPVCSTA).c_str(),
                                       (atPvt ? t.txtPVTSTAM : t.txtPVCSTAM).c_str(), "0", "5");
            EXPECT_TRUE(d.CheckOnLeave("txtBeginSTA").empty()) << units;
            EXPECT_TRUE(d.CheckOnLeave("txtBeginSTAM").empty()) << units;
            EXPECT_FALSE(d.Accept()) << units << (atPvt ? " PVT" : " PVC");
        }
    }
}

TEST(AutoStationingOkTest, RefusesABeginningStationOffTheCurve) {
    CurveSheet s = ShownCurve();
    AutoStationing d = Spacing(s, "9", "99", "0", "5");
    EXPECT_EQ(d.Accept(), (Refusal{"Beginning station must be between PVC and PVT stations", "txtBeginSTA"}));
    d.txtBeginSTAM = "abc";
    EXPECT_EQ(d.Accept(), (Refusal{"Must be numeric.", "txtBeginSTAM"}));
}

TEST(AutoStationingOkTest, PointCountsThatCannotBeLaidOutAreRefused) {
    CurveSheet s = ShownCurve();
    AutoStationing d = NewAutoStationing(s);
    d.txtPoints = "25";
    EXPECT_EQ(d.Accept(), (Refusal{"Points can not be more than 20.", "txtPoints"}));
    d.txtPoints = "";
    EXPECT_EQ(d.Accept(), (Refusal{"Must be numeric.", "txtPoints"}));
    d.txtPoints = "-5";
    EXPECT_EQ(d.Accept(), (Refusal{"Points can not be less than 0.", "txtPoints"}));
    d.txtPoints = "2.5";  // halves go to the even neighbour
    EXPECT_FALSE(d.Accept());
    EXPECT_EQ(d.ipoints, 2);
    d.txtPoints = "3.5";
    EXPECT_FALSE(d.Accept());
    EXPECT_EQ(d.ipoints, 4);
}

TEST(AutoStationingFillTest, ZeroCountOrIncrementAndCancelLeaveRowsAlone) {
    CurveSheet s = ShownCurve();
    s.elevations.rows[0] = {"11", "0", "101.5"};

    AutoStationing d = NewAutoStationing(s);
    d.txtPoints = "0";
    ASSERT_FALSE(d.Accept());
    bool filled = true;
    EXPECT_FALSE(ApplyAutoStationing(s, d, &filled));
    EXPECT_FALSE(filled);

    d = Spacing(s, "10", "0", "0", "50");
    d.Cancel();
    EXPECT_FALSE(ApplyAutoStationing(s, d, &filled));
    EXPECT_FALSE(filled);

    d = NewAutoStationing(s);
    d.Cancel();
    EXPECT_FALSE(ApplyAutoStationing(s, d, &filled));
    EXPECT_FALSE(filled);

    EXPECT_EQ(s.elevations.rows[0].txtTotalTopSlab1, "101.5");
    EXPECT_FALSE(s.changed);
}

TEST(AutoStationingFillTest, OnePointIsThePvcAndNoRowGoesPastNineteen) {
    CurveSheet s = ShownCurve();
    AutoStationing d = NewAutoStationing(s);
    d.ipoints = 1;
    ASSERT_FALSE(ApplyAutoStationing(s, d));
    EXPECT_EQ(Stations(s)[0], "10+0.0");
    EXPECT_EQ(Stations(s)[1], "+");

    d.ipoints = 300;  // more than the window has rows: never beyond row 19
    ASSERT_FALSE(ApplyAutoStationing(s, d));
    EXPECT_EQ(Stations(s)[0], "10+0.0");
    EXPECT_EQ(Stations(s)[19].substr(0, 3), "10+");
}

TEST(AutoStationingChecksTest, LeaveChecksRunOnlyForInputsOfTheMode) {
    using V = std::vector<std::string_view>;
    CurveSheet s = ShownCurve();
    AutoStationing d = NewAutoStationing(s);
    d.txtPoints = "2x5";
    EXPECT_EQ(d.CheckOnLeave("txtPoints"), (V{"Must be numeric."}));
    d.txtPoints = "25";
    EXPECT_EQ(d.CheckOnLeave("txtPoints"), (V{"Points can not be more than 20."}));
    d.txtBeginSTA = "x";
    EXPECT_EQ(d.CheckOnLeave("txtBeginSTA"), V{});  // read-only in the Increments mode

    d = Spacing(s, "x", "0", "0", "0");
    EXPECT_EQ(d.CheckOnLeave("txtBeginSTA"), (V{"Must be numeric.", "Must be >= to PVCSTA."}));
    d.txtBeginSTA = "15";
    EXPECT_EQ(d.CheckOnLeave("txtBeginSTA"), (V{"Must be <= to PVTSTA."}));
    d.txtBeginSTA = "14";
    d.txtBeginSTAM = "50";
    EXPECT_EQ(d.CheckOnLeave("txtBeginSTAM"), (V{"Beginning Station must be between PVC and PVT stations."}));
    d.txtBeginSTAM = "100";
    EXPECT_EQ(d.CheckOnLeave("txtBeginSTAM"), (V{"Measurement must be less than 100 feet."}));
    d.txtBeginSTA = "0";
    d.txtBeginSTAM = "0";  // a zero station ends the check
    EXPECT_EQ(d.CheckOnLeave("txtBeginSTAM"), V{});
    d.txtIncSTAM = "q";
    EXPECT_EQ(d.CheckOnLeave("txtIncSTAM"), (V{"Must be numeric."}));
    d.txtIncSTAM = "150";
    EXPECT_EQ(d.CheckOnLeave("txtIncSTAM"), (V{"Measurement must be less than 100 feet."}));
    d.txtPoints = "99";
    EXPECT_EQ(d.CheckOnLeave("txtPoints"), V{});  // read-only in the Spacing mode
}

}  // namespace
}  // namespace gw
