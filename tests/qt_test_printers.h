#pragma once
// Readable failure messages for Qt strings in GoogleTest assertions.

#include <QString>
#include <QStringList>
#include <ostream>

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* os) { *os << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QStringList& list, std::ostream* os) {
    *os << "{";
    for (int i = 0; i < list.size(); ++i) *os << (i ? ", \"" : "\"") << list[i].toStdString() << '"';
    *os << "}";
}
QT_END_NAMESPACE
