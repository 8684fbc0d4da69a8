// The web gateway's files against a real HTTP server on 127.0.0.1 standing for the maker's portal: which
// files are checked and where, the questions, wait message and errors of each routine, where downloads go,
// and that a failed download never leaves a partial file; the set-up program, the initialisation file, the
// XML cutter, the updating workstation and the connection test.
#include "comms/conexion.h"
#include "comms/descarga.h"
#include "comms/pasarela.h"
#include "companion/equipo.h"
#include "companion/mensajes.h"
#include "tests/comms/apoyo.h"
#include "tests/ident/servidor_http.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace nod {
namespace {

using prueba::Dialogos;
using prueba::RespuestaHttp;

const QByteArray kRuta = "/modules/Programas/NODRIM/Actualizaciones/Download/08tecnico01/";

RespuestaHttp fichero(const QByteArray& contenido, const QByteArray& tipo = "application/octet-stream",
                      int estado = 200) {
    return {.estado = estado, .cuerpo = contenido, .tipo = tipo};
}

QByteArray lee(const QString& ruta) {
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

using prueba::EscribeFichero;

const QStringList kLibrerias = u"PasarelaWebCGN.dll Base64.dll CGZipLibrary.dll msxml4.dll "
                               "msxml4a.dll msxml4r.dll Unzip32.dll zip32.dll"_s.split(u' ');
const QStringList kConfiguracion =
    u"conf/cgn_config.xml conf/cgn_config.xsd xsd_forms/common.xsd"_s.split(u' ');
const QStringList kEnviosUnicos = u"templates/acta_1.7.xml templates/parte_1.7.xml "
                                  "xsd/ACTA_NOTARIO-1.7dll.xsd xsd/PARTE_NOTARIO-1.7dll.xsd"_s.split(u' ');

const QString kPreguntaFicheros = u"Mensaje_SiNo|Alguno de los ficheros de la Pasarela Web no "
                                  "encontrados|No se han encontrado alguno de los "
                                  "ficheros de la Pasarela Web\n¿Descargar los ficheros para "
                                  "enviar Partes y Actas? Asegúrese de estar conectado"_s;
const QString kErrorFicheros = u"Mensaje_Error|Fichero de instalación no descargado|No se ha podido "
                               "descargar alguno de los ficheros de instalación de la Pasarela Web"_s;
const QString kEsperaFicheros = u"Descargando ficheros del Portal de Zeb Soft..."_s;

class PasarelaTest : public ::testing::Test {
protected:
    void SetUp() override {
        FijaCarpetaPrograma(programa.path());
        Config.SetPortalFabricante(servidor.base());
        Config.SetEsperaDescargaMs(1000);
        servidor.respondeCon(fichero("<html>Not found</html>", "text/html", 404));
        for (const QString& f : kEnviosUnicos)
            servidor.respondeEn(kRuta + f.toLatin1(), fichero("contenido de " + f.toLatin1(), "text/xml"));
    }
    void TearDown() override { FijaCarpetaPrograma({}); }

    // Every entry the gateway needs, in the program folder.
    void instalaTodo(const QStringList& menos = {}) {
        for (const QStringList* grupo : {&kLibrerias, &kConfiguracion, &kEnviosUnicos})
            for (const QString& f : *grupo)
                if (!menos.contains(f)) EscribeFichero(QDir(programa.path()).filePath(f), "x");
    }
    QString base(const QString& relativa) const { return oficina.ruta(relativa); }
    // Clears the dialogs, queues the clerk's answers and runs `f`; gives the dialogs it showed.
    template <class F> QStringList tras(std::deque<int> respuestas, F f) {
        guion.limpia();
        guion.respuestas(std::move(respuestas));
        f();
        return Dialogos(guion);
    }

    prueba::OficinaPrueba oficina;
    QTemporaryDir programa;
    prueba::ServidorHttp servidor;
    ServicioMensajesGuionado guion;
    ServicioMensajesInstalado instalado{guion};
};

// Everything present is true. Any library or configuration entry missing, or a folder where a file should
// be, gives false, even with the single-sending files missing too. Either way silently: nothing is offered
// for download.
TEST_F(PasarelaTest, LibrariesAndConfigurationAreCheckedSilently) {
    QStringList faltas = kLibrerias + kConfiguracion;
    faltas << u"conf"_s << u"xsd_forms"_s << QString();
    for (const QString& falta : faltas) {
        QTemporaryDir otro;
        FijaCarpetaPrograma(otro.path());
        for (const QStringList* grupo : {&kLibrerias, &kConfiguracion, &kEnviosUnicos})
            for (const QString& f : *grupo)
                if (falta.isEmpty() || (grupo != &kEnviosUnicos && f != falta && !f.startsWith(falta + u'/')))
                    EscribeFichero(QDir(otro.path()).filePath(f), "x");
        EXPECT_EQ(CompruebaFicherosPasarela(), falta.isEmpty()) << falta.toStdString();
    }
    instalaTodo({u"Base64.dll"_s});
    QDir(programa.path()).mkdir(u"Base64.dll"_s);
    FijaCarpetaPrograma(programa.path());
    EXPECT_FALSE(CompruebaFicherosPasarela()) << "a folder in place of a file";
    EXPECT_TRUE(guion.mostrados().isEmpty());
    EXPECT_TRUE(servidor.peticiones().isEmpty());
}

TEST_F(PasarelaTest, MissingSingleSendingFilesAreDownloadedIntoTheBaseFolder) {
    instalaTodo({kEnviosUnicos[2]});
    guion.respuestas({6});
    EXPECT_TRUE(CompruebaFicherosPasarela());
    ASSERT_EQ(servidor.peticiones().size(), kEnviosUnicos.size());
    for (qsizetype i = 0; i < kEnviosUnicos.size(); ++i) {
        EXPECT_EQ(servidor.peticiones()[i].ruta, kRuta + kEnviosUnicos[i].toLatin1());
        EXPECT_EQ(lee(base(kEnviosUnicos[i])), "contenido de " + kEnviosUnicos[i].toLatin1());
    }
    EXPECT_FALSE(QFileInfo::exists(QDir(programa.path()).filePath(kEnviosUnicos[2])))
        << "downloads go to the base folder, not the program folder";
    const QStringList d = Dialogos(guion);
    ASSERT_GE(d.size(), 7);
    EXPECT_EQ(d[0], kPreguntaFicheros);
    EXPECT_EQ(d[1], u"MuestraMensaje||"_s + kEsperaFicheros);
    EXPECT_EQ(d[2], u"CambiaMensaje||"_s + kEsperaFicheros);
    EXPECT_EQ(d[3], u"CambiaMensaje||"_s + kEsperaFicheros + u"\ntemplates\\acta_1.7.xml"_s);
    EXPECT_EQ(d.last(), u"CambiaMensaje||"_s + kEsperaFicheros + u"\nxsd\\PARTE_NOTARIO-1.7dll.xsd"_s);
    EXPECT_FALSE(guion.esperaVisible());
}

// Each failure stops the downloads after it, shows the Part's error and leaves no partial file; what was
// downloaded before stays.
TEST_F(PasarelaTest, FailedDownloadsStopThereAndLeaveNoPartialFile) {
    struct Caso {
        const char* nombre;
        std::deque<int> respuestas;
        int falla;               // index of the file that fails; -1 none asked
        RespuestaHttp respuesta; // what the portal answers for it
        bool calla = false;
    };
    RespuestaHttp html =
        fichero("<!DOCTYPE html><html><body>Inicie sesión</body></html>", "text/html; charset=utf-8");
    RespuestaHttp htmlSinTipo =
        fichero("\xef\xbb\xbf  <HTML><body>Acceso</body></HTML>", "application/octet-stream");
    const RespuestaHttp noEsta = fichero("no", "text/plain", 404);
    const RespuestaHttp cortada{.cuerpo = QByteArray(64 * 1024, 'x'), .tipo = "text/xml", .corta = true};
    const Caso casos[] = {
        {"answered no", {7}, -1, {}},
        {"Escape", {}, -1, {}},
        {"second template not found", {6}, 1, noEsta},
        {"first schema cut short", {6}, 2, cortada},
        {"portal answers its login page", {6}, 0, html},
        {"a page without its type", {6}, 3, htmlSinTipo},
        {"portal silent", {6}, 0, {}, true},
    };
    for (const Caso& c : casos) {
        prueba::OficinaPrueba propia;
        prueba::ServidorHttp portal;
        Config.SetPortalFabricante(portal.base());
        Config.SetEsperaDescargaMs(500);
        portal.respondeCon(QByteArray(), 404);
        for (qsizetype i = 0; i < kEnviosUnicos.size(); ++i)
            portal.respondeEn(kRuta + kEnviosUnicos[i].toLatin1(),
                              i == c.falla ? c.respuesta : fichero("bien " + kEnviosUnicos[i].toLatin1()));
        if (c.calla) portal.calla();
        guion.limpia();
        guion.respuestas(c.respuestas);

        EXPECT_FALSE(CompruebaFicherosPasarelaParaEnviosUnicos()) << c.nombre;
        EXPECT_EQ(Dialogos(guion).last(), kErrorFicheros) << c.nombre;
        EXPECT_EQ(portal.peticiones().size(), c.falla + 1) << c.nombre;
        QStringList esperado;
        for (int i = 0; i < c.falla; ++i)
            esperado.append(kEnviosUnicos[i]);
        QStringList hay;
        const QDir raiz(propia.ruta());
        for (const QString& carpeta : {u"templates"_s, u"xsd"_s})
            for (const QString& f :
                 QDir(raiz.filePath(carpeta)).entryList(QDir::Files | QDir::Hidden | QDir::System))
                hay.append(carpeta + u'/' + f);
        EXPECT_EQ(hay, esperado) << c.nombre << " (no temporary file left either)";
        for (const QString& f : esperado)
            EXPECT_EQ(lee(raiz.filePath(f)), "bien " + f.toLatin1()) << c.nombre;
        EXPECT_FALSE(guion.esperaVisible()) << c.nombre;
    }
}

TEST_F(PasarelaTest, SetUpProgramIsFetchedAfreshEveryTime) {
    const QString setup = base(u"PasarelaSetup.exe"_s);
    const QString pregunta =
        u"Mensaje_SiNo|Ficheros de la Pasarela Web no encontrados|No se han encontrado los ficheros de la "
        "Pasarela Web\n¿Desea descargar ahora el fichero de Instalación? Asegúrese de que está conectado"_s;
    const QString error = u"Mensaje_Error|Fichero de instalación no descargado|No se ha podido "
                          "descargar el fichero de instalación de la Pasarela Web"_s;
    servidor.respondeEn(kRuta + "PasarelaSetup.exe", fichero("MZ nuevo"));

    EscribeFichero(setup, "MZ viejo");
    guion.respuestas({6});
    EXPECT_TRUE(DescargaFicherosPasarela());
    EXPECT_EQ(lee(setup), "MZ nuevo");
    ASSERT_EQ(servidor.peticiones().size(), 1);
    EXPECT_EQ(servidor.peticiones()[0].ruta, kRuta + "PasarelaSetup.exe");
    EXPECT_EQ(Dialogos(guion).value(0), pregunta);
    EXPECT_EQ(Dialogos(guion).value(1), u"MuestraMensaje||Descargando fichero del Portal de Zeb Soft..."_s);
    EXPECT_FALSE(Dialogos(guion).contains(error));

    bool bien = true;
    EXPECT_EQ(tras({7}, [&] { bien = DescargaFicherosPasarela(); }), QStringList({pregunta, error}));
    EXPECT_FALSE(bien);
    EXPECT_FALSE(QFileInfo::exists(setup)) << "the old program was deleted before asking";

    servidor.respondeEn(kRuta + "PasarelaSetup.exe", fichero("MZ", "text/html"));
    EXPECT_EQ(tras({6}, [&] { bien = DescargaFicherosPasarela(); }).last(), error);
    EXPECT_FALSE(bien);
    EXPECT_FALSE(QFileInfo::exists(setup));
}

// A set-up "program" that is a folder with something in it cannot be deleted (by root either): kept, and
// nothing is asked.
TEST_F(PasarelaTest, SetUpProgramThatCannotBeDeletedIsKept) {
    EscribeFichero(base(u"PasarelaSetup.exe/dentro"_s), "x");
    EXPECT_TRUE(DescargaFicherosPasarela());
    EXPECT_TRUE(guion.mostrados().isEmpty());
    EXPECT_TRUE(servidor.peticiones().isEmpty());
}

TEST_F(PasarelaTest, InstalaPasarelaStartsTheSetUpOnlyWhenPresentAndWanted) {
    QStringList lanzados;
    bool arranca = true;
    FijaLanzadorPrograma([&](const QString& p) {
        lanzados.append(p);
        return arranca;
    });
    const QString setup = base(u"PasarelaSetup.exe"_s);
    const QString pregunta = u"Mensaje_SiNo|Pasarela Web no instalada|No tiene instalada la Pasarela "
                             "Web\n¿Desea instalar la Pasarela Web?"_s;

    EXPECT_EQ(tras({}, InstalaPasarela),
              QStringList{u"Mensaje_Error|Fichero de instalación no encontrado|No se ha "
                          "encontrado el fichero de instalación de la Pasarela Web"_s});
    EscribeFichero(setup, "MZ");
    EXPECT_EQ(tras({7}, InstalaPasarela), QStringList{pregunta});
    EXPECT_TRUE(lanzados.isEmpty());
    EXPECT_EQ(tras({6}, InstalaPasarela), QStringList{pregunta});
    EXPECT_EQ(lanzados, QStringList{setup});
    arranca = false;
    EXPECT_TRUE(tras({6}, InstalaPasarela).last().startsWith(u"Mensaje_Error|Pasarela Web no instalada|"_s));
    FijaLanzadorPrograma(nullptr);
}

TEST_F(PasarelaTest, GatewayIniIsWrittenOnceAndNeverOverwritten) {
    const QString ruta = oficina.ruta(u"C/PasarelaWeb.ini"_s);
    EXPECT_EQ(CompruebaPasarelaWebIni(), ruta);
    EXPECT_EQ(lee(ruta), "[Parameters]\r\nNIVEL_LOG=2\r\nFICHERO_LOG=C:\\PasarelaWeb.log\r\n"
                         "PROXY_SERVER=<CURRENT_USER>\r\nCONNECTOR_TIMEOUT=120000\r\n");
    EscribeFichero(ruta, "[Parameters]\r\nNIVEL_LOG=5\r\n");
    EXPECT_EQ(CompruebaPasarelaWebIni(), ruta);
    EXPECT_EQ(lee(ruta), "[Parameters]\r\nNIVEL_LOG=5\r\n");
    EXPECT_TRUE(guion.mostrados().isEmpty());
}

// A drive-root folder that cannot take the file: a file standing where the folder should be, or a folder of
// the kernel's that refuses even root (as a read-only folder refuses anyone else).
TEST_F(PasarelaTest, GatewayIniThatCannotBeWrittenIsReported) {
    for (const bool sys : {false, true}) {
        SCOPED_TRACE(sys ? "the kernel's /sys" : "a file in place of the folder");
        prueba::OficinaPrueba propia;
        guion.limpia();
        if (sys)
            Config.SetUnidadC(u"/sys"_s);
        else
            EscribeFichero(propia.ruta(u"C"_s), "x");
        const QString ini = Config.RutaUnidadC(u"C:\\PasarelaWeb.ini"_s);
        EXPECT_EQ(CompruebaPasarelaWebIni(), ini);
        ASSERT_EQ(guion.mostrados().size(), 1);
        EXPECT_EQ(guion.mostrados()[0].kind, u"Mensaje_Error"_s);
        EXPECT_TRUE(guion.mostrados()[0].text.startsWith(
            u"No se ha podido crear el fichero de configuración de la Pasarela Web"_s));
        EXPECT_FALSE(QFileInfo(ini).isFile());
    }
}

TEST(DameContenidoXML, CutsBetweenTheFirstTags) {
    const struct {
        QString texto, inicio, fin, resultado;
    } casos[] = {
        {u"<a>1</a>"_s, u"<a>"_s, u"</a>"_s, u"1"_s},
        {u"<a>1"_s, u"<a>"_s, u"</a>"_s, u""_s},
        {u"1</a>"_s, u"<a>"_s, u"</a>"_s, u""_s},
        {u"<r><a>uno</a><a>dos</a></r>"_s, u"<a>"_s, u"</a>"_s, u"uno"_s},
        {u"</a><a>1</a>"_s, u"<a>"_s, u"</a>"_s, u""_s}, // the end tag is searched from the beginning
        {u"<a></a>"_s, u"<a>"_s, u"</a>"_s, u""_s},
        {u"<id>ñandú</id>"_s, u"<id>"_s, u"</id>"_s, u"ñandú"_s},
        {u"<a>1</a>"_s, u""_s, u"</a>"_s, u""_s},
        {u"<a>1</a>"_s, u"<a>"_s, u""_s, u""_s},
        {u"xax"_s, u"xa"_s, u"ax"_s, u""_s}, // the end tag overlaps the start tag
    };
    for (const auto& c : casos)
        EXPECT_EQ(DameContenidoXML(c.texto, c.inicio, c.fin), c.resultado) << c.texto.toStdString();
}

TEST(PuedeActualizarEsteEquipo, TodosOnlyInCapitalsElseTheComputerName) {
    prueba::OficinaPrueba oficina;
    const QString equipo = DameNombreEquipo();
    ASSERT_FALSE(equipo.isEmpty());
    ASSERT_NE(equipo.toUpper(), u"TODOS"_s);
    const struct {
        QString valor;
        bool puede;
    } casos[] = {
        {u"TODOS"_s, true},       {u"todos"_s, false},      {u"Todos"_s, false},    {u" TODOS"_s, false},
        {equipo.toLower(), true}, {equipo.toUpper(), true}, {equipo + u'x', false}, {{}, false},
    };
    for (const auto& c : casos) {
        Config.SetUsuarioParaActualizar(c.valor);
        EXPECT_EQ(PuedeActualizarEsteEquipo(), c.puede) << c.valor.toStdString();
    }
}

class ConexionTest : public ::testing::Test {
protected:
    void SetUp() override {
        Config.SetWebFabricante(servidor.base() + u"/"_s);
        Config.SetEsperaConexionMs(500);
        FijaEstadoConexion([this] { return sistema; });
    }
    void TearDown() override { FijaEstadoConexion(nullptr); }

    prueba::OficinaPrueba oficina;
    prueba::ServidorHttp servidor;
    bool sistema = true;
};

TEST_F(ConexionTest, ReachingTheSiteIsWhatCounts) {
    struct Caso {
        const char* nombre;
        std::function<void()> prepara;
        bool conectado;
        int peticiones;
    };
    const Caso casos[] = {
        {"a large page", [this] { servidor.respondeCon(fichero(QByteArray(200000, 'x'), "text/html")); },
         true, 1},
        {"any answer, even an error page", [this] { servidor.respondeCon("no", 404); }, true, 1},
        {"system reports no network", [this] { sistema = false; }, false, 0},
        {"nobody listening",
         [] { Config.SetWebFabricante(u"http://127.0.0.1:%1"_s.arg(prueba::ServidorHttp::puertoCerrado())); },
         false, 0},
        {"connection closed unanswered", [this] { servidor.cierra(); }, false, -1},
        {"no answer in time", [this] { servidor.calla(); }, false, 1},
        {"not an address", [] { Config.SetWebFabricante(u"zebsoft"_s); }, false, 0},
    };
    for (const Caso& c : casos) {
        SetUp();
        sistema = true;
        const qsizetype antes = servidor.peticiones().size();
        c.prepara();
        EXPECT_EQ(TieneConexionAInternet(), c.conectado) << c.nombre;
        if (c.peticiones >= 0) {
            EXPECT_EQ(servidor.peticiones().size() - antes, c.peticiones) << c.nombre;
        }
    }
    // The site is asked from the network, never from a cache, with the suite's agent.
    ASSERT_FALSE(servidor.peticiones().isEmpty());
    const prueba::PeticionHttp& p = servidor.peticiones()[0];
    EXPECT_EQ(p.metodo, "GET");
    EXPECT_EQ(p.ruta, "/");
    EXPECT_EQ(p.cabeceras.value("user-agent"), "InetURL:/1.0");
    EXPECT_EQ(p.cabeceras.value("cache-control"), "no-cache");
    EXPECT_EQ(p.cabeceras.value("pragma"), "no-cache");
}

// A web page is refused where a file is wanted, welcome where a page is.
TEST(DescargarFichero, ReportsProgressKeepsTheOldFileOnFailureAndTakesPagesOnlyAsPages) {
    prueba::OficinaPrueba oficina;
    Config.SetEsperaDescargaMs(1000);
    prueba::ServidorHttp servidor;
    QTemporaryDir carpeta;
    const QString destino = QDir(carpeta.path()).filePath(u"datos.bin"_s);
    const QByteArray contenido(300 * 1024, 'z');
    servidor.respondeEn("/datos.bin", fichero(contenido));
    qint64 ultimo = -1, total = -1;
    EXPECT_TRUE(DescargarFichero(servidor.base() + u"/datos.bin"_s, destino, [&](qint64 r, qint64 t) {
        ultimo = r;
        total = t;
    }));
    EXPECT_EQ(lee(destino), contenido);
    EXPECT_EQ(ultimo, contenido.size());
    EXPECT_EQ(total, contenido.size());

    servidor.respondeEn("/datos.bin", {.cuerpo = QByteArray(300 * 1024, 'n'), .corta = true});
    EXPECT_FALSE(DescargarFichero(servidor.base() + u"/datos.bin"_s, destino));
    EXPECT_EQ(lee(destino), contenido) << "the old file stays whole";
    EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"datos.bin"_s});

    EXPECT_FALSE(DescargarFichero(u"ftp://127.0.0.1/datos.bin"_s, destino));
    EXPECT_FALSE(DescargarFichero(servidor.base() + u"/datos.bin"_s,
                                  QDir(carpeta.path()).filePath(u"no/existe/datos.bin"_s)));

    servidor.respondeCon(fichero("<html>hola</html>", "text/html"));
    EXPECT_TRUE(
        DescargarFichero(servidor.base() + u"/ayuda.html"_s, QDir(carpeta.path()).filePath(u"ayuda.html"_s)));
    EXPECT_FALSE(
        DescargarFichero(servidor.base() + u"/ayuda.html"_s, QDir(carpeta.path()).filePath(u"ayuda.xml"_s)));
}

} // namespace
} // namespace nod
