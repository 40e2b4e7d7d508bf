// Each command of the command-line tool: the curve file, JSON, table, plot or verdict
// it writes, the dialogs' messages on stderr and the documented exit statuses. The
// numbers are the core's and tested there.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "cli/cli.h"
#include "cli/command_table.h"
#include "tests/cli/run_cli.h"
#include "core/curve_file.h"
#include "tests/core/sheet_builders.h"
#include "tests/disk_faults.h"
#include "core/curve_sheet.h"
#include "core/curve_solver.h"

namespace gw::cli::test {
namespace {

// The exit status of the real program run with `args`.
int ProcessStatus(const std::string& args) {
    const int raw = std::system((std::string(GW_CLI_PATH) + " " + args + " >/dev/null 2>&1").c_str());
    return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
}

// The real program run with `args`, its standard output going to `output` (created
// when missing); `childSetUp` runs in the child before the program starts.
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

std::string Example(const char* name) { return std::string(GW_EXAMPLES_DIR) + "/" + name; }

std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

class CliTest : public ::testing::Test {
protected:
    void SetUp() override {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        m_dir = std::filesystem::temp_directory_path() /
                ("gw_cli_" + std::to_string(::getpid()) + "_" + info->test_suite_name() + "_" + info->name());
        std::filesystem::create_directories(m_dir);
    }
    void TearDown() override { std::filesystem::remove_all(m_dir); }

    std::string Path(const std::string& name) const { return (m_dir / name).string(); }

    // The sheet written as a curve file of its own.
    std::string Write(const CurveSheet& sheet) {
        const std::string path = Path("curve" + std::to_string(m_files++) + ".gwf");
        std::ofstream(path, std::ios::binary) << CurveFileBytes(sheet);
        return path;
    }
    // A curve in the PVI mode, written as a curve file.
    std::string Pvi(const char* units, const char* sta, const char* stam, const char* elev, const char* g1,
                    const char* g2, const char* lc) {
        return Write(gw::test::PviSheet(units, sta, stam, elev, g1, g2, lc));
    }
    // PVI 12+00 at 104, +2 % to -2 %, 400 ft: PVC 10+00 at 100, PVT 14+00.
    std::string EnglishCrest(const char* stam = "0") { return Pvi("English", "12", stam, "104", "2", "-2", "400"); }

    std::filesystem::path m_dir;
    int m_files = 0;
};

TEST_F(CliTest, SolveWritesTheCurveFileAsSaveWouldOrItsJson) {
    const std::string file = EnglishCrest();
    Result r = RunCli({"solve", file});
    ASSERT_EQ(r.status, kDone) << r.err;
    CurveSheet solved = ParseCurveFile(r.out);
    EXPECT_EQ(solved.txtPVCSTA, "10");
    EXPECT_EQ(solved.txtSD, "364.5545");
    EXPECT_EQ(r.out, CurveFileBytes(solved));  // eight CR LF lines

    r = RunCli({"solve", "--json", file});
    ASSERT_EQ(r.status, kDone) << r.err;
    for (const char* piece : {"\"txtTPSTAM\": \"0.0\"", "\"optPVCPVT\": false", "\"txtTOTSTA1\": [\"\", \"\""}) {
        EXPECT_NE(r.out.find(piece), std::string::npos) << piece;
    }
}

TEST_F(CliTest, ARefusedCheckPrintsItsMessageOnlyOnStderr) {
    Result r = RunCli({"solve", EnglishCrest("")});
    EXPECT_EQ(r.status, kRefused);
    EXPECT_EQ(r.err, "PVI Station needs to be entered.\n");
    EXPECT_EQ(r.out, "");
}

TEST_F(CliTest, ElevationsOffTheCurveStillWriteTheCurve) {
    CurveSheet s = ParseCurveFile(Read(EnglishCrest()));
    ASSERT_FALSE(Calculate(s));  // solved, so the next Calc moves no station and keeps the rows
    s.elevations.rows[0] = {"11", "0", ""};
    s.elevations.rows[1] = {"15", "0", ""};
    Result r = RunCli({"solve", "--elevations", Write(s)});
    EXPECT_EQ(r.status, kStationOffCurve);
    EXPECT_EQ(r.err, "Top of Slab Station must be between PVC and PVT stations.\n");
    EXPECT_EQ(ParseCurveFile(r.out).elevations.rows[0].txtTotalTopSlab1, "101.5");
}

TEST_F(CliTest, AutostationByPointsAndBySpacing) {
    const std::string file = EnglishCrest();
    Result points = RunCli({"autostation", file, "--points", "10", "--json"});
    ASSERT_EQ(points.status, kDone) << points.err;
    EXPECT_NE(points.out.find("\"44.4444\""), std::string::npos);

    const std::string out = Path("b.gwf");
    Result spacing = RunCli({"autostation", file, "--begin", "10+0", "--increment", "0+50", "-o", out});
    ASSERT_EQ(spacing.status, kDone) << spacing.err;
    EXPECT_EQ(spacing.out, "");
    CurveSheet back = ParseCurveFile(Read(out));
    EXPECT_EQ(back.elevations.rows[8].txtTOTSTA1, "14");
    EXPECT_EQ(back.elevations.rows[8].txtTotalTopSlab1, "100.0");
    EXPECT_EQ(back.elevations.rows[9].txtTOTSTA1, "");
    const Result refused = RunCli({"autostation", file, "--points", "25"});
    EXPECT_EQ(refused.status, kRefused);
    EXPECT_EQ(refused.err, "Points can not be more than 20.\n");
}

TEST_F(CliTest, UsageErrorsAndUnreadableFilesExitTwoWithAMessageOnly) {
    const std::string file = EnglishCrest();
    const std::vector<std::vector<std::string>> bad = {
        {},
        {"frobnicate", file},
        {"solve", file, "--bogus"},
        {"autostation", file, "--points", "3", "--begin", "1+0", "--increment", "0+5"},
        {"solve", m_dir.string()},
        {"solve", file, "-o", Path("no/such/dir.gwf")},
        {"table", file, "--every", "0+0"},
        {"table", file, "--every", "0+0.0001"},  // 400 ft / 0.0001 ft: 4000000 rows
        {"plot", file, "--csv"},
        {"check", file, "--speed", "fast"},
        {"report", file, "--pdf", Path("none.pdf"), "--copies", "0"},  // once a 0-byte "PDF"
        {"check", file, "--speed", "-h"},                              // a value, not a call for help
    };
    for (const auto& args : bad) {
        Result r = RunCli(args);
        EXPECT_EQ(r.status, kUsage) << (args.empty() ? "(none)" : args[0]) << " " << r.err;
        EXPECT_NE(r.err, "");
        EXPECT_EQ(r.out, "");
    }
    EXPECT_FALSE(std::filesystem::exists(Path("none.pdf")));
    EXPECT_NE(RunCli({"solve", Path("missing.gwf")}).err.find("No such file"), std::string::npos);
    EXPECT_EQ(RunCli({"check", file, "--speed", "81"}).err,
              "gradewise-cli: A design speed of 81.0 mph is outside the design table (15.0 to 80.0 mph).\n");
    EXPECT_EQ(RunCli({"table", file}).err,
              "gradewise-cli: table needs --every WHOLE+PLUS, for example --every 0+50\n"
              "Try 'gradewise-cli table --help'.\n");
}

// Output that cannot be written is an error with the system's reason and exit 2, and
// an output file is left byte for byte as it was, with no fragment or temporary file
// beside it: onto a full disk, past a file-size limit (once a silent death by
// SIGXFSZ), and to standard output.
TEST_F(CliTest, OutputThatCannotBeWrittenIsReportedAndLosesNothing) {
    ::setenv("GRADEWISE_PDF", GW_PDF_PATH, 1);
    gw::test::FullDisk disk(m_dir / "disk");
    const std::string full = (disk.Folder() / "out").string();
    const std::string limited = Path("limited");
    const std::string previous = "the previous output\n";
    for (const std::string& folder : {full, limited}) {
        std::filesystem::create_directories(folder);
        for (const char* name : {"table.txt", "report.pdf"}) std::ofstream(folder + "/" + name) << previous;
    }
    disk.Fill();
    const std::string crest = Example("english-crest.gwf");
    const std::function<void()> fullDisk = [&disk] { disk.WritesFailInChild(); };
    const std::function<void()> sizeLimit = [] {
        rlimit small{64, 64};
        ::setrlimit(RLIMIT_FSIZE, &small);
    };
    const std::string noSpace = std::strerror(disk.Errno());
    struct Case {
        const char* name;
        std::string folder;  // where the outputs are
        std::vector<std::string> args;
        std::string output;  // standard output
        std::function<void()> setUp;
        std::string message;
    } cases[] = {
        {"OverAFileOnAFullDisk",
         full,
         {"table", crest, "--every", "0+1", "-o", full + "/table.txt"},
         "/dev/null",
         fullDisk,
         "cannot write '" + full + "/table.txt': " + noSpace},
        {"ANewFileOnAFullDisk",
         full,
         {"table", crest, "--every", "0+1", "-o", full + "/new.txt"},
         "/dev/null",
         fullDisk,
         "cannot write '" + full + "/new.txt': " + noSpace},
        {"OverAPdfOnAFullDisk",
         full,
         {"report", crest, "--pdf", full + "/report.pdf"},
         "/dev/null",
         fullDisk,
         "cannot write '" + full + "/report.pdf': " + noSpace},
        {"OverAFilePastASizeLimit",
         limited,
         {"table", crest, "--every", "0+1", "-o", limited + "/table.txt"},
         "/dev/null",
         sizeLimit,
         "cannot write '" + limited + "/table.txt': " + std::strerror(EFBIG)},
        {"OverAPdfPastASizeLimit",
         limited,
         {"report", crest, "--pdf", limited + "/report.pdf"},
         "/dev/null",
         sizeLimit,
         "cannot write '" + limited + "/report.pdf': " + std::strerror(EFBIG)},
        {"StandardOutputToDevFull",
         full,
         {"solve", crest},
         "/dev/full",
         {},
         std::string("cannot write to standard output: ") + std::strerror(ENOSPC)},
        {"StandardOutputOntoAFullDisk",
         full,
         {"table", crest, "--every", "0+1"},
         full + "/stdout.txt",
         fullDisk,
         "cannot write to standard output: " + noSpace},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Result r = RunProgram(c.args, c.output, c.setUp);
        EXPECT_EQ(r.status, kUsage);
        EXPECT_EQ(r.err, "gradewise-cli: " + c.message + "\n");
        EXPECT_EQ(Read(c.folder + "/table.txt"), previous);
        EXPECT_EQ(Read(c.folder + "/report.pdf"), previous);
        std::vector<std::string> left;
        for (const auto& entry : std::filesystem::directory_iterator(c.folder)) {
            if (entry.path() != c.output) left.push_back(entry.path().filename());
        }
        std::sort(left.begin(), left.end());
        EXPECT_EQ(left, (std::vector<std::string>{"report.pdf", "table.txt"}));
    }
}

TEST_F(CliTest, VersionHelpAndTheProcessExitStatus) {
    EXPECT_EQ(RunCli({"--version"}).out, "gradewise-cli 4.3.1\n");
    const std::string all = RunCli({"--help"}).out;
    for (const CommandRow& row : Commands()) {
        const std::string command = row.name;
        SCOPED_TRACE(command);
        EXPECT_NE(all.find("gradewise-cli " + command + " FILE"), std::string::npos);
        const Result own = RunCli({command, "--help"});
        EXPECT_EQ(own.status, kDone);
        EXPECT_NE(own.out.find("gradewise-cli " + command + " FILE"), std::string::npos) << own.out;
        for (const OptionRow& option : row.options) EXPECT_NE(own.out.find(option.help), std::string::npos);
    }
    EXPECT_EQ(ProcessStatus("--version"), kDone);
    EXPECT_EQ(ProcessStatus("solve /nonexistent/curve.gwf"), kUsage);
    EXPECT_EQ(ProcessStatus("check " + Example("english-crest.gwf") + " --speed 60"), kTooShort);
}

TEST_F(CliTest, ReportPrintsOneCopyWithLfEnds) {
    Result r = RunCli({"report", Example("english-crest.gwf")});
    ASSERT_EQ(r.status, kDone);
    EXPECT_EQ(r.out.find('\r'), std::string::npos);
    EXPECT_EQ(r.out.rfind("Gradewise ", 0), 0u);
    EXPECT_NE(r.out.find("\nInput:   (English)\n"), std::string::npos);
    EXPECT_NE(r.out.find("\nElevation at Station: 13+50  =  101.135\n"), std::string::npos);
}

// The printed pages as a PDF: one page per copy, read back by a PDF reader, under
// exactly the name given, even one that is not valid UTF-8.
TEST_F(CliTest, ReportPdfHasOnePagePerCopy) {
    ::setenv("GRADEWISE_PDF", GW_PDF_PATH, 1);
    const std::string pdf = Path("r\xE9sum\xE9.pdf");  // Latin-1
    Result r = RunCli({"report", Example("metric-sag.gwf"), "--pdf", pdf, "--copies", "3"});
    ASSERT_EQ(r.status, kDone) << r.err;
    ASSERT_TRUE(std::filesystem::exists(pdf));
    auto run = [](const std::string& command) {
        std::string out;
        FILE* p = ::popen(command.c_str(), "r");
        char buf[4096];
        for (size_t n; (n = std::fread(buf, 1, sizeof buf, p)) > 0;) out.append(buf, n);
        ::pclose(p);
        return out;
    };
    EXPECT_NE(run("pdfinfo " + pdf).find("Pages:           3"), std::string::npos);
    const std::string text = run("pdftotext " + pdf + " -");
    EXPECT_NE(text.find("PVC Values"), std::string::npos);
    EXPECT_NE(text.find("HSD 168.4886"), std::string::npos);  // blanks are rebuilt by the reader

    EXPECT_EQ(RunCli({"report", Example("metric-sag.gwf"), "--pdf", pdf, "--copies", "x"}).status, kUsage);
    EXPECT_EQ(RunCli({"report", Example("metric-sag.gwf"), "--pdf", Path("no/r.pdf")}).status, kUsage);
}

TEST_F(CliTest, JsonAddsKTurningPointElevationAndSightDistanceCase) {
    struct Case {
        std::vector<std::string> curve;  // units, PVI station, plus, elevation, G1, G2, L
        const char* k;
        const char* tpElevation;
        const char* sightCase;
        const char* sightDistance;
    } cases[] = {
        // K = 400 / 4; TP x = 200: 100 + 4 - 2 = 102; S = sqrt(400 * 1329 / 4) = 364.5545 <= L
        {{"English", "12", "0", "104", "2", "-2", "400"}, "100.0", "102.0", "S<L", "364.5545"},
        // A = 1.5: the headlights are never stopped; K = 800 / 1.5
        {{"English", "3", "0", "50", "-1", "0.5", "800"},
         "533.3333",
         "51.3333",
         "S>L",
         "unlimited: with A of 1.75 % or less the headlight beam never meets the road"},
    };
    for (const Case& c : cases) {
        const auto& v = c.curve;
        const Result r = RunCli(
            {"solve", "--json",
             Pvi(v[0].c_str(), v[1].c_str(), v[2].c_str(), v[3].c_str(), v[4].c_str(), v[5].c_str(), v[6].c_str())});
        ASSERT_EQ(r.status, kDone) << r.err;
        const std::string tail = std::string("  \"K\": \"") + c.k + "\",\n  \"turningPointElevation\": \"" +
                                 c.tpElevation + "\",\n  \"sightDistanceCase\": \"" + c.sightCase +
                                 "\",\n  \"sightDistance\": \"" + c.sightDistance + "\"\n}\n";
        ASSERT_GE(r.out.size(), tail.size());
        EXPECT_EQ(r.out.substr(r.out.size() - tail.size()), tail) << v[4] << " " << v[5] << " " << v[6];
    }
}

TEST_F(CliTest, TableOfTheBundledCrestWithItsOffsets) {
    // 100 + 0.02 x - 0.00005 x^2 + 0.5 + 12 * -0.02; x = 50: 100.875 + 0.26 = 101.135
    const Result r = RunCli({"table", Example("english-crest.gwf"), "--every", "0+50"});
    ASSERT_EQ(r.status, kDone) << r.err;
    EXPECT_EQ(r.out.substr(0, r.out.find("11+00.0")),
              "Elevations include a vertical offset of 0.5 and a horizontal offset of 12.0 at -2.0 % cross slope.\n"
              "Station  Distance (ft)  Grade (%)  Elevation (ft)  Point\n"
              "10+00.0            0.0        2.0          100.26  PVC\n"
              "10+50.0           50.0        1.5         101.135\n");
    EXPECT_NE(r.out.find("\n12+00.0          200.0        0.0          102.26  TP\n"), std::string::npos);
    EXPECT_EQ(LastLine(r.out), "14+00.0          400.0       -2.0          100.26  PVT");
}

TEST_F(CliTest, TableAsCsvWithoutTheTwentyRowLimit) {
    // Metric sag, PVC 1+900 at 250, -2 % to +3 % over 200 m, no offsets:
    // every 0+005 gives 39 stations between the ends, plus PVC and PVT; the low point
    // (x = 80) is one of them.
    const std::string out = Path("t.csv");
    const Result r = RunCli({"table", Example("metric-sag.gwf"), "--every", "0+5", "--csv", "-o", out});
    ASSERT_EQ(r.status, kDone) << r.err;
    const std::string csv = Read(out);
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 1 + 41);
    EXPECT_EQ(csv.substr(0, csv.find('\n', csv.find('\n') + 1) + 1),
              "Station,Distance (m),Grade (%),Elevation (m),Point\n1+900.0,0.0,-2.0,250.0,PVC\n");
    // x = 80: grade -2 + 5 * 80 / 200 = 0; 250 - 1.6 + 0.8 = 249.2
    EXPECT_NE(csv.find("\n1+980.0,80.0,0.0,249.2,TP\n"), std::string::npos);
    EXPECT_EQ(LastLine(csv), "2+100.0,200.0,3.0,251.0,PVT");
}

// A curve file is checked as the profile of its one curve, against every criterion.
TEST_F(CliTest, CheckVerdictsAgainstHandWorkedMinimumLengths) {
    struct Case {
        const char* file;
        const char* speed;
        int status;
        const char* criterion;  // the governing criterion's formula and minimum
        const char* verdict;
    } cases[] = {
        // crest A = 4, L = 400, 50 mph, S = 425: 4 * 425^2 / 2158 = 334.8 < S, so 850 - 539.5
        {"english-crest.gwf", "50", kDone, "L = 2 S - 2158 / A (S>L)  310.5 ft",
         "Long enough: every curve meets every required criterion at 50 mph."},
        // 52 mph takes the 55 mph row, S = 495: 990 - 539.5 = 450.5
        {"english-crest.gwf", "52", kTooShort, "L = 2 S - 2158 / A (S>L)  450.5 ft",
         "Too short: PVI 2 (the curve's PVI) needs 450.5 ft for stopping sight distance."},
        // sag A = 5, L = 200 m, 100 km/h, S = 185: 5 * 185^2 / (120 + 647.5) = 222.9642,
        // more than S; comfort 5 * 100^2 / 395 = 126.5823
        {"metric-sag.gwf", "100", kTooShort, "L = A S^2 / (120 + 3.5 S) (S<L)  222.9642 m",
         "Too short: PVI 2 (the curve's PVI) needs 222.9642 m for headlight sight distance."},
    };
    for (const Case& c : cases) {
        const Result r = RunCli({"check", Example(c.file), "--speed", c.speed});
        EXPECT_EQ(r.status, c.status) << c.speed << r.err;
        EXPECT_NE(r.out.find(c.criterion), std::string::npos) << r.out;
        EXPECT_EQ(LastLine(r.out), c.verdict);
    }
    const std::string sag = RunCli({"check", Example("metric-sag.gwf"), "--speed", "100"}).out;
    EXPECT_NE(sag.find("L = A V^2 / 395"), std::string::npos) << sag;
    EXPECT_NE(sag.find(" 126.5823 m "), std::string::npos) << sag;
}

TEST_F(CliTest, PlotLabelsTheCurveAndDrawsTheRows) {
    const std::string out = Path("p.svg");
    const Result r = RunCli({"plot", Example("english-crest.gwf"), "-o", out});
    ASSERT_EQ(r.status, kDone) << r.err;
    EXPECT_EQ(r.out, "");
    const std::string svg = Read(out);
    EXPECT_EQ(svg.rfind("<svg xmlns=\"http://www.w3.org/2000/svg\"", 0), 0u);
    EXPECT_EQ(LastLine(svg), "</svg>");
    for (const char* text : {">Profile of english-crest.gwf<", ">PVC 10+00.0<", ">High point 12+00.0<", "K = 100.0"}) {
        EXPECT_NE(svg.find(text), std::string::npos) << text;
    }
    // Five elevation rows in the file, each one point in the rows' colour (and one more
    // in the legend).
    const std::string rowFill = "fill=\"#d9661f\"";
    size_t rows = 0;
    for (size_t at = 0; (at = svg.find(rowFill, at)) != std::string::npos; at += rowFill.size()) ++rows;
    EXPECT_EQ(rows, 5u + 1);
}

// Curves that pass the number checks but are beyond computing or drawing: once these
// looped for ever or printed a made-up elevation with exit 0. Now each ends at once
// with its reason on stderr, exit 1 and no number on stdout.
TEST_F(CliTest, CurvesBeyondComputingEndAtOnceWithAReason) {
    struct Case {
        const char* name;
        std::string file;
        int tableStatus;
    } cases[] = {
        // Its two rows (PVC and PVT, 1e-12 apart) are exact to the digits shown.
        {"LengthOf1e-12", Pvi("English", "12", "0", "104", "2", "-2", "1e-12"), kDone},
        {"PviStationOf1e17", Pvi("English", "1000000000000000", "0", "104", "2", "-2", "400"), kRefused},
        {"PlusPartOf1e22", Pvi("English", "12", "1e22", "104", "2", "-2", "400"), kRefused},
        {"LengthOf1e-310", Pvi("English", "12", "0", "104", "2", "-2", "1e-310"), kRefused},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Result plot = RunCli({"plot", c.file});
        EXPECT_EQ(plot.status, kRefused);
        EXPECT_EQ(plot.out, "");
        EXPECT_EQ(plot.err.rfind("gradewise-cli: ", 0), 0u) << plot.err;
        const Result table = RunCli({"table", c.file, "--every", "0+50"});
        EXPECT_EQ(table.status, c.tableStatus) << table.err;
        EXPECT_EQ(table.out.empty(), c.tableStatus != kDone);
    }
}

TEST_F(CliTest, ARefusedCurveExitsOne) {
    const Result zero = RunCli({"plot", Pvi("English", "12", "0", "104", "2", "-2", "0")});
    EXPECT_EQ(zero.status, kRefused);
    EXPECT_EQ(zero.err, "gradewise-cli: plot needs a length of curve greater than 0\n");
}

}  // namespace
}  // namespace gw::cli::test
