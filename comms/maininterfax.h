#pragma once
// FAX: the fax library's one routine, which submits a fax job to the InterFax service over its HTTP API
// (`ServidorFAX`, path "/outbound/faxes"): one POST per recipient, with HTTP basic authentication, the
// documents as the parts of a multipart/mixed body (each with its type, by extension, and its file name)
// and the fax number in the query. The service answers 201 with the new fax's address in "Location"; its
// last segment is the fax's identifier.
//
// The initialisation file of the job may hold, in section [INTERFAX], `CSID` (the sender's identification,
// at most 20 characters), `Cabecera` (the page header line) and `Reintentos` (0 to 6 retries of a busy
// line); a missing file or key leaves the service's defaults. A relative path is read under the office
// folder ("CONFIG\VARIOS.INI"), "C:\..." under the drive-root folder (`UnidadC`).

#include "nod_core_export.h"

#include <QString>
#include <QStringList>

class QObject;

namespace nod NOD_CORE_EXPORT {

/// Sends `documentos` (file paths) to each fax number of `destinatarios`, in order, with the account
/// `usuario`/`password`, and returns each fax's identifier.
///
/// Numbers are written with digits, an optional leading "+", and blanks, "-", ".", "/" or brackets
/// between them, which are dropped. Nothing is sent when there is no document or recipient, no account,
/// a number that is not one, or a document that cannot be read: ErrorEnvio says which. A recipient that
/// the service refuses, or a service that cannot be reached or stops answering (`EsperaFAXMs`), stops the
/// job there: ErrorEnvio names the numbers already sent, the one that failed and why, and the ones not
/// tried.
QStringList FAX(QObject* propietario, const QStringList& documentos, const QStringList& destinatarios,
                const QString& password, const QString& usuario, const QString& ficheroIni);

/// The file an initialisation-file path of the suite ("CONFIG\VARIOS.INI", "C:\FAX.INI", an absolute path)
/// stands for on this machine.
QString RutaFicheroSuite(const QString& ruta);

} // namespace nod
