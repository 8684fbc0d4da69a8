// Searching by key, ranges, index tags and filters over an open table.
#include "tables/tabla_p.h"

#include <cmath>

namespace nod {

bool TBBusca(TTabla& tb, const TClaves& claves, bool exacta) {
    auto& d = *tb.d;
    ClavesPreparadas preparadas = d.prepara(claves);
    if (d.ordenaComoPrefijo(preparadas)) {
        for (qsizetype p = d.cota(d.lo, d.hi, preparadas, !exacta, false);
             p < d.hi && d.compara(p, preparadas, !exacta) == 0; ++p)
            if (d.visible(p)) {
                d.pos = p;
                d.eof = d.bof = false;
                return true;
            }
        return false;
    }
    for (qsizetype p = d.lo; p < d.hi; ++p)
        if (d.compara(p, preparadas, !exacta) == 0 && d.visible(p)) {
            d.pos = p;
            d.eof = d.bof = false;
            return true;
        }
    return false;
}

bool TBBuscaClave(TTabla& tb, double valor) {
    auto& d = *tb.d;
    const int c = d.campoPrincipal();
    const std::vector<double>& claves = d.orden->claves;
    if (claves.empty()) return TBBusca(tb, {{d.datos->campos()[c].nombre, valor}}); // a character field
    if (!std::isfinite(valor)) return false;
    const auto desde = std::lower_bound(claves.begin() + d.lo, claves.begin() + d.hi, valor);
    return d.posicionaDesde(desde - claves.begin(), [&](qsizetype p) { return claves[size_t(p)] == valor; });
}

bool TBBuscaClave(TTabla& tb, QStringView valor) {
    auto& d = *tb.d;
    const int c = d.campoPrincipal();
    const TCampoDbf& campo = d.datos->campos()[c];
    while (!valor.isEmpty() && valor.back() == QLatin1Char(' '))
        valor.chop(1);
    // Plain ASCII reads the same in every page the office meets: it is copied, not encoded. Anything else,
    // and fields that are neither text nor numbers, take the general path.
    char ascii[256];
    const bool simple = (campo.tipo == 'C' || campo.tipo == 'N' || campo.tipo == 'F') &&
                        valor.size() <= qsizetype(sizeof ascii) &&
                        std::all_of(valor.begin(), valor.end(),
                                    [](QChar ch) { return ch.unicode() >= 0x20 && ch.unicode() < 0x7F; });
    if (!simple) return TBBusca(tb, {{campo.nombre, valor.toString()}});
    for (qsizetype i = 0; i < valor.size(); ++i)
        ascii[i] = char(valor[i].unicode());
    const QByteArrayView texto(ascii, valor.size());
    if (campo.tipo != 'C') {
        double numero = 0;
        return LeeNumeroDbf(texto, numero) && TBBuscaClave(tb, numero);
    }
    const auto compara = [&](qsizetype p) {
        return ComparaBytesDbf(d.datos->crudo(d.fila(p), c), texto, false);
    };
    qsizetype lo = d.lo, hi = d.hi;
    while (lo < hi) {
        const qsizetype m = lo + (hi - lo) / 2;
        if (compara(m) < 0)
            lo = m + 1;
        else
            hi = m;
    }
    return d.posicionaDesde(lo, [&](qsizetype p) { return compara(p) == 0; });
}

void TBRango(TTabla& tb, const TClaves& desde, const TClaves& hasta) {
    auto& d = *tb.d;
    d.hayRango = true;
    d.rangoDesde = desde;
    d.rangoHasta = hasta;
    d.aplicaRango();
    d.primero();
}

void TBQuitaRango(TTabla& tb) {
    auto& d = *tb.d;
    d.hayRango = false;
    d.rangoPorPosicion = true;
    d.aplicaRango();
    d.primero();
}

void TBIndexa(TTabla& tb, const QString& indice) {
    auto& d = *tb.d;
    d.usaIndice(indice);
    d.aplicaRango();
    d.primero();
}

void TBFiltra(TTabla& tb, const QString& filtro) {
    auto& d = *tb.d;
    d.filtro = filtro.trimmed().isEmpty() ? nullptr : d.datos->filtro(filtro);
    d.textoFiltro = d.filtro ? filtro : QString();
    d.primero();
}
} // namespace nod
