#include "core/sight_distance.h"

#include <gtest/gtest.h>

namespace gw {
namespace {

struct SightCase {
    const char* units;
    const char* length;
    const char* g1;
    const char* g2;
    const char* kind;
    const char* distance;
};

class SightDistanceTest : public ::testing::TestWithParam<SightCase> {};

TEST_P(SightDistanceTest, WorkedResults) {
    const SightCase& c = GetParam();
    CurveSheet s = NewCurveSheet(c.units);
    s.txtLC = c.length;
    s.txtG1 = c.g1;
    s.txtG2 = c.g2;
    ApplySightDistance(s);
    EXPECT_EQ(s.lblSDL, c.kind);
    EXPECT_EQ(s.txtSD, c.distance);
}

INSTANTIATE_TEST_SUITE_P(Table, SightDistanceTest,
                         ::testing::Values(SightCase{"English", "400", "2", "-2", "SSD", "364.5545"},
                                           SightCase{"English", "100", "2", "-2", "SSD", "216.125"},
                                           SightCase{"English", "300", "-3", "2", "HSD", "292.1497"},
                                           SightCase{"English", "100", "-1", "2", "HSD", "280.0"},
                                           SightCase{"Metric", "50", "3", "-3", "SSD", "58.6667"},
                                           SightCase{"Metric", "200", "-2", "3", "HSD", "168.4886"},
                                           // S exactly equal to L keeps the first formula: sqrt(1329 * 1329 / 1).
                                           SightCase{"English", "1329", "1", "0", "SSD", "1329.0"},
                                           // Zero length: both first formulas give 0.
                                           SightCase{"English", "0", "-2", "2", "HSD", "0.0"},
                                           // A sag of 1.75 % or less: the headlight distance is unlimited, no number.
                                           SightCase{"English", "200", "-1", "0.75", "HSD", ""},
                                           // Negative length: no real sight distance.
                                           SightCase{"English", "-100", "-2", "2", "HSD", ""}));

TEST(SightDistanceTest, ACrestThenASagChangesTheKindAndEqualGradesTouchNothing) {
    CurveSheet s = NewCurveSheet("English");
    s.txtLC = "400";
    s.txtG1 = "2";
    s.txtG2 = "-2";
    ApplySightDistance(s);
    EXPECT_EQ(s.lblSDL, "SSD");
    s.txtG2 = "4";
    ApplySightDistance(s);
    EXPECT_EQ(s.lblSDL, "HSD");
    s.txtG2 = "2";
    s.txtSD = "12.0";
    ApplySightDistance(s);
    EXPECT_EQ(s.lblSDL, "HSD");
    EXPECT_EQ(s.txtSD, "12.0");
}

}  // namespace
}  // namespace gw
