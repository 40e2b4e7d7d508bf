#include "curve_file.h"

#include <array>
#include <vector>

namespace gw {
namespace {

constexpr std::array<int, 8> kValuesPerLine = {6, 7, 6, 4, 20, 20, 20, 3};

enum class Kind { Text, Option, Placeholder, RowWhole, RowPlus, RowElevation, TableText };

struct Slot {
    Kind kind;
    std::string CurveSheet::*text = nullptr;
    bool CurveSheet::*option = nullptr;
    std::string ElevationTable::*tableText = nullptr;
    int row = 0;
};

Slot T(std::string CurveSheet::*m) { return {Kind::Text, m}; }
Slot O(bool CurveSheet::*m) { return {Kind::Option, nullptr, m}; }
Slot P() { return {Kind::Placeholder}; }

// The 86 values in file order. The order is the format: it is not the window's.
const std::vector<Slot>& Layout() {
    static const std::vector<Slot> slots = [] {
        using S = CurveSheet;
        std::vector<Slot> v = {
            T(&S::lblSDL),     T(&S::lblMorF),    P(),          P(),          P(),
            T(&S::txtPVISTAM), T(&S::txtPVIEval), T(&S::txtPVISTA), T(&S::txtG2),
            T(&S::txtG1),      T(&S::txtLC),      T(&S::txtPVTEval), T(&S::txtPVTSTAM),
            T(&S::txtPVTSTA),  T(&S::txtPVCEval), T(&S::txtPVCSTAM), T(&S::txtPVCSTA),
            T(&S::txtSD),      T(&S::txtMO),      O(&S::optPVI),     O(&S::optPVCPVT),
            T(&S::txtTPSTA),   T(&S::txtTPSTAM),
        };
        for (Kind k : {Kind::RowWhole, Kind::RowPlus, Kind::RowElevation}) {
            for (int i = 0; i < kRowCount; ++i) v.push_back({k, nullptr, nullptr, nullptr, i});
        }
        for (auto m : {&ElevationTable::txtVOffset, &ElevationTable::txtHOffset, &ElevationTable::txtXSlope}) {
            v.push_back({Kind::TableText, nullptr, nullptr, m});
        }
        return v;
    }();
    return slots;
}

// The text a slot stands for; works on a const sheet for the writer too.
template <class Sheet>
auto TextOf(Sheet& sheet, const Slot& slot) -> decltype(&sheet.lblSDL) {
    switch (slot.kind) {
        case Kind::Text: return &(sheet.*slot.text);
        case Kind::RowWhole: return &sheet.elevations.rows[slot.row].txtTOTSTA1;
        case Kind::RowPlus: return &sheet.elevations.rows[slot.row].txtTOTSTAM1;
        case Kind::RowElevation: return &sheet.elevations.rows[slot.row].txtTotalTopSlab1;
        case Kind::TableText: return &(sheet.elevations.*slot.tableText);
        default: return nullptr;
    }
}

// One value as the reader takes it.
struct RawValue {
    std::string text;
    bool quoted = false;
};

// Reads values one after another: a comma or a line end (CRLF, CR or LF) ends a
// value wherever the lines break. Linear in the bytes it reads, whatever they hold.
class ValueReader {
public:
    explicit ValueReader(std::string_view bytes) : s_(bytes) {}

    bool AtEnd() const { return pos_ >= s_.size(); }

    RawValue Next() {
        RawValue v;
        while (pos_ < s_.size() && (s_[pos_] == ' ' || s_[pos_] == '\t')) ++pos_;
        if (pos_ < s_.size() && s_[pos_] == '"') {
            v.quoted = true;
            size_t close = s_.find('"', pos_ + 1);
            if (close == std::string_view::npos) close = s_.size();
            v.text.assign(s_.substr(pos_ + 1, close - pos_ - 1));
            pos_ = close < s_.size() ? close + 1 : close;
            // Anything between the closing quote and the delimiter is dropped.
            while (pos_ < s_.size() && !IsDelimiter(s_[pos_])) ++pos_;
        } else {
            size_t start = pos_;
            while (pos_ < s_.size() && !IsDelimiter(s_[pos_])) ++pos_;
            size_t end = pos_;
            while (end > start && (s_[end - 1] == ' ' || s_[end - 1] == '\t')) --end;
            v.text.assign(s_.substr(start, end - start));
        }
        SkipDelimiter();
        return v;
    }

private:
    static bool IsDelimiter(char c) { return c == ',' || c == '\r' || c == '\n'; }

    void SkipDelimiter() {
        if (pos_ >= s_.size()) return;
        if (s_[pos_] == '\r') {
            ++pos_;
            if (pos_ < s_.size() && s_[pos_] == '\n') ++pos_;
        } else {
            ++pos_;
        }
    }

    std::string_view s_;
    size_t pos_ = 0;
};

}  // namespace

std::string CurveFileBytes(const CurveSheet& sheet) {
    const CurveSheet& s = sheet;
    const auto& layout = Layout();
    std::string out;
    size_t index = 0;
    for (int count : kValuesPerLine) {
        for (int i = 0; i < count; ++i, ++index) {
            if (i > 0) out += ',';
            const Slot& slot = layout[index];
            if (slot.kind == Kind::Option) {
                out += (s.*slot.option) ? "#TRUE#" : "#FALSE#";
            } else if (slot.kind != Kind::Placeholder) {
                out += '"';
                out += *TextOf(s, slot);
                out += '"';
            }
        }
        out += "\r\n";
    }
    return out;
}

CurveSheet ParseCurveFile(std::string_view bytes) {
    CurveSheet stored;
    stored.lblMorF.clear();
    stored.optPVI = false;
    stored.optPVCPVT = false;
    ValueReader reader(bytes);
    for (const Slot& slot : Layout()) {
        if (reader.AtEnd()) break;
        RawValue v = reader.Next();
        if (slot.kind == Kind::Option) {
            stored.*slot.option = !v.quoted && v.text == "#TRUE#";
        } else if (slot.kind != Kind::Placeholder) {
            *TextOf(stored, slot) = std::move(v.text);
        }
    }
    return stored;
}

namespace {

// Giving an option a state it already has does nothing; turning one on is a click,
// which switches the mode and clears the sheet.
void SetOption(CurveSheet& sheet, bool CurveSheet::*option, bool value) {
    if (sheet.*option == value) return;
    if (!value) {
        sheet.*option = false;
        return;
    }
    if (option == &CurveSheet::optPVI) {
        SwitchToPVIMode(sheet);
    } else {
        SwitchToPVCPVTMode(sheet);
    }
}

}  // namespace

CurveSheet LoadStoredCurve(const CurveSheet& stored, std::string_view dialogUnitSystem) {
    CurveSheet sheet = NewCurveSheet(dialogUnitSystem);
    if (stored.optPVCPVT) SwitchToPVCPVTMode(sheet);
    sheet.lblSDL = stored.lblSDL;
    sheet.lblMorF = stored.lblMorF;
    for (std::string_view name : CurveSheet::CurveFieldNames()) *sheet.Field(name) = *stored.Field(name);
    SetOption(sheet, &CurveSheet::optPVCPVT, stored.optPVCPVT);
    SetOption(sheet, &CurveSheet::optPVI, stored.optPVI);
    sheet.elevations.rows = stored.elevations.rows;
    sheet.elevations.txtVOffset = stored.elevations.txtVOffset;
    sheet.elevations.txtHOffset = stored.elevations.txtHOffset;
    sheet.elevations.txtXSlope = stored.elevations.txtXSlope;
    sheet.changed = false;
    return sheet;
}

}  // namespace gw
