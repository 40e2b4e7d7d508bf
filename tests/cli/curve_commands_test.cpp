// The commands on one curve file: solve as JSON, autostation, report, and the curve's
// own table and drawing. The numbers are the core's and tested there; these pin what
// the tool makes of them.
#include <gtest/gtest.h>

#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "fuzz/json_check.h"
#include "tests/cli/run_cli.h"
#include "tests/core/sheet_builders.h"

namespace gw::cli::test {
namespace {

using gw::test::PviSheet;

std::string Put(const Folder& folder, const CurveSheet& sheet) {
    static int files = 0;
    return folder.Put("c" + std::to_string(files++) + ".gwf", CurveFileBytes(sheet));
}

TEST(CurveCommandsTest, SolveAsJson) {
    Folder folder;
    // A = 1.5: the headlights never meet the road.
    const Result r = RunCli("solve --json " + Put(folder, PviSheet("English", "3", "0", "50", "-1", "0.5", "800")));
    ASSERT_EQ(r.status, kDone) << r.err;
    EXPECT_TRUE(gw::fuzz::JsonCheck::Valid(r.out)) << r.out;
    for (const char* piece : {
             "{\n  \"txtPVISTA\": \"3\",\n",
             "  \"optPVI\": true,\n  \"optPVCPVT\": false,\n",
             "  \"txtTOTSTA1\": [\"\", \"\", \"\", \"\", \"\", \"\", \"\", \"\", \"\", \"\", \"\", \"\", \"\", \"\", "
             "\"\", \"\", \"\", \"\", \"\", \"\"],\n",
             "  \"changed\": true,\n  \"K\": \"533.3333\",\n  \"turningPointElevation\": \"51.3333\",\n"
             "  \"sightDistanceCase\": \"S>L\",\n"
             "  \"sightDistance\": \"unlimited: with A of 1.75 % or less the headlight beam never meets the "
             "road\"\n}\n",
         }) {
        EXPECT_NE(r.out.find(piece), std::string::npos) << piece;
    }
}

TEST(CurveCommandsTest, AutostationByPointsAndBySpacing) {
    const std::string F = Example("english-crest.gwf");
    const Result points = RunCli("autostation " + F + " --points 3 --json");
    EXPECT_NE(points.out.find("\"txtTOTSTA1\": [\"10\", \"12\", \"14\", \"\","), std::string::npos) << points.out;
    const Result spacing = RunCli("autostation " + F + " --begin 11+0 --increment 1+00");
    ASSERT_EQ(spacing.status, kDone) << spacing.err;
    const ElevationTable rows = ParseCurveFile(spacing.out).elevations;
    EXPECT_EQ(rows.rows[0].txtTOTSTA1 + "+" + rows.rows[0].txtTOTSTAM1, "11+0.0");
    EXPECT_EQ(rows.rows[2].txtTOTSTA1, "13");
    EXPECT_EQ(rows.rows[3].txtTOTSTA1, "14");
    EXPECT_EQ(rows.rows[4].txtTOTSTA1, "");
}

TEST(CurveCommandsTest, ReportIsOneCopyWithLineFeeds) {
    const Result r = RunCli("report " + Example("english-crest.gwf"));
    ASSERT_EQ(r.status, kDone);
    EXPECT_EQ(r.out.find('\r'), std::string::npos);
    EXPECT_EQ(r.out.rfind("Gradewise ", 0), 0u);
    EXPECT_NE(r.out.find("\nElevation at Station: 13+50  =  101.135\n"), std::string::npos);
}

// The line above a curve file's table says which offsets its elevations include.
TEST(CurveCommandsTest, TableSaysTheOffsetsItsElevationsInclude) {
    Folder folder;
    struct Case {
        const char* name;
        const char *vertical, *horizontal, *slope;
        std::string first;
    } cases[] = {
        {"None", "", "", "", "Station  Distance (ft)  Grade (%)  Elevation (ft)  Point"},
        {"Vertical", "0.5", "", "", "Elevations include a vertical offset of 0.5."},
        {"Horizontal", "", "12", "-2", "Elevations include a horizontal offset of 12.0 at -2.0 % cross slope."},
        {"HorizontalWithoutSlope", "", "12", "", "Station  Distance (ft)  Grade (%)  Elevation (ft)  Point"},
    };
    for (const Case& c : cases) {
        CurveSheet s = PviSheet("English", "12", "0", "104", "2", "-2", "400");
        s.elevations.txtVOffset = c.vertical;
        s.elevations.txtHOffset = c.horizontal;
        s.elevations.txtXSlope = c.slope;
        const Result r = RunCli("table " + Put(folder, s) + " --every 2+00");
        EXPECT_EQ(r.out.substr(0, r.out.find('\n')), c.first) << c.name;
    }
}

TEST(CurveCommandsTest, TableAsCsv) {
    const Result r = RunCli("table " + Example("metric-sag.gwf") + " --every 0+50 --csv");
    ASSERT_EQ(r.status, kDone) << r.err;
    EXPECT_EQ(r.out,
              "Station,Distance (m),Grade (%),Elevation (m),Point\n"
              "1+900.0,0.0,-2.0,250.0,PVC\n"
              "1+950.0,50.0,-0.75,249.3125,\n"
              "1+980.0,80.0,0.0,249.2,TP\n"
              "2+000.0,100.0,0.5,249.25,\n"
              "2+050.0,150.0,1.75,249.8125,\n"
              "2+100.0,200.0,3.0,251.0,PVT\n");
}

// A sag whose turning point lies near its PVC, so that its label moves off and gets a
// leader, with elevation rows, one of them off the curve: the rows stop there, as the
// elevations window stops. The drawing was checked by eye against the curve.
TEST(CurveCommandsTest, PlotOfASagWithItsRows) {
    Folder folder;
    CurveSheet s = PviSheet("Metric", "1", "200", "104", "-0.5", "4", "400");
    ASSERT_FALSE(Calculate(s));
    const std::pair<const char*, const char*> rows[] = {
        {"1", "50"}, {"1", "100"}, {"1", "300"}, {"1", "500"}, {"1", "350"}};
    for (int i = 0; i < 5; ++i) s.elevations.rows[i] = {rows[i].first, rows[i].second, ""};
    const Result r = RunCli("plot " + folder.Put("sag.gwf", CurveFileBytes(s)));
    EXPECT_EQ(r.status, kStationOffCurve);
    EXPECT_EQ(r.err, "Top of Slab Station must be between PVC and PVT stations.\n");
    EXPECT_EQ(r.out, Read(GW_SOURCE_DIR "/tests/cli/sag-plot.svg"));
}

// A turning point at an end is named with that end; a curve may have none.
TEST(CurveCommandsTest, PlotNamesTheTurningPointWhereItLies) {
    Folder folder;
    const std::string crest = ">Crest vertical curve  \u00b7  L = 400.0 ft  \u00b7  A = 3.0 %  \u00b7  K = 133.3333";
    struct Case {
        const char *name, *g1, *g2;
        std::string label;
        size_t points;  // labels naming a high or low point
    } cases[] = {
        {"AtThePvc", "0", "4", ">PVC = Low point 10+00.0</text>", 1},
        {"AtThePvt", "4", "0", ">PVT = High point 14+00.0</text>", 1},
        {"None", "4", "1", crest + "  \u00b7  SSD = 421.5 ft</text>", 0},
        {"NoChangeOfGrade", "2", "2", ">No change of grade  \u00b7  L = 400.0 ft  \u00b7  A = 0.0 %</text>", 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string svg =
            RunCli("plot " + Put(folder, PviSheet("English", "12", "0", "104", c.g1, c.g2, "400"))).out;
        EXPECT_NE(svg.find(c.label), std::string::npos);
        size_t points = 0;
        for (size_t at = 0; (at = svg.find(" point ", at)) != std::string::npos; ++at) ++points;
        EXPECT_EQ(points, c.points);
    }
}

}  // namespace
}  // namespace gw::cli::test
