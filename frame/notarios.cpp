#include "frame/notarios.h"

#include "companion/config.h"

namespace nod {

QString AliasNotario(int numero) {
    return Config.GetAliasNotario() + QString::number(numero == 0 ? 1 : numero);
}

QString AliasNotarioActual() {
    return AliasNotario(Config.GetsNotario().trimmed().toInt());
}

int NumeroDeNotarios() {
    return qMax(1, Config.GetnCuantos());
}

} // namespace nod
