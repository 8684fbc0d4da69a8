#include "apps/nodrim/auxiliares.h"

#include <QDir>
#include <QFileInfo>

namespace nod::lote {

QString RutaAuxiliar(const QString& fichero) {
    // The program's own folder, read from the process (no application object is needed).
    const QString programa = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
    const QString junto = programa + u'/' + fichero;
    if (QFileInfo::exists(junto)) return junto;
    return QDir::cleanPath(programa + QStringLiteral("/" NOD_AUXILIARES_DESDE_PROGRAMA "/") + fichero);
}

} // namespace nod::lote
