#include "companion/equipo.h"

#include <QSysInfo>

namespace nod {

QString DameNombreEquipo() {
    const QString nombre = QSysInfo::machineHostName();
    const qsizetype punto = nombre.indexOf(u'.');
    return punto > 0 ? nombre.left(punto) : nombre;
}

} // namespace nod
