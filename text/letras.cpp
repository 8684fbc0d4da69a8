#include "text/letras.h"

#include "companion/rnumcad.h"
#include "text/recorte.h"

#include <cmath>

namespace nod {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMaximo = 999'999'999'999;

PalabrasNumero creaTabla(const char16_t* uno, const char16_t* veintiuno, bool femenino) {
    PalabrasNumero p;
    p.hasta29 = {u"",
                 uno,
                 u"DOS ",
                 u"TRES ",
                 u"CUATRO ",
                 u"CINCO ",
                 u"SEIS ",
                 u"SIETE ",
                 u"OCHO ",
                 u"NUEVE ",
                 u"DIEZ ",
                 u"ONCE ",
                 u"DOCE ",
                 u"TRECE ",
                 u"CATORCE ",
                 u"QUINCE ",
                 u"DIECISÉIS ",
                 u"DIECISIETE ",
                 u"DIECIOCHO ",
                 u"DIECINUEVE ",
                 u"VEINTE ",
                 veintiuno,
                 u"VEINTIDÓS ",
                 u"VEINTITRÉS ",
                 u"VEINTICUATRO ",
                 u"VEINTICINCO ",
                 u"VEINTISÉIS ",
                 u"VEINTISIETE ",
                 u"VEINTIOCHO ",
                 u"VEINTINUEVE "};
    p.decenas = {u"",           u"",         u"",         u"TREINTA ", u"CUARENTA ",
                 u"CINCUENTA ", u"SESENTA ", u"SETENTA ", u"OCHENTA ", u"NOVENTA "};
    if (femenino)
        p.centenas = {u"",
                      u"CIENTO ",
                      u"DOSCIENTAS ",
                      u"TRESCIENTAS ",
                      u"CUATROCIENTAS ",
                      u"QUINIENTAS ",
                      u"SEISCIENTAS ",
                      u"SETECIENTAS ",
                      u"OCHOCIENTAS ",
                      u"NOVECIENTAS "};
    else
        p.centenas = {u"",
                      u"CIENTO ",
                      u"DOSCIENTOS ",
                      u"TRESCIENTOS ",
                      u"CUATROCIENTOS ",
                      u"QUINIENTOS ",
                      u"SEISCIENTOS ",
                      u"SETECIENTOS ",
                      u"OCHOCIENTOS ",
                      u"NOVECIENTOS "};
    return p;
}

// The one short word of one, whatever the gender.
constexpr const char16_t* kUnCorto = u"UN ";

void cientos(int u, int t, int h, bool corto, const PalabrasNumero& p, QString& r, int grupo) {
    const int grupoEntero = 100 * h + 10 * t + u;
    if (grupoEntero == 100)
        r += u"CIEN ";
    else if (grupoEntero > 99)
        r += p.centenas[size_t(h)];
    const int resto = 10 * t + u;
    if (resto == 0) return;
    const char16_t* uno = corto ? kUnCorto : p.hasta29[1];
    if (grupoEntero == 1) {
        if (grupo != 1) // one thousand is "MIL" alone
            r += uno;
    } else if (resto == 21)
        r += corto ? p.hasta29[21] : u"VEINTIUNO ";
    else if (resto >= 30) {
        r += p.decenas[size_t(t)];
        if (u != 0) {
            r += u"Y ";
            r += u == 1 ? uno : p.hasta29[size_t(u)];
        }
    } else if (resto == 1)
        r += uno;
    else
        r += p.hasta29[size_t(resto)]; // 2..20, 22..29
}

// Six digits held as a number (0..999 999).
void seisCifras(int v, QString& r, const PalabrasNumero& p, bool corto) {
    const int miles = v / 1000, ultimas = v % 1000;
    // The thousands' short form depends on the last three digits, not on the caller.
    cientos(miles % 10, miles / 10 % 10, miles / 100, ultimas != 0, p, r, 1);
    if (miles != 0) r += u"MIL ";
    cientos(ultimas % 10, ultimas / 10 % 10, ultimas / 100, corto, p, r, 2);
}

bool enRango(double x) {
    return std::isfinite(x) && x >= 0 && x < double(kMaximo + 1);
}

// Value of a string of decimal digits, or -1 when it is beyond the words' range.
qint64 valorDigitos(const QString& digitos) {
    qsizetype i = 0;
    while (i < digitos.size() && digitos[i] == u'0')
        ++i;
    if (digitos.size() - i > 12) return -1;
    return Cad_Int64(digitos.mid(i));
}

struct Partes {
    qint64 entera = -1;
    QString decimal;
};

// Integer and decimal digits of x as `Float_Cad` writes it; entera is -1 outside the words' range.
Partes parte(double x) {
    Partes p;
    if (!enRango(x)) return p;
    QString entera;
    ParteEnteraDecimal(Float_Cad(x), entera, p.decimal);
    p.decimal = Trim(p.decimal);
    p.entera = Cad_Int64(entera);
    return p;
}

bool minus(QChar minusculas) {
    return minusculas == u'S';
}

} // namespace

const PalabrasNumero& TablaPalabras(QChar genero) {
    static const PalabrasNumero femenino = creaTabla(u"UNA ", u"VEINTIUNA ", true);
    static const PalabrasNumero masculino = creaTabla(u"UNO ", u"VEINTIÚN ", false);
    static const PalabrasNumero otro = creaTabla(u"UNO ", u"VEINTIUNO ", false);
    return genero == u'F' ? femenino : genero == u'M' ? masculino : otro;
}

QString LetrasNod(qint64 numero, QChar genero, QChar minusculas, bool corto) {
    if (numero < 0 || numero > kMaximo) return {};
    if (numero == 0) return minus(minusculas) ? QStringLiteral("cero") : QStringLiteral("CERO");
    const PalabrasNumero& p = TablaPalabras(genero);
    const int millones = int(numero / 1'000'000), unidades = int(numero % 1'000'000);
    QString r;
    r.reserve(192);
    if (millones == 1)
        r += u"UN MILLON ";
    else if (millones > 1) {
        seisCifras(millones, r, p, true);
        r += u"MILLONES ";
    }
    if (unidades != 0)
        seisCifras(unidades, r, p, corto);
    else
        r += u"DE "; // "UN MILLON DE" reads right before the unit
    return Trim(minus(minusculas) ? lowerCase(r) : r);
}

void SeisCifrasNod(const QString& seis, QString& resultado, const PalabrasNumero& palabras, bool corto) {
    // Right-aligned in six characters; blanks and anything that is not a digit count as 0.
    const QString grupo = QString(qMax<qsizetype>(0, 6 - seis.size()), u' ') + seis.left(6);
    int v = 0;
    for (int i = 0; i < 6; ++i)
        v = 10 * v + (EsUnNumero(grupo[i]) ? grupo[i].unicode() - u'0' : 0);
    seisCifras(v, resultado, palabras, corto);
}

void SeisCifrasNod(const QString& seis, QString& resultado, QChar genero, bool corto) {
    SeisCifrasNod(seis, resultado, TablaPalabras(genero), corto);
}

void CientosNod(int unidades, int decenas, int centenas, bool corto, const PalabrasNumero& palabras,
                QString& resultado, int grupo) {
    for (int d : {unidades, decenas, centenas})
        if (d < 0 || d > 9) return;
    cientos(unidades, decenas, centenas, corto, palabras, resultado, grupo);
}

void CientosNod(int unidades, int decenas, int centenas, bool corto, QChar genero, QString& resultado,
                int grupo) {
    CientosNod(unidades, decenas, centenas, corto, TablaPalabras(genero), resultado, grupo);
}

QString LetrasDecimalNod(double numero, int decimales, QChar genero, QChar minusculas) {
    const Partes p = parte(numero);
    if (p.entera < 0) return {};
    QString r = LetrasNod(p.entera, genero, minusculas, false);
    const int n = qMax(decimales, 0);
    const qint64 decimal = valorDigitos((p.decimal + QString(n, u'0')).left(n));
    if (decimal < 0) return {};
    if (decimal != 0)
        r += (minus(minusculas) ? u" con "_s : u" CON "_s) + LetrasNod(decimal, genero, minusculas, false);
    return r;
}

QString LetrasPorCientoNod(double numero, QChar genero, QChar minusculas) {
    const Partes p = parte(numero);
    if (p.entera < 0) return {};
    QString r = LetrasNod(p.entera, genero, minusculas, false);
    const qint64 decimal = valorDigitos(p.decimal);
    if (decimal < 0) return {};
    if (decimal == 0) return r;
    static const char16_t* const kMayus[] = {u"", u" DÉCIMAS", u" CENTÉSIMAS", u" MILÉSIMAS"};
    static const char16_t* const kMinus[] = {u"", u" décimas", u" centésimas", u" milésimas"};
    const qsizetype k = p.decimal.size();
    const bool m = minus(minusculas);
    r += m ? u" enteros con "_s : u" ENTEROS CON "_s;
    r += LetrasNod(decimal, genero, minusculas, false);
    if (k <= 3) r += (m ? kMinus : kMayus)[k];
    return r;
}

QString EurosEnLetra(double importe, const QString& minusculas) {
    const Partes p = parte(importe);
    if (p.entera < 0) return {};
    const QChar caso = minusculas.isEmpty() ? QChar() : minusculas[0];
    const bool m = minus(caso);
    const QString euros = m ? u" euros"_s : u" EUROS"_s;
    if (p.decimal.isEmpty()) return LetrasNod(std::llround(importe), u'M', caso, true) + euros;
    // One decimal digit stands for tens of cents: 21,5 is 21 euros 50.
    const qint64 centimos = valorDigitos(p.decimal.size() == 1 ? p.decimal + u'0' : p.decimal);
    if (centimos < 0) return {};
    return LetrasNod(p.entera, u'M', caso, true) + euros + (m ? u" con "_s : u" CON "_s) +
           LetrasNod(centimos, u'M', caso, true) + (m ? u" céntimos"_s : u" CENTIMOS"_s);
}

QString Letras_Pesetas(qint64, QChar) {
    return {};
}

QString Letras_Euros(double, int, QChar) {
    return {};
}

} // namespace nod
