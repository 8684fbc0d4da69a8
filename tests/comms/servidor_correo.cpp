#include "tests/comms/servidor_correo.h"

#include "companion/config.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

namespace nod::prueba {

ServidorCorreo::ServidorCorreo(const QStringList& opciones) {
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

ServidorCorreo::~ServidorCorreo() {
    m_proceso.kill();
    m_proceso.waitForFinished(5000);
}

void ServidorCorreo::apunta() const {
    Config.SetServidorCorreo(QStringLiteral("127.0.0.1"));
    Config.SetPuertoCorreo(m_puerto);
    Config.SetSeguridadCorreo(QStringLiteral("NINGUNA"));
    Config.SetRemitenteCorreo(QStringLiteral("notaria@example.es"));
    Config.SetEsperaCorreoMs(1000);
}

QList<QJsonObject> ServidorCorreo::mensajes() const {
    QList<QJsonObject> r;
    for (int i = 1;; ++i) {
        QFile f(QDir(m_carpeta.path()).filePath(QStringLiteral("mensaje-%1.json").arg(i)));
        if (!f.open(QIODevice::ReadOnly)) break;
        r.append(QJsonDocument::fromJson(f.readAll()).object());
    }
    return r;
}

} // namespace nod::prueba
