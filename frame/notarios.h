#pragma once
// The office's notaries and their database aliases.

#include "companion/config.h"
#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The base alias (`GetAliasNotario`) followed by the notary number; notary 0 is written as "1", so
/// notaries 0 and 1 share one alias. Example: AliasNotario(12) == "DBNOTARIO12".
QString AliasNotario(int numero);

/// `AliasNotario` of the selected notary (`sNotario`, text made a number; text that is not one gives 0).
QString AliasNotarioActual();

/// The configured number of notaries, never below 1.
int NumeroDeNotarios();

/// Selects notary `numero` (`SetsNotario`) for the lifetime of the object, so that the per-notary values
/// (initials, invoice headers ...) are that notary's, and puts the configuration back as it was when the
/// object goes, also when an exception passes: the previous notary is selected again with its values as
/// they were in memory.
///
///     {
///         NotarioTemporal deed(2);
///         iniciales = Config.GetNombre_Inicial(); // notary 2's
///     } // notary 1 again
class NotarioTemporal {
public:
    explicit NotarioTemporal(int numero);
    ~NotarioTemporal();
    NotarioTemporal(const NotarioTemporal&) = delete;
    NotarioTemporal& operator=(const NotarioTemporal&) = delete;

private:
    TConfig m_anterior;
};

/// The initials (`Nombre_Inicial`) of notary `numero`, read with that notary selected for the moment
/// (`NotarioTemporal`); an office configured with no notaries (`nCuantos` below 1) gives the current
/// notary's. A notary without a section of its own gives "".
QString InicialesNotario(int numero);

} // namespace nod
