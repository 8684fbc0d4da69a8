#include "ident/controlcatastral.h"

#include <array>

namespace nod {

namespace {

constexpr std::array<int, 11> kPesos = {13, 15, 12, 5, 4, 17, 9, 21, 3, 7, 1};
constexpr QStringView kLetras = u"MQWERTYUIOPASDFGHJKLBZX";

// Value of one character in the weighted sum; -1 for a character that cannot appear in a reference.
int valor(QChar c) {
    if (c >= u'0' && c <= u'9') return c.unicode() - u'0';
    if (c >= u'A' && c <= u'N') return c.unicode() - u'A' + 1;
    if (c == u'Ñ') return 15;
    if (c >= u'O' && c <= u'Z') return c.unicode() - u'A' + 2;
    return -1;
}

// The letter for seven characters of the reference followed by the four of positions 15-18.
QChar letra(QStringView siete, QStringView cuatro) {
    int suma = 0;
    for (int p = 0; p < 11; ++p) {
        const int v = valor(p < 7 ? siete[p] : cuatro[p - 7]);
        if (v < 0) return QChar();
        suma += kPesos[p] * v;
    }
    return kLetras[suma % 23];
}

} // namespace

QString LetrasControlCatastral(const QString& referencia) {
    if (referencia.size() < 18) return {};
    const QStringView r(referencia);
    const QChar primera = letra(r.mid(0, 7), r.mid(14, 4));
    const QChar segunda = letra(r.mid(7, 7), r.mid(14, 4));
    if (primera.isNull() || segunda.isNull()) return {};
    return QString(primera) + segunda;
}

bool ControlCatastralCorrecto(const QString& referencia) {
    if (referencia.size() != 20) return false;
    const QString letras = LetrasControlCatastral(referencia);
    return !letras.isEmpty() && QStringView(referencia).right(2) == letras;
}

} // namespace nod
