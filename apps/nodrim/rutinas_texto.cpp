// Text, numbers and dates in words, offered to scripts.
#include "apps/nodrim/rutinas.h"
#include "companion/fechas.h"
#include "companion/letrascatalan.h"
#include "companion/rnumcad.h"
#include "text/alineacion.h"
#include "text/calendario.h"
#include "text/fechas.h"
#include "text/formatos.h"
#include "text/lecturanumeros.h"
#include "text/letras.h"
#include "text/limpieza.h"
#include "text/mayusculas.h"
#include "text/moneda.h"

namespace nod::lote {

namespace {

void registraLimpiezaYAlineacion(Rutinas& r) {
    r.agrega("QuitaAcentos", &QuitaAcentos);
    r.agrega("QuitaAcentoMayMin", &QuitaAcentoMayMin);
    r.agrega("ConvertirDoblesEspaciosEnUno", &ConvertirDoblesEspaciosEnUno);
    r.agrega("QuitaEspaciosIntermedios", &QuitaEspaciosIntermedios);
    r.agrega("SinDoblesEspacios", &SinDoblesEspacios);
    r.agrega("TrimTotal", &TrimTotal);
    r.agrega("QuitaNumeros", &QuitaNumeros);
    r.agrega("StrNeto", &StrNeto);
    r.agrega("PonBarraFinal", &PonBarraFinal);
    r.agrega("QuitaBarraFinal", &QuitaBarraFinal);
    r.agrega("MayusMinus", &MayusMinus);
    r.agrega("CapitalCase", &CapitalCase);
    r.agrega("StrCentra", &StrCentra);
    r.agrega("JustificaDer", &JustificaDer);
    r.agrega("JustificaIzq", &JustificaIzq);
    r.agrega("AlineaDecha", &AlineaDecha);
    r.agrega("AlineaIzda", &AlineaIzda);
}

void registraNumeros(Rutinas& r) {
    r.agrega("LetrasNod", &LetrasNod);
    r.agrega("SeisCifrasNod", qOverload<const QString&, QString&, QChar, bool>(&SeisCifrasNod));
    r.agrega("CientosNod", qOverload<int, int, int, bool, QChar, QString&, int>(&CientosNod));
    r.agrega("LetrasDecimalNod", &LetrasDecimalNod);
    r.agrega("LetrasPorCientoNod", &LetrasPorCientoNod);
    r.agrega("EurosEnLetra", &EurosEnLetra);
    r.agrega("FormateaNumero", &FormateaNumero);
    r.agrega("FormateaCantidad", &FormateaCantidad);
    r.agrega("ConvierteNumeroDeCadenaAEnteroNod", &ConvierteNumeroDeCadenaAEnteroNod);
    r.agrega("ConvierteUnidadesDeCadenaAEnteroNod", &ConvierteUnidadesDeCadenaAEnteroNod);
    r.agrega("Letras_Pesetas", &Letras_Pesetas);
    r.agrega("Letras_Euros", &Letras_Euros);
    r.agrega("letrasEnCatalan", &letrasEnCatalan);
}

void registraFechas(Rutinas& r) {
    r.agrega("FormateaFecha", &FormateaFecha);
    r.agrega("PonerFechaNod", &PonerFechaNod);
    r.agrega("TraduceFechaNod", &TraduceFechaNod);
    r.agrega("TraduceFechaCatalan", &TraduceFechaCatalan);
    r.agrega("DiasMes", &DiasMes);
    r.agrega("UltimoDia", &UltimoDia);
    r.agrega("EncodeFecha", &EncodeFecha);
    r.agrega("IntToTrim", &IntToTrim);
    r.agrega("TrimToInt", &TrimToInt);
    r.agrega("TrimToMes", &TrimToMes);
    r.agrega("MesToStr", &MesToStr);
    r.agrega("DiaTexto", &DiaTexto);
    r.agrega("CompletaAnno", &CompletaAnno);
}

void registraMonedaYConversiones(Rutinas& r) {
    r.agrega("PesetasEurosNod", qOverload<qint64>(&PesetasEurosNod));
    r.agrega("PesetasEurosNod", qOverload<qint64, int>(&PesetasEurosNod));
    r.agrega("EurosPesetasNod", &EurosPesetasNod);
    r.agrega("PuntosNod", &PuntosNod);
    r.agrega("Float_Cad", &Float_Cad);
    r.agrega("RedondeaDec", &RedondeaDec);
    r.agrega("ParteEnteraDecimal", &ParteEnteraDecimal);
    r.agrega("Cad_Int", &Cad_Int);
    r.agrega("Cad_Int64", &Cad_Int64);
    r.agrega("Cad_Float", &Cad_Float);
    r.agrega("StrLeft", &StrLeft);
    r.agrega("StrRight", &StrRight);
    r.agrega("StrCeros", &StrCeros);
    r.agrega("UpperCase", &UpperCase);
    r.agrega("lowerCase", &lowerCase);
    r.agrega(
        "EsUnNumero",
        +[](const QString& s) { return EsUnNumero(s); }); // a one-character text is the character form
    r.agrega("DejaSoloNumeros", &DejaSoloNumeros);
}

} // namespace

void RegistraRutinasTexto(Rutinas& r) {
    registraLimpiezaYAlineacion(r);
    registraNumeros(r);
    registraFechas(r);
    registraMonedaYConversiones(r);
}

} // namespace nod::lote
