#pragma once
// The web gateway (Pasarela Web), the outside program through which the office sends its official reports
// ("Partes") and certificates ("Actas"): checking that its libraries, templates and schemas stand beside
// the suite's programs, downloading the missing ones and its set-up program from the maker's portal
// (`PortalFabricante`), starting the set-up, and writing its default initialisation file.
//
// The files are checked in the program folder (the running program's own) and downloaded into the base
// folder (the office folder); the two may differ, and the downloads still go to the base folder. Nothing
// here raises: what the clerk must know comes as the questions and errors below.

#include "nod_core_export.h"

#include <QString>
#include <functional>

namespace nod NOD_CORE_EXPORT {

/// The program folder, ending in a separator: the running program's folder, or the one set with
/// `FijaCarpetaPrograma`.
QString CarpetaPrograma();
/// Sets the program folder (tools and tests); an empty text goes back to the running program's folder.
void FijaCarpetaPrograma(const QString& carpeta);

/// The base folder, ending in a separator: the office folder of the configuration.
QString CarpetaBase();

/// Starts a program without waiting for it; false when it could not be started.
using LanzadorPrograma = std::function<bool(const QString& programa)>;
/// Replaces the starter of `InstalaPasarela` (nullptr: back to starting real programs); returns the previous.
LanzadorPrograma FijaLanzadorPrograma(LanzadorPrograma lanzador);

/// True when the eight libraries and the configuration and forms entries are all in the program folder
/// and then the single-sending files are there or have just been downloaded
/// (`CompruebaFicherosPasarelaParaEnviosUnicos`). A missing library or configuration entry gives false
/// without any message or question.
bool CompruebaFicherosPasarela();

/// True when the single-sending entries (folders "templates" and "xsd", the two templates and the two
/// schemas) are in the program folder; otherwise the result of `DescargaFicherosPasarelaParaEnviosUnicos`.
bool CompruebaFicherosPasarelaParaEnviosUnicos();

/// Asks "¿Descargar los ficheros para enviar Partes y Actas? Asegúrese de estar conectado" and on yes
/// downloads the two templates and the two schemas from the portal into the base folder's "templates" and
/// "xsd", one after the other while they succeed, under the wait message "Descargando ficheros del Portal
/// de Zeb Soft..." (a second line tells which file is coming and how much of it has arrived). When a
/// download failed, and also after a "No", shows "No se ha podido descargar alguno de los ficheros de
/// instalación de la Pasarela Web". True when all four were downloaded. Files downloaded before a failure
/// stay; the one that failed is not left half-written.
bool DescargaFicherosPasarelaParaEnviosUnicos();

/// Deletes the base folder's "PasarelaSetup.exe" so that a fresh one is fetched: true at once when it
/// cannot be deleted; otherwise asks "¿Desea descargar ahora el fichero de Instalación? Asegúrese de que está
/// conectado" and on yes downloads it under the wait message "Descargando fichero del Portal de Zeb
/// Soft...". After a failure or a "No": "No se ha podido descargar el fichero de instalación de la Pasarela
/// Web". True when it was downloaded.
bool DescargaFicherosPasarela();

/// With the base folder's "PasarelaSetup.exe" present, asks "¿Desea instalar la Pasarela Web?" and on yes
/// starts it and returns at once; without it, shows "No se ha encontrado el fichero de instalación de la
/// Pasarela Web". A program that cannot be started is reported as well.
void InstalaPasarela();

/// Creates the gateway's initialisation file "C:\PasarelaWeb.ini" (under the drive-root folder, `UnidadC`)
/// with section "Parameters": NIVEL_LOG=2, FICHERO_LOG=C:\PasarelaWeb.log, PROXY_SERVER=<CURRENT_USER>,
/// CONNECTOR_TIMEOUT=120000, in that order, when it does not exist; an existing file is never touched.
/// A file that cannot be written is reported to the clerk. Returns the file's path on this machine.
QString CompruebaPasarelaWebIni();

/// The text of `texto` between the first `etiquetaInicio` and the first `etiquetaFin` of the whole text
/// (searched from the beginning, not after the start tag); empty when either is missing or the end tag
/// stands before the start tag's end.
///     DameContenidoXML("<a>1</a>", "<a>", "</a>") is "1"
QString DameContenidoXML(const QString& texto, const QString& etiquetaInicio, const QString& etiquetaFin);

} // namespace nod
