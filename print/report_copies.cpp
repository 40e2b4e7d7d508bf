#include "print/report_copies.h"

namespace gw {

bool PrintReportCopies(LinePrinter& printer, const std::vector<std::string>& lines, int copies) {
    for (int copy = 1; copy <= copies; ++copy) {
        printer.SetFont(QStringLiteral("Arial"), 12);
        for (const std::string& line : lines) printer.PrintLine(QString::fromStdString(line));
        printer.NewPage();
    }
    return printer.EndDoc();
}

}  // namespace gw
