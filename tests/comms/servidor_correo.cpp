#include "tests/comms/servidor_correo.h"

#include "companion/config.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace nod::prueba {

ServidorCorreo::ServidorCorreo(const QStringList& opciones) {
    m_proceso.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_proceso.start(u"/usr/bin/python3"_s,
                    QStringList{QStringLiteral(NOD_SOURCE_DIR "/tests/comms/servidor_smtp.py"),
                                u"--carpeta"_s, m_carpeta.path()} +
                        opciones);
    if (!m_proceso.waitForStarted(10000)) {
        m_error = m_proceso.errorString();
        return;
    }
    while (!m_proceso.canReadLine() && m_proceso.waitForReadyRead(15000)) {
    }
    m_puerto = quint16(m_proceso.readLine().trimmed().toUInt());
    if (!m_puerto) m_error = u"the SMTP server did not say its port (is python3-aiosmtpd installed?)"_s;
}

ServidorCorreo::~ServidorCorreo() {
    m_proceso.kill();
    m_proceso.waitForFinished(5000);
}

void ServidorCorreo::apunta() const {
    Config.SetServidorCorreo(u"127.0.0.1"_s);
    Config.SetPuertoCorreo(m_puerto);
    Config.SetSeguridadCorreo(u"NINGUNA"_s);
    Config.SetRemitenteCorreo(u"notaria@example.es"_s);
    Config.SetEsperaCorreoMs(1000);
}

QList<QJsonObject> ServidorCorreo::mensajes() const {
    QList<QJsonObject> r;
    for (int i = 1;; ++i) {
        QFile f(QDir(m_carpeta.path()).filePath(u"mensaje-%1.json"_s.arg(i)));
        if (!f.open(QIODevice::ReadOnly)) break;
        r.append(QJsonDocument::fromJson(f.readAll()).object());
    }
    return r;
}

} // namespace nod::prueba
