#include "frame/mensajeperson.h"

#include "frame/colores.h"

namespace nod {

PeticionMensajePerson PeticionPerson(int tipo, const QString& mensaje2, int icono, const QString& titulo,
                                     const QString& mensaje1, const QString& boton1, const QString& boton2,
                                     int esquema, TColor fondo, TColor letras) {
    PeticionMensajePerson p;
    p.tipo = tipo;
    p.mensaje1 = mensaje1;
    p.mensaje2 = mensaje2;
    p.titulo = titulo;
    p.boton1 = boton1;
    p.boton2 = boton2;
    p.icono = icono;
    p.fondo = esquema > 0 ? GetMaxColor(esquema) : fondo;
    p.letras = letras;
    return p;
}

int Mensaje_Person(int tipo, const QString& mensaje2, int icono, const QString& titulo,
                   const QString& mensaje1, const QString& boton1, const QString& boton2, int esquema,
                   TColor fondo, TColor letras, int /*boton: the focus follows from tipo alone*/) {
    return Mensajes().mensajePerson(
        PeticionPerson(tipo, mensaje2, icono, titulo, mensaje1, boton1, boton2, esquema, fondo, letras));
}

int Mensaje_ActivosFinancieros(int tipo) {
    return Mensajes().activosFinancieros(tipo);
}

} // namespace nod
