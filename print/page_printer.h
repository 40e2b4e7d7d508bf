#pragma once
// Lines on the pages of a printer or a PDF file, from the top left of the
// printable area, each below the last at the font's line spacing.

#include <QPainter>

#include "print/line_printer.h"

class QPagedPaintDevice;

namespace gw {

class PagePrinter final : public LinePrinter {
public:
    explicit PagePrinter(QPagedPaintDevice& device);
    ~PagePrinter() override;

    void SetFont(const QString& family, double pointSize) override;
    void PrintLine(const QString& text) override;
    void NewPage() override;
    bool EndDoc() override;

private:
    bool Begin();

    QPagedPaintDevice& m_device;
    QPainter m_painter;
    QFont m_font;
    double m_y = 0;
    // A page break takes effect with the next line, so a break that ends the job
    // leaves no empty page behind.
    bool m_breakPending = false;
    bool m_ok = true;
};

}  // namespace gw
