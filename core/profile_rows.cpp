#include "core/profile_rows.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "core/station_steps.h"

namespace gw {
namespace {

double Tolerance(const Profile& p) { return StationTolerance(std::max(std::fabs(p.begin()), std::fabs(p.end()))); }

// Walks the pieces forward as the stations asked for grow.
class Walker {
public:
    explicit Walker(const Profile& p) : m_pieces(p.pieces()) {}

    void At(double station, ProfileRow& row) {
        while (m_index + 1 < m_pieces.size() && station >= m_pieces[m_index].end()) ++m_index;
        const ProfilePiece& piece = m_pieces[m_index];
        row.station = station;
        row.elevation = piece.geometry.ElevationAt(station - piece.begin());
        row.grade = piece.geometry.GradeAt(station - piece.begin());
    }

private:
    const std::vector<ProfilePiece>& m_pieces;
    size_t m_index = 0;
};

}  // namespace

std::vector<ProfilePointName> NamedPoints(const Profile& profile) {
    std::vector<ProfilePointName> points;
    const auto& pvis = profile.pvis();
    for (size_t i = 0; i < pvis.size(); ++i) {
        const std::string n = std::to_string(i + 1);
        if (const auto& c = pvis[i].curve) {
            points.push_back({c->pvc(), "PVC " + n});
            points.push_back({c->pviStation(), "PVI " + n});
            points.push_back({c->pvt(), "PVT " + n});
            if (auto tp = c->TurningPoint()) points.push_back({*tp, (c->isCrest() ? "High point " : "Low point ") + n});
        } else {
            points.push_back({pvis[i].station, "PVI " + n});
        }
    }
    std::stable_sort(points.begin(), points.end(),
                     [](const ProfilePointName& a, const ProfilePointName& b) { return a.station < b.station; });
    std::vector<ProfilePointName> merged;
    const double eps = Tolerance(profile);
    for (ProfilePointName& p : points) {
        if (!merged.empty() && p.station - merged.back().station <= eps) {
            merged.back().name += "/" + p.name;
        } else {
            merged.push_back(std::move(p));
        }
    }
    return merged;
}

ProfileRowsOutcome ProfileRows(const Profile& profile, double interval) {
    ProfileRowsOutcome out;
    if (!(interval > 0) || !std::isfinite(interval)) {
        out.error = "The interval must be greater than 0.";
        return out;
    }
    const double first = std::ceil(profile.begin() / interval);
    const double last = std::floor(profile.end() / interval);
    const double count = last - first + 1;
    if (!(count <= kMostProfileRows)) {
        out.error = "An interval of " + FormatNumber(interval) + " gives more than " +
                    FormatWholeNumber(kMostProfileRows) + " rows over " +
                    FormatNumber(profile.end() - profile.begin()) + "; choose a longer interval.";
        return out;
    }
    const std::vector<ProfilePointName> named = NamedPoints(profile);
    const double eps = Tolerance(profile);
    Walker walker(profile);
    out.rows.reserve(static_cast<size_t>(std::max(0.0, count)) + named.size());
    size_t next = 0;  // the next named point
    // A whole count, so the loop ends however large the stations are.
    const auto n = static_cast<long long>(std::max(0.0, count));
    for (long long i = 0; i <= n; ++i) {
        const double station = i < n ? (first + static_cast<double>(i)) * interval : INFINITY;
        while (next < named.size() && named[next].station <= station + eps) {
            ProfileRow row;
            walker.At(named[next].station, row);
            row.point = named[next].name;
            out.rows.push_back(std::move(row));
            ++next;
        }
        if (i == n) break;
        if (!out.rows.empty() && station - out.rows.back().station <= eps) continue;  // that point's row
        out.rows.emplace_back();
        walker.At(station, out.rows.back());
    }
    return out;
}

}  // namespace gw
