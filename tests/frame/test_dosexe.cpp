#include "frame/dosexe.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <tuple>

using namespace nod;

namespace {
QByteArray hastaNul(const QByteArray& img, int offset) {
    return QByteArray(img.constData() + offset);
}
} // namespace

TEST(DOSExe, ImageFillsTheFieldsAndKeepsTheTemplatesClassicSections) {
    const QString programa = QStringLiteral("C:\\NODRIM\\UTIL\\COPIAS.EXE");
    const QByteArray img = ImagenPif(programa, QStringLiteral("/A /B"), QStringLiteral("Copias"));
    ASSERT_EQ(img.size(), kTamanoPif);
    EXPECT_EQ(img.mid(2, 30), QByteArray("Copias").leftJustified(30, ' '));
    EXPECT_EQ(hastaNul(img, 36), "C:\\NODRIM\\UTIL\\COPIAS.EXE");
    EXPECT_EQ(hastaNul(img, 101), "C:\\NODRIM\\UTIL\\");
    EXPECT_EQ(hastaNul(img, 165), "/A /B");
    EXPECT_EQ(hastaNul(img, 453), "/A /B");
    QByteArray t = PlantillaPif();
    ASSERT_EQ(t.size(), kTamanoPif);
    for (auto [offset, seccion] :
         {std::pair{0x171, "MICROSOFT PIFEX"}, {0x187, "WINDOWS 386 3.0"}, {0x205, "WINDOWS VMM 4.0"}})
        EXPECT_EQ(hastaNul(t, offset), seccion);
    EXPECT_TRUE(t.contains("Terminal") && t.contains("Lucida Console")) << "the console's fonts";
    // Outside the five fields and their NULs, the template's bytes stand as they were.
    for (auto [offset, largo] : {std::pair{2, 30}, {36, 64}, {101, 64}, {165, 64}, {453, 64}})
        t.replace(offset, largo, img.mid(offset, largo));
    EXPECT_EQ(img, t);
}

TEST(DOSExe, LongTextsAreCut) {
    const QString largo =
        QStringLiteral("C:\\") + QString(66, QLatin1Char('P')) + QStringLiteral(".EXE"); // 73
    const QByteArray img = ImagenPif(largo, QString(70, QLatin1Char('x')), QString(40, QLatin1Char('T')));
    EXPECT_EQ(hastaNul(img, 36).size(), 63);
    EXPECT_EQ(img[36 + 63], '\0');
    EXPECT_EQ(hastaNul(img, 165).size(), 63);
    EXPECT_EQ(img.mid(2, 30), QByteArray(30, 'T'));
    EXPECT_EQ(img[32], PlantillaPif()[32]) << "the title never spills into the next field";
}

TEST(DOSExe, StartUpFolderIsTheProgramsFolderPart) {
    const std::tuple<const char*, const char*> casos[] = {
        {"C:\\NOD\\COPIAS.EXE", "C:\\NOD\\"},
        {"C:COPIAS.EXE", "C:"},
        {"COPIAS.EXE", ""},
        {"\\\\SERVIDOR\\NOD\\X.BAT", "\\\\SERVIDOR\\NOD\\"}};
    for (const auto& [programa, carpeta] : casos) {
        const QByteArray img = ImagenPif(QLatin1String(programa), {}, {});
        EXPECT_EQ(hastaNul(img, 101), QByteArray(carpeta)) << programa;
    }
}

TEST(DOSExe, RunsTheProgramAndRemovesTheImage) {
    QTemporaryDir dir;
    FijaCarpetaPif(dir.path());
    // The program copies the image it was started from, so the test can read back what was written.
    const QString guion = dir.filePath(QStringLiteral("copia.sh"));
    {
        QFile f(guion);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("#!/bin/sh\ncp UnPif.pif \"$1\"\n");
        f.setPermissions(f.permissions() | QFileDevice::ExeOwner);
    }
    ASSERT_LT(guion.size(), 60);
    EXPECT_TRUE(DOSExe(guion, QStringLiteral("leido.pif"), QStringLiteral("Copia")));
    EXPECT_FALSE(QFile::exists(dir.filePath(QStringLiteral("UnPif.pif"))));
    QFile leido(dir.filePath(QStringLiteral("leido.pif")));
    ASSERT_TRUE(leido.open(QIODevice::ReadOnly));
    EXPECT_EQ(leido.readAll(), ImagenPif(guion, QStringLiteral("leido.pif"), QStringLiteral("Copia")));
    FijaCarpetaPif({});
}

TEST(DOSExe, TextOutsideWindows1252OrAnUnwritableFolderRunNothing) {
    EXPECT_TRUE(ImagenPif(QStringLiteral("C:\\A.EXE"), QStringLiteral("\u4E2D"), QString()).isEmpty());
    FijaCarpetaPif(QStringLiteral("/proc/no-such-folder"));
    EXPECT_FALSE(DOSExe(QStringLiteral("/bin/true"), QString(), QString()));
    FijaCarpetaPif({});
}
