// The control characters of NIF, NIE, CIF and cadastral references compared with a second, independent
// implementation of the same public algorithms (python-stdnum), on random numbers it draws.
#include "companion/documentos.h"
#include "ident/cif.h"
#include "ident/controlcatastral.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace nod {
namespace {

struct Caso {
    QString tipo, numero, control;
};

std::vector<Caso> casosDeStdnum() {
    const QString python = QStringLiteral("/usr/bin/python3");
    const QString guion = QStringLiteral(NOD_SOURCE_DIR "/tests/ident/contraste_stdnum.py");
    QProcess p;
    p.start(python, {guion, QStringLiteral("7"), QStringLiteral("400")});
    if (!p.waitForFinished(60000) || p.exitCode() != 0) return {};
    std::vector<Caso> casos;
    for (const QString& linea :
         QString::fromUtf8(p.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList c = linea.split(u' ');
        if (c.size() == 3) casos.push_back({c[0], c[1], c[2]});
    }
    return casos;
}

class Contraste : public ::testing::Test {
protected:
    static void SetUpTestSuite() { s_casos = casosDeStdnum(); }
    void SetUp() override {
        if (s_casos.empty())
            GTEST_SKIP() << "python3-stdnum is not installed (tools/setup-debian.sh installs it)";
    }
    // The cases of one kind, as many as the script draws of it.
    static std::vector<Caso> de(const char* tipo, size_t cuantos) {
        std::vector<Caso> r;
        for (const Caso& c : s_casos)
            if (c.tipo == QLatin1String(tipo)) r.push_back(c);
        EXPECT_EQ(r.size(), cuantos) << tipo;
        return r;
    }
    static inline std::vector<Caso> s_casos;
};

// A letter other than the right one, to check that a wrong control is refused.
QChar otraLetra(QChar c) {
    return c == u'A' ? u'B' : u'A';
}

TEST_F(Contraste, NifAndNieLettersMatchWrongLettersFailAndEsCifReadsXAsZero) {
    for (const Caso& c : de("NIF", 400)) {
        EXPECT_EQ(QString(LetraNIF(c.numero.toLongLong())), c.control) << qPrintable(c.numero);
        EXPECT_TRUE(EsNif(c.numero + c.control, false)) << qPrintable(c.numero);
        EXPECT_TRUE(EsCif(c.numero + c.control)) << qPrintable(c.numero);
        EXPECT_FALSE(EsNif(c.numero + otraLetra(c.control[0]), false)) << qPrintable(c.numero);
    }
    for (const Caso& c : de("NIE", 400)) {
        EXPECT_TRUE(EsUnNie(c.numero + c.control, false)) << qPrintable(c.numero);
        EXPECT_FALSE(EsUnNie(c.numero + otraLetra(c.control[0]), false)) << qPrintable(c.numero);
        EXPECT_EQ(EsCif(c.numero + c.control), c.numero[0] == u'X') << qPrintable(c.numero);
    }
}

TEST_F(Contraste, CifControlDigitAndLetterAndCadastralControlLetters) {
    for (const Caso& c : de("CIF", 400)) {
        const QChar digito = c.control[0], letra = c.control[1];
        const QChar letraInicial = c.numero[0];
        EXPECT_EQ(ControlCIF(QStringView(c.numero).mid(1)), digito.digitValue()) << qPrintable(c.numero);

        // The tax agency's rule: letter only, digit only, or either, by organisation letter and province.
        const bool soloLetra = QStringLiteral("NPQRSW").contains(letraInicial) || c.numero.mid(1, 2) == u"00";
        const bool soloDigito = !soloLetra && QStringLiteral("ABEH").contains(letraInicial);
        EXPECT_EQ(EsUnCif(c.numero + letra, false), !soloDigito) << qPrintable(c.numero);
        EXPECT_EQ(EsUnCif(c.numero + digito, false), !soloLetra) << qPrintable(c.numero);
        const QChar otroDigito = QChar(u'0' + (digito.digitValue() + 1) % 10);
        EXPECT_FALSE(EsUnCif(c.numero + otroDigito, false)) << qPrintable(c.numero);

        // The suite's own check: any accepted organisation letter takes the control letter; the digit is
        // taken too, except by P and S when it is 0; J, R, U, V and W are never accepted.
        const bool aceptada = QStringLiteral("ABCDEFGHNPQS").contains(letraInicial);
        const bool ps = letraInicial == u'P' || letraInicial == u'S';
        const bool libre = letraInicial == u'N';
        EXPECT_EQ(EsCif(c.numero + letra), aceptada) << qPrintable(c.numero);
        EXPECT_EQ(EsCif(c.numero + digito), aceptada && !(ps && digito == u'0')) << qPrintable(c.numero);
        EXPECT_EQ(EsCif(c.numero + otroDigito), libre) << qPrintable(c.numero);
    }
    for (const Caso& c : de("RC", 800)) {
        EXPECT_EQ(LetrasControlCatastral(c.numero), c.control) << qPrintable(c.numero);
        EXPECT_TRUE(ControlCatastralCorrecto(c.numero + c.control)) << qPrintable(c.numero);
        EXPECT_FALSE(ControlCatastralCorrecto(c.numero + c.control[0] + otraLetra(c.control[1])));
    }
}

} // namespace
} // namespace nod
