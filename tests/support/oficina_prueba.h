#pragma once
// A throw-away office for a test: a temporary folder with CONFIG/CONFIG.INI and CONFIG/VARIOS.INI
// written from the given texts (Windows-1252), loaded into the global Config; the previous
// configuration is restored when the office goes out of scope.

#include "companion/config.h"

#include <QString>
#include <QTemporaryDir>

namespace nod::prueba {

class OficinaPrueba {
public:
    explicit OficinaPrueba(const QString& configIni = {}, const QString& variosIni = {});
    ~OficinaPrueba();

    QString ruta(const QString& relativa = {}) const;
    /// Writes a file under the office (Windows-1252), creating its folders.
    void escribe(const QString& relativa, const QString& texto) const;
    void recarga() const { Config.Carga(m_dir.path()); }

private:
    QTemporaryDir m_dir;
    TConfig m_anterior;
};

/// The bundled sample office of the source tree.
QString OficinaMuestra();

} // namespace nod::prueba
