#include "ident/catastro.h"

#include "companion/rnumcad.h"
#include "text/recorte.h"

namespace nod {

namespace {

bool esLetra(QChar c) {
    return c >= u'A' && c <= u'Z';
}

// The text as both tests and formatters read it: trimmed of blanks and control characters (a no-break
// space stays, and so is not expandable) and upper-cased letter by letter, so that the length never
// changes ("ß" does not become "SS" and turn into two letters).
QString normaliza(const QString& s) {
    return UpperCase(Trim(s));
}

bool todoDigitosOLetras(const QString& t) {
    for (QChar c : t)
        if (!EsUnNumero(c) && !esLetra(c)) return false;
    return !t.isEmpty();
}

// 1-based position of the first non-digit at or after `desde`; size + 1 when there is none.
qsizetype primeraNoCifra(const QString& t, qsizetype desde) {
    qsizetype p = desde;
    while (p <= t.size() && EsUnNumero(t[p - 1]))
        ++p;
    return p;
}

// 1-based character access that answers false past the end.
bool letraEn(const QString& t, qsizetype p) {
    return p >= 1 && p <= t.size() && esLetra(t[p - 1]);
}

// Characters desde..hasta-1 (1-based), left-padded with zeros to `ancho` keeping the rightmost `ancho`.
QString ceros(const QString& t, qsizetype desde, qsizetype hasta, qsizetype ancho) {
    const QString relleno = QString(ancho, u'0') + t.mid(desde - 1, hasta - desde);
    return relleno.right(ancho);
}

struct CortesUrbana {
    qsizetype i = 0, j = 0, k = 0;
    bool valida = false;
};

CortesUrbana cortesUrbana(const QString& t) {
    CortesUrbana c;
    const qsizetype n = t.size();
    if (!todoDigitosOLetras(t)) return c;
    c.i = primeraNoCifra(t, 1);
    if (!(c.i < n && letraEn(t, c.i) && letraEn(t, c.i + 1))) return c;
    c.j = primeraNoCifra(t, c.i + 2);
    if (!(c.j < n && c.j + 1 < n)) return c;
    c.k = primeraNoCifra(t, c.j + 1);
    c.valida = c.k < n && letraEn(t, c.k) && letraEn(t, c.k + 1);
    return c;
}

struct CortesRustica {
    qsizetype i = 0, j = 0;
    bool valida = false;
};

CortesRustica cortesRustica(const QString& t) {
    CortesRustica c;
    const qsizetype n = t.size();
    if (!todoDigitosOLetras(t)) return c;
    c.i = primeraNoCifra(t, 1);
    if (!(c.i < n && letraEn(t, c.i))) return c;
    c.j = primeraNoCifra(t, c.i + 1);
    c.valida = c.j < n && letraEn(t, n - 1) && letraEn(t, n);
    return c;
}

} // namespace

bool SePuedeFormatearReferenciaCatastralUrbana(const QString& s) {
    return cortesUrbana(normaliza(s)).valida;
}

QString FormatearReferenciaCatastralUrbana(const QString& s) {
    const QString t = normaliza(s);
    if (t.size() >= 20) return t;
    const CortesUrbana c = cortesUrbana(t);
    if (!c.valida) return t;
    return ceros(t, 1, c.i, 7) + t.mid(c.i - 1, 2) + ceros(t, c.i + 2, c.j, 4) + t[c.j - 1] +
           ceros(t, c.j + 1, c.k, 4) + t.mid(c.k - 1, 2);
}

bool SePuedeFormatearReferenciaCatastralRustica(const QString& s) {
    return cortesRustica(normaliza(s)).valida;
}

QString FormatearReferenciaCatastralRustica(const QString& s) {
    const QString t = normaliza(s);
    if (t.size() >= 20) return t;
    const CortesRustica c = cortesRustica(t);
    if (!c.valida) return t;
    return ceros(t, 1, c.i, 5) + t[c.i - 1] + ceros(t, c.i + 1, c.j, 12) + t.mid(c.j - 1, 2);
}

} // namespace nod
