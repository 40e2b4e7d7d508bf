#include "core/stations.h"

#include <gtest/gtest.h>

#include <cmath>

namespace gw {
namespace {

TEST(StationTest, StationLengthFollowsTheUnitText) {
    EXPECT_EQ(StationLength("Metric"), 1000);
    EXPECT_EQ(StationLength("metric"), 100);  // only the exact text is metric
}

TEST(StationTest, JoinReadsBothParts) {
    EXPECT_EQ(JoinStation("12", "45.5", "English"), 1245.5);
    EXPECT_EQ(JoinStation("1", "250", "Metric"), 1250);
    EXPECT_EQ(JoinStation("2abc", "x", "English"), 200);
}

struct SplitCase {
    double value;
    const char* units;
    const char* whole;
    const char* plus;
};

class SplitStationTest : public ::testing::TestWithParam<SplitCase> {};

TEST_P(SplitStationTest, SplitsIntoWholeAndPlus) {
    const SplitCase& c = GetParam();
    StationTexts t = SplitStation(c.value, c.units);
    EXPECT_EQ(t.whole, c.whole);
    EXPECT_EQ(t.plus, c.plus);
}

INSTANTIATE_TEST_SUITE_P(Values, SplitStationTest,
                         ::testing::Values(SplitCase{1099.7, "English", "10", "99.7"},
                                           SplitCase{12345.6, "Metric", "12", "345.6"},
                                           SplitCase{-50, "Metric", "0", "-50.0"},
                                           SplitCase{-350, "English", "-3", "-50.0"},
                                           SplitCase{1044.4444444444443, "English", "10", "44.4444"},
                                           SplitCase{std::nan(""), "English", "", ""}));

}  // namespace
}  // namespace gw
