#pragma once
// Small helpers of the communications tests: Qt texts in GoogleTest's failure messages as text, and files
// written for a test to send or find.

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <gtest/gtest.h>
#include <ostream>

inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
inline void PrintTo(const QByteArray& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

namespace nod::prueba {

/// Writes `contenido` into `ruta`, creating its folders; returns `ruta`.
inline QString EscribeFichero(const QString& ruta, const QByteArray& contenido) {
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    QFile f(ruta);
    EXPECT_TRUE(f.open(QIODevice::WriteOnly) && f.write(contenido) == contenido.size()) << ruta.toStdString();
    return ruta;
}

} // namespace nod::prueba
