// The prompts that need no form: the confirmation before deleting accounting entries, whose questions
// are message boxes answered from the request's "answers".
#include "apps/nodrim/rutinas.h"
#include "prompts/borradoapuntes.h"

namespace nod::lote {

void RegistraRutinasPreguntas(Rutinas& r) {
    // The owner places the boxes on screen; a script has none.
    r.agrega(
        "ConfirmaBorradoApuntes", +[](TDateTime fecha) { return ConfirmaBorradoApuntes(nullptr, fecha); });
    r.agrega("CierreTrimestre", &CierreTrimestre);
}

} // namespace nod::lote
