#include "print/clock_text.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <QTime>

namespace gw {
namespace {

// The locale's long time format less its time zone ("t", bracketed in some
// locales) and the blank beside it; quoted literals are kept as they are.
QString TimeOfDayFormat(const QLocale& locale) {
    static const QRegularExpression zone(QStringLiteral("\\s*\\(?t+\\)?\\s*"));
    const QString format = locale.timeFormat(QLocale::LongFormat);
    QString out;
    qsizetype from = 0;
    while (from < format.size()) {
        const qsizetype quote = format.indexOf(QLatin1Char('\''), from);
        const qsizetype plainEnd = quote < 0 ? format.size() : quote;
        out += format.mid(from, plainEnd - from).replace(zone, QStringLiteral(" "));
        if (quote < 0) break;
        const qsizetype close = format.indexOf(QLatin1Char('\''), quote + 1);
        const qsizetype quotedEnd = close < 0 ? format.size() : close + 1;
        out += format.mid(quote, quotedEnd - quote);
        from = quotedEnd;
    }
    return out.trimmed();
}

}  // namespace

QString ShortDateText(const QLocale& locale, const QDate& date) { return locale.toString(date, QLocale::ShortFormat); }

QString TimeOfDayText(const QLocale& locale, const QTime& time) {
    return locale.toString(time, TimeOfDayFormat(locale));
}

}  // namespace gw
