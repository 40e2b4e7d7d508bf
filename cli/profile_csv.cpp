#include "cli/profile_csv.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <vector>

#include "cli/station_input.h"
#include "core/numbers.h"

namespace gw::cli {
namespace {

enum Column { kStation, kElevation, kLength, kK, kLengthIn, kLengthOut, kColumnCount };
constexpr std::array<const char*, kColumnCount> kColumnNames = {"Station", "Elevation", "Length",
                                                                "K",       "Length in", "Length out"};

std::string Trim(std::string_view s) {
    size_t b = 0, e = s.size();
    while (b < e && (s[b] == ' ' || s[b] == '\t')) ++b;
    while (e > b && (s[e - 1] == ' ' || s[e - 1] == '\t')) --e;
    return std::string(s.substr(b, e - b));
}

std::string Lower(std::string s) {
    for (char& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

std::vector<std::string> Cells(std::string_view line) {
    std::vector<std::string> cells;
    size_t start = 0;
    for (size_t i = 0; i <= line.size(); ++i) {
        if (i == line.size() || line[i] == ',') {
            cells.push_back(Trim(line.substr(start, i - start)));
            start = i + 1;
        }
    }
    return cells;
}

class CsvReader {
public:
    CsvRead Read(std::string_view bytes, const std::string& name);

private:
    bool Fail(std::string message) {
        m_error = std::move(message);
        return false;
    }
    std::string At(const std::string& column) const { return "Line " + std::to_string(m_line) + ", " + column; }
    bool Header(const std::vector<std::string>& cells);
    bool Row(const std::vector<std::string>& cells, PviInput& pvi);
    bool Number(const std::vector<std::string>& cells, Column c, std::optional<double>& value);
    bool Station(const std::string& text, double& value);

    int m_line = 0;
    bool m_metric = false;
    std::array<int, kColumnCount> m_index{};  // cell index of each column, -1 when absent
    std::vector<std::string> m_header;
    std::string m_error;
};

bool CsvReader::Header(const std::vector<std::string>& cells) {
    m_index.fill(-1);
    m_header = cells;
    std::optional<bool> metric;
    for (size_t i = 0; i < cells.size(); ++i) {
        std::string title = cells[i];
        std::string unit;
        if (const size_t open = title.find('('); open != std::string::npos && title.back() == ')') {
            unit = Lower(Trim(title.substr(open + 1, title.size() - open - 2)));
            title = Trim(title.substr(0, open));
        }
        const auto known = std::find_if(kColumnNames.begin(), kColumnNames.end(),
                                        [&](const char* n) { return Lower(n) == Lower(title); });
        if (known == kColumnNames.end()) {
            return Fail(At("column " + std::to_string(i + 1)) + ": '" + cells[i] +
                        "' is not a column of a profile (Station, Elevation, Length, K, Length in, Length out).");
        }
        const auto c = static_cast<size_t>(known - kColumnNames.begin());
        if (m_index[c] >= 0) return Fail(At(kColumnNames[c]) + ": the column is named twice.");
        m_index[c] = static_cast<int>(i);
        if (unit.empty()) continue;
        if (unit != "ft" && unit != "m") {
            return Fail(At(kColumnNames[c]) + ": the unit '" + unit + "' is neither ft nor m.");
        }
        if (metric && *metric != (unit == "m")) return Fail(At(kColumnNames[c]) + ": the columns mix ft and m.");
        metric = unit == "m";
    }
    if (m_index[kStation] < 0 || m_index[kElevation] < 0) {
        return Fail(At("the header") + ": a profile needs a Station and an Elevation column.");
    }
    if (!metric) return Fail(At("Station") + ": say the units as Station (ft) or Station (m).");
    m_metric = *metric;
    return true;
}

bool CsvReader::Station(const std::string& text, double& value) {
    const size_t plusAt = text.find('+', 1);
    if (plusAt == std::string::npos) {
        if (!IsNumericText(text)) return Fail(At("Station") + ": '" + text + "' is not a station.");
        value = ReadNumber(text);
        return true;
    }
    const StationReading station = ReadStation(text, m_metric);
    if (!station.value) return Fail(At("Station") + ": " + station.problem + ".");
    value = *station.value;
    return true;
}

bool CsvReader::Number(const std::vector<std::string>& cells, Column c, std::optional<double>& value) {
    const int i = m_index[c];
    if (i < 0 || static_cast<size_t>(i) >= cells.size() || cells[i].empty()) return true;
    if (!IsNumericText(cells[i])) return Fail(At(kColumnNames[c]) + ": '" + cells[i] + "' is not a number.");
    value = ReadNumber(cells[i]);
    return true;
}

bool CsvReader::Row(const std::vector<std::string>& cells, PviInput& pvi) {
    if (cells.size() > m_header.size()) {
        return Fail(At("the row") + " has " + std::to_string(cells.size()) + " cells; the header names " +
                    std::to_string(m_header.size()) + ".");
    }
    const auto cell = [&](Column c) { return static_cast<size_t>(m_index[c]) < cells.size() ? cells[m_index[c]] : ""; };
    if (cell(kStation).empty()) return Fail(At("Station") + ": the station is missing.");
    if (!Station(cell(kStation), pvi.station)) return false;
    std::optional<double> elevation, length, k, lengthIn, lengthOut;
    if (!Number(cells, kElevation, elevation) || !Number(cells, kLength, length) || !Number(cells, kK, k) ||
        !Number(cells, kLengthIn, lengthIn) || !Number(cells, kLengthOut, lengthOut)) {
        return false;
    }
    if (!elevation) return Fail(At("Elevation") + ": the elevation is missing.");
    pvi.elevation = *elevation;
    const int given = (length ? 1 : 0) + (k ? 1 : 0) + (lengthIn || lengthOut ? 1 : 0);
    if (given > 1) {
        return Fail(At("the row") +
                    " gives its curve more than one way; give a Length, a K, or a Length in with "
                    "a Length out.");
    }
    if ((lengthIn != std::nullopt) != (lengthOut != std::nullopt)) {
        return Fail(At(lengthIn ? "Length out" : "Length in") + ": an unsymmetrical curve needs both lengths.");
    }
    CurveInput& curve = pvi.curve;
    if (length && *length != 0) {
        curve.kind = CurveInput::Kind::Length;
        curve.length = *length;
    } else if (k && *k != 0) {
        curve.kind = CurveInput::Kind::RateOfCurvature;
        curve.k = *k;
    } else if (lengthIn && (*lengthIn != 0 || *lengthOut != 0)) {
        curve.kind = CurveInput::Kind::Unsymmetrical;
        curve.lengthIn = *lengthIn;
        curve.lengthOut = *lengthOut;
    }
    pvi.source = "line " + std::to_string(m_line);
    return true;
}

CsvRead CsvReader::Read(std::string_view bytes, const std::string& name) {
    CsvRead out;
    ProfileDocument doc;
    doc.name = name;
    bool haveHeader = false;
    size_t start = 0;
    while (start < bytes.size()) {
        size_t end = bytes.find('\n', start);
        if (end == std::string_view::npos) end = bytes.size();
        std::string_view line = bytes.substr(start, end - start);
        start = end + 1;
        ++m_line;
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        if (m_line == 1 && line.substr(0, 3) == "\xEF\xBB\xBF") line.remove_prefix(3);  // a byte-order mark
        const std::string trimmed = Trim(line);
        if (trimmed.empty() || trimmed[0] == '#') continue;
        const std::vector<std::string> cells = Cells(line);
        bool ok = true;
        if (!haveHeader) {
            ok = Header(cells);
            haveHeader = true;
        } else {
            PviInput pvi;
            ok = Row(cells, pvi);
            doc.input.pvis.push_back(pvi);
        }
        if (!ok) {
            out.error = m_error;
            return out;
        }
    }
    if (!haveHeader) {
        out.error = "The file is empty: a profile needs a header row and a row for each PVI.";
        return out;
    }
    doc.input.metric = m_metric;
    out.document = std::move(doc);
    return out;
}

}  // namespace

CsvRead ReadProfileCsv(std::string_view bytes, const std::string& name) { return CsvReader().Read(bytes, name); }

}  // namespace gw::cli
