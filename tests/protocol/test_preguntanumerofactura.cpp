// The invoice-number form driven by keys and clicks, and the routine that shows it modally.
#include "companion/foco.h"
#include "companion/hoy.h"
#include "protocol/preguntanumerofactura.h"
#include "tests/support/modal.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <gtest/gtest.h>

namespace nod {
namespace {

class FormNumeroFactura : public ::testing::Test {
protected:
    void SetUp() override {
        FijaAhora(EncodeDate(2024, 3, 15));
        f = std::make_unique<TFPreguntaNumeroFactura>();
        f->show();
        QApplication::setActiveWindow(f.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(f.get()));
    }
    void TearDown() override { FijaAhora(std::nullopt); }
    void enfoca(QWidget* w) {
        w->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
    }
    std::unique_ptr<TFPreguntaNumeroFactura> f;
};

TEST_F(FormNumeroFactura, OpensOnTheSeriesWithTheCurrentYearAndNoNumber) {
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Número de factura"));
    EXPECT_EQ(QApplication::focusWidget(), f->ESerie);
    EXPECT_EQ(f->EAno->text(), QStringLiteral("2024"));
    EXPECT_TRUE(f->ENumero->text().isEmpty());
    EXPECT_EQ(std::pair(f->BBAceptar->text(), f->BBCancelar->text()),
              std::pair(QStringLiteral("&Aceptar"), QStringLiteral("&Cancelar")));
    EXPECT_FALSE(f->BBAceptar->isEnabled()) << "no invoice without a number";
    QTest::keyClicks(f->ENumero, QStringLiteral("7"));
    EXPECT_TRUE(f->BBAceptar->isEnabled());
    f->ENumero->clear();
    EXPECT_FALSE(f->BBAceptar->isEnabled());
}

// What each field keeps of what is typed, once the clerk has left it (a short year is completed then).
TEST_F(FormNumeroFactura, FieldsTakeOnlyWhatAnInvoiceNumberHolds) {
    const std::tuple<QLineEdit*, const char*, const char*> casos[] = {
        {f->ESerie, "a1b", "A1"},    // two characters, in capitals
        {f->ESerie, "-x", "X"},      // no punctuation
        {f->EAno, "20a245", "2024"}, // four digits
        {f->EAno, "24", "2024"},     {f->EAno, "5", "2005"},
        {f->EAno, "98", "1998"},     {f->EAno, "1999", "1999"},
        {f->EAno, "", ""},           {f->ENumero, "12.3456789", "123456"}, // six digits, no grouping
        {f->EBis, "1b c", "B"},                                            // one letter
    };
    for (const auto& [campo, tecleado, queda] : casos) {
        enfoca(campo);
        campo->clear();
        QTest::keyClicks(campo, QString::fromLatin1(tecleado));
        enfoca(campo == f->ESerie ? f->EBis : f->ESerie);
        EXPECT_EQ(campo->text(), QString::fromLatin1(queda))
            << campo->objectName().toStdString() << " " << tecleado;
    }
}

TEST_F(FormNumeroFactura, EnteringAControlShowsItsHintAndMarksFieldsOnly) {
    f->ENumero->setText(QStringLiteral("1")); // "&Aceptar" can take the focus
    const std::pair<QWidget*, bool> casos[] = {{f->ESerie, true},     {f->EAno, true},
                                               {f->ENumero, true},    {f->EBis, true},
                                               {f->BBAceptar, false}, {f->BBCancelar, false}};
    for (const auto& [control, marcado] : casos) {
        enfoca(control);
        ASSERT_EQ(QApplication::focusWidget(), control);
        EXPECT_FALSE(control->toolTip().isEmpty());
        EXPECT_EQ(f->SBExplica->currentMessage(), control->toolTip()) << control->objectName().toStdString();
        EXPECT_EQ(TieneFocoMarcado(control), marcado) << control->objectName().toStdString();
    }
    for (const auto& [control, marcado] : casos)
        EXPECT_FALSE(TieneFocoMarcado(control) && control != QApplication::focusWidget());
    // Leaving towards something outside the form's controls clears the status bar and the mark.
    enfoca(f->ESerie);
    f->ESerie->clearFocus();
    QApplication::processEvents();
    EXPECT_TRUE(f->SBExplica->currentMessage().isEmpty());
    EXPECT_FALSE(TieneFocoMarcado(f->ESerie));
}

TEST_F(FormNumeroFactura, EnterMovesOnSkipsADisabledAceptarAndPressesNoButton) {
    const auto recorrido = [&](QWidget* final) {
        enfoca(f->ESerie);
        std::vector<QWidget*> visitados;
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            visitados.push_back(QApplication::focusWidget());
        }
        EXPECT_EQ(visitados, (std::vector<QWidget*>{f->EAno, f->ENumero, f->EBis, final}));
        EXPECT_TRUE(f->isVisible()) << "Enter in a field never closes the form";
    };
    recorrido(f->BBCancelar);
    f->ENumero->setText(QStringLiteral("15"));
    recorrido(f->BBAceptar);

    // Enter on a button moves on without pressing it.
    const std::pair<QWidget*, QWidget*> casos[] = {{f->BBAceptar, f->BBCancelar}, {f->BBCancelar, f->ESerie}};
    for (const auto& [desde, hacia] : casos) {
        for (int tecla : {int(Qt::Key_Return), int(Qt::Key_Enter)}) {
            f->setResult(-1);
            enfoca(desde);
            QTest::keyClick(desde, Qt::Key(tecla));
            EXPECT_EQ(QApplication::focusWidget(), hacia) << desde->objectName().toStdString();
            EXPECT_TRUE(f->isVisible()) << desde->objectName().toStdString();
            EXPECT_EQ(f->result(), -1) << desde->objectName().toStdString();
        }
    }
}

TEST_F(FormNumeroFactura, ModalResultsOfTheButtonsAndEscape) {
    const std::tuple<const char*, std::function<void()>, int> casos[] = {
        {"click on Aceptar", [&] { QTest::mouseClick(f->BBAceptar, Qt::LeftButton); }, 1},
        {"click on Cancelar", [&] { QTest::mouseClick(f->BBCancelar, Qt::LeftButton); }, 2},
        {"Escape in a field", [&] { QTest::keyClick(f->ENumero, Qt::Key_Escape); }, 2},
        {"Escape on Aceptar", [&] { QTest::keyClick(f->BBAceptar, Qt::Key_Escape); }, 2},
        {"Space on Aceptar", [&] { QTest::keyClick(f->BBAceptar, Qt::Key_Space); }, 1},
        {"Space on Cancelar", [&] { QTest::keyClick(f->BBCancelar, Qt::Key_Space); }, 2},
    };
    for (const auto& [como, accion, resultado] : casos) {
        f->setResult(-1);
        f->ENumero->setText(QStringLiteral("3"));
        f->show();
        QApplication::setActiveWindow(f.get());
        accion();
        EXPECT_EQ(f->result(), resultado) << como;
        EXPECT_FALSE(f->isVisible()) << como;
    }
}

TEST_F(FormNumeroFactura, ValuesShownAreNormalisedAndReadBack) {
    const auto valores = [&] {
        return std::tuple(f->Serie(), f->Ano(), f->Numero(), f->ENumero->text(), f->Bis());
    };
    f->PonValores(QStringLiteral("r12"), 0, 0, QStringLiteral(" b ")); // no year proposes the current one
    EXPECT_EQ(valores(), std::tuple(QStringLiteral("R1"), 2024, 0, QString(), QStringLiteral("B")));
    f->PonValores(QStringLiteral("A"), 2019, 1234567, {}); // seven digits do not fit the field
    EXPECT_EQ(valores(), std::tuple(QStringLiteral("A"), 2019, 0, QString(), QString()));
    f->PonValores(QStringLiteral("A"), 2019, 999999, {});
    EXPECT_EQ(valores(), std::tuple(QStringLiteral("A"), 2019, 999999, QStringLiteral("999999"), QString()));
}

TEST(PreguntaNumeroFacturaForm, AcceptingReturnsTheTypedValues) {
    FijaAhora(EncodeDate(2024, 3, 15));
    QString serie = QStringLiteral("Z"), bis;
    int ano = 0, numero = 0;
    bool vistoAbierto = false;
    prueba::AlAbrirseModal([&](QWidget* w) {
        auto* f = qobject_cast<TFPreguntaNumeroFactura*>(w);
        ASSERT_NE(f, nullptr);
        vistoAbierto = FPreguntaNumeroFactura == f;
        EXPECT_EQ(f->windowTitle(), QStringLiteral("Factura a rectificar"));
        EXPECT_EQ(f->ESerie->text(), QStringLiteral("Z"));
        f->ESerie->clear();
        QTest::keyClicks(f->ESerie, QStringLiteral("a"));
        f->EAno->setText(QStringLiteral("23"));
        f->EAno->setFocus();
        QTest::keyClick(f->EAno, Qt::Key_Return); // leaving completes the year
        QTest::keyClicks(f->ENumero, QStringLiteral("15"));
        QTest::keyClick(f->ENumero, Qt::Key_Return);
        QTest::keyClicks(f->EBis, QStringLiteral("c"));
        QTest::keyClick(f->EBis, Qt::Key_Return);
        ASSERT_EQ(f->focusWidget(), f->BBAceptar);
        QTest::keyClick(f->BBAceptar, Qt::Key_Space);
    });
    EXPECT_TRUE(PreguntaNumeroFacturaForm(serie, ano, numero, bis, QStringLiteral("Factura a rectificar")));
    EXPECT_TRUE(vistoAbierto);
    EXPECT_TRUE(FPreguntaNumeroFactura.isNull());
    EXPECT_EQ(std::tuple(serie, ano, numero, bis),
              std::tuple(QStringLiteral("A"), 2023, 15, QStringLiteral("C")));
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
    FijaAhora(std::nullopt);
}

TEST(PreguntaNumeroFacturaForm, CancellingLeavesTheValuesAsTheyCame) {
    QString serie = QStringLiteral("B"), bis = QStringLiteral("D");
    int ano = 2020, numero = 44;
    prueba::AlAbrirseModal([](QWidget* w) {
        auto* f = qobject_cast<TFPreguntaNumeroFactura*>(w);
        ASSERT_NE(f, nullptr);
        EXPECT_EQ(f->Numero(), 44);
        f->ENumero->setText(QStringLiteral("99"));
        QTest::keyClick(f->ENumero, Qt::Key_Escape);
    });
    EXPECT_FALSE(PreguntaNumeroFacturaForm(serie, ano, numero, bis));
    EXPECT_EQ(std::tuple(serie, ano, numero, bis),
              std::tuple(QStringLiteral("B"), 2020, 44, QStringLiteral("D")));
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
}

} // namespace
} // namespace nod
