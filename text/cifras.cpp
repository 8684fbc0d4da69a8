#include "text/cifras.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace nod {

Cifras::Cifras(double x) {
    if (!std::isfinite(x) || x == 0) {
        m_entera = "0";
        return;
    }
    const auto res = std::to_chars(m_buf, m_buf + sizeof m_buf, std::fabs(x), std::chars_format::fixed);
    const std::string_view s(m_buf, size_t(res.ptr - m_buf));
    m_negativo = x < 0;
    const size_t punto = s.find('.');
    m_entera = s.substr(0, punto);
    if (punto != std::string_view::npos) m_decimal = s.substr(punto + 1);
}

qint64 ValorDigitos(std::string_view digitos, int maximo) {
    const size_t primero = std::min(digitos.find_first_not_of('0'), digitos.size());
    digitos.remove_prefix(primero);
    if (digitos.size() > size_t(maximo)) return -1;
    qint64 v = 0;
    for (char c : digitos)
        v = 10 * v + (c - '0');
    return v;
}

qint64 ValorDigitosRellenos(std::string_view digitos, qint64 cuantos, int maximo) {
    if (cuantos <= 0) return 0;
    std::string_view cabeza = digitos.substr(0, size_t(std::min<qint64>(cuantos, qint64(digitos.size()))));
    const size_t primero = cabeza.find_first_not_of('0');
    if (primero == std::string_view::npos) return 0; // zeros, and the padding is zeros too
    if (cuantos - qint64(primero) > maximo) return -1;
    qint64 v = ValorDigitos(cabeza, maximo);
    for (qint64 k = qint64(cabeza.size()); k < cuantos; ++k)
        v *= 10;
    return v;
}

} // namespace nod
