// Routines of the library frame offered to scripts.
#include "apps/nodrim/rutinas.h"
#include "frame/colores.h"
#include "frame/ficheros.h"
#include "frame/mensajeperson.h"
#include "frame/notarios.h"

namespace nod::lote {

namespace {

// Colours travel as integers (0xBBGGRR fits in one) and the enumerations as their ordinals.
int Mensaje_PersonLote(int tipo, const QString& mensaje2, int icono, const QString& titulo,
                       const QString& mensaje1, const QString& boton1, const QString& boton2, int esquema,
                       int fondo, int letras, int boton) {
    return Mensaje_Person(tipo, mensaje2, icono, titulo, mensaje1, boton1, boton2, esquema, TColor(fondo),
                          TColor(letras), boton);
}

int GetMaxColorLote(int esquema) {
    return int(GetMaxColor(esquema));
}
int GetMinColorLote(int esquema) {
    return int(GetMinColor(esquema));
}
int GetMaxColorMenLote(int esquema) {
    return int(GetMaxColorMen(esquema));
}
int GetMinColorMenLote(int esquema) {
    return int(GetMinColorMen(esquema));
}

} // namespace

void RegistraRutinasFrame(Rutinas& r) {
    r.agrega("AliasNotario", &AliasNotario);
    r.agrega("AliasNotarioActual", &AliasNotarioActual);
    r.agrega("NumeroDeNotarios", &NumeroDeNotarios);
    r.agrega("FicheroTemporalNod", &FicheroTemporalNod);
    r.agrega("EliminaTablaTemporal", &EliminaTablaTemporal);
    r.agrega("FicheroAbierto", &FicheroAbierto);
    r.agrega("ExtraePath", &ExtraePath);
    r.agrega("GetDate", &GetDate);
    r.agrega("Mensaje_Person", &Mensaje_PersonLote);
    r.agrega("Mensaje_ActivosFinancieros", &Mensaje_ActivosFinancieros);
    r.agrega("GetMaxColor", &GetMaxColorLote);
    r.agrega("GetMinColor", &GetMinColorLote);
    r.agrega("GetMaxColorMen", &GetMaxColorMenLote);
    r.agrega("GetMinColorMen", &GetMinColorMenLote);
}

} // namespace nod::lote
