#include "ident/domicilio.h"

#include "companion/config.h"
#include "companion/registro.h"
#include "companion/rnumcad.h"
#include "tables/tablas.h"
#include "text/recorte.h"

#include <QHash>
#include <QRegularExpression>
#include <cmath>

namespace nod {

namespace {

// A number with two decimals, "," decimal mark and "." thousands (the picture "0,.00").
QString conDosDecimales(double v) {
    const qint64 centimos = qint64(std::llround(std::fabs(v) * 100));
    const QString entera = AgrupaMiles(QString::number(centimos / 100));
    return (v < 0 && centimos ? QStringLiteral("-") : QString()) + entera + QLatin1Char(',') +
           QStringLiteral("%1").arg(centimos % 100, 2, 10, QLatin1Char('0'));
}

// A whole number written with an optional sign and digits only.
bool esEntero(const QString& s, qint64& n) {
    static const QRegularExpression kEntero(QStringLiteral("^[+-]?[0-9]{1,18}$"));
    if (!kEntero.match(s).hasMatch()) return false;
    n = s.toLongLong();
    return true;
}

QString valor(const TTabla& t, const char* campo) {
    return Trim(t.AsString(QLatin1String(campo)));
}

} // namespace

QString Planta(const QString& s) {
    const QString u = UpperCase(s);
    static const QHash<QString, QString> kPalabras = {{QStringLiteral("+2"), QStringLiteral("sobreático")},
                                                      {QStringLiteral("+1"), QStringLiteral("ático")},
                                                      {QStringLiteral("-1"), QStringLiteral("sótano")},
                                                      {QStringLiteral("-2"), QStringLiteral("sótano 2º")},
                                                      {QStringLiteral("EN"), QStringLiteral("entreplanta")},
                                                      {QStringLiteral("PR"), QStringLiteral("principal")},
                                                      {QStringLiteral("SS"), QStringLiteral("semisótano")}};
    if (const auto it = kPalabras.constFind(u); it != kPalabras.cend()) return *it;
    qint64 n = 0;
    if (esEntero(u, n))
        return n == 0 ? QStringLiteral("planta baja")
                      : QStringLiteral("planta ") + AgrupaMiles(QString::number(n)) + QStringLiteral("ª");
    return u;
}

QString Escalera_Bloque(const QString& s) {
    const QString u = UpperCase(s);
    static const QHash<QString, QString> kPalabras = {{QStringLiteral("DR"), QStringLiteral("derecha")},
                                                      {QStringLiteral("IZ"), QStringLiteral("izquierda")},
                                                      {QStringLiteral("CN"), QStringLiteral("centro")},
                                                      {QStringLiteral("NO"), QStringLiteral("norte")},
                                                      {QStringLiteral("SU"), QStringLiteral("sur")},
                                                      {QStringLiteral("ES"), QStringLiteral("este")},
                                                      {QStringLiteral("OE"), QStringLiteral("oeste")}};
    return kPalabras.value(u, u);
}

QString DomicilioClienteCompleto(const TTabla& t, int longitudMaxima, bool conPoblacion) {
    QString r;
    const auto anade = [&r](const QString& prefijo, const QString& v, const QString& sufijo = {}) {
        if (!v.isEmpty()) r += prefijo + v + sufijo;
    };
    if (!t.AsBoolean(QStringLiteral("RESIDENTE"))) {
        for (const char* c : {"EST_NO_NOR", "POB_NO_NOR", "DIR_NO_NOR", "NUM_NO_NOR", "DIS_NO_NOR"}) {
            const QString v = valor(t, c);
            if (!v.isEmpty()) r += (r.isEmpty() ? QString() : QStringLiteral(", ")) + v;
        }
        const QString pais = valor(t, "PAIS");
        if (!pais.isEmpty())
            r += (r.isEmpty() ? QStringLiteral("(") : QStringLiteral(", (")) + pais + QLatin1Char(')');
    } else {
        const QString via = valor(t, "TIPO_VIA");
        r = via.isEmpty() ? valor(t, "DOMICILIO") : via + QLatin1Char(' ') + valor(t, "DOMICILIO");
        // Each part carries its prefix even when nothing precedes it, as the suite has always written it.
        anade(QStringLiteral(", Nº "), valor(t, "NUMERO"));
        anade(QStringLiteral(", "), valor(t, "DUPLICADO"));
        anade(QStringLiteral(", Blq. "), valor(t, "BLOQUE"), QStringLiteral("º"));
        anade(QStringLiteral(", Esc. "), valor(t, "ESCALERA"));
        anade(QStringLiteral(", Plt. "), valor(t, "PLANTA"), QStringLiteral("ª"));
        anade(QStringLiteral(", Piso: "), valor(t, "PISO"));
        anade(QStringLiteral(", "), valor(t, "RESTO"));
        const double km = t.AsFloat(QStringLiteral("APROX_KM"));
        if (km != 0) r += QStringLiteral(", ") + conDosDecimales(km);
        anade(QStringLiteral(", "), valor(t, "PEDANIA"));
        if (conPoblacion) {
            anade(QStringLiteral(", CP: "), valor(t, "CODPOSTAL"));
            anade(QStringLiteral(", "), valor(t, "VECINDAD"));
            anade(QStringLiteral(", "), valor(t, "PROV"));
            anade(QStringLiteral(", ("), valor(t, "PAIS"), QStringLiteral(")"));
        }
    }
    if (longitudMaxima >= 1) r.truncate(longitudMaxima);
    return r;
}

QString DomicilioClienteCompletoPorCodigo(qint64 codigo, int longitudMaxima, bool conPoblacion) {
    try {
        auto tb =
            CreaTabla(Config.GetAliasNodrim(), QStringLiteral("CLIENTES.DBF"), QStringLiteral("CODIGO"));
        if (TBBusca(*tb, {{QStringLiteral("CODIGO"), codigo}}))
            return DomicilioClienteCompleto(*tb, longitudMaxima, conPoblacion);
    } catch (const ErrorNod& e) {
        qCWarning(lcIdent).noquote() << e.mensaje();
    }
    return {};
}

} // namespace nod
