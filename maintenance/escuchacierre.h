#pragma once
// The other end of the closing procedure (clasecierranodrims.h): every program of the suite listens on
// the update port, and a connection arriving there tells it to close before an update. Nothing is read
// or written: the connection itself is the message.
//
//     TEscuchaCierre escucha;
//     QObject::connect(&escucha, &TEscuchaCierre::CierrePedido, &ventana, &QWidget::close);
//     escucha.Escucha(); // Config.GetPuertoActualiz(), every address

#include <QHostAddress>
#include <QObject>

class QTcpServer;

namespace nod {

class TEscuchaCierre : public QObject {
    Q_OBJECT
public:
    explicit TEscuchaCierre(QObject* parent = nullptr);
    ~TEscuchaCierre() override;

    /// Starts listening on `puerto` at `direccion`: -1 the configured update port (`GetPuertoActualiz`),
    /// 0 a free port the system chooses (see `Puerto`). False when the port cannot be had (taken by
    /// another program, no right to it, not a TCP port): the reason goes to the log and `Error` gives it.
    /// Listening again first stops the earlier listening.
    bool Escucha(int puerto = -1, const QHostAddress& direccion = QHostAddress::Any);
    /// Stops listening; connections already told stay told.
    void Deja();
    bool Escuchando() const;
    /// The port listened on, 0 when not listening.
    quint16 Puerto() const;
    QString Error() const;

signals:
    /// A workstation asked this program to close; `desde` is its address. Emitted once per connection,
    /// after the connection has been accepted and closed.
    void CierrePedido(const QString& desde);

private:
    void atiende();
    QTcpServer* m_servidor;
    QString m_error;
};

} // namespace nod
