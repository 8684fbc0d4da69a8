#include "frame/dosexe.h"

#include "companion/codepage.h"
#include "companion/registro.h"
#include "frame/ficheros.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <cstdio>
#include <cstring>
#include <optional>

namespace nod {

namespace {

QString g_carpetaPif;
void pitidoConsola() {
    std::fputc('\a', stderr);
}
void (*g_pitido)() = pitidoConsola;

// Offsets of the image (from 0).
constexpr int kTitulo = 2, kLargoTitulo = 30;
constexpr int kPrograma = 36, kCarpeta = 101, kParametros = 165, kParametros386 = 453;
constexpr int kLargoCampo = 63;
constexpr int kCabeceraPifex = 0x171, kCabecera386 = 0x187, kDatos386 = 0x19D;
constexpr int kCabeceraVmm = 0x205, kDatosVmm = 0x21B;

void pon(QByteArray& img, int offset, const QByteArray& bytes) {
    std::memcpy(img.data() + offset, bytes.constData(), size_t(bytes.size()));
}
void pon16(QByteArray& img, int offset, quint16 v) {
    img[offset] = char(v & 0xFF);
    img[offset + 1] = char(v >> 8);
}

// An extension heading: a 16-byte name, the offset of the next heading (0xFFFF for the last), the offset
// and the length of the section's data.
void cabecera(QByteArray& img, int offset, const char* nombre, quint16 siguiente, quint16 datos,
              quint16 largo) {
    pon(img, offset, QByteArray(nombre));
    pon16(img, offset + 16, siguiente);
    pon16(img, offset + 18, datos);
    pon16(img, offset + 20, largo);
}

QByteArray construyePlantilla() {
    QByteArray img(kTamanoPif, '\0');
    // Basic section: the sample values the office's image has always carried.
    pon(img, kTitulo, QByteArray("MS-DOS Prompt").leftJustified(kLargoTitulo, ' '));
    pon16(img, 0x20, 640); // memory required, KB
    pon16(img, 0x22, 128); // memory desired, KB
    pon(img, kPrograma, "COMMAND.COM");
    img[0x63] = char(0x10); // close window on exit
    pon(img, kCarpeta, "C:\\WINDOWS\\");
    img[0xE5] = char(0x7F); // video: text mode
    img[0xE6] = char(0x01); // screen pages
    img[0xE7] = char(0x00);
    img[0xE8] = char(0xFF); // last interrupt vector
    img[0xE9] = char(25);   // rows
    img[0xEA] = char(80);   // columns
    pon16(img, 0x170, 0);   // end of the basic section

    cabecera(img, kCabeceraPifex, "MICROSOFT PIFEX", kCabecera386, 0x0000, 0x0171);
    cabecera(img, kCabecera386, "WINDOWS 386 3.0", kCabeceraVmm, kDatos386, 0x0068);
    // Windows 386 section: memory limits, priorities, flags.
    pon16(img, kDatos386 + 0x00, 640);
    pon16(img, kDatos386 + 0x02, 128);
    pon16(img, kDatos386 + 0x04, 100); // foreground priority
    pon16(img, kDatos386 + 0x06, 50);  // background priority
    pon16(img, kDatos386 + 0x08, 1024);
    pon16(img, kDatos386 + 0x0C, 1024);
    pon16(img, kDatos386 + 0x10, 0x0002); // run in a window
    cabecera(img, kCabeceraVmm, "WINDOWS VMM 4.0", 0xFFFF, kDatosVmm, 0x01AC);
    // Windows VMM 4.0 section: icon, then the raster and TrueType fonts of the console window.
    pon(img, kDatosVmm + 0x58, "PIFMGR.DLL");
    pon16(img, kDatosVmm + 0xA8, 0);
    pon16(img, kDatosVmm + 0xC0, 25); // lines
    pon(img, kDatosVmm + 0xEC, "Terminal");
    pon(img, kDatosVmm + 0x10C, "Lucida Console");
    return img;
}

std::optional<QByteArray> campo(const QString& texto, int largo) {
    auto bytes = Codifica(texto.left(largo));
    if (!bytes)
        qCWarning(lcFrame) << "DOSExe: el texto tiene caracteres que Windows-1252 no admite:" << texto;
    return bytes;
}

QString carpetaDe(const QString& programa) {
    const qsizetype barra =
        qMax(programa.lastIndexOf(QLatin1Char('\\')), programa.lastIndexOf(QLatin1Char('/')));
    return barra < 0 ? QString() : programa.left(barra + 1);
}

} // namespace

const QByteArray& PlantillaPif() {
    static const QByteArray plantilla = construyePlantilla();
    return plantilla;
}

QByteArray ImagenPif(const QString& programa, const QString& parametros, const QString& titulo) {
    const auto t = campo(titulo.leftJustified(kLargoTitulo, QLatin1Char(' '), true), kLargoTitulo);
    const auto p = campo(programa, kLargoCampo);
    const auto c = campo(ExtraePath(programa), kLargoCampo);
    const auto a = campo(parametros, kLargoCampo);
    if (!t || !p || !c || !a) return {};
    QByteArray img = PlantillaPif();
    pon(img, kTitulo, *t);
    for (auto [offset, bytes] :
         {std::pair{kPrograma, *p}, {kCarpeta, *c}, {kParametros, *a}, {kParametros386, *a}}) {
        pon(img, offset, bytes);
        img[offset + bytes.size()] = '\0';
    }
    return img;
}

void FijaCarpetaPif(const QString& carpeta) {
    g_carpetaPif = carpeta;
}

QString CarpetaPif() {
    if (!g_carpetaPif.isEmpty()) return g_carpetaPif;
    return QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QDir::currentPath();
}

void FijaPitido(void (*pitido)()) {
    g_pitido = pitido ? pitido : pitidoConsola;
}

bool DOSExe(const QString& programa, const QString& parametros, const QString& titulo) {
    const QByteArray img = ImagenPif(programa, parametros, titulo);
    const QString ruta = QDir(CarpetaPif()).filePath(QStringLiteral("UnPif.pif"));
    QFile f(ruta);
    qint64 escritos = -1;
    if (!img.isEmpty() && f.open(QIODevice::WriteOnly | QIODevice::Truncate)) escritos = f.write(img);
    f.close();
    if (escritos != kTamanoPif) {
        qCWarning(lcFrame).noquote() << "DOSExe: no se pudo escribir" << ruta << f.errorString();
        return false;
    }

    QProcess proceso;
    QString ejecutable = programa;
    ejecutable.replace(QLatin1Char('\\'), QLatin1Char('/'));
    proceso.setProgram(ejecutable);
    proceso.setArguments(QProcess::splitCommand(parametros));
    const QString carpeta = carpetaDe(ejecutable);
    if (!carpeta.isEmpty()) proceso.setWorkingDirectory(carpeta);
    proceso.setProcessChannelMode(QProcess::ForwardedChannels);
    proceso.start();
    if (!proceso.waitForStarted())
        qCWarning(lcFrame).noquote() << "DOSExe: no se pudo arrancar" << ejecutable << proceso.errorString();
    else
        while (!proceso.waitForFinished(1000) && proceso.state() != QProcess::NotRunning)
            QCoreApplication::processEvents();
    g_pitido();
    QFile::remove(ruta);
    return true;
}

} // namespace nod
