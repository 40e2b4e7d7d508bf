// Profiles in and out: the LandXML and CSV readers with the line or element of every
// refusal, and LandXML written valid against the schema that reads back the same.
#include <gtest/gtest.h>

#include <cstdlib>

#include "cli/profile_landxml.h"
#include "cli/profile_source.h"
#include "tests/cli/run_cli.h"

namespace gw::cli::test {
namespace {

ProfileSource Source(const std::string& name, const std::string& text) {
    return ReadProfileSource(name, text, std::nullopt);
}

std::string LandXml(const std::string& units, const std::string& profAlign) {
    return "<?xml version=\"1.0\"?>\n<LandXML xmlns=\"http://www.landxml.org/schema/LandXML-1.2\" version=\"1.2\">\n"
           "<Units>" +
           units + "</Units>\n<Alignments><Alignment name=\"A\" length=\"1\" staStart=\"0\">\n<Profile>\n" + profAlign +
           "</Profile></Alignment></Alignments>\n</LandXML>\n";
}

const std::string kFeet = "<Imperial linearUnit=\"foot\"/>";
const std::string kTwo = "<PVI>0 1</PVI><PVI>9 2</PVI></ProfAlign>";

// Every unit attribute the schema requires, the alignment's length and start, each
// kind of PVI and a curve file's own extras: valid against the schema.
TEST(ProfileFilesTest, ExportIsLandXmlValidAgainstTheSchema) {
    Folder folder;
    const auto valid = [](const std::string& file) {
        return std::system(("xmllint --noout --schema '" GW_LANDXML_XSD "' '" + file + "'").c_str()) == 0;
    };
    const std::string rows = "500,95\n1000,120,200\n2000,100,,,300,500\n2500,110\n3000,112,,50\n4000,100\n";
    for (const char* units : {"m", "ft"}) {
        const ProfileSource s =
            Source("k.csv", std::string("Station (") + units + "),Elevation,Length,K,Length in,Length out\n" + rows);
        ASSERT_TRUE(s.profile) << s.error;
        const std::string xml = LandXmlText(s.document, *s.profile, "2026-01-02", "03:04:05");
        EXPECT_TRUE(valid(folder.Put("export.xml", xml))) << xml;
        if (units[0] == 'm') {
            EXPECT_EQ(xml, Expected("landxml-metric.xml"));
        }
    }
    const std::string crest = folder.File("crest.xml");
    ASSERT_EQ(RunCli("export " + Example("english-crest.gwf") + " --landxml " + crest).status, kDone);
    EXPECT_TRUE(valid(crest)) << Read(crest);
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
    EXPECT_EQ(s.profile->pvis()[2].station, 1500);
}

TEST(ProfileFilesTest, LandXmlRefusalsNameTheLineOrElement) {
    const std::string two = "<ProfAlign name=\"one\">" + kTwo + "<ProfAlign name=\"two\">" + kTwo;
    struct Case {
        const char* name;
        std::string xml;
        std::string message;
    } cases[] = {
        {"Malformed", "<LandXML>\n<Units>\n</LandXML>\n", "Line 3: Start-end tags mismatch."},
        {"NotLandXml", "<Profile/>", "The file is not LandXML: its root element is Profile."},
        {"NoUnits", "<LandXML><Alignments/></LandXML>",
         "The file has no Units element, so its feet cannot be told from metres."},
        {"NeitherSystem", LandXml("<Other/>", ""), "Units on line 3 names neither Imperial nor Metric units."},
        {"Inches", LandXml("<Imperial linearUnit=\"inch\"/>", ""),
         "Imperial on line 3: a linear unit of 'inch' is not one Gradewise works in (foot, USSurveyFoot or meter)."},
        {"MetricInFeet", LandXml("<Metric linearUnit=\"foot\"/>", ""),
         "Metric on line 3: a linear unit of 'foot' is not one Gradewise works in (foot, USSurveyFoot or meter)."},
        {"MixedUnits", LandXml("<Imperial linearUnit=\"USSurveyFoot\" elevationUnit=\"meter\"/>", ""),
         "Imperial on line 3: elevations in 'meter' with stations in 'USSurveyFoot'; both must be feet or both "
         "metres."},
        {"NoProfile", LandXml(kFeet, ""), "The file has no profile: no ProfAlign element."},
        {"TwoProfiles", LandXml(kFeet, two),
         "The file has 2 profiles (ProfAlign 'one', 'two'); choose one by its name."},
        {"StationEquation",
         "\n<LandXML><Units>" + kFeet + "</Units><Alignment>\n<StaEquation/><ProfAlign name=\"P\">" + kTwo +
             "</Alignment></LandXML>",
         "StaEquation on line 3: station equations are not supported; the profile's stations would be read wrongly "
         "past it."},
        {"CircularCurve",
         LandXml(kFeet,
                 "<ProfAlign name=\"P\"><PVI>0 1</PVI>\n<CircCurve length=\"100\" radius=\"5000\">500 2"
                 "</CircCurve><PVI>1000 1</PVI></ProfAlign>"),
         "CircCurve on line 7: circular vertical curves are not supported; Gradewise works with parabolic curves "
         "(ParaCurve, UnsymParaCurve)."},
        {"NotStationAndElevation", LandXml(kFeet, "<ProfAlign name=\"P\">\n<PVI>0 1 2</PVI></ProfAlign>"),
         "PVI on line 7: expected 'station elevation', found '0 1 2'."},
        {"ElevationNotANumber", LandXml(kFeet, "<ProfAlign name=\"P\">\n<PVI>0 x</PVI></ProfAlign>"),
         "PVI on line 7: expected 'station elevation', found '0 x'."},
        {"StationNotANumber", LandXml(kFeet, "<ProfAlign name=\"P\">\n<PVI>x 1</PVI></ProfAlign>"),
         "PVI on line 7: expected 'station elevation', found 'x 1'."},
        {"NoLength", LandXml(kFeet, "<ProfAlign name=\"P\"><PVI>0 1</PVI>\n<ParaCurve>5 1</ParaCurve></ProfAlign>"),
         "ParaCurve on line 7 has no length."},
        {"LengthOutNotANumber",
         LandXml(kFeet,
                 "<ProfAlign name=\"P\">\n<UnsymParaCurve lengthIn=\"5\" lengthOut=\"x\">5 1</UnsymParaCurve>"
                 "</ProfAlign>"),
         "UnsymParaCurve on line 7: lengthOut 'x' is not a number."},
        {"ExtrasForNoPvi",
         LandXml(kFeet,
                 "<ProfAlign name=\"P\"><PVI>0 1</PVI><PVI>9 2</PVI>\n<Feature name=\"gradewise-curve-file\">"
                 "<Property label=\"pvi\" value=\"2.5\"/></Feature></ProfAlign>"),
         "Feature on line 7: its pvi '2.5' is not the number of a PVI."},
        {"ExtrasForPviZero",
         LandXml(kFeet,
                 "<ProfAlign name=\"P\"><PVI>0 1</PVI><PVI>9 2</PVI>\n<Feature name=\"gradewise-curve-file\">"
                 "<Property label=\"pvi\" value=\"0\"/></Feature></ProfAlign>"),
         "Feature on line 7: its pvi '0' is not the number of a PVI."},
        {"ExtrasPastTheEnd",
         LandXml(kFeet,
                 "<ProfAlign name=\"P\"><PVI>0 1</PVI><PVI>9 2</PVI>\n<Feature name=\"gradewise-curve-file\">"
                 "<Property label=\"pvi\" value=\"3\"/></Feature></ProfAlign>"),
         "Feature on line 7: its pvi 3 is past the last PVI of the profile, PVI 2."},
        {"DoublesBack",
         LandXml(kFeet, "<ProfAlign name=\"P\"><PVI>0 1</PVI>\n<PVI>500 2</PVI>\n<PVI>400 2</PVI></ProfAlign>"),
         "PVI 3 (PVI on line 8) at 4+00.0 is not past PVI 2 (PVI on line 7) at 5+00.0: stations must increase "
         "along the profile."},
    };
    for (const Case& c : cases) {
        const ProfileSource s = Source("p.xml", c.xml);
        EXPECT_FALSE(s.profile) << c.name;
        EXPECT_EQ(s.error, c.message) << c.name;
    }
    const ProfileSource named = ReadProfileSource("p.xml", LandXml(kFeet, two), std::string("two"));
    ASSERT_TRUE(named.profile) << named.error;
    EXPECT_EQ(named.document.name, "two");
    EXPECT_EQ(ReadProfileSource("p.xml", LandXml(kFeet, two), std::string("three")).error,
              "The file has no ProfAlign named 'three'; it has 'one', 'two'.");
}

TEST(ProfileFilesTest, CsvProfilesInBothUnitSystems) {
    const ProfileSource feet = Source("p.csv",
                                      "\xEF\xBB\xBF# stations in feet\nStation (ft),Elevation,K\r\n10+00,100\r\n"
                                      "15+50.5,105,10\r\n\r\n2000,100\r\n");
    ASSERT_TRUE(feet.profile) << feet.error;
    EXPECT_FALSE(feet.profile->metric());
    EXPECT_EQ(feet.profile->pvis()[1].station, 1550.5);
    EXPECT_EQ(feet.profile->pvis()[2].station, 2000);
    const ProfileSource m =
        Source("p.csv", "ELEVATION (m),station (m),length in, Length Out\n90,-0+100\n100,1+250.5,0,0\n95,2+000\n");
    ASSERT_TRUE(m.profile) << m.error;
    EXPECT_TRUE(m.profile->metric());
    EXPECT_EQ(m.profile->pvis()[0].station, -100);
    EXPECT_EQ(m.profile->pvis()[1].station, 1250.5);
    EXPECT_FALSE(m.profile->pvis()[1].curve);  // both lengths 0: a bare grade break
}

TEST(ProfileFilesTest, CsvRefusalsNameTheLineAndColumn) {
    const std::string header = "Station (ft),Elevation,Length,K,Length in,Length out\n";
    struct Case {
        const char* name;
        std::string csv;
        std::string message;
    } cases[] = {
        {"Letters", header + "10+00,100\n12+00,1O4\n", "Line 3, Elevation: '1O4' is not a number."},
        {"NoUnits", "Station,Elevation\n", "Line 1, Station: say the units as Station (ft) or Station (m)."},
        {"UnknownColumn", "Station (ft),Elevation,Grade\n",
         "Line 1, column 3: 'Grade' is not a column of a profile (Station, Elevation, Length, K, Length in, Length "
         "out)."},
        {"ColumnTwice", "Station (ft),Elevation,K,k\n", "Line 1, K: the column is named twice."},
        {"UnknownUnit", "Station (yd),Elevation\n", "Line 1, Station: the unit 'yd' is neither ft nor m."},
        {"MixedUnits", "Station (ft),Elevation (m)\n", "Line 1, Elevation: the columns mix ft and m."},
        {"NoElevationColumn", "Station (ft),Length\n",
         "Line 1, the header: a profile needs a Station and an Elevation column."},
        {"NoStation", "Station (ft),Elevation\n,100\n", "Line 2, Station: the station is missing."},
        {"NotAStation", "Station (ft),Elevation\nten,100\n", "Line 2, Station: 'ten' is not a station."},
        {"PlusTooLong", header + "10+150,100\n", "Line 2, Station: the plus part of '10+150' must be less than 100."},
        {"NoElevation", "Station (ft),Elevation\n10+00\n", "Line 2, Elevation: the elevation is missing."},
        {"TwoWays", header + "10+00,100\n12+00,104,200,50\n",
         "Line 3, the row gives its curve more than one way; give a Length, a K, or a Length in with a Length out."},
        {"HalfUnsymmetrical", header + "10+00,100\n12+00,104,,,200\n",
         "Line 3, Length out: an unsymmetrical curve needs both lengths."},
        {"OtherHalf", header + "10+00,100\n12+00,104,,,,200\n",
         "Line 3, Length in: an unsymmetrical curve needs both lengths."},
        {"OneLengthZero", header + "10+00,100\n12+00,104,,,1,0\n20+00,100\n",
         "The unsymmetrical curve at PVI 2 (line 3) needs both lengths greater than 0, not 1.0 and 0.0."},
        {"TooManyCells", "Station (ft),Elevation\n10+00,100,5\n", "Line 2, the row has 3 cells; the header names 2."},
        {"Empty", "# nothing\n", "The file is empty: a profile needs a header row and a row for each PVI."},
    };
    for (const Case& c : cases) {
        const ProfileSource s = Source("p.csv", c.csv);
        EXPECT_FALSE(s.profile) << c.name;
        EXPECT_EQ(s.error, c.message) << c.name;
    }
}

TEST(ProfileFilesTest, AFileIsToldByItsExtensionElseByItsFirstCharacter) {
    const std::string curve = Read(Example("english-crest.gwf"));
    const std::string xml = LandXml(kFeet, "<ProfAlign name=\"P\">" + kTwo);
    struct Case {
        const char* path;
        std::string bytes;
        InputKind kind;
    } cases[] = {
        {"a/p.XML", "", InputKind::LandXml},      {"a/p.Csv", "<", InputKind::Csv},
        {"a/p.gwf", "", InputKind::CurveFile},    {"a.xml/p", " \n<", InputKind::LandXml},
        {"a.xml/p", curve, InputKind::CurveFile}, {"p", "Station", InputKind::Csv},
    };
    for (const Case& c : cases) EXPECT_EQ(KindOf(c.path, c.bytes), c.kind) << c.path << " " << c.bytes;
    const ProfileSource csv = Source("profiles/ramp", "Station (ft),Elevation\n0+00,100\n5+00,110\n");
    ASSERT_TRUE(csv.profile) << csv.error;
    EXPECT_EQ(csv.document.name, "ramp");
    EXPECT_TRUE(Source("profiles/ramp", xml).profile);
    EXPECT_TRUE(Source("curve.txt", curve).profile);
    // Only its first line: both options read as off, so Calc takes the PVC/PVT mode.
    EXPECT_EQ(Source("c.gwf", "\"\",\"English\",,,,\"\"\r\n").error, "PVC Station needs to be entered.");
}

}  // namespace
}  // namespace gw::cli::test
