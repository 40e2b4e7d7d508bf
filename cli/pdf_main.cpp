// gradewise-pdf: renders a curve file's report to a PDF file for gradewise-cli.
// It is a program of its own so that the command-line tool does not load the Qt
// libraries for every other command.
#include <csignal>
#include <iostream>
#include <string>

#include "cli/pdf_report.h"
#include "core/curve_file.h"
#include "files/curve_file_io.h"

int main(int argc, char** argv) {
    std::signal(SIGXFSZ, SIG_IGN);  // a file-size limit is reported as any failed write
    if (argc != 4) {
        std::cerr << "usage: gradewise-pdf FILE OUT.pdf COPIES (used by gradewise-cli report --pdf)\n";
        return 2;
    }
    std::string bytes, error;
    if (!gw::ReadFileBytes(argv[1], bytes, error)) {
        std::cerr << "gradewise-cli: cannot read '" << argv[1] << "': " << error << "\n";
        return 2;
    }
    const gw::CurveSheet sheet = gw::LoadStoredCurve(gw::ParseCurveFile(bytes), gw::kMetric);
    if (!gw::cli::WriteReportPdf(sheet, argv[2], std::stoi(argv[3]), error)) {
        std::cerr << "gradewise-cli: cannot write '" << argv[2] << "': " << error << "\n";
        return 2;
    }
    return 0;
}
