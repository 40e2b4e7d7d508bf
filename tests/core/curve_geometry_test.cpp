#include "core/curve_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <random>

#include "core/curve_solver.h"
#include "core/numbers.h"
#include "core/stations.h"
#include "tests/core/sheet_builders.h"

namespace gw {
namespace {

CurveGeometry Curve(double pvc, double elevation, double length, double g1, double g2, bool metric = false) {
    CurveGeometry c;
    c.pvc = pvc;
    c.pvcElevation = elevation;
    c.length = length;
    c.g1 = g1;
    c.g2 = g2;
    c.metric = metric;
    return c;
}

TEST(CurveGeometryTest, GradeAndElevationAlongACrest) {
    // PVC 10+00 at 100.0, +2 % to -2 % over 400 ft: grade 2 - 4 x / 400,
    // elevation 100 + 0.02 x - (0.04 / 800) x^2.
    const CurveGeometry c = Curve(1000, 100, 400, 2, -2);
    struct Case {
        double x, grade, elevation;
    } cases[] = {
        {0, 2, 100},
        {100, 1, 101.5},
        {400, -2, 100},
    };
    for (const Case& k : cases) {
        EXPECT_NEAR(c.GradeAt(k.x), k.grade, 1e-12) << k.x;
        EXPECT_NEAR(c.ElevationAt(k.x), k.elevation, 1e-12) << k.x;
    }
    EXPECT_DOUBLE_EQ(c.pviElevation(), 104);                                // 100 + 0.02 * 200
    EXPECT_DOUBLE_EQ(*c.RateOfCurvature(), 100);                            // 400 / 4
    EXPECT_NEAR(*Curve(1000, 100, 400, -2, 3).TurningPoint(), 160, 1e-12);  // 2 * 400 / 5
    EXPECT_FALSE(Curve(1000, 100, 400, 0, 0).RateOfCurvature());
}

TEST(CurveGeometryTest, SightDistanceCaseThatGoverned) {
    struct Case {
        double length, g1, g2;
        SightCase governing;
        bool finite;
    } cases[] = {
        {400, 2, -2, SightCase::WithinCurve, true},     // sqrt(400 * 1329 / 4) = 364.6 <= 400
        {100, 2, -2, SightCase::BeyondCurve, true},     // sqrt(100 * 1329 / 4) = 182.3 > 100
        {300, -3, 2, SightCase::WithinCurve, true},     // sag, S = 292.1 <= 300
        {100, -1, 2, SightCase::BeyondCurve, true},     // sag, S = 280 > 100
        {800, -1, 0.5, SightCase::BeyondCurve, false},  // A = 1.5 <= 1.75: unlimited
        {400, 1, 1, SightCase::None, true},
    };
    for (const Case& k : cases) {
        const SightDistance sd = Curve(0, 0, k.length, k.g1, k.g2).Sight();
        EXPECT_EQ(sd.governing, k.governing) << k.length << " " << k.g1 << " " << k.g2;
        EXPECT_EQ(std::isfinite(sd.distance), k.finite) << k.length << " " << k.g1 << " " << k.g2;
    }
}

TEST(CurveGeometryTest, StationTextPadsThePlusPartAndCarriesAWholeStation) {
    struct Case {
        double value;
        bool metric;
        const char* text;
    } cases[] = {
        {1050.5, false, "10+50.5"},       {5, false, "0+05.0"},
        {2050, true, "2+050.0"},          {-1010, true, "-1+010.0"},
        {17999.99999, true, "18+000.0"},  {1799.99996, false, "18+00.0"},
        {-1799.99996, false, "-18+00.0"}, {1799.99994, false, "17+99.9999"},
    };
    for (const Case& c : cases) EXPECT_EQ(StationText(c.value, c.metric), c.text) << c.value;
}

// Tables write stations without the texts SplitStation goes through; the bytes must
// be SplitStation's, whatever the value, but for the carry into the next station.
TEST(CurveGeometryTest, StationTextIsSplitStationWithThePlusPadded) {
    std::mt19937_64 rng(5);
    std::uniform_real_distribution<double> mantissa(1.0, 10.0);
    std::uniform_int_distribution<int> exponent(-3, 19);
    for (int i = 0; i < 100000; ++i) {
        const bool metric = i % 2;
        double v = mantissa(rng) * std::pow(10.0, exponent(rng));
        if (i % 5 == 0) v = std::round(v) - 0.00005;  // plus parts that round up to a whole station
        if (i % 3 == 0) v = -v;
        const StationTexts t = SplitStation(std::fabs(v), metric ? "Metric" : "English");
        std::string whole = t.whole, plus = t.plus;
        const double k = metric ? 1000 : 100;
        if (std::fabs(v) / k < 1e15 && ReadNumber(plus) >= k) {  // rounded up to the next station
            whole = std::to_string(std::stoll(whole) + 1);
            plus = "0.0";
        }
        const size_t width = metric ? 3 : 2;
        if (plus.find('.') < width) plus.insert(0, width - plus.find('.'), '0');
        ASSERT_EQ(StationText(v, metric), (v < 0 ? "-" : "") + whole + "+" + plus) << std::setprecision(17) << v;
    }
}

}  // namespace
}  // namespace gw
