// The mortgage liability calculator driven through its fields with QTest, as a clerk types.
#include "protocol/responsabilidadhipotecaria.h"
#include "text/moneda.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace nod {
namespace {

class Hipoteca : public ::testing::Test {
protected:
    void SetUp() override {
        f = std::make_unique<TFRespHipotec>();
        f->Principal_E = 100000;
        f->show();
        QApplication::setActiveWindow(f.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(f.get()));
    }
    static void enfoca(QWidget* w) {
        w->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
    }
    static void pulsa(QWidget* w, Qt::Key tecla) {
        enfoca(w);
        QTest::keyClick(w, tecla);
        QApplication::processEvents();
    }
    // Types `texto` into `campo` as the clerk does: the field takes the focus, its figure is selected
    // and typed over.
    static void teclea(QLineEdit* campo, const QString& texto) {
        enfoca(campo);
        campo->selectAll();
        QTest::keyClicks(campo, texto);
    }
    void eligeMoneda(int indice) {
        f->IBMONEDAS->setCurrentIndex(indice);
        emit f->IBMONEDAS->activated(indice);
        QApplication::processEvents();
    }
    std::unique_ptr<TFRespHipotec> f;
};

TEST_F(Hipoteca, OpensInEurosWithTheCallersPrincipalInBothColumns) {
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Responsabilidad Hipotecaria"));
    EXPECT_EQ(f->IBMONEDAS->currentText(), QStringLiteral("Euros"));
    EXPECT_EQ(std::pair(f->EPrincipal_E->Valor(), f->EPrincipal->Valor()), std::pair(100000.0, 16638600.0));
    EXPECT_TRUE(f->ERes1_E->isEnabled() && !f->ERes1->isEnabled()) << "only the euros column is typed in";
    EXPECT_EQ(f->EAno1->Valor(), 0.0);
}

TEST_F(Hipoteca, DaysCountExactlyWhileTheYearsShowOneDecimal) {
    teclea(f->EInteresDemora, QStringLiteral("4"));
    teclea(f->EDias2, QStringLiteral("400"));
    EXPECT_EQ(f->EAno2->text(), QStringLiteral("1,1"));
    EXPECT_EQ(f->ERes2_E->Valor(), 4383.56) << "400/365 of 4.000, not 1,1 years' 4.400";
    // A later change of the rate takes the years as they are shown, as the suite always did.
    teclea(f->EInteresDemora, QStringLiteral("5"));
    EXPECT_EQ(f->ERes2_E->Valor(), 5500.0);
}

TEST_F(Hipoteca, AZeroRateLeftWithTabLandsOnTheAmountAndZeroYearsOnTheDays) {
    teclea(f->EAno3, QStringLiteral("2"));
    ASSERT_EQ(f->EDias3->Valor(), 730.0);
    for (int moneda : {1, 0}) {
        eligeMoneda(moneda);
        pulsa(f->ECostesGastos, Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), moneda == 1 ? f->ERes3_E : f->ERes3) << moneda;
        EXPECT_EQ(std::pair(f->EAno3->Valor(), f->EDias3->Valor()), std::pair(0.0, 0.0)) << moneda;
    }
    pulsa(f->EAno4, Qt::Key_Backtab); // zero years left backwards go to the days
    EXPECT_EQ(QApplication::focusWidget(), f->EDias4);
}

TEST_F(Hipoteca, FivePerCentOverTwoYearsAndSwitchingTheCurrencyRecomputesNothing) {
    teclea(f->EInteresesOrd, QStringLiteral("5"));
    teclea(f->EAno1, QStringLiteral("2"));
    EXPECT_EQ(f->ERes1_E->Valor(), 10000.0);
    EXPECT_EQ(f->ERes1_E->text(), QStringLiteral("10.000,00"));
    EXPECT_EQ(f->EDias1->Valor(), 730.0);
    EXPECT_EQ(f->ERes1->Valor(), 1663860.0) << "the peseta twin in whole pesetas";
    EXPECT_EQ(std::pair(f->ETotal_E->Valor(), f->ETotal->Valor()),
              std::pair(110000.0, 16638600.0 + 1663860.0));
    QList<double> antes;
    const QList<TEditFlotante*> campos = f->findChildren<TEditFlotante*>();
    for (const TEditFlotante* e : campos)
        antes << e->ValorExacto();
    eligeMoneda(0);
    EXPECT_EQ(QApplication::focusWidget(), f->EPrincipal);
    EXPECT_TRUE(f->ERes1->isEnabled() && !f->ERes1_E->isEnabled()) << "now the pesetas column is typed in";
    for (qsizetype i = 0; i < campos.size(); ++i)
        EXPECT_EQ(campos[i]->ValorExacto(), antes[i]) << campos[i]->objectName().toStdString();
}

TEST_F(Hipoteca, PesetaAmountsAreNotRoundedIntoTheTotal) {
    eligeMoneda(0);
    teclea(f->EPrincipal, QStringLiteral("1005"));
    EXPECT_EQ(f->EPrincipal_E->Valor(), 6.04);
    teclea(f->EAno1, QStringLiteral("1"));
    teclea(f->EInteresesOrd, QStringLiteral("10"));
    teclea(f->EAno2, QStringLiteral("1"));
    teclea(f->EInteresDemora, QStringLiteral("10"));
    EXPECT_EQ(f->ERes1->ValorExacto(), 100.5);
    EXPECT_EQ(f->ERes1->text(), QStringLiteral("101"));
    EXPECT_EQ(f->ETotal->ValorExacto(), 1206.0) << "1.005 + 100,5 + 100,5, not 1.005 + 101 + 101";
    EXPECT_EQ(f->ERes1_E->Valor(), 0.61) << "the euros of 101 whole pesetas";
}

TEST_F(Hipoteca, AnAmountTypedByHandSetsItsTwinAndTheTotal) {
    teclea(f->EOtros_E, QStringLiteral("1000"));
    EXPECT_EQ(f->EOtros->Valor(), 166386.0);
    EXPECT_EQ(f->ETotal_E->Valor(), 101000.0);
    // The disabled column does not echo back: the pesetas written there leave the euros alone.
    EXPECT_EQ(f->EOtros_E->Valor(), 1000.0);
}

TEST_F(Hipoteca, EnterFromDaysGoesToTheAmountAndFromTheLastAmountAccepts) {
    pulsa(f->EDias2, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), f->ERes2_E);
    pulsa(f->EAno2, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), f->EDias2) << "elsewhere Enter is the next control";
    f->BACEPTAR->hide();
    pulsa(f->EOtros_E, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), f->BCancelar);
    EXPECT_TRUE(f->isVisible());
    f->BACEPTAR->show();
    pulsa(f->EOtros_E, Qt::Key_Return);
    EXPECT_FALSE(f->isVisible());
    EXPECT_EQ(f->result(), 1);
}

TEST_F(Hipoteca, FiguresTakeDigitsOnlyAndSalirGivesTwo) {
    teclea(f->EInteresesOrd, QStringLiteral("a5b"));
    EXPECT_EQ(f->EInteresesOrd->text(), QStringLiteral("5"));
    teclea(f->EAno1, QStringLiteral("1,55"));
    EXPECT_EQ(f->EAno1->text(), QStringLiteral("1,5")) << "years take one decimal";
    teclea(f->EDias1, QStringLiteral("1.5"));
    EXPECT_FALSE(f->EDias1->EsValido()) << "days are whole: a point here can only start a thousands group";
    QTest::keyClick(f->BCancelar, Qt::Key_Space);
    EXPECT_EQ(f->result(), 2);
}

} // namespace
} // namespace nod
