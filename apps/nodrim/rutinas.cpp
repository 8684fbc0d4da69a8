#include "apps/nodrim/rutinas.h"

namespace nod::lote {

const Rutinas& TodasLasRutinas() {
    static const Rutinas rutinas = [] {
        Rutinas r;
        RegistraRutinasFrame(r);
        RegistraRutinasTexto(r);
        RegistraRutinasIdent(r);
        RegistraRutinasGeo(r);
        RegistraRutinasProtocolo(r);
        RegistraRutinasDocumentos(r);
        RegistraRutinasPreguntas(r);
        RegistraRutinasComms(r);
        RegistraRutinasMantenimiento(r);
        return r;
    }();
    return rutinas;
}

} // namespace nod::lote
