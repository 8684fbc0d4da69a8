#pragma once
// TDMEmail: the data module of the e-mail editor, whose table of a deed's interested parties
// (`tbInteresados`) shows each party's client name in the calculated field CLIENTE.

#include "nod_core_export.h"
#include "tables/tablas.h"

#include <QString>
#include <memory>

namespace nod NOD_CORE_EXPORT {

/// The name of client `codCliente` as the interested parties show it: "APELLIDOS, NOMBRE" from
/// "CLIENTES.DBF" of the suite's database (`AliasNodrim`, tag "CODIGO"). With one of the two names blank
/// only the other is given, without the comma; an unknown client, a code 0 or a table that cannot be read
/// (logged) give "".
///     ClienteInteresado(7) is "GARCÍA LÓPEZ, MARÍA" when client 7 is María García López
QString ClienteInteresado(qint64 codCliente);

class TDMEmail {
public:
    /// The interested parties' table: any table with a numeric field CODCLIENTE, opened by the caller.
    void AsignaInteresados(std::unique_ptr<TTabla> tabla) { m_interesados = std::move(tabla); }
    TTabla* tbInteresados() const { return m_interesados.get(); }

    /// Computes CLIENTE for the current interested party: cleared, then `ClienteInteresado` of the row's
    /// CODCLIENTE. Without a table or a current row it stays empty.
    void tbInteresadosCalcFields();

    /// The calculated field.
    const QString& CLIENTE() const { return m_cliente; }

private:
    std::unique_ptr<TTabla> m_interesados;
    QString m_cliente;
};

} // namespace nod
