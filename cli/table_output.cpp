#include "cli/table_output.h"

#include <algorithm>
#include <array>

#include "core/numbers.h"

namespace gw::cli {
namespace {

constexpr size_t kColumns = 5;
using Line = std::array<std::string, kColumns>;

Line Header(bool metric) {
    const std::string unit = metric ? "(m)" : "(ft)";
    return {"Station", "Distance " + unit, "Grade (%)", "Elevation " + unit, "Point"};
}

Line Cells(const StationRow& row, bool metric) {
    return {StationText(row.station, metric), FormatNumber(row.distance), FormatNumber(row.grade), row.elevation,
            row.point};
}

}  // namespace

std::string StationTableText(const std::vector<StationRow>& rows, bool metric, const std::string& caption) {
    std::vector<Line> lines = {Header(metric)};
    for (const StationRow& row : rows) lines.push_back(Cells(row, metric));
    std::array<size_t, kColumns> width{};
    for (const Line& line : lines) {
        for (size_t c = 0; c < kColumns; ++c) width[c] = std::max(width[c], line[c].size());
    }
    std::string text = caption.empty() ? "" : caption + "\n";
    for (const Line& line : lines) {
        std::string out;
        // Numbers line up on the right; the point name closes the line unpadded.
        for (size_t c = 0; c + 1 < kColumns; ++c) {
            if (c > 0) out += "  ";
            out += std::string(width[c] - line[c].size(), ' ') + line[c];
        }
        if (!line.back().empty()) out += "  " + line.back();
        text += out + "\n";
    }
    return text;
}

std::string StationTableCsv(const std::vector<StationRow>& rows, bool metric) {
    std::vector<Line> lines = {Header(metric)};
    for (const StationRow& row : rows) lines.push_back(Cells(row, metric));
    std::string text;
    for (const Line& line : lines) {
        for (size_t c = 0; c < kColumns; ++c) {
            if (c > 0) text += ',';
            text += line[c];  // no cell holds a comma or a quote
        }
        text += '\n';
    }
    return text;
}

}  // namespace gw::cli
