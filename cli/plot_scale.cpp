#include "cli/plot_scale.h"

#include <cmath>

#include "core/curve_geometry.h"

namespace gw::cli {

double NiceStep(double span, int count) {
    const double raw = span / count;
    const double magnitude = std::pow(10.0, std::floor(std::log10(raw)));
    for (double m : {1.0, 2.0, 2.5, 5.0}) {
        if (m * magnitude >= raw * 0.999) return m * magnitude;
    }
    return 10 * magnitude;
}

double Exaggeration(double rise, double pxPerUnit, double room) {
    if (!(rise > 0)) return 10;
    const double most = room / (rise * pxPerUnit);
    double chosen = 1;
    for (double e : {1.0, 2.0, 5.0, 10.0, 20.0, 25.0, 50.0, 100.0, 200.0, 250.0, 500.0, 1000.0}) {
        if (e <= most) chosen = e;
    }
    return chosen;
}

std::string TickStation(double value, bool metric) {
    std::string text = StationText(std::round(value * 1e6) / 1e6, metric);
    if (text.size() > 2 && text.compare(text.size() - 2, 2, ".0") == 0) text.resize(text.size() - 2);
    return text;
}

}  // namespace gw::cli
