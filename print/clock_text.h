#pragma once
// The date and the time of day as the user's locale writes them, for the report's
// heading and the status bar: the short date, and the time with its seconds but
// without the name of a time zone.

#include <QString>

class QDate;
class QLocale;
class QTime;

namespace gw {

QString ShortDateText(const QLocale& locale, const QDate& date);
QString TimeOfDayText(const QLocale& locale, const QTime& time);

}  // namespace gw
