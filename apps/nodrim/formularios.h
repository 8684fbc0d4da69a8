#pragma once
// The form layer of `nodrim batch`, in the program nodrim-formularios: the routines that show forms (the
// data prompts, the invoice-number form, the NIF letter and cadastral reference dialogs) and the answerer
// that fills each form they show from the running request's "answers", through the modal seam.

#include "apps/nodrim/rutinas.h"

namespace nod::lote {

/// Every routine of the command line plus those that show forms.
const Rutinas& RutinasConFormularios();

/// The routines that show forms, registered without their owner argument.
void RegistraRutinasFormularios(Rutinas& r);

/// Makes every form the library shows from now on take its answer from the running request (see
/// `PeticionEnCurso`): the form is described for "dialogs", the next entry of "answers" is entered and
/// its button pressed; no entry left, an entry that does not fit the form, or a form still open after the
/// press make the request fail, and the form closes with the cancel result. Nothing ever waits for a
/// clerk.
void InstalaRespuestaFormularios();

} // namespace nod::lote
