// Protocol numbers, fees, VAT and withholding, offered to scripts.
#include "apps/nodrim/rutinas.h"
#include "companion/codigos.h"
#include "protocol/actuaciones.h"
#include "protocol/aranceles.h"
#include "protocol/bis.h"
#include "protocol/indices.h"
#include "protocol/iva.h"
#include "protocol/numeros.h"
#include "protocol/situaciones.h"
#include "protocol/sujeto.h"

namespace nod::lote {

namespace {

void registraCodigos(Rutinas& r) {
    r.agrega("EncodeCod4", &EncodeCod4);
    r.agrega("EncodeCod", qOverload<int, double>(&EncodeCod));
    r.agrega("EncodeCod", qOverload<int, int>(&EncodeCod));
    r.agrega("EncodeCod6", &EncodeCod6);
    r.agrega("EncodeCor", qOverload<int, int>(&EncodeCor));
    r.agrega("EncodeCor", qOverload<int, double>(&EncodeCor));
    r.agrega("DecodeCod4", &DecodeCod4);
    r.agrega("DecodeCod", &DecodeCod);
    r.agrega("DecodeCod6", &DecodeCod6);
    r.agrega("DecodeCor", &DecodeCor);
    r.agrega("CodToAno4", &CodToAno4);
    r.agrega("CodToNum4", &CodToNum4);
    r.agrega("CodToAno5", &CodToAno5);
    r.agrega("CodToNum5", &CodToNum5);
    r.agrega("Numero", &Numero);
    r.agrega("CodToBis", &CodToBis);
    r.agrega("FormateaMiles", &FormateaMiles);
}

void registraTextos(Rutinas& r) {
    r.agrega("Situacion", &Situacion);
    r.agrega("Situa_2", &Situa_2);
    r.agrega("SituacionMatriz", &SituacionMatriz);
    r.agrega("Situa_2Matriz", &Situa_2Matriz);
    r.agrega("SituacionPoliza", &SituacionPoliza);
    r.agrega("LetraActuacionNumeros", &LetraActuacionNumeros);
    r.agrega("IndexActuacion", &IndexActuacion);
    r.agrega("IndexActuacionPolizas", &IndexActuacionPolizas);
    r.agrega("IndexIntervencion", &IndexIntervencion);
    r.agrega("DadoNumeroDevuelveBisMasdeUna", &DadoNumeroDevuelveBisMasdeUna);
    r.agrega("DadoBisDevuelveNumeroMasdeUna", &DadoBisDevuelveNumeroMasdeUna);
    r.agrega("DadoNumeroDevuelveBisDobleMasdeUna", &DadoNumeroDevuelveBisDobleMasdeUna);
    r.agrega("DadoBisDobleDevuelveNumeroMasdeUna", &DadoBisDobleDevuelveNumeroMasdeUna);
    r.agrega("DadoBisDevuelveBisDobleMasdeUna", &DadoBisDevuelveBisDobleMasdeUna);
    r.agrega("Actuacion", &Actuacion);
    r.agrega("Actua_C", &Actua_C);
    r.agrega("Actua_CM", &Actua_CM);
    r.agrega("Actua_CS", &Actua_CS);
    r.agrega("ActuacionApoderado", &ActuacionApoderado);
    r.agrega("Intervencion", &Intervencion);
    r.agrega("Intervencion_D", &Intervencion_D);
    r.agrega("Actuacion_INTI", qOverload<int>(&Actuacion_INTI));
}

void registraHonorarios(Rutinas& r) {
    r.agrega("Ges_Arancel", &Ges_Arancel);
    r.agrega("Ges_Arancel_E", &Ges_Arancel_E);
    r.agrega("ARANCEL_C", &ARANCEL_C);
    r.agrega("BASE_C", &BASE_C);
    r.agrega("TASA_C", &TASA_C);
    r.agrega("Sujeto", &Sujeto);
    r.agrega("Sujeto_E", &Sujeto_E);
    r.agrega("MI_SUJETO", &MI_SUJETO);
    r.agrega("CompruebaIVA", &CompruebaIVA);
    r.agrega("CompruebaRetencion", &CompruebaRetencion);
    r.agrega("IVA_Por_Caja", &IVA_Por_Caja);
}

} // namespace

void RegistraRutinasProtocolo(Rutinas& r) {
    registraCodigos(r);
    registraTextos(r);
    registraHonorarios(r);
}

} // namespace nod::lote
