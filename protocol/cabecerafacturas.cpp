#include "protocol/cabecerafacturas.h"

#include "companion/config.h"
#include "frame/notarios.h"
#include "tables/tablas.h"

#include <QList>
#include <cmath>
#include <optional>

namespace nod {

namespace {

using Setter = void (TConfig::*)(const QString&);

struct LineaCabecera {
    const char* nombre;
    Setter fija;
};

constexpr LineaCabecera kLineas[] = {
    {"fac_1", &TConfig::SetFac_1},     {"fac_2", &TConfig::SetFac_2},     {"fac_3", &TConfig::SetFac_3},
    {"fac_4", &TConfig::SetFac_4},     {"fac_d_1", &TConfig::SetFac_d_1}, {"fac_d_2", &TConfig::SetFac_d_2},
    {"fac_d_3", &TConfig::SetFac_d_3}, {"fac_d_4", &TConfig::SetFac_d_4}, {"fac_g_1", &TConfig::SetFac_g_1},
    {"fac_g_2", &TConfig::SetFac_g_2}, {"fac_g_3", &TConfig::SetFac_g_3}, {"fac_g_4", &TConfig::SetFac_g_4}};

const QString kTabla = QStringLiteral("CAB_FACT.DBF");
const QString kFecha = QStringLiteral("FECHA_ENT");

std::unique_ptr<TTabla> abreCabeceras() {
    return CreaTablaSinExcepcion(AliasNotarioActual(), kTabla, kFecha);
}

// The day of the header in force: the date itself when it has rows, else the latest earlier one; 0 when
// there is none (or no table).
TDateTime fechaEnVigor(TDateTime fecha) {
    const auto tabla = abreCabeceras();
    if (!tabla) return 0;
    const double dia = std::trunc(fecha);
    if (TBBusca(*tabla, {{kFecha, dia}})) return dia;
    TDateTime anterior = 0;
    for (tabla->First(); !tabla->Eof(); tabla->Next()) {
        const TDateTime f = std::trunc(tabla->AsDateTime(kFecha));
        if (f >= dia) break;
        anterior = f;
    }
    return anterior;
}

void cargaLineas(TDateTime dia) {
    const auto tabla = abreCabeceras();
    if (!tabla) return;
    TBRango(*tabla, {{kFecha, dia}});
    for (; !tabla->Eof(); tabla->Next()) {
        const QString nombre = tabla->AsString(QStringLiteral("NOMBRE"));
        for (const LineaCabecera& l : kLineas)
            if (nombre == QLatin1String(l.nombre))
                (Config.*l.fija)(tabla->AsString(QStringLiteral("DESCRIP")));
    }
}

void actualizaNotarioActual(TDateTime fecha) {
    const TDateTime dia = fechaEnVigor(fecha);
    if (dia != 0) cargaLineas(dia);
}

} // namespace

void ActualizaCabeceraFacturas(TDateTime fecha, bool todos) {
    if (!std::isfinite(fecha)) return;
    if (!(Config.GetHayMultiplesCabeceras() && todos && Config.GetnCuantos() > 1)) {
        actualizaNotarioActual(fecha);
        return;
    }
    const QString recordado = Config.GetsNotario();
    for (int i = 1; i <= Config.GetnCuantos(); ++i) {
        Config.SetsNotario(QString::number(i));
        Config.ActualizaConvenio();
        actualizaNotarioActual(fecha);
    }
    Config.SetsNotario(recordado);
    Config.ActualizaConvenio();
    // Selecting a notary reloads its own values from the office's files: load its header once more.
    actualizaNotarioActual(fecha);
}

} // namespace nod
