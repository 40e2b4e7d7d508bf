#include "core/curve_file.h"

#include <vector>

#include "core/curve_fields.h"
#include "core/elevation_fields.h"

namespace gw {
namespace {

// One value of the file: a text or an option of the curve, a text of the elevations
// window (in a row for a column), or a placeholder that holds nothing.
struct Value {
    const CurveField* curve = nullptr;
    const ElevationField* elevation = nullptr;
    int row = 0;

    bool IsOption() const { return curve && !IsText(); }
    bool IsText() const {
        return elevation || (curve && std::holds_alternative<std::string CurveSheet::*>(curve->value));
    }
    // Works on a const sheet for the writer too.
    template <class Sheet>
    auto& Text(Sheet& sheet) const {
        return elevation ? TextOf(sheet.elevations, *elevation, row) : TextOf(sheet, *curve);
    }
    bool CurveSheet::*Option() const { return std::get<bool CurveSheet::*>(curve->value); }
};

// The file's lines, each a list of values, from the places the two windows' tables
// give their fields; a place no field takes is a placeholder. The order is the
// format: it is not the windows'.
const std::vector<std::vector<Value>>& Lines() {
    static const std::vector<std::vector<Value>> lines = [] {
        std::vector<std::vector<Value>> out(8);
        auto put = [&](FilePlace place, Value value) {
            std::vector<Value>& line = out.at(size_t(place.line - 1));
            if (line.size() <= size_t(place.index)) line.resize(size_t(place.index) + 1);
            line[size_t(place.index)] = value;
        };
        for (const CurveField& field : kCurveFields) {
            if (field.file.line > 0) put(field.file, {&field});
        }
        for (const ElevationField& field : kElevationFields) {
            if (field.file.line == 0) continue;
            for (int row = 0; row < (IsColumn(field) ? kRowCount : 1); ++row) {
                put({field.file.line, field.file.index + row}, {nullptr, &field, row});
            }
        }
        return out;
    }();
    return lines;
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
    std::string out;
    for (const std::vector<Value>& line : Lines()) {
        for (size_t i = 0; i < line.size(); ++i) {
            if (i > 0) out += ',';
            const Value& value = line[i];
            if (value.IsOption()) {
                out += sheet.*value.Option() ? "#TRUE#" : "#FALSE#";
            } else if (value.IsText()) {
                out += '"';
                out += value.Text(sheet);
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
    for (const std::vector<Value>& line : Lines()) {
        for (const Value& value : line) {
            if (reader.AtEnd()) return stored;
            RawValue v = reader.Next();
            if (value.IsOption()) {
                stored.*value.Option() = !v.quoted && v.text == "#TRUE#";
            } else if (value.IsText()) {
                value.Text(stored) = std::move(v.text);
            }
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
    for (const CurveField& field : kCurveFields) {
        if (field.kind != CurveFieldKind::Option) TextOf(sheet, field) = TextOf(stored, field);
    }
    SetOption(sheet, &CurveSheet::optPVCPVT, stored.optPVCPVT);
    SetOption(sheet, &CurveSheet::optPVI, stored.optPVI);
    for (const std::vector<Value>& line : Lines()) {
        for (const Value& value : line) {
            if (value.elevation) value.Text(sheet) = value.Text(stored);
        }
    }
    sheet.changed = false;
    return sheet;
}

}  // namespace gw
