#pragma once
// Edits whose text the suite keeps in capitals (series, bis letters, NIE and CIF): `EscribeEnMayusculas`,
// now one of the character filters of companion/filtroteclas.h.

#include "companion/filtroteclas.h"
