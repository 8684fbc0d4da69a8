// The DNI letter dialog driven through its three modes.
#include "companion/foco.h"
#include "ident/calculaletranif.h"
#include "tests/support/modal.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

namespace nod {
namespace {

class DialogoLetraNIF : public ::testing::Test {
protected:
    void SetUp() override { f.show(); }
    TFCalculaLetraNIF f;
};

TEST_F(DialogoLetraNIF, OpensInDniModeAndEachTypeShowsItsPanel) {
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Calculo de la letra del N.I.F."));
    EXPECT_TRUE(f.RBDNI->isChecked());
    struct Caso {
        QRadioButton* rb;
        bool dni, cif, nie;
    };
    for (const Caso& c : {Caso{f.RBCIF, false, true, false}, Caso{f.RBNIE, false, false, true},
                          Caso{f.RBDNI, true, false, false}}) {
        f.ENIF->setText(QStringLiteral("1"));
        f.ECIF->setText(QStringLiteral("B"));
        f.ENIE->setText(QStringLiteral("X"));
        QTest::mouseClick(c.rb, Qt::LeftButton);
        EXPECT_EQ(f.PDNI->isVisible(), c.dni);
        EXPECT_EQ(f.BBCalculaLetra->isVisible(), c.dni);
        EXPECT_EQ(f.PCIF->isVisible(), c.cif);
        EXPECT_EQ(f.PNIE->isVisible(), c.nie);
        EXPECT_EQ(f.BBValidaCIF->isVisible(), !c.dni);
        EXPECT_TRUE(f.ENIF->text().isEmpty() && f.ECIF->text().isEmpty() && f.ENIE->text().isEmpty());
        if (c.cif) {
            EXPECT_FALSE(f.LResultadoCIF_->isVisible());
        }
        if (c.nie) {
            EXPECT_FALSE(f.LResultadoNIE_->isVisible());
        }
    }
}

TEST_F(DialogoLetraNIF, DniEditTakesDigitsAndTheLetterIsWorkedOut) {
    f.ENIF->setFocus();
    QTest::keyClicks(f.ENIF, QStringLiteral("12a.3-45 678"));
    EXPECT_EQ(f.ENIF->text(), QStringLiteral("12345678"));
    QTest::keyClick(f.ENIF, Qt::Key_Backspace);
    QTest::keyClicks(f.ENIF, QStringLiteral("8"));
    QTest::keyClick(f.ENIF, Qt::Key_Return); // "&Letra" is the default button in this mode
    EXPECT_EQ(f.PLETRA->text(), QStringLiteral("Z"));
    EXPECT_EQ(f.ENIF->selectedText(), QStringLiteral("12345678"));
    EXPECT_TRUE(f.isVisible());
    QTest::keyClicks(f.ENIF, QStringLiteral("1"));
    EXPECT_TRUE(f.PLETRA->text().isEmpty()) << "a change clears the letter";
    f.ENIF->clear();
    f.BBCalculaLetra->click();
    EXPECT_TRUE(f.PLETRA->text().isEmpty());
    f.ENIF->setText(QStringLiteral("0"));
    f.BBCalculaLetra->click();
    EXPECT_EQ(f.PLETRA->text(), QStringLiteral("T"));
}

TEST_F(DialogoLetraNIF, VerdictsInTheirColoursAndTheSharedChangeHandler) {
    const QColor verde = ColorQt(0x008000), rojo = ColorQt(0x0000FF);
    QTest::mouseClick(f.RBCIF, Qt::LeftButton);
    QTest::keyClicks(f.ECIF, QStringLiteral("b-58818501"));
    EXPECT_EQ(f.ECIF->text(), QStringLiteral("B-58818501"));
    f.BBValidaCIF->click();
    EXPECT_TRUE(f.LResultadoCIF_->isVisible());
    EXPECT_EQ(f.LResultadoCIF_->text(), QStringLiteral("Correcto"));
    EXPECT_EQ(f.LResultadoCIF_->palette().color(QPalette::WindowText), verde);
    QTest::keyClicks(f.ECIF, QStringLiteral("1"));
    EXPECT_FALSE(f.LResultadoCIF_->isVisible());
    f.BBValidaCIF->click();
    EXPECT_EQ(f.LResultadoCIF_->text(), QStringLiteral("Incorrecto"));
    EXPECT_EQ(f.LResultadoCIF_->palette().color(QPalette::WindowText), rojo);

    QTest::mouseClick(f.RBNIE, Qt::LeftButton);
    QTest::keyClicks(f.ENIE, QStringLiteral("x1234567l"));
    QTest::keyClick(f.ENIE, Qt::Key_Enter); // "&Valida" is now the default button
    EXPECT_EQ(f.LResultadoNIE_->text(), QStringLiteral("Correcto"));
    QTest::keyClicks(f.ENIE, QStringLiteral("X"));
    EXPECT_TRUE(f.LResultadoNIE_->isVisible()) << "a changed NIE keeps the previous verdict on screen";
    EXPECT_EQ(f.LResultadoNIE_->text(), QStringLiteral("Correcto"));
    f.BBValidaCIF->click();
    EXPECT_EQ(f.LResultadoNIE_->text(), QStringLiteral("Incorrecto"));
}

// The verdict goes by the mode chosen, also on a form that is not on screen yet (built and driven by a
// program before showing it).
TEST(CalculaLetraNIFSinMostrar, VerdictFollowsTheChosenMode) {
    struct Caso {
        bool cif;
        const char* numero;
    };
    for (const Caso& c : {Caso{true, "B58818501"}, Caso{false, "X1234567L"}}) {
        TFCalculaLetraNIF f;
        (c.cif ? f.RBCIF : f.RBNIE)->setChecked(true);
        (c.cif ? f.ECIF : f.ENIE)->setText(QString::fromLatin1(c.numero));
        f.BBValidaCIF->click();
        QLabel* esperado = c.cif ? f.LResultadoCIF_ : f.LResultadoNIE_;
        QLabel* otro = c.cif ? f.LResultadoNIE_ : f.LResultadoCIF_;
        EXPECT_FALSE(esperado->isHidden()) << c.numero;
        EXPECT_EQ(esperado->text(), QStringLiteral("Correcto")) << c.numero;
        EXPECT_EQ(otro->text(), QStringLiteral("Incorrecto")) << c.numero;
    }
}

TEST(ICalculaLetraNif, SalirClosesTheModalDialog) {
    bool visto = false;
    prueba::AlAbrirseModal([&](QWidget* w) {
        auto* f = qobject_cast<TFCalculaLetraNIF*>(w);
        ASSERT_NE(f, nullptr);
        visto = f->RBDNI->isChecked() && f->PDNI->isVisible();
        QTest::keyClick(f->ENIF, Qt::Key_Escape);
    });
    ICalculaLetraNif(nullptr);
    EXPECT_TRUE(visto);
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
}

} // namespace
} // namespace nod
