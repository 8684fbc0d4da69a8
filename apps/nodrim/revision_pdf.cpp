// The module "nodrim_pdf": the PDF side of `nodrim revision` (see revision_pdf.h).
#include "apps/nodrim/revision_pdf.h"

#include "maintenance/listarevisioncodclienteqr.h"

#include <QGuiApplication>

extern "C" {

Q_DECL_EXPORT QCoreApplication* nodrim_pdf_aplicacion(int* argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    return new QGuiApplication(*argc, argv);
}

Q_DECL_EXPORT bool nodrim_pdf_guarda(const nod::TMensajesRevision* lineas, const QString* tabla,
                                     const QString* fichero, const QDate* fecha) {
    using nod::TQRListaRevisionCodCliente;
    const QString subtitulo = tabla->isEmpty() ? QStringLiteral("(En todas las tablas)")
                                               : TQRListaRevisionCodCliente::SubtituloDeTabla(*tabla);
    return TQRListaRevisionCodCliente(*lineas, subtitulo, *fecha).GuardaPdf(*fichero);
}

} // extern "C"
