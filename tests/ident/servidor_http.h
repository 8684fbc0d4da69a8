#pragma once
// A small HTTP server on 127.0.0.1 for the tests that talk to web services: it records each request
// (method, path, headers, body) and answers with the bytes it was given, or not at all.

#include <QByteArray>
#include <QMap>
#include <QTcpServer>

namespace nod::prueba {

struct PeticionHttp {
    QByteArray metodo, ruta, cuerpo;
    QMap<QByteArray, QByteArray> cabeceras; // names in lower case
};

class ServidorHttp : public QObject {
public:
    enum class Modo { Responde, Calla, Cierra };

    ServidorHttp();
    quint16 puerto() const { return m_servidor.serverPort(); }
    QString base() const { return QStringLiteral("http://127.0.0.1:%1").arg(puerto()); }

    /// The next answers: a status line and headers are added around `cuerpo`; each is sent `retrasoMs`
    /// after its request has arrived (a slow peer), or at once.
    void respondeCon(const QByteArray& cuerpo, int estado = 200, int retrasoMs = 0);
    /// Accept the request and never answer (the client must give up by itself).
    void calla() { m_modo = Modo::Calla; }
    /// Close the connection as soon as the request has arrived, with no answer.
    void cierra() { m_modo = Modo::Cierra; }

    const QList<PeticionHttp>& peticiones() const { return m_peticiones; }

    /// A port on 127.0.0.1 where nothing listens.
    static quint16 puertoCerrado();

private:
    void atiende(QTcpSocket* s);
    QTcpServer m_servidor;
    Modo m_modo = Modo::Responde;
    QByteArray m_respuesta;
    int m_retrasoMs = 0;
    QList<PeticionHttp> m_peticiones;
};

} // namespace nod::prueba
