#pragma once
// Start-up and shutdown of the library's units. Each unit's start only counts how often it was started
// and its stop how often it was stopped; nothing is opened at start-up.

#include "nod_core_export.h"

#include <QString>
#include <QStringList>

namespace nod NOD_CORE_EXPORT {

/// The library's units, in start-up order.
const QStringList& UnidadesNodRutinas();

/// Runs every unit's start in order / every unit's stop in reverse order.
void IniciaUnidades();
void FinalizaUnidades();

/// How many times a unit was started / stopped (0 for a name that is not a unit).
int VecesIniciada(const QString& unidad);
int VecesFinalizada(const QString& unidad);

/// Starts the units on construction and stops them on destruction, as loading and unloading the library.
class NodRutinasCargada {
public:
    NodRutinasCargada() { IniciaUnidades(); }
    ~NodRutinasCargada() { FinalizaUnidades(); }
    NodRutinasCargada(const NodRutinasCargada&) = delete;
    NodRutinasCargada& operator=(const NodRutinasCargada&) = delete;
};

} // namespace nod
