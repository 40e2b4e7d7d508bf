#include "core/station_rows.h"

#include <gtest/gtest.h>

#include "core/curve_solver.h"
#include "core/elevations.h"
#include "core/stations.h"
#include "tests/core/sheet_builders.h"

namespace gw {
namespace {

struct Expected {
    double station;
    const char* elevation;
    const char* point;
};

void ExpectRows(const std::vector<StationRow>& rows, const std::vector<Expected>& expected) {
    ASSERT_EQ(rows.size(), expected.size());
    for (size_t i = 0; i < rows.size(); ++i) {
        EXPECT_NEAR(rows[i].station, expected[i].station, 1e-9) << i;
        EXPECT_EQ(rows[i].elevation, expected[i].elevation) << i;
        EXPECT_EQ(rows[i].point, expected[i].point) << i;
    }
}

// The rows of a table that must be given.
std::vector<StationRow> Rows(const CurveSheet& s, double interval) {
    StationTable table = StationRows(s, interval, 100000);
    EXPECT_EQ(table.refused, "");
    return table.rows;
}

// PVI 12+00 at 104, +2 % to -2 %, L 400: PVC 10+00 at 100, turning point at 12+00.
CurveSheet EnglishCrest() {
    CurveSheet s = test::PviSheet("English", "12", "0", "104", "2", "-2", "400");
    EXPECT_FALSE(Calculate(s));
    return s;
}

TEST(StationRowsTest, EvenStationsWithTheTurningPointAmongThem) {
    // 100 + 0.02 x - 0.00005 x^2: x = 100 -> 101.5, x = 200 -> 102, x = 300 -> 101.5
    const std::vector<StationRow> rows = Rows(EnglishCrest(), 100);
    ExpectRows(rows, {{1000, "100.0", "PVC"},
                      {1100, "101.5", ""},
                      {1200, "102.0", "TP"},
                      {1300, "101.5", ""},
                      {1400, "100.0", "PVT"}});
    EXPECT_DOUBLE_EQ(rows[1].distance, 100);
    EXPECT_DOUBLE_EQ(rows[1].grade, 1);  // 2 - 4 * 100 / 400
}

TEST(StationRowsTest, OffsetsAreAddedAsInTheElevationsWindow) {
    CurveSheet s = EnglishCrest();
    s.elevations.txtVOffset = "0.5";
    s.elevations.txtHOffset = "12";
    s.elevations.txtXSlope = "-2";
    // 0.5 + 12 * -0.02 = +0.26 on every elevation
    const std::vector<StationRow> rows = Rows(s, 50);
    ASSERT_EQ(rows.size(), 9u);
    EXPECT_EQ(rows[0].elevation, "100.26");
    EXPECT_EQ(rows[1].elevation, "101.135");  // 100 + 1 - 0.125 + 0.26

    // The elevation run gives the same texts for the same stations.
    for (size_t i = 0; i < rows.size(); ++i) {
        const StationTexts t = SplitStation(rows[i].station, "English");
        s.elevations.rows[i] = {t.whole, t.plus, ""};
    }
    CopyCurveStations(s);
    ASSERT_FALSE(CalculateTOS(s));
    for (size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(s.elevations.rows[i].txtTotalTopSlab1, rows[i].elevation) << i;
}

TEST(StationRowsTest, AnIntervalThatMissesThePvcAndATurningPointBetweenStations) {
    // Metric sag PVC 1+900 at 250, -2 % to +3 %, L 200: 250 - 0.02 x + 0.000125 x^2.
    CurveSheet s = test::EndsSheet("Metric", "1", "900", "250", "2", "100", "251", "-2");
    ASSERT_FALSE(Calculate(s));
    // Every 0+030: 1+920, 1+950, 1+980 (the turning point, x = 80), ..., 2+090.
    // x = 20: 250 - 0.4 + 0.05 = 249.65; x = 50: 250 - 1 + 0.3125 = 249.3125;
    // x = 110: 250 - 2.2 + 1.5125 = 249.3125; x = 170: 250 - 3.4 + 3.6125 = 250.2125
    ExpectRows(Rows(s, 30), {{1900, "250.0", "PVC"},
                             {1920, "249.65", ""},
                             {1950, "249.3125", ""},
                             {1980, "249.2", "TP"},
                             {2010, "249.3125", ""},
                             {2040, "249.65", ""},
                             {2070, "250.2125", ""},
                             {2100, "251.0", "PVT"}});
    // Every 0+025 steps over x = 80: the turning point gets a row of its own.
    const std::vector<StationRow> rows = Rows(s, 25);
    ASSERT_EQ(rows.size(), 10u);
    EXPECT_EQ(rows[4].point, "TP");
    EXPECT_NEAR(rows[4].station, 1980, 1e-9);
    EXPECT_EQ(rows[5].station, 2000);
}

TEST(StationRowsTest, TurningPointAtThePvcSharesItsRow) {
    // 0 % to -3 %: the high point is the PVC.
    CurveSheet s = test::PviSheet("English", "45", "25", "512.3", "0", "-3", "300");
    ASSERT_FALSE(Calculate(s));
    const std::vector<StationRow> rows = Rows(s, 100);
    ASSERT_EQ(rows.size(), 5u);  // 43+75, 44+00, 45+00, 46+00, 46+75
    EXPECT_EQ(rows.front().point, "PVC/TP");
    EXPECT_EQ(rows.back().point, "PVT");
    EXPECT_EQ(rows.back().elevation, "507.8");  // 512.3 - 0.03 * 150
}

// No table at all rather than a row with a number that is not the curve's: every case
// here once printed a made-up elevation or never finished.
TEST(StationRowsTest, ARowThatCannotBeComputedRefusesTheWholeTable) {
    struct Case {
        const char* name;
        CurveSheet sheet;
        double interval;
        std::size_t most;
        const char* refused;
    } cases[] = {
        // -4 % / 1e-310 overflows: the x^2 term is not a number at any station but the PVC.
        {"LengthTooShortForItsGrades", test::PviSheet("English", "12", "0", "104", "2", "-2", "1e-310"), 50, 100000,
         "the elevations of this curve cannot be computed: a length of curve of 1e-310 is too short for a change "
         "of grade of 4.0 %"},
        // At 1e12 ft the sums of plus parts are a few thousandths out: 50 ft steps would
        // merge rows, and far smaller ones would stop moving the station at all.
        {"StationsTooLargeForTheInterval", test::PviSheet("English", "10000000000", "0", "104", "2", "-2", "400"), 50,
         100000, "at stations near 9999999998+00.0 an interval of 50.0 is too small to tell the stations apart"},
        {"MoreRowsThanAllowed", test::PviSheet("English", "12", "0", "104", "2", "-2", "400"), 50, 6,
         "the interval gives more than 6 rows"},
        {"ElevationBeyondTheRangeOfNumbers", test::PviSheet("English", "12", "0", "1e308", "2", "-2", "400"), 50,
         100000, "the elevation at station 10+00.0 cannot be computed: it lies beyond the range of numbers"},
    };
    for (Case& c : cases) {
        SCOPED_TRACE(c.name);
        ASSERT_FALSE(Calculate(c.sheet));
        if (std::string(c.name) == "ElevationBeyondTheRangeOfNumbers") c.sheet.elevations.txtVOffset = "1e308";
        const StationTable table = StationRows(c.sheet, c.interval, c.most);
        EXPECT_EQ(table.refused, c.refused);
        EXPECT_TRUE(table.rows.empty());
    }
}

}  // namespace
}  // namespace gw
