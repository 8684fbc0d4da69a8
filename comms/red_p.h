#pragma once
// What the routines that talk HTTP (fax, downloads, the connection test) share: waiting for an answer in a
// local event loop, so the screen keeps painting while the user-interface thread waits.

#include <QEventLoop>
#include <QNetworkReply>

namespace nod {

/// Runs a local event loop until `respuesta` has finished (answered, failed, timed out or aborted).
inline void EsperaFin(QNetworkReply& respuesta) {
    if (respuesta.isFinished()) return;
    QEventLoop bucle;
    QObject::connect(&respuesta, &QNetworkReply::finished, &bucle, &QEventLoop::quit);
    bucle.exec();
}

/// The HTTP status of an answer, 0 when none came.
inline int EstadoHttp(const QNetworkReply& respuesta) {
    return respuesta.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// Why no answer came, in Spanish for the clerk; `esperaMs` is the wait that was given.
inline QString MotivoSinRespuesta(const QNetworkReply& respuesta, int esperaMs) {
    switch (respuesta.error()) {
    case QNetworkReply::ConnectionRefusedError:
        return QStringLiteral("conexión rechazada");
    case QNetworkReply::RemoteHostClosedError:
        return QStringLiteral("el servidor ha cerrado la conexión sin responder");
    case QNetworkReply::HostNotFoundError:
        return QStringLiteral("no se encuentra el servidor");
    case QNetworkReply::TimeoutError:
    case QNetworkReply::OperationCanceledError:
        return QStringLiteral("sin respuesta en %1 s").arg((esperaMs + 999) / 1000);
    default:
        return respuesta.errorString();
    }
}

} // namespace nod
