// The euro-peseta and area calculators driven through their fields, and the sample office's images.
#include "protocol/calculametros.h"
#include "protocol/conversormoneda.h"
#include "tests/support/oficina_prueba.h"

#include <QApplication>
#include <QDirIterator>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <gtest/gtest.h>

namespace nod {
namespace {

template <typename F> void muestra(F& f) {
    f.show();
    QApplication::setActiveWindow(&f);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
}

TEST(ConversorMoneda, ConvertsIntoTheEmptyField) {
    // Pesetas and euros typed; what each field shows after converting.
    const std::tuple<const char*, const char*, const char*, const char*> casos[] = {
        {"", "1000", "166.386", "1000"},
        {"500", "0,0004", "500", "3,01"}, // 0,0004 € rounds to nothing: the euros are computed
        {"500", "2", "500", "2"},         // both filled: nothing changes
        {"", "0,001", "", "0,001"},       // not above 0,001
        {"", "", "", ""},
        {"166386", "", "166386", "1.000,00"},
    };
    for (const auto& [pesetas, euros, quedaPesetas, quedaEuros] : casos) {
        TFConversorMoneda f;
        f.ePesetas->setText(QString::fromUtf8(pesetas));
        f.eEuros->setText(QString::fromUtf8(euros));
        f.btnConvertir->click();
        EXPECT_EQ(f.ePesetas->text(), QString::fromUtf8(quedaPesetas)) << pesetas << " / " << euros;
        EXPECT_EQ(f.eEuros->text(), QString::fromUtf8(quedaEuros)) << pesetas << " / " << euros;
    }
}

TEST(ConversorMoneda, FieldsTakeDigitsAndCommaAsTyped) {
    TFConversorMoneda f;
    muestra(f);
    f.eEuros->setFocus();
    QTest::keyClicks(f.eEuros, QStringLiteral("12.5a,3"));
    EXPECT_EQ(f.eEuros->text(), QStringLiteral("125,3"));
    QTest::keyClick(f.eEuros, Qt::Key_Home);
    QTest::keyClick(f.eEuros, Qt::Key_Delete);
    EXPECT_EQ(f.eEuros->text(), QStringLiteral("25,3")) << "Delete is a key, not a character to filter";
    QTest::keyClick(f.eEuros, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), f.btnConvertir);
}

TEST(ConversorMoneda, TheReferenceCardReadsAsPrinted) {
    TFConversorMoneda f;
    const std::tuple<QTableWidget*, const char*, const char*, const char*, int> casos[] = {
        {f.ValueListEditor2, "Pesetas", "500", "3,01", 10},
        {f.ValueListEditor4, "Pesetas", "1.000.000", "6.010,12", 10},
        {f.ValueListEditor1, "Euros", "0,50", "83", 5},
        {f.ValueListEditor3, "Euros", "50,00", "8.319", 5}, // the card's figure, kept as printed
        {f.ValueListEditor3, "Euros", "1.000,00", "166.386", 9},
    };
    for (const auto& [tabla, titulo, izquierda, derecha, fila] : casos) {
        ASSERT_EQ(tabla->rowCount(), 11);
        EXPECT_EQ(tabla->horizontalHeaderItem(0)->text(), QString::fromUtf8(titulo));
        EXPECT_EQ(tabla->item(fila, 0)->text(), QString::fromUtf8(izquierda));
        EXPECT_EQ(tabla->item(fila, 1)->text(), QString::fromUtf8(derecha));
    }
}

TEST(CalculaMetros, HundredthsOfSquareMetresIn32Bits) {
    const std::tuple<qint32, qint32, qint32, double> casos[] = {
        {2, 35, 12, 23512},
        {0, 0, 0, 0},
        {2147, 0, 0, 21470000},
        {2148, 0, 0, -21469672.96}, // 2.148.000.000 hundredths wrap below zero
        {0, 0, 21474837, -21474835.96},
        {1, -1, 0, 9900},
    };
    for (const auto& [ha, a, ca, metros] : casos)
        EXPECT_DOUBLE_EQ(MetrosDeHectareas(ha, a, ca), metros) << ha << " " << a << " " << ca;
}

TEST(CalculaMetros, TheFormComputesAcceptsAndCancels) {
    TFCalculaMetrosCuadrados f(nullptr, QStringLiteral(" 2 "), QStringLiteral("35"), QStringLiteral("12"));
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Cálculo de Metros Cuadrados"));
    muestra(f);
    f.BBCalcula->setFocus();
    QTest::keyClick(f.BBCalcula, Qt::Key_Space);
    EXPECT_EQ(f.EMetros->text(), QStringLiteral("23.512"));
    EXPECT_EQ(f.MetrosCuadrados, 23512.0);
    EXPECT_EQ(QApplication::focusWidget(), f.EMetros) << "the focus moves on";

    f.EHectareas->clear();
    f.EAreas->setText(QStringLiteral("x"));
    f.ECentiAreas->clear();
    f.BBCalcula->click();
    EXPECT_EQ(f.EMetros->text(), QStringLiteral("0"));
    f.BBAceptar->click();
    EXPECT_EQ(std::pair(f.Tag, f.result()), std::pair(1, 1));

    muestra(f);
    QTest::keyClick(f.EHectareas, Qt::Key_Escape);
    EXPECT_EQ(std::pair(f.Tag, f.result()), std::pair(0, 2));
}

// The sample office's images are real pictures: the generator's PNG and JPEG writers are checked by a
// decoder that did not write them.
TEST(OficinaMuestra, ImagesDecode) {
    int vistas = 0;
    for (QDirIterator it(prueba::OficinaMuestra() + QStringLiteral("/C"),
                         {QStringLiteral("*.PNG"), QStringLiteral("*.JPG")}, QDir::Files,
                         QDirIterator::Subdirectories);
         it.hasNext(); ++vistas) {
        const QImage imagen(it.next());
        EXPECT_FALSE(imagen.isNull()) << it.filePath().toStdString();
        EXPECT_GE(imagen.width(), 100) << it.filePath().toStdString();
    }
    EXPECT_GE(vistas, 14);
}

} // namespace
} // namespace nod
