#include "companion/textovisible.h"

namespace nod {

QString NormalizaSaltos(const QString& texto) {
    if (!texto.contains(u'\r')) return texto;
    QString r;
    r.reserve(texto.size());
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (c != u'\r') {
            r += c;
            continue;
        }
        r += u'\n';
        if (i + 1 < texto.size() && texto[i + 1] == u'\n') ++i; // "\r\n" is one break
    }
    return r;
}

QString TextoVisible(const QString& texto) {
    QString r = NormalizaSaltos(texto);
    for (QChar& c : r) {
        const char16_t u = c.unicode();
        if (u != u'\n' && (u < 0x20 || (u >= 0x7F && u <= 0x9F))) c = u' ';
    }
    return r;
}

} // namespace nod
