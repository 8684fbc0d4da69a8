#include "ident/atributos.h"

#include "companion/rnumcad.h"

#include <array>

namespace nod {

namespace {

struct EstadoCivil {
    const char16_t* hombre;
    const char16_t* mujer;
    const char16_t* home; // Catalan, man
    const char16_t* dona; // Catalan, woman
};

constexpr std::array<EstadoCivil, 7> kEstadosCiviles = {{
    {u"casado", u"casada", u"casat", u"casada"},
    {u"casado en segundas nupcias", u"casada en segundas nupcias", u"casat en segones núpcies",
     u"casada en segones núpcies"},
    {u"divorciado", u"divorciada", u"divorciat", u"divorciada"},
    {u"separado judicial", u"separada judicial", u"separat judicial", u"separada judicial"},
    {u"soltero", u"soltera", u"solter", u"soltera"},
    {u"viudo", u"viuda", u"vidu", u"vídua"},
    {u"pareja de hecho", u"pareja de hecho", u"parella de fet", u"parella de fet"},
}};

struct Regimen {
    const char16_t* castellano;
    const char16_t* catalan;
};

constexpr std::array<Regimen, 3> kRegimenes = {{
    {u"gananciales", u"guanys"},
    {u"separación de bienes", u"separació de béns"},
    {u"participación", u"participació"},
}};

constexpr std::array<const char16_t*, 26> kTiposJuridicos = {
    u"ESTADO",
    u"COMUNIDAD AUTÓNOMA",
    u"DIPUTACIÓN PROVINCIAL",
    u"CABILDO",
    u"MANCOMUNIDAD",
    u"AYUNTAMIENTO",
    u"ENTIDAD LOCAL MENOR",
    u"SOCIEDAD ANÓNIMA",
    u"SOCIEDAD LIMITADA",
    u"SOCIEDAD COLECTIVA",
    u"SOCIEDAD ANÓNIMA LABORAL",
    u"COOPERATIVA",
    u"CAJA DE AHORROS",
    u"MUTUA",
    u"AGRUPACIÓN DE INTERÉS ECONÓMICO",
    u"A.E.I.E.",
    u"F.I.M.",
    u"F.I.A.M.",
    u"F.P.",
    u"S.A.T.",
    u"COMANDITARIA SIMPLE",
    u"COMANDITARIA POR ACCIONES",
    u"ASOCIACIÓN",
    u"FUNDACIÓN",
    u"OTRAS",
    u"SOCIEDAD LIMITADA LABORAL",
};

constexpr int kSociedadColectiva = 10;

} // namespace

QString DecodificaEstadoCivil(int codigo, const QString& sexo, bool catalan) {
    if (codigo < 1 || codigo > int(kEstadosCiviles.size())) return {};
    const EstadoCivil& e = kEstadosCiviles[codigo - 1];
    const bool mujer = sexo == u"M";
    if (catalan) return QString::fromUtf16(mujer ? e.dona : e.home);
    return QString::fromUtf16(mujer ? e.mujer : e.hombre);
}

int CodificaEstadoCivil(const QString& s) {
    const QString t = UpperCase(s);
    for (int i = 0; i < int(kEstadosCiviles.size()); ++i)
        if (t == UpperCase(QString::fromUtf16(kEstadosCiviles[i].hombre)) ||
            t == UpperCase(QString::fromUtf16(kEstadosCiviles[i].mujer)))
            return i + 1;
    return 0;
}

QString DecodificaRegimen(int codigo, bool catalan) {
    if (codigo < 1 || codigo > int(kRegimenes.size())) return {};
    const Regimen& r = kRegimenes[codigo - 1];
    return QString::fromUtf16(catalan ? r.catalan : r.castellano);
}

int CodificaRegimen(const QString& s) {
    const QString t = UpperCase(s);
    if (t.contains(u"GANANCIALES")) return 1;
    if (t.contains(u"PARTICIPACI")) return 3;
    if (t.contains(u"SEPARACI")) return 2;
    return 0;
}

QString DecodificaTipoJuridico(int codigo) {
    if (codigo < 1 || codigo > int(kTiposJuridicos.size())) return {};
    return QString::fromUtf16(kTiposJuridicos[codigo - 1]);
}

int CodificaTipoJuridico(const QString& s) {
    const QString t = UpperCase(s);
    for (int i = 0; i < int(kTiposJuridicos.size()); ++i)
        if (t == QString::fromUtf16(kTiposJuridicos[i])) return i + 1 == kSociedadColectiva ? 1 : i + 1;
    return 0;
}

bool PuedeTenerConyuge(int codigo) {
    return codigo == 1 || codigo == 2 || codigo == 7;
}

bool PuedeTenerConyugeInactivo(int codigo) {
    return codigo == 3 || codigo == 4 || codigo == 6;
}

} // namespace nod
