#include "cli/profile_table.h"

#include <algorithm>
#include <array>

#include "core/numbers.h"

namespace gw::cli {
namespace {

std::array<std::string, 4> Header(bool metric) {
    return {"Station", std::string("Elevation ") + (metric ? "(m)" : "(ft)"), "Grade (%)", "Point"};
}

}  // namespace

std::string ProfileTableText(const std::vector<ProfileRow>& rows, bool metric) {
    std::vector<std::array<std::string, 4>> lines = {Header(metric)};
    for (const ProfileRow& r : rows) {
        lines.push_back({StationText(r.station, metric), FormatNumber(r.elevation), FormatNumber(r.grade), r.point});
    }
    std::array<size_t, 3> width{};
    for (const auto& line : lines) {
        for (size_t c = 0; c < width.size(); ++c) width[c] = std::max(width[c], line[c].size());
    }
    std::string text;
    for (const auto& line : lines) {
        // Numbers line up on the right; the point name closes the line unpadded.
        for (size_t c = 0; c < width.size(); ++c) {
            if (c > 0) text += "  ";
            text.append(width[c] - line[c].size(), ' ');
            text += line[c];
        }
        if (!line[3].empty()) text += "  " + line[3];
        text += '\n';
    }
    return text;
}

std::string ProfileTableCsv(const std::vector<ProfileRow>& rows, bool metric) {
    const auto header = Header(metric);
    std::string text = header[0] + "," + header[1] + "," + header[2] + "," + header[3] + "\n";
    text.reserve(text.size() + rows.size() * 32);
    for (const ProfileRow& r : rows) {
        AppendStationText(text, r.station, metric);
        text += ',';
        AppendNumber(text, r.elevation);
        text += ',';
        AppendNumber(text, r.grade);
        text += ',';
        text += r.point;  // our own names: no comma, no quote
        text += '\n';
    }
    return text;
}

}  // namespace gw::cli
