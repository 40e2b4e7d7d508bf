#include "text_output.h"

#include <cmath>
#include <ctime>
#include <iomanip>
#include <locale>
#include <optional>
#include <sstream>

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

void JsonString(std::ostringstream& out, std::string_view text) {
    static const char* hex = "0123456789abcdef";
    out << '"';
    for (unsigned char c : ToUtf8(text)) {
        switch (c) {
            case '"': out << "\\\""; break;
            case '\\': out << "\\\\"; break;
            case '\n': out << "\\n"; break;
            case '\r': out << "\\r"; break;
            case '\t': out << "\\t"; break;
            default:
                if (c < 0x20) {
                    out << "\\u00" << hex[c >> 4] << hex[c & 0xF];
                } else {
                    out << static_cast<char>(c);
                }
        }
    }
    out << '"';
}

std::string OptionalNumber(const std::optional<double>& value) {
    return value ? FormatNumber(*value) : std::string();
}

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
    std::ostringstream out;
    out << "{";
    bool first = true;
    auto key = [&](std::string_view name) {
        out << (first ? "\n  " : ",\n  ");
        first = false;
        JsonString(out, name);
        out << ": ";
    };
    for (std::string_view name : CurveSheet::CurveFieldNames()) {
        key(name);
        JsonString(out, *s.Field(name));
    }
    key("lblSDL");
    JsonString(out, s.lblSDL);
    key("lblMorF");
    JsonString(out, s.lblMorF);
    key("optPVI");
    out << (s.optPVI ? "true" : "false");
    key("optPVCPVT");
    out << (s.optPVCPVT ? "true" : "false");
    for (std::string_view name : {"txtVOffset", "txtHOffset", "txtXSlope"}) {
        key(name);
        JsonString(out, *s.elevations.Field(name));
    }
    const std::pair<const char*, std::string ElevationRow::*> columns[] = {
        {"txtTOTSTA1", &ElevationRow::txtTOTSTA1},
        {"txtTOTSTAM1", &ElevationRow::txtTOTSTAM1},
        {"txtTotalTopSlab1", &ElevationRow::txtTotalTopSlab1},
    };
    for (const auto& [name, member] : columns) {
        key(name);
        out << "[";
        for (int i = 0; i < kRowCount; ++i) {
            if (i > 0) out << ", ";
            JsonString(out, s.elevations.rows[i].*member);
        }
        out << "]";
    }
    key("changed");
    out << (s.changed ? "true" : "false");

    // Read off the solved curve; none of these is a field of the curve window.
    const CurveGeometry curve = ReadCurveGeometry(s);
    const SightDistance sight = curve.Sight();
    key("K");
    JsonString(out, OptionalNumber(curve.RateOfCurvature()));
    key("turningPointElevation");
    const auto tp = curve.TurningPoint();
    JsonString(out, tp ? FormatNumber(curve.ElevationAt(*tp)) : std::string());
    key("sightDistanceCase");
    JsonString(out, CaseText(sight.governing));
    key("sightDistance");
    const bool unlimited =
        sight.kind == "HSD" && sight.governing == SightCase::BeyondCurve && !std::isfinite(sight.distance);
    JsonString(out, unlimited ? "unlimited: with A of 1.75 % or less the headlight beam never meets the road"
                              : std::string_view(s.txtSD));
    out << "\n}\n";
    return out.str();
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
