#include "text/moneda.h"

#include "companion/config.h"
#include "companion/rnumcad.h"
#include "text/limpieza.h"

#include <algorithm>
#include <cmath>

namespace nod {

using namespace Qt::StringLiterals;

namespace {

// The configured rate, or 0 when it cannot be used.
double cambio() {
    const double r = Config.GetPesetasPorEuro();
    return std::isfinite(r) && r > 0 ? r : 0.0;
}

// Half up at `decimales` places, through the written digits of the fraction.
double redondeaPorTexto(double euros, int decimales) {
    const double h = 0.5 / std::pow(10.0, decimales);
    const double w = std::trunc(euros);
    QString r = Float_Cad(euros - w + h);
    if (!r.contains(u',')) r += u','; // a fraction that reached exactly 1 still reads "1,00"
    // No written fraction is longer than 400 characters, so longer paddings change nothing.
    const int corte = std::min(decimales, 400);
    r = (r + QString(corte, u'0')).left(corte + 2);
    return w + Cad_Float(r);
}

} // namespace

QString PesetasEurosNod(qint64 pesetas) {
    const double rate = cambio();
    if (rate == 0) return {};
    QString entera, decimal;
    ParteEnteraDecimal(Float_Cad(RedondeaDec(double(pesetas) / rate, 2)), entera, decimal);
    const QString texto = AgrupaMiles(entera) + u',' + (decimal + QStringLiteral("00")).left(2);
    return texto == u"0,00" ? QString() : texto;
}

double PesetasEurosNod(qint64 pesetas, int decimales) {
    const double rate = cambio();
    if (rate == 0) return 0;
    const double euros = double(pesetas) / rate;
    if (decimales < 1) return euros;
    const double magnitud = redondeaPorTexto(std::fabs(euros), decimales);
    return euros < 0 ? -magnitud : magnitud;
}

qint64 EurosPesetasNod(double euros) {
    const double p = euros * cambio() + 0.5;
    if (!std::isfinite(p) || std::fabs(p) >= 9.2e18) return 0;
    return qint64(std::trunc(p));
}

QString PuntosNod(const QString& numero, bool decimal) {
    const QString s = TrimTotal(numero);
    if (!decimal) return AgrupaMiles(s);
    // Each "." groups everything written before it and becomes ","; a well-formed figure has one.
    // Regrouping makes the text a third longer each time, so a text of many points would grow without
    // bound: once wider than any column it is no longer regrouped.
    QString r;
    for (QChar c : s) {
        if (c == u'.') {
            if (r.size() <= kAnchoMaximoTexto) r = AgrupaMiles(r);
            r += u',';
        } else
            r += c;
    }
    return r.contains(u',') ? r : AgrupaMiles(r);
}

} // namespace nod
