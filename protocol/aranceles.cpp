#include "protocol/aranceles.h"

#include "companion/config.h"
#include "companion/registro.h"
#include "companion/rnumcad.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <span>

namespace nod {

namespace {

bool esSi(const QString& bandera) {
    return bandera == QLatin1String("SI");
}

// Trunc to a whole number of the given type; nothing when x is not finite or does not fit.
template <typename T> std::optional<T> truncaA(double x) {
    const double t = std::trunc(x);
    if (!std::isfinite(t) || t < double(std::numeric_limits<T>::min()) ||
        t >= -double(std::numeric_limits<T>::min()))
        return std::nullopt;
    return T(t);
}

// One row of the deed scale: amounts above `desde` pay `base` plus `tipo` per mille of the excess.
struct Tramo {
    double desde;
    double base;
    double tipo;
};

constexpr std::array<Tramo, 5> kEscalaPesetas = {{{1000000, 4000, 1.75},
                                                  {5000000, 11000, 1.25},
                                                  {10000000, 17250, 0.75},
                                                  {25000000, 28500, 0.30},
                                                  {100000000, 51000, 0.20}}};

constexpr std::array<Tramo, 5> kEscalaEuros = {{{6010.12, 24.04, 1.75},
                                                {30050.61, 66.11, 1.25},
                                                {60101.21, 103.67, 0.75},
                                                {150253.03, 171.29, 0.30},
                                                {601012.10, 306.52, 0.20}}};

// A marginal scale: each rate applies to the part of the amount inside its bracket. `limites` has one
// element fewer than `tipos`. When `tipoUnicoHastaT2` is given, passing the second limit replaces what
// brackets 1 and 2 accumulated by limit 2 at that single rate (the upper table with guarantee does so).
double escalaMarginal(double importe, std::span<const double> tipos, std::span<const double> limites,
                      std::optional<double> tipoUnicoHastaT2 = std::nullopt) {
    double honorario = tipos[0] * importe / 1000;
    double acumulado = limites[0] * tipos[0] / 1000;
    if (importe <= limites[0]) return honorario;
    honorario = acumulado + (importe - limites[0]) * tipos[1] / 1000;
    for (size_t k = 1; k < limites.size(); ++k) {
        if (importe <= limites[k]) return honorario;
        if (k == 1 && tipoUnicoHastaT2)
            acumulado = limites[1] * *tipoUnicoHastaT2 / 1000;
        else
            acumulado = acumulado + (limites[k] - limites[k - 1]) * tipos[k] / 1000;
        honorario = acumulado + (importe - limites[k]) * tipos[k + 1] / 1000;
    }
    return honorario;
}

double escalaC(double importe, bool aval, bool inferior) {
    const TConfig& c = Config;
    if (inferior && aval) {
        const double tipos[] = {c.GetnInferiorConAvalP1(), c.GetnInferiorConAvalP2(),
                                c.GetnInferiorConAvalP3(), c.GetnInferiorConAvalP4()};
        const double limites[] = {double(c.GetnInferiorConAvalT1()), double(c.GetnInferiorConAvalT2()),
                                  double(c.GetnInferiorConAvalT3())};
        return escalaMarginal(importe, tipos, limites);
    }
    if (inferior) {
        const double tipos[] = {c.GetnInferiorSinAvalP1(), c.GetnInferiorSinAvalP2(),
                                c.GetnInferiorSinAvalP3()};
        const double limites[] = {double(c.GetnInferiorSinAvalT1()), double(c.GetnInferiorSinAvalT2())};
        return escalaMarginal(importe, tipos, limites);
    }
    const double limites[] = {double(c.GetnSuperiorT1()), double(c.GetnSuperiorT2()),
                              double(c.GetnSuperiorT3()), double(c.GetnSuperiorT4())};
    if (aval) {
        const double tipos[] = {c.GetnSuperiorConAvalP1(), c.GetnSuperiorConAvalP2(),
                                c.GetnSuperiorConAvalP3(), c.GetnSuperiorConAvalP4(),
                                c.GetnSuperiorConAvalP5()};
        return escalaMarginal(importe, tipos, limites, c.GetnSuperiorConAvalP12());
    }
    const double tipos[] = {c.GetnSuperiorSinAvalP1(), c.GetnSuperiorSinAvalP2(), c.GetnSuperiorSinAvalP3(),
                            c.GetnSuperiorSinAvalP4(), c.GetnSuperiorSinAvalP5()};
    return escalaMarginal(importe, tipos, limites);
}

// The reduced scale: one rate up to 40 000 000 (a limit fixed by the scale, not configured), then the
// third and fourth rates of the four-rate scale.
double escalaReducida(double importe) {
    const TConfig& c = Config;
    double honorario = c.GetnCor_TipoR() * importe / 1000;
    double acumulado = c.GetnCor_TipoR() * 40000000 / 1000;
    if (importe > 40000000) honorario = acumulado + c.GetnCor_Tipo3() * (importe - 40000000) / 1000;
    if (importe > 50000000) {
        acumulado = acumulado + c.GetnCor_Tipo3() * 10000000 / 1000;
        honorario = acumulado + c.GetnCor_Tipo4() * (importe - 50000000) / 1000;
    }
    return honorario;
}

double escalaCuatroTipos(double importe, bool aval, bool inferior, bool factura) {
    const TConfig& c = Config;
    double honorario;
    if (inferior) {
        honorario = escalaReducida(importe);
    } else {
        const double tipos[] = {c.GetnCor_Tipo1(), c.GetnCor_Tipo2(), c.GetnCor_Tipo3(), c.GetnCor_Tipo4()};
        const double limites[] = {double(c.GetnCor_Tramo1()), double(c.GetnCor_Tramo2()),
                                  double(c.GetnCor_Tramo3())};
        honorario = escalaMarginal(importe, tipos, limites);
    }
    if (aval) {
        const double tipo = inferior ? c.GetnCor_TipoR() : c.GetnCor_Tipo1();
        if (c.GetnCor_f_Cual() == 0)
            honorario = honorario + (tipo / 2) * std::min(double(c.GetnCor_f_Cuant()), importe) / 1000;
        else
            honorario = honorario + std::min(double(c.GetnCor_f_max()), (tipo / 2) * importe / 1000);
    }
    if (factura) honorario = std::max(honorario, double(c.GetnCor_minimo()));
    return honorario;
}

} // namespace

qint64 Ges_Arancel(double importe) {
    if (!std::isfinite(importe)) return 0;
    double honorario = 4000;
    for (const Tramo& t : kEscalaPesetas)
        if (importe > t.desde) honorario = std::trunc(t.base + (importe - t.desde) * t.tipo / 1000);
    return truncaA<qint64>(honorario).value_or(0);
}

double Ges_Arancel_E(double importe) {
    if (!std::isfinite(importe)) return 0;
    double honorario = 24.04;
    for (const Tramo& t : kEscalaEuros)
        if (importe > t.desde) honorario = RedondeaDec(t.base + (importe - t.desde) * t.tipo / 1000, 2);
    return std::isfinite(honorario) ? honorario : 0;
}

int ARANCEL_C(double importe, const QString& aval, const QString& tipoDocumento, const QString& inferior) {
    if (!std::isfinite(importe)) return 0;
    double honorario;
    if (Config.GetsTipoArancel() == QLatin1String("C"))
        honorario =
            std::max(escalaC(importe, esSi(aval), esSi(inferior)), double(Config.GetnCantidadMinima()));
    else
        honorario =
            escalaCuatroTipos(importe, esSi(aval), esSi(inferior), tipoDocumento == QLatin1String("factura"));
    return truncaA<int>(honorario + 0.5).value_or(0);
}

BusquedaBase BuscaBase_C(double importeMaximo, double honorarioObjetivo, const QString& aval,
                         const QString& inferior) {
    constexpr double kTolerancia = 500;
    const auto factura = QStringLiteral("factura");
    BusquedaBase b;
    const auto maximo = truncaA<int>(importeMaximo);
    if (!maximo || std::isnan(honorarioObjetivo)) return b;
    const double objetivo = std::max(honorarioObjetivo, double(Config.GetnCor_minimo()));
    double honorario = ARANCEL_C(importeMaximo, aval, factura, inferior);
    b.ultimaSonda = *maximo;
    if (honorario - objetivo <= kTolerancia) {
        b.resultado = *maximo;
        b.alto = b.bajo = *maximo;
        return b;
    }
    b.alto = *maximo;
    b.bajo = 500000;
    while (std::fabs(honorario - objetivo) > kTolerancia) {
        if (b.vueltas == kMaximoVueltasBase) {
            b.agotada = true;
            qCWarning(lcProtocolo).noquote()
                << QStringLiteral("BASE_C: no se alcanza el honorario %1 entre %2 y %3 tras %4 vueltas; el "
                                  "arancel configurado no crece con el importe")
                       .arg(objetivo)
                       .arg(b.bajo)
                       .arg(b.alto)
                       .arg(kMaximoVueltasBase);
            break;
        }
        ++b.vueltas;
        b.ultimaSonda = qint64(std::trunc(double(b.alto + b.bajo) / 2000)) * 1000;
        honorario = ARANCEL_C(double(b.ultimaSonda), aval, factura, inferior);
        if (honorario > objetivo)
            b.alto = b.ultimaSonda;
        else
            b.bajo = b.ultimaSonda;
    }
    b.resultado = int(std::trunc(double(b.alto + b.bajo) / 20000)) * 10000;
    return b;
}

int BASE_C(double importeMaximo, double honorarioObjetivo, const QString& aval, const QString& inferior) {
    return BuscaBase_C(importeMaximo, honorarioObjetivo, aval, inferior).resultado;
}

int TASA_C(double importe, const QString& recargo) {
    if (!std::isfinite(importe)) return 0;
    double tasa;
    if (importe < 15000000)
        tasa = importe * 0.06 / 1000;
    else if (importe < 25000000)
        tasa = 900 + (importe - 15000000) * 0.03 / 1000;
    else if (importe < 50000000)
        tasa = 1200 + (importe - 25000000) * 0.006 / 1000;
    else
        tasa = 1350 + (importe - 50000000) * 0.004 / 1000;
    if (recargo == QLatin1String("S")) tasa = tasa + std::max(210.0, tasa / 2);
    const auto entera = truncaA<int>(tasa);
    return entera ? std::max(*entera, 40) : 0;
}

} // namespace nod
