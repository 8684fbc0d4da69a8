#pragma once
// The SMTP server of the mail tests: tests/comms/servidor_smtp.py (aiosmtpd) run with Debian's Python on
// 127.0.0.1 for the life of the object. Each message it accepts comes back as Python's mail parser read it.

#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace nod::prueba {

class ServidorCorreo {
public:
    /// Starts the server with the script's options ("--modo", "calla-datos", "--rechaza", "x@y" ...).
    explicit ServidorCorreo(const QStringList& opciones = {});
    ~ServidorCorreo();
    ServidorCorreo(const ServidorCorreo&) = delete;
    ServidorCorreo& operator=(const ServidorCorreo&) = delete;

    /// 0 when the server could not be started (`error()` says why).
    quint16 puerto() const { return m_puerto; }
    QString error() const { return m_error; }

    /// The messages accepted so far, in order.
    QList<QJsonObject> mensajes() const;

    /// Points the office's mail settings at this server: plain SMTP, sender "notaria@example.es", one
    /// second of wait.
    void apunta() const;

private:
    QTemporaryDir m_carpeta;
    QProcess m_proceso;
    quint16 m_puerto = 0;
    QString m_error;
};

} // namespace nod::prueba
