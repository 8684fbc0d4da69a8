#include "companion/registro.h"

namespace nod {
Q_LOGGING_CATEGORY(lcConfig, "nod.config")
Q_LOGGING_CATEGORY(lcTablas, "nod.tablas")
Q_LOGGING_CATEGORY(lcFrame, "nod.frame")
Q_LOGGING_CATEGORY(lcTexto, "nod.texto")
Q_LOGGING_CATEGORY(lcIdent, "nod.ident")
Q_LOGGING_CATEGORY(lcProtocolo, "nod.protocolo")
Q_LOGGING_CATEGORY(lcComms, "nod.comms")
Q_LOGGING_CATEGORY(lcFicheros, "nod.ficheros")

QString TextoVisible(QStringView texto, qsizetype maximo) {
    const bool corta = maximo >= 0 && texto.size() > maximo;
    if (corta) {
        texto = texto.left(maximo);
        if (!texto.isEmpty() && texto.back().isHighSurrogate()) texto.chop(1);
    }
    QString r;
    r.reserve(texto.size() + (corta ? 1 : 0));
    for (const QChar c : texto) {
        const char16_t u = c.unicode();
        if (u < 0x20 || (u >= 0x7F && u < 0xA0)) {
            static constexpr char kHex[] = "0123456789ABCDEF";
            r += QLatin1String("\\x");
            r += QLatin1Char(kHex[u >> 4]);
            r += QLatin1Char(kHex[u & 0xF]);
        } else {
            r += c;
        }
    }
    if (corta) r += u'…';
    return r;
}
} // namespace nod
