#include "ident/cif.h"

#include "companion/documentos.h"
#include "companion/rnumcad.h"

namespace nod {

namespace {

int digito(QChar c) {
    return c.unicode() - u'0';
}

// The sum of the control over the 7 digits at positions 2..8: the second, fourth, sixth and eighth characters
// count by the digit sum of their double, the third, fifth and seventh as they are.
int sumaControl(QStringView t) {
    int suma = digito(t[2]) + digito(t[4]) + digito(t[6]);
    for (int i : {1, 3, 5, 7}) {
        const int doble = 2 * digito(t[i]);
        suma += doble % 10 + doble / 10;
    }
    return suma;
}

// The same sum worked out again by writing each double in decimal and adding its one or two figures.
int sumaControlPorCadena(QStringView t) {
    int suma = digito(t[2]) + digito(t[4]) + digito(t[6]);
    for (int i : {1, 3, 5, 7})
        for (QChar c : QString::number(2 * digito(t[i])))
            suma += digito(c);
    return suma;
}

bool primeraComprobacion(QStringView t) {
    int c = 10 - sumaControl(t) % 10;
    if (t[0] == u'P' || t[0] == u'S') return t[8] == QChar(64 + c);
    if (c == 10) c = 0;
    return t[8] >= u'0' && t[8] <= u'9' && digito(t[8]) == c;
}

bool segundaComprobacion(QStringView t) {
    const QString suma = QString::number(sumaControlPorCadena(t));
    const int c = 10 - digito(suma.back());
    if (t[8] >= u'0' && t[8] <= u'9') return digito(t[8]) == c;
    return t[8] == QChar(64 + c);
}

} // namespace

bool EsCif(const QString& s) {
    const QString t = PreparaCIFNIF(s);
    if (t.size() != 9) return false;
    if (t[0] >= u'0' && t[0] <= u'9') return EsNif(t, false);
    if (!QStringView(u"ABCDEFGHKLMNPQSX").contains(t[0])) return false;
    if (t[0] == u'X') return EsNif(u'0' + t.mid(1), false);
    if (!EsUnNumero(QStringView(t).mid(1, 7))) return false;
    if (QStringView(u"MKLN").contains(t[0])) return true;
    return primeraComprobacion(t) || segundaComprobacion(t);
}

} // namespace nod
