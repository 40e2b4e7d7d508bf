#include "commands/print_command.h"

#include <QLocale>

#include "core/curve_sheet.h"
#include "core/report.h"
#include "platform/platform.h"
#include "platform/texts.h"
#include "print/clock_text.h"
#include "print/report_copies.h"

namespace gw {

void PrintCurveReport(Platform& platform, QWidget* owner, const CurveSheet* sheet) {
    if (!sheet) return;
    platform.SetBusyCursor(true);
    if (const std::optional<int> copies = platform.ShowPrintDialog(owner, 1)) {
        const QDateTime now = platform.Now();
        const QLocale locale = platform.Locale();
        const std::vector<std::string> lines = ReportLines(*sheet, ShortDateText(locale, now.date()).toStdString(),
                                                           TimeOfDayText(locale, now.time()).toStdString());
        // Failures of the printer are skipped without a message, as printing has no
        // way to report them here.
        if (std::unique_ptr<LinePrinter> job = platform.StartPrintJob(AppTitle())) {
            PrintReportCopies(*job, lines, *copies);
        }
    }
    platform.SetBusyCursor(false);
}

}  // namespace gw
