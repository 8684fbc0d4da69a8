#include "frame/ficheros.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <tuple>
#include <unistd.h>

using namespace nod;

namespace {
void toca(const QString& ruta) {
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
}
} // namespace

// The temporary folder of a test: TMPDIR points at "tmp" inside a folder of its own while it lives, so
// that what lands beside the temporary folder can be seen too.
struct CarpetaTemporal {
    QTemporaryDir m_dir;
    const QByteArray m_antes = qgetenv("TMPDIR");
    CarpetaTemporal() {
        QDir(m_dir.path()).mkdir(QStringLiteral("tmp"));
        qputenv("TMPDIR", QFile::encodeName(carpeta()));
    }
    ~CarpetaTemporal() { m_antes.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", m_antes); }
    QString carpeta() const { return m_dir.filePath(QStringLiteral("tmp")); }
    QString ruta(const QString& nombre) const { return carpeta() + QLatin1Char('/') + nombre; }
    QString fuera(const QString& nombre) const { return m_dir.filePath(nombre); }
};

TEST(Ficheros, EliminaTablaTemporalDeletesTheThreeCompanionsOnly) {
    CarpetaTemporal tmp;
    const QString fichero = FicheroTemporalNod(QStringLiteral("TMP"));
    ASSERT_FALSE(fichero.isEmpty());
    const QString base = fichero.chopped(4); // without ".tmp"
    for (const char* ext : {".dbf", ".dbt", ".cdx"})
        toca(base + QLatin1String(ext));
    EliminaTablaTemporal(base); // .mdx is missing: skipped silently
    EXPECT_FALSE(QFile::exists(base + QStringLiteral(".dbf")));
    EXPECT_FALSE(QFile::exists(base + QStringLiteral(".dbt")));
    EXPECT_TRUE(QFile::exists(base + QStringLiteral(".cdx")));
    toca(fichero + QStringLiteral(".dbf")); // the name as FicheroTemporalNod gave it serves as well
    EliminaTablaTemporal(fichero);
    EXPECT_FALSE(QFile::exists(fichero + QStringLiteral(".dbf")));
}

// Fault 13: EliminaTablaTemporal deleted any table it was given, the office's included, and
// FicheroTemporalNod("../") created files outside the temporary folder. Both keep to that folder and to the
// names FicheroTemporalNod gives, and refuse anything else.
TEST(Ficheros, Fault13TemporaryFilesKeepToTheTemporaryFolder) {
    CarpetaTemporal tmp;
    const QString clientes = tmp.fuera(QStringLiteral("CLIENTES"));
    toca(clientes + QStringLiteral(".dbf"));
    toca(tmp.ruta(QStringLiteral("CLIENTES.dbf")));
    toca(tmp.ruta(QStringLiteral("TMP1A.dbf")));
    toca(tmp.fuera(QStringLiteral("TMP1A.dbf")));
    const QString escapada = tmp.ruta(QStringLiteral("../TMP1A"));
    for (const QString& ruta : {clientes, tmp.ruta(QStringLiteral("CLIENTES")), escapada, QString()}) {
        EliminaTablaTemporal(ruta);
        EXPECT_TRUE(ruta.isEmpty() || QFile::exists(ruta + QStringLiteral(".dbf"))) << qPrintable(ruta);
    }
    EliminaTablaTemporal(tmp.ruta(QStringLiteral("TMP1A")));
    EXPECT_FALSE(QFile::exists(tmp.ruta(QStringLiteral("TMP1A.dbf"))));

    const QStringList antes = QDir(tmp.fuera({})).entryList(QDir::Files);
    for (const char* prefijo : {"../", "/tm", "a/b", "..\\", "C:x", "\n"})
        EXPECT_EQ(FicheroTemporalNod(QString::fromLatin1(prefijo)), QString()) << prefijo;
    EXPECT_EQ(QDir(tmp.fuera({})).entryList(QDir::Files), antes) << "nothing was created outside";
    QStringList creados;
    for (const char* prefijo : {"NOD", "NOD", "", "..", "ÑÇ"}) {
        const QString f = FicheroTemporalNod(QString::fromUtf8(prefijo));
        const QFileInfo fi(f);
        EXPECT_EQ(fi.absolutePath(), tmp.carpeta()) << prefijo;
        EXPECT_TRUE(fi.exists() && fi.size() == 0) << prefijo << ": a new empty file";
        EXPECT_TRUE(fi.fileName().endsWith(QStringLiteral(".tmp"))) << prefijo;
        EXPECT_FALSE(creados.contains(f)) << prefijo << ": a name of its own";
        creados << f;
    }
    EXPECT_TRUE(QFileInfo(creados[0]).fileName().startsWith(QStringLiteral("NOD")));
}

TEST(Ficheros, FicheroAbierto) {
    QTemporaryDir dir;
    const QString nombre = dir.filePath(QStringLiteral("CLIENTES.DBF"));
    EXPECT_FALSE(FicheroAbierto(nombre)) << "missing file";
    EXPECT_FALSE(FicheroAbierto(dir.path())) << "a folder is not a file";
    EXPECT_FALSE(FicheroAbierto(QString())) << "no name";
    toca(nombre);
    EXPECT_FALSE(FicheroAbierto(nombre)) << "nobody holds it";

    // Another holder: the table layer's kind of lock, taken through another open file.
    const int fd = ::open(QFile::encodeName(nombre).constData(), O_RDWR);
    ASSERT_GE(fd, 0);
    struct flock l {};
    l.l_type = F_WRLCK;
    l.l_whence = SEEK_SET;
    ASSERT_EQ(::fcntl(fd, F_OFD_SETLK, &l), 0);
    EXPECT_TRUE(FicheroAbierto(nombre));
    ::close(fd);
    EXPECT_FALSE(FicheroAbierto(nombre));
}

TEST(Ficheros, ExtraePath) {
    const std::tuple<const char*, const char*> casos[] = {{"C:\\NOD\\DATOS\\A.DBF", "C:\\NOD\\DATOS\\"},
                                                          {"C:A.DBF", "C:"},
                                                          {"/srv/nod/a.dbf", "/srv/nod/"},
                                                          {"A.DBF", ""},
                                                          {"", ""},
                                                          {"C:\\NOD\\", "C:\\NOD\\"}};
    for (const auto& [nombre, carpeta] : casos)
        EXPECT_EQ(ExtraePath(QString::fromUtf8(nombre)), QString::fromUtf8(carpeta)) << nombre;
}

TEST(Ficheros, GetDateCountsFromTheFirstOfJanuaryOfYearOne) {
    EXPECT_EQ(GetDate(0.0), 693594);
    EXPECT_EQ(GetDate(2.75), 693596); // 1/1/1900 at 18:00
    EXPECT_EQ(GetDate(45000.5), 738594);
    EXPECT_EQ(GetDate(-693593.0), 1); // 1/1/0001
    EXPECT_EQ(GetDate(std::numeric_limits<double>::quiet_NaN()), 0);
}
