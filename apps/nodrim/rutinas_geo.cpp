// Country, province and municipality codes, offered to scripts.
#include "apps/nodrim/rutinas.h"

namespace nod::lote {

void RegistraRutinasGeo(Rutinas& r)
{
    (void)r;
}

} // namespace nod::lote
