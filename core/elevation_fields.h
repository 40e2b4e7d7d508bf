#pragma once
// The fields of the elevations window (frmTS), one row each: seven of their own and
// three columns of twenty rows.

#include <array>
#include <string>
#include <string_view>
#include <variant>

#include "core/curve_sheet.h"
#include "core/form.h"

namespace gw {

enum class ElevationFieldKind {
    StationCopy,   // the window's copy of the curve's PVC or PVT station: read-only
    Offset,        // an input that applies to every row
    RowStation,    // a row's whole stations: checked against the copies on leaving
    RowPlus,       // a row's plus part: numeric and within the station on leaving
    RowElevation,  // a row's computed elevation: read-only
};

struct ElevationField {
    std::string_view name;  // the control's name; a column's twenty fields share it
    // A field of its own, or a column: one field in each row.
    std::variant<std::string ElevationTable::*, std::string ElevationRow::*> value;
    ElevationFieldKind kind;
    // A column's place is its field in row 0: row k lies 24 pixels lower, and rows 10
    // to 19 stand beside rows 0 to 9, 256 pixels to the right.
    Rect place;
    std::string_view tooltip;
    int limit;       // characters the user may type, 0 for no limit
    FilePlace file;  // a column fills its line from this place, one value per row
    ReportPiece report;
};

extern const std::array<ElevationField, 10> kElevationFields;

inline constexpr int kRowsPerColumn = 10;
inline constexpr int kRowHeight = 24;
inline constexpr int kColumnShift = 256;

bool IsColumn(const ElevationField& field);
bool IsInput(const ElevationField& field);
// A place given for row 0, moved to row `row`.
Rect PlaceInRow(Rect placeInRowZero, int row);
// Where a field lies in row `row`; a field of its own ignores the row.
Rect PlaceInRow(const ElevationField& field, int row);

// The field's text in the table, in row `row` for a column.
std::string& TextOf(ElevationTable& table, const ElevationField& field, int row);
const std::string& TextOf(const ElevationTable& table, const ElevationField& field, int row);

inline const ElevationField& ElevationFieldNamed(std::string_view name) { return RowNamed(kElevationFields, name); }

}  // namespace gw
