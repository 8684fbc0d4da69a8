#pragma once
// The 8-bit code pages of the office's files. Windows-1252 is the suite's own; dBase tables written by
// older tools may name code page 850 or 437 in their header. Each page maps every byte to exactly one
// UTF-16 unit, so lengths and positions survive the round trip.

#include "nod_core_export.h"

#include <QByteArray>
#include <QString>
#include <optional>

namespace nod NOD_CORE_EXPORT {

enum class CodePage { Windows1252, Cp850, Cp437 };

/// Name of the page as ICU and `.cpg` files spell it ("windows-1252", "IBM850", "IBM437").
const char* NombreCodePage(CodePage cp);

/// Decodes bytes; every byte gives one character (undefined bytes of Windows-1252 keep their C1 value).
QString Decodifica(QByteArrayView bytes, CodePage cp = CodePage::Windows1252);

/// Encodes text; nullopt when a character does not exist in the page, reported in `fallo` (its position).
std::optional<QByteArray> Codifica(QStringView texto, CodePage cp = CodePage::Windows1252,
                                   qsizetype* fallo = nullptr);

/// True when every character of the text exists in the page.
bool CabeEnCodePage(QStringView texto, CodePage cp = CodePage::Windows1252);

} // namespace nod
