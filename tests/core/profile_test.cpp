#include "core/profile.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/profile_rows.h"
#include "tests/core/profile_builders.h"

namespace gw {
namespace {

using test::Build;
using test::Input;

TEST(ProfileTest, SymmetricCurveMatchesTheTextbook) {
    // Schmidt & Wong, Fundamentals of Surveying, Ex. 12.3: PVI 52+50 at 432.34,
    // -1.0 % to +2.2 %, L = 800 ft; elevations to the hundredth.
    const Profile p = Build({{4000, 444.84}, {5250, 432.34, 800}, {6500, 459.84}});
    const VerticalCurve& c = *p.pvis()[1].curve;
    EXPECT_DOUBLE_EQ(c.pvc(), 4850);
    struct Case {
        double station, elevation;
    } cases[] = {{4900, 435.89}, {5000, 435.29}, {5100, 435.09}, {5650, 441.14}};
    for (const Case& k : cases) EXPECT_NEAR(p.ElevationAt(k.station), k.elevation, 0.005) << k.station;
    EXPECT_NEAR(*c.TurningPoint(), 5100, 1e-9);  // the low point
}

TEST(ProfileTest, UnsymmetricalCurveMatchesThePublishedTableAndEqualHalvesAreSymmetric) {
    // Unequal-tangent exercise: PI 40+00 at 5888.27, PVC 37+40, -3.3 % to +2.6 %, 260
    // and 540 ft; published to the hundredth: PVC 5896.85, 40+00 (where the halves
    // meet) 5893.45, 45+00 5901.30, PVT 45+40 5902.31.
    const Profile p = Build({{3500, 5888.27 + 0.033 * 500}, {4000, 5888.27, 260, 540}, {5000, 5888.27 + 0.026 * 1000}});
    const VerticalCurve& c = *p.pvis()[1].curve;
    EXPECT_DOUBLE_EQ(c.pvc(), 3740);
    EXPECT_DOUBLE_EQ(c.pvt(), 4540);
    struct Case {
        double station, elevation;
    } cases[] = {{3740, 5896.85}, {4000, 5893.45}, {4500, 5901.30}, {4540, 5902.31}};
    for (const Case& k : cases) EXPECT_NEAR(p.ElevationAt(k.station), k.elevation, 0.005) << k.station;
    EXPECT_NEAR(c.MiddleOrdinate(), 0.059 * 260 * 540 / 1600, 1e-12);

    const Profile halves = Build({{4000, 444.84}, {5250, 432.34, 400, 400}, {6500, 459.84}});
    const Profile whole = Build({{4000, 444.84}, {5250, 432.34, 800}, {6500, 459.84}});
    for (double s = 4000; s <= 6500; s += 12.5) {
        ASSERT_NEAR(halves.ElevationAt(s), whole.ElevationAt(s), 1e-9) << s;
        ASSERT_NEAR(halves.GradeAt(s), whole.GradeAt(s), 1e-12) << s;
    }
    EXPECT_NEAR(*halves.pvis()[1].curve->TurningPoint(), 5100, 1e-9);
}

TEST(ProfileTest, CurveByKTakesLengthKTimesA) {
    ProfileInput in = Input({{0, 100}, {1000, 120}, {2000, 100}});  // +2 % to -2 %
    in.pvis[1].curve.kind = CurveInput::Kind::RateOfCurvature;
    in.pvis[1].curve.k = 151;
    const ProfileOutcome o = BuildProfile(in);
    ASSERT_TRUE(o.profile) << o.error;
    EXPECT_DOUBLE_EQ(o.profile->pvis()[1].curve->length(), 604);
}

TEST(ProfileTest, BackToBackCurvesMeetAndGradeBreaksHaveNoCurve) {
    // A reverse pair meeting at 12+00, then a bare break at 16+00.
    const Profile p = Build({{0, 100}, {1000, 120, 400}, {1400, 112, 400}, {1600, 116}, {2000, 112}});
    ASSERT_EQ(p.pvis()[1].curve->pvt(), p.pvis()[2].curve->pvc());
    EXPECT_FALSE(p.pvis()[3].curve);
    EXPECT_DOUBLE_EQ(p.GradeAt(1600), -1);  // the grade ahead of the break
    EXPECT_DOUBLE_EQ(p.GradeAt(2000), -1);  // at the end, the grade behind
    EXPECT_NEAR(p.ElevationAt(1200), p.pvis()[1].curve->ElevationAt(1200), 1e-12);
}

TEST(ProfileTest, RefusalsNameThePvisConcerned) {
    struct Case {
        const char* name;
        ProfileInput input;
        const char* message;
    } cases[] = {
        {"one point", Input({{1000, 100}}),
         "A profile needs a beginning and an end point; this one has 1 PVI, PVI 1 (line 2)."},
        {"no length", Input({{1000, 100}, {1000, 101}}),
         "The profile has no length: PVI 1 (line 2) and PVI 2 (line 3) are both at 10+00.0."},
        {"doubles back", Input({{1000, 100}, {900, 101}, {1100, 102}, {1500, 100}}),
         "PVI 2 (line 3) at 9+00.0 is not past PVI 1 (line 2) at 10+00.0: stations must increase along the profile."},
        // 64 ft apart at 1e17 ft: closer than a station there can be written.
        {"stations too close to tell apart", Input({{0, 100}, {1e17, 101}, {1e17 + 64, 102}}),
         "PVI 3 (line 4) at 1000000000000000+64.0 is not past PVI 2 (line 3) at 1000000000000000+00.0: stations must "
         "increase along the profile."},
        {"curve at the beginning", Input({{1000, 100, 100}, {1500, 101}}),
         "PVI 1 (line 2) begins the profile and cannot carry a vertical curve."},
        {"negative length", Input({{0, 100}, {1000, 110, -100}, {2000, 100}}),
         "The length of the curve at PVI 2 (line 3) must be 0 or more, not -100.0."},
        {"overlap", Input({{0, 100}, {1000, 120, 400}, {1300, 112, 400}, {2000, 116}}),
         "The curves at PVI 2 (line 3) and PVI 3 (line 4) overlap: the first ends at 12+00.0, after the second begins "
         "at 11+00.0."},
        {"past the next PVI", Input({{0, 100}, {1000, 120, 400}, {1100, 118}, {2000, 116}}),
         "The curve at PVI 2 (line 3) ends at 12+00.0, past PVI 3 (line 4) at 11+00.0."},
        {"before the beginning", Input({{900, 100}, {1000, 120, 400}, {2000, 116}}),
         "The curve at PVI 2 (line 3) begins at 8+00.0, before PVI 1 (line 2) at 9+00.0."},
        {"half an unsymmetrical curve", Input({{0, 100}, {1000, 110, 0, 300}, {2000, 100}}),
         "The unsymmetrical curve at PVI 2 (line 3) needs both lengths greater than 0, not 0.0 and 300.0."},
    };
    for (const Case& c : cases) {
        const ProfileOutcome o = BuildProfile(c.input);
        EXPECT_FALSE(o.profile) << c.name;
        EXPECT_EQ(o.error, c.message) << c.name;
    }
}

TEST(ProfileRowsTest, EveryNamedPointIsARowAmongTheEvenStations) {
    // +2 % to -3 % over 400 ft at 10+00, meeting -3 % to +3.6 % over 400 ft at 14+00,
    // then a bare break at 16+50.
    const Profile p = Build({{0, 100}, {1000, 120, 400}, {1400, 108, 400}, {1650, 117}, {2000, 112}});
    const ProfileRowsOutcome t = ProfileRows(p, 500);
    ASSERT_TRUE(t.error.empty());
    const std::vector<std::pair<double, std::string>> expected = {
        {0, "PVI 1"},
        {500, ""},
        {800, "PVC 2"},
        {960, "High point 2"},
        {1000, "PVI 2"},
        {1200, "PVT 2/PVC 3"},
        {1200 + 3 * 400 / 6.6, "Low point 3"},
        {1400, "PVI 3"},
        {1500, ""},
        {1600, "PVT 3"},
        {1650, "PVI 4"},
        {2000, "PVI 5"},
    };
    ASSERT_EQ(t.rows.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(t.rows[i].station, expected[i].first, 1e-9) << i;
        EXPECT_EQ(t.rows[i].point, expected[i].second) << i;
    }
    EXPECT_NEAR(t.rows[3].elevation, 116 + 0.02 * 160 - 0.05 / 800 * 160 * 160, 1e-9);
    EXPECT_NEAR(t.rows[3].grade, 0, 1e-12);
}

TEST(ProfileRowsTest, RefusesIntervalsThatGiveTooManyRowsAndEndsForHugeStations) {
    const Profile p = Build({{0, 100}, {52800, 120}});
    EXPECT_EQ(ProfileRows(p, 0.01).error,
              "An interval of 0.01 gives more than 1000000 rows over 52800.0; choose a longer interval.");
    EXPECT_FALSE(ProfileRows(p, 0).error.empty());
    // Past 2^53 a foot no longer changes a station. A profile there spans more than its
    // stations' tolerance, so a table of it every foot is refused rather than stepped.
    const Profile far = Build({{1e17, 100}, {1e17 + 4e8, 120}});
    EXPECT_FALSE(ProfileRows(far, 1).error.empty());
}

}  // namespace
}  // namespace gw
