// Routines of the library frame offered to scripts.
#include "apps/nodrim/rutinas.h"

#include "frame/ficheros.h"
#include "frame/notarios.h"

namespace nod::lote {

void RegistraRutinasFrame(Rutinas& r)
{
    r.agrega("AliasNotario", &AliasNotario);
    r.agrega("AliasNotarioActual", &AliasNotarioActual);
    r.agrega("NumeroDeNotarios", &NumeroDeNotarios);
    r.agrega("FicheroTemporalNod", &FicheroTemporalNod);
    r.agrega("EliminaTablaTemporal", &EliminaTablaTemporal);
    r.agrega("FicheroAbierto", &FicheroAbierto);
    r.agrega("ExtraePath", &ExtraePath);
    r.agrega("GetDate", &GetDate);
}

} // namespace nod::lote
