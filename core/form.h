#pragma once
// What the tables of a window's fields have in common. Each window (the curve window,
// the elevations window, the auto-stationing dialog) has one table, one row per field,
// and everything that names its fields is read from that table: the sheet's named
// access, the checks on leaving, the inputs and results of each mode, the layout, the
// typing limits, the curve file and the report. Adding a field is adding a row.

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace gw {

// Pixels from the top left corner of the window's client area.
struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// Where a value stands in the curve file: its line, 1 to 8, and its place on the line
// from 0. Line 0: the file does not hold it.
struct FilePlace {
    int line = 0;
    int index = 0;
};

// The printed report shows its values in groups; a group's values come in the order
// of their table, each as its leading text, the value and its trailing text, on a
// line of its own or after the value before it.
enum class ReportGroup { None, PVI, PVC, PVT, Grades, Results, Offsets, Rows };

struct ReportPiece {
    constexpr ReportPiece() = default;
    constexpr ReportPiece(ReportGroup group, std::string_view before, std::string_view after = {},
                          bool sameLine = false)
        : group(group), before(before), after(after), sameLine(sameLine) {}

    ReportGroup group = ReportGroup::None;
    std::string_view before;
    std::string_view after;
    bool sameLine = false;
};

// The row of `table` with that control name. Names come from the tables themselves,
// so a name that is not there is a mistake in the program: it throws.
template <class Row, std::size_t N>
const Row& RowNamed(const std::array<Row, N>& table, std::string_view name) {
    for (const Row& row : table) {
        if (row.name == name) return row;
    }
    throw std::invalid_argument("no field named " + std::string(name));
}

// The row of `table` whose value is `member` (a member pointer, or one alternative of
// a variant of them); a member the table does not list throws.
template <class Row, std::size_t N, class Member>
const Row& RowOf(const std::array<Row, N>& table, Member member) {
    for (const Row& row : table) {
        if constexpr (std::is_same_v<std::decay_t<decltype(row.value)>, Member>) {
            if (row.value == member) return row;
        } else if (const Member* held = std::get_if<Member>(&row.value); held && *held == member) {
            return row;
        }
    }
    throw std::invalid_argument("a member without a row in its table");
}

}  // namespace gw
