#pragma once
// One parabolic vertical curve of a profile, placed by its PVI: symmetric, or
// unsymmetrical with lengths L1 before and L2 after the PVI.

#include <array>
#include <optional>

#include "core/curve_geometry.h"

namespace gw {

class VerticalCurve {
public:
    // Grades in percent; lengths in ft or m, both greater than 0 (or both 0 for a bare
    // grade break, which has no elevations of its own). A symmetric curve has
    // L1 = L2 = L / 2.
    VerticalCurve(double pviStation, double pviElevation, double g1, double g2, double lengthIn, double lengthOut,
                  bool symmetric);

    double pviStation() const { return m_pviStation; }
    double pviElevation() const { return m_pviElevation; }
    double g1() const { return m_g1; }
    double g2() const { return m_g2; }
    double lengthIn() const { return m_lengthIn; }
    double lengthOut() const { return m_lengthOut; }
    double length() const { return m_lengthIn + m_lengthOut; }
    bool symmetric() const { return m_symmetric; }

    double pvc() const { return m_pviStation - m_lengthIn; }
    double pvt() const { return m_pviStation + m_lengthOut; }
    double pvcElevation() const { return m_parts[0].pvcElevation; }
    double pvtElevation() const;
    double gradeChange() const { return GradeChange(m_g1, m_g2); }
    bool isCrest() const { return m_g1 > m_g2; }
    std::optional<double> RateOfCurvature() const { return gw::RateOfCurvature(length(), gradeChange()); }
    // e, the distance between the PVI and the curve below or above it:
    // A L1 L2 / (2 (L1 + L2)), A as a fraction; A L / 8 when symmetric.
    double MiddleOrdinate() const;

    // At a station from PVC to PVT.
    double ElevationAt(double station) const;
    double GradeAt(double station) const;
    // The high or low point, by the turning-point rule of the single curve applied to
    // the half whose grades it lies between; none when the grades share a strict sign.
    std::optional<double> TurningPoint() const;
    // The stations from PVC to PVT where the grade is within +-limit percent; none
    // when the grade never is. The grade along a curve is monotonic.
    std::optional<std::array<double, 2>> FlatZone(double limit) const;

    // The parabolas the curve is made of, in station order: one when symmetric, two
    // (meeting below or above the PVI with a common tangent) when not.
    int partCount() const { return m_symmetric ? 1 : 2; }
    const CurveGeometry& part(int i) const { return m_parts[i]; }

private:
    double m_pviStation, m_pviElevation, m_g1, m_g2, m_lengthIn, m_lengthOut;
    bool m_symmetric;
    std::array<CurveGeometry, 2> m_parts;
};

}  // namespace gw
