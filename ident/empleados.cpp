#include "ident/empleados.h"

#include "companion/config.h"
#include "companion/registro.h"
#include "tables/tablas.h"
#include "text/recorte.h"

namespace nod {

namespace {

QString campoDe(const QString& fichero, const QString& indice, const QString& clave, int valor,
                const QString& campo) {
    try {
        auto tb = CreaTabla(Config.GetAliasNodrim(), fichero, indice);
        if (TBBusca(*tb, {{clave, valor}}) && tb->TieneCampo(campo)) return Trim(tb->AsString(campo));
    } catch (const ErrorNod& e) {
        qCWarning(lcIdent).noquote() << e.mensaje();
    }
    return {};
}

} // namespace

QString Empleado(int codigo, const QString& campo) {
    return campoDe(QStringLiteral("EMPLEADO.DBF"), QStringLiteral("CODUSER"), QStringLiteral("CODUSER"),
                   codigo, campo);
}

QString Sustituto(int numero, const QString& campo) {
    return campoDe(QStringLiteral("SUSTIT.DBF"), QStringLiteral("NUMERO"), QStringLiteral("NUMEROSUST"),
                   numero, campo);
}

} // namespace nod
