// The profile desk on gradewise-cli's command line: each command's options, output
// and exit status, run through the tool's entry point. The numbers are the core's
// and the readers' refusals are the readers', each tested where it is made.
#include <gtest/gtest.h>

#include <pugixml.hpp>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "core/elevations.h"
#include "tests/cli/run_cli.h"
#include "tests/files/temp_folder.h"

namespace gw::cli::test {
namespace {

std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

std::string Example(const std::string& name) { return std::string(GW_EXAMPLES_DIR) + "/" + name; }

// Schmidt & Wong, Fundamentals of Surveying, Ex. 12.3: -1.0 % to +2.2 % through
// PVI 52+50 at 432.34, L 800 ft, between tangents begun and ended 1250 ft away.
const char* kSag = "Station (ft),Elevation,Length\n40+00,444.84\n52+50,432.34,800\n65+00,459.84\n";

class ProfileCommandsTest : public ::testing::Test {
protected:
    // A file of the test's own; returns its path.
    std::string File(const std::string& name, const std::string& text) {
        const std::string path = m_folder.File(name);
        std::ofstream(path, std::ios::binary) << text;
        return path;
    }
    std::vector<std::string> FolderContents() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path())) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    // xmllint's verdict on a file against the LandXML 1.2 schema: empty when valid.
    std::string SchemaErrors(const std::string& file) const {
        const std::string log = m_folder.File("xmllint.log");
        const std::string command = "xmllint --noout --schema '" GW_LANDXML_XSD "' '" + file + "' 2>'" + log + "'";
        return std::system(command.c_str()) == 0 ? "" : Read(log);
    }
    gw::test::TempFolder m_folder;
};

// Every command that reads a profile, with the option that names its output file.
struct Command {
    const char* name;
    std::vector<std::string> options;
    const char* output;
};
const Command kCommands[] = {
    {"profile", {}, "-o"},
    {"table", {"--every", "1+00"}, "-o"},
    {"plot", {}, "-o"},
    {"check", {"--speed", "50"}, "-o"},
    {"design", {"--pvi", "2", "--k", "100"}, "-o"},
    {"export", {}, "--landxml"},
    {"import", {"--curve", "2"}, "-o"},
};

TEST_F(ProfileCommandsTest, BadInputNamesTheLineOrElementAndWritesNothing) {
    struct Input {
        const char* name;
        std::string text;
        std::string message;
    } inputs[] = {
        {"letters.csv", "Station (ft),Elevation\n10+00,100\n12+00,1O4\n", "Line 3, Elevation: '1O4' is not a number."},
        {"malformed.xml", "<LandXML>\n<Units>\n</LandXML>\n", "Line 3: Start-end tags mismatch."},
        {"doubles-back.csv", "Station (ft),Elevation\n10+00,100\n12+00,104\n11+00,102\n",
         "PVI 3 (line 4) at 11+00.0 is not past PVI 2 (line 3) at 12+00.0: stations must increase along the "
         "profile."},
    };
    const std::string previous = File("previous.out", "the previous output\n");
    for (const Input& input : inputs) {
        const std::string path = File(input.name, input.text);
        for (const Command& c : kCommands) {
            SCOPED_TRACE(std::string(c.name) + " " + input.name);
            std::vector<std::string> args = {c.name, path};
            args.insert(args.end(), c.options.begin(), c.options.end());
            for (const std::string& output : {previous, m_folder.File("new.out")}) {
                std::vector<std::string> withOutput = args;
                withOutput.insert(withOutput.end(), {c.output, output});
                const Result r = RunCli(withOutput);
                EXPECT_EQ(r.status, kRefused);
                EXPECT_EQ(r.out, "");
                EXPECT_EQ(r.err, "gradewise-cli: " + path + ": " + input.message + "\n");
            }
        }
    }
    EXPECT_EQ(Read(previous), "the previous output\n");
    EXPECT_EQ(FolderContents(),
              (std::vector<std::string>{"doubles-back.csv", "letters.csv", "malformed.xml", "previous.out"}));
}

TEST_F(ProfileCommandsTest, BadArgumentsExitTwoWithTheReasonAndWriteNothing) {
    const std::string sag = File("sag.csv", kSag);
    const std::string two = File("two.xml",
                                 "<LandXML><Units><Imperial linearUnit=\"foot\"/></Units>"
                                 "<ProfAlign name=\"one\"><PVI>0 1</PVI><PVI>10 2</PVI></ProfAlign>"
                                 "<ProfAlign name=\"two\"><PVI>0 1</PVI><PVI>10 2</PVI></ProfAlign></LandXML>");
    const std::string out = m_folder.File("out.txt");
    const std::string design = "design " + sag + " --pvi 2 ";
    struct Case {
        std::string args;  // split at spaces
        std::string message;
        bool hint = true;  // the message is a usage error's, with the way to the help
    } cases[] = {
        {"table " + sag + " --every 0+0", "--every takes an interval greater than 0 as WHOLE+PLUS, for example 0+50"},
        {"table " + sag + " --every 1+150",
         "--every takes an interval greater than 0 as WHOLE+PLUS, for example 0+50 (the plus part of '1+150' must be "
         "less than 100)"},
        {"table " + sag + " --every 0+00.001",
         "--every 0+00.001 gives more than 1000000 rows over 2500.0 ft; choose a longer interval"},
        {"table " + sag, "table needs --every WHOLE+PLUS, for example --every 0+50"},
        {"table " + sag + " --every 1+00 --profile FG",
         "--profile picks a ProfAlign of a LandXML file; '" + sag + "' is a CSV profile"},
        {"plot " + sag + " --csv", "unknown option '--csv' for plot"},
        {"check " + sag + " --speed fast",
         "--speed takes a design speed greater than 0 (mph for a profile in feet, km/h in metres)"},
        {"check " + sag + " --speed 90", "A design speed of 90.0 mph is outside the design table (15.0 to 80.0 mph).",
         false},
        {"check " + sag + " --speed 50 --eye 0", "--eye takes a height greater than 0"},
        {"check " + sag + " --speed 50 --clearance 4",
         "The clearance must be more than 5.0, the mean height of the truck driver's eye and the taillight.", false},
        {design, "design takes one of --k K, --through STA ELEV, or --under STA with --underside U and --clearance C"},
        {design + "--k 50 --through 51+00 440",
         "design takes one of --k K, --through STA ELEV, or --under STA with --underside U and --clearance C"},
        {design + "--through 51+00", "--through needs 2 values: --through STA ELEV"},
        {design + "--through 51+00x 440", "--through: '51+00x' is not a station as WHOLE+PLUS"},
        {design + "--through 51+-5 440", "--through: '51+-5' is not a station as WHOLE+PLUS"},
        {design + "--through 51+00 440 --hoffset 12", "--hoffset goes with --xslope"},
        {design + "--k 50 --voffset 1", "--voffset goes with --through"},
        {design + "--under 51+00 --underside 450", "--under goes with --clearance"},
        {"design " + sag + " --pvi 0 --k 50",
         "--pvi takes the number of a PVI as the profile command lists it, for "
         "example 2"},
        {"design " + sag + " --pvi 1 --k 50", "a curve goes at a PVI between the ends of the profile: PVI 2 to PVI 2",
         false},
        {"import " + sag + " --curve 3", "PVI 3 (line 4) has no vertical curve; curves are at PVI 2", false},
        {"export " + sag, "export needs --landxml OUT.xml, for example --landxml profile.xml"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.args);
        std::vector<std::string> args;
        std::istringstream words(c.args);
        for (std::string w; words >> w;) args.push_back(w);
        if (args[0] != "export") args.insert(args.begin() + 2, {"-o", out});
        const Result r = RunCli(args);
        EXPECT_EQ(r.status, kUsage);
        EXPECT_EQ(r.out, "");
        const std::string hint = c.hint ? "Try 'gradewise-cli " + args[0] + " --help'.\n" : "";
        EXPECT_EQ(r.err, "gradewise-cli: " + c.message + "\n" + hint);
        EXPECT_FALSE(std::filesystem::exists(out));
    }
    const Result unnamed = RunCli({"profile", two});
    EXPECT_EQ(unnamed.status, kRefused);
    EXPECT_NE(unnamed.err.find("choose one by its name"), std::string::npos) << unnamed.err;
    const Result named = RunCli({"profile", two, "--profile", "two"});
    EXPECT_EQ(named.status, kDone) << named.err;
    EXPECT_EQ(named.out.substr(0, named.out.find(':')), "Profile two");
}

TEST_F(ProfileCommandsTest, EachCommandWritesItsResultToItsOutputFile) {
    const std::string sag = File("sag.csv", kSag);
    for (const Command& c : kCommands) {
        SCOPED_TRACE(c.name);
        std::vector<std::string> args = {c.name, sag};
        args.insert(args.end(), c.options.begin(), c.options.end());
        const std::string path = m_folder.File(std::string(c.name) + ".out");
        const Result shown = RunCli(args);
        args.insert(args.end(), {c.output, path});
        const Result written = RunCli(args);
        EXPECT_EQ(written.status, kDone) << written.err;
        EXPECT_EQ(written.out, "");
        EXPECT_NE(Read(path), "");
        // The same bytes as on standard output; export has no standard output.
        if (c.name != std::string("export")) {
            EXPECT_EQ(Read(path), shown.out);
        }
    }
    EXPECT_EQ(SchemaErrors(m_folder.File("export.out")), "");
}

TEST_F(ProfileCommandsTest, TableRowsOverTheWholeProfile) {
    const Result csv = RunCli({"table", File("sag.csv", kSag), "--every", "1+00", "--csv"});
    ASSERT_EQ(csv.status, kDone) << csv.err;
    std::istringstream lines(csv.out);
    std::vector<std::string> rows;
    for (std::string line; std::getline(lines, line);) rows.push_back(line);
    ASSERT_EQ(rows.size(), 30u);  // header, 26 even stations, PVC, low point... at 51+00, PVI, PVT
    EXPECT_EQ(rows[0], "Station,Elevation (ft),Grade (%),Point");
    EXPECT_EQ(rows[1], "40+00.0,444.84,-1.0,PVI 1");
    EXPECT_EQ(rows[10], "48+50.0,436.34,-1.0,PVC 2");
    EXPECT_EQ(rows[13], "51+00.0,435.09,0.0,Low point 2");
    EXPECT_EQ(rows[20], "56+50.0,441.14,2.2,PVT 2");
    EXPECT_EQ(rows[29], "65+00.0,459.84,2.2,PVI 3");

    const Result text = RunCli({"table", File("sag.csv", kSag), "--every", "1+00"});
    EXPECT_EQ(text.out.substr(0, text.out.find('\n')), "Station  Elevation (ft)  Grade (%)  Point");
}

TEST_F(ProfileCommandsTest, CheckEndsWithTheVerdictAndItsStatus) {
    // A crest of A = 4 and a sag of A = 3.2, both 600 ft long.
    const std::string file = File("p.csv",
                                  "Station (ft),Elevation,Length\n0+00,100\n10+00,120,600\n25+00,90,600\n"
                                  "40+00,108\n");
    struct Case {
        const char* name;
        std::vector<std::string> options;
        int status;
        const char* lastLine;
    } cases[] = {
        // At 55 mph, S = 495. Crest: 4 * 495^2 / 2158 = 454.2 < S, so 990 - 2158 / 4 =
        // 450.5. Sag: 3.2 * 495^2 / (400 + 1732.5) = 367.7 < S, so 990 - 2132.5 / 3.2 =
        // 323.6; comfort 3.2 * 55^2 / 46.5 = 208.2; general minimum 165.
        {"at 55 mph", {"--speed", "55"}, kDone, "Long enough: every curve meets every required criterion at 55 mph."},
        // At 60 mph, S = 570: 4 * 570^2 / 2158 = 602.2243, more than S.
        {"at 60 mph",
         {"--speed", "60"},
         kTooShort,
         "Too short: PVI 2 (line 3) needs 602.2243 ft for stopping sight distance."},
        // Passing at 55 mph, S = 900: 4 * 900^2 / 2800 = 1157.1429, more than S.
        {"passing required",
         {"--speed", "55", "--passing"},
         kTooShort,
         "Too short: PVI 2 (line 3) needs 1157.1429 ft for passing sight distance."},
        // An object 0.5 ft high: C = 200 (sqrt 3.5 + sqrt 0.5)^2 = 1329.1503; 4 * 495^2 / C.
        {"a lower object",
         {"--speed", "55", "--object", "0.5"},
         kTooShort,
         "Too short: PVI 2 (line 3) needs 737.3884 ft for stopping sight distance."},
        // Under a structure 11 ft clear, a taillight 12 ft up: D = 800 (11 - (8 + 12) / 2)
        // = 800; 3.2 * 495^2 / 800 = 980.1, more than S.
        {"under a structure",
         {"--speed", "55", "--clearance", "11", "--taillight", "12"},
         kTooShort,
         "Too short: PVI 3 (line 4) needs 980.1 ft for sight under the structure."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<std::string> args = {"check", file};
        args.insert(args.end(), c.options.begin(), c.options.end());
        const Result r = RunCli(args);
        EXPECT_EQ(r.status, c.status) << r.err;
        EXPECT_EQ(LastLine(r.out), c.lastLine) << r.out;
    }
}

TEST_F(ProfileCommandsTest, DesignStatuses) {
    const std::string file =
        File("p.csv", "Station (ft),Elevation,Length\n30+00,1289.5\n41+00,1262.0,100\n47+00,1280.0,600\n60+00,1279\n");
    struct Case {
        const char* name;
        std::vector<std::string> options;
        int status;
        const char* lastLine;
    } cases[] = {
        // PVI 41+00 at 1262, -2.50 / +3.00, through 1268.00 at 42+50: 687.22 ft, which
        // overlaps the next curve.
        {"through a point",
         {"--through", "42+50", "1268"},
         kNoSolution,
         "The profile refuses this length: The curves at PVI 2 (line 3) and PVI 3 (line 4) overlap: the first ends "
         "at 44+43.6096, after the second begins at 44+00.0."},
        // The same point on the finished surface, 0.5 above the profile and 12 ft out on
        // a -2 % cross slope: 1268 + 0.5 - 0.24.
        {"through a point with offsets",
         {"--through", "42+50", "1268.26", "--voffset", "0.5", "--hoffset", "12", "--xslope", "-2"},
         kNoSolution,
         "The profile refuses this length: The curves at PVI 2 (line 3) and PVI 3 (line 4) overlap: the "
         "first ends at 44+43.6096, after the second begins at 44+00.0."},
        {"no solution",
         {"--through", "42+50", "1250"},
         kNoSolution,
         "No solution: no symmetric curve at this PVI passes through 42+50.0 at 1250.0."},
        {"by K",
         {"--k", "20"},
         kDone,
         "It fits between its neighbours: PVC 40+45.0 at 1263.375, PVT 41+55.0 at 1263.65."},
        // A sag: the road at 41+00 at most 1270 - 8 = 1262, the PVI itself: any curve
        // rises above it.
        {"under a structure at the PVI",
         {"--under", "41+00", "--underside", "1270", "--clearance", "8"},
         kNoSolution,
         "No solution: the tangent at 41+00.0 is already above it, and a sag curve only rises as it grows."},
        // The road at 41+00 at most 1272 - 8 = 1264: a middle ordinate A L / 800 of at most
        // 2, so L at most 290.9091.
        {"under a structure",
         {"--under", "41+00", "--underside", "1272", "--clearance", "8"},
         kDone,
         "It fits between its neighbours: PVC 39+54.5455 at 1265.6364, PVT 42+45.4545 at 1266.3636."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<std::string> args = {"design", file, "--pvi", "2"};
        args.insert(args.end(), c.options.begin(), c.options.end());
        const Result r = RunCli(args);
        EXPECT_EQ(r.status, c.status) << r.err;
        EXPECT_EQ(LastLine(r.out), c.lastLine) << r.out;
    }
}

// A curve file's tangents run on past its PVC and PVT: a longer curve moves its ends.
TEST_F(ProfileCommandsTest, DesignOnACurveFileIsNotBoundByItsEnds) {
    // PVI 12+00 at 104, +2 % to -2 %, PVC 10+00 and PVT 14+00: K 125 gives 500 ft.
    const Result r = RunCli({"design", Example("english-crest.gwf"), "--pvi", "2", "--k", "125"});
    EXPECT_EQ(r.status, kDone) << r.err;
    EXPECT_EQ(LastLine(r.out), "The curve: PVC 9+50.0 at 99.0, PVT 14+50.0 at 99.0.");
}

TEST_F(ProfileCommandsTest, ImportStatuses) {
    const std::string header = "Station (ft),Elevation,Length,Length in,Length out\n";
    const std::string file =
        File("p.csv", header + "0+00,100\n10+00,120,400\n20+00,100,,300,500\n25+00,110\n30+00,100\n");
    EXPECT_EQ(RunCli({"import", file, "--curve", "2"}).status, kDone);
    const Result unsymmetrical = RunCli({"import", file, "--curve", "3"});
    EXPECT_EQ(unsymmetrical.status, kRefused);
    EXPECT_EQ(unsymmetrical.err,
              "gradewise-cli: the curve at PVI 3 (line 4) is unsymmetrical (L1 300.0, L2 500.0); "
              "a curve file holds a symmetric curve\n");
    const Result past = RunCli({"import", file, "--curve", "6"});
    EXPECT_EQ(past.status, kUsage);
    EXPECT_EQ(past.err, "gradewise-cli: the profile has PVI 1 to PVI 5; curves are at PVI 2, PVI 3\n");
    // A stored row off the curve stops the rows as Calculate TOS does; the curve is still written.
    const std::string rows =
        File("rows.xml",
             "<LandXML><Units><Imperial linearUnit=\"foot\"/></Units><Alignments><Alignment><Profile>"
             "<ProfAlign name=\"P\"><PVI>0 100</PVI><ParaCurve length=\"400\">1000 120</ParaCurve><PVI>2000 100</PVI>"
             "<Feature name=\"gradewise-curve-file\"><Property label=\"pvi\" value=\"2\"/>"
             "<Property label=\"row 1 whole\" value=\"9\"/><Property label=\"row 1 plus\" value=\"0\"/>"
             "<Property label=\"row 2 whole\" value=\"20\"/><Property label=\"row 2 plus\" value=\"0\"/></Feature>"
             "</ProfAlign></Profile></Alignment></Alignments></LandXML>");
    const std::string out = m_folder.File("rows.gwf");
    const Result off = RunCli({"import", rows, "--curve", "2", "-o", out});
    EXPECT_EQ(off.status, kStationOffCurve);
    EXPECT_EQ(off.err, "Top of Slab Station must be between PVC and PVT stations.\n");
    EXPECT_NE(Read(out).find("\"9\",\"20\","), std::string::npos) << Read(out);
}

// Every bundled example exported to LandXML, imported and solved is the curve file
// solving it gives.
TEST_F(ProfileCommandsTest, EveryBundledExampleComesBackThroughLandXml) {
    int examples = 0;
    for (const auto& entry : std::filesystem::directory_iterator(GW_EXAMPLES_DIR)) {
        if (entry.path().extension() != ".gwf") continue;
        ++examples;
        const std::string path = entry.path().string();
        SCOPED_TRACE(path);
        const std::string xml = m_folder.File("export.xml"), back = m_folder.File("back.gwf");
        ASSERT_EQ(RunCli({"export", path, "--landxml", xml}).status, kDone);
        EXPECT_EQ(SchemaErrors(xml), "");
        ASSERT_EQ(RunCli({"import", xml, "--curve", "2", "-o", back}).status, kDone);
        EXPECT_EQ(Read(back), RunCli({"solve", "--elevations", path}).out);
    }
    EXPECT_GE(examples, 2);
}

TEST_F(ProfileCommandsTest, ListingAsTextAndJson) {
    const std::string file = File("p.csv",
                                  "Station (m),Elevation,Length in,Length out\n0+000,100\n1+000,120,300,500\n"
                                  "2+000,100\n2+500,110\n3+000,100\n");
    const Result text = RunCli({"profile", file});
    ASSERT_EQ(text.status, kDone) << text.err;
    EXPECT_EQ(text.out.substr(0, text.out.find("\n\nPVI 2")),
              "Profile p: 5 PVIs from 0+000.0 to 3+000.0, 3000.0 m (metres)\n\n"
              "PVI 1 (line 2)  0+000.0 El. 100.0\n  begins the profile, grade ahead +2.0 %");
    EXPECT_NE(text.out.find("PVI 4 (line 5)  2+500.0 El. 110.0\n  grade break without a curve: G1 +2.0 %, "
                            "G2 -2.0 %, A 4.0 %\n"),
              std::string::npos)
        << text.out;
    const Result json = RunCli({"profile", file, "--json"});
    EXPECT_NE(
        json.out.find("\"stationText\": \"2+500.0\",\n      \"elevation\": 110.0,\n      \"gradeIn\": 2.0,\n"
                      "      \"gradeOut\": -2.0,\n      \"gradeBreakWithoutCurve\": true,\n      \"curve\": null\n"),
        std::string::npos)
        << json.out;
}

TEST_F(ProfileCommandsTest, PlotLabelsEveryPointInWellFormedSvg) {
    const Result r = RunCli({"plot", File("sag.csv", kSag)});
    ASSERT_EQ(r.status, kDone) << r.err;
    pugi::xml_document svg;
    ASSERT_TRUE(svg.load_string(r.out.c_str()));
    std::vector<std::string> labels;
    for (pugi::xpath_node text : svg.select_nodes("//text")) labels.push_back(text.node().text().get());
    for (const char* label :
         {"Profile of sag", "PVI 1  40+00.0  El. 444.84", "PVC 2  48+50.0  El. 436.34", "PVI 2  52+50.0  El. 432.34",
          "Low point 2  51+00.0  El. 435.09", "PVT 2  56+50.0  El. 441.14", "PVI 3  65+00.0  El. 459.84"}) {
        EXPECT_NE(std::find(labels.begin(), labels.end(), label), labels.end()) << label;
    }
}

}  // namespace
}  // namespace gw::cli::test
