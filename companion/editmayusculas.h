#pragma once
// Edits whose text the suite keeps in capitals as it is typed (series, bis letters, NIE and CIF).

class QLineEdit;

namespace nod {

/// Turns every edit of `e` into capitals (accented letters too), keeping the cursor where it was.
void EscribeEnMayusculas(QLineEdit* e);

} // namespace nod
