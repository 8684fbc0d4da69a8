#pragma once
// The SMTP server of the mail tests: tests/comms/servidor_smtp.py (aiosmtpd) run with Debian's Python on
// 127.0.0.1 for the life of the object. Each message it accepts comes back as Python's mail parser read it.

#include "companion/config.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <nlohmann/json.hpp>

namespace nod::prueba {

class ServidorCorreo {
public:
    /// Starts the server with the script's options ("--modo", "calla-datos", "--rechaza", "x@y" ...).
    explicit ServidorCorreo(const QStringList& opciones = {}) {
        m_proceso.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_proceso.start(QStringLiteral("/usr/bin/python3"),
                        QStringList{QStringLiteral(NOD_SOURCE_DIR "/tests/comms/servidor_smtp.py"),
                                    QStringLiteral("--carpeta"), m_carpeta.path()} +
                            opciones);
        if (!m_proceso.waitForStarted(10000)) {
            m_error = m_proceso.errorString();
            return;
        }
        while (!m_proceso.canReadLine() && m_proceso.waitForReadyRead(15000)) {
        }
        m_puerto = quint16(m_proceso.readLine().trimmed().toUInt());
        if (!m_puerto)
            m_error = QStringLiteral("the SMTP server did not say its port (is python3-aiosmtpd installed?)");
    }
    ~ServidorCorreo() {
        m_proceso.kill();
        m_proceso.waitForFinished(5000);
    }
    ServidorCorreo(const ServidorCorreo&) = delete;
    ServidorCorreo& operator=(const ServidorCorreo&) = delete;

    /// 0 when the server could not be started (`error()` says why).
    quint16 puerto() const { return m_puerto; }
    QString error() const { return m_error; }

    /// The messages accepted so far, in order.
    QList<QJsonObject> mensajes() const {
        QList<QJsonObject> r;
        for (int i = 1;; ++i) {
            QFile f(QDir(m_carpeta.path()).filePath(QStringLiteral("mensaje-%1.json").arg(i)));
            if (!f.open(QIODevice::ReadOnly)) return r;
            r.append(QJsonDocument::fromJson(f.readAll()).object());
        }
    }

    /// Points the office's mail settings at this server: plain SMTP, sender "notaria@example.es", one
    /// second of wait.
    void apunta() const {
        Config.SetServidorCorreo(QStringLiteral("127.0.0.1"));
        Config.SetPuertoCorreo(m_puerto);
        Config.SetSeguridadCorreo(QStringLiteral("NINGUNA"));
        Config.SetRemitenteCorreo(QStringLiteral("notaria@example.es"));
        Config.SetEsperaCorreoMs(1000);
    }
    /// The same settings as the "config" of a `nodrim batch` request, with three seconds of wait.
    nlohmann::json configuracion() const {
        return {{"ServidorCorreo", "127.0.0.1"},
                {"PuertoCorreo", m_puerto},
                {"SeguridadCorreo", "NINGUNA"},
                {"RemitenteCorreo", "notaria@example.es"},
                {"EsperaCorreoMs", 3000}};
    }

private:
    QTemporaryDir m_carpeta;
    QProcess m_proceso;
    quint16 m_puerto = 0;
    QString m_error;
};

} // namespace nod::prueba
