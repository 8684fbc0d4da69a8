#pragma once
// The one consultation of the national cadastre's web service that the suite makes: the province and
// municipality codes of a cadastral reference (operation Consulta_DNPRC_Codigos of the coded street-map
// service), and the address of the citizen consultation page built from them.
//
// Hosts and namespace URIs are configuration values (`GetServidorCatastro`, `GetSoapActionCatastro`,
// `GetEspacioNombresCatastro`, `GetWebConsultaCatastro`); the wait is bounded by `GetEsperaCatastroMs` and
// an answer larger than `kMaximoRespuestaCatastro` is abandoned.

#include "nod_core_export.h"

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <functional>

namespace nod NOD_CORE_EXPORT {

/// Largest answer read from the cadastre; a real one is a few kilobytes.
constexpr qint64 kMaximoRespuestaCatastro = 1 << 20;

/// Path of the coded street-map service on the cadastre's host.
inline constexpr char16_t kRutaServicioCatastro[] =
    u"/ovcservweb/OVCSWLocalizacionRC/OVCCallejeroCodigos.asmx";

/// What came of one consultation.
enum class ResultadoCatastro {
    Encontrada,   // the cadastre answered with the codes
    NoEncontrada, // the cadastre answered, but with an error ("<ERR>"), nothing or an unexpected shape
    SinConexion,  // no answer: refused, timed out, HTTP error or an answer too large
    Cancelada,    // the clerk cancelled while waiting
};

struct ConsultaCatastro {
    ResultadoCatastro resultado = ResultadoCatastro::SinConexion;
    QString provincia, municipio;
};

/// The SOAP request for `referencia` (trimmed; "&", "<" and ">" escaped), byte for byte: UTF-8 lines each
/// ended by a carriage return alone, the four parameters straight in the body with no operation element.
QByteArray PeticionSoapCatastro(const QString& referencia);

/// The SOAPAction header: the SOAP namespace followed by "/OVCServWeb/OVCCallejeroID/Consulta_DNPRC_Codigos".
QByteArray SoapActionConsultaCatastro();

/// Reads the codes from an answer. An empty answer, one holding "<ERR>" (in any case), XML that does not
/// parse (truncated, nested deeper than 64 levels, external entities) or a different shape leaves both codes
/// empty. The codes are found by child position: document, its second child (the envelope), then first,
/// first, first, second, first and second children (the property's data), which must hold more than two
/// children; in it "loine" (or "LOINE") with "cp" (or "CP") gives the province and "cmc" (or "CMC") the
/// municipality. Without "cmc" only the province is filled; an empty "cp" is read as it is (an empty
/// province, the municipality still read). Returns true when a non-empty province was found.
bool LeeRespuestaCatastro(const QByteArray& respuesta, QString& provincia, QString& municipio);

/// Asks the cadastre for the codes of `referencia`, waiting in a local event loop (the screen keeps
/// painting). `cancelada`, when given, is polled while waiting; true abandons the request.
ConsultaCatastro ConsultaCodigosCatastro(const QString& referencia,
                                         const std::function<bool()>& cancelada = {});

/// The province and municipality codes of `referencia`; both empty when the cadastre could not be asked or
/// did not know the reference (the province alone when the answer had no municipality).
void RecuperaMunicipio(const QString& referencia, QString& provincia, QString& municipio);

/// The citizen consultation page of a reference: "UrbRus=U" (urban) or "UrbRus=R", the reference, the
/// province and the municipality. Province "51" (Ceuta) becomes "55" and "52" (Melilla) "56", the cadastre's
/// own numbering for the two cities.
/// DireccionConsultaCatastro("9872023VH5797S0001WX", "28", "900", true) is
/// "https://www1.sedecatastro.gob.es/CYCBienInmueble/OVCConCiud.aspx?UrbRus=U&RefC=9872023VH5797S0001WX&del=28&mun=900"
/// with the default host.
QUrl DireccionConsultaCatastro(const QString& referencia, const QString& provincia, const QString& municipio,
                               bool urbana);

} // namespace nod
