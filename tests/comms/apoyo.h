#pragma once
// Small helpers of the communications tests: Qt texts in GoogleTest's failure messages as text, files
// written for a test to send or find, the dialogs shown, and the log caught while a test runs.

#include "companion/mensajes.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QString>
#include <QStringList>
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

/// The dialogs the scripted message service showed, each as "kind|title|text".
inline QStringList Dialogos(const ServicioMensajesGuionado& g) {
    QStringList r;
    for (const DialogoMostrado& d : g.mostrados())
        r.append(d.kind + u'|' + d.title + u'|' + d.text);
    return r;
}

/// Catches every line the library logs (all of its categories, informational ones too) while it lives.
class RegistroCapturado {
public:
    RegistroCapturado() {
        lineas().clear();
        QLoggingCategory::setFilterRules(QStringLiteral("nod.*=true"));
        m_anterior = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& texto) { lineas().append(texto); });
    }
    ~RegistroCapturado() {
        qInstallMessageHandler(m_anterior);
        QLoggingCategory::setFilterRules({});
    }
    RegistroCapturado(const RegistroCapturado&) = delete;
    RegistroCapturado& operator=(const RegistroCapturado&) = delete;
    /// Everything logged so far, one line each.
    QString texto() const { return lineas().join(u'\n'); }

private:
    static QStringList& lineas() {
        static QStringList l;
        return l;
    }
    QtMessageHandler m_anterior = nullptr;
};

} // namespace nod::prueba
