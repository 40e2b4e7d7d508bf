#include "core/auto_stationing.h"

#include <gtest/gtest.h>

#include "core/curve_solver.h"
#include "core/elevations.h"
#include "tests/core/sheet_builders.h"

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
    const std::vector<std::string> expected = {"10+0.0",     "10+44.4444", "10+88.8889", "11+33.3333", "11+77.7778",
                                               "12+22.2222", "12+66.6667", "13+11.1111", "13+55.5556", "14+0.0",
                                               "+",          "+",          "+",          "+",          "+",
                                               "+",          "+",          "+",          "+",          "+"};
    EXPECT_EQ(Stations(s), expected);
    EXPECT_EQ(s.elevations.rows[9].txtTotalTopSlab1, "100.0");
    EXPECT_TRUE(s.elevations.bCalcOK);
}

TEST(AutoStationingTest, SpacingRunsFromTheBeginningToThePvtOrTheLastRow) {
    struct Row {
        const char* increment;
        int lastRow;
        const char* lastStation;
    };
    for (const Row& r : {Row{"50", 8, "14+0.0"}, Row{"10", 19, "11+90.0"}}) {
        SCOPED_TRACE(r.increment);
        CurveSheet s = ShownCurve();
        AutoStationing d = Spacing(s, "10", "0", "0", r.increment);
        ASSERT_FALSE(d.Accept());
        ASSERT_FALSE(ApplyAutoStationing(s, d));
        const std::vector<std::string> st = Stations(s);
        EXPECT_EQ(st[1], std::string("10+") + r.increment + ".0");
        EXPECT_EQ(st[r.lastRow], r.lastStation);
        if (r.lastRow + 1 < kRowCount) {
            EXPECT_EQ(st[r.lastRow + 1], "+");
        }
    }
}

TEST(AutoStationingOkTest, BeginningStationAtEitherEndPassesInBothUnits) {
    for (const char* units : {"English", "Metric"}) {
        CurveSheet s = ShownCurve(units);
        for (bool atPvt : {false, true}) {
            const ElevationTable& t = s.elevations;
            AutoStationing d = Spacing(s, (atPvt ? t.txtPVTSTA : t.txtPVCSTA).c_str(),
                                       (atPvt ? t.txtPVTSTAM : t.txtPVCSTAM).c_str(), "0", "5");
            EXPECT_TRUE(d.CheckOnLeave(AutoStationFieldNamed("txtBeginSTA")).empty()) << units;
            EXPECT_TRUE(d.CheckOnLeave(AutoStationFieldNamed("txtBeginSTAM")).empty()) << units;
            EXPECT_FALSE(d.Accept()) << units << (atPvt ? " PVT" : " PVC");
        }
    }
}

// OK's refusals, one row per rule; the beginning and increment rows are in the Spacing mode.
TEST(AutoStationingOkTest, RefusesWhatCannotBeLaidOut) {
    struct Row {
        const char* field;
        const char* text;
        const char* message;  // "" when accepted
        const char* focus;
    };
    const Row rows[] = {
        {"txtPoints", "25", "Points can not be more than 20.", "txtPoints"},
        {"txtPoints", "", "Must be numeric.", "txtPoints"},
        {"txtBeginSTA", "9", "Beginning station must be between PVC and PVT stations", "txtBeginSTA"},
        {"txtIncSTAM", "-5", "Increment must be greater than 0.", "txtIncSTA"},  // with 1 whole station
        {"txtIncSTAM", "5", "", ""},
    };
    const CurveSheet s = ShownCurve();
    for (const Row& r : rows) {
        SCOPED_TRACE(std::string(r.field) + "=" + r.text);
        const bool points = std::string(r.field) == "txtPoints";
        AutoStationing d = points ? NewAutoStationing(s) : Spacing(s, "10", "0", "0", "5");
        if (std::string(r.text) == "-5" && !points) d.txtIncSTA = "1";
        *d.Field(r.field) = r.text;
        const Outcome refused = d.Accept();
        EXPECT_EQ(refused, *r.message ? Outcome(Refusal{r.message, r.focus}) : Outcome());
    }
    // A point count with a half goes to the even neighbour.
    AutoStationing d = NewAutoStationing(s);
    d.txtPoints = "2.5";
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

    EXPECT_EQ(s.elevations.rows[0].txtTotalTopSlab1, "101.5");
    EXPECT_FALSE(s.changed);
}

TEST(AutoStationingFillTest, ANegativeCountEmptiesTheRowsAndFillsNone) {
    CurveSheet s = ShownCurve();
    s.elevations.rows[0] = {"11", "0", "101.5"};
    AutoStationing d = NewAutoStationing(s);
    d.txtPoints = "-5";
    ASSERT_FALSE(d.Accept());  // the dialog hides
    bool filled = false;
    EXPECT_FALSE(ApplyAutoStationing(s, d, &filled));
    EXPECT_TRUE(filled);
    EXPECT_TRUE(s.changed);
    for (const ElevationRow& row : s.elevations.rows)
        EXPECT_EQ(row.txtTOTSTA1 + row.txtTOTSTAM1 + row.txtTotalTopSlab1, "");
    EXPECT_TRUE(s.elevations.bCalcOK);  // Calculate TOS ran over the empty rows
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

// Leave checks run only for inputs of the mode: Points in Increments, the rest in Spacing.
TEST(AutoStationingChecksTest, LeaveChecksRunOnlyForInputsOfTheMode) {
    using V = std::vector<std::string_view>;
    struct Row {
        bool spacing;
        const char* field;
        const char* text;
        const char* beginSta;  // the whole station beside it
        V messages;
    };
    const Row rows[] = {
        {false, "txtPoints", "2x5", "0", {"Must be numeric."}},
        {false, "txtPoints", "25", "0", {"Points can not be more than 20."}},
        {false, "txtBeginSTA", "x", "0", {}},
        {true, "txtBeginSTA", "x", "x", {"Must be numeric.", "Must be >= to PVCSTA."}},
        {true, "txtBeginSTA", "15", "15", {"Must be <= to PVTSTA."}},
        {true, "txtBeginSTAM", "50", "14", {"Beginning Station must be between PVC and PVT stations."}},
        {true, "txtBeginSTAM", "100", "14", {"Measurement must be less than 100 feet."}},
        {true, "txtBeginSTAM", "0", "0", {}},  // a zero station ends the check
        {true, "txtIncSTAM", "150", "10", {"Measurement must be less than 100 feet."}},
        {true, "txtPoints", "99", "10", {}},
    };
    const CurveSheet s = ShownCurve();
    for (const Row& r : rows) {
        SCOPED_TRACE(std::string(r.field) + "=" + r.text);
        AutoStationing d = r.spacing ? Spacing(s, r.beginSta, "0", "0", "0") : NewAutoStationing(s);
        *d.Field(r.field) = r.text;
        EXPECT_EQ(d.CheckOnLeave(AutoStationFieldNamed(r.field)), r.messages);
    }
}

}  // namespace
}  // namespace gw
