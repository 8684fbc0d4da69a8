#include "text/formatos.h"

#include "companion/rnumcad.h"
#include "text/cifras.h"
#include "text/letras.h"

namespace nod {

using namespace Qt::StringLiterals;

namespace {

QChar caracter(const QString& s, int i) {
    return i < s.size() ? s[i] : QChar();
}

void anadeAgrupado(QString& r, std::string_view digitos) {
    for (size_t i = 0; i < digitos.size(); ++i) {
        if (i > 0 && (digitos.size() - i) % 3 == 0) r += u'.';
        r += QLatin1Char(digitos[i]);
    }
}

// The figure by the picture "#," followed by `decimales` decimal places (the number's own digits padded
// with zeros); the number is written exactly, never rounded, as the callers give at most that many.
void anadeFigura(QString& r, const Cifras& c, size_t decimales) {
    if (c.negativo()) r += u'-';
    if (c.entera() != "0") anadeAgrupado(r, c.entera());
    if (decimales > 0) {
        r += u',';
        r += QLatin1StringView(c.decimal().data(), qsizetype(c.decimal().size()));
        for (size_t k = c.decimal().size(); k < decimales; ++k)
            r += u'0';
    }
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
    const Cifras c(numero);
    const size_t k = c.decimal().size();
    QString cifra;
    anadeFigura(cifra, c, k);
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
    const QStringView modo = QStringView(formato).left(2);
    const Cifras c(importe);
    const size_t k = c.decimal().size();
    const size_t decimales = k >= 3 ? k : k > 0 ? 2 : 0;
    if (modo == u"M2") return EurosEnLetra(importe, formato.mid(2, 1));
    QString r;
    if (modo == u"M3" || modo == u"M4") {
        const QString euros = EurosEnLetra(importe, formato.mid(2, 1));
        r.reserve(euros.size() + 40);
        if (modo == u"M4") {
            r += euros;
            r += u" ("_s;
            anadeFigura(r, c, decimales);
            r += u" € )"_s;
        } else {
            anadeFigura(r, c, decimales);
            r += u" € ("_s;
            r += euros;
            r += u')';
        }
        return r;
    }
    anadeFigura(r, c, decimales);
    return r + u" €"_s; // "M1" and any other code
}

} // namespace nod
