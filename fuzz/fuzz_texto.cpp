// Feeds arbitrary text to the routines that parse or reshape what users type: none may crash, hang or
// touch memory it does not own. The first byte chooses the routine; the rest is UTF-8 text (invalid
// sequences become replacement characters, as text pasted from anywhere would).
#include "fuzz/semillas.h"
#include "text/fechas.h"
#include "text/formatos.h"
#include "text/lecturanumeros.h"
#include "text/letras.h"
#include "text/limpieza.h"
#include "text/mayusculas.h"
#include "text/moneda.h"

#include <QString>
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>

using namespace nod;
using namespace std::string_literals;

// Seeds: dates and numbers in words, letter-spaced text, grouped digits.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    const auto carpeta = fuzz::CarpetaCorpus(*argc, *argv);
    if (!carpeta) return 0;
    const std::pair<const char*, std::string> semillas[] = {
        {"fecha_es", "\001quince de marzo del a\303\261o dos mil diez."s},
        {"fecha_ca", "\002quinze d'abril de l'any  dos mil deu"s},
        {"numero_es", "\000mil novecientos noventa y nueve"s},
        {"numero_ca", "\200nou cents noranta i nou"s},
        {"puntos", "\003-1234567.89"s},
        {"espaciado", "\004E S C R I T U R A"s},
        {"capital", "\005MARIA-JOSE DE LA FUENTE"s},
    };
    for (const auto& [nombre, bytes] : semillas)
        fuzz::EscribeSemilla(*carpeta, nombre, bytes);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    if (largo == 0) return 0;
    const uint8_t rutina = datos[0];
    const QString texto = QString::fromUtf8(reinterpret_cast<const char*>(datos + 1), qsizetype(largo - 1));
    switch (rutina % 9) {
    case 0:
        ConvierteNumeroDeCadenaAEnteroNod(texto, rutina & 0x80);
        break;
    case 1:
        TraduceFechaNod(texto);
        break;
    case 2:
        TraduceFechaCatalan(texto);
        break;
    case 3:
        PuntosNod(texto, rutina & 0x80);
        break;
    case 4:
        QuitaEspaciosIntermedios(texto);
        break;
    case 5:
        CapitalCase(texto);
        break;
    case 6: {
        // The same bytes read as a double, for the words of numbers and amounts.
        double x = 0;
        std::memcpy(&x, datos + 1, std::min(sizeof x, largo - 1));
        LetrasDecimalNod(x, rutina >> 4, u'F', u'S');
        LetrasPorCientoNod(x, u'N', u'N');
        FormateaCantidad(texto.left(3), x);
        FormateaNumero(texto.left(4), x);
        break;
    }
    case 7: {
        qint64 n = 0;
        std::memcpy(&n, datos + 1, std::min(sizeof n, largo - 1));
        LetrasNod(n, u'M', u'N', rutina & 0x80);
        QString grupo;
        SeisCifrasNod(texto, grupo, u'F', true);
        break;
    }
    case 8: {
        double f = 0;
        std::memcpy(&f, datos + 1, std::min(sizeof f, largo - 1));
        FormateaFecha(texto.left(3), f, rutina & 0x80);
        break;
    }
    }
    return 0;
}
