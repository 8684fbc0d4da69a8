#include "comms/editormail.h"

#include "comms/correo.h"
#include "companion/dialogo.h"
#include "companion/errores.h"
#include "companion/esperadialogo.h"
#include "companion/mensajes.h"
#include "companion/modal.h"
#include "frame/shell.h"
#include "frame/ventanas.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <optional>

namespace nod {

namespace {
template <typename W> W* crea(QWidget* padre, const char* nombre, const QString& ayuda) {
    auto* w = new W(padre);
    w->setObjectName(QString::fromLatin1(nombre));
    w->setToolTip(ayuda);
    return w;
}

QPushButton* boton(QWidget* padre, const char* nombre, const QString& texto, const QString& ayuda) {
    auto* b = crea<QPushButton>(padre, nombre, ayuda);
    b->setText(texto);
    return b;
}
} // namespace

TFEditorMail::TFEditorMail(QWidget* owner)
    : QDialog(owner) {
    setObjectName(QStringLiteral("FEditorMail"));
    setWindowTitle(QStringLiteral("Correo electrónico"));

    const QString separadas = QStringLiteral(" (varias separadas por \";\")");
    EPara = crea<QLineEdit>(this, "EPara", QStringLiteral("Direcciones de los destinatarios") + separadas);
    ECC = crea<QLineEdit>(this, "ECC", QStringLiteral("Direcciones que reciben copia") + separadas);
    ECCO = crea<QLineEdit>(this, "ECCO", QStringLiteral("Direcciones que reciben copia oculta") + separadas);
    EAsunto = crea<QLineEdit>(this, "EAsunto", QStringLiteral("Asunto del mensaje"));
    MCuerpo = crea<QPlainTextEdit>(this, "MCuerpo", QStringLiteral("Texto del mensaje"));
    LBAdjuntos =
        crea<QListWidget>(this, "LBAdjuntos", QStringLiteral("Ficheros que se envían con el mensaje"));
    LBAdjuntos->setSelectionMode(QAbstractItemView::ExtendedSelection);
    LBAdjuntos->setMaximumHeight(LBAdjuntos->fontMetrics().height() * 5);
    BBAnadir =
        boton(this, "BBAnadir", QStringLiteral("A&ñadir..."), QStringLiteral("Añadir ficheros adjuntos"));
    BBQuitar = boton(this, "BBQuitar", QStringLiteral("&Quitar"),
                     QStringLiteral("Quitar los adjuntos seleccionados"));
    BBEnviar = boton(this, "BBEnviar", QStringLiteral("&Enviar"),
                     QStringLiteral("Pulse el botón para enviar el correo"));
    BBCerrar = boton(this, "BBCerrar", QStringLiteral("Ce&rrar"), QStringLiteral("Cerrar sin enviar"));

    connect(BBAnadir, &QPushButton::clicked, this, [this] {
        AgregaAdjuntos(QFileDialog::getOpenFileNames(this, QStringLiteral("Adjuntar ficheros")));
    });
    connect(BBQuitar, &QPushButton::clicked, this, [this] { qDeleteAll(LBAdjuntos->selectedItems()); });
    connect(BBEnviar, &QPushButton::clicked, this, &TFEditorMail::Envia);
    connect(BBCerrar, &QPushButton::clicked, this, &QDialog::reject);

    auto* cabecera = new QFormLayout;
    cabecera->addRow(QStringLiteral("&Para:"), EPara);
    cabecera->addRow(QStringLiteral("&CC:"), ECC);
    cabecera->addRow(QStringLiteral("CC&O:"), ECCO);
    cabecera->addRow(QStringLiteral("&Asunto:"), EAsunto);
    auto* texto = new QLabel(QStringLiteral("&Texto:"), this);
    texto->setBuddy(MCuerpo);
    auto* adjuntos = new QLabel(QStringLiteral("Ad&juntos:"), this);
    adjuntos->setBuddy(LBAdjuntos);
    // A list's accessible name does not come from its label's buddy as an edit's does.
    LBAdjuntos->setAccessibleName(QStringLiteral("Adjuntos"));
    auto* botonesAdjuntos = new QVBoxLayout;
    botonesAdjuntos->addWidget(BBAnadir);
    botonesAdjuntos->addWidget(BBQuitar);
    botonesAdjuntos->addStretch();
    auto* filaAdjuntos = new QHBoxLayout;
    filaAdjuntos->addWidget(LBAdjuntos, 1);
    filaAdjuntos->addLayout(botonesAdjuntos);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(BBEnviar);
    botones->addWidget(BBCerrar);
    auto* capa = new QVBoxLayout(this);
    capa->addLayout(cabecera);
    capa->addWidget(texto);
    capa->addWidget(MCuerpo, 1);
    capa->addWidget(adjuntos);
    capa->addLayout(filaAdjuntos);
    capa->addLayout(botones);
    resize(640, 520);

    AplicaConvencionesDialogo(this);
}

void TFEditorMail::AgregaAdjuntos(const QStringList& ficheros) {
    QStringList ya = Adjuntos();
    for (const QString& f : ficheros) {
        if (f.isEmpty() || ya.contains(f)) continue;
        ya.append(f);
        auto* item = new QListWidgetItem(QFileInfo(f).fileName(), LBAdjuntos);
        item->setData(Qt::UserRole, f);
        item->setToolTip(f);
    }
}

QStringList TFEditorMail::Adjuntos() const {
    QStringList r;
    for (int i = 0; i < LBAdjuntos->count(); ++i)
        r.append(LBAdjuntos->item(i)->data(Qt::UserRole).toString());
    return r;
}

bool TFEditorMail::Envia() {
    // The wait starts when the message starts going out, after EnviarEmail's questions.
    std::optional<TEsperaDialogo> espera;
    const auto vigia = [&] {
        if (!espera) {
            espera.emplace(this, QStringLiteral("Enviando el correo... Escape para cancelar"));
            espera->Empieza();
        }
        return espera->Cancelada();
    };
    try {
        if (!EnviarEmail(this, EPara->text(), EAsunto->text(), MCuerpo->toPlainText(), Adjuntos(),
                         ECC->text(), ECCO->text(), false, vigia))
            return false;
    } catch (const ErrorEnvio& e) {
        const bool cancelada = espera && espera->Cancelada();
        espera.reset();
        if (!cancelada) Mensaje_Error(e.mensaje(), QStringLiteral("Correo no enviado"));
        return false;
    }
    espera.reset();
    done(1);
    return true;
}

void MuestraEmail(const QString& direccion) {
    TFEditorMail editor(VentanaPrincipal());
    editor.EPara->setText(direccion);
    if (!direccion.isEmpty()) editor.EAsunto->setFocus(); // what is left to write
    EjecutaModal(editor);
}

void EnviarMail(unsigned) {
    if (!AbreEnShell(EnlaceEnviarMail()))
        Mensaje_Error(QStringLiteral("No se ha podido abrir el programa de correo del equipo."),
                      QStringLiteral("Correo electrónico"));
}

} // namespace nod
