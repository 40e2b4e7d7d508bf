// The profile desk on gradewise-cli's command line: listing, table, check, design,
// import and export as the tool prints them. The numbers are the core's and tested
// there; the readers' refusals are the readers' (profile_files_test).
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "fuzz/json_check.h"
#include "tests/cli/run_cli.h"

namespace gw::cli::test {
namespace {

// Metric: an unsymmetrical crest, a grade break, a curve without a change of grade, a
// crest whose high point lies beyond it, and a level end.
const char* kMixedCsv =
    "Station (m),Elevation,Length,Length in,Length out\n0+000,100\n1+000,120,,300,500\n2+000,100\n"
    "3+000,120,200\n3+500,130,100\n4+000,135\n4+500,135\n";

TEST(ProfileCommandsTest, ListingAsText) {
    Folder folder;
    const Result r = RunCli("profile " + folder.Put("mix.csv", kMixedCsv));
    ASSERT_EQ(r.status, kDone) << r.err;
    EXPECT_EQ(r.out,
              "Profile mix: 7 PVIs from 0+000.0 to 4+500.0, 4500.0 m (metres)\n\n"
              "PVI 1 (line 2)  0+000.0 El. 100.0\n  begins the profile, grade ahead +2.0 %\n\n"
              "PVI 2 (line 3)  1+000.0 El. 120.0\n"
              "  unsymmetrical crest curve: G1 +2.0 %, G2 -2.0 %, A 4.0 %, L1 300.0 m, L2 500.0 m, L 800.0 m, K 200.0\n"
              "  PVC 0+700.0 El. 114.0, PVT 1+500.0 El. 110.0, middle ordinate 3.75 m\n"
              "  high point 0+940.0 El. 116.4\n\n"
              "PVI 3 (line 4)  2+000.0 El. 100.0\n  grade break without a curve: G1 -2.0 %, G2 +2.0 %, A 4.0 %\n\n"
              "PVI 4 (line 5)  3+000.0 El. 120.0\n"
              "  curve without a change of grade: G1 +2.0 %, G2 +2.0 %, A 0.0 %, L 200.0 m\n"
              "  PVC 2+900.0 El. 118.0, PVT 3+100.0 El. 122.0, middle ordinate 0.0 m\n\n"
              "PVI 5 (line 6)  3+500.0 El. 130.0\n  crest curve: G1 +2.0 %, G2 +1.0 %, A 1.0 %, L 100.0 m, K 100.0\n"
              "  PVC 3+450.0 El. 129.0, PVT 3+550.0 El. 130.5, middle ordinate 0.125 m\n"
              "  high point: none on the curve\n\n"
              "PVI 6 (line 7)  4+000.0 El. 135.0\n  grade break without a curve: G1 +1.0 %, G2 0.0 %, A 1.0 %\n\n"
              "PVI 7 (line 8)  4+500.0 El. 135.0\n  ends the profile, grade behind 0.0 %\n");
}

TEST(ProfileCommandsTest, ListingAsJson) {
    Folder folder;
    const Result r = RunCli("profile --json " + folder.Put("mix.csv", kMixedCsv));
    ASSERT_EQ(r.status, kDone) << r.err;
    EXPECT_TRUE(gw::fuzz::JsonCheck::Valid(r.out)) << r.out;
    for (const char* piece : {
             "{\n  \"name\": \"mix\",\n  \"units\": \"Metric\",\n  \"pvis\": [\n    {\n      \"number\": 1,\n"
             "      \"source\": \"line 2\",\n      \"station\": 0.0,\n      \"stationText\": \"0+000.0\",\n"
             "      \"elevation\": 100.0,\n      \"gradeIn\": null,\n      \"gradeOut\": 2.0,\n"
             "      \"gradeBreakWithoutCurve\": false,\n      \"curve\": null\n    },\n",
             "      \"curve\": {\n        \"kind\": \"crest\",\n        \"symmetric\": false,\n        \"g1\": 2.0,\n"
             "        \"g2\": -2.0,\n        \"A\": 4.0,\n        \"L\": 800.0,\n        \"L1\": 300.0,\n"
             "        \"L2\": 500.0,\n        \"middleOrdinate\": 3.75,\n        \"K\": 200.0,\n"
             "        \"pvc\": {\n          \"station\": 700.0,\n          \"stationText\": \"0+700.0\",\n"
             "          \"elevation\": 114.0\n        },\n",
             "        \"highPoint\": {\n          \"station\": 940.0,\n",
             "      \"gradeBreakWithoutCurve\": true,\n",
             "        \"kind\": \"none\",\n",
             "        \"K\": null,\n",
             "        \"highPoint\": null\n",
             "      \"gradeOut\": null,\n      \"gradeBreakWithoutCurve\": false,\n      \"curve\": null\n    }\n  "
             "]\n}\n",
         }) {
        EXPECT_NE(r.out.find(piece), std::string::npos) << piece;
    }
}

TEST(ProfileCommandsTest, TableAsCsv) {
    Folder folder;
    const Result r = RunCli("table " + folder.Put("sag.csv", kSagCsv) + " --every 5+00 --csv");
    EXPECT_EQ(r.out,
              "Station,Elevation (ft),Grade (%),Point\n40+00.0,444.84,-1.0,PVI 1\n45+00.0,439.84,-1.0,\n"
              "48+50.0,436.34,-1.0,PVC 2\n50+00.0,435.29,-0.4,\n51+00.0,435.09,0.0,Low point 2\n"
              "52+50.0,435.54,0.6,PVI 2\n55+00.0,438.29,1.6,\n56+50.0,441.14,2.2,PVT 2\n60+00.0,448.84,2.2,\n"
              "65+00.0,459.84,2.2,PVI 3\n");
}

// Every option of check reaches the criteria it changes, and the verdict and exit
// status follow the governing minimum.
TEST(ProfileCommandsTest, CheckOptionsAndVerdicts) {
    Folder folder;
    // A crest of A = 4 and a sag of A = 3.2, both 600 ft long.
    const std::string two = folder.Put("two.csv",
                                       "Station (ft),Elevation,Length\n0+00,100\n10+00,120,600\n"
                                       "25+00,90,600\n40+00,108\n");
    const std::string mix = folder.Put("mix.csv", kMixedCsv);
    const std::string stopping = "Too short: PVI 2 (line 3) needs ";
    struct Case {
        const char* name;
        std::string line;
        int status;
        std::vector<std::string> pieces;
    } cases[] = {
        {"TakenAsTheNextRow",
         two + " --speed 52",
         kDone,
         {"Check of two at 52 mph (taken as 55 mph): stopping sight distance 495 ft (AASHTO 2018, level roadway)\n",
          "Long enough: every curve meets every required criterion at 55 mph.\n"}},
        {"ExactlyTheMinimum",
         folder.Put("min.csv", "Station (ft),Elevation,Length\n0+00,100\n10+00,110,150\n20+00,100\n") + " --speed 50",
         kDone,
         {"  general minimum                      L = 3 V                   150.0 ft  met\n"}},
        {"TwoTooShort",
         two + " --speed 80",
         kTooShort,
         {"\nToo short: PVI 2 (line 3) needs 1534.9398 ft for stopping sight distance; PVI 3 (line 4) needs "
          "699.6875 ft for headlight sight distance.\n"}},
        {"Passing", two + " --speed 55 --passing", kTooShort, {stopping + "1157.1429 ft for passing sight distance."}},
        {"Eye", two + " --speed 55 --eye 2", kTooShort, {stopping + "612.5625 ft for stopping sight distance."}},
        {"Object",
         two + " --speed 55 --object 0.5",
         kTooShort,
         {stopping + "737.3884 ft for stopping sight distance."}},
        {"Oncoming",
         two + " --speed 55 --passing --oncoming 2",
         kTooShort,
         {"passing sight distance   S = 900 ft  L = A S^2 / 2158.3005 (S<L)"}},
        {"Headlight", two + " --speed 55 --headlight 1", kDone, {"L = 2 S - (200 + 3.5 S) / A (S>L)  386.0938 ft"}},
        {"TruckEye", two + " --speed 55 --clearance 11 --truck-eye 10", kDone, {"800 (11 - (10 + 2) / 2) = 4000"}},
        {"Taillight",
         two + " --speed 55 --clearance 11 --taillight 12",
         kTooShort,
         {"800 (11 - (8 + 12) / 2) = 800", "Too short: PVI 3 (line 4) needs 980.1 ft for sight under the structure."}},
        {"EveryKindOfPviInMetres",
         mix + " --speed 50",
         kTooShort,
         {"Check of mix at 50 km/h: stopping sight distance 65 m",
          "K = 200.0 (unsymmetrical: its total length is checked)\n", "L = 0.6 V                30.0 m   met\n",
          "\nPVI 3 (line 4): sag, A = 4.0 %, grade break without a curve (L = 0)\n",
          "  supports design speeds up to none in the table\n",
          "\nPVI 4 (line 5): no change of grade: no curve is needed\n",
          "\nPVI 5 (line 6): crest, A = 1.0 %, L = 100.0 m, K = 100.0\n",
          "  drainage: the grade is never within 0.30 %\n  supports design speeds up to 130 km/h\n"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Result r = RunCli("check " + c.line);
        EXPECT_EQ(r.status, c.status) << r.err;
        for (const std::string& piece : c.pieces) EXPECT_NE(r.out.find(piece), std::string::npos) << piece << r.out;
    }
}

TEST(ProfileCommandsTest, DesignWorkingAndStatus) {
    Folder folder;
    // A sag at PVI 2, 41+00, and a crest at PVI 3, 47+00.
    const std::string file = folder.Put(
        "d.csv", "Station (ft),Elevation,Length\n30+00,1289.5\n41+00,1262.0,100\n47+00,1280.0,600\n60+00,1279\n");
    const std::string overlap =
        "The profile refuses this length: The curves at PVI 2 (line 3) and PVI 3 (line 4) overlap: ";
    struct Case {
        const char* name;
        std::string options;
        int status;
        std::string tail;  // the output's last lines
    } cases[] = {
        {"ByK", "--pvi 2 --k 20", kDone,
         "Length by K = 20.0: L = K A = 110.0 ft\n"
         "It fits between its neighbours: PVC 40+45.0 at 1263.375, PVT 41+55.0 at 1263.65.\n"},
        {"ThroughAPointOnTheFinishedSurface", "--pvi 2 --through 42+50 1268.26 --voffset 0.5 --hoffset 12 --xslope -2",
         kNoSolution,
         "Through 42+50.0 at 1268.26, on the profile 1268.0 (less the vertical offset 0.5 and the horizontal offset "
         "12.0 times the cross slope -2.0 %)\n"
         "  as a quadratic in L: 0.01375 L^2 - 11.25 L + 1237.5 = 0\n"
         "  roots: 130.9626 ft (does not reach 42+50.0: a curve must be at least 300.0 ft long), 687.2192 ft "
         "(reaches 42+50.0)\nLength: 687.2192 ft\n" +
             overlap + "the first ends at 44+43.6096, after the second begins at 44+00.0.\n"},
        {"ThroughNoPoint", "--pvi 2 --through 42+50 1250", kNoSolution,
         "  as a quadratic in L: 0.01375 L^2 + 24.75 L + 1237.5 = 0\n"
         "  roots: -1748.5281 ft (no curve), -51.4719 ft (no curve)\n"
         "No solution: no symmetric curve at this PVI passes through 42+50.0 at 1250.0.\n"},
        {"UnderAtThePvi", "--pvi 2 --under 41+00 --underside 1270 --clearance 8", kNoSolution,
         "No solution: the tangent at 41+00.0 is already above it, and a sag curve only rises as it grows.\n"},
        {"UnderASag", "--pvi 2 --under 41+00 --underside 1272 --clearance 8", kDone,
         "Under a structure at 41+00.0, underside 1272.0, clearance 8.0: the road there at most 1264.0\n"
         "  as a quadratic in L: 0.01375 L^2 - 4 L + 0 = 0\n"
         "  roots: 0.0 ft (no curve), 290.9091 ft (reaches 41+00.0)\n"
         "Length: at most 290.9091 ft (a sag curve rises as it grows)\n"
         "It fits between its neighbours: PVC 39+54.5455 at 1265.6364, PVT 42+45.4545 at 1266.3636.\n"},
        {"UnderACrest", "--pvi 3 --under 48+00 --underside 1294 --clearance 16.5", kDone,
         "  as a quadratic in L: -0.007692307692 L^2 + 7.923076923 L - 307.6923077 = 0\n"
         "  roots: 40.4212 ft (does not reach 48+00.0: a curve must be at least 200.0 ft long), 989.5788 ft "
         "(reaches 48+00.0)\nLength: at least 989.5788 ft (a crest curve sinks as it grows)\n"
         "It fits between its neighbours: PVC 42+05.2106 at 1265.1563, PVT 51+94.7894 at 1279.6194.\n"},
        {"UnderACrestAlreadyClear", "--pvi 3 --under 47+00 --underside 1300 --clearance 16.5", kDone,
         "Any length keeps the clearance: the tangent there is low enough, and a crest curve only sinks as it "
         "grows.\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Result r = RunCli("design " + file + " " + c.options);
        EXPECT_EQ(r.status, c.status) << r.err;
        ASSERT_GE(r.out.size(), c.tail.size()) << r.out;
        EXPECT_EQ(r.out.substr(r.out.size() - c.tail.size()), c.tail);
    }
    // A curve file's tangents run on past its PVC and PVT: a longer curve moves its ends.
    EXPECT_EQ(LastLine(RunCli("design " + Example("english-crest.gwf") + " --pvi 2 --k 125").out),
              "The curve: PVC 9+50.0 at 99.0, PVT 14+50.0 at 99.0.");
}

TEST(ProfileCommandsTest, ImportRefusesWhatACurveFileCannotHold) {
    Folder folder;
    const std::string unsymmetrical =
        folder.Put("u.csv", "Station (ft),Elevation,Length in,Length out\n0+00,100\n20+00,100,300,500\n30+00,100\n");
    const Result r = RunCli("import " + unsymmetrical + " --curve 2");
    EXPECT_EQ(r.status, kRefused);
    EXPECT_EQ(r.err,
              "gradewise-cli: the curve at PVI 2 (line 3) is unsymmetrical (L1 300.0, L2 500.0); a curve file holds "
              "a symmetric curve\n");
    // A stored row off the curve stops the rows as Calculate TOS does; the curve is still written.
    const std::string rows = folder.Put(
        "rows.xml",
        "<LandXML><Units><Imperial linearUnit=\"foot\"/></Units><Alignments><Alignment><Profile>"
        "<ProfAlign name=\"P\"><PVI>0 100</PVI><ParaCurve length=\"400\">1000 120</ParaCurve><PVI>2000 100</PVI>"
        "<Feature name=\"gradewise-curve-file\"><Property label=\"pvi\" value=\"2\"/>"
        "<Property label=\"row 1 whole\" value=\"9\"/><Property label=\"row 1 plus\" value=\"0\"/>"
        "<Property label=\"row 2 whole\" value=\"20\"/><Property label=\"row 2 plus\" value=\"0\"/></Feature>"
        "</ProfAlign></Profile></Alignment></Alignments></LandXML>");
    const Result off = RunCli("import " + rows + " --curve 2");
    EXPECT_EQ(off.status, kStationOffCurve);
    EXPECT_EQ(off.err, "Top of Slab Station must be between PVC and PVT stations.\n");
    EXPECT_NE(off.out.find("\"9\",\"20\","), std::string::npos) << off.out;
}

// Every bundled curve file exported as LandXML, valid against the schema, and imported
// is the curve file solving it gives.
TEST(ProfileCommandsTest, EveryBundledCurveComesBackThroughLandXml) {
    Folder folder;
    int examples = 0;
    for (const auto& entry : std::filesystem::directory_iterator(GW_EXAMPLES_DIR)) {
        if (entry.path().extension() != ".gwf") continue;
        ++examples;
        const std::string path = entry.path().string(), xml = folder.File("export.xml");
        SCOPED_TRACE(path);
        ASSERT_EQ(RunCli("export " + path + " --landxml " + xml).status, kDone);
        EXPECT_EQ(std::system(("xmllint --noout --schema '" GW_LANDXML_XSD "' '" + xml + "' 2>/dev/null").c_str()), 0);
        EXPECT_EQ(RunCli("import " + xml + " --curve 2").out, RunCli("solve --elevations " + path).out);
    }
    EXPECT_GE(examples, 2);
}

// A long profile's drawing widens to give every label its room.
TEST(ProfileCommandsTest, PlotWidensForManyPoints) {
    Folder folder;
    std::string csv = "Station (ft),Elevation\n";
    for (int i = 0; i < 70; ++i) csv += std::to_string(i * 10) + "," + std::to_string(100 + i % 2) + "\n";
    const std::string svg = RunCli("plot " + folder.Put("long.csv", csv)).out;
    EXPECT_EQ(svg.substr(0, svg.find(" height")), "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1197\"");
}

}  // namespace
}  // namespace gw::cli::test
