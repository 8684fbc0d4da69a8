#pragma once
// The digits of a double as `Float_Cad` writes them (shortest exact decimal digits), split into sign,
// integer and decimal digits without building strings: the words and figures of amounts are written on
// every line of an invoice, so they avoid the allocations of going through text.

#include "nod_core_export.h"

#include <QtGlobal>
#include <string_view>

namespace nod NOD_CORE_EXPORT {

class Cifras {
public:
    /// NaN and infinities read as 0, as `Float_Cad` writes them.
    explicit Cifras(double x);
    Cifras(const Cifras&) = delete;
    Cifras& operator=(const Cifras&) = delete;

    bool negativo() const { return m_negativo; }
    std::string_view entera() const { return m_entera; }   // "0" for a zero integer part
    std::string_view decimal() const { return m_decimal; } // empty when there is none

private:
    char m_buf[512];
    bool m_negativo = false;
    std::string_view m_entera, m_decimal;
};

/// The value of a run of decimal digits, or -1 when it has more than `maximo` significant digits.
qint64 ValorDigitos(std::string_view digitos, int maximo);

/// The value of `digitos` cut or padded with zeros on the right to `cuantos` digits, or -1 when that has
/// more than `maximo` significant digits: ("05", 3) reads 50, ("567", 2) reads 56.
qint64 ValorDigitosRellenos(std::string_view digitos, qint64 cuantos, int maximo);

} // namespace nod
