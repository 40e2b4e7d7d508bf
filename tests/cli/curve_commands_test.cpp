// The commands on one curve file beyond what tests/cli/sessions.md shows: the report as
// printed, and a drawing with its elevation rows compared whole.
#include <gtest/gtest.h>

#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "tests/cli/run_cli.h"
#include "tests/core/sheet_builders.h"

namespace gw::cli::test {
namespace {

TEST(CurveCommandsTest, ReportIsOneCopyWithLineFeeds) {
    const Result r = RunCli("report " + Example("english-crest.gwf"));
    ASSERT_EQ(r.status, kDone);
    EXPECT_EQ(r.out.find('\r'), std::string::npos);
    EXPECT_EQ(r.out.rfind("Gradewise ", 0), 0u);
    EXPECT_NE(r.out.find("\nElevation at Station: 13+50  =  101.135\n"), std::string::npos);
}

// A sag whose turning point lies near its PVC, so that its label moves off and gets a
// leader, with elevation rows, one of them off the curve: the rows stop there, as the
// elevations window stops. The drawing was checked by eye against the curve.
TEST(CurveCommandsTest, PlotOfASagWithItsRows) {
    Folder folder;
    CurveSheet s = gw::test::PviSheet("Metric", "1", "200", "104", "-0.5", "4", "400");
    ASSERT_FALSE(Calculate(s));
    const std::pair<const char*, const char*> rows[] = {
        {"1", "50"}, {"1", "100"}, {"1", "300"}, {"1", "500"}, {"1", "350"}};
    for (int i = 0; i < 5; ++i) s.elevations.rows[i] = {rows[i].first, rows[i].second, ""};
    const Result r = RunCli("plot " + folder.Put("sag.gwf", CurveFileBytes(s)));
    EXPECT_EQ(r.status, kStationOffCurve);
    EXPECT_EQ(r.err, "Top of Slab Station must be between PVC and PVT stations.\n");
    EXPECT_EQ(r.out, Expected("sag-plot.svg"));
}

}  // namespace
}  // namespace gw::cli::test
