// Arbitrary curves through gradewise-cli's table, plot and check, as a user's file
// and arguments would give them. Each run must end (libFuzzer's time limit catches a
// loop that does not) and hold what CheckRun asks of every run; besides, a table has
// at most 1,000,000 rows, in station order, and a check of the one curve is short.
// Tables of 2000 to 1,000,000 rows take the path of short ones row after row and are
// left out for speed (the limit itself, and what lies beyond it, are still run).
#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/station_input.h"
#include "core/curve_solver.h"
#include "core/numbers.h"
#include "fuzz/command_runs.h"
#include "fuzz/fuzz_texts.h"

namespace {

bool LongTable(gw::CurveSheet solved, const std::string& every) {
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
    for (const char* offset : {"txtVOffset", "txtHOffset", "txtXSlope"}) *sheet.elevations.Field(offset) = text();
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
    using gw::fuzz::Output;
    gw::fuzz::CheckRun(run, file, kind == 2 ? Output::Drawing : kind == 3 ? Output::Check : Output::Text);
    if (run.status != 0 || kind >= 2) {
        if (kind == 3 && std::count(run.out.begin(), run.out.end(), '\n') > 16) {
            gw::fuzz::Fail("an unbounded check", run, file);
        }
        return 0;
    }
    // Distance from the PVC, the second column, never goes back.
    std::istringstream rows(run.out);
    std::string row;
    size_t count = 0;
    double previous = -1e308;
    while (std::getline(rows, row)) {
        if (++count > 1000000 + 3) gw::fuzz::Fail("an unbounded table", run, file);
        if (kind == 0 || count == 1) continue;
        const double distance = gw::ReadNumber(std::string_view(row).substr(row.find(',') + 1));
        if (distance < previous) gw::fuzz::Fail("table rows out of station order", run, file);
        previous = distance;
    }
    return 0;
}
