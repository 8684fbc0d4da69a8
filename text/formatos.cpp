#include "text/formatos.h"

#include "companion/rnumcad.h"
#include "text/letras.h"

namespace nod {

using namespace Qt::StringLiterals;

namespace {

QChar caracter(const QString& s, int i) {
    return i < s.size() ? s[i] : QChar();
}

// The figure of x by the picture "#," followed by `decimales` decimal places (its own digits padded
// with zeros); x is written exactly, never rounded, as the callers give at most that many decimals.
QString figura(double x, qsizetype decimales) {
    QString entera, decimal;
    ParteEnteraDecimal(Float_Cad(x), entera, decimal);
    QString r;
    if (entera.startsWith(u'-')) {
        r += u'-';
        entera.remove(0, 1);
    }
    if (entera != u"0") r += AgrupaMiles(entera);
    if (decimales > 0) r += u',' + (decimal + QString(decimales, u'0')).left(qMax(decimales, decimal.size()));
    return r;
}

qsizetype cifrasDecimales(double x) {
    QString entera, decimal;
    ParteEnteraDecimal(Float_Cad(x), entera, decimal);
    return decimal.size();
}

} // namespace

QString AgrupaMiles(const QString& digitos) {
    QString r;
    r.reserve(digitos.size() + digitos.size() / 3);
    for (qsizetype i = 0; i < digitos.size(); ++i) {
        if (i > 0 && (digitos.size() - i) % 3 == 0) r += u'.';
        r += digitos[i];
    }
    return r;
}

QString FormateaNumero(const QString& formato, double numero) {
    const QString modo = formato.left(2);
    const QChar genero = caracter(formato, 2), caso = caracter(formato, 3);
    const qsizetype k = cifrasDecimales(numero);
    const QString cifra = figura(numero, k);
    // Without decimals LetrasDecimalNod reads the whole number, as LetrasNod would.
    auto palabras = [&] { return LetrasDecimalNod(numero, int(k), genero, caso); };
    auto porCiento = [&] { return LetrasPorCientoNod(numero, genero, caso); };
    if (modo == u"N1") return cifra;
    if (modo == u"N3") return porCiento();
    if (modo == u"N4") return cifra + u" ("_s + palabras() + u')';
    if (modo == u"N5") return palabras() + u" ("_s + cifra + u')';
    if (modo == u"N6") return cifra + u" ("_s + porCiento() + u')';
    if (modo == u"N7") return porCiento() + u" ("_s + cifra + u')';
    return palabras(); // "N2" and any other code
}

QString FormateaCantidad(const QString& formato, double importe) {
    const QString modo = formato.left(2);
    const qsizetype k = cifrasDecimales(importe);
    const QString cifra = figura(importe, k >= 3 ? k : k > 0 ? 2 : 0);
    auto euros = [&] { return EurosEnLetra(importe, formato.mid(2, 1)); };
    if (modo == u"M2") return euros();
    if (modo == u"M3") return cifra + u" € ("_s + euros() + u')';
    if (modo == u"M4") return euros() + u" ("_s + cifra + u" € )"_s;
    return cifra + u" €"_s; // "M1" and any other code
}

} // namespace nod
