#include "companion/inifile.h"

#include "companion/codepage.h"
#include "companion/registro.h"

#include <QFile>
#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace nod {

bool IniFile::carga(const QString& ruta) {
    // A file that is not there is told apart from one that cannot be reached (a folder without
    // permission, a link that loops ...): the warning says which, and why.
    struct stat st {};
    if (::stat(QFile::encodeName(ruta).constData(), &st) != 0) {
        const int error = errno;
        if (error == ENOENT || error == ENOTDIR)
            m_avisos << QStringLiteral("%1: no existe; se usan los valores por defecto").arg(ruta);
        else
            m_avisos << QStringLiteral("%1: no se puede leer (%2); se usan los valores por defecto")
                            .arg(ruta, QString::fromLocal8Bit(std::strerror(error)));
        qCWarning(lcConfig).noquote() << m_avisos.last();
        return false;
    }
    QFile f(ruta);
    if (!S_ISREG(st.st_mode) || !f.open(QIODevice::ReadOnly)) {
        m_avisos << QStringLiteral("%1: no se puede leer (%2); se usan los valores por defecto")
                        .arg(ruta,
                             S_ISREG(st.st_mode) ? f.errorString() : QStringLiteral("no es un fichero"));
        qCWarning(lcConfig).noquote() << m_avisos.last();
        return false;
    }
    cargaTexto(Decodifica(f.readAll()), ruta);
    return true;
}

void IniFile::cargaTexto(const QString& texto, const QString& nombre) {
    Seccion* actual = nullptr;
    int malformadas = 0;
    const QStringList lineas = texto.split(QLatin1Char('\n'));
    for (qsizetype n = 0; n < lineas.size(); ++n) {
        const QString linea = lineas[n].trimmed();
        if (linea.isEmpty() || linea.startsWith(QLatin1Char(';')) || linea.startsWith(QLatin1Char('#')))
            continue;
        if (linea.startsWith(QLatin1Char('[')) && linea.endsWith(QLatin1Char(']'))) {
            actual = &m_secciones[linea.mid(1, linea.size() - 2).trimmed().toUpper()];
            continue;
        }
        const qsizetype igual = linea.indexOf(QLatin1Char('='));
        if (igual <= 0 || !actual) {
            if (++malformadas <= kMaxAvisos) {
                m_avisos << QStringLiteral("%1:%2: línea no válida, se ignora: %3")
                                .arg(nombre)
                                .arg(n + 1)
                                .arg(TextoVisible(linea, 60));
                qCWarning(lcConfig).noquote() << m_avisos.last();
            }
            continue;
        }
        const QString clave = linea.left(igual).trimmed();
        const QString claveMayus = clave.toUpper();
        if (!actual->valores.contains(claveMayus)) actual->claves << clave;
        actual->valores.insert(claveMayus, linea.mid(igual + 1).trimmed());
    }
    if (malformadas > kMaxAvisos) {
        m_avisos << QStringLiteral("%1: %2 líneas no válidas más").arg(nombre).arg(malformadas - kMaxAvisos);
        qCWarning(lcConfig).noquote() << m_avisos.last();
    }
}

bool IniFile::contiene(const QString& seccion, const QString& clave) const {
    auto s = m_secciones.constFind(seccion.toUpper());
    return s != m_secciones.cend() && s->valores.contains(clave.toUpper());
}

QString IniFile::valor(const QString& seccion, const QString& clave, const QString& defecto) const {
    auto s = m_secciones.constFind(seccion.toUpper());
    if (s == m_secciones.cend()) return defecto;
    return s->valores.value(clave.toUpper(), defecto);
}

QStringList IniFile::claves(const QString& seccion) const {
    auto s = m_secciones.constFind(seccion.toUpper());
    return s == m_secciones.cend() ? QStringList() : s->claves;
}

} // namespace nod
