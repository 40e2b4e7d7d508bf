#include "core/design_check.h"

#include <gtest/gtest.h>

namespace gw {
namespace {

TEST(DesignCheckTest, SpeedsBetweenRowsTakeTheHigherRowAndOutsideIsRefused) {
    struct Case {
        double speed;
        bool metric;
        std::optional<double> rowSpeed;
        double sightDistance;
    } cases[] = {
        {15, false, 15, 80},  {15.1, false, 20, 115}, {52, false, 55, 495}, {80, false, 80, 910},
        {14.9, false, {}, 0}, {80.5, false, {}, 0},   {0, false, {}, 0},    {20, true, 20, 20},
        {95, true, 100, 185}, {130, true, 130, 285},  {131, true, {}, 0},   {19, true, {}, 0},
    };
    for (const Case& c : cases) {
        const auto row = DesignStoppingSightDistance(c.speed, c.metric);
        ASSERT_EQ(row.has_value(), c.rowSpeed.has_value()) << c.speed;
        if (!row) continue;
        EXPECT_EQ(row->speed, *c.rowSpeed) << c.speed;
        EXPECT_EQ(row->sightDistance, c.sightDistance) << c.speed;
    }
}

TEST(DesignCheckTest, CrestMinimumLengthPicksTheFormThatHolds) {
    struct Case {
        double A, S, C;
        double length;
        bool withinCurve;
    } cases[] = {
        // A S^2 / C = 4 * 425^2 / 2158 = 334.8 < S, so S > L: 2 * 425 - 2158 / 4 = 310.5
        {4, 425, 2158, 310.5, false},
        // 4 * 495^2 / 2158 = 454.2 < S: 990 - 539.5 = 450.5
        {4, 495, 2158, 450.5, false},
        // 4 * 570^2 / 2158 = 1299600 / 2158 = 602.2243 >= S
        {4, 570, 2158, 1299600.0 / 2158, true},
        // the older constant: 4 * 425^2 / 1329 = 722500 / 1329 = 543.6418 >= S
        {4, 425, 1329, 722500.0 / 1329, true},
        // A S = C: both forms give L = S = 539.5; the S < L form is taken
        {4, 539.5, 2158, 539.5, true},
        // 160 - 2158 / 1 is negative: no curve is needed
        {1, 80, 2158, 0, false},
    };
    for (const Case& c : cases) {
        const MinimumLength m = CrestMinimumLength(c.A, c.S, c.C);
        EXPECT_NEAR(m.length, c.length, 1e-9) << c.A << " " << c.S << " " << c.C;
        EXPECT_EQ(m.withinCurve, c.withinCurve) << c.A << " " << c.S << " " << c.C;
    }
}

TEST(DesignCheckTest, SagMinimumLengthUsesTheHeadlightReach) {
    struct Case {
        double A, S;
        bool metric;
        double length;
        bool withinCurve;
    } cases[] = {
        // H + 3.5 S = 120 + 560 = 680; 5 * 160^2 / 680 = 188.2353 >= S
        {5, 160, true, 128000.0 / 680, true},
        // 120 + 647.5 = 767.5; 5 * 185^2 / 767.5 = 222.9642
        {5, 185, true, 171125.0 / 767.5, true},
        // 120 + 227.5 = 347.5; 5 * 65^2 / 347.5 = 60.79 < S: 130 - 347.5 / 5 = 60.5
        {5, 65, true, 60.5, false},
        // 400 + 1067.5 = 1467.5; 6 * 305^2 / 1467.5 = 380.3407 >= S
        {6, 305, false, 558150.0 / 1467.5, true},
        // 1 * 305^2 / 1467.5 = 63.4 < S; 610 - 1467.5 is negative
        {1, 305, false, 0, false},
    };
    for (const Case& c : cases) {
        const MinimumLength m = SagMinimumLength(c.A, c.S, c.metric);
        EXPECT_NEAR(m.length, c.length, 1e-9) << c.A << " " << c.S;
        EXPECT_EQ(m.withinCurve, c.withinCurve) << c.A << " " << c.S;
    }
}

}  // namespace
}  // namespace gw
