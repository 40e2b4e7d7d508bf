#pragma once
// Profiles for the tests, written as station-elevation-curve lists.

#include <initializer_list>

#include "core/profile.h"

namespace gw::test {

struct Pvi {
    double station, elevation;
    double length = 0;  // a symmetric curve, or with lengthOut an unsymmetrical one
    double lengthOut = 0;
};

inline ProfileInput Input(std::initializer_list<Pvi> pvis, bool metric = false) {
    ProfileInput in;
    in.metric = metric;
    int line = 1;
    for (const Pvi& p : pvis) {
        PviInput v;
        v.station = p.station;
        v.elevation = p.elevation;
        v.source = "line " + std::to_string(++line);
        if (p.lengthOut > 0) {
            v.curve.kind = CurveInput::Kind::Unsymmetrical;
            v.curve.lengthIn = p.length;
            v.curve.lengthOut = p.lengthOut;
        } else if (p.length != 0) {
            v.curve.kind = CurveInput::Kind::Length;
            v.curve.length = p.length;
        }
        in.pvis.push_back(v);
    }
    return in;
}

inline Profile Build(std::initializer_list<Pvi> pvis, bool metric = false) {
    ProfileOutcome o = BuildProfile(Input(pvis, metric));
    if (!o.profile) throw std::runtime_error(o.error);
    return *o.profile;
}

}  // namespace gw::test
