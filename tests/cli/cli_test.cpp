#include "cli/cli.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "core/curve_sheet.h"

namespace gw::cli {
namespace {

namespace fs = std::filesystem;

struct Result {
    int status;
    std::string out;
    std::string err;
};

Result RunCli(std::vector<std::string> args) {
    args.insert(args.begin(), "gradewise-cli");
    std::vector<char*> argv;
    for (std::string& a : args) argv.push_back(a.data());
    std::ostringstream out, err;
    int status = Run(static_cast<int>(argv.size()), argv.data(), out, err);
    return {status, out.str(), err.str()};
}

std::string Example(const char* name) { return std::string(GW_EXAMPLES_DIR) + "/" + name; }

class CliTest : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("gw_cli_test_" + std::to_string(::getpid()) + "_" +
                                            ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directories(dir_);
    }
    void TearDown() override { fs::remove_all(dir_); }

    std::string Write(const char* name, const CurveSheet& sheet) {
        std::string path = (dir_ / name).string();
        std::ofstream(path, std::ios::binary) << CurveFileBytes(sheet);
        return path;
    }

    fs::path dir_;
};

CurveSheet EnglishPvi(const char* stam = "0") {
    CurveSheet s = NewCurveSheet("English");
    s.txtPVISTA = "12";
    s.txtPVISTAM = stam;
    s.txtPVIEval = "104";
    s.txtG1 = "2";
    s.txtG2 = "-2";
    s.txtLC = "400";
    return s;
}

TEST_F(CliTest, VersionAndHelp) {
    EXPECT_EQ(RunCli({"--version"}).out, "gradewise-cli 4.3.1\n");
    Result help = RunCli({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("gradewise-cli autostation FILE"), std::string::npos);
    EXPECT_EQ(RunCli({"solve", "--help"}).status, 0);
}

TEST_F(CliTest, SolveWritesTheCurveFileAsSaveWould) {
    Result r = RunCli({"solve", Write("a.gwf", EnglishPvi())});
    ASSERT_EQ(r.status, kDone) << r.err;
    CurveSheet solved = ParseCurveFile(r.out);
    EXPECT_EQ(solved.txtPVCSTA, "10");
    EXPECT_EQ(solved.txtSD, "364.5545");
    EXPECT_EQ(r.out.substr(r.out.size() - 2), "\r\n");
    EXPECT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), 8);
}

TEST_F(CliTest, SolveJsonCarriesEveryFieldAndTheChangedFlag) {
    Result r = RunCli({"solve", "--json", Write("a.gwf", EnglishPvi())});
    ASSERT_EQ(r.status, kDone) << r.err;
    for (const char* piece : {"\"txtPVISTA\": \"12\"", "\"txtTPSTAM\": \"0.0\"", "\"lblSDL\": \"SSD\"",
                              "\"lblMorF\": \"English\"", "\"optPVI\": true", "\"optPVCPVT\": false",
                              "\"txtVOffset\": \"\"", "\"changed\": true"}) {
        EXPECT_NE(r.out.find(piece), std::string::npos) << piece;
    }
    EXPECT_NE(r.out.find("\"txtTOTSTA1\": [\"\", \"\""), std::string::npos);
}

TEST_F(CliTest, ARefusedCheckPrintsItsMessageOnlyOnStderr) {
    CurveSheet s = EnglishPvi("");
    Result r = RunCli({"solve", Write("a.gwf", s)});
    EXPECT_EQ(r.status, kRefused);
    EXPECT_EQ(r.err, "PVI Station needs to be entered.\n");
    EXPECT_EQ(r.out, "");
}

TEST_F(CliTest, ElevationsOffTheCurveStillWriteTheCurve) {
    CurveSheet s = EnglishPvi();
    ASSERT_FALSE(Calculate(s));  // solved, so the next Calc moves no station and keeps the rows
    s.elevations.rows[0] = {"11", "0", ""};
    s.elevations.rows[1] = {"15", "0", ""};
    Result r = RunCli({"solve", "--elevations", Write("a.gwf", s)});
    EXPECT_EQ(r.status, kStationOffCurve);
    EXPECT_EQ(r.err, "Top of Slab Station must be between PVC and PVT stations.\n");
    EXPECT_EQ(ParseCurveFile(r.out).elevations.rows[0].txtTotalTopSlab1, "101.5");
}

TEST_F(CliTest, AutostationByPointsAndBySpacing) {
    const std::string file = Write("a.gwf", EnglishPvi());
    Result points = RunCli({"autostation", file, "--points", "10", "--json"});
    ASSERT_EQ(points.status, kDone) << points.err;
    EXPECT_NE(points.out.find("\"10\", \"10\", \"10\", \"11\""), std::string::npos);
    EXPECT_NE(points.out.find("\"44.4444\""), std::string::npos);

    const std::string out = (dir_ / "b.gwf").string();
    Result spacing = RunCli({"autostation", file, "--begin", "10+0", "--increment", "0+50", "-o", out});
    ASSERT_EQ(spacing.status, kDone) << spacing.err;
    EXPECT_EQ(spacing.out, "");
    std::ifstream in(out, std::ios::binary);
    CurveSheet back = ParseCurveFile(std::string(std::istreambuf_iterator<char>(in), {}));
    EXPECT_EQ(back.elevations.rows[8].txtTOTSTA1, "14");
    EXPECT_EQ(back.elevations.rows[8].txtTotalTopSlab1, "100.0");
    EXPECT_EQ(back.elevations.rows[9].txtTOTSTA1, "");
}

TEST_F(CliTest, AutostationRefusalsUseTheDialogsMessages) {
    const std::string file = Write("a.gwf", EnglishPvi());
    struct Case {
        std::vector<std::string> args;
        const char* message;
    } cases[] = {
        {{"--points", "25"}, "Points can not be more than 20.\n"},
        {{"--begin", "9+0", "--increment", "0+50"}, "Beginning station must be between PVC and PVT stations\n"},
        {{"--begin", "10+0", "--increment", "1+-5"}, "Increment must be greater than 0.\n"},
        {{"--begin", "10+0", "--increment", "0+0"}, "Increment must be greater than 0.\n"},
    };
    for (const Case& c : cases) {
        std::vector<std::string> args = {"autostation", file};
        args.insert(args.end(), c.args.begin(), c.args.end());
        Result r = RunCli(args);
        EXPECT_EQ(r.status, kRefused) << c.message;
        EXPECT_EQ(r.err, c.message);
        EXPECT_EQ(r.out, "");
    }
    Result zero = RunCli({"autostation", file, "--points", "0", "--json"});
    EXPECT_EQ(zero.status, kDone);
    EXPECT_NE(zero.out.find("\"txtTOTSTA1\": [\"\", \"\""), std::string::npos);
}

TEST_F(CliTest, UsageErrorsAndUnreadableFilesExitTwo) {
    const std::string file = Write("a.gwf", EnglishPvi());
    const std::vector<std::vector<std::string>> bad = {
        {},
        {"frobnicate", file},
        {"solve"},
        {"solve", file, "--bogus"},
        {"solve", file, file},
        {"solve", file, "-o"},
        {"report", file, "--json"},
        {"autostation", file},
        {"autostation", file, "--points", "3", "--begin", "1+0", "--increment", "0+5"},
        {"autostation", file, "--begin", "10", "--increment", "0+5"},
        {"solve", (dir_ / "missing.gwf").string()},
        {"solve", dir_.string()},
        {"solve", file, "-o", (dir_ / "no" / "such" / "dir.gwf").string()},
    };
    for (const auto& args : bad) {
        Result r = RunCli(args);
        EXPECT_EQ(r.status, kUsage) << (args.empty() ? "(none)" : args[0]) << " " << r.err;
        EXPECT_NE(r.err, "");
    }
    EXPECT_NE(RunCli({"solve", (dir_ / "missing.gwf").string()}).err.find("No such file"), std::string::npos);
}

TEST_F(CliTest, ReportPrintsOneCopyWithLfEnds) {
    Result r = RunCli({"report", Example("english-crest.gwf")});
    ASSERT_EQ(r.status, kDone);
    EXPECT_EQ(r.out.find('\r'), std::string::npos);
    EXPECT_EQ(r.out.rfind("Gradewise ", 0), 0u);
    EXPECT_NE(r.out.find("\nInput:   (English)\n"), std::string::npos);
    EXPECT_NE(r.out.find("\nElevation at Station: 13+50  =  101.135\n"), std::string::npos);
}

// The printed pages as a PDF: one page per copy, read back by a PDF reader.
TEST_F(CliTest, ReportPdfHasOnePagePerCopy) {
    ::setenv("GRADEWISE_PDF", GW_PDF_PATH, 1);
    const std::string pdf = (dir_ / "report.pdf").string();
    Result r = RunCli({"report", Example("metric-sag.gwf"), "--pdf", pdf, "--copies", "3"});
    ASSERT_EQ(r.status, kDone) << r.err;
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
    EXPECT_EQ(RunCli({"report", Example("metric-sag.gwf"), "--copies", "2"}).status, kUsage);
    Result unwritable = RunCli({"report", Example("metric-sag.gwf"), "--pdf", (dir_ / "no" / "r.pdf").string()});
    EXPECT_EQ(unwritable.status, kUsage);
}

TEST_F(CliTest, BothExamplesSolveWithTheirElevations) {
    for (const char* name : {"english-crest.gwf", "metric-sag.gwf"}) {
        Result r = RunCli({"solve", "--elevations", Example(name)});
        ASSERT_EQ(r.status, kDone) << name << ": " << r.err;
        CurveSheet s = ParseCurveFile(r.out);
        EXPECT_NE(s.txtSD, "") << name;
        EXPECT_NE(s.elevations.rows[0].txtTotalTopSlab1, "") << name;
    }
}

TEST(CliProcessTest, TheProgramExitsWithTheDocumentedStatus) {
    const std::string cli = GW_CLI_PATH;
    auto status = [&](const std::string& args) {
        int raw = std::system((cli + " " + args + " >/dev/null 2>&1").c_str());
        return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    };
    EXPECT_EQ(status("--version"), 0);
    EXPECT_EQ(status("solve " + Example("english-crest.gwf")), 0);
    EXPECT_EQ(status("solve /nonexistent/curve.gwf"), 2);
}

}  // namespace
}  // namespace gw::cli
