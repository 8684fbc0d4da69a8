// Amounts typed the Spanish way, with the numeric keypad's point, by real keys.
#include "companion/editimporte.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>
#include <tuple>

using namespace nod;

TEST(LeeImporte, APointGroupsThreeDigitsOrEndsWithTheDecimals) {
    const std::tuple<const char*, int, double> leidos[] = {{"1500.50", 2, 1500.5},
                                                           {"150000.5", 2, 150000.5},
                                                           {"1.500", 2, 1500},
                                                           {"1.500,50", 2, 1500.5},
                                                           {"1.234.567,8", 2, 1234567.8},
                                                           {"1500,5", 2, 1500.5},
                                                           {".5", 2, 0.5},
                                                           {"12,", 2, 12},
                                                           {"", 2, 0},
                                                           {" 1 500,50 ", 2, 1500.5},
                                                           {"1.500", 0, 1500},
                                                           {"2.000.000", 0, 2000000}};
    for (const auto& [texto, decimales, valor] : leidos) {
        const std::optional<double> v = LeeImporte(QString::fromLatin1(texto), decimales);
        ASSERT_TRUE(v.has_value()) << texto << " / " << decimales;
        EXPECT_DOUBLE_EQ(*v, valor) << texto << " / " << decimales;
    }
    for (const char* texto : {"1.", "1.234.5", "1.50.0", "1500.500", "1.5000", "15.00,5", "1.5,5", "1,234",
                              "1,2,3", "-5", "1e5", "12345678901234"})
        EXPECT_FALSE(LeeImporte(QString::fromLatin1(texto), 2).has_value()) << texto;
    for (const char* texto : {"1.5", "15.00", "1,5"})
        EXPECT_FALSE(LeeImporte(QString::fromLatin1(texto), 0).has_value()) << texto << " without decimals";
    EXPECT_EQ(LeeImporte(u"-1.500,5", 2, true), -1500.5);
}

TEST(FormateaImporte, SpanishWayRoundedHalfAwayFromZero) {
    const std::tuple<double, int, const char*> casos[] = {{1500.5, 2, "1.500,50"},
                                                          {1500.5, 0, "1.501"},
                                                          {-0.004, 2, "0,00"},
                                                          {0, 2, "0,00"},
                                                          {1234567.891, 2, "1.234.567,89"},
                                                          {2.675, 2, "2,68"},
                                                          {-1500.5, 0, "-1.501"},
                                                          {999.999, 2, "1.000,00"}};
    for (const auto& [valor, decimales, texto] : casos)
        EXPECT_EQ(FormateaImporte(valor, decimales), QLatin1String(texto)) << valor;
}

// What is typed key by key: refused keys leave the text as it was.
TEST(EditImporte, TypedKeysFollowTheRule) {
    const std::tuple<const char*, int, const char*, double, const char*> casos[] = {
        {"1500.50", 2, "1500.50", 1500.5, "1.500,50"},
        {"150000.5", 2, "150000.5", 150000.5, "150.000,50"},
        {"1.500.000", 0, "1.500.000", 1500000, "1.500.000"},
        {"1.5000", 2, "1.500", 1500, "1.500,00"}, // the fourth digit after a point is refused
        {"12a,3x4", 2, "12,34", 12.34, "12,34"},  // letters are refused
        {"1,234", 2, "1,23", 1.23, "1,23"},       // no third decimal
        {"1.5", 0, "1.5", 0, "1.5"},              // unfinished: kept as typed, no value
        {"-3", 2, "3", 3, "3,00"},                // no sign unless negatives are asked for
    };
    for (const auto& [tecleado, decimales, queda, valor, alSalir] : casos) {
        QWidget ventana;
        auto* e = new TEditImporte(&ventana, decimales);
        auto* otro = new QLineEdit(&ventana);
        ventana.show();
        QApplication::setActiveWindow(&ventana);
        e->setFocus();
        QTest::keyClicks(e, QString::fromLatin1(tecleado));
        EXPECT_EQ(e->text(), QLatin1String(queda)) << tecleado;
        EXPECT_DOUBLE_EQ(e->Valor(), valor) << tecleado;
        otro->setFocus();
        EXPECT_EQ(e->text(), QLatin1String(alSalir)) << tecleado;
        e->setFocus();
        EXPECT_FALSE(e->EsValido() && e->text().contains(u'.'))
            << tecleado << ": edited again, the amount stands without thousands points";
    }
}

TEST(EditImporte, DeleteOverASelectionAndAnIntegerView) {
    TEditImporte e(nullptr, 2);
    e.setText(QStringLiteral("1500,50"));
    e.setSelection(1, 2);
    QKeyEvent supr(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QStringLiteral("\x7f"));
    QApplication::sendEvent(&e, &supr);
    EXPECT_EQ(e.text(), QStringLiteral("10,50"));
    e.PonValor(1500.5);
    EXPECT_EQ(e.text(), QStringLiteral("1.500,50"));
    EXPECT_EQ(e.ValorEntero(), 1501);
    e.SetDecimales(0);
    EXPECT_EQ(e.text(), QStringLiteral("1.501"));
    EXPECT_EQ(e.Valor(), 1501);
}
