#include "core/curve_design.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/vertical_curve.h"

namespace gw {
namespace {

// The road's elevation at a station with a symmetric curve of length L at the PVI.
double RoadAt(const CurveFrame& f, double L, double station) {
    const double d = station - f.pviStation;
    if (std::fabs(d) >= L / 2) return f.pviElevation + (d < 0 ? f.g1 : f.g2) / 100 * d;
    return VerticalCurve(f.pviStation, f.pviElevation, f.g1, f.g2, L / 2, L / 2, true).ElevationAt(station);
}

TEST(CurveDesignTest, ThroughAPointReportsBothRootsAndKeepsTheOneThatReachesIt) {
    // J. Mahun, Vertical Curves (open-access surveying course), single-span curves,
    // problem 1: PVI 41+00 at 1262.00, -2.50 % to +3.00 %, through 1268.00 at 42+50:
    // roots 130.96 and 687.22 ft, only the second reaches the point.
    const CurveFrame f{4100, 1262, -2.5, 3};
    const ControlPointDesign d = LengthThroughPoint(f, 4250, 1268);
    ASSERT_EQ(d.roots.size(), 2u);
    EXPECT_NEAR(d.roots[0].length, 130.96, 0.005);
    EXPECT_FALSE(d.roots[0].valid);
    EXPECT_NEAR(d.roots[1].length, 687.22, 0.005);
    EXPECT_TRUE(d.roots[1].valid);
    EXPECT_NEAR(RoadAt(f, *d.length, 4250), 1268, 1e-9);
}

TEST(CurveDesignTest, NoCurvePassesSomePoints) {
    struct Case {
        const char* name;
        CurveFrame frame;
        double station, elevation;
    } cases[] = {
        {"equal grades", {1000, 100, 2, 2}, 1100, 101},
        {"a sag point below the tangents", {1000, 100, -2, 2}, 1100, 101},
        {"a crest point above the tangents", {1000, 100, 2, -2}, 1100, 99},
        {"a crest point above the PVI", {1000, 100, 2, -2}, 1000, 101},
    };
    for (const Case& c : cases) EXPECT_FALSE(LengthThroughPoint(c.frame, c.station, c.elevation).length) << c.name;
}

TEST(CurveDesignTest, APointOnTheFinishedSurfaceIsLoweredByTheOffsets) {
    // The elevations window adds V and X / 100 * H; the profile is that much lower.
    EXPECT_DOUBLE_EQ(ProfileElevationBelow(102.26, 0.5, 12, -2), 102.26 - 0.5 + 0.24);
}

TEST(CurveDesignTest, ClearanceUnderAStructureBoundsTheLength) {
    struct Case {
        const char* name;
        CurveFrame frame;
        double station, underside, clearance;
        ClearanceDesign::Bound bound;
    } cases[] = {
        // J. Mahun, Vertical Curves, single-span curves, problem 2: +1.75 % meets
        // -2.25 % at 32+50.00, elevation 1015.00; an overpass at 31+56.50 with its
        // underside at 1022.50 needs 12 ft of clearance: a crest sinks as it grows.
        {"crest under an overpass", {3250, 1015, 1.75, -2.25}, 3156.5, 1022.5, 12, ClearanceDesign::Bound::AtLeast},
        {"sag under a bridge", {1000, 100, -2, 2}, 1050, 118, 16.5, ClearanceDesign::Bound::AtMost},
        {"crest already clear", {1000, 100, 2, -2}, 1050, 120, 16.5, ClearanceDesign::Bound::Any},
        {"sag tangent too high", {1000, 100, -2, 2}, 1150, 115, 16.5, ClearanceDesign::Bound::None},
        {"no change of grade", {1000, 100, 2, 2}, 1050, 120, 16.5, ClearanceDesign::Bound::Any},
    };
    for (const Case& c : cases) {
        const ClearanceDesign d = LengthUnderStructure(c.frame, c.station, c.underside, c.clearance);
        EXPECT_EQ(d.bound, c.bound) << c.name;
        if (c.bound != ClearanceDesign::Bound::AtLeast && c.bound != ClearanceDesign::Bound::AtMost) continue;
        const double limit = c.underside - c.clearance;
        EXPECT_NEAR(RoadAt(c.frame, d.length, c.station), limit, 1e-9) << c.name;
        // A little longer (crest) or shorter (sag) keeps the clearance; the other way loses it.
        const double keeps = c.bound == ClearanceDesign::Bound::AtLeast ? d.length + 1 : d.length - 1;
        const double loses = c.bound == ClearanceDesign::Bound::AtLeast ? d.length - 1 : d.length + 1;
        EXPECT_LT(RoadAt(c.frame, keeps, c.station), limit) << c.name;
        EXPECT_GT(RoadAt(c.frame, loses, c.station), limit) << c.name;
    }
}

TEST(CurveDesignTest, LengthByKIsKTimesTheChangeOfGrade) { EXPECT_DOUBLE_EQ(LengthForK(151, {1000, 100, 2, -2}), 604); }

}  // namespace
}  // namespace gw
