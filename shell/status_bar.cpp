#include "shell/status_bar.h"

#include <QLabel>
#include <QTimer>

#include "platform/platform.h"
#include "print/clock_text.h"

namespace gw {
namespace {

QLabel* Panel(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setContentsMargins(4, 0, 4, 0);
    return label;
}

}  // namespace

MainStatusBar::MainStatusBar(Platform& platform, QWidget* parent) : QStatusBar(parent), m_platform(platform) {
    setObjectName(QStringLiteral("sbStatusBar"));
    setSizeGripEnabled(false);
    m_status = Panel(QStringLiteral("Status"), this);
    m_status->setText(QStringLiteral("Status"));
    m_date = Panel(QStringLiteral("Date"), this);
    m_time = Panel(QStringLiteral("Time"), this);
    m_date->setAccessibleName(QStringLiteral("Date"));
    m_time->setAccessibleName(QStringLiteral("Time"));
    // The date and time panels share one width, wide enough for either.
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000 00:00:00 PM")) + 12;
    m_date->setFixedWidth(width);
    m_time->setFixedWidth(width);
    addWidget(m_status, 1);
    addPermanentWidget(m_date);
    addPermanentWidget(m_time);

    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, &MainStatusBar::Refresh);
    m_timer->start(1000);
    Refresh();
}

QString MainStatusBar::StatusText() const { return m_status->text(); }
QString MainStatusBar::DateText() const { return m_date->text(); }
QString MainStatusBar::TimeText() const { return m_time->text(); }

void MainStatusBar::Refresh() {
    const QDateTime now = m_platform.Now();
    const QLocale locale = m_platform.Locale();
    m_date->setText(ShortDateText(locale, now.date()));
    m_time->setText(TimeOfDayText(locale, now.time()));
}

}  // namespace gw
