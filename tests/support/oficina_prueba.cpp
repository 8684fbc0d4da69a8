#include "tests/support/oficina_prueba.h"

#include "companion/codepage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nod::prueba {

OficinaPrueba::OficinaPrueba(const QString& configIni, const QString& variosIni)
    : m_anterior(Config) {
    escribe(QStringLiteral("CONFIG/CONFIG.INI"), configIni);
    escribe(QStringLiteral("CONFIG/VARIOS.INI"), variosIni);
    recarga();
}

OficinaPrueba::~OficinaPrueba() {
    Config = m_anterior;
}

QString OficinaPrueba::ruta(const QString& relativa) const {
    return relativa.isEmpty() ? m_dir.path() : QDir(m_dir.path()).filePath(relativa);
}

void OficinaPrueba::escribe(const QString& relativa, const QString& texto) const {
    const QString destino = ruta(relativa);
    QDir().mkpath(QFileInfo(destino).absolutePath());
    QFile f(destino);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) f.write(Codifica(texto).value_or(QByteArray()));
}

QString OficinaMuestra() {
    return QStringLiteral(NOD_SOURCE_DIR "/sample-office");
}

} // namespace nod::prueba
