#include "cli.h"

#include <cerrno>
#include <cstdlib>
#include <optional>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/design_commands.h"
#include "cli/text_output.h"
#include "core/auto_stationing.h"
#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "core/elevations.h"
#include "core/numbers.h"

#define GW_STR2(x) #x
#define GW_STR(x) GW_STR2(x)

extern char** environ;

namespace gw::cli {
namespace {

constexpr const char* kVersion =
    "gradewise-cli " GW_STR(GW_VERSION_MAJOR) "." GW_STR(GW_VERSION_MINOR) "." GW_STR(GW_VERSION_REVISION);

constexpr const char* kHelp =
    "Usage:\n"
    "  gradewise-cli solve FILE [--elevations] [--json] [-o OUT]\n"
    "  gradewise-cli autostation FILE (--points N | --begin WHOLE+PLUS --increment WHOLE+PLUS)\n"
    "                             [--json] [-o OUT]\n"
    "  gradewise-cli report FILE [--pdf OUT.pdf [--copies N]]\n"
    "  gradewise-cli table FILE --every WHOLE+PLUS [--csv] [-o OUT]\n"
    "  gradewise-cli plot FILE [-o OUT.svg]\n"
    "  gradewise-cli check FILE --speed V\n"
    "  gradewise-cli --version\n"
    "  gradewise-cli --help\n"
    "\n"
    "Solves the vertical curve stored in a Gradewise curve file (.gwf) in the mode it\n"
    "was saved in, exactly as the Calc button does.\n"
    "\n"
    "  solve          solve the curve; --elevations also recomputes the elevation rows\n"
    "  autostation    solve, then lay out the elevation rows by a number of points from\n"
    "                 PVC to PVT (--points, at most 20) or from a beginning station in\n"
    "                 steps of an increment (--begin 10+0 --increment 0+50)\n"
    "  report         print the lines of the curve report; with --pdf, write the\n"
    "                 printed pages (N copies, one page each, default 1) to a PDF file\n"
    "\n"
    "  table          station, distance, grade and elevation from PVC to PVT at\n"
    "                 every even station of an interval (--every 0+50)\n"
    "  plot           draw the profile of the curve as SVG\n"
    "  check          compare the length of curve with the minimum for a design speed\n"
    "                 (exit status 4 when it is too short)\n"
    "  COMMAND --help tells more about table, plot and check\n"
    "\n"
    "  --json         write the curve as one JSON object instead of a curve file\n"
    "  -o OUT         write to OUT instead of standard output\n"
    "\n"
    "Exit status: 0 done; 1 a check refused the calculation (its message on stderr);\n"
    "2 bad arguments, an unreadable file or an output that could not be written (an\n"
    "output file is then left as it was); 3 an elevation station lies outside the\n"
    "curve (the curve as far as it was computed is still written); 4 check found\n"
    "the curve too short for the design speed.\n";

struct Options {
    std::string command;
    std::string file;
    bool elevations = false;
    bool json = false;
    std::optional<std::string> output;
    std::optional<std::string> points;
    std::optional<std::string> begin;
    std::optional<std::string> increment;
    std::optional<std::string> pdf;
    std::optional<std::string> copies;
};

// "10+50" -> "10" and "50"; a leading sign belongs to the whole part ("-1+5").
bool SplitStationArgument(const std::string& text, std::string& whole, std::string& plus) {
    size_t at = text.find('+', 1);
    if (text.empty() || at == std::string::npos) return false;
    whole = text.substr(0, at);
    plus = text.substr(at + 1);
    return !whole.empty() && !plus.empty();
}

Options Parse(const std::vector<std::string>& args) {
    if (args.empty()) throw UsageError{"no command given"};
    const std::string& command = args[0];
    std::optional<CommandArguments> a;
    if (command == "solve") {
        a.emplace(args, std::initializer_list<const char*>{"-o"}, std::initializer_list<const char*>{"--elevations", "--json"});
    } else if (command == "autostation") {
        a.emplace(args, std::initializer_list<const char*>{"-o", "--points", "--begin", "--increment"},
                  std::initializer_list<const char*>{"--json"});
    } else if (command == "report") {
        a.emplace(args, std::initializer_list<const char*>{"--pdf", "--copies"}, std::initializer_list<const char*>{});
    } else {
        throw UsageError{"unknown command '" + command + "'"};
    }
    Options o;
    o.command = command;
    o.file = a->File();
    o.elevations = a->Flag("--elevations");
    o.json = a->Flag("--json");
    o.output = a->Value("-o");
    o.points = a->Value("--points");
    o.begin = a->Value("--begin");
    o.increment = a->Value("--increment");
    o.pdf = a->Value("--pdf");
    o.copies = a->Value("--copies");
    if (o.copies && !o.pdf) throw UsageError{"--copies goes with --pdf"};
    if (o.command == "autostation") {
        const bool spacing = o.begin || o.increment;
        if (o.points && spacing) throw UsageError{"give either --points or --begin with --increment, not both"};
        if (!o.points && !(o.begin && o.increment)) {
            throw UsageError{"autostation needs --points N, or --begin WHOLE+PLUS with --increment WHOLE+PLUS"};
        }
    }
    return o;
}

// The number of copies the print dialog would be given: a whole number from 1 to 99
// (none at all would be an empty PDF).
int Copies(const Options& o) {
    if (!o.copies) return 1;
    const std::string& text = *o.copies;
    if (text.empty() || text.size() > 2 || text.find_first_not_of("0123456789") != std::string::npos ||
        std::stoi(text) < 1) {
        throw UsageError{"--copies takes a whole number from 1 to 99"};
    }
    return std::stoi(text);
}

// gradewise-pdf beside this program (or where GRADEWISE_PDF says), run to the end.
int RunPdfHelper(const std::string& file, const std::string& out, int copies, std::ostream& err) {
    std::string helper;
    if (const char* env = std::getenv("GRADEWISE_PDF"); env && *env) {
        helper = env;
    } else {
        char self[4096];
        const ssize_t n = ::readlink("/proc/self/exe", self, sizeof self - 1);
        if (n > 0) {
            std::string dir(self, static_cast<size_t>(n));
            dir = dir.substr(0, dir.rfind('/') + 1);
            helper = dir + "gradewise-pdf";
#ifdef GW_PDF_HELPER_FROM_BIN
            // Installed, the helper is kept off the PATH in the libexec folder.
            const std::string installed = dir + GW_PDF_HELPER_FROM_BIN;
            if (::access(helper.c_str(), X_OK) != 0 && ::access(installed.c_str(), X_OK) == 0) helper = installed;
#endif
        }
    }
    const std::string copiesText = std::to_string(copies);
    std::vector<char*> argv = {const_cast<char*>(helper.c_str()), const_cast<char*>(file.c_str()),
                               const_cast<char*>(out.c_str()), const_cast<char*>(copiesText.c_str()), nullptr};
    err.flush();
    pid_t pid = 0;
    if (helper.empty() || ::posix_spawn(&pid, helper.c_str(), nullptr, nullptr, argv.data(), environ) != 0) {
        err << "gradewise-cli: PDF output needs gradewise-pdf, which was not found beside gradewise-cli\n";
        return kUsage;
    }
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status)) return WEXITSTATUS(status);  // the helper has said why
    err << "gradewise-cli: gradewise-pdf ended without finishing the PDF"
        << (WIFSIGNALED(status) ? " (signal " + std::to_string(WTERMSIG(status)) + ")" : std::string()) << "\n";
    return kUsage;
}

// The auto-stationing dialog answered as the user would have filled it in.
Outcome AnswerDialog(const Options& o, const CurveSheet& sheet, AutoStationing& dialog) {
    dialog = NewAutoStationing(sheet);
    if (o.points) {
        dialog.txtPoints = *o.points;
        return dialog.Accept();
    }
    dialog.ChooseSpacing(sheet.elevations);
    if (!SplitStationArgument(*o.begin, dialog.txtBeginSTA, dialog.txtBeginSTAM)) {
        throw UsageError{"--begin takes a station as WHOLE+PLUS, for example 10+0"};
    }
    if (!SplitStationArgument(*o.increment, dialog.txtIncSTA, dialog.txtIncSTAM)) {
        throw UsageError{"--increment takes a station as WHOLE+PLUS, for example 0+50"};
    }
    return dialog.Accept();
}

int Execute(const Options& o, std::ostream& out, std::ostream& err) {
    CurveSheet sheet;
    if (!LoadCurve(o.file, sheet, err)) return kUsage;
    if (o.command == "report") {
        if (!o.pdf) {
            out << ReportText(sheet);
            return kDone;
        }
        return RunPdfHelper(o.file, *o.pdf, Copies(o), err);
    }

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
    const bool showElevations = o.elevations || o.command == "autostation";
    if (showElevations && (IsNumericText(sheet.txtPVCSTA) || IsNumericText(sheet.txtPVCSTAM))) {
        Outcome shown = ActivateElevations(sheet);
        // Auto-stationing replaces every row, so a stored row off the curve does not count.
        if (o.command == "solve") stopAt(shown);
    }
    if (o.command == "autostation") {
        AutoStationing dialog;
        if (Outcome refused = AnswerDialog(o, sheet, dialog)) {
            err << refused->message << "\n";
            return kRefused;
        }
        stopAt(ApplyAutoStationing(sheet, dialog));
    }

    const int written = Emit(o.output, o.json ? CurveJson(sheet) : CurveFileBytes(sheet), out, err);
    return written == kDone ? status : written;
}

}  // namespace

int Run(int argc, char** argv, std::ostream& out, std::ostream& err) {
    std::vector<std::string> args(argv + 1, argv + argc);
    if (args.size() == 1 && (args[0] == "--help" || args[0] == "-h")) {
        out << kHelp;
        return kDone;
    }
    if (args.size() == 1 && args[0] == "--version") {
        out << kVersion << "\n";
        return kDone;
    }
    if (std::optional<int> status = RunDesignCommand(args, out, err)) return *status;
    if (AsksForHelp(args, {"-o", "--points", "--begin", "--increment", "--pdf", "--copies"})) {
        out << kHelp;
        return kDone;
    }
    try {
        return Execute(Parse(args), out, err);
    } catch (const UsageError& e) {
        err << "gradewise-cli: " << e.message << "\nTry 'gradewise-cli --help'.\n";
        return kUsage;
    }
}

}  // namespace gw::cli
