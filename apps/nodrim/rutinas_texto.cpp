// Text, numbers and dates in words, offered to scripts.
#include "apps/nodrim/rutinas.h"

namespace nod::lote {

void RegistraRutinasTexto(Rutinas& r)
{
    (void)r;
}

} // namespace nod::lote
