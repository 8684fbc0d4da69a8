#include "tests/ident/servidor_http.h"

#include <QTcpSocket>
#include <QTimer>

namespace nod::prueba {

ServidorHttp::ServidorHttp() {
    m_servidor.listen(QHostAddress::LocalHost);
    connect(&m_servidor, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* s = m_servidor.nextPendingConnection()) {
            s->setParent(this);
            auto buffer = std::make_shared<QByteArray>();
            connect(s, &QTcpSocket::readyRead, this, [this, s, buffer] {
                *buffer += s->readAll();
                const qsizetype fin = buffer->indexOf("\r\n\r\n");
                if (fin < 0) return;
                PeticionHttp p;
                const QList<QByteArray> lineas = buffer->left(fin).split('\n');
                const QList<QByteArray> primera = lineas.value(0).trimmed().split(' ');
                p.metodo = primera.value(0);
                p.ruta = primera.value(1);
                for (qsizetype i = 1; i < lineas.size(); ++i) {
                    const qsizetype dos = lineas[i].indexOf(':');
                    if (dos > 0)
                        p.cabeceras.insert(lineas[i].left(dos).trimmed().toLower(),
                                           lineas[i].mid(dos + 1).trimmed());
                }
                const qsizetype largo = p.cabeceras.value("content-length").toLongLong();
                if (buffer->size() < fin + 4 + largo) return;
                p.cuerpo = buffer->mid(fin + 4, largo);
                buffer->clear();
                m_peticiones.append(p);
                atiende(s, p);
            });
        }
    });
}

void ServidorHttp::atiende(QTcpSocket* s, const PeticionHttp& p) {
    if (m_modo == Modo::Cierra) {
        s->abort();
        return;
    }
    if (m_modo == Modo::Calla) return;
    RespuestaHttp r = m_respuesta;
    if (!m_cola.empty()) {
        r = m_cola.front();
        m_cola.pop_front();
    } else if (auto it = m_porRuta.constFind(p.ruta.split('?').front()); it != m_porRuta.cend()) {
        r = *it;
    }
    QByteArray cabecera = "HTTP/1.1 " + QByteArray::number(r.estado) + (r.estado < 300 ? " OK" : " Error") +
                          "\r\nContent-Type: " + r.tipo +
                          "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(r.cuerpo.size()) +
                          "\r\n";
    for (const auto& [nombre, valor] : r.cabeceras)
        cabecera += nombre + ": " + valor + "\r\n";
    cabecera += "\r\n" + (r.corta ? r.cuerpo.left(r.cuerpo.size() / 2) : r.cuerpo);
    QTimer::singleShot(r.retrasoMs, s, [s, bytes = std::move(cabecera), corta = r.corta] {
        s->write(bytes);
        if (corta) {
            s->flush();
            s->abort();
        } else {
            s->disconnectFromHost();
        }
    });
}

void ServidorHttp::respondeCon(const RespuestaHttp& r) {
    m_modo = Modo::Responde;
    m_respuesta = r;
}

quint16 ServidorHttp::puertoCerrado() {
    QTcpServer s;
    s.listen(QHostAddress::LocalHost);
    const quint16 p = s.serverPort();
    s.close();
    return p;
}

} // namespace nod::prueba
