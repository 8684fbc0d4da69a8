#include "comms/descarga.h"

#include "comms/red_p.h"
#include "companion/config.h"
#include "companion/registro.h"

#include <QNetworkAccessManager>
#include <QSaveFile>
#include <memory>

namespace nod {

namespace {

// A portal that cannot find a file, or wants a login, tends to answer a page of its own with status 200.
bool pareceUnaPagina(const QNetworkReply& r, const QByteArray& inicio) {
    if (r.header(QNetworkRequest::ContentTypeHeader)
            .toString()
            .trimmed()
            .startsWith(u"text/html", Qt::CaseInsensitive))
        return true;
    QByteArray t = inicio.left(512).trimmed().toLower();
    if (t.startsWith("\xef\xbb\xbf")) t = t.mid(3).trimmed();
    return t.startsWith("<!doctype html") || t.startsWith("<html");
}

} // namespace

bool DescargarFichero(const QString& direccion, const QString& ruta, const ProgresoDescarga& progreso) {
    const QUrl url(direccion);
    if (!url.isValid() || (url.scheme() != u"http" && url.scheme() != u"https")) {
        qCWarning(lcComms) << "download: not a web address:" << direccion;
        return false;
    }
    QSaveFile destino(ruta);
    if (!destino.open(QIODevice::WriteOnly)) {
        qCWarning(lcComms) << "download: cannot write" << ruta << ":" << destino.errorString();
        return false;
    }
    const bool esPagina =
        ruta.endsWith(u".htm", Qt::CaseInsensitive) || ruta.endsWith(u".html", Qt::CaseInsensitive);

    QNetworkAccessManager red;
    QNetworkRequest peticion(url);
    peticion.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                          QNetworkRequest::NoLessSafeRedirectPolicy);
    peticion.setMaximumRedirectsAllowed(5);
    peticion.setTransferTimeout(qMax(1, Config.GetEsperaDescargaMs()));
    std::unique_ptr<QNetworkReply> respuesta(red.get(peticion));

    QString fallo;
    qint64 recibidos = 0;
    bool comprobado = false;
    // Writes what has arrived; the first bytes decide whether it is the file at all.
    const auto consume = [&] {
        if (!fallo.isEmpty() || !respuesta->isOpen()) return;
        const QByteArray trozo = respuesta->readAll();
        if (trozo.isEmpty()) return;
        if (!comprobado) {
            comprobado = true;
            const int estado = EstadoHttp(*respuesta);
            if (estado < 200 || estado >= 300)
                fallo = QStringLiteral("HTTP %1").arg(estado);
            else if (!esPagina && pareceUnaPagina(*respuesta, trozo))
                fallo = QStringLiteral("the server answered a web page");
        }
        if (fallo.isEmpty() && destino.write(trozo) != trozo.size()) fallo = destino.errorString();
        recibidos += trozo.size();
    };
    QObject::connect(respuesta.get(), &QNetworkReply::readyRead, respuesta.get(), [&] {
        consume();
        // Abandoned once control is back in the event loop: Qt does not take an abort inside its own signal.
        if (!fallo.isEmpty())
            QMetaObject::invokeMethod(respuesta.get(), &QNetworkReply::abort, Qt::QueuedConnection);
    });
    if (progreso)
        QObject::connect(respuesta.get(), &QNetworkReply::downloadProgress, respuesta.get(),
                         [&](qint64 r, qint64 t) { progreso(r, t); });
    EsperaFin(*respuesta);
    consume();

    const int estado = EstadoHttp(*respuesta);
    const qint64 anunciado = respuesta->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    if (fallo.isEmpty()) {
        if (estado == 0)
            fallo = respuesta->errorString();
        else if (estado < 200 || estado >= 300)
            fallo = QStringLiteral("HTTP %1").arg(estado);
        else if (respuesta->error() != QNetworkReply::NoError)
            fallo = respuesta->errorString();
        else if (anunciado > 0 && recibidos < anunciado)
            fallo = QStringLiteral("connection closed after %1 of %2 bytes").arg(recibidos).arg(anunciado);
        else if (!comprobado && !esPagina && pareceUnaPagina(*respuesta, {}))
            fallo = QStringLiteral("the server answered a web page");
    }
    if (fallo.isEmpty() && !destino.commit()) fallo = destino.errorString();
    if (!fallo.isEmpty()) {
        destino.cancelWriting();
        qCWarning(lcComms).noquote() << "download of" << direccion << "into" << ruta << "failed:" << fallo;
        return false;
    }
    qCInfo(lcComms).noquote() << "downloaded" << direccion << "into" << ruta << "(" << recibidos << "bytes)";
    return true;
}

} // namespace nod
