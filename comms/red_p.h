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

} // namespace nod
