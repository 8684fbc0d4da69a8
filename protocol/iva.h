#pragma once
// Checks made before an invoice is issued: that the indirect-tax and withholding percentages typed on it
// are those in force on its date. Three tax territories: the common one (VAT), the Canary Islands (IGIC,
// notarial association `nColegio` 5, which wins over the town) and Ceuta and Melilla (IPSI, `Lugar1`
// exactly "CEUTA" or "MELILLA"). Dates compare as whole days; a period "from" a day includes it.

#include "companion/tdatetime.h"
#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// True when `porcentaje` is exactly the rate in force on `fecha` in the office's territory:
///   VAT 16 before 01/07/2010, 18 up to 31/08/2012, 21 from 01/09/2012;
///   IGIC 5 before 01/09/2012, 7 from then; IPSI 4 before 24/09/2012, 9 up to 30/06/2018, 6 from 01/07/2018.
/// Otherwise asks with `Mensaje_NoSi` ("¿Desea continuar (S/N)?", a text naming both percentages and the
/// period, titled "Aplicación de IVA", "Aplicación del IGIC", "Aplicación del IPSI", or "Aplicación de
/// IPSI" for the 4 % period) and returns true when the user chooses to continue.
/// Example: CompruebaIVA(31/08/2012, 18) is true without asking; CompruebaIVA(01/09/2012, 18) asks
/// "¿Seguro que el IVA a aplicar es el 18% y no el 21%?\rLa fecha es posterior al 01/09/2012".
bool CompruebaIVA(TDateTime fecha, double porcentaje);

/// True when the withholding `porcentaje` is acceptable; on false `mensaje` says which rate to check.
/// The date judged is `fechaB` when it is not 0 and a later day than `fechaA` (the issue date), else
/// `fechaA`. Ceuta and Melilla: 6 from 01/07/2018, and then in any case 7.5 (so even 6 fails after
/// 2018, with the 7,5 % message: the office checks it by hand). Elsewhere: 15 before 01/09/2012, 21 up to
/// 31/12/2014, 19 up to 11/07/2015, 15 from 12/07/2015. Only when the issue date is the one judged, a
/// percentage other than 15, 21 or 19 must also equal the configured `TipoRet`.
/// Example: CompruebaRetencion(15/06/2015, 20/07/2015, 19, m) is false with
/// m == "Compruebe que la retención a aplicar no sería del 15%".
bool CompruebaRetencion(TDateTime fechaA, TDateTime fechaB, double porcentaje, QString& mensaje);

/// The name of the office's indirect tax, as labels print it: "IVA", "IGIC" in the Canary Islands,
/// "IPSI" in Ceuta and Melilla (territories as above).
QString NombreImpuestoIndirecto();

/// True when the office charges VAT on a cash basis (`CriterioFacturacion` 3) and the date's year is 2014
/// or later. Example: IVA_Por_Caja(31/12/2013) is false whatever the criterion.
bool IVA_Por_Caja(TDateTime fecha);

} // namespace nod
