#include "comms/emaildm.h"

#include "companion/config.h"
#include "companion/registro.h"

namespace nod {

QString ClienteInteresado(qint64 codCliente) {
    if (codCliente == 0) return {};
    try {
        const auto clientes = CreaTablaSinExcepcion(Config.GetAliasNodrim(), QStringLiteral("CLIENTES.DBF"),
                                                    QStringLiteral("CODIGO"));
        if (!clientes || !TBBusca(*clientes, {{QStringLiteral("CODIGO"), codCliente}})) return {};
        const QString apellidos = clientes->AsString(QStringLiteral("APELLIDOS")).trimmed();
        const QString nombre = clientes->AsString(QStringLiteral("NOMBRE")).trimmed();
        if (apellidos.isEmpty() || nombre.isEmpty()) return apellidos + nombre;
        return apellidos + QStringLiteral(", ") + nombre;
    } catch (const ErrorTabla& e) {
        qCWarning(lcComms).noquote() << "client of an interested party:" << e.mensaje();
        return {};
    }
}

void TDMEmail::tbInteresadosCalcFields() {
    m_cliente.clear();
    if (!m_interesados || m_interesados->RecNo() == 0) return;
    try {
        m_cliente = ClienteInteresado(m_interesados->AsLargeInt(QStringLiteral("CODCLIENTE")));
    } catch (const ErrorTabla& e) {
        qCWarning(lcComms).noquote() << "interested parties:" << e.mensaje();
    }
}

} // namespace nod
