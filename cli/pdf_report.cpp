#include "cli/pdf_report.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QGuiApplication>
#include <QLocale>
#include <QPdfWriter>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include "core/report.h"
#include "files/replace_file.h"
#include "print/clock_text.h"
#include "print/page_printer.h"
#include "print/report_copies.h"

namespace gw::cli {
namespace {

// Fonts need a GUI application object; the tool makes one only for PDF output,
// on the offscreen platform so that no display is needed.
std::unique_ptr<QGuiApplication> EnsureGuiApplication() {
    if (QCoreApplication::instance()) return nullptr;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt wants a private runtime folder; make the one it would fall back to, quietly.
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        const QByteArray runtime = QDir::tempPath().toUtf8() + "/runtime-" + QByteArray::number(uint(::getuid()));
        ::mkdir(runtime.constData(), 0700);
        qputenv("XDG_RUNTIME_DIR", runtime);
    }
    static int argc = 1;
    static char name[] = "gradewise-cli";
    static char* argv[] = {name, nullptr};
    return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace

bool WriteReportPdf(const CurveSheet& sheet, const std::string& path, int copies, std::string& error) {
    const std::unique_ptr<QGuiApplication> app = EnsureGuiApplication();
    // The pages are made in memory and only then written, through the one file writer:
    // a failure never leaves a cut PDF or an emptied old one, and the file name stays
    // the bytes it was given.
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&pdf);
        writer.setTitle(QStringLiteral("Gradewise"));
        writer.setCreator(QStringLiteral("gradewise-cli"));
        writer.setPageSize(QPageSize(QPageSize::Letter));
        writer.setPageMargins(QMarginsF(18, 18, 18, 18), QPageLayout::Millimeter);
        const QDateTime now = QDateTime::currentDateTime();
        const QLocale locale = QLocale::system();
        const std::vector<std::string> lines = ReportLines(sheet, ShortDateText(locale, now.date()).toStdString(),
                                                           TimeOfDayText(locale, now.time()).toStdString());
        PagePrinter printer(writer);
        if (!PrintReportCopies(printer, lines, copies)) {
            error = "the PDF could not be made";
            return false;
        }
    }
    const QByteArray& bytes = pdf.data();
    return ReplaceFile(path, std::string_view(bytes.constData(), size_t(bytes.size())), error);
}

}  // namespace gw::cli
