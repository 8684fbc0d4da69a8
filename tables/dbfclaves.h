#pragma once
// Key comparison over record bytes, shared by index orders, searches, ranges and filters. Character
// fields compare as their bytes in the table's code page without trailing blanks (the machine order of a
// dBase index without collation); numeric, float, date and logical fields compare as numbers.

#include "tables/dbfdatos.h"

#include <QVariant>

namespace nod {

/// Compares a character field's bytes (trailing blanks dropped) with a text in the table's page: by bytes,
/// the shorter first on a tie; `parcial`: equal when the field begins with the text.
int ComparaBytesDbf(QByteArrayView campo, QByteArrayView texto, bool parcial);

/// A search value made ready for one field.
struct ValorPreparado {
    enum class Clase { Texto, Numero, Imposible } clase = Clase::Imposible; // Imposible: matches nothing
    QByteArray texto;
    double numero = 0;
};

/// True for fields that compare as numbers.
inline bool CampoNumerico(char tipo) {
    return tipo == 'N' || tipo == 'F' || tipo == 'D' || tipo == 'L';
}

/// Converts `valor` for comparison with field `campo`: a text for a character field is encoded in the
/// table's page (a character it lacks can match nothing); for a numeric field a number, or a text holding
/// one; for a date field a QDate, a QDateTime or a serial; for a logical field a Boolean (or "T"/"F").
ValorPreparado PreparaValor(const DatosDbf& datos, int campo, const QVariant& valor);

/// Compares the field of a record with a prepared value: negative, 0 or positive as the field is less,
/// equal or greater. `parcial`: a text value equals any field that begins with it.
int ComparaCampo(const DatosDbf& datos, int fila, int campo, const ValorPreparado& valor, bool parcial);

} // namespace nod
