#include "apps/demo/catalogo.h"

namespace nod::demo {

CatalogoDemo RegistraTodos() {
    CatalogoDemo c;
    RegistraDialogosFrame(c);
    RegistraDialogosIdent(c);
    RegistraDialogosProtocolo(c);
    RegistraDialogosDocumentos(c);
    RegistraDialogosPreguntas(c);
    RegistraDialogosComms(c);
    RegistraDialogosMantenimiento(c);
    return c;
}

} // namespace nod::demo
