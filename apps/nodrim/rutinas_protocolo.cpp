// Protocol numbers, fees, VAT and withholding, offered to scripts.
#include "apps/nodrim/rutinas.h"

namespace nod::lote {

void RegistraRutinasProtocolo(Rutinas& r)
{
    (void)r;
}

} // namespace nod::lote
