// Profiles in and out: LandXML and CSV readers with the line or element of every
// refusal, and LandXML written valid against the schema.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/profile_exchange.h"
#include "cli/profile_landxml.h"
#include "cli/profile_source.h"
#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "core/elevations.h"
#include "tests/files/temp_folder.h"

namespace gw::cli {
namespace {

std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

void Write(const std::string& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

// xmllint's verdict on a document against the LandXML 1.2 schema: empty when valid.
std::string SchemaErrors(const test::TempFolder& folder, const std::string& xml) {
    const std::string file = folder.File("export.xml"), log = folder.File("xmllint.log");
    Write(file, xml);
    const std::string command = "xmllint --noout --schema '" GW_LANDXML_XSD "' '" + file + "' 2>'" + log + "'";
    return std::system(command.c_str()) == 0 ? "" : Read(log);
}

ProfileSource Source(const std::string& name, const std::string& text) {
    return ReadProfileSource(name, text, std::nullopt);
}

std::string LandXml(const std::string& units, const std::string& profAlign) {
    return "<?xml version=\"1.0\"?>\n<LandXML xmlns=\"http://www.landxml.org/schema/LandXML-1.2\" version=\"1.2\">\n"
           "<Units>" +
           units +
           "</Units>\n<Alignments><Alignment name=\"A\" length=\"1\" staStart=\"0\">\n"
           "<Profile>\n" +
           profAlign + "</Profile></Alignment></Alignments>\n</LandXML>\n";
}

const std::string kFeet = R"(<Imperial linearUnit="foot" areaUnit="squareFoot" volumeUnit="cubicYard" )"
                          R"(temperatureUnit="fahrenheit" pressureUnit="inHG"/>)";

TEST(ProfileFilesTest, ExportsOfEveryKindOfCurveAreValidLandXmlInBothUnits) {
    test::TempFolder folder;
    const std::string csvBody =
        "0+00,100\n"
        "10+00,120,400\n"        // symmetric
        "20+00,100,,,300,500\n"  // unsymmetrical
        "25+00,110\n"            // a bare grade break
        "30+00,112,,50\n"        // by K
        "40+00,100\n";
    for (const char* units : {"ft", "m"}) {
        const ProfileSource s =
            Source("p.csv", std::string("Station (") + units + "),Elevation,Length,K,Length in,Length out\n" + csvBody);
        ASSERT_TRUE(s.profile) << s.error;
        const std::string xml = ExportLandXml(s.document, *s.profile);
        EXPECT_EQ(SchemaErrors(folder, xml), "") << units;
        // Read back, the same PVIs and curves.
        const ProfileSource back = Source("back.xml", xml);
        ASSERT_TRUE(back.profile) << back.error;
        EXPECT_EQ(back.profile->metric(), s.profile->metric());
        ASSERT_EQ(back.profile->pvis().size(), 6u);
        for (size_t i = 0; i < 6; ++i) {
            const ProfilePvi &a = s.profile->pvis()[i], &b = back.profile->pvis()[i];
            EXPECT_EQ(b.station, a.station) << i;
            EXPECT_EQ(b.elevation, a.elevation) << i;
            ASSERT_EQ(b.curve.has_value(), a.curve.has_value()) << i;
            if (!a.curve) continue;
            EXPECT_EQ(b.curve->lengthIn(), a.curve->lengthIn()) << i;
            EXPECT_EQ(b.curve->lengthOut(), a.curve->lengthOut()) << i;
        }
    }
}

TEST(ProfileFilesTest, ForeignLandXmlWithPrefixesAndBareBreaksIsRead) {
    const std::string xml =
        "<lx:LandXML xmlns:lx=\"http://www.landxml.org/schema/LandXML-1.2\" version=\"1.2\">"
        "<lx:Units><lx:Metric linearUnit=\"meter\" elevationUnit=\"meter\"/></lx:Units>"
        "<lx:Alignments><lx:Alignment name=\"A\" length=\"1\" staStart=\"0\"><lx:Profile>"
        "<lx:ProfSurf name=\"ground\"><lx:PntList2D>0 1 2 3</lx:PntList2D></lx:ProfSurf>"
        "<lx:ProfAlign name=\"FG\"><lx:PVI>1000 50</lx:PVI><lx:ParaCurve length=\"0\">1200 52</lx:ParaCurve>"
        "<lx:UnsymParaCurve lengthIn=\"100\" lengthOut=\"150\">\n  1500  49 </lx:UnsymParaCurve>"
        "<lx:PVI>2000 53</lx:PVI></lx:ProfAlign></lx:Profile></lx:Alignment></lx:Alignments></lx:LandXML>";
    const ProfileSource s = Source("foreign.xml", xml);
    ASSERT_TRUE(s.profile) << s.error;
    EXPECT_TRUE(s.profile->metric());
    EXPECT_EQ(s.document.name, "FG");
    ASSERT_EQ(s.profile->pvis().size(), 4u);
    EXPECT_FALSE(s.profile->pvis()[1].curve);
    EXPECT_EQ(s.profile->pvis()[2].curve->lengthOut(), 150);
    EXPECT_EQ(s.profile->pvis()[2].elevation, 49);
}

TEST(ProfileFilesTest, LandXmlRefusalsNameTheLineOrElement) {
    const std::string two =
        "<ProfAlign name=\"one\"><PVI>0 1</PVI><PVI>10 2</PVI></ProfAlign>"
        "<ProfAlign name=\"two\"><PVI>0 1</PVI><PVI>10 2</PVI></ProfAlign>";
    struct Case {
        const char* name;
        std::string xml;
        std::string message;
    } cases[] = {
        {"malformed", "<LandXML>\n<Units>\n</LandXML>\n", "Line 3: Start-end tags mismatch."},
        {"circular curve",
         LandXml(kFeet,
                 "<ProfAlign name=\"P\"><PVI>0 1</PVI>\n<CircCurve length=\"100\" radius=\"5000\">500 2</CircCurve>"
                 "<PVI>1000 1</PVI></ProfAlign>"),
         "CircCurve on line 7: circular vertical curves are not supported; Gradewise works with parabolic curves "
         "(ParaCurve, UnsymParaCurve)."},
        {"no units", "<LandXML><Alignments/></LandXML>",
         "The file has no Units element, so its feet cannot be told from metres."},
        {"inches", LandXml("<Imperial linearUnit=\"inch\"/>", ""),
         "Imperial on line 3: a linear unit of 'inch' is not one Gradewise works in (foot, USSurveyFoot or meter)."},
        {"mixed units", LandXml("<Imperial linearUnit=\"foot\" elevationUnit=\"meter\"/>", ""),
         "Imperial on line 3: elevations in 'meter' with stations in 'foot'; both must be feet or both metres."},
        {"not station and elevation", LandXml(kFeet, "<ProfAlign name=\"P\">\n<PVI>0 1 2</PVI></ProfAlign>"),
         "PVI on line 7: expected 'station elevation', found '0 1 2'."},
        {"no length", LandXml(kFeet, "<ProfAlign name=\"P\"><PVI>0 1</PVI>\n<ParaCurve>5 1</ParaCurve></ProfAlign>"),
         "ParaCurve on line 7 has no length."},
        {"two profiles", LandXml(kFeet, two),
         "The file has 2 profiles (ProfAlign 'one', 'two'); choose one by its name."},
        {"extras for no PVI",
         LandXml(kFeet,
                 "<ProfAlign name=\"P\"><PVI>0 1</PVI><PVI>9 2</PVI>\n<Feature name=\"gradewise-curve-file\">"
                 "<Property label=\"pvi\" value=\"1e300\"/></Feature></ProfAlign>"),
         "Feature on line 7: its pvi '1e300' is not the number of a PVI."},
        {"extras past the end",
         LandXml(kFeet,
                 "<ProfAlign name=\"P\"><PVI>0 1</PVI><PVI>9 2</PVI>\n<Feature name=\"gradewise-curve-file\">"
                 "<Property label=\"pvi\" value=\"3\"/></Feature></ProfAlign>"),
         "Feature on line 7: its pvi 3 is past the last PVI of the profile, PVI 2."},
        {"doubles back",
         LandXml(kFeet, "<ProfAlign name=\"P\"><PVI>0 1</PVI>\n<PVI>500 2</PVI>\n<PVI>400 2</PVI></ProfAlign>"),
         "PVI 3 (PVI on line 8) at 4+00.0 is not past PVI 2 (PVI on line 7) at 5+00.0: stations must increase "
         "along the profile."},
    };
    for (const Case& c : cases) {
        const ProfileSource s = Source("p.xml", c.xml);
        EXPECT_FALSE(s.profile) << c.name;
        EXPECT_EQ(s.error, c.message) << c.name;
    }
    EXPECT_TRUE(ReadProfileSource("p.xml", LandXml(kFeet, two), std::string("two")).profile);
}

TEST(ProfileFilesTest, CsvProfilesInBothUnitSystems) {
    const ProfileSource feet = Source("p.csv",
                                      "\xEF\xBB\xBF# stations in feet\nStation (ft),Elevation,K\r\n10+00,100\r\n"
                                      "15+50.5,105,10\r\n\r\n2000,100\r\n");
    ASSERT_TRUE(feet.profile) << feet.error;
    EXPECT_FALSE(feet.profile->metric());
    EXPECT_EQ(feet.profile->pvis()[1].station, 1550.5);
    EXPECT_EQ(feet.profile->pvis()[2].station, 2000);
    const ProfileSource metres = Source("p.csv", "station (m),ELEVATION (m),length\n1+250.5,100\n-0+100,90\n");
    EXPECT_FALSE(metres.profile);  // -0+100 is before 1+250.5
    const ProfileSource m = Source("p.csv", "Station (m),Elevation (m),Length\n-0+100,90\n1+250.5,100,200\n2+000,95\n");
    ASSERT_TRUE(m.profile) << m.error;
    EXPECT_TRUE(m.profile->metric());
    EXPECT_EQ(m.profile->pvis()[0].station, -100);
    EXPECT_EQ(m.profile->pvis()[1].station, 1250.5);
}

TEST(ProfileFilesTest, CsvRefusalsNameTheLineAndColumn) {
    const std::string header = "Station (ft),Elevation,Length,K,Length in,Length out\n";
    struct Case {
        const char* name;
        std::string csv;
        std::string message;
    } cases[] = {
        {"letters", header + "10+00,100\n12+00,1O4\n", "Line 3, Elevation: '1O4' is not a number."},
        {"no units", "Station,Elevation\n", "Line 1, Station: say the units as Station (ft) or Station (m)."},
        {"unknown column", "Station (ft),Elevation,Grade\n",
         "Line 1, column 3: 'Grade' is not a column of a profile (Station, Elevation, Length, K, Length in, Length "
         "out)."},
        {"two ways", header + "10+00,100\n12+00,104,200,50\n",
         "Line 3, the row gives its curve more than one way; give a Length, a K, or a Length in with a Length out."},
        {"half unsymmetrical", header + "10+00,100\n12+00,104,,,200\n",
         "Line 3, Length out: an unsymmetrical curve needs both lengths."},
        {"plus too long", header + "10+150,100\n", "Line 2, Station: the plus part of '10+150' must be less than 100."},
        {"too many cells", "Station (ft),Elevation\n10+00,100,5\n", "Line 2, the row has 3 cells; the header names 2."},
        {"empty", "# nothing\n", "The file is empty: a profile needs a header row and a row for each PVI."},
    };
    for (const Case& c : cases) {
        const ProfileSource s = Source("p.csv", c.csv);
        EXPECT_FALSE(s.profile) << c.name;
        EXPECT_EQ(s.error, c.message) << c.name;
    }
}

TEST(ProfileFilesTest, AFileWithoutItsKindInItsNameIsToldByItsFirstCharacter) {
    const ProfileSource csv = Source("profiles/ramp", "Station (ft),Elevation\n0+00,100\n5+00,110\n");
    ASSERT_TRUE(csv.profile) << csv.error;
    EXPECT_EQ(csv.document.name, "ramp");
    EXPECT_TRUE(
        Source("profiles/ramp", LandXml(kFeet, "<ProfAlign name=\"P\"><PVI>0 1</PVI><PVI>9 2</PVI></ProfAlign>"))
            .profile);
    std::ifstream example(GW_EXAMPLES_DIR "/english-crest.gwf", std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(example), {});
    EXPECT_TRUE(Source("curve.txt", bytes).profile);
}

TEST(ProfileFilesTest, ACurveFileTheProgramRefusesIsRefused) {
    // Only its first line: both options read as off, so Calc takes the PVC/PVT mode.
    const ProfileSource s = Source("c.gwf", "\"\",\"English\",,,,\"\"\r\n");
    EXPECT_FALSE(s.profile);
    EXPECT_EQ(s.error, "PVC Station needs to be entered.");
}

}  // namespace
}  // namespace gw::cli
