#pragma once
// Key comparison over record bytes, shared by index orders, searches, ranges and filters. Character
// fields compare as their bytes in the table's code page without trailing blanks (the machine order of a
// dBase index without collation); numeric, float, date and logical fields compare as numbers.

#include "nod_core_export.h"
#include "tables/dbfdatos.h"

#include <QVariant>
#include <algorithm>
#include <cstring>

namespace nod NOD_CORE_EXPORT {

/// Compares a character field's bytes (trailing blanks dropped) with a text in the table's page: by bytes,
/// the shorter first on a tie; `parcial`: equal when the field begins with the text.
inline int ComparaBytesDbf(QByteArrayView campo, QByteArrayView texto, bool parcial) {
    const qsizetype n = std::min(campo.size(), texto.size());
    // Codes are a few bytes long: compared here byte by byte rather than through a call.
    if (n <= 16) {
        for (qsizetype i = 0; i < n; ++i)
            if (campo[i] != texto[i]) return uchar(campo[i]) < uchar(texto[i]) ? -1 : 1;
    } else if (const int c = std::memcmp(campo.data(), texto.data(), size_t(n)); c != 0) {
        return c;
    }
    if (parcial && texto.size() <= campo.size()) return 0;
    return campo.size() < texto.size() ? -1 : campo.size() > texto.size() ? 1 : 0;
}

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
inline int ComparaCampo(const DatosDbf& datos, int fila, int campo, const ValorPreparado& valor,
                        bool parcial) {
    switch (valor.clase) {
    case ValorPreparado::Clase::Numero: {
        const double x = datos.numero(fila, campo);
        return x < valor.numero ? -1 : x > valor.numero ? 1 : 0;
    }
    case ValorPreparado::Clase::Texto:
        return ComparaBytesDbf(datos.crudo(fila, campo), valor.texto, parcial);
    case ValorPreparado::Clase::Imposible:
        break;
    }
    return -1;
}

} // namespace nod
