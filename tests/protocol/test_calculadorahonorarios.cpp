// The fee calculator page: amounts typed the Spanish way, the scale choices handed to ARANCEL_C, and the
// VAT check answered through the scripted message service.
#include "companion/editimporte.h"
#include "companion/mensajes.h"
#include "configuracion_arancel.h"
#include "protocol/aranceles.h"
#include "protocol/calculadorahonorarios.h"
#include "text/moneda.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <gtest/gtest.h>

namespace nod {
namespace {

class Calculadora : public ::testing::Test {
protected:
    void SetUp() override {
        prueba::EscalaCuatroTipos();
        c = std::make_unique<TCalculadoraHonorarios>();
        c->show();
    }
    prueba::ConfigGuardada guardada;
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado{mensajes};
    std::unique_ptr<TCalculadoraHonorarios> c;
};

TEST_F(Calculadora, DeedFeeVatQuotaAndTotalFollowTheTypedAmount) {
    QTest::keyClicks(c->ECuantia, QStringLiteral("601.012,10"));
    EXPECT_EQ(c->LHonorarioEscritura->text(), QStringLiteral("306,52 €"));
    c->EIVA->setValue(21);
    EXPECT_EQ(c->LCuotaIVA->text(), QStringLiteral("64,37 €")); // 306.52 × 21 % = 64.3692
    EXPECT_EQ(c->LTotal->text(), QStringLiteral("370,89 €"));
    c->EIVA->setValue(16);
    EXPECT_EQ(c->LCuotaIVA->text(), QStringLiteral("49,04 €"));
    c->ECuantia->clear(); // no amount: the fixed fee of the first bracket, 4 000 pesetas
    EXPECT_EQ(c->LHonorarioEscritura->text(), QStringLiteral("24,04 €"));
    EXPECT_EQ(c->LTotal->text(), QStringLiteral("27,89 €"));
}

// "1500.50" was read as 150.050,00 € (fee 171,13 € instead of 24,04 €) and "150000.5" as 1.500.005 €:
// the keypad's point before one or two final digits is the decimal separator.
TEST_F(Calculadora, KeypadPointBeforeTheLastDigitsIsTheDecimalSeparator) {
    const std::pair<const char*, double> casos[] = {
        {"150000.5", 150000.5}, {"150.000", 150000}, {"150.000,5", 150000.5}, {"1500.50", 1500.5}};
    for (const auto& [tecleado, cuantia] : casos) {
        c->ECuantia->clear();
        QTest::keyClicks(c->ECuantia, QString::fromLatin1(tecleado));
        EXPECT_EQ(c->LHonorarioEscritura->text(),
                  FormateaImporte(Ges_Arancel_E(cuantia), 2) + QStringLiteral(" €"))
            << tecleado;
    }
    EXPECT_EQ(c->LHonorarioEscritura->text(), QStringLiteral("24,04 €")); // "1500.50", the last typed
    QTest::keyClicks(c->ECuantia, QStringLiteral("0")); // "1500.500" groups nothing: refused where typed
    EXPECT_EQ(c->ECuantia->text(), QStringLiteral("1500.50"));
    c->ECuantia->setText(QStringLiteral("1.234.5")); // still being typed: no fee is guessed
    EXPECT_TRUE(c->LHonorarioEscritura->text().isEmpty());
    EXPECT_TRUE(c->LTotal->text().isEmpty());
}

TEST_F(Calculadora, PolicyChoicesReachTheConfiguredScale) {
    EXPECT_EQ(c->LEscala->text(), QStringLiteral("Escala de cuatro tipos"));
    QTest::keyClicks(c->ECuantiaPoliza, QStringLiteral("2.000.000"));
    EXPECT_EQ(c->LHonorarioPoliza->text(), QStringLiteral("5.000 pts"));
    // Each box ticked is a "SI"; document 0 is an invoice, with its minimum, and 1 a policy, which has none.
    const std::tuple<double, bool, bool, int> casos[] = {{2000000, true, false, 0},
                                                         {3000000, false, true, 0},
                                                         {7000000, true, true, 1},
                                                         {100000, false, false, 0},
                                                         {100000, false, false, 1}};
    QSet<QString> distintos;
    for (const auto& [importe, aval, inferior, documento] : casos) {
        c->ECuantiaPoliza->setText(QString::number(importe, 'f', 0));
        c->CBAval->setChecked(aval);
        c->CBInferior->setChecked(inferior);
        c->CBTipoDocumento->setCurrentIndex(documento);
        const auto siNo = [](bool b) { return b ? QStringLiteral("SI") : QStringLiteral("NO"); };
        const int esperado =
            ARANCEL_C(importe, siNo(aval), documento ? QString() : QStringLiteral("factura"), siNo(inferior));
        EXPECT_EQ(c->LHonorarioPoliza->text(),
                  PuntosNod(QString::number(esperado), false) + QStringLiteral(" pts"))
            << importe << aval << documento << inferior;
        distintos.insert(c->LHonorarioPoliza->text());
    }
    EXPECT_EQ(distintos.size(), 5) << "each choice changes the fee on this scale: "
                                   << QStringList(distintos.values()).join(u'|').toStdString();
    EXPECT_EQ(c->LHonorarioPoliza->text(), QStringLiteral("300 pts"));

    prueba::EscalaC();
    c->Calcula();
    EXPECT_EQ(c->LEscala->text(), QStringLiteral("Escala C (tablas inferior y superior)"));
}

TEST_F(Calculadora, VatCheckAsksOnlyWhenThePercentageIsNotInForce) {
    // Date and percentage, the clerk's answers; whether the percentage is accepted and a question asked.
    const std::tuple<QDate, double, std::deque<int>, bool, bool> casos[] = {
        {QDate(2012, 9, 1), 18, {2}, false, true},
        {QDate(2012, 8, 31), 18, {}, true, false},
        {QDate(2012, 9, 1), 18, {1}, true, true}, // the user chooses to go on
        {QDate(2024, 1, 10), 21, {}, true, false},
    };
    for (const auto& [fecha, porcentaje, respuestas, conforme, pregunta] : casos) {
        mensajes.limpia();
        mensajes.respuestas(respuestas);
        c->EFecha->setDate(fecha);
        c->EIVA->setValue(porcentaje);
        EXPECT_TRUE(c->LResultadoIVA->text().isEmpty()) << "a new date or percentage clears the verdict";
        QTest::mouseClick(c->BBCompruebaIVA, Qt::LeftButton);
        EXPECT_EQ(c->LResultadoIVA->text(),
                  conforme ? QStringLiteral("Porcentaje aceptado") : QStringLiteral("Revise el porcentaje"));
        ASSERT_EQ(mensajes.mostrados().size(), pregunta ? 1 : 0);
        if (pregunta) {
            EXPECT_EQ(mensajes.mostrados()[0].title, QStringLiteral("Aplicación de IVA"));
            EXPECT_TRUE(mensajes.mostrados()[0].text.contains(QStringLiteral("18% y no el 21%")));
        }
    }
}

} // namespace
} // namespace nod
