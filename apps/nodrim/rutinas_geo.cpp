// Country, province and municipality codes, addresses and the staff tables, offered to scripts.
#include "apps/nodrim/rutinas.h"
#include "ident/colegios.h"
#include "ident/domicilio.h"
#include "ident/empleados.h"
#include "ident/municipios.h"
#include "ident/paises.h"

namespace nod::lote {

void RegistraRutinasGeo(Rutinas& r) {
    r.agrega("Cod_PaisBOE", &Cod_PaisBOE);
    r.agrega("Cod_PaisISO3166", &Cod_PaisISO3166);
    r.agrega("Cod_PaisCodigo", &Cod_PaisCodigo);
    r.agrega("Cod_PaisISO3166PorCodigo", &Cod_PaisISO3166PorCodigo);
    r.agrega("Cod_PaisToNombre", &Cod_PaisToNombre);
    r.agrega("Cod_ProvToNombre", &Cod_ProvToNombre);
    r.agrega("Cod_ISO3166_13ToNombre", &Cod_ISO3166_13ToNombre);
    r.agrega("DameCodPais_BOE2003_12_23_Anexo11_grupo3____a_partir_del_codigo_grupo2",
             &DameCodPais_BOE2003_12_23_Anexo11_grupo3____a_partir_del_codigo_grupo2);
    r.agrega("BusquedaMunicipio", &BusquedaMunicipio);
    r.agrega("BusquedaCodIne", &BusquedaCodIne);
    r.agrega("Cod_MunToNombre", &Cod_MunToNombre);
    r.agrega("CompruebaEntidadMenor", &CompruebaEntidadMenor);
    r.agrega("ObtenCodColegioPorNombre", &ObtenCodColegioPorNombre);
    r.agrega("PoblacionFormateada", &PoblacionFormateada);
    r.agrega("Planta", &Planta);
    r.agrega("Escalera_Bloque", &Escalera_Bloque);
    // In a script the client is named by its code; its record of CLIENTES.DBF is read.
    r.agrega("DomicilioClienteCompleto", &DomicilioClienteCompletoPorCodigo);
    r.agrega("Empleado", &Empleado);
    r.agrega("Sustituto", &Sustituto);
}

} // namespace nod::lote
