#pragma once
// Is a vertical curve long enough for a design speed? Stopping sight distances for
// design and the minimum length of curve that provides them.

#include <optional>
#include <string_view>
#include <vector>

namespace gw {

struct DesignSpeedRow {
    double speed;          // mph or km/h
    double sightDistance;  // ft or m
};

// The design stopping sight distance for a speed: the row of the speed, or of the next
// higher tabulated speed for a speed between rows; none outside the table.
std::optional<DesignSpeedRow> DesignStoppingSightDistance(double speed, bool metric);

// The slowest and fastest tabulated speeds, for messages.
DesignSpeedRow SlowestDesignSpeed(bool metric);
DesignSpeedRow FastestDesignSpeed(bool metric);

// Every row of the stopping sight distance table, slowest first.
std::vector<DesignSpeedRow> DesignSpeedRows(bool metric);

// The passing sight distance for design of two-lane highways, looked up as the
// stopping sight distance is; none outside its table (20 to 80 mph, 30 to 130 km/h).
std::optional<DesignSpeedRow> DesignPassingSightDistance(double speed, bool metric);

// Eye and object heights on a crest: C in L = A S^2 / C.
enum class CrestConstants { Older, Current };
double CrestConstant(CrestConstants which, bool metric);
// C = 200 (sqrt(h1) + sqrt(h2))^2 for an eye height h1 and an object height h2, in the
// unit of the heights; the published constants are this rounded.
double CrestConstantForHeights(double eye, double object);
// Passing sight distance over a crest: eye 3.5 ft / 1.08 m, oncoming vehicle 3.5 ft / 1.08 m.
double PassingCrestConstant(bool metric);
// The heights behind the current constants: a driver's eye 3.5 ft / 1.08 m, an object
// on the road 2.0 ft / 0.60 m, an oncoming vehicle 3.5 ft / 1.08 m, headlights
// 2.0 ft / 0.60 m.
double DriverEyeHeight(bool metric);
double StoppingObjectHeight(bool metric);
double OncomingVehicleHeight(bool metric);
double HeadlightHeight(bool metric);
// H of the sag formulas: 200 times the headlight height (2 ft / 0.6 m).
double HeadlightConstant(bool metric);
// The beam's term of the sag formulas, 3.5 in H + 3.5 S: 200 tan 1 degree, the beam
// tilted up by one degree.
inline constexpr double kHeadlightBeam = 3.5;
double HeadlightConstantForHeight(double headlight);

struct MinimumLength {
    double length = 0;         // never negative
    bool withinCurve = false;  // true: the S < L form applied; false: S > L
};

// The shortest curve with a change of grade A (percent) that gives a sight distance S.
// Crest: S < L: L = A S^2 / C; S > L: L = 2 S - C / A.
MinimumLength CrestMinimumLength(double A, double S, double C);
// Sag, headlight sight distance with the beam 1 degree up:
// S < L: L = A S^2 / (H + 3.5 S); S > L: L = 2 S - (H + 3.5 S) / A.
MinimumLength SagMinimumLength(double A, double S, bool metric);
// The same with the headlight constant H given.
MinimumLength HeadlightMinimumLength(double A, double S, double H);
// Sight distance under an overhead structure on a sag, clearance C above the road, a
// truck driver's eye h1 and a taillight h2: with D = 800 (C - (h1 + h2) / 2),
// S < L: L = A S^2 / D; S > L: L = 2 S - D / A. C must exceed (h1 + h2) / 2.
MinimumLength StructureMinimumLength(double A, double S, double clearance, double eye, double object);
// D = 800 (C - (h1 + h2) / 2).
double StructureConstant(double clearance, double eye, double object);
// Truck driver's eye and taillight heights under a structure: 8 ft / 2.4 m, 2 ft / 0.6 m.
double TruckEyeHeight(bool metric);
double TaillightHeight(bool metric);

// Comfort on a sag: L = A V^2 / 46.5 (V in mph, L in ft) or A V^2 / 395 (km/h, m).
double ComfortMinimumLength(double A, double speed, bool metric);
double ComfortConstant(bool metric);
// The shortest curve worth building: 3 V ft (mph) or 0.6 V m (km/h).
double GeneralMinimumLength(double speed, bool metric);

// Drainage on curbed roads: within the flat zone of a curve the grade is within
// 0.30 %; above this K (167 ft or 51 m per percent) the zone is longer than
// drainage allows.
inline constexpr double kFlatGrade = 0.30;
double CurbedDrainageMaximumK(bool metric);

}  // namespace gw
