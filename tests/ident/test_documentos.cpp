// Identity and tax numbers: the suite's CIF check, document-type labels and the companion checks.
#include "companion/documentos.h"
#include "ident/cif.h"
#include "ident/tipodocumento.h"

#include <gtest/gtest.h>

namespace nod {
namespace {

// A5881850: control 1 ("A"); P2800000: control 8 ("H"); B0000000: control 10, written "0" or "J". K, L, M and
// N take any ninth character once the 7 digits are there. A leading digit is a NIF, an X a NIE read with 0.
TEST(EsCif, Verdicts) {
    for (const char16_t* bueno :
         {u"A58818501", u"A5881850A", u"a-58.818.501", u"P2800000H", u"P28000008", u"B00000000", u"B0000000J",
          u"P0000000J", u"K1234567?", u"L1234567Z", u"M12345670", u"N1234567*", u"12345678Z", u"X1234567L"})
        EXPECT_TRUE(EsCif(QString::fromUtf16(bueno))) << qPrintable(QString::fromUtf16(bueno));
    // Wrong controls (P and S take no 0), a K-N number with a letter among its digits or a "-" for control,
    // the organisation letters J, R, U, V and W whatever the control, a Y, lengths other than 9 after
    // normalising, and input nobody should type.
    for (const char16_t* malo :
         {u"A58818502", u"P2800000D", u"P00000000", u"S00000000", u"12345678A", u"N1234567-", u"N12345A7X",
          u"J58818501", u"R5881850A", u"U58818501", u"V5881850A", u"W58818501", u"Y1234567X", u"A5881850",
          u"A588185011", u"", u"   ", u"A58818\u00e91", u"\u00d158818501"})
        EXPECT_FALSE(EsCif(QString::fromUtf16(malo))) << qPrintable(QString::fromUtf16(malo));
}

TEST(TipoDeDocumento, LabelsOfCodesAndCodesOfLabelsWithTheirCaseAsymmetry) {
    const char16_t* etiquetas[] = {u"N.I.F.", u"C.I.F.", u"N.I.E.", u"PASAPORTE"};
    for (int codigo = 1; codigo <= 4; ++codigo) {
        const QString etiqueta = QString::fromUtf16(etiquetas[codigo - 1]);
        EXPECT_EQ(TipoDeDocumento(codigo), etiqueta) << codigo;
        EXPECT_EQ(TipoDeDocumento(etiqueta), codigo) << codigo;
    }
    for (int otro : {0, 5, -1})
        EXPECT_EQ(TipoDeDocumento(otro), QStringLiteral("DOCUMENTO DE IDENTIFICACION")) << otro;
    // Other ways of writing a label; blanks and control characters are trimmed, a no-break space is not.
    const std::pair<const char16_t*, int> variantes[] = {{u"NIF", 1},        {u" N.I.E. ", 3},
                                                         {u"N.I.E", 3},      {u"pasaporte", 4},
                                                         {u"Pasa.porte", 4}, {u"\tN.I.E.\r\n", 3}};
    for (const auto& [etiqueta, codigo] : variantes)
        EXPECT_EQ(TipoDeDocumento(QString::fromUtf16(etiqueta)), codigo)
            << qPrintable(QString::fromUtf16(etiqueta));
    for (const char16_t* otra : {u"n.i.f.", u"nie", u"DNI", u"", u"....", u"\u00a0NIF", u"PASAPORTE\u00a0"})
        EXPECT_EQ(TipoDeDocumento(QString::fromUtf16(otra)), 5) << qPrintable(QString::fromUtf16(otra));
}

// For the DNI consultation only a CIF and a passport keep their type: everything else is asked as a NIF.
TEST(QueTipoDeDocumentoEs, ShapesOfNumbers) {
    const struct {
        const char16_t* numero;
        int tipo, paraConsultaDNI;
    } casos[] = {{u"12345678Z", 1, 1},   {u"12.345.678-a", 1, 1},
                 {u"K1234567L", 1, 1},   {u"B58818501", 2, 2},
                 {u"P2800000D", 2, 2},   {u"X1234567L", 3, 1},
                 {u"z-1234567-r", 3, 1}, {u"AB1234567", 4, 4},
                 {u"PAE123456", 4, 4},   {u"", 5, 1}};
    for (const char16_t* otro : {u"   ", u"ABCDEFG", u"1234", u"12345678\u00d1", u"1234567890123456"}) {
        EXPECT_EQ(QueTipoDeDocumentoEs(QString::fromUtf16(otro)), 5) << qPrintable(QString::fromUtf16(otro));
        EXPECT_EQ(QueTipoDeDocumentoEsParaConsultaDNI(QString::fromUtf16(otro)), 1);
    }
    for (const auto& c : casos) {
        const QString numero = QString::fromUtf16(c.numero);
        EXPECT_EQ(QueTipoDeDocumentoEs(numero), c.tipo) << qPrintable(numero);
        EXPECT_EQ(QueTipoDeDocumentoEsParaConsultaDNI(numero), c.paraConsultaDNI) << qPrintable(numero);
    }
}

TEST(DocumentosCompanion, FlagDecidesWhetherTypingSeparatorsIsTolerated) {
    EXPECT_EQ(PreparaCIFNIF(QStringLiteral(" b-12.345.674 ")), QStringLiteral("B12345674"));
    EXPECT_TRUE(EsNif(QStringLiteral("12345678Z"), false));
    EXPECT_TRUE(EsNif(QStringLiteral("12.345.678-z"), true));
    EXPECT_FALSE(EsNif(QStringLiteral("12.345.678-z"), false));
    EXPECT_TRUE(EsUnNie(QStringLiteral("x-1234567-l"), true));
    EXPECT_FALSE(EsUnNie(QStringLiteral("x1234567l"), false));
    EXPECT_TRUE(EsUnCif(QStringLiteral("a 58818501"), true));
    EXPECT_FALSE(EsUnCif(QStringLiteral("a 58818501"), false));
    EXPECT_EQ(LetraNIF(0), u'T');
    EXPECT_EQ(LetraNIF(22), u'E');
    EXPECT_TRUE(LetraNIF(-1).isNull());
    EXPECT_EQ(ControlCIF(u"12345"), -1);
    EXPECT_EQ(ControlCIF(u"12a4567"), -1);
}

} // namespace
} // namespace nod
