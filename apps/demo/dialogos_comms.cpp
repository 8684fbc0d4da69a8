// The communications family in the demo: the e-mail editor, the mobile-and-mail prompt, and two small
// windows of the demo's own to send a fax and to try the web gateway's routines against the office's
// configured hosts.
#include "apps/demo/catalogo.h"
#include "comms/conexion.h"
#include "comms/correo.h"
#include "comms/editormail.h"
#include "comms/pasarela.h"
#include "comms/preguntadatosmovilcorreo.h"
#include "companion/config.h"
#include "companion/dialogo.h"
#include "companion/errores.h"
#include "companion/esperadialogo.h"
#include "companion/mensajes.h"

#include <QDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace nod::demo {

namespace {

QPushButton* boton(QWidget* padre, const char* nombre, const QString& texto, const QString& ayuda) {
    auto* b = new QPushButton(texto, padre);
    b->setObjectName(QString::fromLatin1(nombre));
    b->setToolTip(ayuda);
    return b;
}

QLineEdit* campo(QWidget* padre, const char* nombre, const QString& ayuda, const QString& texto = {}) {
    auto* e = new QLineEdit(texto, padre);
    e->setObjectName(QString::fromLatin1(nombre));
    e->setToolTip(ayuda);
    return e;
}

QPlainTextEdit* registro(QWidget* padre) {
    auto* r = new QPlainTextEdit(padre);
    r->setObjectName(QStringLiteral("MResultado"));
    r->setReadOnly(true);
    r->setToolTip(QStringLiteral("Lo que devuelve cada rutina"));
    return r;
}

QStringList partes(const QString& lista) {
    QStringList r;
    for (const QString& p : lista.split(u';', Qt::SkipEmptyParts))
        r.append(p.trimmed());
    return r;
}

// Sends a fax job with EnviarFAXInterFax: the documents and numbers typed, the account typed or the
// office's own.
class DemoFax : public QDialog {
public:
    explicit DemoFax(QWidget* owner)
        : QDialog(owner) {
        setObjectName(QStringLiteral("FDemoFax"));
        setWindowTitle(QStringLiteral("Envío de fax"));
        auto* documentos =
            campo(this, "EDocumentos", QStringLiteral("Ficheros que se envían, separados por \";\""));
        auto* numeros = campo(this, "ENumeros", QStringLiteral("Números de fax, separados por \";\""),
                              QStringLiteral("+34 915 551 212"));
        auto* usuario = campo(this, "EUsuario", QStringLiteral("Vacío: la cuenta de fax de la oficina"));
        auto* password = campo(this, "EPassword", QStringLiteral("Contraseña de la cuenta indicada"));
        password->setEchoMode(QLineEdit::Password);
        auto* resultado = registro(this);
        auto* enviar = boton(this, "BBEnviar", QStringLiteral("&Enviar"), QStringLiteral("Enviar el fax"));
        auto* cerrar =
            boton(this, "BBCerrar", QStringLiteral("Ce&rrar"), QStringLiteral("Cerrar la ventana"));
        connect(cerrar, &QPushButton::clicked, this, &QDialog::reject);
        connect(enviar, &QPushButton::clicked, this, [=, this] {
            TEsperaDialogo espera(this, QStringLiteral("Enviando el fax..."));
            if (!espera.Empieza()) return;
            QString texto;
            try {
                texto = QStringLiteral("Enviado; identificadores: ") +
                        EnviarFAXInterFax(this, partes(documentos->text()), partes(numeros->text()),
                                          password->text(), usuario->text(), {})
                            .join(QStringLiteral(", "));
            } catch (const ErrorEnvio& e) {
                texto = e.mensaje();
            }
            if (!espera.Cancelada()) resultado->appendPlainText(texto);
        });
        auto* f = new QFormLayout;
        f->addRow(QStringLiteral("&Documentos:"), documentos);
        f->addRow(QStringLiteral("&Números de fax:"), numeros);
        f->addRow(QStringLiteral("&Usuario:"), usuario);
        f->addRow(QStringLiteral("C&ontraseña:"), password);
        auto* botones = new QHBoxLayout;
        botones->addStretch();
        botones->addWidget(enviar);
        botones->addWidget(cerrar);
        auto* capa = new QVBoxLayout(this);
        capa->addLayout(f);
        capa->addWidget(resultado);
        capa->addLayout(botones);
        resize(560, 340);
        AplicaConvencionesDialogo(this);
    }
};

// Runs each web gateway routine against the office's portal and folders and tells what it returned.
class DemoPasarela : public QDialog {
public:
    explicit DemoPasarela(QWidget* owner)
        : QDialog(owner) {
        setObjectName(QStringLiteral("FDemoPasarela"));
        setWindowTitle(QStringLiteral("Pasarela Web"));
        auto* resultado = registro(this);
        resultado->appendPlainText(QStringLiteral("Carpeta del programa: %1\nCarpeta base: %2\nPortal: %3")
                                       .arg(CarpetaPrograma(), CarpetaBase(), Config.GetPortalFabricante()));
        const auto anota = [resultado](const QString& rutina, const QString& valor) {
            resultado->appendPlainText(rutina + QStringLiteral(": ") + valor);
        };
        const auto si = [](bool b) { return b ? QStringLiteral("sí") : QStringLiteral("no"); };
        struct Accion {
            const char* nombre;
            QString texto, ayuda;
            std::function<void()> haz;
        };
        const Accion acciones[] = {
            {"BBComprobar", QStringLiteral("&Comprobar ficheros"),
             QStringLiteral("CompruebaFicherosPasarela"),
             [=] { anota(QStringLiteral("CompruebaFicherosPasarela"), si(CompruebaFicherosPasarela())); }},
            {"BBEnviosUnicos", QStringLiteral("&Envíos únicos"),
             QStringLiteral("CompruebaFicherosPasarelaParaEnviosUnicos"),
             [=] {
                 anota(QStringLiteral("CompruebaFicherosPasarelaParaEnviosUnicos"),
                       si(CompruebaFicherosPasarelaParaEnviosUnicos()));
             }},
            {"BBDescargar", QStringLiteral("&Descargar instalación"),
             QStringLiteral("DescargaFicherosPasarela"),
             [=] { anota(QStringLiteral("DescargaFicherosPasarela"), si(DescargaFicherosPasarela())); }},
            {"BBInstalar", QStringLiteral("&Instalar"), QStringLiteral("InstalaPasarela"),
             [=] {
                 InstalaPasarela();
                 anota(QStringLiteral("InstalaPasarela"), QStringLiteral("hecho"));
             }},
            {"BBIni", QStringLiteral("Fichero I&NI"), QStringLiteral("CompruebaPasarelaWebIni"),
             [=] { anota(QStringLiteral("CompruebaPasarelaWebIni"), CompruebaPasarelaWebIni()); }},
            {"BBActualizar", QStringLiteral("&Puede actualizar"), QStringLiteral("PuedeActualizarEsteEquipo"),
             [=] { anota(QStringLiteral("PuedeActualizarEsteEquipo"), si(PuedeActualizarEsteEquipo())); }},
            {"BBConexion", QStringLiteral("C&onexión a Internet"), QStringLiteral("TieneConexionAInternet"),
             [=] { anota(QStringLiteral("TieneConexionAInternet"), si(TieneConexionAInternet())); }},
        };
        auto* rejilla = new QGridLayout;
        int i = 0;
        for (const Accion& a : acciones) {
            auto* b = boton(this, a.nombre, a.texto, a.ayuda);
            connect(b, &QPushButton::clicked, this, [this, haz = a.haz] {
                TEsperaDialogo espera(this);
                if (espera.Empieza()) haz();
            });
            rejilla->addWidget(b, i / 4, i % 4);
            ++i;
        }
        auto* cerrar =
            boton(this, "BBCerrar", QStringLiteral("Ce&rrar"), QStringLiteral("Cerrar la ventana"));
        connect(cerrar, &QPushButton::clicked, this, &QDialog::reject);
        auto* capa = new QVBoxLayout(this);
        capa->addLayout(rejilla);
        capa->addWidget(resultado);
        capa->addWidget(cerrar, 0, Qt::AlignRight);
        resize(640, 360);
        AplicaConvencionesDialogo(this);
    }
};

QString editorCorreo(QWidget* owner) {
    TFEditorMail editor(owner);
    editor.EPara->setText(QStringLiteral("cliente7@correo-ejemplo.es"));
    editor.EAsunto->setText(QStringLiteral("Copia simple de la escritura"));
    editor.MCuerpo->setPlainText(
        QStringLiteral("Estimada clienta:\n\nLe adjuntamos la copia simple de la escritura "
                       "otorgada ayer.\n\nUn saludo,\nla notaría"));
    return editor.exec() == 1 ? QStringLiteral("enviado") : QStringLiteral("cerrado sin enviar");
}

QString datosMovilCorreo(QWidget* owner) {
    QString movil, correo = QStringLiteral("maria.garcia@correo-ejemplo.es");
    if (!PreguntaDatosMovilCorreo(owner, QStringLiteral("GARCÍA LÓPEZ, MARÍA"), movil, correo))
        return QStringLiteral("cancelado");
    return QStringLiteral("móvil \"%1\", correo \"%2\"").arg(movil, correo);
}

QString envioFax(QWidget* owner) {
    DemoFax(owner).exec();
    return QStringLiteral("cerrado");
}

QString pasarelaWeb(QWidget* owner) {
    DemoPasarela(owner).exec();
    return QStringLiteral("cerrado");
}

} // namespace

void RegistraDialogosComms(CatalogoDemo& c) {
    c.agrega("Comunicaciones", "editor_correo", "TFEditorMail: correo electrónico (MuestraEmail)",
             editorCorreo);
    c.agrega("Comunicaciones", "pregunta_datos_movil_correo", "TFPreguntaDatosMovilCorreo: móvil y correo",
             datosMovilCorreo);
    c.agrega("Comunicaciones", "envio_fax", "EnviarFAXInterFax: envío de fax", envioFax);
    c.agrega("Comunicaciones", "pasarela_web", "Pasarela Web: ficheros, instalación y conexión", pasarelaWeb);
}

} // namespace nod::demo
