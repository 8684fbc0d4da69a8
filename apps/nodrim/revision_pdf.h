#pragma once
// The module "nodrim_pdf" that `nodrim revision --pdf` loads at run time: Qt Gui (a QGuiApplication and
// the PDF writer) is loaded only by that command, so that every other use of nodrim starts without it.

#include "maintenance/revisioncodcliente.h"

#include <QDate>
#include <QString>

class QCoreApplication;

namespace nod::lote {

/// Creates the program's application as a QGuiApplication, on the offscreen platform unless
/// QT_QPA_PLATFORM says otherwise (writing a PDF needs no display). Symbol "nodrim_pdf_aplicacion".
using CreaAplicacionPdf = QCoreApplication* (*)(int* argc, char** argv);

/// Writes the printed list of `lineas`, dated `fecha`, as the PDF `fichero`: of a one-table run when
/// `tabla` names the table, of all tables when it is empty. False when it cannot be written. Symbol
/// "nodrim_pdf_guarda".
using GuardaPdfRevision = bool (*)(const TMensajesRevision* lineas, const QString* tabla,
                                   const QString* fichero, const QDate* fecha);

} // namespace nod::lote
