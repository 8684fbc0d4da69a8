// The e-mail data module's client name of each interested party, over real dBase tables.
#include "comms/emaildm.h"
#include "tests/comms/apoyo.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace nod {
namespace {

class EmailDmTest : public ::testing::Test {
protected:
    void SetUp() override {
        QDir().mkpath(oficina.ruta(QStringLiteral("DATOS")));
        CreaFicheroDbf(oficina.ruta(QStringLiteral("DATOS/CLIENTES.DBF")),
                       {{QStringLiteral("CODIGO"), 'N', 8, 0},
                        {QStringLiteral("APELLIDOS"), 'C', 40, 0},
                        {QStringLiteral("NOMBRE"), 'C', 30, 0}});
        auto clientes = TTabla::AbreRuta(oficina.ruta(QStringLiteral("DATOS/CLIENTES.DBF")));
        const struct {
            int codigo;
            const char *apellidos, *nombre;
        } filas[] = {{7, "GARCÍA LÓPEZ", "MARÍA"},
                     {3, "", "JUAN"},
                     {12, "PÉREZ & CÍA, S.L.", ""},
                     {5, "", ""},
                     {9, "  MUÑOZ", "ÁNGEL  "}};
        for (const auto& f : filas) {
            clientes->Append();
            clientes->SetInteger(QStringLiteral("CODIGO"), f.codigo);
            clientes->SetString(QStringLiteral("APELLIDOS"), QString::fromUtf8(f.apellidos));
            clientes->SetString(QStringLiteral("NOMBRE"), QString::fromUtf8(f.nombre));
            clientes->Post();
        }
    }
    prueba::OficinaPrueba oficina{QStringLiteral("[ALIAS]\nDB=DATOS\n")};
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
    const QString ruta = oficina.ruta(QStringLiteral("INTERESA.DBF"));
    CreaFicheroDbf(ruta,
                   {{QStringLiteral("CODCLIENTE"), 'N', 8, 0}, {QStringLiteral("CALIDAD"), 'C', 20, 0}});
    {
        auto t = TTabla::AbreRuta(ruta);
        for (int cod : {7, 0, 12, 99}) {
            t->Append();
            t->SetInteger(QStringLiteral("CODCLIENTE"), cod);
            t->Post();
        }
    }
    TDMEmail dm;
    dm.tbInteresadosCalcFields();
    EXPECT_EQ(dm.CLIENTE(), QString()) << "no table yet";
    dm.AsignaInteresados(TTabla::AbreRuta(ruta));
    QStringList clientes;
    for (dm.tbInteresados()->First(); !dm.tbInteresados()->Eof(); dm.tbInteresados()->Next()) {
        dm.tbInteresadosCalcFields();
        clientes.append(dm.CLIENTE());
    }
    EXPECT_EQ(
        clientes,
        QStringList({QStringLiteral("GARCÍA LÓPEZ, MARÍA"), {}, QStringLiteral("PÉREZ & CÍA, S.L."), {}}));
}

TEST_F(EmailDmTest, UnreadableTablesGiveAnEmptyName) {
    QFile::resize(oficina.ruta(QStringLiteral("DATOS/CLIENTES.DBF")), 40);
    OlvidaTablasCargadas();
    EXPECT_EQ(ClienteInteresado(7), QString());

    const QString ruta = oficina.ruta(QStringLiteral("OTRA.DBF"));
    CreaFicheroDbf(ruta, {{QStringLiteral("CODIGO"), 'N', 8, 0}});
    auto t = TTabla::AbreRuta(ruta);
    t->Append();
    t->SetInteger(QStringLiteral("CODIGO"), 7);
    t->Post();
    TDMEmail dm;
    dm.AsignaInteresados(std::move(t));
    dm.tbInteresadosCalcFields();
    EXPECT_EQ(dm.CLIENTE(), QString()) << "a table without CODCLIENTE";
}

} // namespace
} // namespace nod
