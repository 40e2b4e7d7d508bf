#include "cli/profile_listing.h"

#include <cmath>

#include "cli/json_writer.h"
#include "cli/text_output.h"
#include "core/numbers.h"

namespace gw::cli {
namespace {

std::string Place(double station, double elevation, bool metric) {
    return StationText(station, metric) + " El. " + FormatNumber(elevation);
}

std::string CurveLines(const VerticalCurve& c, const Profile& p) {
    const bool metric = p.metric();
    const std::string unit = " " + LengthUnit(p);
    std::string kind = c.g1() == c.g2() ? "curve without a change of grade" : c.isCrest() ? "crest curve" : "sag curve";
    if (!c.symmetric()) kind = "unsymmetrical " + kind;
    std::string text = "  " + kind + ": G1 " + GradeText(c.g1()) + ", G2 " + GradeText(c.g2()) + ", A " +
                       FormatNumber(c.gradeChange()) + " %, ";
    if (c.symmetric()) {
        text += "L " + FormatNumber(c.length()) + unit;
    } else {
        text += "L1 " + FormatNumber(c.lengthIn()) + unit + ", L2 " + FormatNumber(c.lengthOut()) + unit + ", L " +
                FormatNumber(c.length()) + unit;
    }
    if (auto K = c.RateOfCurvature()) text += ", K " + FormatNumber(*K);
    text += "\n  PVC " + Place(c.pvc(), c.pvcElevation(), metric) + ", PVT " +
            Place(c.pvt(), c.pvtElevation(), metric) + ", middle ordinate " + FormatNumber(c.MiddleOrdinate()) + unit +
            "\n";
    const std::string point = c.isCrest() ? "high point" : "low point";
    if (auto tp = c.TurningPoint()) {
        text += "  " + point + " " + Place(*tp, c.ElevationAt(*tp), metric) + "\n";
    } else if (c.g1() != c.g2()) {
        text += "  " + point + ": none on the curve\n";
    }
    return text;
}

void Location(JsonWriter& j, const char* key, double station, double elevation, bool metric) {
    j.Key(key);
    j.BeginObject();
    j.Key("station");
    j.Number(FormatNumber(station));
    j.Key("stationText");
    j.String(StationText(station, metric));
    j.Key("elevation");
    j.Number(FormatNumber(elevation));
    j.EndObject();
}

void CurveJson(JsonWriter& j, const VerticalCurve& c, bool metric) {
    j.BeginObject();
    j.Key("kind");
    j.String(c.g1() == c.g2() ? "none" : c.isCrest() ? "crest" : "sag");
    j.Key("symmetric");
    j.Bool(c.symmetric());
    for (auto [key, value] : {std::pair{"g1", c.g1()},
                              {"g2", c.g2()},
                              {"A", c.gradeChange()},
                              {"L", c.length()},
                              {"L1", c.lengthIn()},
                              {"L2", c.lengthOut()},
                              {"middleOrdinate", c.MiddleOrdinate()}}) {
        j.Key(key);
        j.Number(FormatNumber(value));
    }
    j.Key("K");
    if (auto K = c.RateOfCurvature()) {
        j.Number(FormatNumber(*K));
    } else {
        j.Null();
    }
    Location(j, "pvc", c.pvc(), c.pvcElevation(), metric);
    Location(j, "pvt", c.pvt(), c.pvtElevation(), metric);
    if (auto tp = c.TurningPoint()) {
        Location(j, c.isCrest() ? "highPoint" : "lowPoint", *tp, c.ElevationAt(*tp), metric);
    } else {
        j.Key(c.isCrest() ? "highPoint" : "lowPoint");
        j.Null();
    }
    j.EndObject();
}

}  // namespace

std::string GradeText(double percent) {
    const std::string text = FormatNumber(percent);
    return (text[0] != '-' && text != "0.0" ? "+" : "") + text + " %";
}

std::string LengthUnit(const Profile& profile) { return profile.metric() ? "m" : "ft"; }

std::string ProfileListingText(const ProfileDocument& document, const Profile& p) {
    const bool metric = p.metric();
    const auto& pvis = p.pvis();
    std::string text = "Profile " + ToUtf8(document.name) + ": " + std::to_string(pvis.size()) + " PVIs from " +
                       StationText(p.begin(), metric) + " to " + StationText(p.end(), metric) + ", " +
                       FormatNumber(p.end() - p.begin()) + " " + LengthUnit(p) + (metric ? " (metres)" : " (feet)") +
                       "\n";
    for (size_t i = 0; i < pvis.size(); ++i) {
        text += "\n" + ToUtf8(p.PviName(i)) + "  " + Place(pvis[i].station, pvis[i].elevation, metric) + "\n";
        if (i == 0) {
            text += "  begins the profile, grade ahead " + GradeText(p.TangentGrade(0)) + "\n";
        } else if (i + 1 == pvis.size()) {
            text += "  ends the profile, grade behind " + GradeText(p.TangentGrade(i - 1)) + "\n";
        } else if (pvis[i].curve) {
            text += CurveLines(*pvis[i].curve, p);
        } else {
            text += "  grade break without a curve: G1 " + GradeText(p.TangentGrade(i - 1)) + ", G2 " +
                    GradeText(p.TangentGrade(i)) + ", A " +
                    FormatNumber(std::fabs(p.TangentGrade(i) - p.TangentGrade(i - 1))) + " %\n";
        }
    }
    return text;
}

std::string ProfileListingJson(const ProfileDocument& document, const Profile& p) {
    const bool metric = p.metric();
    JsonWriter j;
    j.BeginObject();
    j.Key("name");
    j.String(document.name);
    j.Key("units");
    j.String(UnitSystemName(metric));
    j.Key("pvis");
    j.BeginArray();
    const auto& pvis = p.pvis();
    for (size_t i = 0; i < pvis.size(); ++i) {
        j.BeginObject();
        j.Key("number");
        j.Number(std::to_string(i + 1));
        j.Key("source");
        j.String(pvis[i].source);
        j.Key("station");
        j.Number(FormatNumber(pvis[i].station));
        j.Key("stationText");
        j.String(StationText(pvis[i].station, metric));
        j.Key("elevation");
        j.Number(FormatNumber(pvis[i].elevation));
        j.Key("gradeIn");
        if (i > 0) {
            j.Number(FormatNumber(p.TangentGrade(i - 1)));
        } else {
            j.Null();
        }
        j.Key("gradeOut");
        if (i + 1 < pvis.size()) {
            j.Number(FormatNumber(p.TangentGrade(i)));
        } else {
            j.Null();
        }
        j.Key("gradeBreakWithoutCurve");
        j.Bool(i > 0 && i + 1 < pvis.size() && !pvis[i].curve);
        j.Key("curve");
        if (pvis[i].curve) {
            CurveJson(j, *pvis[i].curve, metric);
        } else {
            j.Null();
        }
        j.EndObject();
    }
    j.EndArray();
    j.EndObject();
    return j.Finish();
}

}  // namespace gw::cli
