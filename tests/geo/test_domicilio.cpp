// A client's address on one line, over client rows written to a temporary table.
#include "ident/domicilio.h"
#include "tables/tablas.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace nod;

namespace {

QList<TCampoDbf> camposClientes() {
    QList<TCampoDbf> c{{QStringLiteral("CODIGO"), 'N', 8, 0},
                       {QStringLiteral("RESIDENTE"), 'L', 1, 0},
                       {QStringLiteral("APROX_KM"), 'N', 9, 2}};
    for (const char* n : {"TIPO_VIA", "DOMICILIO", "NUMERO", "DUPLICADO", "BLOQUE", "ESCALERA", "PLANTA",
                          "PISO", "RESTO", "PEDANIA", "CODPOSTAL", "VECINDAD", "PROV", "PAIS", "EST_NO_NOR",
                          "POB_NO_NOR", "DIR_NO_NOR", "NUM_NO_NOR", "DIS_NO_NOR"})
        c.append({QString::fromLatin1(n), 'C', 30, 0});
    return c;
}

struct Caso {
    bool residente;
    const char* campos; // "FIELD=value" pairs joined by "|"
    double km;
    int longitud;
    bool conPoblacion;
    const char* esperado;
};

TEST(DomicilioClienteCompleto, ResidentsAndNonResidents) {
    const Caso casos[] = {
        {true, "TIPO_VIA=CL|DOMICILIO=MAYOR|NUMERO=5|PLANTA=2|PISO=B", 0, 0, false,
         "CL MAYOR, Nº 5, Plt. 2ª, Piso: B"},
        {true, "DOMICILIO=MAYOR|DUPLICADO=BIS|BLOQUE=3|ESCALERA=DR|RESTO=FONDO", 1234.5, 0, false,
         "MAYOR, BIS, Blq. 3º, Esc. DR, FONDO, 1.234,50"},
        {true, "NUMERO=7|PEDANIA=LA ALDEA", 0, 0, false, ", Nº 7, LA ALDEA"},
        {true, "TIPO_VIA=AV|DOMICILIO=SOL|CODPOSTAL=28001|VECINDAD=MADRID|PROV=MADRID|PAIS=ESPAÑA", 0, 0,
         true, "AV SOL, CP: 28001, MADRID, MADRID, (ESPAÑA)"},
        {true, "TIPO_VIA=AV|DOMICILIO=SOL|PAIS=ESPAÑA", 0, 0, false, "AV SOL"},
        {true, "TIPO_VIA=AV|DOMICILIO=SOL|NUMERO=12", 0, 8, false, "AV SOL, "},
        {false,
         "EST_NO_NOR=BAVIERA|POB_NO_NOR=MÜNCHEN|DIR_NO_NOR=LEOPOLDSTRASSE|PAIS=ALEMANIA|DOMICILIO=NO CUENTA",
         0, 0, true, "BAVIERA, MÜNCHEN, LEOPOLDSTRASSE, (ALEMANIA)"},
        {false, "PAIS=FRANCIA", 0, 0, false, "(FRANCIA)"},
        {false, "NUM_NO_NOR=4|DIS_NO_NOR=1100", 0, 0, false, "4, 1100"}};
    const size_t n = std::size(casos);
    QTemporaryDir dir;
    const QString ruta = dir.filePath(QStringLiteral("CLIENTES.DBF"));
    CreaFicheroDbf(ruta, camposClientes());
    {
        auto tb = TTabla::AbreRuta(ruta);
        for (size_t i = 0; i < n; ++i) {
            tb->Append();
            tb->SetInteger(QStringLiteral("CODIGO"), qint64(i + 1));
            tb->SetBoolean(QStringLiteral("RESIDENTE"), casos[i].residente);
            tb->SetFloat(QStringLiteral("APROX_KM"), casos[i].km);
            for (const QString& par : QString::fromUtf8(casos[i].campos).split(u'|')) {
                const qsizetype igual = par.indexOf(u'=');
                tb->SetString(par.left(igual), par.mid(igual + 1));
            }
            tb->Post();
        }
    }
    auto tb = TTabla::AbreRuta(ruta, QStringLiteral("CODIGO"));
    for (size_t i = 0; i < n; ++i) {
        ASSERT_TRUE(TBBusca(*tb, {{QStringLiteral("CODIGO"), qint64(i + 1)}}));
        EXPECT_EQ(DomicilioClienteCompleto(*tb, casos[i].longitud, casos[i].conPoblacion),
                  QString::fromUtf8(casos[i].esperado))
            << "case " << i;
    }
}

} // namespace
