#include "comms/pasarela.h"

#include "comms/descarga.h"
#include "companion/config.h"
#include "companion/mensajes.h"
#include "companion/registro.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <span>

namespace nod {

namespace {

// An entry of the program folder: a folder, or a file path as the suite wrote it.
struct Entrada {
    const char16_t* ruta;
    bool carpeta;
};

constexpr Entrada kLibrerias[] = {
    {u"PasarelaWebCGN.dll", false}, {u"Base64.dll", false},  {u"CGZipLibrary.dll", false},
    {u"msxml4.dll", false},         {u"msxml4a.dll", false}, {u"msxml4r.dll", false},
    {u"Unzip32.dll", false},        {u"zip32.dll", false},
};

constexpr Entrada kConfiguracion[] = {
    {u"xsd_forms", true},
    {u"conf", true},
    {u"\\conf\\cgn_config.xml", false},
    {u"\\conf\\cgn_config.xsd", false},
    {u"\\xsd_forms\\common.xsd", false},
};

constexpr Entrada kEnviosUnicos[] = {
    {u"templates", true},
    {u"xsd", true},
    {u"\\templates\\acta_1.7.xml", false},
    {u"\\templates\\parte_1.7.xml", false},
    {u"\\xsd\\ACTA_NOTARIO-1.7dll.xsd", false},
    {u"\\xsd\\PARTE_NOTARIO-1.7dll.xsd", false},
};

const QString kRutaPortal = QStringLiteral("/modules/Programas/NODRIM/Actualizaciones/Download/08tecnico01/");

// A file of the portal and where it is saved under the base folder (both with "/" here).
struct Descarga {
    const char16_t* portal;
    const char16_t* destino;
};

constexpr Descarga kPlantillas[] = {
    {u"templates/acta_1.7.xml", u"templates/acta_1.7.xml"},
    {u"templates/parte_1.7.xml", u"templates/parte_1.7.xml"},
};
constexpr Descarga kEsquemas[] = {
    {u"xsd/ACTA_NOTARIO-1.7dll.xsd", u"xsd/ACTA_NOTARIO-1.7dll.xsd"},
    {u"xsd/PARTE_NOTARIO-1.7dll.xsd", u"xsd/PARTE_NOTARIO-1.7dll.xsd"},
};
constexpr Descarga kInstalador = {u"PasarelaSetup.exe", u"PasarelaSetup.exe"};

const QString kNoDescargado = QStringLiteral("Fichero de instalación no descargado");

QString& carpetaProgramaFijada() {
    static QString c;
    return c;
}

LanzadorPrograma& lanzador() {
    static LanzadorPrograma l;
    return l;
}

QString conBarraFinal(QString carpeta) {
    if (!carpeta.endsWith(u'/')) carpeta += u'/';
    return carpeta;
}

// The entries, in order, all present in the program folder; stops at the first missing one. The file
// entries begin with a separator and are appended to the folder, which ends in one: the doubled separator
// is read as one.
bool todasPresentes(std::span<const Entrada> entradas) {
    const QString carpeta = CarpetaPrograma();
    for (const Entrada& e : entradas) {
        const QFileInfo fi(carpeta + QString::fromUtf16(e.ruta).replace(u'\\', u'/'));
        if (!(e.carpeta ? fi.isDir() : fi.isFile())) {
            qCInfo(lcComms) << "web gateway: missing" << fi.filePath();
            return false;
        }
    }
    return true;
}

// One download from the portal into the base folder, under the wait message `espera`, whose second line
// says which file is coming and, at most a few times a second, how much of it has arrived.
bool descargaDelPortal(const Descarga& d, const QString& espera) {
    const QString nombre = QString::fromUtf16(d.destino);
    const QString linea = espera + u'\n' + QString(nombre).replace(u'/', u'\\');
    CambiaMensaje(linea);
    QElapsedTimer reloj;
    reloj.start();
    const auto progreso = [&](qint64 recibidos, qint64 total) {
        if (reloj.elapsed() < 300) return;
        reloj.restart();
        CambiaMensaje(total > 0 ? QStringLiteral("%1: %2 %").arg(linea).arg(recibidos * 100 / total)
                                : QStringLiteral("%1: %2 KB").arg(linea).arg(recibidos / 1024));
    };
    return DescargarFichero(Config.GetPortalFabricante().trimmed() + kRutaPortal +
                                QString::fromUtf16(d.portal),
                            CarpetaBase() + nombre, progreso);
}

} // namespace

QString CarpetaPrograma() {
    const QString& fijada = carpetaProgramaFijada();
    return conBarraFinal(fijada.isEmpty() ? QCoreApplication::applicationDirPath() : fijada);
}

void FijaCarpetaPrograma(const QString& carpeta) {
    carpetaProgramaFijada() = carpeta;
}

QString CarpetaBase() {
    return conBarraFinal(Config.CarpetaOficina());
}

LanzadorPrograma FijaLanzadorPrograma(LanzadorPrograma nuevo) {
    return std::exchange(lanzador(), std::move(nuevo));
}

bool CompruebaFicherosPasarela() {
    const bool librerias = todasPresentes(kLibrerias);
    const bool configuracion = todasPresentes(kConfiguracion);
    return librerias && configuracion && CompruebaFicherosPasarelaParaEnviosUnicos();
}

bool CompruebaFicherosPasarelaParaEnviosUnicos() {
    return todasPresentes(kEnviosUnicos) || DescargaFicherosPasarelaParaEnviosUnicos();
}

bool DescargaFicherosPasarelaParaEnviosUnicos() {
    bool hecho = false;
    if (Mensaje_SiNo(QStringLiteral(
                         "¿Descargar los ficheros para enviar Partes y Actas? Asegúrese de estar conectado"),
                     QStringLiteral("No se han encontrado alguno de los ficheros de la Pasarela Web"),
                     QStringLiteral("Alguno de los ficheros de la Pasarela Web no encontrados")) == 1) {
        const QString espera = QStringLiteral("Descargando ficheros del Portal de Zeb Soft...");
        MuestraMensaje(espera);
        CambiaMensaje(espera);
        // Each download runs only while every earlier one succeeded; the flag is the last one's result.
        bool primera = true;
        const auto descarga = [&](std::span<const Descarga> ficheros) {
            for (const Descarga& d : ficheros) {
                if (!primera && !hecho) return;
                primera = false;
                hecho = descargaDelPortal(d, espera);
            }
        };
        QDir().mkpath(CarpetaBase() + QStringLiteral("templates"));
        descarga(kPlantillas);
        QDir().mkpath(CarpetaBase() + QStringLiteral("xsd"));
        descarga(kEsquemas);
        CierraMensaje();
    }
    if (!hecho)
        Mensaje_Error(
            QStringLiteral(
                "No se ha podido descargar alguno de los ficheros de instalación de la Pasarela Web"),
            kNoDescargado);
    return hecho;
}

bool DescargaFicherosPasarela() {
    const QString ruta = CarpetaBase() + QString::fromUtf16(kInstalador.destino);
    QFile::remove(ruta);
    if (QFileInfo::exists(ruta)) return true;
    bool hecho = false;
    if (Mensaje_SiNo(QStringLiteral(
                         "¿Desea descargar ahora el fichero de Instalación? Asegúrese de que está conectado"),
                     QStringLiteral("No se han encontrado los ficheros de la Pasarela Web"),
                     QStringLiteral("Ficheros de la Pasarela Web no encontrados")) == 1) {
        const QString espera = QStringLiteral("Descargando fichero del Portal de Zeb Soft...");
        MuestraMensaje(espera);
        hecho = descargaDelPortal(kInstalador, espera);
        CierraMensaje();
    }
    if (!hecho)
        Mensaje_Error(
            QStringLiteral("No se ha podido descargar el fichero de instalación de la Pasarela Web"),
            kNoDescargado);
    return hecho;
}

void InstalaPasarela() {
    const QString ruta = CarpetaBase() + QString::fromUtf16(kInstalador.destino);
    if (!QFileInfo::exists(ruta)) {
        Mensaje_Error(QStringLiteral("No se ha encontrado el fichero de instalación de la Pasarela Web"),
                      QStringLiteral("Fichero de instalación no encontrado"));
        return;
    }
    if (Mensaje_SiNo(QStringLiteral("¿Desea instalar la Pasarela Web?"),
                     QStringLiteral("No tiene instalada la Pasarela Web"),
                     QStringLiteral("Pasarela Web no instalada")) != 1)
        return;
    const bool iniciado =
        lanzador() ? lanzador()(ruta) : QProcess::startDetached(ruta, {}, QFileInfo(ruta).absolutePath());
    if (!iniciado) {
        qCWarning(lcComms) << "web gateway: could not start" << ruta;
        Mensaje_Error(QStringLiteral("No se ha podido iniciar el programa de instalación de la Pasarela Web"),
                      QStringLiteral("Pasarela Web no instalada"));
    }
}

QString CompruebaPasarelaWebIni() {
    const QString ruta = Config.RutaUnidadC(QStringLiteral("C:\\PasarelaWeb.ini"));
    if (QFileInfo::exists(ruta)) return ruta;
    const QByteArray contenido = "[Parameters]\r\n"
                                 "NIVEL_LOG=2\r\n"
                                 "FICHERO_LOG=C:\\PasarelaWeb.log\r\n"
                                 "PROXY_SERVER=<CURRENT_USER>\r\n"
                                 "CONNECTOR_TIMEOUT=120000\r\n";
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    QSaveFile f(ruta);
    if (!f.open(QIODevice::WriteOnly) || f.write(contenido) != contenido.size() || !f.commit()) {
        qCWarning(lcComms) << "web gateway: cannot write" << ruta << ":" << f.errorString();
        Mensaje_Error(
            QStringLiteral("No se ha podido crear el fichero de configuración de la Pasarela Web %1: %2")
                .arg(QDir::toNativeSeparators(ruta), f.errorString()),
            QStringLiteral("Pasarela Web"));
    }
    return ruta;
}

QString DameContenidoXML(const QString& texto, const QString& etiquetaInicio, const QString& etiquetaFin) {
    // An empty tag is never found, as the suite's text search never finds an empty text.
    const qsizetype inicio = etiquetaInicio.isEmpty() ? -1 : texto.indexOf(etiquetaInicio);
    if (inicio < 0) return {};
    const qsizetype desde = inicio + etiquetaInicio.size();
    const qsizetype fin = etiquetaFin.isEmpty() ? -1 : texto.indexOf(etiquetaFin);
    if (fin < desde) return {};
    return texto.mid(desde, fin - desde);
}

} // namespace nod
