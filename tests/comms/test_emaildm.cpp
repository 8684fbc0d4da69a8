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
    // A table at `ruta` of the office whose first field `campo` holds `codigos`, one record each.
    std::unique_ptr<TTabla> tabla(const QString& ruta, const QList<TCampoDbf>& campos, QList<int> codigos) {
        CreaFicheroDbf(oficina.ruta(ruta), campos);
        auto t = TTabla::AbreRuta(oficina.ruta(ruta));
        for (int cod : codigos) {
            t->Append();
            t->SetInteger(campos[0].nombre, cod);
            t->Post();
        }
        return t;
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
    TDMEmail dm;
    dm.tbInteresadosCalcFields();
    EXPECT_EQ(dm.CLIENTE(), QString()) << "no table yet";
    dm.AsignaInteresados(
        tabla(QStringLiteral("INTERESA.DBF"),
              {{QStringLiteral("CODCLIENTE"), 'N', 8, 0}, {QStringLiteral("CALIDAD"), 'C', 20, 0}},
              {7, 0, 12, 99}));
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

    TDMEmail dm;
    dm.AsignaInteresados(tabla(QStringLiteral("OTRA.DBF"), {{QStringLiteral("CODIGO"), 'N', 8, 0}}, {7}));
    dm.tbInteresadosCalcFields();
    EXPECT_EQ(dm.CLIENTE(), QString()) << "a table without CODCLIENTE";
}

} // namespace
} // namespace nod
