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

namespace gw::cli::test {
namespace {

namespace fs = std::filesystem;

// Bad arguments (the whole list is in tests/cli/sessions.md) go to standard error, with
// where help is when the words are at fault and nothing on standard output.
TEST(CommandLineTest, BadArgumentsGoToStandardErrorWithExitTwo) {
    const Result words = RunCli("solve");
    EXPECT_EQ(words.status, kUsage);
    EXPECT_EQ(words.err, "gradewise-cli: solve needs a curve FILE\nTry 'gradewise-cli solve --help'.\n");
    EXPECT_EQ(words.out, "");
    const Result values = RunCli("design " GW_SOURCE_DIR "/tests/cli/inputs/sag.csv --pvi 1 --k 50");
    EXPECT_EQ(values.status, kUsage);
    EXPECT_EQ(values.err, "gradewise-cli: a curve goes at a PVI between the ends of the profile: PVI 2 to PVI 2\n");
    EXPECT_EQ(values.out, "");
}

// A curve file is read to its first 4 MiB, as the desktop reads it; a profile that
// large is refused before it is read.
TEST(CommandLineTest, HugeFiles) {
    Folder folder;
    const std::string curve = folder.Put("huge.gwf", Read(Example("english-crest.gwf")) + std::string(5 << 20, ' '));
    const Result solved = RunCli("solve " + curve);
    EXPECT_EQ(solved.status, kDone) << solved.err;
    EXPECT_EQ(solved.out.substr(0, solved.out.find('\n')), "\"SSD\",\"English\",,,,\"0\"\r");
    const std::string csv =
        folder.Put("huge.csv", "Station (ft),Elevation\n0+00,100\n10+00,110\n" + std::string(4 << 20, '#'));
    const Result profile = RunCli("profile " + csv);
    EXPECT_EQ(profile.status, kUsage);
    EXPECT_EQ(profile.err, "gradewise-cli: '" + csv + "' is larger than 4 MiB, more than a profile holds\n");
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
    for (const CommandRow& row : Commands()) {
        const std::string name = row.name;
        const Result own = RunCli(name + " --help");
        EXPECT_EQ(own.status, kDone) << name;
        EXPECT_EQ(own.out.rfind("Usage: gradewise-cli " + name + " FILE", 0), 0u) << name;
        EXPECT_NE(general.out.find("\n  gradewise-cli " + name + " FILE"), std::string::npos) << name;
    }
    // Help asked for after other words.
    EXPECT_EQ(
        RunCli("report " + Example("english-crest.gwf") + " -h").out.rfind("Usage: gradewise-cli report FILE [", 0),
        0u);
}

// The real program, standard output going to `output` (created when missing);
// `childSetUp` runs in the child before the program starts.
Result RunProgram(const std::vector<std::string>& args, const std::string& output,
                  const std::function<void()>& childSetUp = {}) {
    int errPipe[2];
    if (::pipe(errPipe) != 0) return {"", -1, "", "no pipe"};
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
    return {"", WIFEXITED(raw) ? WEXITSTATUS(raw) : 128 + WTERMSIG(raw), "", err};
}

// Output that cannot be written is an error with the system's reason and exit 2, and
// an output file is left byte for byte as it was, with nothing beside it: past a
// file-size limit (once a silent death by SIGXFSZ), from the PDF helper too, and to
// standard output.
TEST(CommandLineTest, OutputThatCannotBeWrittenIsReportedAndLosesNothing) {
    Folder folder;
    const std::string previous = "the previous output\n", table = folder.File("table.txt"),
                      pdf = folder.File("report.pdf"), crest = Example("english-crest.gwf");
    for (const std::string& f : {table, pdf}) std::ofstream(f) << previous;
    const std::function<void()> sizeLimit = [] {
        const rlimit small{64, 64};
        ::setrlimit(RLIMIT_FSIZE, &small);
    };
    const std::string tooLarge = std::strerror(EFBIG);
    struct Case {
        const char* name;
        std::string line, output;  // the command line, where standard output goes
        std::function<void()> setUp;
        std::string message;
    } cases[] = {
        {"PastASizeLimit", "table " + crest + " --every 0+1 -o " + table, "/dev/null", sizeLimit,
         "cannot write '" + table + "': " + tooLarge},
        {"APdfPastASizeLimit", "report " + crest + " --pdf " + pdf, "/dev/null", sizeLimit,
         "cannot write '" + pdf + "': " + tooLarge},
        {"StandardOutput",
         "solve " + crest,
         "/dev/full",
         {},
         std::string("cannot write to standard output: ") + std::strerror(ENOSPC)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Result r = RunProgram(Words(c.line), c.output, c.setUp);
        EXPECT_EQ(r.status, kUsage);
        EXPECT_EQ(r.err, "gradewise-cli: " + c.message + "\n");
        std::vector<std::string> left;
        for (const auto& entry : fs::directory_iterator(folder.Path())) left.push_back(entry.path().filename());
        std::sort(left.begin(), left.end());
        EXPECT_EQ(left, (std::vector<std::string>{"report.pdf", "table.txt"}));
        EXPECT_EQ(Read(table), previous);
        EXPECT_EQ(Read(pdf), previous);
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
        const Result r = RunCli("report " + F + " --pdf " + out + " --copies 12");
        ::unsetenv("GRADEWISE_PDF");
        EXPECT_EQ(r.status, c.status);
        EXPECT_EQ(r.err, c.err);
    }
    EXPECT_EQ(Read(args), F + " " + out + " 12\n");
}

}  // namespace
}  // namespace gw::cli::test
