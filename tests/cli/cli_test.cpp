// solve, autostation and report: the curve file or JSON they write, the dialogs'
// messages on stderr and the documented exit statuses.
#include <cstdio>
#include <cstdlib>

#include "cli_run.h"
#include "core/curve_solver.h"

namespace gw::cli::test {
namespace {

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

TEST_F(CliTest, UsageErrorsAndUnreadableFilesExitTwo) {
    const std::string file = EnglishCrest();
    const std::vector<std::vector<std::string>> bad = {
        {},
        {"frobnicate", file},
        {"solve", file, "--bogus"},
        {"autostation", file, "--points", "3", "--begin", "1+0", "--increment", "0+5"},
        {"solve", m_dir.string()},
        {"solve", file, "-o", Path("no/such/dir.gwf")},
    };
    for (const auto& args : bad) {
        Result r = RunCli(args);
        EXPECT_EQ(r.status, kUsage) << (args.empty() ? "(none)" : args[0]) << " " << r.err;
        EXPECT_NE(r.err, "");
    }
    EXPECT_NE(RunCli({"solve", Path("missing.gwf")}).err.find("No such file"), std::string::npos);
}

TEST_F(CliTest, VersionHelpAndTheProcessExitStatus) {
    EXPECT_EQ(RunCli({"--version"}).out, "gradewise-cli 4.3.1\n");
    const std::string all = RunCli({"--help"}).out;
    for (const char* command : {"solve", "autostation", "report", "table", "plot", "check"}) {
        SCOPED_TRACE(command);
        EXPECT_NE(all.find(std::string("gradewise-cli ") + command + " FILE"), std::string::npos);
        const Result own = RunCli({command, "--help"});
        EXPECT_EQ(own.status, kDone);
        EXPECT_NE(own.out.find(std::string("gradewise-cli ") + command + " FILE"), std::string::npos) << own.out;
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

// The printed pages as a PDF: one page per copy, read back by a PDF reader.
TEST_F(CliTest, ReportPdfHasOnePagePerCopy) {
    ::setenv("GRADEWISE_PDF", GW_PDF_PATH, 1);
    const std::string pdf = Path("report.pdf");
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
    EXPECT_EQ(RunCli({"report", Example("metric-sag.gwf"), "--pdf", Path("no/r.pdf")}).status, kUsage);
}

}  // namespace
}  // namespace gw::cli::test
