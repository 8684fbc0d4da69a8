#include "frame/colores.h"

namespace nod {

namespace {

constexpr TColor kPlata = 0xC0C0C0;

struct Esquema {
    int numero;
    TColor max, min, maxMen, minMen;
};

// Scheme 5 is not one of them: it falls to silver like any other unknown number.
constexpr Esquema kEsquemas[] = {
    {1, 0x8C0000, 0xFF1515, 0xA20000, 0xFFB546}, {2, 0x4B9667, 0x9DBFA7, 0x064105, 0xB4FEA9},
    {3, 0x0051A2, 0x0070DF, 0x0051A2, 0x0070DF}, {4, 0xC0C0C0, 0xC0C0C0, 0x13386C, 0x8DE6F8},
    {6, 0x808080, 0xC0C0C0, 0xC0C0C0, 0xC0C0C0},
};

constexpr Esquema kDesconocido = {0, kPlata, kPlata, kPlata, kPlata};

const Esquema& esquema(int numero) {
    for (const Esquema& e : kEsquemas)
        if (e.numero == numero) return e;
    return kDesconocido;
}

} // namespace

TColor GetMaxColor(int numero) {
    return esquema(numero).max;
}
TColor GetMinColor(int numero) {
    return esquema(numero).min;
}
TColor GetMaxColorMen(int numero) {
    return esquema(numero).maxMen;
}
TColor GetMinColorMen(int numero) {
    return esquema(numero).minMen;
}

} // namespace nod
