#include "core/station_steps.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace gw {
namespace {

TEST(StationStepsTest, EndsAndSaysWhyForAnyNumbers) {
    struct Case {
        const char* name;
        double first, step, last;
        std::size_t most;
        std::size_t count;
        bool capped, increasing, resolved;
    } cases[] = {
        {"EvenStepsUpToAndWithTheLast", 1000, 50, 1200, 100, 5, false, true, true},
        {"AtMostAsManyAsAllowed", 1000, 50, 1200, 3, 3, true, true, true},
        {"ALastBeforeTheFirstGivesNone", 1000, 50, 900, 100, 0, false, true, true},
        // 1e17 + 1 == 1e17: the step no longer moves the station.
        {"AStepBelowTheSpacingOfTheNumbers", 1e17, 1, 1e17 + 400, 100, 100, true, false, false},
        // 1e12 + 100 moves, but by less than the stations' own rounding allows.
        {"AStepWithinTheStationsTolerance", 1e12, 100, 1e12 + 400, 100, 5, false, true, false},
        {"AZeroStepRepeatsTheFirst", 5, 0, 5, 20, 20, true, false, false},
        {"NotANumberGivesNone", std::nan(""), 1, 10, 100, 0, false, true, false},
        {"AnEndlessLastStopsAtTheLimit", 0, 1, HUGE_VAL, 1000, 1000, true, true, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const StationSteps steps(c.first, c.step, c.last, c.most);
        EXPECT_EQ(steps.Count(), c.count);
        EXPECT_EQ(steps.Capped(), c.capped);
        EXPECT_EQ(steps.Increasing(), c.increasing);
        EXPECT_EQ(steps.Resolved(), c.resolved);
    }
}

TEST(StationStepsTest, EachValueComesFromItsIndexSoNoRoundingPilesUp) {
    // 0.1 added a thousand times drifts to 99.9999999999986; 1000 * 0.1 is 100.
    const StationSteps steps(0, 0.1, 100, 2000);
    ASSERT_EQ(steps.Count(), 1001u);
    EXPECT_EQ(steps.At(1000), 100.0);
}

}  // namespace
}  // namespace gw
