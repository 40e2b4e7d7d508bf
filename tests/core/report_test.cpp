#include "core/report.h"

#include <gtest/gtest.h>

#include "core/curve_solver.h"
#include "tests/core/sheet_builders.h"

namespace gw {
namespace {

const std::string D(64, '-');

TEST(ReportTest, PviModeCopy) {
    CurveSheet s = test::PviSheet("Metric", "1", "500", "50", "-1", "1", "200");
    ASSERT_FALSE(Calculate(s));
    s.elevations.txtVOffset = "0.5";
    s.elevations.rows[0] = {"1", "450", "50.7"};
    s.elevations.rows[1] = {"0", "450", "9"};   // whole station 0: not printed
    s.elevations.rows[2] = {"-1", "450", "9"};  // negative: not printed
    s.elevations.rows[4] = {"1", "500", "50.5"};
    const std::vector<std::string> expected = {
        "Gradewise           11/23/26  08:00:00",
        "",
        D,
        "Input:   (Metric)",
        "",
        "PVI Values",
        "Station: 1+500",
        "Elevation: 50",
        "",
        "G1: -1%",
        "G2: 1%",
        "Length of Curve: 200",
        "",
        D,
        "Output:   (Metric)",
        "",
        "PVC Values",
        "Station: 1+400.0",
        "Elevation: 51.0",
        "",
        "PVT Values",
        "Station: 1+600.0",
        "Elevation: 51.0",
        "",
        "Middle Ordinate:   0.5",
        "Sight Distance:  HSD " + s.txtSD,
        "Turning Point Station:   1+500.0",
        "",
        "V-Offset: 0.5  H-Offset:   X-Slope: ",
        "",
        "Elevation at Station: 1+450  =  50.7",
        "Elevation at Station: 1+500  =  50.5",
        D,
    };
    EXPECT_EQ(ReportLines(s, "11/23/26", "08:00:00"), expected);
}

TEST(ReportTest, PvcPvtModePutsTheEndsFirst) {
    CurveSheet s = test::EndsSheet("English", "8", "0", "96", "12", "0", "96", "3");
    s.txtG2 = "1";
    s.txtTPSTAM = "N/A";
    std::vector<std::string> lines = ReportLines(s, "d", "t");
    ASSERT_GE(lines.size(), 20u);
    EXPECT_EQ(lines[5], "PVC Values");
    EXPECT_EQ(lines[9], "PVT Values");
    EXPECT_EQ(lines[13], "G1: 3%");
    EXPECT_EQ(lines[20], "PVI Values");
    EXPECT_EQ(lines[21], "Station: +");
    EXPECT_EQ(lines[26], "Turning Point Station:   +N/A");
    EXPECT_EQ(lines.back(), D);
}

TEST(ReportTest, AnEmptySheetStillPrintsEveryFixedPiece) {
    CurveSheet s = NewCurveSheet("English");
    std::vector<std::string> lines = ReportLines(s, "", "");
    EXPECT_EQ(lines[0], "Gradewise             ");
    EXPECT_EQ(lines[6], "Station: +");
    EXPECT_EQ(lines[10], "G2: %");
    EXPECT_EQ(lines[25], "Sight Distance:   ");
    EXPECT_EQ(lines.size(), 31u);
}

}  // namespace
}  // namespace gw
