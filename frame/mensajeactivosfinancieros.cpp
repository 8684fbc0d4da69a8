#include "frame/mensajeactivosfinancieros.h"

#include "companion/dialogo.h"
#include "companion/modal.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace nod {

QString TFMensajeActivosFinancieros::TextoAyuda() {
    return QStringLiteral(
        "<p>El código del emisor de un activo financiero se toma de los intervinientes del protocolo. "
        "Sólo cuentan los intervinientes cuyo documento es un <b>CIF</b>, un <b>NIF</b> o un <b>NIE</b>, "
        "y se aplican estas reglas por orden hasta que una de ellas da un emisor:</p>"
        "<ol>"
        "<li>El interviniente que actúa como sociedad.</li>"
        "<li>Cualquier interviniente que sea una sociedad.</li>"
        "<li>El apoderado o el cargo que interviene por la sociedad.</li>"
        "<li>El interviniente que comparece «Representando».</li>"
        "<li>El interviniente que comparece «En Representación De».</li>"
        "<li>El interviniente que comparece «Por Si y en Representación De».</li>"
        "<li>Cualquier interviniente con un documento válido.</li>"
        "</ol>"
        "<p>La clave del código del emisor indica de qué clase es:</p>"
        "<ul>"
        "<li><b>1. NIF</b>: el NIF o CIF del emisor español.</li>"
        "<li><b>2. ISIN</b>: el código internacional del valor.</li>"
        "<li><b>3. Extranjero</b>: emisor extranjero sin NIF español; el código se escribe en la forma "
        "<b>ZXX</b>, con las dos letras del código del país en lugar de XX.</li>"
        "</ul>"
        "<p>Antes de guardar el activo se comprueba que tiene emisor, que la clave del código concuerda "
        "con el código escrito (un NIF o CIF válido para la clave 1, un ISIN bien formado para la clave 2, "
        "la forma ZXX para la clave 3) y que están los datos que pide el modelo 198 de la Agencia "
        "Tributaria. Corrija el activo cuando alguna comprobación no se cumpla.</p>");
}

TFMensajeActivosFinancieros::TFMensajeActivosFinancieros(QWidget* owner)
    : QDialog(owner,
              Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::MSWindowsFixedSizeDialogHint) {
    setObjectName(QStringLiteral("FMensajeActivosFinancieros"));
    setWindowTitle(QStringLiteral("Información sobre los Activos Financieros"));
    setFixedSize(495, 344);

    auto* titulo = new QLabel(QStringLiteral("Reglas para la corrección de Activos Financieros"), this);
    titulo->setObjectName(QStringLiteral("LTitulo"));
    QFont f = titulo->font();
    f.setBold(true);
    f.setPointSize(f.pointSize() + 2);
    titulo->setFont(f);
    titulo->setAlignment(Qt::AlignCenter);

    auto* texto = new QTextEdit(this);
    texto->setObjectName(QStringLiteral("RETexto"));
    texto->setReadOnly(true);
    texto->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    texto->setHtml(TextoAyuda()); // the box's own fixed text: the one place where markup is meant
    titulo->setBuddy(texto);      // the title names the text for screen readers

    auto* barra = new QWidget(this);
    barra->setObjectName(QStringLiteral("PBotones"));
    auto* botones = new QHBoxLayout(barra);
    botones->addStretch();
    auto crea = [&](const char* nombre, const QString& caption,
                    void (TFMensajeActivosFinancieros::*handler)()) {
        auto* b = new QPushButton(caption, barra);
        b->setObjectName(QLatin1String(nombre));
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, handler);
        botones->addWidget(b);
        return b;
    };
    crea("BBSi", QStringLiteral("&Si"), &TFMensajeActivosFinancieros::BBSiClick);
    crea("BBNo", QStringLiteral("&No"), &TFMensajeActivosFinancieros::BBNoClick);
    crea("BBAceptar", QStringLiteral("&Aceptar"), &TFMensajeActivosFinancieros::BBAceptarClick);

    auto* l = new QVBoxLayout(this);
    l->addWidget(titulo);
    l->addWidget(texto, 1);
    l->addWidget(barra);
    // The help text takes the focus first and scrolls with the arrows and Page keys; Tab goes on to the
    // buttons. Escape answers Yes.
    texto->setFocus();
    OpcionesDialogo o;
    o.resultadoEscape = 6;
    AplicaConvencionesDialogo(this, o);
}

void TFMensajeActivosFinancieros::CambiaTipoMensaje(int tipo) {
    auto* si = findChild<QPushButton*>(QStringLiteral("BBSi"));
    auto* no = findChild<QPushButton*>(QStringLiteral("BBNo"));
    auto* aceptar = findChild<QPushButton*>(QStringLiteral("BBAceptar"));
    if (tipo == 0) {
        aceptar->setVisible(true);
        si->setVisible(false);
        no->setVisible(false);
    } else if (tipo == 1) {
        aceptar->setVisible(false);
        si->setVisible(true);
        no->setVisible(true);
    }
}

void TFMensajeActivosFinancieros::BBSiClick() {
    done(6);
}
void TFMensajeActivosFinancieros::BBNoClick() {
    done(7);
}
void TFMensajeActivosFinancieros::BBAceptarClick() {
    done(1);
}

void TFMensajeActivosFinancieros::reject() {
    setResult(7);
    BBSiClick();
}

int MuestraActivosFinancieros(int tipo, QWidget* owner) {
    TFMensajeActivosFinancieros forma(owner);
    forma.CambiaTipoMensaje(tipo);
    return EjecutaModal(forma);
}

} // namespace nod
