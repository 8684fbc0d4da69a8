// Where a deed's documents, copies, electronic files and the notary's images live, against a temporary
// office of two notaries, with and without the shared-folders agreement.
#include "companion/config.h"
#include "companion/mensajes.h"
#include "companion/rficheros.h"
#include "frame/notarios.h"
#include "protocol/anexos.h"
#include "protocol/carpetasdocumentos.h"
#include "protocol/documentosunidos.h"
#include "protocol/imagenesnotario.h"
#include "protocol/nombresdocumentos.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <optional>
#include <stdexcept>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using namespace nod;
using nod::prueba::OficinaPrueba;

namespace {

const QString kConfig = QStringLiteral("[GENERAL]\nNumeroNotarios=2\nNotario=1\n[ALIAS]\nDB=DATOS\n"
                                       "[ENLACEWORD]\nCarpeta1=NOTARIA1\nCarpeta2=NOTARIA2\n"
                                       "[NOTARIO1]\nIniciales=JGP\n[NOTARIO2]\nIniciales=MLR\n");

void crea(const QString& ruta, const QByteArray& contenido = "x") {
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly)) << ruta.toStdString();
    f.write(contenido);
}

QByteArray lee(const QString& ruta) {
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(missing)");
}

QStringList ficheros(const QString& carpeta) {
    return QDir(carpeta).entryList(QDir::Files, QDir::Name);
}

bool esCarpeta(const QString& ruta) {
    return QFileInfo(RutaEnDisco(ruta)).isDir();
}

void esDialogo(const DialogoMostrado& d, const char* kind, const char* titulo, const QString& texto) {
    EXPECT_EQ(d.kind, QLatin1String(kind));
    EXPECT_EQ(d.title, QString::fromUtf8(titulo));
    EXPECT_EQ(d.text, texto);
}

class Documentos : public ::testing::Test {
protected:
    OficinaPrueba oficina{kConfig};
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado{mensajes};

    QString disco(const QString& relativa) const { return oficina.ruta(relativa); }
    QString datos() const { return QDir::toNativeSeparators(oficina.ruta(QStringLiteral("DATOS"))); }
};

TEST_F(Documentos, NotaryImages) {
    const std::tuple<QString (*)(const QString&), const char*, const char*> casos[] = {
        {FicheroSello, "", "C:\\WORDZEB\\IMAGENES\\SELLO1.PNG"},
        {FicheroSello, "0", "C:\\WORDZEB\\IMAGENES\\SELLO1.PNG"},
        {FicheroSello, " 2 ", "C:\\WORDZEB\\IMAGENES\\SELLO2.PNG"},
        {FicheroSello, "dos", "C:\\WORDZEB\\IMAGENES\\SELLO1.PNG"},
        {FicheroPubli, "2", "C:\\WORDZEB\\IMAGENES\\PUBLI2.PNG"},
        {FicheroSelloCopNotario, "2", "C:\\WORDZEB\\IMAGENES\\SELLO2COP.PNG"},
        {FicheroFirma, "2", "C:\\WORDZEB\\IMAGENES\\FIRMA2.PNG"},
        {FicheroRubrica, "", "C:\\WORDZEB\\IMAGENES\\RUBRICA1.JPG"},
        {FicheroSelloFirma, "3", "C:\\WORDZEB\\IMAGENES\\SELLO_FIRMA3.PNG"},
    };
    for (const auto& [rutina, notario, esperado] : casos)
        EXPECT_EQ(rutina(QString::fromUtf8(notario)), QString::fromUtf8(esperado)) << esperado;

    // The office's images follow its folder; the signature images stay on the workstation's disk.
    Config.SetCarpetaImagenes(QStringLiteral("\\\\SERVIDOR\\IMAGENES\\"));
    EXPECT_EQ(FicheroSello(QStringLiteral("2")), QStringLiteral("\\\\SERVIDOR\\IMAGENES\\SELLO2.PNG"));
    EXPECT_EQ(FicheroFirma(QStringLiteral("2")), QStringLiteral("C:\\WORDZEB\\IMAGENES\\FIRMA2.PNG"));
    // No images folder configured: the bare name, which the document program will not find.
    Config.SetCarpetaImagenes(QString());
    EXPECT_EQ(FicheroSello(QStringLiteral("2")), QStringLiteral("SELLO2.PNG"));
}

TEST_F(Documentos, TheThreeBisFamiliesStayApart) {
    const std::tuple<int, const char*, const char*, const char*> casos[] = {{0, "", "", ""},
                                                                            {1, "_1Bis", "Bis", "-1Bis"},
                                                                            {2, "_2Bis", "2Bis", "-2Bis"},
                                                                            {3, "_3Bis", "3Bis", "-3Bis"},
                                                                            {4, "", "", ""},
                                                                            {-1, "", "", ""}};
    for (const auto& [bis, documento, copia, electronica] : casos) {
        EXPECT_EQ(SufijoBisDocumento(bis), QLatin1String(documento)) << bis;
        EXPECT_EQ(SufijoBisCopia(bis), QLatin1String(copia)) << bis;
        EXPECT_EQ(SufijoBisElectronico(bis), QLatin1String(electronica)) << bis;
    }
}

TEST_F(Documentos, DeedDocumentNamesFromTheTemplate) {
    // Template; mode, notary, number, year and bis; the name.
    const std::tuple<const char*, int, int, int, int, int, const char*> casos[] = {
        {"<AÑO>-<NUMERO5>", 0, 1, 12, 2008, 1, "08-00012_1Bis"},
        {"<INICIALES NOTARIO>_<NUMERO4>_<AÑO4>", 0, 2, 12, 2008, 0, "MLR_0012_2008"},
        {"<NUMERO>", 0, 1, 123456, 2008, 3, "123456_3Bis"},
        {"<NUMERO5>", 0, 1, 123456, 2008, 0, "23456"}, // the last five figures
        {"Escritura <NUMERO>", 0, 1, 7, 2024, 0, "Escritura 7"},
        {"<AÑO>-<NUMERO5>", 1, 1, 12, 2008, 1, "000012"}, // a dossier: 6 figures, no bis
        {"<NUMERO>-<FOLIO>", 0, 1, 5, 2024, 0, "5-"},     // an unknown tag is left out
        {"<NUMERO>-<SECCION>", 0, 1, 5, 2024, 0, "5-"},   // a policy tag means nothing to deeds
        {"<NUMERO>-<AÑO", 0, 1, 5, 2024, 0, "5-"},        // "<" never closed: the rest is left out
        {"", 0, 1, 5, 2024, 2, "_2Bis"},
    };
    for (const auto& [plantilla, modo, notario, numero, ano, bis, esperado] : casos) {
        Config.SetsEnlaceWordNombreFichero(QString::fromUtf8(plantilla));
        EXPECT_EQ(DameNombreFicheroWordEscrituras(modo, notario, numero, ano, bis),
                  QString::fromUtf8(esperado))
            << plantilla;
    }
}

TEST_F(Documentos, TheDeedsNotaryIsSelectedForTheMomentOnly) {
    Config.SetsEnlaceWordNombreFichero(QStringLiteral("<INICIALES NOTARIO><NUMERO>"));
    Config.SetNombre_Inicial(QStringLiteral("JG")); // the selected notary's value, changed in memory
    EXPECT_EQ(DameNombreFicheroWordEscrituras(0, 2, 5, 2024, 0), QStringLiteral("MLR5"));
    EXPECT_EQ(Config.GetsNotario(), QStringLiteral("1"));
    EXPECT_EQ(Config.GetNombre_Inicial(), QStringLiteral("JG")) << "put back as it was, not reread";
    EXPECT_EQ(DameNombreFicheroWordEscrituras(0, 7, 5, 2024, 0), QStringLiteral("5"))
        << "a notary without a section";

    Config.SetnCuantos(0); // an office configured with no notaries: the current notary's initials
    EXPECT_EQ(DameNombreFicheroWordEscrituras(0, 2, 5, 2024, 0), QStringLiteral("JG5"));

    try {
        NotarioTemporal otro(2);
        EXPECT_EQ(Config.GetNombre_Inicial(), QStringLiteral("MLR"));
        throw std::runtime_error("interrupted");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(Config.GetsNotario(), QStringLiteral("1"));
    EXPECT_EQ(Config.GetNombre_Inicial(), QStringLiteral("JG"));
}

TEST_F(Documentos, CopyAndPolicyNames) {
    EXPECT_EQ(DameNombreFicheroCopiaAutorizada(QStringLiteral("A"), 12, 2),
              QStringLiteral("COPAUT_000122Bis_A"));
    EXPECT_EQ(DameNombreFicheroCopiaAutorizada(QString(), 12, 0), QStringLiteral("COPAUT_00012_"));
    EXPECT_EQ(DameNombreFicheroCopiaSimple(12, 1), QStringLiteral("COPSIM_00012Bis"));
    EXPECT_EQ(DameNombreFicheroCopiaSimple(123456, 3), QStringLiteral("COPSIM_234563Bis"));

    Config.SetsEnlaceWordNombreFicheroPoliza(QStringLiteral("<SECCION>-<AÑO>-<NUMERO5>"));
    const std::tuple<const char*, int, const char*> casos[] = {
        {"0", 0, "A-24-00007N"}, {"0", 1, "A-24-00007A"},     {"0", 3, "A-24-00007C"},
        {"1", 0, "A-24-00007"},  {"1", 2, "A-24-00007_2Bis"}, {"", 0, "A-24-00007"},
        {"2", 2, "A-24-00007B"}, {"00", 0, "A-24-00007"},     {"0", 5, "A-24-00007N"},
    };
    for (const auto& [estilo, bis, esperado] : casos) {
        Config.SetsEnlaceWordBisFicheroPoliza(QLatin1String(estilo));
        EXPECT_EQ(DameNombreFicheroWordPolizas(QStringLiteral("A"), 1, 7, 2024, bis), QLatin1String(esperado))
            << "style " << estilo << " bis " << bis;
    }
}

TEST_F(Documentos, FoldersWithoutAgreementAreCreated) {
    const std::pair<QString, const char*> casos[] = {
        {DameCarpetaFicheroWordEscrituras(0, 1, 2008), "C:\\NODRIM\\PROTOCOLO\\2008"},
        {DameCarpetaFicheroWordEscrituras(1, 1, 2008), "C:\\NODRIM\\EXPEDIENTES\\2008\\"},
        {DameCarpetaFicheroCopiaAutorizada(2, 2008), "C:\\NODRIM\\ENVIOREGISTRO\\2008"},
        {DameCarpetaFicheroCopiaSimple(2, 2008), "C:\\NODRIM\\CSIMPLEELECTRONICA\\2008"},
        {DameCarpetaFicheroWordPolizas(2024), "C:\\NODRIM\\POLIZAS\\2024"}};
    for (const auto& [carpeta, esperada] : casos) {
        EXPECT_EQ(carpeta, QLatin1String(esperada));
        EXPECT_TRUE(esCarpeta(carpeta)) << esperada;
    }
    EXPECT_TRUE(mensajes.mostrados().isEmpty());
}

TEST_F(Documentos, FoldersUnderTheAgreement) {
    Config.SetbEnlaceWordConvenio(true);
    Config.SetsEnlaceWordCarpetaBase(QStringLiteral("COMPARTIDA\\"));
    // Year before notary, notary, folder (none of its own beyond notary 5).
    const std::tuple<bool, int, const char*> casos[] = {{false, 2, "COMPARTIDA\\NOTARIA2\\2008\\"},
                                                        {true, 2, "COMPARTIDA\\2008\\NOTARIA2\\"},
                                                        {false, 1, "COMPARTIDA\\NOTARIA1\\2008\\"},
                                                        {true, 0, "COMPARTIDA\\2008\\"},
                                                        {false, 7, "COMPARTIDA\\2008\\"}};
    for (const auto& [anoMasNotario, notario, esperado] : casos) {
        Config.SetbEnlaceWordAnoMasNotario(anoMasNotario);
        const QString carpeta = DameCarpetaFicheroWordEscrituras(0, notario, 2008);
        EXPECT_EQ(carpeta, QLatin1String(esperado));
        EXPECT_TRUE(esCarpeta(carpeta)) << esperado;
    }
    Config.SetbEnlaceWordAnoMasNotario(false);
    EXPECT_EQ(DameCarpetaFicheroCopiaAutorizada(1, 2008),
              QStringLiteral("C:\\NODRIM\\ENVIOREGISTRO\\NOTARIA1\\2008\\"));
    EXPECT_EQ(DameCarpetaFicheroCopiaSimple(2, 2008),
              QStringLiteral("C:\\NODRIM\\CSIMPLEELECTRONICA\\NOTARIA2\\2008\\"));
    EXPECT_EQ(DameCarpetaFicheroWordEscrituras(1, 2, 2008), QStringLiteral("C:\\NODRIM\\EXPEDIENTES\\2008\\"))
        << "dossiers are not shared by notary";
    EXPECT_TRUE(mensajes.mostrados().isEmpty());
}

TEST_F(Documentos, AgreementWithoutNotariesIsReportedOncePerCall) {
    Config.SetbEnlaceWordConvenio(true);
    Config.SetnCuantos(0);
    const QString texto = QStringLiteral(
        "El programa no se encuentra en convenio actualmente pero en la configuración del Enlace Word sí.\r"
        "Vaya a la configuración y modifique los datos.\rDesactive el convenio y revise la carpeta base.");
    EXPECT_EQ(DameCarpetaFicheroWordEscrituras(0, 1, 2008), QStringLiteral("C:\\NODRIM\\PROTOCOLO"));
    ASSERT_EQ(mensajes.mostrados().size(), 1);
    esDialogo(mensajes.mostrados()[0], "Mensaje_Error", "Configuración errónea", texto);
    EXPECT_TRUE(esCarpeta(QStringLiteral("C:\\NODRIM\\PROTOCOLO")));

    EXPECT_EQ(DameCarpetaFicheroCopiaAutorizada(1, 2008), QStringLiteral("C:\\NODRIM\\ENVIOREGISTRO"));
    EXPECT_EQ(DameCarpetaFicheroCopiaSimple(1, 2008), QStringLiteral("C:\\NODRIM\\CSIMPLEELECTRONICA"));
    EXPECT_EQ(mensajes.mostrados().size(), 3);
    EXPECT_EQ(DameCarpetaFicheroWordEscrituras(1, 1, 2008),
              QStringLiteral("C:\\NODRIM\\EXPEDIENTES\\2008\\"));
    EXPECT_EQ(mensajes.mostrados().size(), 3) << "dossiers do not look at the agreement";
}

TEST_F(Documentos, ElectronicFileFolders) {
    // Policy or deed; mode, notary, section, number, bis and year; the subfolder asked for; the folder.
    const std::tuple<bool, int, int, const char*, int, int, int, const char*, const char*> casos[] = {
        {false, 0, 1, "", 12, 1, 2008, "", "Archivos\\Protocolo\\2008\\JGP00012-1Bis"},
        {false, 0, 2, "", 12, 0, 2008, "Firmadas", "Archivos\\Protocolo\\2008\\MLR00012\\Firmadas"},
        {false, 1, 2, "", 12, 3, 2008, "", "Archivos\\Expediente\\2008\\000012-3Bis"},
        {true, 0, 2, "A", 7, 2, 2024, "", "Archivos\\Polizas\\2024\\A\\MLR00007-2Bis"},
        {true, 0, 1, "", 7, 0, 2024, "Escaneos", "Archivos\\Polizas\\2024\\JGP00007\\Escaneos"},
        {true, 1, 1, "A", 12, 0, 2024, "", "Archivos\\Expediente\\2024\\000012"},
    };
    for (const auto& [poliza, modo, notario, seccion, numero, bis, ano, sub, debajo] : casos) {
        const QString carpeta =
            poliza ? DameCarpetaFicherosElectronicosPolizas(modo, notario, QLatin1String(seccion), numero,
                                                            bis, ano, QLatin1String(sub))
                   : DameCarpetaFicherosElectronicosEscrituras(modo, notario, numero, bis, ano,
                                                               QLatin1String(sub));
        EXPECT_EQ(carpeta, datos() + QLatin1Char('\\') + QLatin1String(debajo));
        EXPECT_TRUE(esCarpeta(carpeta)) << debajo;
    }
    EXPECT_EQ(Config.GetsNotario(), QStringLiteral("1"));
    EXPECT_EQ(Config.GetNombre_Inicial(), QStringLiteral("JGP"));

    oficina.escribe(QStringLiteral("CONFIG/CONFIG.INI"), QStringLiteral("[GENERAL]\nNumeroNotarios=2\n"));
    oficina.recarga();
    EXPECT_EQ(DameCarpetaFicherosElectronicosEscrituras(0, 1, 12, 1, 2008, {}), QString())
        << "no folder for the main database";
}

TEST_F(Documentos, FoldersTheFileSystemRefusesStillGiveTheirPath) {
    crea(disco(QStringLiteral("DATOS/Archivos/Protocolo/2008"))); // a file where the year folder goes
    EXPECT_EQ(DameCarpetaFicherosElectronicosEscrituras(0, 1, 12, 0, 2008, {}),
              datos() + QStringLiteral("\\Archivos\\Protocolo\\2008\\JGP00012"));
    const QString largo(300, u'x');
    EXPECT_EQ(DameCarpetaFicheroWordPolizas(2024), QStringLiteral("C:\\NODRIM\\POLIZAS\\2024"));
    Config.SetsRutaPolizasDigitalizadas(largo);
    EXPECT_EQ(DameCarpetaFicheroWordPolizas(2024), largo + QStringLiteral("\\2024"));
    EXPECT_FALSE(QFileInfo::exists(disco(largo)));
    EXPECT_TRUE(mensajes.mostrados().isEmpty()) << "the caller meets it when writing the file";
}

// Holds a file against deletion, or a whole folder read-only, the way this machine allows: a folder
// without write permission for an ordinary user; for root, whom permissions do not stop, the immutable
// attribute of the file or folder itself (nothing inside an immutable folder can be created, renamed or
// deleted, and an immutable file cannot be deleted).
struct Retencion {
    enum Que { Fichero, Carpeta };
    explicit Retencion(const QString& r, Que que = Fichero)
        : inmutable(geteuid() == 0)
        , ruta(QFile::encodeName(inmutable || que == Carpeta ? r : QFileInfo(r).absolutePath()))
        , activa(pon(true)) {}
    ~Retencion() { suelta(); }
    void suelta() {
        if (std::exchange(activa, false)) pon(false);
    }
    bool pon(bool poner) const {
        if (!inmutable) return chmod(ruta.constData(), poner ? 0555 : 0755) == 0;
        const int fd = open(ruta.constData(), O_RDONLY);
        int flags = 0;
        bool hecho = fd >= 0 && ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
        flags = poner ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
        hecho = hecho && ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
        if (fd >= 0) close(fd);
        return hecho;
    }
    const bool inmutable; // only the file is held: the rest of its folder stays writable
    const QByteArray ruta;
    bool activa;
};

// A clerk who answers each "Eliminar anexos" question through `responde`.
class Oficinista : public ServicioMensajesGuionado {
public:
    std::function<int(int vez)> responde;
    int pregunta(const QString& kind, const QString& texto, const QString& titulo, bool focoEnSi) override {
        ServicioMensajesGuionado::pregunta(kind, texto, titulo, focoEnSi);
        return responde(mostrados().size());
    }
};

TEST_F(Documentos, DeleteAnexosDeletesTheAnnexesOnly) {
    for (const char* f : {"Doc.docx", "Doc_Anexo1.docx", "doc_ANEXO planos.DOCX", "Doc_Anexo1.pdf",
                          "Doc2_Anexo.docx", "Doc_Anex.docx", "Acta.doc.doc", "Acta_Anexo.doc",
                          "Acta.doc_Anexo.doc", "a*b.doc", "aXb_Anexo.doc"})
        crea(disco(QStringLiteral("ESC/") + QLatin1String(f)));
    DeleteAnexos(QStringLiteral("ESC\\Doc.docx"));
    DeleteAnexos(QStringLiteral("ESC\\Acta.doc.doc"));  // ".doc" goes out of the name wherever it is
    DeleteAnexos(disco(QStringLiteral("ESC/a*b.doc"))); // a real path; "*" is a character, not a mask
    DeleteAnexos(QStringLiteral("ESC\\NoExiste.docx"));
    DeleteAnexos(QStringLiteral("ESC\\"));
    DeleteAnexos(QString());
    EXPECT_EQ(ficheros(disco(QStringLiteral("ESC"))).join(u'|'),
              QStringLiteral("Acta.doc.doc|Acta.doc_Anexo.doc|Doc.docx|Doc2_Anexo.docx|Doc_Anex.docx|"
                             "Doc_Anexo1.pdf|a*b.doc|aXb_Anexo.doc"));
    EXPECT_TRUE(mensajes.mostrados().isEmpty());
}

class AnexoRetenido : public Documentos {
protected:
    void SetUp() override {
        for (const char* f : {"Doc.docx", "Doc_Anexo1.docx", "Doc_Anexo2.docx"})
            crea(disco(QStringLiteral("ESC/") + QLatin1String(f)));
        retencion.emplace(disco(QStringLiteral("ESC/Doc_Anexo1.docx")));
        if (!retencion->activa)
            GTEST_SKIP() << "neither a read-only folder nor the immutable attribute holds a file here";
    }
    std::optional<Retencion> retencion;
    Oficinista oficinista;
    ServicioMensajesInstalado instaladoOficinista{oficinista};
    const QString pregunta = QStringLiteral("No se puede eliminar el fichero ESC\\Doc_Anexo1.docx\r"
                                            "asegúrese de que no está abierto\n"
                                            "Cierre el documento y pulse Si. Pulse No para cancelar.");
};

TEST_F(AnexoRetenido, YesAfterClosingItDeletesIt) {
    oficinista.responde = [this](int) {
        retencion->suelta(); // the clerk closes the document
        return 1;
    };
    DeleteAnexos(QStringLiteral("ESC\\Doc.docx"));
    ASSERT_EQ(oficinista.mostrados().size(), 1);
    esDialogo(oficinista.mostrados()[0], "Mensaje_SiNo", "Eliminar anexos", pregunta);
    EXPECT_EQ(ficheros(disco(QStringLiteral("ESC"))), QStringList{QStringLiteral("Doc.docx")});
}

TEST_F(AnexoRetenido, YesWhileItStaysAsksAgainAndNoGoesOn) {
    oficinista.responde = [](int vez) { return vez == 1 ? 1 : 2; };
    DeleteAnexos(QStringLiteral("ESC\\Doc.docx"));
    const QStringList quedan = ficheros(disco(QStringLiteral("ESC")));
    EXPECT_TRUE(quedan.contains(QStringLiteral("Doc_Anexo1.docx")));
    EXPECT_TRUE(quedan.contains(QStringLiteral("Doc.docx")));
    ASSERT_GE(oficinista.mostrados().size(), 2);
    EXPECT_EQ(oficinista.mostrados()[1].text, pregunta);
    if (retencion->inmutable) {
        EXPECT_EQ(oficinista.mostrados().size(), 2);
        EXPECT_FALSE(quedan.contains(QStringLiteral("Doc_Anexo2.docx"))) << "the next annex is still deleted";
    } else { // the read-only folder holds the second annex too: one more question, answered No
        EXPECT_EQ(oficinista.mostrados().size(), 3);
    }
}

class DocumentosUnidos : public Documentos {
protected:
    void SetUp() override {
        const std::pair<const char*, const char*> imagenes[] = {
            {"C/NODRIM/DOCUMENTOSUNIDOS/0007.JPG", "siete"},
            {"C/NODRIM/DOCUMENTOSUNIDOS/12.jpeg", "doce"},
            {"C/NODRIM/DOCUMENTOSUNIDOS/99.txt", "no es una imagen"},
            {"EXP/DU/b.jpg", "b"},
            {"EXP/DU/A.JPG", "a"},
            {"EXP/DU/notas.txt", "x"}};
        for (const auto& [ruta, contenido] : imagenes)
            crea(disco(QLatin1String(ruta)), contenido);
    }
    QString general(const QString& nombre = {}) const {
        return disco(QStringLiteral("C/NODRIM/DOCUMENTOSUNIDOS/") + nombre);
    }
    void pasa(int respuesta, const QString& origen = QStringLiteral("EXP\\DU"),
              const QString& mover = QStringLiteral("EXP\\INCORPORADOS")) {
        mensajes.respuestas({respuesta});
        PasaImagenesADU(origen, mover);
    }
    // The copy of `imagen` as `numero` failed: the clerk is told and nothing is left copied or moved.
    void nadaCopiado(const char* imagen, const char* numero) {
        pasa(6);
        ASSERT_EQ(mensajes.mostrados().size(), 2);
        EXPECT_EQ(mensajes.mostrados()[1].kind, QStringLiteral("Mensaje_Error"));
        EXPECT_EQ(
            mensajes.mostrados()[1].text,
            QStringLiteral("No se ha podido copiar la imagen EXP\\DU\\%1 en C:\\NODRIM\\DOCUMENTOSUNIDOS\\%2")
                .arg(QLatin1String(imagen), QLatin1String(numero)));
        EXPECT_EQ(ficheros(general()).size(), 3);
        EXPECT_EQ(ficheros(disco(QStringLiteral("EXP/DU"))).size(), 3);
        EXPECT_FALSE(QFileInfo::exists(disco(QStringLiteral("EXP/INCORPORADOS"))));
    }
};

TEST_F(DocumentosUnidos, NumbersFollowTheHighestAndImagesMove) {
    pasa(6);
    ASSERT_EQ(mensajes.mostrados().size(), 1);
    esDialogo(mensajes.mostrados()[0], "Mensaje_SiNo", "Incorporar Documentos Unidos",
              QStringLiteral("Hay documentos unidos asociados al protocolo\n"
                             "¿Desea incorporar los documentos unidos asociados al protocolo?"));
    EXPECT_EQ(lee(general(QStringLiteral("0013.jpg"))), "a");
    EXPECT_EQ(lee(general(QStringLiteral("0014.jpg"))), "b");
    EXPECT_EQ(ficheros(general()).size(), 5);
    EXPECT_EQ(ficheros(disco(QStringLiteral("EXP/DU"))), QStringList{QStringLiteral("notas.txt")});
    EXPECT_EQ(ficheros(disco(QStringLiteral("EXP/INCORPORADOS"))),
              (QStringList{QStringLiteral("A.JPG"), QStringLiteral("b.jpg")}));
}

TEST_F(DocumentosUnidos, NoCopiesNothingAndAnEmptyMoveFolderKeepsTheImages) {
    pasa(7);
    EXPECT_EQ(ficheros(general()).size(), 3);
    EXPECT_FALSE(QFileInfo::exists(disco(QStringLiteral("EXP/INCORPORADOS"))));
    pasa(6, disco(QStringLiteral("EXP/DU")), {});
    EXPECT_EQ(ficheros(general()).size(), 5);
    EXPECT_EQ(ficheros(disco(QStringLiteral("EXP/DU"))).size(), 3);
}

TEST_F(DocumentosUnidos, MissingFoldersAndImagesAreReported) {
    const std::tuple<std::function<void()>, const char*, const char*, const char*> casos[] = {
        {[] {}, "EXP\\NO_EXISTE", "Sin DU asociados", "No hay DU asociados al expediente"},
        {[] {}, "EXP", "No hay DU asociados al expediente",
         "No se han encontrado imágenes en la carpeta EXP"},
        {[] { Config.SetCarpetaDocumentosUnidos(QStringLiteral("C:\\NODRIM\\NO_EXISTE")); }, "EXP\\DU",
         "Error consultar DU general", "No se ha encontrado la carpeta C:\\NODRIM\\NO_EXISTE"},
    };
    for (const auto& [prepara, origen, titulo, texto] : casos) {
        mensajes.limpia();
        prepara();
        PasaImagenesADU(QString::fromUtf8(origen), QStringLiteral("EXP\\INCORPORADOS"));
        ASSERT_EQ(mensajes.mostrados().size(), 1) << texto;
        esDialogo(mensajes.mostrados()[0], "Mensaje_Error", titulo, QString::fromUtf8(texto));
    }
    EXPECT_EQ(ficheros(disco(QStringLiteral("EXP/DU"))).size(), 3);
}

TEST_F(DocumentosUnidos, AFailedCopyUndoesTheCallsCopiesAndMovesNothing) {
    QDir().mkpath(general(QStringLiteral("0014.jpg"))); // a folder takes the second image's name
    nadaCopiado("b.jpg", "0014.jpg");
}

// A read-only folder of joined documents: nothing copied into it, the clerk told, the dossier's images
// kept; a read-only move-to folder: the images are copied and stay in the dossier's folder.
TEST_F(DocumentosUnidos, ReadOnlyDestinationsLoseNothing) {
    {
        Retencion soloLectura(general(), Retencion::Carpeta);
        if (!soloLectura.activa) GTEST_SKIP() << "no way to make a folder read-only here";
        nadaCopiado("A.JPG", "0013.jpg");
    }
    QDir().mkpath(disco(QStringLiteral("EXP/INCORPORADOS")));
    Retencion soloLectura(disco(QStringLiteral("EXP/INCORPORADOS")), Retencion::Carpeta);
    ASSERT_TRUE(soloLectura.activa);
    mensajes.limpia();
    pasa(6);
    EXPECT_EQ(mensajes.mostrados().size(), 1);
    EXPECT_EQ(lee(general(QStringLiteral("0013.jpg"))), "a");
    EXPECT_EQ(ficheros(disco(QStringLiteral("EXP/DU"))).size(), 3) << "the images stay where they were";
    EXPECT_TRUE(ficheros(disco(QStringLiteral("EXP/INCORPORADOS"))).isEmpty());
}

} // namespace
