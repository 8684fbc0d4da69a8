// Tax identification numbers, cadastral references and personal attributes, offered to scripts.
#include "apps/nodrim/rutinas.h"
#include "companion/documentos.h"
#include "ident/atributos.h"
#include "ident/catastro.h"
#include "ident/cif.h"
#include "ident/controlcatastral.h"
#include "ident/nif.h"
#include "ident/tipodocumento.h"
#include "ident/tratamiento.h"

namespace nod::lote {

void RegistraRutinasIdent(Rutinas& r) {
    r.agrega("NIF", &NIF);
    r.agrega("RecalculaNIF", &RecalculaNIF);
    r.agrega("EsCif", &EsCif);
    r.agrega("TipoDeDocumento", qOverload<int>(&TipoDeDocumento));
    r.agrega("TipoDeDocumento", qOverload<const QString&>(&TipoDeDocumento));
    r.agrega("QueTipoDeDocumentoEsParaConsultaDNI", &QueTipoDeDocumentoEsParaConsultaDNI);
    r.agrega("EsNif", &EsNif);
    r.agrega("EsUnCif", &EsUnCif);
    r.agrega("EsUnNie", &EsUnNie);
    r.agrega("PreparaCIFNIF", &PreparaCIFNIF);
    r.agrega("QueTipoDeDocumentoEs", &QueTipoDeDocumentoEs);

    r.agrega("SePuedeFormatearReferenciaCatastralUrbana", &SePuedeFormatearReferenciaCatastralUrbana);
    r.agrega("FormatearReferenciaCatastralUrbana", &FormatearReferenciaCatastralUrbana);
    r.agrega("SePuedeFormatearReferenciaCatastralRustica", &SePuedeFormatearReferenciaCatastralRustica);
    r.agrega("FormatearReferenciaCatastralRustica", &FormatearReferenciaCatastralRustica);
    r.agrega("ExtraeSuperficiesRustica", &ExtraeSuperficiesRustica);
    r.agrega("LetrasControlCatastral", &LetrasControlCatastral);
    r.agrega("ControlCatastralCorrecto", &ControlCatastralCorrecto);

    r.agrega("DecodificaEstadoCivil", &DecodificaEstadoCivil);
    r.agrega("CodificaEstadoCivil", &CodificaEstadoCivil);
    r.agrega("DecodificaRegimen", &DecodificaRegimen);
    r.agrega("CodificaRegimen", &CodificaRegimen);
    r.agrega("DecodificaTipoJuridico", &DecodificaTipoJuridico);
    r.agrega("CodificaTipoJuridico", &CodificaTipoJuridico);
    r.agrega("PuedeTenerConyuge", &PuedeTenerConyuge);
    r.agrega("PuedeTenerConyugeInactivo", &PuedeTenerConyugeInactivo);
    r.agrega("DeterminaSexo", &DeterminaSexo);
    r.agrega("Don", &Don);
}

} // namespace nod::lote
