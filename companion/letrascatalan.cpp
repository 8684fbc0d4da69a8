#include "companion/letrascatalan.h"

#include "companion/rnumcad.h"

namespace nod {

namespace {

constexpr qint64 kMaximo = 999'999'999'999;

enum class Uno { Femenino, Corto, Contado };

const char16_t* const kUnidades[] = {u"",     u"U",   u"DOS", u"TRES", u"QUATRE",
                                     u"CINC", u"SIS", u"SET", u"VUIT", u"NOU"};
const char16_t* const kDeuADinou[] = {u"DEU",    u"ONZE",  u"DOTZE",  u"TRETZE", u"CATORZE",
                                      u"QUINZE", u"SETZE", u"DISSET", u"DIVUIT", u"DINOU"};
const char16_t* const kDecenas[] = {u"",          u"",         u"VINT",    u"TRENTA",   u"QUARANTA",
                                    u"CINQUANTA", u"SEIXANTA", u"SETANTA", u"VUITANTA", u"NORANTA"};

void unidad(int u, bool femenino, Uno uno, QString& r) {
    if (u == 1)
        r += uno == Uno::Femenino ? u"UNA" : uno == Uno::Corto ? u"UN" : u"U";
    else if (u == 2 && femenino)
        r += u"DUES";
    else
        r += kUnidades[u];
}

// 1..99
void decenas(int v, bool femenino, Uno uno, QString& r) {
    const int d = v / 10, u = v % 10;
    if (d == 0)
        unidad(u, femenino, uno, r);
    else if (d == 1)
        r += kDeuADinou[u];
    else {
        r += kDecenas[d];
        if (u != 0) {
            r += d == 2 ? u"-I-" : u"-";
            unidad(u, femenino, uno, r);
        }
    }
}

// 1..999, with a blank after it.
void centenas(int v, bool femenino, Uno uno, QString& r) {
    const int c = v / 100, resto = v % 100;
    if (c == 1)
        r += u"CENT ";
    else if (c > 1) {
        unidad(c, femenino, Uno::Contado, r);
        r += femenino ? u"-CENTES " : u"-CENTS ";
    }
    if (resto != 0) {
        decenas(resto, femenino, uno, r);
        r += u' ';
    }
}

// 1..999 999: the thousands take the short form of one, then the last three digits.
void seisCifras(int v, bool femenino, Uno uno, QString& r) {
    const int miles = v / 1000, resto = v % 1000;
    if (miles == 1)
        r += u"MIL ";
    else if (miles > 1) {
        centenas(miles, femenino, femenino ? Uno::Femenino : Uno::Corto, r);
        r += u"MIL ";
    }
    if (resto != 0) centenas(resto, femenino, uno, r);
}

} // namespace

QString letrasEnCatalan(qint64 numero, QChar genero, QChar minusculas, bool corto) {
    if (numero < 0 || numero > kMaximo) return {};
    QString r;
    if (numero == 0)
        r = QStringLiteral("ZERO");
    else {
        const bool femenino = genero == QLatin1Char('F');
        const Uno uno = femenino ? Uno::Femenino : corto ? Uno::Corto : Uno::Contado;
        const int milions = int(numero / 1'000'000), resto = int(numero % 1'000'000);
        r.reserve(160);
        if (milions == 1)
            r += u"UN MILIÓ ";
        else if (milions > 1) {
            seisCifras(milions, false, Uno::Corto, r); // "milió" is masculine
            r += u"MILIONS ";
        }
        if (resto != 0) seisCifras(resto, femenino, uno, r);
        r.chop(1);
    }
    return minusculas == QLatin1Char('S') ? lowerCase(r) : r;
}

} // namespace nod
