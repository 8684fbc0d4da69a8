#pragma once
// Logging categories of the library. Programmers read these; the clerk sees message boxes instead.

#include "nod_core_export.h"

#include <QLoggingCategory>
#include <QString>

namespace nod NOD_CORE_EXPORT {
Q_DECLARE_LOGGING_CATEGORY(lcConfig)
Q_DECLARE_LOGGING_CATEGORY(lcTablas)
Q_DECLARE_LOGGING_CATEGORY(lcFrame)
Q_DECLARE_LOGGING_CATEGORY(lcTexto)
Q_DECLARE_LOGGING_CATEGORY(lcIdent)
Q_DECLARE_LOGGING_CATEGORY(lcProtocolo)
Q_DECLARE_LOGGING_CATEGORY(lcComms)
Q_DECLARE_LOGGING_CATEGORY(lcFicheros)

/// A text as a message can quote it whole: control characters (a NUL would end the line for whoever
/// reads the log) written as "\xNN", and, with `maximo` >= 0, cut after that many characters with "…".
///     TextoVisible(u"3\0tres") == "3\x00tres"
QString TextoVisible(QStringView texto, qsizetype maximo = -1);
} // namespace nod
