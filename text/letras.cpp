#include "text/letras.h"

#include "companion/rnumcad.h"
#include "text/cifras.h"
#include "text/escritura.h"

#include <algorithm>
#include <cmath>

namespace nod {

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace {

constexpr qint64 kMaximo = 999'999'999'999;
constexpr int kCifrasMaximas = 12;

PalabrasNumero creaTabla(std::u16string_view uno, std::u16string_view veintiuno, bool femenino) {
    PalabrasNumero p;
    p.hasta29 = {u""sv,
                 uno,
                 u"DOS "sv,
                 u"TRES "sv,
                 u"CUATRO "sv,
                 u"CINCO "sv,
                 u"SEIS "sv,
                 u"SIETE "sv,
                 u"OCHO "sv,
                 u"NUEVE "sv,
                 u"DIEZ "sv,
                 u"ONCE "sv,
                 u"DOCE "sv,
                 u"TRECE "sv,
                 u"CATORCE "sv,
                 u"QUINCE "sv,
                 u"DIECISÉIS "sv,
                 u"DIECISIETE "sv,
                 u"DIECIOCHO "sv,
                 u"DIECINUEVE "sv,
                 u"VEINTE "sv,
                 veintiuno,
                 u"VEINTIDÓS "sv,
                 u"VEINTITRÉS "sv,
                 u"VEINTICUATRO "sv,
                 u"VEINTICINCO "sv,
                 u"VEINTISÉIS "sv,
                 u"VEINTISIETE "sv,
                 u"VEINTIOCHO "sv,
                 u"VEINTINUEVE "sv};
    p.decenas = {u""sv,           u""sv,         u""sv,         u"TREINTA "sv, u"CUARENTA "sv,
                 u"CINCUENTA "sv, u"SESENTA "sv, u"SETENTA "sv, u"OCHENTA "sv, u"NOVENTA "sv};
    if (femenino)
        p.centenas = {u""sv,
                      u"CIENTO "sv,
                      u"DOSCIENTAS "sv,
                      u"TRESCIENTAS "sv,
                      u"CUATROCIENTAS "sv,
                      u"QUINIENTAS "sv,
                      u"SEISCIENTAS "sv,
                      u"SETECIENTAS "sv,
                      u"OCHOCIENTAS "sv,
                      u"NOVECIENTAS "sv};
    else
        p.centenas = {u""sv,
                      u"CIENTO "sv,
                      u"DOSCIENTOS "sv,
                      u"TRESCIENTOS "sv,
                      u"CUATROCIENTOS "sv,
                      u"QUINIENTOS "sv,
                      u"SEISCIENTOS "sv,
                      u"SETECIENTOS "sv,
                      u"OCHOCIENTOS "sv,
                      u"NOVECIENTOS "sv};
    return p;
}

// The one short word of one, whatever the gender.
constexpr std::u16string_view kUnCorto = u"UN "sv;

void cientos(int u, int t, int h, bool corto, const PalabrasNumero& p, Texto& r, int grupo) {
    const int grupoEntero = 100 * h + 10 * t + u;
    if (grupoEntero == 100)
        r.anade(u"CIEN "sv);
    else if (grupoEntero > 99)
        r.anade(p.centenas[size_t(h)]);
    const int resto = 10 * t + u;
    if (resto == 0) return;
    const std::u16string_view uno = corto ? kUnCorto : p.hasta29[1];
    if (grupoEntero == 1) {
        if (grupo != 1) // one thousand is "MIL" alone
            r.anade(uno);
    } else if (resto == 21)
        r.anade(corto ? p.hasta29[21] : u"VEINTIUNO "sv);
    else if (resto >= 30) {
        r.anade(p.decenas[size_t(t)]);
        if (u != 0) {
            r.anade(u"Y "sv);
            r.anade(u == 1 ? uno : p.hasta29[size_t(u)]);
        }
    } else if (resto == 1)
        r.anade(uno);
    else
        r.anade(p.hasta29[size_t(resto)]); // 2..20, 22..29
}

// Six digits held as a number (0..999 999).
void seisCifras(int v, Texto& r, const PalabrasNumero& p, bool corto) {
    const int miles = v / 1000, ultimas = v % 1000;
    // The thousands' short form depends on the last three digits, not on the caller.
    cientos(miles % 10, miles / 10 % 10, miles / 100, ultimas != 0, p, r, 1);
    if (miles != 0) r.anade(u"MIL "sv);
    cientos(ultimas % 10, ultimas / 10 % 10, ultimas / 100, corto, p, r, 2);
}

bool enRango(double x) {
    return std::isfinite(x) && x >= 0 && x < double(kMaximo + 1);
}

bool minus(QChar minusculas) {
    return minusculas == u'S';
}

// Lower-cases in place what was appended from `desde` on (the words' letters and accented capitals).
void enMinusculas(Texto& r, size_t desde) {
    for (char16_t* c = r.data() + desde; c != r.data() + r.size(); ++c)
        *c = *c >= u'A' && *c <= u'Z' ? char16_t(*c | 0x20) : QChar(*c).toLower().unicode();
}

// Appends the words of `numero` (in range) without the final blank.
void anadeLetras(Texto& r, qint64 numero, QChar genero, bool minusculas, bool corto) {
    const size_t desde = r.size();
    if (numero == 0)
        r.anade(u"CERO "sv);
    else {
        const PalabrasNumero& p = TablaPalabras(genero);
        const int millones = int(numero / 1'000'000), unidades = int(numero % 1'000'000);
        if (millones == 1)
            r.anade(u"UN MILLON "sv);
        else if (millones > 1) {
            seisCifras(millones, r, p, true);
            r.anade(u"MILLONES "sv);
        }
        if (unidades != 0)
            seisCifras(unidades, r, p, corto);
        else
            r.anade(u"DE "sv); // "UN MILLON DE" reads right before the unit
    }
    r.chop(1); // every word ends in one blank and none starts with one
    if (minusculas) enMinusculas(r, desde);
}

} // namespace

const PalabrasNumero& TablaPalabras(QChar genero) {
    static const PalabrasNumero femenino = creaTabla(u"UNA "sv, u"VEINTIUNA "sv, true);
    static const PalabrasNumero masculino = creaTabla(u"UNO "sv, u"VEINTIÚN "sv, false);
    static const PalabrasNumero otro = creaTabla(u"UNO "sv, u"VEINTIUNO "sv, false);
    return genero == u'F' ? femenino : genero == u'M' ? masculino : otro;
}

QString LetrasNod(qint64 numero, QChar genero, QChar minusculas, bool corto) {
    if (numero < 0 || numero > kMaximo) return {};
    Texto r;
    anadeLetras(r, numero, genero, minus(minusculas), corto);
    return r.qstring();
}

void SeisCifrasNod(const QString& seis, QString& resultado, const PalabrasNumero& palabras, bool corto) {
    // Right-aligned in six characters; blanks and anything that is not a digit count as 0.
    const QString grupo = QString(qMax<qsizetype>(0, 6 - seis.size()), u' ') + seis.left(6);
    int v = 0;
    for (int i = 0; i < 6; ++i)
        v = 10 * v + (EsUnNumero(grupo[i]) ? grupo[i].unicode() - u'0' : 0);
    Texto t;
    seisCifras(v, t, palabras, corto);
    resultado += t.qstring();
}

void SeisCifrasNod(const QString& seis, QString& resultado, QChar genero, bool corto) {
    SeisCifrasNod(seis, resultado, TablaPalabras(genero), corto);
}

void CientosNod(int unidades, int decenas, int centenas, bool corto, const PalabrasNumero& palabras,
                QString& resultado, int grupo) {
    for (int d : {unidades, decenas, centenas})
        if (d < 0 || d > 9) return;
    Texto t;
    cientos(unidades, decenas, centenas, corto, palabras, t, grupo);
    resultado += t.qstring();
}

void CientosNod(int unidades, int decenas, int centenas, bool corto, QChar genero, QString& resultado,
                int grupo) {
    CientosNod(unidades, decenas, centenas, corto, TablaPalabras(genero), resultado, grupo);
}

QString LetrasDecimalNod(double numero, int decimales, QChar genero, QChar minusculas) {
    if (!enRango(numero)) return {};
    const Cifras c(numero);
    const qint64 decimal = ValorDigitosRellenos(c.decimal(), decimales, kCifrasMaximas);
    if (decimal < 0) return {};
    const bool m = minus(minusculas);
    Texto r;
    anadeLetras(r, ValorDigitos(c.entera(), kCifrasMaximas), genero, m, false);
    if (decimal != 0) {
        r.anade(m ? u" con "sv : u" CON "sv);
        anadeLetras(r, decimal, genero, m, false);
    }
    return r.qstring();
}

QString LetrasPorCientoNod(double numero, QChar genero, QChar minusculas) {
    if (!enRango(numero)) return {};
    const Cifras c(numero);
    const qint64 decimal = ValorDigitos(c.decimal(), kCifrasMaximas);
    if (decimal < 0) return {};
    const bool m = minus(minusculas);
    Texto r;
    anadeLetras(r, ValorDigitos(c.entera(), kCifrasMaximas), genero, m, false);
    if (decimal == 0) return r.qstring();
    static constexpr std::u16string_view kMayus[] = {u"", u" DÉCIMAS", u" CENTÉSIMAS", u" MILÉSIMAS"};
    static constexpr std::u16string_view kMinus[] = {u"", u" décimas", u" centésimas", u" milésimas"};
    r.anade(m ? u" enteros con "sv : u" ENTEROS CON "sv);
    anadeLetras(r, decimal, genero, m, false);
    const size_t k = c.decimal().size();
    if (k <= 3) r.anade((m ? kMinus : kMayus)[k]);
    return r.qstring();
}

void EscribeEurosEnLetra(Texto& r, double importe, const Cifras& c, QChar minusculas, bool unidadMinusculas) {
    if (!enRango(importe)) return;
    // One decimal digit stands for tens of cents: 21,5 is 21 euros 50.
    const qint64 centimos =
        ValorDigitosRellenos(c.decimal(), qMax<qint64>(2, qint64(c.decimal().size())), kCifrasMaximas);
    if (centimos < 0) return;
    const bool m = minus(minusculas), mu = unidadMinusculas;
    // Without decimals the amount is a whole number already, its own rounding.
    anadeLetras(r, ValorDigitos(c.entera(), kCifrasMaximas), u'M', m, true);
    r.anade(mu ? u" euros"sv : u" EUROS"sv);
    if (!c.decimal().empty()) {
        r.anade(mu ? u" con "sv : u" CON "sv);
        anadeLetras(r, centimos, u'M', m, true);
        r.anade(mu ? u" céntimos"sv : u" CENTIMOS"sv);
    }
}

QString EurosEnLetra(double importe, const QString& minusculas) {
    const Cifras c(importe);
    Texto r;
    // The numbers follow the first character; the unit words are lowered only by the flag "S" itself.
    EscribeEurosEnLetra(r, importe, c, minusculas.isEmpty() ? QChar() : minusculas[0], minusculas == u"S");
    return r.qstring();
}

QString Letras_Pesetas(qint64, QChar) {
    return {};
}

QString Letras_Euros(double, int, QChar) {
    return {};
}

} // namespace nod
