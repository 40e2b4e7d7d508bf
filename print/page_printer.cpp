#include "print/page_printer.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>

namespace gw {

PagePrinter::PagePrinter(QPagedPaintDevice& device) : m_device(device) {}

PagePrinter::~PagePrinter() {
    if (m_painter.isActive()) m_painter.end();
}

bool PagePrinter::Begin() {
    if (m_painter.isActive()) return true;
    m_ok = m_painter.begin(&m_device) && m_ok;
    return m_painter.isActive();
}

void PagePrinter::SetFont(const QString& family, double pointSize) {
    m_font = QFont(family);
    m_font.setPointSizeF(pointSize);
    if (m_painter.isActive()) m_painter.setFont(m_font);
}

void PagePrinter::PrintLine(const QString& text) {
    if (!Begin()) return;
    if (m_breakPending) {
        m_ok = m_device.newPage() && m_ok;
        m_breakPending = false;
        m_y = 0;
    }
    m_painter.setFont(m_font);
    const QFontMetricsF metrics(m_font, &m_device);
    m_painter.drawText(QPointF(0, m_y + metrics.ascent()), text);
    m_y += metrics.lineSpacing();
}

void PagePrinter::NewPage() { m_breakPending = true; }

bool PagePrinter::EndDoc() {
    if (m_painter.isActive()) m_ok = m_painter.end() && m_ok;
    return m_ok;
}

}  // namespace gw
