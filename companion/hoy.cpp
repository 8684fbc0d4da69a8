#include "companion/hoy.h"

#include <cmath>

namespace nod {

namespace {
std::optional<TDateTime> g_ahoraFijo;
}

TDateTime Now() {
    return g_ahoraFijo ? *g_ahoraFijo : QDateTimeToTDateTime(QDateTime::currentDateTime());
}

TDateTime Date() {
    return std::trunc(Now());
}

void FijaAhora(std::optional<TDateTime> ahora) {
    g_ahoraFijo = ahora;
}

} // namespace nod
