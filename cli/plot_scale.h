#pragma once
// What both drawings choose the same way: the step between grid lines, the vertical
// exaggeration and the station written at a tick.

#include <string>

namespace gw::cli {

// 1, 2, 2.5 or 5 times a power of ten, giving about `count` steps over `span`.
double NiceStep(double span, int count);

// The largest usual exaggeration (1, 2, 5, 10, 20, 25, 50, ... 1000) that keeps a rise
// within `room` pixels; 10 for no rise at all, where any would do.
double Exaggeration(double rise, double pxPerUnit, double room);

// A station at a tick: "10+00", "1+850"; anything finer keeps its decimals.
std::string TickStation(double value, bool metric);

}  // namespace gw::cli
