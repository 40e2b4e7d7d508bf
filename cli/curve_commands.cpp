#include "cli/curve_commands.h"

#include "cli/arguments.h"
#include "cli/cli.h"
#include "cli/pdf_helper.h"
#include "cli/profile_source.h"
#include "cli/station_input.h"
#include "cli/text_output.h"
#include "core/auto_stationing.h"
#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "core/elevations.h"
#include "core/numbers.h"
#include "core/stations.h"
#include "files/curve_file_io.h"

namespace gw::cli {
namespace {

// The curve file as opening it in the program gives it; false (with the message
// written) when it cannot be read.
bool LoadCurve(const std::string& file, CurveSheet& sheet, std::ostream& err) {
    std::string bytes, error;
    if (!ReadFileBytes(file, bytes, error)) {
        err << "gradewise-cli: cannot read '" << file << "': " << error << "\n";
        return false;
    }
    sheet = OpenedCurve(bytes);
    return true;
}

// The dialog's two fields of a station, as typed: the dialog checks them itself.
void TypeStation(const Arguments& a, const char* option, std::string& whole, std::string& plus) {
    const std::optional<StationParts> parts = SplitStationText(*a.Value(option));
    if (!parts) {
        throw UsageError{std::string(option) + " takes a station as WHOLE+PLUS, for example " +
                         (std::string(option) == "--begin" ? "10+0" : "0+50")};
    }
    whole = parts->whole;
    plus = parts->plus;
}

// The auto-stationing dialog answered as the user would have filled it in.
Outcome AnswerDialog(const Arguments& a, const CurveSheet& sheet, AutoStationing& dialog) {
    dialog = NewAutoStationing(sheet);
    if (a.Has("--points")) {
        dialog.txtPoints = *a.Value("--points");
        return dialog.Accept();
    }
    dialog.ChooseSpacing(sheet.elevations);
    TypeStation(a, "--begin", dialog.txtBeginSTA, dialog.txtBeginSTAM);
    TypeStation(a, "--increment", dialog.txtIncSTA, dialog.txtIncSTAM);
    return dialog.Accept();
}

// Calc, then the elevation rows when asked: the curve file's bytes or its JSON.
int Solve(const Arguments& a, bool autostation, std::ostream& out, std::ostream& err) {
    CurveSheet sheet;
    if (!LoadCurve(a.File(), sheet, err)) return kUsage;
    if (Outcome refused = Calculate(sheet)) {
        err << refused->message << "\n";
        return kRefused;
    }
    int status = kDone;
    auto stopAt = [&](const Outcome& outcome) {
        if (outcome) {
            err << outcome->message << "\n";
            status = kStationOffCurve;
        }
    };
    const bool showElevations = a.Has("--elevations") || autostation;
    if (showElevations && (IsNumericText(sheet.txtPVCSTA) || IsNumericText(sheet.txtPVCSTAM))) {
        Outcome shown = ActivateElevations(sheet);
        // Auto-stationing replaces every row, so a stored row off the curve does not count.
        if (!autostation) stopAt(shown);
    }
    if (autostation) {
        AutoStationing dialog;
        if (Outcome refused = AnswerDialog(a, sheet, dialog)) {
            err << refused->message << "\n";
            return kRefused;
        }
        stopAt(ApplyAutoStationing(sheet, dialog));
    }
    out << (a.Has("--json") ? CurveJson(sheet) : CurveFileBytes(sheet));
    return status;
}

}  // namespace

int RunSolve(const Arguments& a, std::ostream& out, std::ostream& err) { return Solve(a, false, out, err); }

int RunAutostation(const Arguments& a, std::ostream& out, std::ostream& err) {
    const bool spacing = a.Has("--begin") || a.Has("--increment");
    if (a.Has("--points") && spacing) throw UsageError{"give either --points or --begin with --increment, not both"};
    if (!a.Has("--points") && !(a.Has("--begin") && a.Has("--increment"))) {
        throw UsageError{"autostation needs --points N, or --begin WHOLE+PLUS with --increment WHOLE+PLUS"};
    }
    return Solve(a, true, out, err);
}

int RunReport(const Arguments& a, std::ostream& out, std::ostream& err) {
    a.Needs("--copies", "--pdf");
    // The number of copies the print dialog would be given, typed as digits: none at
    // all would be an empty PDF.
    const std::string copies = a.Value("--copies").value_or("1");
    if (copies.empty() || copies.size() > 2 || copies.find_first_not_of("0123456789") != std::string::npos ||
        std::stoi(copies) < 1) {
        throw UsageError{"--copies takes a whole number from 1 to 99"};
    }
    CurveSheet sheet;
    if (!LoadCurve(a.File(), sheet, err)) return kUsage;
    if (!a.Has("--pdf")) {
        out << ReportText(sheet);
        return kDone;
    }
    return RunPdfHelper(a.File(), *a.Value("--pdf"), std::stoi(copies), err);
}

}  // namespace gw::cli
