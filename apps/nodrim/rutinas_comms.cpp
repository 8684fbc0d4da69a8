// Mail, fax and the web gateway offered to scripts. The owner component of the suite's routines is left
// out; questions are answered by the request's "answers", and the transports go to the hosts of the
// configuration, which a request may point elsewhere ("config": {"ServidorCorreo": ...}).
#include "apps/nodrim/rutinas.h"
#include "comms/conexion.h"
#include "comms/correo.h"
#include "comms/emaildm.h"
#include "comms/pasarela.h"

namespace nod::lote {

namespace {

bool EnviarEmailLote(const QString& para, const QString& asunto, const QString& cuerpo,
                     const QStringList& adjuntos, const QString& cc, const QString& bcc, bool acuseRecibo) {
    return EnviarEmail(nullptr, para, asunto, cuerpo, adjuntos, cc, bcc, acuseRecibo);
}

// A script has no desktop to open a mail program on: it gets the "mailto:" link the routine would open.
QString EnviarMailLote() {
    return QString::fromLatin1(EnlaceEnviarMail().toEncoded());
}

QStringList EnviarFAXInterFaxLote(const QStringList& documentos, const QStringList& destinatarios,
                                  const QString& password, const QString& usuario,
                                  const QString& ficheroIni) {
    return EnviarFAXInterFax(nullptr, documentos, destinatarios, password, usuario, ficheroIni);
}

} // namespace

void RegistraRutinasComms(Rutinas& r) {
    r.agrega("EnviarEmail", &EnviarEmailLote);
    r.agrega("EnviarMail", &EnviarMailLote);
    r.agrega("EnviarFAXInterFax", &EnviarFAXInterFaxLote);
    // The calculated CLIENTE of TDMEmail for an interested party's client code.
    r.agrega("tbInteresadosCalcFields", &ClienteInteresado);

    r.agrega("CompruebaFicherosPasarela", &CompruebaFicherosPasarela);
    r.agrega("CompruebaFicherosPasarelaParaEnviosUnicos", &CompruebaFicherosPasarelaParaEnviosUnicos);
    r.agrega("DescargaFicherosPasarelaParaEnviosUnicos", &DescargaFicherosPasarelaParaEnviosUnicos);
    r.agrega("DescargaFicherosPasarela", &DescargaFicherosPasarela);
    r.agrega("InstalaPasarela", &InstalaPasarela);
    r.agrega("CompruebaPasarelaWebIni", &CompruebaPasarelaWebIni);
    r.agrega("PuedeActualizarEsteEquipo", &PuedeActualizarEsteEquipo);
    r.agrega("TieneConexionAInternet", &TieneConexionAInternet);
    r.agrega("DameContenidoXML", &DameContenidoXML);
}

} // namespace nod::lote
