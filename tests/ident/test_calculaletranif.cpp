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

// Switching DNI/CIF/NIE resized the window and moved the buttons, and a verdict narrowed its edit: each
// type shows its own panel in place.
TEST_F(DialogoLetraNIF, EachTypeShowsItsPanelInPlaceAndAVerdictKeepsTheEditWidth) {
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Calculo de la letra del N.I.F."));
    EXPECT_TRUE(f.RBDNI->isChecked());
    const QSize tamano = f.size();
    const QPoint salir = f.BBSalir->pos();
    const QPoint accion = f.BBCalculaLetra->pos();
    const int anchoCif = f.ECIF->width();
    for (QRadioButton* rb : {f.RBCIF, f.RBNIE, f.RBDNI, f.RBNIE}) {
        const bool dni = rb == f.RBDNI, cif = rb == f.RBCIF, nie = rb == f.RBNIE;
        f.ENIF->setText(QStringLiteral("1"));
        f.ECIF->setText(QStringLiteral("B"));
        f.ENIE->setText(QStringLiteral("X"));
        QTest::mouseClick(rb, Qt::LeftButton);
        QApplication::processEvents();
        const std::string modo = rb->text().toStdString();
        EXPECT_EQ(f.PDNI->isVisible(), dni) << modo;
        EXPECT_EQ(f.BBCalculaLetra->isVisible(), dni) << modo;
        EXPECT_EQ(f.PCIF->isVisible(), cif) << modo;
        EXPECT_EQ(f.PNIE->isVisible(), nie) << modo;
        EXPECT_EQ(f.BBValidaCIF->isVisible(), !dni) << modo;
        EXPECT_TRUE(f.ENIF->text().isEmpty() && f.ECIF->text().isEmpty() && f.ENIE->text().isEmpty()) << modo;
        EXPECT_FALSE(f.LResultadoCIF_->isVisible() || f.LResultadoNIE_->isVisible()) << modo;
        EXPECT_EQ(f.size(), tamano) << modo;
        EXPECT_EQ(f.BBSalir->pos(), salir) << modo;
        EXPECT_EQ((dni ? f.BBCalculaLetra : f.BBValidaCIF)->pos(), accion) << modo;
    }
    QTest::mouseClick(f.RBCIF, Qt::LeftButton);
    for (const char* cif : {"B58818501", "B58818502"}) {
        f.ECIF->setText(QLatin1String(cif));
        f.BBValidaCIF->click();
        QApplication::processEvents();
        EXPECT_TRUE(f.LResultadoCIF_->isVisible()) << cif;
        EXPECT_EQ(f.ECIF->width(), anchoCif) << cif;
        EXPECT_EQ(f.size(), tamano) << cif;
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

// Delete did nothing in ENIF: the digit filter judged the key by its text, and X11 gives Delete "\x7f".
TEST_F(DialogoLetraNIF, DeleteAndTheEditingKeysWorkInTheDniEdit) {
    const struct {
        Qt::Key tecla;
        int desde, cuantos; // the selection before the key
        const char* queda;
    } casos[] = {{Qt::Key_Delete, 2, 2, "125678"},
                 {Qt::Key_Delete, 0, 0, "2345678"},
                 {Qt::Key_Backspace, 8, 0, "1234567"},
                 {Qt::Key_A, 2, 2, "12345678"},
                 {Qt::Key_Minus, 0, 0, "12345678"}};
    for (const auto& k : casos) {
        f.ENIF->setText(QStringLiteral("12345678"));
        f.ENIF->setSelection(k.desde, k.cuantos);
        if (k.cuantos == 0) f.ENIF->setCursorPosition(k.desde);
        QTest::keyClick(f.ENIF, k.tecla);
        EXPECT_EQ(f.ENIF->text(), QLatin1String(k.queda)) << k.tecla;
    }
    f.ENIF->setText(QStringLiteral("12345678"));
    f.ENIF->setCursorPosition(8);
    for (Qt::Key tecla : {Qt::Key_Home, Qt::Key_Delete, Qt::Key_End, Qt::Key_Left, Qt::Key_Backspace})
        QTest::keyClick(f.ENIF, tecla);
    EXPECT_EQ(f.ENIF->text(), QStringLiteral("234568"));
    f.ENIF->setText(QStringLiteral("12.345.678-Z"));
    EXPECT_EQ(f.ENIF->text(), QStringLiteral("12345678")) << "a pasted or handed-in number keeps its digits";
}

// "&Salir" and Escape gave 0 instead of the suite's cancel result.
TEST(CalculaLetraNIFResultado, SalirEscapeAndTheCloseButtonGiveTwo) {
    for (int como : {0, 1, 2}) {
        TFCalculaLetraNIF f;
        prueba::AlAbrirseModal([&](QWidget*) {
            if (como == 0)
                QTest::mouseClick(f.BBSalir, Qt::LeftButton);
            else if (como == 1)
                QTest::keyClick(f.ENIF, Qt::Key_Escape);
            else
                f.close();
        });
        EXPECT_EQ(f.exec(), 2) << como;
    }
}

// The verdict goes by the mode chosen, also on a form that is not on screen yet (built and driven by a
// program before showing it).
TEST(CalculaLetraNIFSinMostrar, VerdictFollowsTheChosenMode) {
    for (bool cif : {true, false}) {
        TFCalculaLetraNIF f;
        (cif ? f.RBCIF : f.RBNIE)->setChecked(true);
        (cif ? f.ECIF : f.ENIE)->setText(cif ? QStringLiteral("B58818501") : QStringLiteral("X1234567L"));
        f.BBValidaCIF->click();
        QLabel* esperado = cif ? f.LResultadoCIF_ : f.LResultadoNIE_;
        QLabel* otro = cif ? f.LResultadoNIE_ : f.LResultadoCIF_;
        EXPECT_FALSE(esperado->isHidden()) << cif;
        EXPECT_EQ(esperado->text(), QStringLiteral("Correcto")) << cif;
        EXPECT_EQ(otro->text(), QStringLiteral("Incorrecto")) << cif;
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
