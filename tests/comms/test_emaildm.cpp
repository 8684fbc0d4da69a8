// The e-mail data module's client name of each interested party, over real dBase tables.
#include "comms/emaildm.h"
#include "tests/comms/apoyo.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace nod {
namespace {

class EmailDmTest : public ::testing::Test {
protected:
    void SetUp() override {
        QDir().mkpath(oficina.ruta(u"DATOS"_s));
        tabla(u"DATOS/CLIENTES.DBF"_s,
              {{u"CODIGO"_s, 'N', 8, 0}, {u"APELLIDOS"_s, 'C', 40, 0}, {u"NOMBRE"_s, 'C', 30, 0}},
              {{u"7"_s, u"GARCÍA LÓPEZ"_s, u"MARÍA"_s},
               {u"3"_s, {}, u"JUAN"_s},
               {u"12"_s, u"PÉREZ & CÍA, S.L."_s},
               {u"5"_s},
               {u"9"_s, u"  MUÑOZ"_s, u"ÁNGEL  "_s}});
    }
    // A table at `ruta` of the office, its first field a number and the others text; a record per row.
    std::unique_ptr<TTabla> tabla(const QString& ruta, const QList<TCampoDbf>& campos,
                                  const QList<QStringList>& filas) {
        CreaFicheroDbf(oficina.ruta(ruta), campos);
        auto t = TTabla::AbreRuta(oficina.ruta(ruta));
        for (const QStringList& fila : filas) {
            t->Append();
            t->SetInteger(campos[0].nombre, fila[0].toInt());
            for (qsizetype i = 1; i < fila.size(); ++i)
                t->SetString(campos[i].nombre, fila[i]);
            t->Post();
        }
        return t;
    }
    prueba::OficinaPrueba oficina{u"[ALIAS]\nDB=DATOS\n"_s};
};

TEST_F(EmailDmTest, ClientNameIsSurnamesCommaName) {
    const struct {
        qint64 codigo;
        const char* cliente;
    } casos[] = {
        {7, "GARCÍA LÓPEZ, MARÍA"},
        {3, "JUAN"},
        {12, "PÉREZ & CÍA, S.L."},
        {5, ""},
        {9, "MUÑOZ, ÁNGEL"},
        {0, ""},
        {4, ""},
        {-7, ""},
    };
    for (const auto& c : casos)
        EXPECT_EQ(ClienteInteresado(c.codigo), QString::fromUtf8(c.cliente)) << c.codigo;
}

TEST_F(EmailDmTest, CalculatedFieldFollowsTheCurrentParty) {
    TDMEmail dm;
    dm.tbInteresadosCalcFields();
    EXPECT_EQ(dm.CLIENTE(), QString()) << "no table yet";
    dm.AsignaInteresados(tabla(u"INTERESA.DBF"_s, {{u"CODCLIENTE"_s, 'N', 8, 0}, {u"CALIDAD"_s, 'C', 20, 0}},
                               {{u"7"_s}, {u"0"_s}, {u"12"_s}, {u"99"_s}}));
    QStringList clientes;
    for (dm.tbInteresados()->First(); !dm.tbInteresados()->Eof(); dm.tbInteresados()->Next()) {
        dm.tbInteresadosCalcFields();
        clientes.append(dm.CLIENTE());
    }
    EXPECT_EQ(clientes, QStringList({u"GARCÍA LÓPEZ, MARÍA"_s, {}, u"PÉREZ & CÍA, S.L."_s, {}}));
}

TEST_F(EmailDmTest, UnreadableTablesGiveAnEmptyName) {
    QFile::resize(oficina.ruta(u"DATOS/CLIENTES.DBF"_s), 40);
    OlvidaTablasCargadas();
    EXPECT_EQ(ClienteInteresado(7), QString());

    TDMEmail dm;
    dm.AsignaInteresados(tabla(u"OTRA.DBF"_s, {{u"CODIGO"_s, 'N', 8, 0}}, {{u"7"_s}}));
    dm.tbInteresadosCalcFields();
    EXPECT_EQ(dm.CLIENTE(), QString()) << "a table without CODCLIENTE";
}

} // namespace
} // namespace nod
