#pragma once
// The buffer the words and figures of amounts are written into: it lives on the stack and becomes a
// QString once, in one allocation, however many pieces the text is made of. Invoices write an amount in
// words and figures on every line, so the text is built without intermediate strings.

#include "nod_core_export.h"

#include <QString>
#include <algorithm>
#include <cstring>
#include <string_view>

namespace nod NOD_CORE_EXPORT {

class Texto {
public:
    /// The longest text written here is the figure of the largest double, about 420 characters; an amount
    /// that large has no words, and any amount with words has a short figure.
    static constexpr size_t kCapacidad = 1024;

    Texto() = default;
    Texto(const Texto&) = delete;
    Texto& operator=(const Texto&) = delete;

    /// Pieces that would not fit are dropped whole (none of the writers comes near the capacity).
    void anade(std::u16string_view v) {
        if (v.size() > kCapacidad - m_n) return;
        std::memcpy(m_d + m_n, v.data(), v.size() * sizeof(char16_t));
        m_n += v.size();
    }
    void anade(char16_t c) {
        if (m_n < kCapacidad) m_d[m_n++] = c;
    }
    /// ASCII text, such as the digits of a figure.
    void anadeAscii(std::string_view v) {
        if (v.size() > kCapacidad - m_n) return;
        for (char c : v)
            m_d[m_n++] = char16_t(static_cast<unsigned char>(c));
    }

    size_t size() const { return m_n; }
    void chop(size_t n) { m_n -= std::min(n, m_n); }
    char16_t* data() { return m_d; }
    QString qstring() const { return QString(reinterpret_cast<const QChar*>(m_d), qsizetype(m_n)); }

private:
    char16_t m_d[kCapacidad];
    size_t m_n = 0;
};

} // namespace nod
