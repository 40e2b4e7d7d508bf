// gradewise-cli's command line: the words it takes, the messages and exit statuses it
// gives, its help, and where its output goes: an output file written whole or not at
// all, standard output checked to its last byte, the PDF helper it runs.
#include <gtest/gtest.h>

#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "cli/command_table.h"
#include "core/curve_file.h"
#include "tests/cli/run_cli.h"
#include "tests/core/sheet_builders.h"
#include "tests/disk_faults.h"

namespace gw::cli::test {
namespace {

namespace fs = std::filesystem;

// Bad arguments and unreadable files: exit 2 with the reason and nothing on standard
// output. @F is a curve file, @S a CSV profile, @D a folder.
TEST(CommandLineTest, BadArgumentsExitTwoWithTheirMessage) {
    Folder folder;
    const std::string copies = "--copies takes a whole number from 1 to 99";
    const std::string oneWay =
        "design takes one of --k K, --through STA ELEV, or --under STA with --underside U and --clearance C";
    const std::string pviAtEnd = "a curve goes at a PVI between the ends of the profile: PVI 2 to PVI 2";
    const std::string every = "--every takes an interval greater than 0 as WHOLE+PLUS, for example 0+50";
    const std::string profileName = "--profile picks a ProfAlign of a LandXML file; '";
    const std::pair<std::string, std::string> places[] = {
        {"@F", Example("english-crest.gwf")}, {"@S", folder.Put("sag.csv", kSagCsv)}, {"@D", folder.Path()}};
    const auto expand = [&](std::string text) {
        for (const auto& [token, path] : places) {
            for (size_t at; (at = text.find(token)) != std::string::npos;) text.replace(at, token.size(), path);
        }
        return text;
    };
    struct Case {
        const char* name;
        std::string line, message;
    } cases[] = {
        {"NoCommand", "", "no command given"},
        {"UnknownCommand", "--version @F", "unknown command '--version'"},
        {"NoFile", "solve", "solve needs a curve FILE"},
        {"TwoFiles", "solve @F b.gwf", "more than one FILE given ('@F' and 'b.gwf')"},
        {"UnknownOption", "plot @F --csv", "unknown option '--csv' for plot"},
        {"NoValue", "solve @F -o", "-o needs a value: -o OUT"},
        {"OneOfTwoValues", "design @S --pvi 2 --through 51+00", "--through needs 2 values: --through STA ELEV"},
        {"NoRequiredOption", "table @F", "table needs --every WHOLE+PLUS, for example --every 0+50"},
        {"HelpWordAsAValue", "check @F --speed -h",
         "--speed takes a design speed greater than 0 (mph for a profile in feet, km/h in metres)"},
        {"CopiesWithoutPdf", "report @F --copies 2", "--copies goes with --pdf"},
        {"NoCopies", "report @F --pdf @D/r.pdf --copies 0", copies},
        {"HundredCopies", "report @F --pdf @D/r.pdf --copies 100", copies},
        {"CopiesNotDigits", "report @F --pdf @D/r.pdf --copies 9x", copies},
        {"PointsAndSpacing", "autostation @F --points 3 --begin 1+0 --increment 0+5",
         "give either --points or --begin with --increment, not both"},
        {"BeginWithoutIncrement", "autostation @F --begin 10+0",
         "autostation needs --points N, or --begin WHOLE+PLUS with --increment WHOLE+PLUS"},
        {"BeginNotAStation", "autostation @F --begin 10 --increment 0+50",
         "--begin takes a station as WHOLE+PLUS, for example 10+0"},
        {"IncrementNotAStation", "autostation @F --begin 10+0 --increment 50",
         "--increment takes a station as WHOLE+PLUS, for example 0+50"},
        {"EveryZero", "table @S --every 0+0", every},
        {"EveryPlusTooLong", "table @S --every 1+150", every + " (the plus part of '1+150' must be less than 100)"},
        {"EveryTooManyRows", "table @F --every 0+0.0001",
         "--every 0+0.0001 gives more than 1000000 rows over 400.0 ft; choose a longer interval"},
        {"ProfileNameOfACsv", "table @S --every 1+00 --profile FG", profileName + "@S' is a CSV profile"},
        {"ProfileNameOfACurveFile", "plot @F --profile FG", profileName + "@F' is a curve file"},
        {"SpeedOffTheTable", "check @S --speed 90",
         "A design speed of 90.0 mph is outside the design table (15.0 to 80.0 mph)."},
        {"NoHeight", "check @S --speed 50 --eye 0", "--eye takes a height greater than 0"},
        {"ClearanceUnderTheLights", "check @S --speed 50 --clearance 4",
         "The clearance must be more than 5.0, the mean height of the truck driver's eye and the taillight."},
        {"DesignNoWay", "design @S --pvi 2", oneWay},
        {"DesignTwoWays", "design @S --pvi 2 --k 50 --through 51+00 440", oneWay},
        {"DesignKZero", "design @S --pvi 2 --k 0", "--k takes a K greater than 0"},
        {"DesignNotAStation", "design @S --pvi 2 --through 51+00x 440",
         "--through: '51+00x' is not a station as WHOLE+PLUS"},
        {"OffsetWithoutSlope", "design @S --pvi 2 --through 51+00 440 --hoffset 12", "--hoffset goes with --xslope"},
        {"SlopeWithoutOffset", "design @S --pvi 2 --through 51+00 440 --xslope 2", "--xslope goes with --hoffset"},
        {"OffsetWithoutPoint", "design @S --pvi 2 --k 50 --voffset 1", "--voffset goes with --through"},
        {"UnderWithoutClearance", "design @S --pvi 2 --under 51+00 --underside 450", "--under goes with --clearance"},
        {"UndersideWithoutUnder", "design @S --pvi 2 --k 50 --underside 450", "--underside goes with --under"},
        {"PviZero", "design @S --pvi 0 --k 50",
         "--pvi takes the number of a PVI as the profile command lists it, for example 2"},
        {"FirstPvi", "design @S --pvi 1 --k 50", pviAtEnd},
        {"LastPvi", "design @S --pvi 3 --k 50", pviAtEnd},
        {"ImportWithoutCurve", "import @S --curve 3", "PVI 3 (line 4) has no vertical curve; curves are at PVI 2"},
        {"ImportPastTheEnd", "import @S --curve 6", "the profile has PVI 1 to PVI 3; curves are at PVI 2"},
        {"NoCurveFile", "solve @D/none.gwf", "cannot read '@D/none.gwf': No such file or directory"},
        {"NoProfileFile", "profile @D", "cannot read '@D': Is a directory"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Result r = RunCli(expand(c.line));
        EXPECT_EQ(r.status, kUsage);
        EXPECT_EQ(r.err.substr(0, r.err.find('\n')), "gradewise-cli: " + expand(c.message));
        EXPECT_EQ(r.out, "");
    }
    // A bad argument says where help is; a refusal of what they ask does not.
    EXPECT_EQ(RunCli("").err, "gradewise-cli: no command given\nTry 'gradewise-cli --help'.\n");
    EXPECT_EQ(RunCli("solve").err, "gradewise-cli: solve needs a curve FILE\nTry 'gradewise-cli solve --help'.\n");
    EXPECT_EQ(RunCli(expand("design @S --pvi 1 --k 50")).err, "gradewise-cli: " + pviAtEnd + "\n");
}

// A refusal writes nothing, not even an empty output file; a row off the curve still
// writes the curve as far as it was computed.
TEST(CommandLineTest, RefusalsExitWithTheirStatusAndReason) {
    Folder folder;
    const auto curve = [&](const char* name, const CurveSheet& sheet) {
        return folder.Put(name, CurveFileBytes(sheet));
    };
    const auto crest = [](const char* sta, const char* stam, const char* lc) {
        return gw::test::PviSheet("English", sta, stam, "104", "2", "-2", lc);
    };
    CurveSheet offCurve = ParseCurveFile(Read(Example("english-crest.gwf")));
    offCurve.elevations.rows[1] = {"15", "0", ""};
    const std::string out = folder.File("out");
    const std::string backwards = folder.Put("back.csv", "Station (ft),Elevation\n10+00,100\n12+00,104\n11+00,102\n");
    const std::string beyond = "the curve cannot be drawn: at stations near ";
    struct Case {
        const char* name;
        std::string line;  // -o OUT follows
        int status;
        std::string err;
    } cases[] = {
        {"CalcRefuses", "solve " + curve("a.gwf", crest("", "0", "400")), kRefused,
         "PVI Station needs to be entered.\n"},
        {"TheDialogRefuses", "autostation " + Example("english-crest.gwf") + " --points 25", kRefused,
         "Points can not be more than 20.\n"},
        {"ARowOffTheCurve", "solve --elevations " + curve("b.gwf", offCurve), kStationOffCurve,
         "Top of Slab Station must be between PVC and PVT stations.\n"},
        {"AProfileRefused", "table " + backwards + " --every 1+00", kRefused,
         "gradewise-cli: " + backwards +
             ": PVI 3 (line 4) at 11+00.0 is not past PVI 2 (line 3) at 12+00.0: stations must increase along the "
             "profile.\n"},
        {"NoLength", "plot " + curve("c.gwf", crest("12", "0", "0")), kRefused,
         "gradewise-cli: plot needs a length of curve greater than 0\n"},
        {"StationsTooFarToDraw", "plot " + curve("d.gwf", crest("1000000000000000", "0", "400")), kRefused,
         "gradewise-cli: " + beyond + "999999999999998+00.0 a length of curve of 400 cannot be drawn to scale\n"},
        {"LengthTooShortToDraw", "plot " + curve("e.gwf", crest("12", "0", "1e-12")), kRefused,
         "gradewise-cli: " + beyond + "12+00.0 a length of curve of 1e-12 cannot be drawn to scale\n"},
        {"PlusTooLongToTabulate", "table " + curve("f.gwf", crest("12", "1e22", "400")) + " --every 0+50", kRefused,
         "gradewise-cli: at stations near 100000000000000000000+00.0 an interval of 50.0 is too small to tell the "
         "stations apart\n"},
        {"LengthTooShortToTabulate", "table " + curve("g.gwf", crest("12", "0", "1e-310")) + " --every 0+50", kRefused,
         "gradewise-cli: the elevations of this curve cannot be computed: a length of curve of 1e-310 is too short "
         "for a change of grade of 4.0 %\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Result r = RunCli(c.line + " -o " + out);
        EXPECT_EQ(r.status, c.status);
        EXPECT_EQ(r.err, c.err);
        EXPECT_EQ(r.out, "");
        EXPECT_EQ(fs::exists(out), c.status == kStationOffCurve);
        if (c.status == kStationOffCurve) {
            EXPECT_EQ(ParseCurveFile(Read(out)).elevations.rows[0].txtTotalTopSlab1, "101.135");
        }
        fs::remove(out);
    }
}

TEST(CommandLineTest, HelpAndVersion) {
    EXPECT_EQ(RunCli("--version").out, "gradewise-cli 4.3.1\n");
    const Result general = RunCli("-h");
    EXPECT_EQ(general.status, kDone);
    for (const char* lines : {
             "\n  gradewise-cli autostation FILE (--points N | --begin WHOLE+PLUS --increment WHOLE+PLUS)\n"
             "                            [--json] [-o OUT]\n",
             "\n  solve        solve the curve; --elevations also recomputes the elevation rows\n"
             "  autostation  solve, then lay out the elevation rows by a number of points from\n"
             "               PVC to PVT (--points, at most 20) or from a beginning station in\n",
         }) {
        EXPECT_NE(general.out.find(lines), std::string::npos) << lines;
    }
    for (const CommandRow& row : Commands()) {
        const std::string name = row.name;
        const Result own = RunCli({name, "--help"});
        EXPECT_EQ(own.status, kDone) << name;
        EXPECT_EQ(own.out.rfind("Usage: gradewise-cli " + name + " FILE", 0), 0u) << name;
        EXPECT_NE(general.out.find("\n  gradewise-cli " + name + " FILE"), std::string::npos) << name;
    }
    EXPECT_EQ(RunCli({"report", Example("english-crest.gwf"), "-h"}).out,
              "Usage: gradewise-cli report FILE [--pdf OUT.pdf [--copies N]]\n\n"
              "Prints the lines of the curve report of FILE, dated now, or writes the pages\n"
              "File > Print prints to a PDF file.\n\n"
              "  --pdf OUT.pdf   write the printed pages to OUT.pdf\n"
              "  --copies N      that many copies, from 1 to 99, one page each (default 1)\n\n"
              "Exit status: 0 done; 2 bad arguments, an unreadable file or a PDF that could not\n"
              "be written (an existing one is then left as it was).\n");
}

// The real program, standard output going to `output` (created when missing);
// `childSetUp` runs in the child before the program starts.
Result RunProgram(const std::vector<std::string>& args, const std::string& output,
                  const std::function<void()>& childSetUp = {}) {
    int errPipe[2];
    if (::pipe(errPipe) != 0) return {-1, "", "no pipe"};
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::close(errPipe[0]);
        const int out = ::open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (out < 0 || ::dup2(out, 1) < 0 || ::dup2(errPipe[1], 2) < 0) ::_exit(125);
        if (childSetUp) childSetUp();
        std::vector<std::string> all = args;
        all.insert(all.begin(), GW_CLI_PATH);
        std::vector<char*> argv;
        for (std::string& a : all) argv.push_back(a.data());
        argv.push_back(nullptr);
        ::execv(GW_CLI_PATH, argv.data());
        ::_exit(126);
    }
    ::close(errPipe[1]);
    std::string err;
    char buffer[4096];
    for (ssize_t n; (n = ::read(errPipe[0], buffer, sizeof buffer)) > 0;) err.append(buffer, size_t(n));
    ::close(errPipe[0]);
    int raw = 0;
    ::waitpid(pid, &raw, 0);
    return {WIFEXITED(raw) ? WEXITSTATUS(raw) : 128 + WTERMSIG(raw), "", err};
}

// Output that cannot be written is an error with the system's reason and exit 2, and
// an output file is left byte for byte as it was, with nothing beside it: onto a full
// disk, past a file-size limit (once a silent death by SIGXFSZ) and to standard output.
TEST(CommandLineTest, OutputThatCannotBeWrittenIsReportedAndLosesNothing) {
    Folder folder;
    gw::test::FullDisk disk(folder.Path() / "disk");
    const std::string full = (disk.Folder() / "out").string(), limited = folder.File("limited");
    const std::string previous = "the previous output\n";
    for (const std::string& f : {full, limited}) {
        fs::create_directories(f);
        for (const char* name : {"/table.txt", "/report.pdf"}) std::ofstream(f + name) << previous;
    }
    disk.Fill();
    const std::string crest = Example("english-crest.gwf");
    const std::function<void()> sizeLimit = [] {
        const rlimit small{64, 64};
        ::setrlimit(RLIMIT_FSIZE, &small);
    };
    const std::string tooLarge = std::strerror(EFBIG);
    struct Case {
        const char* name;
        std::string folder;  // where the outputs are
        std::vector<std::string> args;
        std::string output;  // standard output
        std::function<void()> setUp;
        std::string message;
    } cases[] = {
        {"OntoAFullDisk", full, Words("table " + crest + " --every 0+1 -o " + full + "/table.txt"), "/dev/null",
         [&disk] { disk.WritesFailInChild(); },
         "cannot write '" + full + "/table.txt': " + std::strerror(disk.Errno())},
        {"PastASizeLimit", limited, Words("table " + crest + " --every 0+1 -o " + limited + "/table.txt"), "/dev/null",
         sizeLimit, "cannot write '" + limited + "/table.txt': " + tooLarge},
        {"APdfPastASizeLimit", limited, Words("report " + crest + " --pdf " + limited + "/report.pdf"), "/dev/null",
         sizeLimit, "cannot write '" + limited + "/report.pdf': " + tooLarge},
        {"StandardOutput",
         full,
         Words("solve " + crest),
         "/dev/full",
         {},
         std::string("cannot write to standard output: ") + std::strerror(ENOSPC)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Result r = RunProgram(c.args, c.output, c.setUp);
        EXPECT_EQ(r.status, kUsage);
        EXPECT_EQ(r.err, "gradewise-cli: " + c.message + "\n");
        std::vector<std::string> left;
        for (const auto& entry : fs::directory_iterator(c.folder)) left.push_back(entry.path().filename());
        std::sort(left.begin(), left.end());
        EXPECT_EQ(left, (std::vector<std::string>{"report.pdf", "table.txt"}));
        EXPECT_EQ(Read(c.folder + "/table.txt"), previous);
        EXPECT_EQ(Read(c.folder + "/report.pdf"), previous);
    }
}

// The printed pages, one per copy, from gradewise-pdf found beside gradewise-cli,
// under exactly the name given, even one that is not valid UTF-8.
TEST(CommandLineTest, ReportPdfHasOnePagePerCopy) {
    Folder folder;
    const std::string pdf = folder.File("r\xE9sum\xE9.pdf");  // Latin-1
    const Result r = RunProgram(Words("report " + Example("metric-sag.gwf") + " --pdf " + pdf + " --copies 3"),
                                "/dev/null", [] { ::unsetenv("GRADEWISE_PDF"); });
    ASSERT_EQ(r.status, kDone) << r.err;
    const std::string info = folder.File("info.txt");
    ASSERT_EQ(
        std::system(("pdfinfo '" + pdf + "' >'" + info + "' && pdftotext '" + pdf + "' - >>'" + info + "'").c_str()),
        0);
    const std::string text = Read(info);
    EXPECT_NE(text.find("Pages:           3\n"), std::string::npos) << text;
    EXPECT_NE(text.find("HSD 168.4886"), std::string::npos) << text;
    // Letter pages, the first line 18 mm from the top and the left.
    ASSERT_EQ(std::system(("pdftotext -bbox '" + pdf + "' - >'" + info + "'").c_str()), 0);
    EXPECT_NE(Read(info).find("<page width=\"612.000000\" height=\"792.000000\">\n    <word xMin=\"51.000000\" "
                              "yMin=\"51.000469\""),
              std::string::npos);
    // The helper run by itself names what it cannot read.
    const std::string helper = fs::path(GW_CLI_PATH).parent_path() / "gradewise-pdf";
    const std::string missing = folder.File("none.gwf");
    EXPECT_EQ(WEXITSTATUS(std::system((helper + " " + missing + " o.pdf 1 2>'" + info + "'").c_str())), kUsage);
    EXPECT_EQ(Read(info), "gradewise-cli: cannot read '" + missing + "': No such file or directory\n");
}

// gradewise-pdf as GRADEWISE_PDF names it: what it is given, and what its end means.
TEST(CommandLineTest, ThePdfHelpersEndIsTheCommandsEnd) {
    Folder folder;
    const std::string F = Example("english-crest.gwf"), out = folder.File("o.pdf");
    const std::string args = folder.File("args");
    struct Case {
        const char* name;
        const char* script;  // nullptr: no helper there
        int status;
        std::string err;
    } cases[] = {
        {"Done", "echo \"$@\" >'%s'", kDone, ""},
        {"ItsOwnStatus", "exit 2", kUsage, ""},
        {"KilledBySignal", "kill -9 $$", kUsage,
         "gradewise-cli: gradewise-pdf ended without finishing the PDF (signal 9)\n"},
        {"Missing", nullptr, kUsage,
         "gradewise-cli: PDF output needs gradewise-pdf, which was not found beside gradewise-cli\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string helper = folder.File(c.name);
        if (c.script) {
            char body[512];
            std::snprintf(body, sizeof body, c.script, args.c_str());
            folder.Put(c.name, std::string("#!/bin/sh\n") + body + "\n");
            fs::permissions(helper, fs::perms::owner_all);
        }
        ::setenv("GRADEWISE_PDF", helper.c_str(), 1);
        const Result r = RunCli({"report", F, "--pdf", out, "--copies", "12"});
        ::unsetenv("GRADEWISE_PDF");
        EXPECT_EQ(r.status, c.status);
        EXPECT_EQ(r.err, c.err);
    }
    EXPECT_EQ(Read(args), F + " " + out + " 12\n");
}

}  // namespace
}  // namespace gw::cli::test
