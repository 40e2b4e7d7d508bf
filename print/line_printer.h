#pragma once
// One print job, line by line: the font, a line of text below the last one, a new
// page, the end of the job.

#include <QString>

namespace gw {

class LinePrinter {
public:
    virtual ~LinePrinter() = default;
    virtual void SetFont(const QString& family, double pointSize) = 0;
    virtual void PrintLine(const QString& text) = 0;
    virtual void NewPage() = 0;
    // Ends the job; false when the printer reported a failure.
    virtual bool EndDoc() = 0;
};

}  // namespace gw
