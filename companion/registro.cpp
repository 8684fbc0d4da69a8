#include "companion/registro.h"

namespace nod {
Q_LOGGING_CATEGORY(lcConfig, "nod.config")
Q_LOGGING_CATEGORY(lcTablas, "nod.tablas")
Q_LOGGING_CATEGORY(lcFrame, "nod.frame")
Q_LOGGING_CATEGORY(lcTexto, "nod.texto")
Q_LOGGING_CATEGORY(lcIdent, "nod.ident")
Q_LOGGING_CATEGORY(lcProtocolo, "nod.protocolo")
Q_LOGGING_CATEGORY(lcComms, "nod.comms")
Q_LOGGING_CATEGORY(lcFicheros, "nod.ficheros")
} // namespace nod
