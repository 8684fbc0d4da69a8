// Maintenance tools offered to scripts: closing the suite's programs on the other workstations, and the
// client-code revision's checks. The owner component of the library's calls is left out. A check's
// result is the list of its lines, [{"TABLA": ..., "MENSAJE": ..., "CODCLIENTE": ...}, ...].
#include "apps/nodrim/rutinas.h"
#include "maintenance/clasecierranodrims.h"
#include "maintenance/revisioncodcliente.h"

namespace nod::lote {

template <> struct Conversor<TMensajesRevision> {
    static constexpr const char* nombre = "lines";
    static json hacia(const TMensajesRevision& lineas) {
        json a = json::array();
        for (const auto& l : lineas)
            a.push_back({{"TABLA", l.TABLA.toStdString()},
                         {"MENSAJE", l.MENSAJE.toStdString()},
                         {"CODCLIENTE", l.CODCLIENTE}});
        return a;
    }
};

namespace {

// The questions of the closing procedure (abort the wait?) are answered by the request's "answers".
bool NodrimsCerradosLote(int modo) {
    return NodrimsCerrados(nullptr, modo);
}

// One check run on its own: the clients' codes read, the check in `modo`, its lines.
template <auto Check> TMensajesRevision revisa(int modo) {
    TRevisionCodCliente r;
    if (r.Prepara()) (r.*Check)(modo);
    return r.Mensajes();
}

TMensajesRevision MuestraCodClienteIncorrectoEnTIT_CLILote() {
    TRevisionCodCliente r;
    if (r.Prepara()) r.MuestraCodClienteIncorrectoEnTIT_CLI();
    return r.Mensajes();
}

TMensajesRevision MuestraCodClienteIncorrectoEnTodasTablasLote() {
    TRevisionCodCliente r;
    r.MuestraCodClienteIncorrectoEnTodasTablas();
    return r.Mensajes();
}

TMensajesRevision MuestraCodClienteIncorrectoEnTablaLote(const QString& tabla) {
    TRevisionCodCliente r;
    r.MuestraCodClienteIncorrectoEnTabla(tabla);
    return r.Mensajes();
}

} // namespace

void RegistraRutinasMantenimiento(Rutinas& r) {
    r.agrega("NodrimsCerrados", &NodrimsCerradosLote);
    r.agrega("MensajeTabla", &MensajeTabla);
#define NOD_X(T)                                                                                             \
    r.agrega("MuestraCodClienteIncorrectoEn" #T,                                                             \
             &revisa<&TRevisionCodCliente::MuestraCodClienteIncorrectoEn##T>);
    NOD_REVISIONES_CON_MODO(NOD_X)
#undef NOD_X
    r.agrega("MuestraCodClienteIncorrectoEnTIT_CLI", &MuestraCodClienteIncorrectoEnTIT_CLILote);
    r.agrega("MuestraCodClienteIncorrectoEnTodasTablas", &MuestraCodClienteIncorrectoEnTodasTablasLote);
    r.agrega("MuestraCodClienteIncorrectoEnTabla", &MuestraCodClienteIncorrectoEnTablaLote);
}

} // namespace nod::lote
