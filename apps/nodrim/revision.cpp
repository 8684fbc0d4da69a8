#include "apps/nodrim/revision.h"

#include "apps/nodrim/auxiliares.h"
#include "apps/nodrim/revision_pdf.h"
#include "companion/config.h"
#include "companion/hoy.h"
#include "companion/mensajes.h"
#include "maintenance/revisioncodcliente.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>
#include <clocale>
#include <cstring>
#include <iostream>
#include <memory>
#include <optional>

namespace nod::lote {

namespace {

struct Orden {
    QString office, tabla, pdf;
    bool ayuda = false;
    std::string error;
};

// The value of an option given as "--name VALUE" or "--name=VALUE".
bool opcion(const char* nombre, int argc, char** argv, int& i, QString& valor, std::string& error) {
    const size_t n = std::strlen(nombre);
    if (std::strncmp(argv[i], nombre, n) != 0) return false;
    if (argv[i][n] == '=') {
        valor = QString::fromLocal8Bit(argv[i] + n + 1);
        return true;
    }
    if (argv[i][n] != '\0') return false;
    if (i + 1 >= argc) {
        error = std::string(nombre) + " needs a value";
        return true;
    }
    valor = QString::fromLocal8Bit(argv[++i]);
    return true;
}

// The command's options; nullopt when the command is not `revision`.
std::optional<Orden> leeOrden(int argc, char** argv) {
    Orden o;
    bool esRevision = false;
    for (int i = 1; i < argc; ++i) {
        if (opcion("--office", argc, argv, i, o.office, o.error)) continue;
        if (!esRevision) {
            if (std::strcmp(argv[i], "revision") != 0) return std::nullopt;
            esRevision = true;
        } else if (opcion("--table", argc, argv, i, o.tabla, o.error) ||
                   opcion("--pdf", argc, argv, i, o.pdf, o.error)) {
        } else if (!std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h")) {
            o.ayuda = true;
        } else if (o.error.empty()) {
            o.error = std::string("unknown argument \"") + argv[i] + "\"";
        }
    }
    if (!esRevision) return std::nullopt;
    return o;
}

int uso(std::ostream& os, int estado) {
    os << "usage: nodrim [--office DIR] revision [--table NAME] [--pdf FILE]\n\n"
          "Lists the records whose client code points to no client, one per line:\n"
          "TABLA<tab>MENSAJE<tab>CODCLIENTE. --table revises one table; --pdf also writes the printed list.\n"
          "Exit status 0 when the revision ran, 1 when it could not, 2 for a wrong command.\n";
    return estado;
}

// Messages for the clerk on standard error; questions answered No; the progress window is not shown.
class ServicioConsola : public ServicioMensajes {
public:
    void error(const QString& texto, const QString& titulo) override { escribe(titulo, texto); }
    void info(const QString& texto, const QString& titulo) override { escribe(titulo, texto); }
    int pregunta(const QString&, const QString& texto, const QString& titulo, bool) override {
        escribe(titulo, texto);
        return 2;
    }
    void muestraEspera(const QString&) override {}
    void cambiaEspera(const QString&) override {}
    void cierraEspera() override {}
    int mensajePerson(const PeticionMensajePerson& p) override {
        escribe(p.titulo, p.mensaje1 + QLatin1Char(' ') + p.mensaje2);
        return 2;
    }
    int activosFinancieros(int) override { return 6; }

private:
    static void escribe(const QString& titulo, const QString& texto) {
        std::cerr << "nodrim: " << titulo.toStdString() << ": " << texto.toStdString() << '\n';
    }
};

// The PDF module, beside the program or among the installed helpers.
bool cargaModulo(QLibrary& modulo, CreaAplicacionPdf& crea, GuardaPdfRevision& guarda) {
    modulo.setFileName(RutaAuxiliar(QStringLiteral("nodrim_pdf.so")));
    modulo.load();
    crea = reinterpret_cast<CreaAplicacionPdf>(modulo.resolve("nodrim_pdf_aplicacion"));
    guarda = reinterpret_cast<GuardaPdfRevision>(modulo.resolve("nodrim_pdf_guarda"));
    if (crea && guarda) return true;
    std::cerr << "nodrim: cannot load the PDF module nodrim_pdf: " << modulo.errorString().toStdString()
              << '\n';
    return false;
}

} // namespace

int MainRevisionSiToca(int argc, char** argv) {
    const std::optional<Orden> o = leeOrden(argc, argv);
    if (!o) return -1;
    if (o->ayuda) return uso(std::cout, 0);
    if (!o->error.empty()) {
        std::cerr << "nodrim revision: " << o->error << '\n';
        return uso(std::cerr, 2);
    }

    // Qt Gui only when a PDF is asked for: the module then makes the application a QGuiApplication.
    QLibrary modulo;
    CreaAplicacionPdf crea = nullptr;
    GuardaPdfRevision guarda = nullptr;
    if (!o->pdf.isEmpty() && !cargaModulo(modulo, crea, guarda)) return 1;
    const std::unique_ptr<QCoreApplication> app(crea ? crea(&argc, argv) : new QCoreApplication(argc, argv));
    std::setlocale(LC_NUMERIC, "C"); // machine formats never follow the user's decimal comma

    // A folder named by --office or $NODRIM_DIR must exist; only the bundled sample office has defaults.
    const QString nombrada = o->office.isEmpty() ? qEnvironmentVariable("NODRIM_DIR") : o->office;
    if (!nombrada.isEmpty() && !QFileInfo(nombrada).isDir()) {
        std::cerr << "nodrim: the office folder " << nombrada.toStdString() << " is not a folder\n";
        return 1;
    }
    Config.Carga(CarpetaOficinaPorDefecto(o->office)); // its warnings go to the log (standard error)
    ServicioConsola consola;
    ServicioMensajesInstalado instalado(consola);

    if (!o->tabla.isEmpty() && !TablasConCodCliente().contains(o->tabla.trimmed().toUpper())) {
        std::cerr << "nodrim revision: unknown table \"" << o->tabla.toStdString() << "\"; the tables are "
                  << TablasConCodCliente().join(QStringLiteral(", ")).toStdString() << '\n';
        return 2;
    }
    TRevisionCodCliente revision;
    const bool corrio = o->tabla.isEmpty() ? revision.MuestraCodClienteIncorrectoEnTodasTablas()
                                           : revision.MuestraCodClienteIncorrectoEnTabla(o->tabla);
    if (!corrio) return 1;
    for (const TMensajeRevision& l : revision.Mensajes())
        std::cout << l.TABLA.toStdString() << '\t' << l.MENSAJE.toStdString() << '\t' << l.CODCLIENTE << '\n';
    std::cout.flush();

    if (guarda) {
        const QDate hoy = TDateTimeToQDate(Date());
        if (!guarda(&revision.Mensajes(), &o->tabla, &o->pdf, &hoy)) {
            std::cerr << "nodrim revision: cannot write " << o->pdf.toStdString() << '\n';
            return 1;
        }
    }
    return 0;
}

} // namespace nod::lote
