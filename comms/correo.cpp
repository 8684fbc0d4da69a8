#include "comms/correo.h"

#include "comms/maininterfax.h"
#include "comms/sendmail.h"
#include "companion/config.h"
#include "companion/mensajes.h"

#include <QUrlQuery>
#include <memory>

namespace nod {

namespace {
const QString kFaltanDatos = QStringLiteral("Atención, faltan datos");
const QString kEnviarIgualmente = QStringLiteral("¿Desea enviarlo de todas formas?");
} // namespace

QStringList PartesDestinatarios(const QString& lista, const QString& prefijo) {
    QStringList partes;
    QString resto = lista;
    while (!resto.isEmpty()) {
        const qsizetype punto = resto.indexOf(QLatin1Char(';'));
        partes.append(prefijo + (punto < 0 ? resto : resto.left(punto)));
        resto = punto < 0 ? QString() : resto.mid(punto + 1);
    }
    return partes;
}

bool EnviarEmail(QObject* propietario, const QString& para, const QString& asunto, const QString& cuerpo,
                 const QStringList& adjuntos, const QString& cc, const QString& bcc, bool acuseRecibo,
                 const std::function<bool()>& cancelada) {
    if (para.isEmpty()) {
        Mensaje_Info(QStringLiteral("Debe indicar un destinatario en el cuadro Para"), kFaltanDatos);
        return false;
    }
    if (asunto.isEmpty() &&
        Mensaje_SiNo(kEnviarIgualmente, QStringLiteral("Mensaje sin asunto"), kFaltanDatos) != 1)
        return false;
    if (cuerpo.isEmpty() &&
        Mensaje_SiNo(kEnviarIgualmente, QStringLiteral("Mensaje con  el cuerpo vacío"), kFaltanDatos) != 1)
        return false;

    const auto correo = std::make_unique<TMAPIMail>();
    correo->Subject = asunto;
    correo->Body = cuerpo;
    correo->Recipients = PartesDestinatarios(para, QStringLiteral("smtp:")) +
                         PartesDestinatarios(cc, QStringLiteral("CC:")) +
                         PartesDestinatarios(bcc, QStringLiteral("BCC:"));
    correo->Attachments = adjuntos;
    correo->AcuseRecibo = acuseRecibo;
    correo->Cancelada = cancelada;
    correo->Send();
    return true;
}

QUrl EnlaceEnviarMail() {
    QUrl enlace;
    enlace.setScheme(QStringLiteral("mailto"));
    enlace.setPath(Config.GetCorreoFabricante().trimmed());
    QUrlQuery consulta;
    consulta.addQueryItem(QStringLiteral("subject"), QStringLiteral("Notario rectificación"));
    enlace.setQuery(consulta);
    return enlace;
}

QStringList EnviarFAXInterFax(QObject* propietario, const QStringList& documentos,
                              const QStringList& destinatarios, const QString& password,
                              const QString& usuario, const QString& ficheroIni) {
    const bool dado = !usuario.isEmpty();
    return FAX(propietario, documentos, destinatarios, dado ? password : Config.GetsPasswordFAX(),
               dado ? usuario : Config.GetsUsuarioFAX(),
               ficheroIni.isEmpty() ? QStringLiteral("CONFIG\\VARIOS.INI") : ficheroIni);
}

} // namespace nod
