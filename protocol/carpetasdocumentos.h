#pragma once
// The folders of a deed's or policy's files: word-processor documents, authorised and simple copies,
// the policies' documents, and the electronic files (scans, signed copies) of deeds, dossiers and
// policies. Every routine creates its folder, with the missing parents, when it is not there yet; a
// folder that cannot be created is only logged (the caller meets it when writing the file).
//
// Results are written as the suite writes paths, parts joined by "\" (`SlashSep`); `RutaEnDisco` gives
// the real folder. The folders of documents and copies start from a configured base folder:
//   - without the agreement flag (`bEnlaceWordConvenio`): base\year, no final "\";
//   - with it, in an office of several notaries: base\notary folder\year\ (or base\year\notary folder\ when
//     `bEnlaceWordAnoMasNotario`), with a final "\"; the notary folders are `sEnlaceWordCarpeta1`..`5`,
//     and any other notary number has none;
//   - with it, in an office configured with no notaries (`nCuantos` below 1): the error box
//     "Configuración errónea" (once per call) and the bare base folder.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Folder of a deed's document (any mode but 1) or a dossier's (mode 1: `CARPETAS_EXPEDIENTE`\year\)
/// in `ano`, for notary `notario` (1..5). Example, without agreement and the base "C:\NODRIM\PROTOCOLO":
/// DameCarpetaFicheroWordEscrituras(0, 1, 2024) == "C:\NODRIM\PROTOCOLO\2024".
QString DameCarpetaFicheroWordEscrituras(int modo, int notario, int ano);

/// Folder of the authorised copies of notary `notario` in `ano`, under `CARPETAS_ENVIOREGISTRO`.
QString DameCarpetaFicheroCopiaAutorizada(int notario, int ano);

/// Folder of the electronic simple copies of notary `notario` in `ano`, under
/// `CARPETAS_CSIMPLEELECTRONICA`.
QString DameCarpetaFicheroCopiaSimple(int notario, int ano);

/// Folder of the electronic files of a deed or a dossier, under the folder of the suite's main database
/// (alias `AliasNodrim`): "Archivos", then "Expediente" for a dossier (mode 1) or "Protocolo" for a deed,
/// the year, and one folder for the file: a dossier's number in 6 figures, or a deed's notary initials
/// (`InicialesNotario`) glued to its number in 5 figures; the electronic bis suffix follows the number,
/// and `subcarpeta`, when given, goes below. Example, deed 12 bis 1 of 2008 by notary "JGP":
/// "<main database>\Archivos\Protocolo\2008\JGP00012-1Bis". Without a main database folder: "".
QString DameCarpetaFicherosElectronicosEscrituras(int modo, int notario, int numero, int bis, int ano,
                                                  const QString& subcarpeta);

/// Folder of the policies' documents of `ano`: `sRutaPolizasDigitalizadas`\year.
QString DameCarpetaFicheroWordPolizas(int ano);

/// Folder of the electronic files of a policy, the policies' counterpart of
/// `DameCarpetaFicherosElectronicosEscrituras`. The seven arguments:
///   modo       1 for a dossier (then as the deeds' routine: "Expediente", number in 6 figures, the
///              section and the notary unused), any other value for a policy;
///   notario    the policy's notary (1..5), whose initials start the policy's folder;
///   seccion    the section of the policy register; a folder of its own under the year (none when empty),
///              since policies are numbered per section;
///   numero     the policy's number, in 5 figures;
///   bis        its bis order, as the electronic suffix "-1Bis" ... glued to the number;
///   ano        the year of the policy;
///   subcarpeta an optional folder below the policy's.
/// Example, policy 7 of section "A", 2024, notary "JGP", bis 2:
/// "<main database>\Archivos\Polizas\2024\A\JGP00007-2Bis".
QString DameCarpetaFicherosElectronicosPolizas(int modo, int notario, const QString& seccion, int numero,
                                               int bis, int ano, const QString& subcarpeta);

} // namespace nod
