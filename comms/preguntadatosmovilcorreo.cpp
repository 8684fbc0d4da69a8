#include "comms/preguntadatosmovilcorreo.h"

#include "companion/dialogo.h"
#include "companion/filtroteclas.h"
#include "companion/modal.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace nod {

TFPreguntaDatosMovilCorreo::TFPreguntaDatosMovilCorreo(QWidget* owner, const QString& nombre,
                                                       const QString& movil, const QString& correo)
    : QDialog(owner) {
    setObjectName(QStringLiteral("FPreguntaDatosMovilCorreo"));
    setWindowTitle(QStringLiteral("Datos del Cliente, Movil y Correo"));

    LCliente = new QLabel(this);
    LCliente->setObjectName(QStringLiteral("LCliente"));
    LCliente->setWordWrap(true);
    QFont negrita = LCliente->font();
    negrita.setBold(true);
    LCliente->setFont(negrita);
    PonTextoPlano(LCliente, nombre);

    MEMovil = new QLineEdit(this);
    MEMovil->setObjectName(QStringLiteral("MEMovil"));
    InstalaFiltroCaracteres(MEMovil, {[](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.'; }});
    MEMovil->setText(movil);
    ECorreo = new QLineEdit(this);
    ECorreo->setObjectName(QStringLiteral("ECorreo"));
    ECorreo->setMinimumWidth(ECorreo->fontMetrics().averageCharWidth() * 40);
    ECorreo->setText(correo);

    BBAceptar = new QPushButton(QStringLiteral("&Aceptar"), this);
    BBAceptar->setObjectName(QStringLiteral("BBAceptar"));
    BBAceptar->setToolTip(QStringLiteral("Pulse el botón para modificar los datos de movil y correo"));
    BBCancelar = new QPushButton(QStringLiteral("&Cancelar"), this);
    BBCancelar->setObjectName(QStringLiteral("BBCancelar"));
    BBCancelar->setToolTip(QStringLiteral("Pulse el botón para cancelar la operación"));
    connect(BBAceptar, &QPushButton::clicked, this, [this] {
        m_movil = MEMovil->text();
        m_correo = ECorreo->text();
        done(1);
    });
    connect(BBCancelar, &QPushButton::clicked, this, &QDialog::reject);

    auto* campos = new QFormLayout;
    campos->addRow(QStringLiteral("Número de teléfono móvil:"), MEMovil);
    campos->addRow(QStringLiteral("Dirección de correo electrónico:"), ECorreo);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(BBAceptar);
    botones->addWidget(BBCancelar);
    auto* capa = new QVBoxLayout(this);
    capa->setSizeConstraint(QLayout::SetFixedSize);
    capa->addWidget(LCliente);
    capa->addLayout(campos);
    capa->addSpacing(6);
    capa->addLayout(botones);

    AplicaConvencionesDialogo(this);
}

void TFPreguntaDatosMovilCorreo::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    QLineEdit* foco = MEMovil->text().isEmpty() ? MEMovil : ECorreo->text().isEmpty() ? ECorreo : MEMovil;
    foco->setFocus(Qt::OtherFocusReason);
}

bool PreguntaDatosMovilCorreo(QWidget* owner, const QString& nombre, QString& movil, QString& correo) {
    TFPreguntaDatosMovilCorreo forma(owner, nombre, movil, correo);
    if (EjecutaModal(forma) != 1) return false;
    movil = forma.Movil();
    correo = forma.Correo();
    return true;
}

} // namespace nod
