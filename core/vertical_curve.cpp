#include "core/vertical_curve.h"

#include <algorithm>
#include <cmath>

namespace gw {

VerticalCurve::VerticalCurve(double pviStation, double pviElevation, double g1, double g2, double lengthIn,
                             double lengthOut, bool symmetric)
    : m_pviStation(pviStation),
      m_pviElevation(pviElevation),
      m_g1(g1),
      m_g2(g2),
      m_lengthIn(lengthIn),
      m_lengthOut(lengthOut),
      m_symmetric(symmetric) {
    const double pvcElevation = pviElevation - g1 / 100 * lengthIn;
    if (symmetric) {
        m_parts[0] = CurveGeometry{pvc(), pvcElevation, length(), g1, g2};
        return;
    }
    // The two parabolas share the tangent at the PVI's station; its grade weighs each
    // grade by the length on its side. Each half then has its own rate of change.
    const double common = (g1 * lengthIn + g2 * lengthOut) / (lengthIn + lengthOut);
    m_parts[0] = CurveGeometry{pvc(), pvcElevation, lengthIn, g1, common};
    m_parts[1] = CurveGeometry{pviStation, m_parts[0].ElevationAt(lengthIn), lengthOut, common, g2};
}

double VerticalCurve::pvtElevation() const {
    const CurveGeometry& last = m_parts[partCount() - 1];
    return last.ElevationAt(last.length);
}

double VerticalCurve::MiddleOrdinate() const { return gradeChange() / 100 * m_lengthIn * m_lengthOut / (2 * length()); }

double VerticalCurve::ElevationAt(double station) const {
    const CurveGeometry& p = m_symmetric || station < m_pviStation ? m_parts[0] : m_parts[1];
    return p.ElevationAt(station - p.pvc);
}

double VerticalCurve::GradeAt(double station) const {
    const CurveGeometry& p = m_symmetric || station < m_pviStation ? m_parts[0] : m_parts[1];
    return p.GradeAt(station - p.pvc);
}

std::optional<double> VerticalCurve::TurningPoint() const {
    for (int i = 0; i < partCount(); ++i) {
        if (auto x = m_parts[i].TurningPoint()) return m_parts[i].pvc + *x;
    }
    return std::nullopt;
}

std::optional<std::array<double, 2>> VerticalCurve::FlatZone(double limit) const {
    const double lo = std::max(-limit, std::min(m_g1, m_g2));
    const double hi = std::min(limit, std::max(m_g1, m_g2));
    if (lo > hi) return std::nullopt;
    if (m_g1 == m_g2) return std::array<double, 2>{pvc(), pvt()};
    // Where along the curve the grade takes a value between G1 and G2.
    const auto stationOf = [this](double grade) {
        for (int i = 0; i < partCount(); ++i) {
            const CurveGeometry& p = m_parts[i];
            if (std::min(p.g1, p.g2) <= grade && grade <= std::max(p.g1, p.g2) && p.g1 != p.g2) {
                return p.pvc + (grade - p.g1) / (p.g2 - p.g1) * p.length;
            }
        }
        return m_pviStation;  // not reached: the grade lies between G1 and G2
    };
    const double a = stationOf(lo), b = stationOf(hi);
    return std::array<double, 2>{std::min(a, b), std::max(a, b)};
}

}  // namespace gw
