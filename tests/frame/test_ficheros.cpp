#include "frame/ficheros.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace nod;

namespace {
void toca(const QString& ruta) {
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
}
} // namespace

TEST(Ficheros, FicheroTemporalNodCreatesAUniqueEmptyFile) {
    const QString a = FicheroTemporalNod(QStringLiteral("NODRIM"));
    const QString b = FicheroTemporalNod(QStringLiteral("NODRIM"));
    ASSERT_FALSE(a.isEmpty());
    EXPECT_NE(a, b);
    const QFileInfo fa(a);
    EXPECT_TRUE(fa.exists());
    EXPECT_EQ(fa.size(), 0);
    EXPECT_TRUE(fa.fileName().startsWith(QStringLiteral("NOD")));
    EXPECT_TRUE(fa.fileName().endsWith(QStringLiteral(".tmp")));
    QFile::remove(a);
    QFile::remove(b);
}

TEST(Ficheros, EliminaTablaTemporalDeletesTheThreeCompanionsOnly) {
    QTemporaryDir dir;
    const QString base = dir.filePath(QStringLiteral("TEMP01"));
    for (const char* ext : {".dbf", ".dbt", ".cdx"})
        toca(base + QLatin1String(ext));
    EliminaTablaTemporal(base); // .mdx is missing: skipped silently
    EXPECT_FALSE(QFile::exists(base + QStringLiteral(".dbf")));
    EXPECT_FALSE(QFile::exists(base + QStringLiteral(".dbt")));
    EXPECT_TRUE(QFile::exists(base + QStringLiteral(".cdx")));
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
    const struct {
        const char* nombre;
        const char* carpeta;
    } casos[] = {{"C:\\NOD\\DATOS\\A.DBF", "C:\\NOD\\DATOS\\"},
                 {"C:A.DBF", "C:"},
                 {"/srv/nod/a.dbf", "/srv/nod/"},
                 {"A.DBF", ""},
                 {"", ""},
                 {"C:\\NOD\\", "C:\\NOD\\"}};
    for (const auto& c : casos)
        EXPECT_EQ(ExtraePath(QString::fromUtf8(c.nombre)), QString::fromUtf8(c.carpeta)) << c.nombre;
}

TEST(Ficheros, GetDateCountsFromTheFirstOfJanuaryOfYearOne) {
    EXPECT_EQ(GetDate(0.0), 693594);
    EXPECT_EQ(GetDate(2.75), 693596); // 1/1/1900 at 18:00
    EXPECT_EQ(GetDate(45000.5), 738594);
    EXPECT_EQ(GetDate(-693593.0), 1); // 1/1/0001
    EXPECT_EQ(GetDate(std::numeric_limits<double>::quiet_NaN()), 0);
}
