// Tax identification numbers, cadastral references and personal attributes, offered to scripts.
#include "apps/nodrim/rutinas.h"

namespace nod::lote {

void RegistraRutinasIdent(Rutinas& r)
{
    (void)r;
}

} // namespace nod::lote
