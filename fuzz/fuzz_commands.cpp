// Arbitrary curves through gradewise-cli's table, plot and check, as a user's file
// and arguments would give them. Each run must end (libFuzzer's time limit catches a
// loop that does not), and what it prints must hold up:
//   - the exit status is one of the documented ones, with a message for a refusal;
//   - no number printed is "nan", "inf" or in exponent form, and no drawing has a
//     coordinate left empty;
//   - the output is bounded: at most 1,000,000 table rows, a drawing of a few hundred
//     KiB, a check of a curve ending in its verdict (tables of 2000 to 1,000,000
//     rows are left out for speed: see LongTable);
//   - table rows run in station order.
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/station_input.h"
#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "core/numbers.h"
#include "fuzz/command_runs.h"
#include "fuzz/fuzz_texts.h"

namespace {

size_t Lines(const std::string& text) {
    size_t n = 0;
    for (char c : text) n += c == '\n';
    return n;
}

// Tables of thousands of rows take the path of short ones row after row and would
// cost the fuzzer most of its time: those between 2000 rows and the 1,000,000-row
// limit are left out (the limit itself, and what lies beyond it, are still run).
bool LongTable(const gw::CurveSheet& sheet, const std::string& every) {
    gw::CurveSheet solved = sheet;
    if (gw::Calculate(solved)) return false;
    const gw::cli::StationReading interval = gw::cli::ReadStation(every, solved.IsMetric());
    if (!interval.value || !(*interval.value > 0)) return false;
    const double rows = gw::ReadNumber(solved.txtLC) / *interval.value;
    return rows > 2000 && rows <= 1000000;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const uint8_t flags = data[0];
    std::vector<std::string> texts =
        gw::fuzz::Texts(std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1));
    size_t next = 0;
    auto text = [&] { return next < texts.size() ? texts[next++] : std::string(); };

    // The twelve fields a user types, the offsets, the command's argument, then rows.
    gw::CurveSheet sheet = gw::NewCurveSheet(gw::UnitSystemName(flags & 4));
    if (flags & 8) gw::SwitchToPVCPVTMode(sheet);
    for (size_t i = 0; i < 12; ++i) *sheet.Field(gw::CurveSheet::CurveFieldNames()[i]) = text();
    sheet.elevations.txtVOffset = text();
    sheet.elevations.txtHOffset = text();
    sheet.elevations.txtXSlope = text();
    const std::string argument = text();
    for (int i = 0; i < gw::kRowCount && next < texts.size(); ++i) {
        sheet.elevations.rows[i].txtTOTSTA1 = text();
        sheet.elevations.rows[i].txtTOTSTAM1 = text();
    }
    static gw::fuzz::MemoryFile file;
    file.Put(gw::CurveFileBytes(sheet));

    const int kind = flags & 3;  // table, table as CSV, plot, check
    if (kind <= 1 && LongTable(sheet, argument)) return 0;

    std::vector<std::string> args = {kind <= 1 ? "table" : kind == 2 ? "plot" : "check", file.Path()};
    if (kind <= 1) args.insert(args.end(), {"--every", argument});
    if (kind == 1) args.push_back("--csv");
    if (kind == 3) args.insert(args.end(), {"--speed", argument});
    const gw::fuzz::CommandRun run = gw::fuzz::RunCommand(args);
    const int status = run.status;
    const std::string &out = run.out, &err = run.err;
    const auto Fail = [&](const char* what) { gw::fuzz::Fail(what, run, file); };

    if (status < 0 || status > 4) Fail("an exit status nobody documented");
    if (status != 0 && status != 4 && err.empty()) Fail("a refusal without a message");
    if ((status == 0 || status == 4) && out.empty()) Fail("success without output");
    if (out.find("nan") != std::string::npos || out.find("inf") != std::string::npos) {
        Fail("not a number printed");
    }
    if (kind == 2) {
        if (out.find("=\"\"") != std::string::npos) Fail("an empty coordinate");
        if (out.size() > 512 * 1024) Fail("an unbounded drawing");
        if (!out.empty() &&
            (out.rfind("<svg ", 0) != 0 || out.size() < 7 || out.substr(out.size() - 7) != "</svg>\n")) {
            Fail("a drawing cut short");
        }
        return 0;
    }
    if (gw::fuzz::HasExponent(out)) Fail("a number in exponent form");
    if (kind == 3) {
        if (Lines(out) > 16) Fail("an unbounded check");
        const std::string last = out.substr(out.rfind('\n', out.size() - 2) + 1);
        const bool verdict = last.rfind("Long enough: ", 0) == 0 || last.rfind("Too short: ", 0) == 0;
        if (!out.empty() && !verdict) Fail("a check without its verdict");
        return 0;
    }
    if (Lines(out) > 1000000 + 3) Fail("an unbounded table");
    if (kind == 1 && !out.empty()) {
        // Distance from the PVC, the second column, never goes back.
        std::istringstream rows(out);
        std::string row;
        std::getline(rows, row);  // header
        double previous = -1e308;
        while (std::getline(rows, row)) {
            const size_t comma = row.find(',');
            const double distance = gw::ReadNumber(std::string_view(row).substr(comma + 1));
            if (distance < previous) Fail("table rows out of station order");
            previous = distance;
        }
    }
    return 0;
}
