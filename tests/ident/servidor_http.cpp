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
                if (m_modo == Modo::Cierra)
                    s->abort();
                else if (m_modo == Modo::Responde) {
                    QTimer::singleShot(m_retrasoMs, s, [s, r = m_respuesta] {
                        s->write(r);
                        s->disconnectFromHost();
                    });
                }
            });
        }
    });
}

void ServidorHttp::respondeCon(const QByteArray& cuerpo, int estado, int retrasoMs) {
    m_modo = Modo::Responde;
    m_retrasoMs = retrasoMs;
    m_respuesta = "HTTP/1.1 " + QByteArray::number(estado) + (estado == 200 ? " OK" : " Error") +
                  "\r\nContent-Type: text/xml; charset=utf-8\r\nConnection: close\r\nContent-Length: " +
                  QByteArray::number(cuerpo.size()) + "\r\n\r\n" + cuerpo;
}

quint16 ServidorHttp::puertoCerrado() {
    QTcpServer s;
    s.listen(QHostAddress::LocalHost);
    const quint16 p = s.serverPort();
    s.close();
    return p;
}

} // namespace nod::prueba
