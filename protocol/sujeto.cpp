#include "protocol/sujeto.h"

#include "companion/config.h"
#include "companion/rnumcad.h"

#include <QtNumeric>
#include <cmath>

namespace nod {

namespace {

bool esS(const QString& parte) {
    return parte == QLatin1String("S");
}

[[noreturn]] void sinPorcentaje(double importe, double cuota) {
    throw EDivisionPorCero(
        QStringLiteral(
            "No se puede calcular la base sujeta a IVA de %1 con una cuota de %2: el porcentaje de IVA es 0")
            .arg(Float_Cad(importe), Float_Cad(cuota)));
}

// The part subject to VAT and the rest, before the selector picks one.
struct Reparto {
    double sujeto;
    double resto;
};

// Steps shared by the three routines; `grossUp` turns the quota into the subject part.
template <typename F>
Reparto reparte(double importe, double cuota, double porcentaje, double tolerancia, F grossUp) {
    if (cuota == 0) return {0, importe};
    if (std::fabs(cuota - importe * porcentaje / 100) < tolerancia) return {importe, 0};
    if (porcentaje == 0) sinPorcentaje(importe, cuota);
    const double sujeto = grossUp(cuota * 100 / porcentaje);
    return {sujeto, importe - sujeto};
}

double finitoOCero(double x) {
    return std::isfinite(x) ? x : 0;
}

} // namespace

qint64 Sujeto(qint64 importe, qint64 cuota, double porcentaje, const QString& parte) {
    if (!std::isfinite(porcentaje)) return 0;
    const double tolerancia = porcentaje <= 0 ? 0 : 100 / porcentaje / 2;
    if (cuota == 0) return esS(parte) ? 0 : importe;
    if (std::fabs(double(cuota) - double(importe) * porcentaje / 100) < tolerancia)
        return esS(parte) ? importe : 0;
    if (porcentaje == 0) sinPorcentaje(double(importe), double(cuota));
    const double bruto = std::trunc(double(cuota) * 100 / porcentaje);
    if (!(bruto >= -9223372036854775808.0 && bruto < 9223372036854775808.0)) return 0;
    const qint64 sujeto = qint64(bruto);
    if (esS(parte)) return sujeto;
    qint64 resto = 0;
    return qSubOverflow(importe, sujeto, &resto) ? 0 : resto;
}

double Sujeto_E(double importe, double cuota, double porcentaje, const QString& parte) {
    if (!std::isfinite(importe) || !std::isfinite(cuota) || !std::isfinite(porcentaje)) return 0;
    const double factor = Config.GetPesetasPorEuro();
    double tolerancia = 0;
    if (porcentaje > 0 && factor > 0) tolerancia = RedondeaDec(100 / porcentaje / 2 / factor, 2);
    const Reparto r =
        reparte(importe, cuota, porcentaje, tolerancia, [](double x) { return RedondeaDec(x, 2); });
    return finitoOCero(esS(parte) ? r.sujeto : r.resto);
}

double MI_SUJETO(double importe, double cuota, const QString& parte, const QString& moneda,
                 double porcentaje) {
    if (!std::isfinite(importe) || !std::isfinite(cuota) || !std::isfinite(porcentaje)) return 0;
    const bool euros = moneda == QLatin1String("E");
    const double p = porcentaje == 0 ? Config.GetTipoIva() : porcentaje;
    // Without any percentage (TipoIva 0 too) no quota can match: one other than 0 raises when grossed up.
    const double tolerancia = p == 0 ? 0 : 100 / p / (euros ? 332 : 2);
    const Reparto r =
        reparte(importe, cuota, p, tolerancia, [euros](double x) { return euros ? x : std::trunc(x); });
    return finitoOCero(esS(parte) ? r.sujeto : r.resto);
}

} // namespace nod
