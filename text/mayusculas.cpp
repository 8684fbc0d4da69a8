#include "text/mayusculas.h"

#include "companion/rnumcad.h"

namespace nod {

namespace {

QString conCapital(const QString& palabra) {
    QString r = palabra;
    if (!r.isEmpty()) r[0] = UpperCase(QString(r[0]))[0];
    return r;
}

// Cuts `resto` at each `separador` (kept with the part before it) and gives each part a capital.
void capitalizaPartes(QString& resto, QChar separador, QString& resultado) {
    qsizetype p;
    while ((p = resto.indexOf(separador)) >= 0) {
        resultado += conCapital(resto.left(p + 1));
        resto.remove(0, p + 1);
    }
}

} // namespace

QString MayusMinus(const QString& s, QChar caso) {
    switch (caso.unicode()) {
    case u'S':
        return lowerCase(s);
    case u'N':
        return UpperCase(s);
    case u'C':
        return CapitalCase(s);
    default:
        return s;
    }
}

QString CapitalCase(const QString& s) {
    QString resto = lowerCase(s);
    QString resultado;
    resultado.reserve(resto.size());
    capitalizaPartes(resto, u' ', resultado);
    // Hyphens are looked for only in what is left after the last blank: the last word.
    capitalizaPartes(resto, u'-', resultado);
    resultado += conCapital(resto);
    return resultado;
}

} // namespace nod
