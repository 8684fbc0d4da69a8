#include "companion/codepage.h"

#include <QHash>
#include <QStringDecoder>
#include <array>

namespace nod {

namespace {

// One table per page, built once from Qt's converters (ICU on Debian) so the mapping is not hand-kept
// here; decoding is then a plain lookup, fast enough for scanning whole tables.
struct Tabla {
    std::array<char16_t, 256> aUnicode{};
    QHash<char16_t, char> aByte;
};

Tabla construye(CodePage cp) {
    Tabla t;
    QStringDecoder decoder(NombreCodePage(cp));
    for (int b = 0; b < 256; ++b) {
        const char byte = char(b);
        QString s = decoder.isValid() ? decoder.decode(QByteArrayView(&byte, 1)) : QString();
        // The lower half is ASCII in every page the office uses (ICU's IBM pages swap a few control codes).
        char16_t u = b < 0x80 ? char16_t(b) : s.size() == 1 ? s.at(0).unicode() : char16_t(b);
        // Windows-1252 leaves five bytes undefined; they keep their C1 control value, as Windows does.
        if (u == 0xFFFD) u = char16_t(b);
        t.aUnicode[size_t(b)] = u;
        t.aByte.insert(u, byte);
    }
    return t;
}

const Tabla& tabla(CodePage cp) {
    static const Tabla w1252 = construye(CodePage::Windows1252);
    static const Tabla cp850 = construye(CodePage::Cp850);
    static const Tabla cp437 = construye(CodePage::Cp437);
    switch (cp) {
    case CodePage::Cp850:
        return cp850;
    case CodePage::Cp437:
        return cp437;
    case CodePage::Windows1252:
        break;
    }
    return w1252;
}

} // namespace

const char* NombreCodePage(CodePage cp) {
    switch (cp) {
    case CodePage::Cp850:
        return "IBM850";
    case CodePage::Cp437:
        return "IBM437";
    case CodePage::Windows1252:
        break;
    }
    return "windows-1252";
}

QString Decodifica(QByteArrayView bytes, CodePage cp) {
    const Tabla& t = tabla(cp);
    QString out(bytes.size(), Qt::Uninitialized);
    QChar* dst = out.data();
    for (qsizetype i = 0; i < bytes.size(); ++i)
        dst[i] = QChar(t.aUnicode[uchar(bytes[i])]);
    return out;
}

std::optional<QByteArray> Codifica(QStringView texto, CodePage cp, qsizetype* fallo) {
    const Tabla& t = tabla(cp);
    QByteArray out(texto.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const char16_t u = texto[i].unicode();
        if (u < 0x80) {
            out[i] = char(u);
            continue;
        }
        auto it = t.aByte.constFind(u);
        if (it == t.aByte.cend()) {
            if (fallo) *fallo = i;
            return std::nullopt;
        }
        out[i] = *it;
    }
    return out;
}

bool CabeEnCodePage(QStringView texto, CodePage cp) {
    return Codifica(texto, cp).has_value();
}

} // namespace nod
