#include "text/mayusculas.h"

#include "companion/rnumcad.h"

namespace nod {

namespace {

QChar mayuscula(QChar c) {
    return UpperCase(QString(c))[0];
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
    QString r = lowerCase(s);
    // A word starts the text or follows a blank; in the last word (after the last blank) a hyphen starts
    // one too: "ANA-MARIA DE LA O" gives "Ana-maria De La O" but "DE ANA-MARIA" gives "De Ana-Maria".
    const qsizetype ultimoBlanco = r.lastIndexOf(u' ');
    for (qsizetype i = 0; i < r.size(); ++i) {
        const bool empieza = i == 0 || r[i - 1] == u' ' || (i - 1 > ultimoBlanco && r[i - 1] == u'-');
        if (empieza) r[i] = mayuscula(r[i]);
    }
    return r;
}

} // namespace nod
