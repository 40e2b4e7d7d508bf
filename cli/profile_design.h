#pragma once
// The `design` command over one curve of a profile: its length by K, through a
// control point, or under a structure with a clearance.

#include <optional>
#include <ostream>

#include "core/profile_sheet.h"

namespace gw::cli {

struct DesignRequest {
    size_t pvi = 0;  // the PVI's number, from 1
    std::optional<double> k;
    struct Point {
        double station = 0, elevation = 0;
        // The point is on the finished surface, this far above and beside the profile.
        double verticalOffset = 0, horizontalOffset = 0, crossSlope = 0;
    };
    std::optional<Point> through;
    struct Structure {
        double station = 0, underside = 0, clearance = 0;
    };
    std::optional<Structure> structure;
    // The profile's tangents run on past its first and last PVI, as a curve file's
    // do: a longer curve moves them out instead of being refused.
    bool openEnds = false;
};

// Exactly one of k, through and structure is given. Writes the working and the
// length, and whether the profile takes a curve of that length at the PVI. Returns
// 0 with a length; 5 when none exists or the profile refuses the one found (the
// curves would overlap); 2 when the PVI is not one between the ends.
int ProfileDesignReport(const ProfileDocument& document, const Profile& profile, const DesignRequest& request,
                        std::ostream& out, std::ostream& err);

}  // namespace gw::cli
