#include "core/curve_file.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "tests/core/sheet_builders.h"

namespace gw {
namespace {

std::string Line(const std::string& bytes, int n) {  // 1-based, without CRLF
    size_t start = 0;
    for (int i = 1; i < n; ++i) start = bytes.find("\r\n", start) + 2;
    return bytes.substr(start, bytes.find("\r\n", start) - start);
}

std::string EmptyTexts(int n) {
    std::string s;
    for (int i = 0; i < n; ++i) s += i ? ",\"\"" : "\"\"";
    return s;
}

TEST(CurveFileWriteTest, TheDocumentedExampleByteForByte) {
    CurveSheet s = NewCurveSheet("English");
    s.txtPVISTA = "12";
    s.txtPVISTAM = "45.5";
    s.txtPVIEval = "100";
    s.txtG1 = "2";
    s.txtG2 = "-1.5";
    s.txtLC = "400";
    const std::string expected =
        "\"\",\"English\",,,,\"45.5\"\r\n"
        "\"100\",\"12\",\"-1.5\",\"2\",\"400\",\"\",\"\"\r\n"
        "\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
        "#TRUE#,#FALSE#,\"\",\"\"\r\n" +
        EmptyTexts(20) + "\r\n" + EmptyTexts(20) + "\r\n" + EmptyTexts(20) + "\r\n" + EmptyTexts(3) + "\r\n";
    EXPECT_EQ(CurveFileBytes(s), expected);
}

TEST(CurveFileWriteTest, StoresTextsUnchangedAndTheModeAsOptions) {
    CurveSheet s = NewCurveSheet("Metric");
    SwitchToPVCPVTMode(s);
    s.txtPVCSTAM = "12.50";
    s.txtPVCEval = "abc def";
    s.elevations.rows[19].txtTotalTopSlab1 = "7";
    s.elevations.txtXSlope = "-2";
    const std::string bytes = CurveFileBytes(s);
    EXPECT_EQ(Line(bytes, 1), "\"\",\"Metric\",,,,\"\"");
    EXPECT_EQ(Line(bytes, 3), "\"\",\"abc def\",\"12.50\",\"\",\"\",\"\"");
    EXPECT_EQ(Line(bytes, 4), "#FALSE#,#TRUE#,\"\",\"\"");
    EXPECT_EQ(Line(bytes, 7), EmptyTexts(19) + ",\"7\"");
    EXPECT_EQ(Line(bytes, 8), "\"\",\"\",\"-2\"");
    EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
}

// Odd files the parser reads without failing: the first five texts of each.
TEST(CurveFileReadTest, OddFilesReadValueByValue) {
    struct Row {
        const char* name;
        std::string bytes;
        std::array<const char*, 5> texts;  // lblSDL, lblMorF, txtPVISTAM, txtPVIEval, txtPVISTA
    };
    const Row rows[] = {
        {"short", "\"SSD\",\"English\",,,,\"5\"\r\n\"1\",\"2\"", {"SSD", "English", "5", "1", "2"}},
        {"values across line breaks", "\"\",\"Metric\"\n,,,\"7\",\"100\"\r\"3\"", {"", "Metric", "7", "100", "3"}},
        {"unquoted, stray quote, unterminated",
         "SSD , Metric,x,y,z,\"a\"b\"\r\n  \"sp ace\"  ,\"unterminated",
         {"SSD", "Metric", "a", "sp ace", "unterminated"}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const CurveSheet stored = ParseCurveFile(r.bytes);
        const std::array<std::string, 5> got = {stored.lblSDL, stored.lblMorF, stored.txtPVISTAM, stored.txtPVIEval,
                                                stored.txtPVISTA};
        for (size_t i = 0; i < got.size(); ++i) EXPECT_EQ(got[i], r.texts[i]) << i;
        EXPECT_FALSE(stored.optPVI || stored.optPVCPVT);
    }
    // The missing states turn the new window's PVI option off without a click, so
    // no mode is on and nothing stored is cleared.
    const CurveSheet loaded = LoadStoredCurve(ParseCurveFile(rows[0].bytes), "Metric");
    EXPECT_FALSE(loaded.optPVI || loaded.optPVCPVT);
    EXPECT_EQ(loaded.txtPVISTAM, "5");
}

TEST(CurveFileReadTest, BothOptionsTrueEndInThePviModeCleared) {
    CurveSheet s = test::PviSheet("English", "10", "0", "100", "2", "-2", "400");
    s.optPVCPVT = true;  // never written by the program
    CurveSheet loaded = LoadStoredCurve(ParseCurveFile(CurveFileBytes(s)), "Metric");
    EXPECT_TRUE(loaded.optPVI);
    EXPECT_FALSE(loaded.optPVCPVT);
    EXPECT_EQ(loaded.txtPVISTA, "");  // the PVI click cleared what was stored
}

// Every file the writer produces reads back to the same sheet.
TEST(CurveFileRoundTripTest, WrittenSheetsReadBackUnchanged) {
    std::mt19937 rng(2024);
    const std::string alphabet = "0123456789.-+eE abcxyzN/A#\t!;:'";
    auto randomText = [&] {
        std::string t(rng() % 12, ' ');
        for (char& c : t) c = alphabet[rng() % alphabet.size()];
        return t;
    };
    for (int round = 0; round < 500; ++round) {
        CurveSheet s = NewCurveSheet(round % 2 ? "Metric" : "English");
        if (round % 3 == 0) SwitchToPVCPVTMode(s);
        s.lblSDL = randomText();
        for (std::string_view name : CurveSheet::CurveFieldNames()) *s.Field(name) = randomText();
        for (ElevationRow& r : s.elevations.rows) r = {randomText(), randomText(), randomText()};
        s.elevations.txtVOffset = randomText();
        s.elevations.txtHOffset = randomText();
        s.elevations.txtXSlope = randomText();

        const std::string bytes = CurveFileBytes(s);
        CurveSheet back = LoadStoredCurve(ParseCurveFile(bytes), "Metric");
        ASSERT_EQ(CurveFileBytes(back), bytes) << "round " << round;
        EXPECT_EQ(back.optPVI, s.optPVI);
        EXPECT_EQ(back.lblMorF, s.lblMorF);
    }
}

}  // namespace
}  // namespace gw
