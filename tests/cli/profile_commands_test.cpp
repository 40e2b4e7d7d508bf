// The profile desk's commands as the wiring will run them: what each writes and the
// exit status it returns. The numbers are the core's and tested there.
#include <gtest/gtest.h>

#include <pugixml.hpp>

#include <fstream>
#include <functional>
#include <sstream>

#include "cli/profile_commands.h"
#include "tests/files/temp_folder.h"

namespace gw::cli {
namespace {

struct Result {
    int status;
    std::string out;
    std::string err;
};

using Command = std::function<int(const ProfileFileOptions&, std::ostream&, std::ostream&)>;

class ProfileCommandsTest : public ::testing::Test {
protected:
    // A profile file of the test's own; returns its path.
    std::string Profile(const std::string& text, const std::string& name = "p.csv") {
        const std::string path = m_folder.File(name);
        std::ofstream(path, std::ios::binary) << text;
        return path;
    }
    Result Run(const Command& command, const std::string& file) {
        std::ostringstream out, err;
        const int status = command({file, std::nullopt}, out, err);
        return {status, out.str(), err.str()};
    }
    test::TempFolder m_folder;
};

// Schmidt & Wong, Fundamentals of Surveying, Ex. 12.3: -1.0 % to +2.2 % through
// PVI 52+50 at 432.34, L 800 ft, between tangents begun and ended 1250 ft away.
const char* kSag = "Station (ft),Elevation,Length\n40+00,444.84\n52+50,432.34,800\n65+00,459.84\n";

Command Table(const std::string& every, bool csv) {
    return [=](const ProfileFileOptions& o, std::ostream& out, std::ostream& err) {
        return RunProfileTable(o, every, csv, out, err);
    };
}

Command Check(double speed, std::optional<double> clearance = std::nullopt, bool passing = false) {
    return [=](const ProfileFileOptions& o, std::ostream& out, std::ostream& err) {
        CheckSettings s;
        s.speed = speed;
        s.clearance = clearance;
        s.passing = passing;
        return RunProfileCheck(o, s, out, err);
    };
}

Command Design(DesignRequest r) {
    return [=](const ProfileFileOptions& o, std::ostream& out, std::ostream& err) {
        return RunProfileDesign(o, r, out, err);
    };
}

Command Import(size_t curve) {
    return [=](const ProfileFileOptions& o, std::ostream& out, std::ostream& err) {
        return RunImport(o, curve, out, err);
    };
}

std::string LastLine(const std::string& text) {
    const size_t end = text.find_last_not_of('\n');
    const size_t begin = text.rfind('\n', end);
    return text.substr(begin + 1, end - begin);
}

TEST_F(ProfileCommandsTest, BadInputNamesTheFileAndLineAndWritesNothing) {
    const std::string bad = Profile("Station (ft),Elevation\n10+00,100\n12+00,1O4\n");
    DesignRequest k;
    k.pvi = 2;
    k.k = 100;
    const std::vector<std::pair<const char*, Command>> commands = {
        {"profile", [](auto& o, auto& out, auto& err) { return RunProfileListing(o, false, out, err); }},
        {"table", Table("1+00", true)},
        {"plot", RunProfilePlot},
        {"check", Check(50)},
        {"design", Design(k)},
        {"export", RunExport},
        {"import", Import(2)},
    };
    for (const auto& [name, command] : commands) {
        const Result r = Run(command, bad);
        EXPECT_EQ(r.status, 1) << name;
        EXPECT_EQ(r.out, "") << name;
        EXPECT_EQ(r.err, "gradewise-cli: " + bad + ": Line 3, Elevation: '1O4' is not a number.\n") << name;
        const Result missing = Run(command, m_folder.File("missing.csv"));
        EXPECT_EQ(missing.status, 2) << name;
        EXPECT_EQ(missing.out, "") << name;
    }
}

TEST_F(ProfileCommandsTest, TableRowsOverTheWholeProfile) {
    const Result csv = Run(Table("1+00", true), Profile(kSag));
    ASSERT_EQ(csv.status, 0) << csv.err;
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

    const Result text = Run(Table("1+00", false), Profile(kSag));
    EXPECT_EQ(text.out.substr(0, text.out.find('\n')), "Station  Elevation (ft)  Grade (%)  Point");
    EXPECT_EQ(Run(Table("0+00", true), Profile(kSag)).status, 2);
    const Result many = Run(Table("0+00.001", true), Profile(kSag));
    EXPECT_EQ(many.status, 2);
    EXPECT_EQ(many.err, "gradewise-cli: --every 0+00.001: An interval of 0.001 gives more than 1000000 rows over "
                        "2500.0; choose a longer interval.\n");
}

TEST_F(ProfileCommandsTest, CheckEndsWithTheVerdictAndItsStatus) {
    const std::string file = Profile("Station (ft),Elevation,Length\n40+00,444.84\n52+50,432.34,600\n65+00,459.84\n");
    // A = 3.2, L = 600. Headlight sight distance, S > L: 2 S - (400 + 3.5 S) / A, which
    // is 391.6 at 60 mph, 536.6 at 70, 618.1 at 75 and 699.6875 at 80.
    const Result pass = Run(Check(60), file);
    EXPECT_EQ(pass.status, 0);
    EXPECT_EQ(LastLine(pass.out), "Long enough: every curve meets every required criterion at 60 mph.");
    const Result fail = Run(Check(80, 16.5), file);
    EXPECT_EQ(fail.status, 4);
    EXPECT_NE(fail.out.find("  sight under the structure  S = 910 ft"), std::string::npos) << fail.out;
    EXPECT_EQ(LastLine(fail.out), "Too short: PVI 2 (line 3) needs 699.6875 ft for headlight sight distance.");
    EXPECT_NE(fail.out.find("supports design speeds up to 70 mph"), std::string::npos) << fail.out;
    const Result slow = Run(Check(90), file);
    EXPECT_EQ(slow.status, 2);
    EXPECT_EQ(slow.err, "gradewise-cli: A design speed of 90.0 mph is outside the design table (15.0 to 80.0 mph).\n");
}

TEST_F(ProfileCommandsTest, DesignStatuses) {
    const std::string file =
        Profile("Station (ft),Elevation,Length\n30+00,1289.5\n41+00,1262.0,100\n47+00,1280.0,600\n60+00,1279\n");
    struct Case {
        const char* name;
        DesignRequest request;
        int status;
        const char* lastLine;
    } cases[] = {
        {"through a point", {2, std::nullopt, DesignRequest::Point{4250, 1268}, std::nullopt}, 1,
         "The profile refuses this length: The curves at PVI 2 (line 3) and PVI 3 (line 4) overlap: the first ends "
         "at 44+43.6096, after the second begins at 44+00.0."},
        {"no solution", {2, std::nullopt, DesignRequest::Point{4250, 1250}, std::nullopt}, 5,
         "No solution: no symmetric curve at this PVI passes through 42+50.0 at 1250.0."},
        {"by K", {2, 20.0, std::nullopt, std::nullopt}, 0,
         "It fits between its neighbours: PVC 40+45.0 at 1263.375, PVT 41+55.0 at 1263.65."},
        {"at an end", {1, 20.0, std::nullopt, std::nullopt}, 2, ""},
    };
    for (const Case& c : cases) {
        const Result r = Run(Design(c.request), file);
        EXPECT_EQ(r.status, c.status) << c.name << r.err;
        EXPECT_EQ(LastLine(r.out), c.lastLine) << c.name;
    }
}

TEST_F(ProfileCommandsTest, ImportStatuses) {
    const std::string header = "Station (ft),Elevation,Length,Length in,Length out\n";
    const std::string file = Profile(header + "0+00,100\n10+00,120,400\n20+00,100,,300,500\n25+00,110\n30+00,100\n");
    EXPECT_EQ(Run(Import(2), file).status, 0);
    const Result unsymmetrical = Run(Import(3), file);
    EXPECT_EQ(unsymmetrical.status, 1);
    EXPECT_EQ(unsymmetrical.err, "gradewise-cli: the curve at PVI 3 (line 4) is unsymmetrical (L1 300.0, L2 500.0); "
                                 "a curve file holds a symmetric curve\n");
    const Result bare = Run(Import(4), file);
    EXPECT_EQ(bare.status, 2);
    EXPECT_EQ(bare.err, "gradewise-cli: PVI 4 (line 5) has no vertical curve; curves are at PVI 2, PVI 3\n");
    const Result past = Run(Import(6), file);
    EXPECT_EQ(past.status, 2);
    EXPECT_EQ(past.err, "gradewise-cli: the profile has PVI 1 to PVI 5; curves are at PVI 2, PVI 3\n");
    // A stored row off the curve stops the rows as Calculate TOS does; the curve is still written.
    const std::string rows = Profile(
        "<LandXML><Units><Imperial linearUnit=\"foot\"/></Units><Alignments><Alignment><Profile>"
        "<ProfAlign name=\"P\"><PVI>0 100</PVI><ParaCurve length=\"400\">1000 120</ParaCurve><PVI>2000 100</PVI>"
        "<Feature name=\"gradewise-curve-file\"><Property label=\"pvi\" value=\"2\"/>"
        "<Property label=\"row 1 whole\" value=\"9\"/><Property label=\"row 1 plus\" value=\"0\"/>"
        "<Property label=\"row 2 whole\" value=\"20\"/><Property label=\"row 2 plus\" value=\"0\"/></Feature>"
        "</ProfAlign></Profile></Alignment></Alignments></LandXML>",
        "rows.xml");
    const Result off = Run(Import(2), rows);
    EXPECT_EQ(off.status, 3);
    EXPECT_EQ(off.err, "Top of Slab Station must be between PVC and PVT stations.\n");
    EXPECT_NE(off.out.find("\"9\",\"20\","), std::string::npos) << off.out;
}

TEST_F(ProfileCommandsTest, ListingFlagsBareBreaksAndUnsymmetricalCurves) {
    const std::string file = Profile("Station (m),Elevation,Length in,Length out\n0+000,100\n1+000,120,300,500\n"
                                     "2+000,100\n2+500,110\n3+000,100\n");
    const Result text = Run([](auto& o, auto& out, auto& err) { return RunProfileListing(o, false, out, err); }, file);
    ASSERT_EQ(text.status, 0);
    EXPECT_EQ(text.out.substr(0, text.out.find("\n\nPVI 2")),
              "Profile p: 5 PVIs from 0+000.0 to 3+000.0, 3000.0 m (metres)\n\n"
              "PVI 1 (line 2)  0+000.0 El. 100.0\n  begins the profile, grade ahead +2.0 %");
    EXPECT_NE(text.out.find("PVI 2 (line 3)  1+000.0 El. 120.0\n  unsymmetrical crest curve: G1 +2.0 %, G2 -2.0 %, "
                            "A 4.0 %, L1 300.0 m, L2 500.0 m, L 800.0 m, K 200.0\n"),
              std::string::npos)
        << text.out;
    EXPECT_NE(text.out.find("PVI 4 (line 5)  2+500.0 El. 110.0\n  grade break without a curve: G1 +2.0 %, "
                            "G2 -2.0 %, A 4.0 %\n"),
              std::string::npos)
        << text.out;
    const Result json = Run([](auto& o, auto& out, auto& err) { return RunProfileListing(o, true, out, err); }, file);
    EXPECT_NE(
        json.out.find("\"stationText\": \"2+500.0\",\n      \"elevation\": 110.0,\n      \"gradeIn\": 2.0,\n"
                      "      \"gradeOut\": -2.0,\n      \"gradeBreakWithoutCurve\": true,\n      \"curve\": null\n"),
        std::string::npos)
        << json.out;
    EXPECT_NE(
        json.out.find("\"kind\": \"crest\",\n        \"symmetric\": false,\n        \"g1\": 2.0,\n"
                      "        \"g2\": -2.0,\n        \"A\": 4.0,\n        \"L\": 800.0,\n        \"L1\": 300.0,\n"
                      "        \"L2\": 500.0,\n        \"middleOrdinate\": 3.75,\n        \"K\": 200.0,\n"),
        std::string::npos)
        << json.out;
}

TEST_F(ProfileCommandsTest, PlotLabelsEveryPointInWellFormedSvg) {
    const Result r = Run(RunProfilePlot, Profile(kSag));
    ASSERT_EQ(r.status, 0);
    pugi::xml_document svg;
    ASSERT_TRUE(svg.load_string(r.out.c_str()));
    std::vector<std::string> labels;
    for (pugi::xpath_node text : svg.select_nodes("//text")) labels.push_back(text.node().text().get());
    for (const char* label : {"PVI 1  40+00.0  El. 444.84", "PVC 2  48+50.0  El. 436.34", "PVI 2  52+50.0  El. 432.34",
                              "Low point 2  51+00.0  El. 435.09", "PVT 2  56+50.0  El. 441.14",
                              "PVI 3  65+00.0  El. 459.84"}) {
        EXPECT_NE(std::find(labels.begin(), labels.end(), label), labels.end()) << label;
    }
}

}  // namespace
}  // namespace gw::cli
