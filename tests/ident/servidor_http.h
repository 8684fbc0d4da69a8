#pragma once
// A small HTTP server on 127.0.0.1 for the tests that talk to web services (the cadastre, the fax service,
// the maker's portal): it records each request (method, path, headers, body) and answers with the bytes it
// was given, or not at all, or cuts its answer short.

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPair>
#include <QTcpServer>
#include <deque>

namespace nod::prueba {

struct PeticionHttp {
    QByteArray metodo, ruta, cuerpo;        // `ruta` with its query, as sent
    QMap<QByteArray, QByteArray> cabeceras; // names in lower case
};

/// One answer: status, type and body, with any further headers. `corta` sends the headers and half of the
/// body (the full length announced) and then closes the connection. `retrasoMs` delays the answer after
/// its request has arrived (a slow peer).
struct RespuestaHttp {
    int estado = 200;
    int retrasoMs = 0;
    QByteArray cuerpo{};
    QByteArray tipo = "text/xml; charset=utf-8";
    QList<QPair<QByteArray, QByteArray>> cabeceras{};
    bool corta = false;
};

class ServidorHttp : public QObject {
public:
    enum class Modo { Responde, Calla, Cierra };

    ServidorHttp();
    quint16 puerto() const { return m_servidor.serverPort(); }
    QString base() const { return QStringLiteral("http://127.0.0.1:%1").arg(puerto()); }

    /// The next answers: a status line and headers are added around `cuerpo`; each is sent `retrasoMs`
    /// after its request has arrived, or at once.
    void respondeCon(const QByteArray& cuerpo, int estado = 200, int retrasoMs = 0) {
        RespuestaHttp r;
        r.estado = estado;
        r.cuerpo = cuerpo;
        r.retrasoMs = retrasoMs;
        respondeCon(r);
    }
    /// The answer to every request that has none of its own (`respondeEn`, `encola`).
    void respondeCon(const RespuestaHttp& r);
    /// The answer to the requests for `ruta` (the path, without the query).
    void respondeEn(const QByteArray& ruta, const RespuestaHttp& r) { m_porRuta.insert(ruta, r); }
    /// Answers given once each, in order, to the next requests, before any other.
    void encola(const RespuestaHttp& r) { m_cola.push_back(r); }
    /// Accept the request and never answer (the client must give up by itself).
    void calla() { m_modo = Modo::Calla; }
    /// Close the connection as soon as the request has arrived, with no answer.
    void cierra() { m_modo = Modo::Cierra; }

    const QList<PeticionHttp>& peticiones() const { return m_peticiones; }

    /// A port on 127.0.0.1 where nothing listens.
    static quint16 puertoCerrado();

private:
    void atiende(QTcpSocket* s, const PeticionHttp& p);
    QTcpServer m_servidor;
    Modo m_modo = Modo::Responde;
    RespuestaHttp m_respuesta;
    QMap<QByteArray, RespuestaHttp> m_porRuta;
    std::deque<RespuestaHttp> m_cola;
    QList<PeticionHttp> m_peticiones;
};

} // namespace nod::prueba
