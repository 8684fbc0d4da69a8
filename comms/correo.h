#pragma once
// The mail and fax routines of the suite's programs: sending one message (the e-mail editor's send action
// and the billing program's invoices), the support desk's "mailto:" link, and fax jobs.

#include "nod_core_export.h"

#include <QString>
#include <QStringList>
#include <QUrl>
#include <functional>

class QObject;

namespace nod NOD_CORE_EXPORT {

/// The recipients of `lista` ("a@x.es;b@y.es") each preceded by `prefijo`, as the mail component takes
/// them: the text before each ";" in turn, and the rest after the last one when it is not empty.
///     PartesDestinatarios("a@x.es;b@y.es;", "smtp:") gives {"smtp:a@x.es", "smtp:b@y.es"}
/// Blanks are kept as written (the mail component trims each address); two ";" in a row give a blank
/// entry, which the component skips.
QStringList PartesDestinatarios(const QString& lista, const QString& prefijo);

/// Sends one message to `para`, with copies to `cc` and hidden copies to `bcc` (each a list of addresses
/// separated by ";"), the subject, the body and the files of `adjuntos` attached in order.
///
/// Before anything is sent: an empty `para` shows "Debe indicar un destinatario en el cuadro Para"
/// (titled "Atención, faltan datos") and returns false; an empty subject asks "Mensaje sin asunto" /
/// "¿Desea enviarlo de todas formas?", and an empty body "Mensaje con  el cuerpo vacío" with the same
/// question and title: a "No" returns false.
///
/// `acuseRecibo` asks the recipients' mail programs for a read receipt. `propietario` is accepted for the
/// suite's callers; the mail object lives only for this call and is freed also when sending fails.
///
/// Returns true when the server accepted the message. Throws ErrorEnvio (companion/errores.h) when it was
/// not sent: a wrong address or attachment, missing settings, or the server refusing, stalling or being out
/// of reach; the message says what happened, for the clerk. `cancelada`, when given, is polled while the
/// message goes out; true abandons it (ErrorEnvio "Envío cancelado.").
bool EnviarEmail(QObject* propietario, const QString& para, const QString& asunto, const QString& cuerpo,
                 const QStringList& adjuntos, const QString& cc, const QString& bcc, bool acuseRecibo,
                 const std::function<bool()>& cancelada = {});

/// The link `EnviarMail` hands to the shell: a new message to the maker's support desk (`CorreoFabricante`)
/// with subject "Notario rectificación".
///     "mailto:soporte@example.com?subject=Notario%20rectificaci%C3%B3n" with Correo=soporte@example.com
QUrl EnlaceEnviarMail();

/// Sends `documentos` to every fax number of `destinatarios` through the fax service (`FAX`), with the
/// account `usuario`/`password` when `usuario` is given and the office's fax account (`GetsUsuarioFAX`,
/// `GetsPasswordFAX`) otherwise. `ficheroIni` is the initialisation file of the job, "CONFIG\VARIOS.INI"
/// when empty. Returns the service's identifier of each fax, in the order of the recipients. Throws
/// ErrorEnvio as `FAX` does.
QStringList EnviarFAXInterFax(QObject* propietario, const QStringList& documentos,
                              const QStringList& destinatarios, const QString& password,
                              const QString& usuario, const QString& ficheroIni);

} // namespace nod
