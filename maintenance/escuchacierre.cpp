#include "maintenance/escuchacierre.h"

#include "companion/config.h"
#include "companion/registro.h"

#include <QTcpServer>
#include <QTcpSocket>

namespace nod {

TEscuchaCierre::TEscuchaCierre(QObject* parent)
    : QObject(parent)
    , m_servidor(new QTcpServer(this)) {
    connect(m_servidor, &QTcpServer::newConnection, this, &TEscuchaCierre::atiende);
}

TEscuchaCierre::~TEscuchaCierre() = default;

bool TEscuchaCierre::Escucha(int puerto, const QHostAddress& direccion) {
    Deja();
    if (puerto < 0) puerto = Config.GetPuertoActualiz();
    if (puerto < 0 || puerto > 65535) {
        m_error = QStringLiteral("El puerto de actualización %1 no es un puerto TCP").arg(puerto);
        qCWarning(lcComms).noquote() << m_error;
        return false;
    }
    if (m_servidor->listen(direccion, quint16(puerto))) {
        m_error.clear();
        return true;
    }
    m_error = m_servidor->errorString();
    qCWarning(lcComms).noquote() << "cannot listen on the update port" << puerto << ":" << m_error;
    return false;
}

void TEscuchaCierre::Deja() {
    m_servidor->close();
}

bool TEscuchaCierre::Escuchando() const {
    return m_servidor->isListening();
}

quint16 TEscuchaCierre::Puerto() const {
    return m_servidor->isListening() ? m_servidor->serverPort() : 0;
}

QString TEscuchaCierre::Error() const {
    return m_error;
}

void TEscuchaCierre::atiende() {
    while (QTcpSocket* s = m_servidor->nextPendingConnection()) {
        const QString desde = s->peerAddress().toString();
        s->abort();
        s->deleteLater();
        emit CierrePedido(desde);
    }
}

} // namespace nod
