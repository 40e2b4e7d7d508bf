#include "cli/text_output.h"

#include <cmath>
#include <ctime>
#include <iomanip>
#include <locale>
#include <optional>
#include <sstream>

#include "cli/json_writer.h"
#include "core/curve_geometry.h"
#include "core/numbers.h"
#include "core/report.h"

namespace gw::cli {
namespace {

// Length of the valid UTF-8 sequence at s[i], or 0.
size_t Utf8SequenceLength(std::string_view s, size_t i) {
    const auto b = static_cast<unsigned char>(s[i]);
    size_t n = b < 0x80 ? 1 : (b >> 5) == 0x6 ? 2 : (b >> 4) == 0xE ? 3 : (b >> 3) == 0x1E ? 4 : 0;
    if (n == 0 || i + n > s.size()) return 0;
    for (size_t k = 1; k < n; ++k) {
        if ((static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80) return 0;
    }
    return n;
}

std::string OptionalNumber(const std::optional<double>& value) { return value ? FormatNumber(*value) : std::string(); }

std::string_view CaseText(SightCase c) {
    switch (c) {
        case SightCase::WithinCurve: return "S<L";
        case SightCase::BeyondCurve: return "S>L";
        default: return "";
    }
}

std::string LocalTimeText(const char* format) {
    std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::ostringstream out;
    try {
        out.imbue(std::locale(""));
    } catch (const std::runtime_error&) {
        // An unknown locale in the environment: the classic formats still tell the time.
    }
    out << std::put_time(&local, format);
    return out.str();
}

}  // namespace

std::string ToUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (size_t i = 0; i < bytes.size();) {
        size_t n = Utf8SequenceLength(bytes, i);
        if (n > 0) {
            out.append(bytes.substr(i, n));
            i += n;
        } else {
            const auto b = static_cast<unsigned char>(bytes[i++]);
            out += static_cast<char>(0xC0 | (b >> 6));
            out += static_cast<char>(0x80 | (b & 0x3F));
        }
    }
    return out;
}

std::string ShortNumber(double value) {
    std::string text = FormatNumber(value);
    if (text.size() > 2 && text.compare(text.size() - 2, 2, ".0") == 0) text.resize(text.size() - 2);
    return text;
}

std::string CurveJson(const CurveSheet& s) {
    JsonWriter j;
    j.BeginObject();
    const auto text = [&j](std::string_view name, std::string_view value) {
        j.Key(name);
        j.String(value);
    };
    for (std::string_view name : CurveSheet::CurveFieldNames()) text(name, *s.Field(name));
    text("lblSDL", s.lblSDL);
    text("lblMorF", s.lblMorF);
    j.Key("optPVI");
    j.Bool(s.optPVI);
    j.Key("optPVCPVT");
    j.Bool(s.optPVCPVT);
    for (std::string_view name : {"txtVOffset", "txtHOffset", "txtXSlope"}) text(name, *s.elevations.Field(name));
    const std::pair<const char*, std::string ElevationRow::*> columns[] = {
        {"txtTOTSTA1", &ElevationRow::txtTOTSTA1},
        {"txtTOTSTAM1", &ElevationRow::txtTOTSTAM1},
        {"txtTotalTopSlab1", &ElevationRow::txtTotalTopSlab1},
    };
    for (const auto& [name, member] : columns) {
        j.Key(name);
        j.BeginArray(true);
        for (int i = 0; i < kRowCount; ++i) j.String(s.elevations.rows[i].*member);
        j.EndArray();
    }
    j.Key("changed");
    j.Bool(s.changed);

    // Read off the solved curve; none of these is a field of the curve window.
    const CurveGeometry curve = ReadCurveGeometry(s);
    const SightDistance sight = curve.Sight();
    text("K", OptionalNumber(curve.RateOfCurvature()));
    const auto tp = curve.TurningPoint();
    text("turningPointElevation", tp ? FormatNumber(curve.ElevationAt(*tp)) : std::string());
    text("sightDistanceCase", CaseText(sight.governing));
    const bool unlimited =
        sight.kind == "HSD" && sight.governing == SightCase::BeyondCurve && !std::isfinite(sight.distance);
    text("sightDistance", unlimited ? "unlimited: with A of 1.75 % or less the headlight beam never meets the road"
                                    : std::string_view(s.txtSD));
    j.EndObject();
    return j.Finish();
}

std::string ReportText(const CurveSheet& sheet) {
    std::string text;
    for (const std::string& line : ReportLines(sheet, LocalTimeText("%x"), LocalTimeText("%X"))) {
        text += ToUtf8(line);
        text += '\n';
    }
    return text;
}

}  // namespace gw::cli
