// Arbitrary profiles, as LandXML or CSV, through gradewise-cli's profile, table, plot,
// check, design, export and import with arbitrary arguments, run in-process through
// the tool's own entry with the file in memory. Each run must end and hold what
// CheckRun asks of every run; besides, a table has at most 1,000,000 rows, in station
// order. Tables of 2000 to 1,000,000 rows take the path of short ones row after row
// and are left out for speed.
#include <cmath>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/profile_source.h"
#include "cli/station_input.h"
#include "cli/svg_writer.h"
#include "core/numbers.h"
#include "fuzz/command_runs.h"
#include "fuzz/fuzz_texts.h"

namespace {

// Four texts a PVI: station, elevation and two for its curve, L1 and L2. As CSV, L1
// alone is a Length, L2 alone a K, both an unsymmetrical curve; as LandXML, no L1 is a
// PVI, L1 alone a ParaCurve, both an UnsymParaCurve.
std::string ProfileText(bool xml, bool metric, const std::vector<std::string>& cells) {
    std::string text;
    if (xml) {
        text = std::string("<LandXML><Units><") +
               (metric ? "Metric linearUnit=\"meter\"" : "Imperial linearUnit=\"foot\"") +
               "/></Units><ProfAlign name=\"P\">";
    } else {
        text = std::string("Station (") + (metric ? "m" : "ft") + "),Elevation,Length,K,Length in,Length out\n";
    }
    for (size_t i = 0; i + 3 < cells.size(); i += 4) {
        const std::string &l1 = cells[i + 2], &l2 = cells[i + 3];
        if (!xml) {
            text += cells[i] + "," + cells[i + 1] +
                    (l2.empty()   ? "," + l1 + ",,,"
                     : l1.empty() ? ",," + l2 + ",,"
                                  : ",,," + l1 + "," + l2) +
                    "\n";
            continue;
        }
        const std::string point = gw::cli::EscapeXml(cells[i]) + " " + gw::cli::EscapeXml(cells[i + 1]);
        if (l1.empty()) {
            text += "<PVI>" + point + "</PVI>";
        } else if (l2.empty()) {
            text += "<ParaCurve length=\"" + gw::cli::EscapeXml(l1) + "\">" + point + "</ParaCurve>";
        } else {
            text += "<UnsymParaCurve lengthIn=\"" + gw::cli::EscapeXml(l1) + "\" lengthOut=\"" +
                    gw::cli::EscapeXml(l2) + "\">" + point + "</UnsymParaCurve>";
        }
    }
    if (xml) text += "</ProfAlign></LandXML>";
    return text;
}

// A printed station's value. Its plus part can read as a whole station (17+1000.0 for
// 17999.99999), as the curve window's fields show it, so it is not read back as typed.
double StationValue(const std::string& text, bool metric) {
    const std::optional<gw::cli::StationParts> parts = gw::cli::SplitStationText(text);
    if (!parts) return std::nan("");
    const double magnitude =
        std::fabs(gw::ReadNumber(parts->whole)) * (metric ? 1000 : 100) + gw::ReadNumber(parts->plus);
    return parts->whole[0] == '-' ? -magnitude : magnitude;
}

// A table between 2000 rows and the limit: left out for speed.
bool LongTable(const std::string& file, const std::string& every) {
    const gw::cli::ProfileSource s = gw::cli::ReadProfileSource("profile", file, std::nullopt);
    if (!s.profile) return false;
    const gw::cli::StationReading interval = gw::cli::ReadStation(every, s.profile->metric());
    if (!interval.value || !(*interval.value > 0)) return false;
    const double rows = (s.profile->end() - s.profile->begin()) / *interval.value;
    return rows > 2000 && rows <= 1e6;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    const uint8_t command = data[0] % 9, flags = data[1];
    std::vector<std::string> texts =
        gw::fuzz::Texts(std::string_view(reinterpret_cast<const char*>(data) + 2, size - 2));
    // The command's four argument texts first, then the profile.
    texts.resize(std::max<size_t>(texts.size(), 4));
    const std::vector<std::string> argument(texts.begin(), texts.begin() + 4);
    static gw::fuzz::MemoryFile memory;
    memory.Put(ProfileText(flags & 1, flags & 2, std::vector<std::string>(texts.begin() + 4, texts.end())));
    const std::string& file = memory.Bytes();
    const std::string& path = memory.Path();

    std::vector<std::string> args;
    const auto add = [&](std::initializer_list<std::string> words) { args.insert(args.end(), words); };
    switch (command) {
        case 0: add({"profile", path}); break;
        case 1: add({"profile", path, "--json"}); break;
        case 2:
        case 3:
            if (LongTable(file, argument[0])) return 0;
            add({"table", path, "--every", argument[0]});
            if (command == 3) add({"--csv"});
            break;
        case 4: add({"plot", path}); break;
        case 5:
            add({"check", path, "--speed", argument[0]});
            if (flags & 4) add({"--passing"});
            if (flags & 8) add({"--clearance", argument[1]});
            if (flags & 16) add({"--object", argument[2]});
            if (flags & 32) add({"--headlight", argument[3]});
            break;
        case 6:
            add({"design", path, "--pvi", argument[0]});
            if (flags & 4) {
                add({"--k", argument[1]});
            } else if (flags & 8) {
                add({"--through", argument[1], argument[2]});
                if (flags & 16) add({"--voffset", argument[3], "--hoffset", argument[3], "--xslope", argument[3]});
            } else {
                add({"--under", argument[1], "--underside", argument[2], "--clearance", argument[3]});
            }
            break;
        case 7: add({"export", path, "--landxml", "/dev/null"}); break;
        default: add({"import", path, "--curve", argument[0]}); break;
    }
    const gw::fuzz::CommandRun run = gw::fuzz::RunCommand(args);
    using gw::fuzz::Output;
    if (command == 7 && run.status == 0) return 0;  // written to /dev/null
    const Output kinds[] = {Output::Text,  Output::Json, Output::Text, Output::Text,     Output::Drawing,
                            Output::Check, Output::Text, Output::Text, Output::CurveFile};
    gw::fuzz::CheckRun(run, memory, kinds[command]);
    if (command != 3 || run.status != 0) return 0;
    // The station, the first column, never goes back.
    std::istringstream rows(run.out);
    std::string row;
    std::getline(rows, row);
    const bool metric = row.find("(m)") != std::string::npos;
    double previous = -1e308;
    size_t count = 0;
    while (std::getline(rows, row)) {
        const double station = StationValue(row.substr(0, row.find(',')), metric);
        if (!(station >= previous)) gw::fuzz::Fail("table rows out of station order", run, memory);
        previous = station;
        if (++count > 1000000 + 4000) gw::fuzz::Fail("an unbounded table", run, memory);
    }
    return 0;
}
