#pragma once
// Is a vertical curve long enough for a design speed? Stopping sight distances for
// design and the minimum length of curve that provides them.

#include <optional>
#include <string_view>

namespace gw {

struct DesignSpeedRow {
    double speed;           // mph or km/h
    double sightDistance;   // ft or m
};

// The design stopping sight distance for a speed: the row of the speed, or of the next
// higher tabulated speed for a speed between rows; none outside the table.
std::optional<DesignSpeedRow> DesignStoppingSightDistance(double speed, bool metric);

// The slowest and fastest tabulated speeds, for messages.
DesignSpeedRow SlowestDesignSpeed(bool metric);
DesignSpeedRow FastestDesignSpeed(bool metric);

// Eye and object heights on a crest: C in L = A S^2 / C.
enum class CrestConstants { Older, Current };
double CrestConstant(CrestConstants which, bool metric);

struct MinimumLength {
    double length = 0;      // never negative
    bool withinCurve = false;  // true: the S < L form applied; false: S > L
};

// The shortest curve with a change of grade A (percent) that gives a sight distance S.
// Crest: S < L: L = A S^2 / C; S > L: L = 2 S - C / A.
MinimumLength CrestMinimumLength(double A, double S, double C);
// Sag, headlight sight distance with the beam 1 degree up:
// S < L: L = A S^2 / (H + 3.5 S); S > L: L = 2 S - (H + 3.5 S) / A.
MinimumLength SagMinimumLength(double A, double S, bool metric);

}  // namespace gw
