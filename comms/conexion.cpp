#include "comms/conexion.h"

#include "comms/red_p.h"
#include "companion/config.h"
#include "companion/equipo.h"
#include "companion/registro.h"

#include <QNetworkAccessManager>
#include <QNetworkInformation>
#include <QNetworkInterface>
#include <memory>

namespace nod {

namespace {
EstadoConexion& estadoFijado() {
    static EstadoConexion e;
    return e;
}
} // namespace

bool EstadoConexionSistema() {
    if (QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
        const auto alcance = QNetworkInformation::instance()->reachability();
        if (alcance != QNetworkInformation::Reachability::Unknown)
            return alcance != QNetworkInformation::Reachability::Disconnected;
    }
    const auto interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& i : interfaces) {
        const auto estado = i.flags();
        if (estado.testFlag(QNetworkInterface::IsUp) && estado.testFlag(QNetworkInterface::IsRunning) &&
            !estado.testFlag(QNetworkInterface::IsLoopBack) && !i.addressEntries().isEmpty())
            return true;
    }
    return false;
}

EstadoConexion FijaEstadoConexion(EstadoConexion estado) {
    return std::exchange(estadoFijado(), std::move(estado));
}

bool TieneConexionAInternet() {
    if (!(estadoFijado() ? estadoFijado()() : EstadoConexionSistema())) {
        qCInfo(lcComms) << "internet connection: the system reports no network";
        return false;
    }
    const QUrl sitio(Config.GetWebFabricante().trimmed());
    if (!sitio.isValid() || sitio.host().isEmpty()) {
        qCWarning(lcComms) << "internet connection: the maker's web site is not an address:" << sitio;
        return false;
    }
    QNetworkAccessManager red;
    QNetworkRequest peticion(sitio);
    peticion.setHeader(QNetworkRequest::UserAgentHeader, QByteArrayLiteral("InetURL:/1.0"));
    peticion.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    peticion.setRawHeader("Cache-Control", "no-cache");
    peticion.setRawHeader("Pragma", "no-cache");
    peticion.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                          QNetworkRequest::NoLessSafeRedirectPolicy);
    peticion.setTransferTimeout(qMax(1, Config.GetEsperaConexionMs()));
    std::unique_ptr<QNetworkReply> respuesta(red.get(peticion));
    bool abierta = false;
    // The headers are enough: the site answered.
    QObject::connect(respuesta.get(), &QNetworkReply::metaDataChanged, respuesta.get(), [&] {
        if (EstadoHttp(*respuesta) == 0) return;
        abierta = true;
        QMetaObject::invokeMethod(respuesta.get(), &QNetworkReply::abort, Qt::QueuedConnection);
    });
    EsperaFin(*respuesta);
    abierta = abierta || EstadoHttp(*respuesta) != 0;
    if (!abierta)
        qCInfo(lcComms) << "internet connection:" << sitio << "did not answer:" << respuesta->errorString();
    return abierta;
}

bool PuedeActualizarEsteEquipo() {
    const QString equipo = Config.GetUsuarioParaActualizar();
    if (equipo == u"TODOS") return true;
    return equipo.toUpper() == DameNombreEquipo().toUpper();
}

} // namespace nod
