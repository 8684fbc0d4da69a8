#include "ident/paises.h"

#include "companion/config.h"
#include "companion/registro.h"
#include "companion/rnumcad.h"
#include "tables/tablas.h"
#include "text/recorte.h"

namespace nod {

namespace {

const QString kProvin = QStringLiteral("PROVIN.DBF");

// One lookup in PROVIN: the tag, the filter, the key; the trimmed value of `campo` of the row found, or
// `defecto` when there is no row, the value is blank, or the table cannot be read (logged).
QString buscaEnProvin(const QString& indice, const QString& filtro, const TClaves& clave,
                      const QString& campo, const QString& defecto) {
    try {
        auto tb = CreaTabla(Config.GetAliasNodrim(), kProvin, indice);
        TBFiltra(*tb, filtro);
        if (TBBusca(*tb, clave)) {
            const QString v = Trim(tb->AsString(campo));
            if (!v.isEmpty()) return v;
        }
    } catch (const ErrorNod& e) {
        qCWarning(lcIdent).noquote() << e.mensaje();
    }
    return defecto;
}

QString porNombre(const QString& nombre, const QString& campo, const QString& defecto) {
    const QString n = Trim(nombre);
    if (n.isEmpty()) return defecto;
    return buscaEnProvin(QStringLiteral("ALFABETICO"), QStringLiteral("GRUPO='2'"),
                         {{QStringLiteral("PROVINCIA"), n}}, campo, defecto);
}

} // namespace

QString Cod_PaisBOE(const QString& nombre) {
    return porNombre(nombre, QStringLiteral("BOE_161299"), QStringLiteral("999"));
}
QString Cod_PaisISO3166(const QString& nombre) {
    return porNombre(nombre, QStringLiteral("ISO3166_13"), QStringLiteral("ESP"));
}
QString Cod_PaisCodigo(const QString& nombre) {
    return porNombre(nombre, QStringLiteral("CODIGO"), QStringLiteral("999"));
}

QString Cod_PaisISO3166PorCodigo(const QString& codigo) {
    const int n = Cad_Int(codigo);
    if (n < 100) return QStringLiteral("ESP");
    return buscaEnProvin(QStringLiteral("CODIGO"), {}, {{QStringLiteral("CODIGO"), n}},
                         QStringLiteral("ISO3166_13"), QStringLiteral("ESP"));
}

QString Cod_PaisToNombre(const QString& codigo) {
    const int n = Cad_Int(Trim(codigo));
    if (n == 0) return QStringLiteral("999");
    return buscaEnProvin(QStringLiteral("CODIGO"), QStringLiteral("GRUPO='2'"),
                         {{QStringLiteral("CODIGO"), n}}, QStringLiteral("PROVINCIA"), QStringLiteral("999"));
}

QString Cod_ProvToNombre(const QString& codigo) {
    if (codigo.isEmpty() || codigo == QLatin1String("000")) return {};
    // The code goes to the key as it is; a numeric key field reads it as a number ("028" is 28).
    return buscaEnProvin(QStringLiteral("CODIGO"), QStringLiteral("GRUPO='1'"),
                         {{QStringLiteral("CODIGO"), codigo}}, QStringLiteral("PROVINCIA"), {});
}

QString Cod_ISO3166_13ToNombre(const QString& iso) {
    try {
        auto tb = CreaTabla(Config.GetAliasNodrim(), kProvin, QStringLiteral("ALFABETICO"));
        const int cIso = tb->IndiceCampo(QStringLiteral("ISO3166_13"));
        for (tb->First(); !tb->Eof(); tb->Next())
            if (Trim(tb->AsString(cIso)) == iso) {
                const QString v = Trim(tb->AsString(QStringLiteral("PROVINCIA")));
                return v.isEmpty() ? QStringLiteral("ESPAÑA") : v;
            }
    } catch (const ErrorNod& e) {
        qCWarning(lcIdent).noquote() << e.mensaje();
    }
    return QStringLiteral("ESPAÑA");
}

QString DameCodPais_BOE2003_12_23_Anexo11_grupo3____a_partir_del_codigo_grupo2(int codigo) {
    try {
        auto porCodigo = CreaTabla(Config.GetAliasNodrim(), kProvin, QStringLiteral("CODIGO"));
        auto porNombre = CreaTabla(Config.GetAliasNodrim(), kProvin, QStringLiteral("ALFABETICO"));
        if (!TBBusca(*porCodigo, {{QStringLiteral("CODIGO"), codigo}})) return {};
        for (; !porCodigo->Eof() && porCodigo->AsInteger(QStringLiteral("CODIGO")) == codigo;
             porCodigo->Next()) {
            const QString nombre = Trim(porCodigo->AsString(QStringLiteral("PROVINCIA")));
            if (!TBBusca(*porNombre, {{QStringLiteral("PROVINCIA"), nombre}})) continue;
            for (; !porNombre->Eof() && Trim(porNombre->AsString(QStringLiteral("PROVINCIA"))) == nombre;
                 porNombre->Next())
                if (porNombre->AsInteger(QStringLiteral("GRUPO")) == 3)
                    return Trim(porNombre->AsString(QStringLiteral("COD_198")));
        }
    } catch (const ErrorNod& e) {
        qCWarning(lcIdent).noquote() << e.mensaje();
    }
    return {};
}

} // namespace nod
