#pragma once
// Small helpers of the maintenance tests: texts in failure messages as texts, not as arrays of UTF-16
// units; the texts the wait window showed, in order.
#include "companion/mensajes.h"

#include <QString>
#include <QStringList>
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

} // namespace nod::prueba
