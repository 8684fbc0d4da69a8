#include "companion/config.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace nod;
using nod::prueba::OficinaPrueba;

TEST(Config, MissingOfficeGivesDefaultsAndOneWarningPerFile) {
    TConfig c;
    c.Carga(QStringLiteral("/no/such/office"));
    EXPECT_EQ(c.GetAliasNotario(), QStringLiteral("DBNOTARIO"));
    EXPECT_EQ(c.GetnCuantos(), 1);
    EXPECT_EQ(c.GetsNotario(), QStringLiteral("1"));
    ASSERT_EQ(c.Avisos().size(), 3);
    EXPECT_TRUE(c.Avisos()[0].contains(QStringLiteral("/no/such/office")));
    EXPECT_TRUE(c.Avisos()[1].contains(QStringLiteral("CONFIG.INI")));
}

TEST(Config, ReadsWindows1252TextsIntact) {
    OficinaPrueba o(QStringLiteral("[general]\naliasnotario = NOTARÍA\n[NOTARIO1]\n"));
    EXPECT_EQ(Config.GetAliasNotario(), QStringLiteral("NOTARÍA")); // sections and keys ignore case
    QFile f(o.ruta(QStringLiteral("CONFIG/CONFIG.INI")));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_TRUE(f.readAll().contains("NOTAR\xCD"
                                     "A")); // one byte, as Windows wrote it
}

TEST(Config, MalformedLinesAreSkippedWithFileAndLine) {
    OficinaPrueba o(
        QStringLiteral("[GENERAL]\nNumeroNotarios=3\nthis line is junk\n[GENERAL]\nNumeroNotarios=tres\n"));
    EXPECT_EQ(Config.GetnCuantos(), 1) << "a value that does not parse keeps the default";
    const QString avisos = Config.Avisos().join(QLatin1Char('\n'));
    EXPECT_TRUE(avisos.contains(QStringLiteral("CONFIG.INI:3:"))) << avisos.toStdString();
    EXPECT_TRUE(avisos.contains(QStringLiteral("NumeroNotarios=tres"))) << avisos.toStdString();

    o.escribe(QStringLiteral("CONFIG/CONFIG.INI"),
              QStringLiteral("[GENERAL]\n") + QStringLiteral("junk\n").repeated(50));
    o.recarga();
    EXPECT_EQ(Config.Avisos().size(), IniFile::kMaxAvisos + 1) << "warnings are capped per file";
    EXPECT_TRUE(Config.Avisos().last().contains(QStringLiteral("40")));
}

TEST(Config, AliasesMapToFoldersUnderTheOffice) {
    OficinaPrueba o(QStringLiteral("[ALIAS]\nDB=DATOS\nABS=/srv/datos\n"));
    EXPECT_EQ(Config.CarpetaAlias(QStringLiteral("DB")), o.ruta(QStringLiteral("DATOS")));
    EXPECT_EQ(Config.CarpetaAlias(QStringLiteral("ABS")), QStringLiteral("/srv/datos"));
    EXPECT_TRUE(Config.CarpetaAlias(QStringLiteral("NINGUNO")).isEmpty());
    EXPECT_EQ(Config.RutaUnidadC(QStringLiteral("C:\\PasarelaWeb.ini")),
              o.ruta(QStringLiteral("C/PasarelaWeb.ini")));
}

TEST(Config, DescriptorsReadAndWriteByName) {
    OficinaPrueba o;
    const auto* d = TConfig::BuscaDescriptor(u"nCuantos");
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(d->tipo, TConfig::Tipo::Entero);
    d->escribe(Config, 7);
    EXPECT_EQ(Config.GetnCuantos(), 7);
    EXPECT_EQ(d->lee(Config).toInt(), 7);
    EXPECT_EQ(TConfig::BuscaDescriptor(u"NoExiste"), nullptr);
}

TEST(Config, EveryValueIsDocumented) {
    QFile doc(QStringLiteral(NOD_SOURCE_DIR "/docs/configuration.md"));
    ASSERT_TRUE(doc.open(QIODevice::ReadOnly));
    const QString texto = QString::fromUtf8(doc.readAll());
    for (const auto& d : TConfig::Descriptores())
        EXPECT_TRUE(texto.contains(QStringLiteral("`%1`").arg(QLatin1String(d.nombre)))) << d.nombre;
}

// Fault 14: a CONFIG folder that cannot be read was logged as missing; the warning says why.
TEST(Config, Fault14UnreadableConfigFolderSaysWhy) {
    OficinaPrueba o(QStringLiteral("[GENERAL]\nNumeroNotarios=3\n"));
    const QString config = o.ruta(QStringLiteral("CONFIG"));
    ASSERT_TRUE(QDir(config).removeRecursively());
    // A link that points at itself cannot be followed (ELOOP), whoever runs the test.
    ASSERT_EQ(::symlink("CONFIG", QFile::encodeName(config).constData()), 0);
    o.recarga();
    const QString avisos = Config.Avisos().join(QLatin1Char('\n'));
    EXPECT_TRUE(avisos.contains(QStringLiteral("CONFIG.INI: no se puede leer"))) << qPrintable(avisos);
    EXPECT_FALSE(avisos.contains(QStringLiteral("no existe"))) << qPrintable(avisos);
}

// Fault 14: a NUL byte in a value ended its warning there for whoever read the log.
TEST(Config, Fault14NulInAValueDoesNotCutItsWarningShort) {
    static QStringList registro;
    registro.clear();
    const auto anterior =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& m) { registro << m; });
    OficinaPrueba o(QStringLiteral("[GENERAL]\nNumeroNotarios=3") + QChar(0) +
                    QStringLiteral("tres\n\x01junk\n"));
    qInstallMessageHandler(anterior);
    const QString todo = registro.join(QLatin1Char('\n'));
    EXPECT_TRUE(todo.contains(QStringLiteral("NumeroNotarios=3\\x00tres: valor no válido")))
        << qPrintable(todo);
    EXPECT_TRUE(todo.contains(QStringLiteral("\\x01junk"))) << qPrintable(todo);
    EXPECT_FALSE(todo.contains(QChar(0)));
    EXPECT_FALSE(Config.Avisos().join(QString()).contains(QChar(0)));
}
