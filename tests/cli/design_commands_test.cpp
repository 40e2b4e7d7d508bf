// table, plot, check and the extra keys of --json: the numbers are the core's and
// tested there; these check what each command prints, writes and exits with.
#include "cli_run.h"

namespace gw::cli::test {
namespace {

using DesignCommandsTest = CliTest;

TEST_F(DesignCommandsTest, JsonAddsKTurningPointElevationAndSightDistanceCase) {
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
        {{"English", "3", "0", "50", "-1", "0.5", "800"}, "533.3333", "51.3333", "S>L",
         "unlimited: with A of 1.75 % or less the headlight beam never meets the road"},
    };
    for (const Case& c : cases) {
        const auto& v = c.curve;
        const Result r = RunCli({"solve", "--json", Pvi(v[0].c_str(), v[1].c_str(), v[2].c_str(), v[3].c_str(),
                                                     v[4].c_str(), v[5].c_str(), v[6].c_str())});
        ASSERT_EQ(r.status, kDone) << r.err;
        const std::string tail = std::string("  \"K\": \"") + c.k + "\",\n  \"turningPointElevation\": \"" +
                                 c.tpElevation + "\",\n  \"sightDistanceCase\": \"" + c.sightCase +
                                 "\",\n  \"sightDistance\": \"" + c.sightDistance + "\"\n}\n";
        ASSERT_GE(r.out.size(), tail.size());
        EXPECT_EQ(r.out.substr(r.out.size() - tail.size()), tail) << v[4] << " " << v[5] << " " << v[6];
    }
}

TEST_F(DesignCommandsTest, TableOfTheBundledCrestWithItsOffsets) {
    // 100 + 0.02 x - 0.00005 x^2 + 0.5 + 12 * -0.02; x = 50: 100.875 + 0.26 = 101.135
    const Result r = RunCli({"table", Example("english-crest.gwf"), "--every", "0+50"});
    ASSERT_EQ(r.status, kDone) << r.err;
    EXPECT_EQ(r.out,
              "Elevations include a vertical offset of 0.5 and a horizontal offset of 12.0 at -2.0 % cross slope.\n"
              "Station  Distance (ft)  Grade (%)  Elevation (ft)  Point\n"
              "10+00.0            0.0        2.0          100.26  PVC\n"
              "10+50.0           50.0        1.5         101.135\n"
              "11+00.0          100.0        1.0          101.76\n"
              "11+50.0          150.0        0.5         102.135\n"
              "12+00.0          200.0        0.0          102.26  TP\n"
              "12+50.0          250.0       -0.5         102.135\n"
              "13+00.0          300.0       -1.0          101.76\n"
              "13+50.0          350.0       -1.5         101.135\n"
              "14+00.0          400.0       -2.0          100.26  PVT\n");
}

TEST_F(DesignCommandsTest, TableAsCsvWithoutTheTwentyRowLimit) {
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

TEST_F(DesignCommandsTest, CheckVerdictsAgainstHandWorkedMinimumLengths) {
    struct Case {
        std::string file;
        const char* speed;
        int status;
        const char* minimumLine;
        const char* verdict;
    } cases[] = {
        // crest A = 4, L = 400, 50 mph, S = 425: 4 * 425^2 / 2158 = 334.8 < S, so 850 - 539.5
        {Example("english-crest.gwf"), "50", kDone, "Minimum length, current eye and object heights (C = 2158): 310.5 ft (S>L)",
         "Long enough: L = 400.0 ft is at least the 310.5 ft needed at 50 mph."},
        // 52 mph takes the 55 mph row, S = 495: 990 - 539.5 = 450.5
        {Example("english-crest.gwf"), "52", kTooShort, "Minimum length, current eye and object heights (C = 2158): 450.5 ft (S>L)",
         "Too short: L = 400.0 ft is less than the 450.5 ft needed at 55 mph."},
    };
    for (const Case& c : cases) {
        const Result r = RunCli({"check", c.file, "--speed", c.speed});
        EXPECT_EQ(r.status, c.status) << c.speed << r.err;
        EXPECT_NE(r.out.find(std::string(c.minimumLine) + "\n"), std::string::npos) << r.out;
        EXPECT_EQ(LastLine(r.out), c.verdict);
    }
    // The older constant beside it: 4 * 425^2 / 1329 = 543.6418 >= S
    EXPECT_NE(RunCli({"check", Example("english-crest.gwf"), "--speed", "50"})
                  .out.find("older eye and object heights (C = 1329): 543.6418 ft (S<L)\n"),
              std::string::npos);
}

TEST_F(DesignCommandsTest, PlotLabelsTheCurveAndDrawsTheRows) {
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

TEST_F(DesignCommandsTest, BadArgumentsExitTwoWithAMessage) {
    const std::string crest = Example("english-crest.gwf");
    const std::vector<std::vector<std::string>> bad = {
        {"table", crest, "--every", "0+0"},
        {"table", crest, "--every", "0+0.001"},  // 400 ft / 0.001 ft: 400000 rows
        {"plot", crest, "--csv"},
        {"check", crest, "--speed", "fast"},
    };
    for (const auto& args : bad) {
        const Result r = RunCli(args);
        std::string joined;
        for (const std::string& a : args) joined += a + " ";
        EXPECT_EQ(r.status, kUsage) << joined;
        EXPECT_NE(r.err, "") << joined;
        EXPECT_EQ(r.out, "") << joined;
    }
    EXPECT_EQ(RunCli({"check", crest, "--speed", "81"}).err,
              "gradewise-cli: a design speed of 81 mph is outside the design table (15 to 80 mph)\n");
    EXPECT_EQ(RunCli({"table", crest}).err,
              "gradewise-cli: table needs --every WHOLE+PLUS, for example --every 0+50\n"
              "Try 'gradewise-cli table --help'.\n");
}

TEST_F(DesignCommandsTest, ARefusedCurveExitsOne) {
    const Result zero = RunCli({"plot", Pvi("English", "12", "0", "104", "2", "-2", "0")});
    EXPECT_EQ(zero.status, kRefused);
    EXPECT_EQ(zero.err, "gradewise-cli: plot needs a length of curve greater than 0\n");
}

}  // namespace
}  // namespace gw::cli::test
