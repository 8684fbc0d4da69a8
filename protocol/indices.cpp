#include "protocol/indices.h"

#include "companion/rnumcad.h"

#include <cmath>

namespace nod {

namespace {

// The slot strings, exactly as the suite's screens index them.
const QString kActuaciones = QStringLiteral(
    "            ADQUIRENTE  AVALISTA    CAUSANTE    CEDENTE     CESIONARIO  COMPRADOR   DONANTE     "
    "DONATARIO   HEREDERO    HIPOTECANTE LEGATARIO   PRESTAMISTA PRESTATARIO SOCIEDAD    VENDEDOR    "
    "TRANSMITENTE");
const QString kActuacionesPolizas = QStringLiteral(
    "              ADQUIRENTE    APODERADO     AVALISTA      CONYUGE       FIADOR        PIGNORANTE    "
    "REPRESENTANTE REQUERIDO     TITULAR       TRANSMITENTE  ");
const QString kIntervenciones = QStringLiteral(
    "EN SU NOMBRE.                EN REPRESENTACIÓN DE         POR SÍ Y EN REPRESENTACIÓN DEMANDATARIO "
    "VERBAL.           LOS DOS EN REPRESENTACIÓN DE REPRESENTADO.                POR SÍ Y MANDATARIO "
    "VERBAL DE");

int indice(const QString& palabra, const QString& ranuras, int ancho) {
    // Letter by letter, accents included, never changing the length ("ß" and ligatures stay).
    const QString w = UpperCase(palabra);
    const qsizetype posicion = w.isEmpty() ? 0 : ranuras.indexOf(w) + 1;
    return int(std::trunc(double(posicion) / ancho - 1));
}

} // namespace

int IndexActuacion(const QString& palabra) {
    return indice(palabra, kActuaciones, 12);
}

int IndexActuacionPolizas(const QString& palabra) {
    return indice(palabra, kActuacionesPolizas, 14);
}

int IndexIntervencion(const QString& palabra) {
    return indice(palabra, kIntervenciones, 29);
}

} // namespace nod
