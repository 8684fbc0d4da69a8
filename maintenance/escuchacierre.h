#pragma once
// The other end of the closing procedure (clasecierranodrims.h): every program of the suite listens on
// the update port, and a connection arriving there tells it to close before an update. Nothing is read
// or written: the connection itself is the message.
//
//     TEscuchaCierre escucha;
//     QObject::connect(&escucha, &TEscuchaCierre::CierrePedido, &ventana, &QWidget::close);
//     escucha.Escucha(); // Config.GetPuertoActualiz(), every address
//
// Served by the program's event loop; written on the system's sockets (POSIX), as TConexionTcp is.

#include "nod_core_export.h"

#include <QObject>
#include <QString>

class QSocketNotifier;

namespace nod NOD_CORE_EXPORT {

class TEscuchaCierre : public QObject {
    Q_OBJECT
public:
    explicit TEscuchaCierre(QObject* parent = nullptr);
    ~TEscuchaCierre() override;

    /// Starts listening on `puerto` at `direccion` (an IPv4 or IPv6 address; "0.0.0.0" every IPv4
    /// address): -1 the configured update port (`GetPuertoActualiz`), 0 a free port the system chooses
    /// (see `Puerto`). False when the port cannot be had (taken by another program, no right to it, not a
    /// TCP port, an address that is not one): the reason goes to the log and `Error` gives it. Listening
    /// again first stops the earlier listening.
    bool Escucha(int puerto = -1, const QString& direccion = QStringLiteral("0.0.0.0"));
    /// Stops listening; connections already told stay told.
    void Deja();
    bool Escuchando() const { return m_fd >= 0; }
    /// The port listened on, 0 when not listening.
    quint16 Puerto() const;
    QString Error() const { return m_error; }

signals:
    /// A workstation asked this program to close; `desde` is its address. Emitted once per connection,
    /// after the connection has been accepted and closed.
    void CierrePedido(const QString& desde);

private:
    bool falla(const QString& motivo);
    void atiende();

    int m_fd = -1;
    QSocketNotifier* m_aviso = nullptr;
    QString m_error;
};

} // namespace nod
