// The report on paper: copies, pages, fonts, and the Print command's dialog rules.

#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "commands/print_command.h"
#include "core/curve_solver.h"
#include "core/report.h"
#include "platform/scripted_platform.h"
#include "print/clock_text.h"
#include "print/page_printer.h"
#include "print/report_copies.h"
#include "tests/core/sheet_builders.h"
#include "tests/qt_test_printers.h"

namespace gw {
namespace {

// Everything a printer is told, in order.
class CallLog final : public LinePrinter {
public:
    void SetFont(const QString& family, double size) override { calls << QString("font %1 %2").arg(family).arg(size); }
    void PrintLine(const QString& text) override { calls << "line " + text; }
    void NewPage() override { calls << "page"; }
    bool EndDoc() override {
        calls << "end";
        return true;
    }
    QStringList calls;
};

CurveSheet SolvedCurve() {
    CurveSheet s = test::PviSheet("Metric", "1", "500", "50", "-1", "1", "200");
    EXPECT_FALSE(Calculate(s));
    s.elevations.rows[0] = {"1", "450", "50.125"};
    return s;
}

TEST(ReportCopiesTest, EachCopyStartsInArialTwelveAndEndsWithAPageBreak) {
    CallLog log;
    PrintReportCopies(log, {"a", "b"}, 2);
    EXPECT_EQ(log.calls, (QStringList{"font Arial 12", "line a", "line b", "page", "font Arial 12", "line a", "line b",
                                      "page", "end"}));
    CallLog none;
    PrintReportCopies(none, {"a"}, 0);
    EXPECT_EQ(none.calls, QStringList{"end"});  // the job still ends
}

// The pages as a PDF reader sees them.
struct PdfText {
    int pages = 0;
    QStringList pageTexts;
};

PdfText ReadPdf(const QString& path) {
    PdfText out;
    QProcess info;
    info.start("pdfinfo", {path});
    info.waitForFinished();
    for (const QString& line : QString::fromUtf8(info.readAllStandardOutput()).split('\n')) {
        if (line.startsWith("Pages:")) out.pages = line.mid(6).trimmed().toInt();
    }
    QProcess text;
    text.start("pdftotext", {"-layout", path, "-"});
    text.waitForFinished();
    out.pageTexts = QString::fromUtf8(text.readAllStandardOutput()).split('\f', Qt::SkipEmptyParts);
    return out;
}

TEST(PagePrinterTest, ThreeCopiesMakeThreePagesAndNoEmptyOneAfter) {
    QTemporaryDir dir;
    const QString path = dir.filePath("report.pdf");
    const std::vector<std::string> lines = ReportLines(SolvedCurve(), "11/23/26", "8:00 AM");
    {
        QPdfWriter writer(path);
        PagePrinter printer(writer);
        ASSERT_TRUE(PrintReportCopies(printer, lines, 3));
    }
    const PdfText pdf = ReadPdf(path);
    ASSERT_EQ(pdf.pages, 3);
    // The PDF reader rebuilds blanks from glyph positions, so compare words.
    for (const QString& page : pdf.pageTexts.mid(0, 3)) {
        const QString words = page.simplified();
        EXPECT_TRUE(words.contains("Input: (Metric) PVI Values Station: 1+500")) << words.toStdString();
        EXPECT_TRUE(words.contains("Elevation at Station: 1+450 = 50.125"));
        EXPECT_TRUE(words.contains("Turning Point Station: 1+500.0"));
    }
}

// The report's heading and the status bar: the time of day with its seconds and
// without a time zone, in each locale's own way.
TEST(ClockTextTest, TimeOfDayKeepsTheSecondsAndDropsTheZone) {
    struct Row {
        const char* locale;
        const char* text;
    };
    for (const Row& r :
         {Row{"C", "13:40:04"}, Row{"en_US", "1:40:04 PM"}, Row{"de_DE", "13:40:04"}, Row{"fr_CA", "13 h 40 min 04 s"},
          Row{"zh_CN", "13:40:04"}, Row{"es_ES", "13:40:04"}, Row{"bg_BG", "13:40:04 \u0447."}}) {
        EXPECT_EQ(TimeOfDayText(QLocale(r.locale), QTime(13, 40, 4)), QString::fromUtf8(r.text)) << r.locale;
    }
}

class PrintCommandTest : public ::testing::Test {
protected:
    PrintCommandTest() {
        platform.OnUnexpected([](const QString& what) { ADD_FAILURE() << what.toStdString(); });
        platform.SetNow(QDateTime(QDate(2026, 11, 23), QTime(8, 5)));
    }
    QStringList PrintedPage(int page) const {
        QStringList out;
        for (const auto& line : platform.Printed()) {
            if (line.page == page) out << line.text;
        }
        return out;
    }
    ScriptedPlatform platform;
};

TEST_F(PrintCommandTest, CancelPrintsNothingAndRestoresThePointer) {
    const CurveSheet sheet = SolvedCurve();
    platform.AnswerPrintDialog(std::nullopt);
    PrintCurveReport(platform, nullptr, &sheet);
    EXPECT_TRUE(platform.Printed().empty());
    EXPECT_FALSE(platform.Busy());
    EXPECT_EQ(platform.BusySpells(), 1);
}

TEST_F(PrintCommandTest, CopiesArePagesOfTheWholeReportDatedNow) {
    const CurveSheet sheet = SolvedCurve();
    platform.SetLocale(QLocale("en_US"));
    platform.AnswerPrintDialog(3);
    PrintCurveReport(platform, nullptr, &sheet);
    QStringList expected;
    for (const std::string& line : ReportLines(sheet, "11/23/26", "8:05:00 AM"))
        expected << QString::fromStdString(line);
    EXPECT_EQ(PrintedPage(1), expected);  // dated in the locale's formats, the time with its seconds
    EXPECT_EQ(PrintedPage(3), expected);
    EXPECT_TRUE(PrintedPage(4).isEmpty());
    EXPECT_FALSE(platform.Busy());

    platform.AnswerPrintDialog(0);
    const size_t before = platform.Printed().size();
    PrintCurveReport(platform, nullptr, &sheet);
    EXPECT_EQ(platform.Printed().size(), before);
}

}  // namespace
}  // namespace gw
