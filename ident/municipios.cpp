#include "ident/municipios.h"

#include "companion/config.h"
#include "companion/registro.h"
#include "companion/rnumcad.h"
#include "tables/tablas.h"
#include "text/recorte.h"

#include <algorithm>

namespace nod {

namespace {

const QString kMunicipi = QStringLiteral("MUNICIPI.DBF");
const QString kCodIne = QStringLiteral("COD_INE");
const QString kNombre = QStringLiteral("NOMBRE");
const QString kEntMenor = QStringLiteral("ENT_MENOR");

std::unique_ptr<TTabla> abre(const QString& indice) {
    return CreaTabla(Config.GetAliasNodrim(), kMunicipi, indice);
}

QString campo(const TTabla& tb, const QString& nombre) {
    return Trim(tb.AsString(nombre));
}

// Whether the current row is still one of INE code `ine`.
bool mismoCodigo(const TTabla& tb, const QString& ine) {
    return !tb.Eof() && campo(tb, kCodIne) == ine;
}

QString rellena(const QString& s, int ancho) {
    return s.size() >= ancho ? s : QString(ancho - s.size(), QLatin1Char('0')) + s;
}

bool vacioOCeros(const QString& s, const char* ceros) {
    return s.isEmpty() || s == QLatin1String(ceros);
}

} // namespace

QString BusquedaMunicipio(const QString& provincia, const QString& municipio) {
    try {
        auto tb = abre(QStringLiteral("CPROVMUN"));
        if (TBBusca(*tb,
                    {{QStringLiteral("COD_PROV"), Trim(provincia)}, {QStringLiteral("COD_MUN"), municipio}}))
            return campo(*tb, kNombre);
    } catch (const ErrorNod& e) {
        qCWarning(lcIdent).noquote() << e.mensaje();
    }
    return {};
}

QString BusquedaCodIne(bool incluyeMenores, const QString& nombre, const QString& provincia) {
    // The province goes into the text of the filter as it is given, so it must be a code and nothing
    // more: any other text ("99 OR COD_PROV=28") is no province and finds nothing.
    if (!std::all_of(provincia.begin(), provincia.end(),
                     [](QChar c) { return EsUnNumero(c) || c == u' '; })) {
        qCWarning(lcIdent).noquote() << QStringLiteral("BusquedaCodIne: la provincia \"%1\" no es un código")
                                            .arg(TextoVisible(provincia, 40));
        return {};
    }
    QString filtro;
    if (!incluyeMenores) filtro = QStringLiteral("ENT_MENOR=False");
    if (!provincia.isEmpty()) {
        if (!filtro.isEmpty()) filtro += QStringLiteral(" AND ");
        filtro += QStringLiteral("COD_PROV = ") + provincia;
    }
    try {
        auto tb = abre(kNombre);
        TBFiltra(*tb, filtro);
        if (TBBusca(*tb, {{kNombre, Trim(nombre)}})) return campo(*tb, kCodIne);
    } catch (const ErrorNod& e) {
        qCWarning(lcIdent).noquote() << e.mensaje();
    }
    return {};
}

QString Cod_MunToNombre(const QString& ine, const QString& prov, const QString& mun,
                        const QString& nombreEntidad) {
    const QString ine5 = rellena(ine, 5), prov3 = rellena(prov, 3), mun4 = rellena(mun, 4);
    if (vacioOCeros(ine5, "00000") || vacioOCeros(prov3, "000") || vacioOCeros(mun4, "0000")) return {};
    QString resultado;
    try {
        auto tb = abre(kCodIne);
        if (TBBusca(*tb, {{kCodIne, ine5}})) {
            while (mismoCodigo(*tb, ine5) && tb->AsBoolean(kEntMenor))
                tb->Next();
            if (mismoCodigo(*tb, ine5)) resultado = campo(*tb, kNombre);
        }
        if (!nombreEntidad.isEmpty()) {
            tb->First();
            if (TBBusca(*tb, {{kCodIne, ine5}})) {
                while (mismoCodigo(*tb, ine5) && campo(*tb, kNombre) != nombreEntidad)
                    tb->Next();
                if (mismoCodigo(*tb, ine5)) resultado = campo(*tb, kNombre);
            }
        }
    } catch (const ErrorNod& e) {
        qCWarning(lcIdent).noquote() << e.mensaje();
    }
    return resultado;
}

QString CompruebaEntidadMenor(const QString& ine, const QString& nombre, QString& codMun,
                              QString& nombreMunicipio) {
    codMun = QStringLiteral("0000");
    if (Trim(ine).isEmpty()) return {};
    QString resultado;
    try {
        auto tb = abre(kCodIne);
        const QString buscado = nombre.left(30);
        if (!TBBusca(*tb, {{kCodIne, ine}})) return {};
        while (mismoCodigo(*tb, ine) && campo(*tb, kNombre).left(30) != buscado)
            tb->Next();
        if (!mismoCodigo(*tb, ine)) return {};
        codMun = campo(*tb, QStringLiteral("COD_MUN"));
        if (!tb->AsBoolean(kEntMenor)) return {};
        resultado = campo(*tb, kNombre);
        tb->First();
        if (TBBusca(*tb, {{kCodIne, ine}})) {
            while (mismoCodigo(*tb, ine) && tb->AsBoolean(kEntMenor))
                tb->Next();
            if (mismoCodigo(*tb, ine)) {
                codMun = campo(*tb, QStringLiteral("COD_MUN"));
                nombreMunicipio = campo(*tb, kNombre);
            }
        }
    } catch (const ErrorNod& e) {
        qCWarning(lcIdent).noquote() << e.mensaje();
    }
    return resultado;
}

QString PoblacionFormateada(const QString& s) {
    QString t = s;
    for (const QChar c : {QLatin1Char('-'), QLatin1Char(' '), QLatin1Char('/')})
        t.replace(c, QLatin1Char('*'));
    static const char* const kArticulos[] = {"(O)",  "(AS)", "(LAS)", "(LOS)", "(EL)",
                                             "(LA)", "(L')", "(A)",   "(ELS)"};
    for (const char* articulo : kArticulos) {
        const qsizetype p = t.indexOf(QLatin1String(articulo));
        if (p >= 0)
            t = t.left(qMax<qsizetype>(0, p - 1)); // also the "*" that stood for the blank before the mark
    }
    return QLatin1Char('*') + t + QLatin1Char('*');
}

} // namespace nod
