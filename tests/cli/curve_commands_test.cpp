// The commands on one curve file beyond what tests/cli/sessions.md shows: the report as
// printed, and drawings compared whole.
#include <gtest/gtest.h>

#include "tests/cli/run_cli.h"

namespace gw::cli::test {
namespace {

TEST(CurveCommandsTest, ReportIsOneCopyWithLineFeeds) {
    const Result r = RunCli("report " + Example("english-crest.gwf"));
    ASSERT_EQ(r.status, kDone);
    EXPECT_EQ(r.out.find('\r'), std::string::npos);
    EXPECT_EQ(r.out.rfind("Gradewise ", 0), 0u);
    EXPECT_NE(r.out.find("\nElevation at Station: 13+50  =  101.135\n"), std::string::npos);
}

// Labels moved off their points with leaders, above and below, clear of the points'
// marks and among elevation rows; the sag's last row lies off the curve, and the rows
// stop there as the elevations window stops. The drawings were checked against the
// curves.
TEST(CurveCommandsTest, PlotsComparedWhole) {
    struct Case {
        const char *input, *drawing;
        int status;
        const char* err;
    } cases[] = {
        {"sag.gwf", "sag-plot.svg", kStationOffCurve, "Top of Slab Station must be between PVC and PVT stations.\n"},
        {"crest.gwf", "crest-plot.svg", kDone, ""},
        {"long-sag.gwf", "long-sag-plot.svg", kDone, ""},
        {"metric-crest.gwf", "metric-crest-plot.svg", kDone, ""},
    };
    for (const Case& c : cases) {
        const Result r = RunCli("plot " GW_SOURCE_DIR "/tests/cli/inputs/" + std::string(c.input));
        EXPECT_EQ(r.status, c.status) << c.input;
        EXPECT_EQ(r.err, c.err) << c.input;
        EXPECT_EQ(r.out, Expected(c.drawing)) << c.input;
    }
}

}  // namespace
}  // namespace gw::cli::test
