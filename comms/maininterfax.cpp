#include "comms/maininterfax.h"

#include "comms/red_p.h"
#include "companion/config.h"
#include "companion/errores.h"
#include "companion/inifile.h"
#include "companion/registro.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHttpMultiPart>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeDatabase>
#include <QNetworkAccessManager>
#include <QUrl>
#include <memory>

namespace nod {

namespace {

struct Documento {
    QString nombre; // ASCII, for the service's part header
    QByteArray tipo;
    QByteArray datos;
};

// The options a job's initialisation file may set, as the service's query parameters.
QByteArray opcionesDelIni(const QString& ficheroIni) {
    IniFile ini;
    ini.carga(RutaFicheroSuite(ficheroIni));
    const QString seccion = QStringLiteral("INTERFAX");
    QByteArray q;
    const auto agrega = [&q](const char* nombre, const QString& valor) {
        q += QByteArray("&") + nombre + '=' + QUrl::toPercentEncoding(valor);
    };
    if (const QString csid = ini.valor(seccion, QStringLiteral("CSID")).trimmed(); !csid.isEmpty())
        agrega("csid", csid.left(20));
    if (const QString cabecera = ini.valor(seccion, QStringLiteral("Cabecera")).trimmed();
        !cabecera.isEmpty())
        agrega("pageHeader", cabecera);
    if (ini.contiene(seccion, QStringLiteral("Reintentos"))) {
        bool ok = false;
        const int n = ini.valor(seccion, QStringLiteral("Reintentos")).trimmed().toInt(&ok);
        if (ok && n >= 0 && n <= 6)
            agrega("retriesToPerform", QString::number(n));
        else
            qCWarning(lcComms) << "fax: Reintentos in" << ficheroIni
                               << "is not 0 to 6; the service's default applies";
    }
    return q;
}

// The number as the service takes it: digits with an optional leading "+"; empty when it is not one.
QString numeroFax(const QString& escrito) {
    QString n;
    for (QChar c : escrito.trimmed()) {
        if (c.isDigit() && c.unicode() < 0x80)
            n += c;
        else if (c == u'+' && n.isEmpty())
            n += c;
        else if (!QStringView(u" -./()").contains(c))
            return {};
    }
    const qsizetype cifras = n.size() - (n.startsWith(u'+') ? 1 : 0);
    return cifras >= 3 && cifras <= 20 ? n : QString();
}

QList<Documento> leeDocumentos(const QStringList& documentos) {
    const QMimeDatabase tipos;
    QList<Documento> r;
    for (const QString& ruta : documentos) {
        QFile f(ruta);
        if (!QFileInfo(ruta).isFile() || !f.open(QIODevice::ReadOnly))
            throw ErrorEnvio(
                QStringLiteral(
                    "No se encuentra o no se puede leer el documento «%1». El fax no se ha enviado.")
                    .arg(ruta));
        QString nombre = QFileInfo(ruta).fileName();
        for (QChar& c : nombre)
            if (c.unicode() < 0x20 || c.unicode() > 0x7E || c == u'"' || c == u'\\') c = u'_';
        r.append({nombre, tipos.mimeTypeForFile(ruta, QMimeDatabase::MatchExtension).name().toLatin1(),
                  f.readAll()});
    }
    return r;
}

// What the service said about a refusal: the "message" of its JSON error, else the start of its text.
QString motivoServicio(int estado, const QByteArray& cuerpo) {
    QString detalle = QJsonDocument::fromJson(cuerpo).object().value(QStringLiteral("message")).toString();
    if (detalle.isEmpty()) detalle = QString::fromUtf8(cuerpo.left(200)).simplified();
    return detalle.isEmpty() ? QStringLiteral("HTTP %1").arg(estado)
                             : QStringLiteral("HTTP %1: %2").arg(estado).arg(detalle);
}

// Posts the job to one number; the fax's identifier, or the reason it was not accepted in `fallo`.
QString envia(QNetworkAccessManager& red, const QUrl& url, const QByteArray& autorizacion,
              const QList<Documento>& documentos, QString& fallo) {
    QNetworkRequest peticion(url);
    peticion.setRawHeader("Authorization", autorizacion);
    peticion.setTransferTimeout(qMax(1, Config.GetEsperaFAXMs()));
    auto* cuerpo = new QHttpMultiPart(QHttpMultiPart::MixedType);
    for (const Documento& d : documentos) {
        QHttpPart parte;
        parte.setHeader(QNetworkRequest::ContentTypeHeader, d.tipo);
        parte.setRawHeader("Content-Disposition", "attachment; filename=\"" + d.nombre.toLatin1() + '"');
        parte.setBody(d.datos);
        cuerpo->append(parte);
    }
    std::unique_ptr<QNetworkReply> respuesta(red.post(peticion, cuerpo));
    cuerpo->setParent(respuesta.get());
    EsperaFin(*respuesta);
    const int estado = EstadoHttp(*respuesta);
    const QByteArray leido = respuesta->isOpen() ? respuesta->readAll() : QByteArray();
    if (estado >= 200 && estado < 300) {
        const QString ubicacion = QString::fromUtf8(respuesta->rawHeader("Location"));
        return ubicacion.mid(ubicacion.lastIndexOf(u'/') + 1);
    }
    fallo = estado ? motivoServicio(estado, leido) : MotivoSinRespuesta(*respuesta, Config.GetEsperaFAXMs());
    return {};
}

} // namespace

QString RutaFicheroSuite(const QString& ruta) {
    if (ruta.size() >= 2 && ruta[1] == u':') return Config.RutaUnidadC(ruta);
    const QString nativa = QString(ruta).replace(u'\\', u'/');
    return QDir::isAbsolutePath(nativa) ? nativa : QDir(Config.CarpetaOficina()).filePath(nativa);
}

QStringList FAX(QObject*, const QStringList& documentos, const QStringList& destinatarios,
                const QString& password, const QString& usuario, const QString& ficheroIni) {
    if (documentos.isEmpty()) throw ErrorEnvio(QStringLiteral("No hay ningún documento que enviar por fax."));
    if (destinatarios.isEmpty())
        throw ErrorEnvio(QStringLiteral("No hay ningún número de fax al que enviar."));
    if (usuario.isEmpty())
        throw ErrorEnvio(
            QStringLiteral("No se ha configurado la cuenta del servicio de fax (CONFIG.INI, sección "
                           "INTERFAX). El fax no se ha enviado."));
    QStringList numeros;
    for (const QString& d : destinatarios) {
        numeros.append(numeroFax(d));
        if (numeros.last().isEmpty())
            throw ErrorEnvio(
                QStringLiteral("«%1» no es un número de fax válido. El fax no se ha enviado a nadie.")
                    .arg(d));
    }
    const QList<Documento> docs = leeDocumentos(documentos);
    const QByteArray opciones = opcionesDelIni(ficheroIni);
    const QByteArray autorizacion = "Basic " + (usuario + u':' + password).toUtf8().toBase64();

    const QUrl servicio(Config.GetServidorFAX().trimmed() + QStringLiteral("/outbound/faxes"));
    if (!servicio.isValid() || !servicio.scheme().startsWith(u"http") || servicio.host().isEmpty())
        throw ErrorEnvio(
            QStringLiteral("La dirección del servicio de fax configurada «%1» no es válida. El fax no "
                           "se ha enviado.")
                .arg(Config.GetServidorFAX()));

    QNetworkAccessManager red;
    QStringList identificadores;
    for (qsizetype i = 0; i < numeros.size(); ++i) {
        QUrl url = servicio;
        url.setQuery(QString::fromLatin1("faxNumber=" + QUrl::toPercentEncoding(numeros[i]) + opciones),
                     QUrl::StrictMode);
        QString fallo;
        const QString id = envia(red, url, autorizacion, docs, fallo);
        if (fallo.isEmpty()) {
            qCInfo(lcComms) << "fax" << id << "submitted to" << numeros[i];
            identificadores.append(id);
            continue;
        }
        qCWarning(lcComms) << "fax to" << numeros[i] << "failed:" << fallo;
        QString texto =
            QStringLiteral("No se ha podido enviar el fax al %1 (%2).").arg(destinatarios[i], fallo);
        if (i > 0)
            texto += QStringLiteral(" Sí se ha enviado a: %1.")
                         .arg(destinatarios.mid(0, i).join(QStringLiteral(", ")));
        if (i + 1 < destinatarios.size())
            texto += QStringLiteral(" No se ha enviado a: %1.")
                         .arg(destinatarios.mid(i + 1).join(QStringLiteral(", ")));
        throw ErrorEnvio(texto);
    }
    return identificadores;
}

} // namespace nod
