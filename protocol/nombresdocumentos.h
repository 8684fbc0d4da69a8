#pragma once
// The names of a deed's or policy's files: the word-processor document, the authorised and simple
// copies, and the bis suffixes they carry. Every program of the suite names the same deed's files the
// same way through these.
//
// A repeated ("bis") number is told apart in file names by a suffix of its bis order (1, 2 or 3; 0 or
// any other order adds nothing). Three families exist and are not interchangeable: documents end
// "_1Bis", copies "Bis" and electronic-file folders "-1Bis".
//
// Document names come from a template of the configuration (`sEnlaceWordNombreFichero`,
// `sEnlaceWordNombreFicheroPoliza`): text is copied as it stands, and each tag between "<" and the next
// ">" is replaced:
//   <INICIALES NOTARIO>  the initials of the deed's notary (`InicialesNotario`)
//   <NUMERO>             the number as it is: 12
//   <NUMERO4>, <NUMERO5> the number in 4 or 5 figures: 0012, 00012 (the last 4 or 5 when it is longer)
//   <AÑO>, <AÑO4>        the year in 2 or 4 figures: 08, 2008
//   <SECCION>            policies only: the policy's section
// A tag the template's kind does not know is left out, and a "<" without its ">" leaves the rest of the
// template out; both are reported in the log, for the one who wrote the template.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Bis suffix of word-processor document names: "_1Bis", "_2Bis", "_3Bis".
QString SufijoBisDocumento(int bis);
/// Bis suffix of authorised and simple copy names: "Bis", "2Bis", "3Bis".
QString SufijoBisCopia(int bis);
/// Bis suffix of the folders of electronic files: "-1Bis", "-2Bis", "-3Bis".
QString SufijoBisElectronico(int bis);

/// Name without extension of a deed's document. Mode 1 (a dossier): the number in 6 figures and nothing
/// else ("000012"). Any other mode: `sEnlaceWordNombreFichero` expanded for notary `notario`, `numero`
/// and `ano`, then the document bis suffix. Example: with the template "<AÑO>-<NUMERO5>",
/// DameNombreFicheroWordEscrituras(0, 1, 12, 2008, 1) == "08-00012_1Bis".
QString DameNombreFicheroWordEscrituras(int modo, int notario, int numero, int ano, int bis);

/// Name of an authorised copy: "COPAUT_", the number in 5 figures, the copy bis suffix, "_" and `cola`.
/// Example: DameNombreFicheroCopiaAutorizada("A", 12, 2) == "COPAUT_000122Bis_A".
QString DameNombreFicheroCopiaAutorizada(const QString& cola, int numero, int bis);

/// Name of a simple copy: "COPSIM_", the number in 5 figures and the copy bis suffix:
/// DameNombreFicheroCopiaSimple(12, 1) == "COPSIM_00012Bis".
QString DameNombreFicheroCopiaSimple(int numero, int bis);

/// Name without extension of a policy's document: `sEnlaceWordNombreFicheroPoliza` expanded with the
/// section too, then a suffix chosen by `sEnlaceWordBisFicheroPoliza`:
///   "0":   "A", "B", "C" for bis 1, 2, 3 and "N" for a policy without bis;
///   "1":   "_1Bis", "_2Bis", "_3Bis", nothing without bis;
///   other: "A", "B", "C" for bis 1, 2, 3, nothing without bis.
/// Example: template "<SECCION>-<AÑO>-<NUMERO5>", value "0": DameNombreFicheroWordPolizas("A", 1, 7, 2024, 0)
/// == "A-24-00007N".
QString DameNombreFicheroWordPolizas(const QString& seccion, int notario, int numero, int ano, int bis);

/// `numero` in `cifras` figures: the last `cifras` characters of that many zeros followed by the number,
/// as the suite pads deed numbers: NumeroEnCifras(12, 5) == "00012", NumeroEnCifras(123456, 5) == "23456".
QString NumeroEnCifras(qint64 numero, int cifras);

} // namespace nod
