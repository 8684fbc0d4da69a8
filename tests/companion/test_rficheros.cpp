// Suite paths and their real folders, and the file helpers the document routines build on.
#include "companion/rficheros.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <tuple>

using namespace nod;
using nod::prueba::OficinaPrueba;

namespace {

QStringList lista(std::initializer_list<const char*> nombres) {
    QStringList l;
    for (const char* n : nombres)
        l << QString::fromUtf8(n);
    return l;
}

void crea(const QString& ruta, const QByteArray& contenido = "x") {
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly)) << ruta.toStdString();
    f.write(contenido);
}

TEST(SlashSep, OneBackslashBetweenTheParts) {
    const std::tuple<const char*, const char*, const char*> casos[] = {
        {"C:\\DATOS\\", "\\2024", "C:\\DATOS\\2024"},
        {"C:\\DATOS", "2024", "C:\\DATOS\\2024"},
        {"C:\\DATOS\\\\", "\\\\2024", "C:\\DATOS\\2024"},
        {"C:\\DATOS", "", "C:\\DATOS\\"},
        {"", "2024", "2024"},
        {"C:\\", "x", "C:\\x"},
        {"/srv/datos/", "Archivos", "/srv/datos\\Archivos"}, // a real folder of this machine as the base
    };
    for (const auto& [ruta, parte, esperado] : casos)
        EXPECT_EQ(SlashSep(QString::fromUtf8(ruta), QString::fromUtf8(parte)), QString::fromUtf8(esperado))
            << ruta << " + " << parte;
}

TEST(RutaEnDisco, DriveCRelativeAndAbsoluteLocations) {
    OficinaPrueba o(QStringLiteral("[GENERAL]\nUnidadC=UNIDAD\n"));
    const QString raiz = o.ruta(QStringLiteral("UNIDAD"));
    const std::tuple<const char*, QString> casos[] = {
        {"C:\\WORDZEB\\IMAGENES\\", raiz + QStringLiteral("/WORDZEB/IMAGENES")},
        {"c:\\x\\..\\y", raiz + QStringLiteral("/y")},
        {"EXPEDIENTES\\2024", o.ruta(QStringLiteral("EXPEDIENTES/2024"))},
        {"/srv/nodrim\\DATOS\\", QStringLiteral("/srv/nodrim/DATOS")},
        {"", QString()},
#ifndef Q_OS_WIN
        {"D:\\DATOS", QString()},            // another drive cannot be reached here
        {"\\\\SERVIDOR\\NODRIM", QString()}, // nor a network name
#endif
    };
    for (const auto& [ruta, esperado] : casos)
        EXPECT_EQ(RutaEnDisco(QString::fromUtf8(ruta)), esperado) << ruta;
    EXPECT_EQ(RutaEnDisco(QStringLiteral("C:\\a") + QChar(0) + QStringLiteral("b")), QString());
}

TEST(FindFileNoRecursivo, WindowsMasksIgnoringCaseFilesOnly) {
    OficinaPrueba o;
    for (const char* f :
         {"D/0007.JPG", "D/b.jpg", "D/a.jpeg", "D/LEEME", "D/[1].doc", "D/x.jpg.txt", "D/sub/c.jpg"})
        crea(o.ruta(QString::fromLatin1(f)));
    QDir().mkpath(o.ruta(QStringLiteral("D/carpeta.jpg")));
    const std::tuple<const char*, QStringList> casos[] = {
        {"*.jpg", lista({"0007.JPG", "b.jpg"})},
        {"?.JP*G", lista({"a.jpeg", "b.jpg"})},
        {"*.*", lista({"0007.JPG", "[1].doc", "a.jpeg", "b.jpg", "LEEME", "x.jpg.txt"})},
        {"[1].doc", lista({"[1].doc"})}, // brackets are plain characters in a Windows mask
        {"*.bmp", {}}};
    for (const auto& [mascara, esperado] : casos)
        EXPECT_EQ(FindFileNoRecursivo(QStringLiteral("D"), QString::fromLatin1(mascara)), esperado)
            << mascara;
    EXPECT_EQ(ImagenesJpeg(QStringLiteral("D")), lista({"0007.JPG", "a.jpeg", "b.jpg"}));
    EXPECT_TRUE(FindFileNoRecursivo(QStringLiteral("NO_EXISTE"), QStringLiteral("*")).isEmpty());
}

TEST(CopiaFichero, NeverOverwrites) {
    OficinaPrueba o;
    crea(o.ruta(QStringLiteral("a.jpg")), "nuevo");
    crea(o.ruta(QStringLiteral("b.jpg")), "antiguo");
    EXPECT_FALSE(CopiaFichero(QStringLiteral("a.jpg"), QStringLiteral("b.jpg")));
    QFile b(o.ruta(QStringLiteral("b.jpg")));
    ASSERT_TRUE(b.open(QIODevice::ReadOnly));
    EXPECT_EQ(b.readAll(), "antiguo");
    EXPECT_FALSE(CopiaFichero(QStringLiteral("a.jpg"), QStringLiteral("C:\\NO_EXISTE\\c.jpg")))
        << "the destination folder is not created";
    QDir().mkpath(o.ruta(QStringLiteral("C")));
    EXPECT_TRUE(CopiaFichero(QStringLiteral("a.jpg"), QStringLiteral("C:\\c.jpg")));
    EXPECT_TRUE(QFile::exists(o.ruta(QStringLiteral("C/c.jpg"))));
}

TEST(MueveImagenesA, MovesImagesOnlyAndKeepsWhatIsTaken) {
    OficinaPrueba o;
    crea(o.ruta(QStringLiteral("DU/1.JPG")), "uno");
    crea(o.ruta(QStringLiteral("DU/2.jpeg")), "dos");
    crea(o.ruta(QStringLiteral("DU/notas.txt")));
    crea(o.ruta(QStringLiteral("HECHOS/2.jpeg")), "ya estaba");
    EXPECT_EQ(MueveImagenesA(QStringLiteral("DU"), QStringLiteral("HECHOS")), 1);
    EXPECT_TRUE(QFile::exists(o.ruta(QStringLiteral("HECHOS/1.JPG"))));
    EXPECT_FALSE(QFile::exists(o.ruta(QStringLiteral("DU/1.JPG"))));
    EXPECT_TRUE(QFile::exists(o.ruta(QStringLiteral("DU/2.jpeg")))) << "its name is taken: it stays";
    EXPECT_TRUE(QFile::exists(o.ruta(QStringLiteral("DU/notas.txt"))));
    EXPECT_EQ(MueveImagenesA(QStringLiteral("DU"), QStringLiteral("NUEVA\\SUB")), 1)
        << "created with its parent";
    EXPECT_TRUE(QFile::exists(o.ruta(QStringLiteral("NUEVA/SUB/2.jpeg"))));
}

TEST(CreaCarpeta, MissingParentsAndRefusedPaths) {
    OficinaPrueba o;
    EXPECT_TRUE(CreaCarpeta(QStringLiteral("C:\\A\\B\\C\\")));
    EXPECT_TRUE(QFileInfo(o.ruta(QStringLiteral("C/A/B/C"))).isDir());
    crea(o.ruta(QStringLiteral("FICHERO")));
    // A file where a folder should be, and a name longer than any file system takes: refused even to root.
    EXPECT_FALSE(CreaCarpeta(QStringLiteral("FICHERO\\SUB")));
    EXPECT_FALSE(CreaCarpeta(QString(300, u'x')));
    EXPECT_FALSE(CreaCarpeta(QString()));
}

} // namespace
