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

QString InicialesNotario(int numero) {
    if (Config.GetnCuantos() < 1) return Config.GetNombre_Inicial();
    NotarioTemporal notario(numero);
    return Config.GetNombre_Inicial();
}

NotarioTemporal::NotarioTemporal(int numero)
    : m_anterior(Config) {
    Config.SetsNotario(QString::number(numero));
}

NotarioTemporal::~NotarioTemporal() {
    Config = std::move(m_anterior);
}

} // namespace nod
