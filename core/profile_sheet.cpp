#include "core/profile_sheet.h"

#include "core/numbers.h"

namespace gw {

ProfileDocument ProfileFromSheet(const CurveSheet& solved, std::string name) {
    const CurveGeometry c = ReadCurveGeometry(solved);
    ProfileDocument doc;
    doc.name = std::move(name);
    doc.input.metric = c.metric;
    PviInput begin, pvi, end;
    begin.station = c.pvc;
    begin.elevation = c.pvcElevation;
    begin.source = "the curve's PVC";
    pvi.station = c.pvi();
    pvi.elevation = c.pviElevation();
    pvi.curve.kind = CurveInput::Kind::Length;
    pvi.curve.length = c.length;
    pvi.source = "the curve's PVI";
    end.station = c.pvt();
    end.elevation = pvi.elevation + c.g2 / 100 * c.length / 2;
    end.source = "the curve's PVT";
    doc.input.pvis = {begin, pvi, end};

    CurveFileExtras extras;
    extras.endsMode = solved.optPVCPVT;
    for (int i = 0; i < kRowCount; ++i) {
        extras.rows[i] = {solved.elevations.rows[i].txtTOTSTA1, solved.elevations.rows[i].txtTOTSTAM1};
    }
    extras.verticalOffset = solved.elevations.txtVOffset;
    extras.horizontalOffset = solved.elevations.txtHOffset;
    extras.crossSlope = solved.elevations.txtXSlope;
    doc.extras[1] = extras;
    return doc;
}

StationTexts StationFieldTexts(double value, bool metric) {
    std::string text = PlainNumberText(value);
    if (text.empty()) return {};
    const bool negative = text[0] == '-';
    if (negative) text.erase(0, 1);
    const size_t point = std::min(text.find('.'), text.size());
    const size_t width = PlusPartWidth(metric);
    StationTexts t;
    t.whole = point > width ? text.substr(0, point - width) : "0";
    t.plus = text.substr(point > width ? point - width : 0);
    while (t.plus.size() > 1 && t.plus[0] == '0' && t.plus[1] != '.') t.plus.erase(0, 1);
    if (negative) {
        if (t.whole != "0") t.whole.insert(0, "-");
        if (ReadNumber(t.plus) != 0) t.plus.insert(0, "-");
    }
    return t;
}

CurveSheet SheetFromProfileCurve(const Profile& profile, size_t index, bool endsMode) {
    const VerticalCurve& c = *profile.pvis()[index].curve;
    const bool metric = profile.metric();
    CurveSheet s = NewCurveSheet(UnitSystemName(metric));
    const auto station = [&](std::string& whole, std::string& plus, double value) {
        StationTexts t = StationFieldTexts(value, metric);
        whole = t.whole;
        plus = t.plus;
    };
    if (endsMode) {
        SwitchToPVCPVTMode(s);
        station(s.txtPVCSTA, s.txtPVCSTAM, c.pvc());
        s.txtPVCEval = PlainNumberText(c.pvcElevation());
        station(s.txtPVTSTA, s.txtPVTSTAM, c.pvt());
        s.txtPVTEval = PlainNumberText(c.pvtElevation());
    } else {
        station(s.txtPVISTA, s.txtPVISTAM, c.pviStation());
        s.txtPVIEval = PlainNumberText(c.pviElevation());
        s.txtG2 = PlainNumberText(c.g2());
        s.txtLC = PlainNumberText(c.length());
    }
    s.txtG1 = PlainNumberText(c.g1());
    return s;
}

void PutRowsAndOffsets(const CurveFileExtras& extras, CurveSheet& s) {
    for (int i = 0; i < kRowCount; ++i) {
        s.elevations.rows[i].txtTOTSTA1 = extras.rows[i].first;
        s.elevations.rows[i].txtTOTSTAM1 = extras.rows[i].second;
    }
    s.elevations.txtVOffset = extras.verticalOffset;
    s.elevations.txtHOffset = extras.horizontalOffset;
    s.elevations.txtXSlope = extras.crossSlope;
}

}  // namespace gw
