#pragma once
// Texts in failure messages as texts, not as arrays of UTF-16 units.
#include <QString>
#include <ostream>

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
QT_END_NAMESPACE
