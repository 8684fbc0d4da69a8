// The names and folders of a deed's documents, copies, electronic files and the notary's images,
// offered to scripts, with the path helpers a script needs to reach those files.
#include "apps/nodrim/rutinas.h"
#include "companion/rficheros.h"
#include "protocol/anexos.h"
#include "protocol/carpetasdocumentos.h"
#include "protocol/documentosunidos.h"
#include "protocol/imagenesnotario.h"
#include "protocol/nombresdocumentos.h"

namespace nod::lote {

void RegistraRutinasDocumentos(Rutinas& r) {
    r.agrega("FicheroPubli", &FicheroPubli);
    r.agrega("FicheroSello", &FicheroSello);
    r.agrega("FicheroSelloCopNotario", &FicheroSelloCopNotario);
    r.agrega("FicheroFirma", &FicheroFirma);
    r.agrega("FicheroRubrica", &FicheroRubrica);
    r.agrega("FicheroSelloFirma", &FicheroSelloFirma);
    r.agrega("DameCarpetaFicheroWordEscrituras", &DameCarpetaFicheroWordEscrituras);
    r.agrega("DameNombreFicheroWordEscrituras", &DameNombreFicheroWordEscrituras);
    r.agrega("DameCarpetaFicheroCopiaAutorizada", &DameCarpetaFicheroCopiaAutorizada);
    r.agrega("DameNombreFicheroCopiaAutorizada", &DameNombreFicheroCopiaAutorizada);
    r.agrega("DameCarpetaFicheroCopiaSimple", &DameCarpetaFicheroCopiaSimple);
    r.agrega("DameNombreFicheroCopiaSimple", &DameNombreFicheroCopiaSimple);
    r.agrega("DameCarpetaFicherosElectronicosEscrituras", &DameCarpetaFicherosElectronicosEscrituras);
    r.agrega("DameCarpetaFicheroWordPolizas", &DameCarpetaFicheroWordPolizas);
    r.agrega("DameNombreFicheroWordPolizas", &DameNombreFicheroWordPolizas);
    r.agrega("DameCarpetaFicherosElectronicosPolizas", &DameCarpetaFicherosElectronicosPolizas);
    r.agrega("PasaImagenesADU", &PasaImagenesADU);
    r.agrega("DeleteAnexos", &DeleteAnexos);
    r.agrega("SlashSep", &SlashSep);
    r.agrega("RutaEnDisco", &RutaEnDisco);
}

} // namespace nod::lote
