#pragma once
// Qt texts in GoogleTest's failure messages as text, not as lists of UTF-16 units.

#include <QByteArray>
#include <QString>
#include <ostream>

inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
inline void PrintTo(const QByteArray& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
