#pragma once
// Small helpers of the maintenance tests: texts in failure messages as texts, not as arrays of UTF-16
// units; the texts the wait window showed, in order; a row of the connection table.
#include "companion/mensajes.h"
#include "tables/tablas.h"

#include <QString>
#include <QStringList>
#include <gtest/gtest.h>
#include <ostream>

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
QT_END_NAMESPACE

namespace nod::prueba {

inline QStringList TextosEspera(const ServicioMensajesGuionado& mensajes) {
    QStringList l;
    for (const DialogoMostrado& d : mensajes.mostrados())
        if (d.kind == QLatin1String("MuestraMensaje") || d.kind == QLatin1String("CambiaMensaje"))
            l << d.text;
    return l;
}

/// Appends the row of `equipo`, connected on `fecha` at `hora`, to the connection table of alias DB (created
/// if missing).
inline void FilaConexion(const char* equipo, TDateTime fecha, const char* hora) {
    auto tb = CreaTablaSinExcepcion(QStringLiteral("DB"), QStringLiteral("CONEXION"), {}, true);
    ASSERT_NE(tb, nullptr);
    tb->Append();
    tb->SetString(QStringLiteral("EQUIPO"), QLatin1String(equipo));
    tb->SetDateTime(QStringLiteral("FECHA"), fecha);
    tb->SetString(QStringLiteral("HORA"), QLatin1String(hora));
    tb->Post();
}

} // namespace nod::prueba
