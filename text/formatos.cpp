#include "text/formatos.h"

#include "companion/rnumcad.h"
#include "text/cifras.h"
#include "text/escritura.h"
#include "text/letras.h"

namespace nod {

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace {

QChar caracter(const QString& s, int i) {
    return i < s.size() ? s[i] : QChar();
}

void anadeAgrupado(Texto& r, std::string_view digitos) {
    for (size_t i = 0; i < digitos.size(); ++i) {
        if (i > 0 && (digitos.size() - i) % 3 == 0) r.anade(u'.');
        r.anade(char16_t(digitos[i]));
    }
}

// The figure by the picture "#," followed by `decimales` decimal places (the number's own digits padded
// with zeros); the number is written exactly, never rounded, as the callers give at most that many.
void anadeFigura(Texto& r, const Cifras& c, size_t decimales) {
    if (c.negativo()) r.anade(u'-');
    if (c.entera() != "0") anadeAgrupado(r, c.entera());
    if (decimales > 0) {
        r.anade(u',');
        r.anadeAscii(c.decimal());
        for (size_t k = c.decimal().size(); k < decimales; ++k)
            r.anade(u'0');
    }
}

} // namespace

QString FormateaNumero(const QString& formato, double numero) {
    const QString modo = formato.left(2);
    const QChar genero = caracter(formato, 2), caso = caracter(formato, 3);
    const Cifras c(numero);
    const size_t k = c.decimal().size();
    Texto t;
    anadeFigura(t, c, k);
    const QString cifra = t.qstring();
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
    const QChar caso = caracter(formato, 2);
    const Cifras c(importe);
    const size_t k = c.decimal().size();
    const size_t decimales = k >= 3 ? k : k > 0 ? 2 : 0;
    Texto r;
    if (modo == u"M2")
        EscribeEurosEnLetra(r, importe, c, caso, caso == u'S');
    else if (modo == u"M3") {
        anadeFigura(r, c, decimales);
        r.anade(u" € ("sv);
        EscribeEurosEnLetra(r, importe, c, caso, caso == u'S');
        r.anade(u')');
    } else if (modo == u"M4") {
        EscribeEurosEnLetra(r, importe, c, caso, caso == u'S');
        r.anade(u" ("sv);
        anadeFigura(r, c, decimales);
        r.anade(u" € )"sv);
    } else { // "M1" and any other code
        anadeFigura(r, c, decimales);
        r.anade(u" €"sv);
    }
    return r.qstring();
}

} // namespace nod
