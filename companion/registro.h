#pragma once
// Logging categories of the library. Programmers read these; the clerk sees message boxes instead.

#include <QLoggingCategory>

namespace nod {
Q_DECLARE_LOGGING_CATEGORY(lcConfig)
Q_DECLARE_LOGGING_CATEGORY(lcTablas)
Q_DECLARE_LOGGING_CATEGORY(lcFrame)
Q_DECLARE_LOGGING_CATEGORY(lcTexto)
Q_DECLARE_LOGGING_CATEGORY(lcIdent)
Q_DECLARE_LOGGING_CATEGORY(lcProtocolo)
Q_DECLARE_LOGGING_CATEGORY(lcComms)
Q_DECLARE_LOGGING_CATEGORY(lcFicheros)
} // namespace nod
