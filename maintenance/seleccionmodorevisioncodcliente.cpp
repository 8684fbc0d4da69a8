#include "maintenance/seleccionmodorevisioncodcliente.h"

#include "companion/dialogo.h"
#include "companion/modal.h"
#include "maintenance/listarevisioncodclienteqr.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace nod {

QPointer<TFSeleccionModoRevisionCodCliente> FSeleccionModoRevisionCodCliente;

TFSeleccionModoRevisionCodCliente::TFSeleccionModoRevisionCodCliente(QWidget* owner)
    : QDialog(owner) {
    setObjectName(QStringLiteral("FSeleccionModoRevisionCodCliente"));
    setWindowTitle(QStringLiteral("Indique los parámetros de Revisión"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);

    RBTodasTablas = new QRadioButton(QStringLiteral("Revisión en todas las tablas"), this);
    RBTodasTablas->setObjectName(QStringLiteral("RBTodasTablas"));
    RBUnaTabla = new QRadioButton(QStringLiteral("Revisión en la tabla"), this);
    RBUnaTabla->setObjectName(QStringLiteral("RBUnaTabla"));
    CBTablas = new QComboBox(this);
    CBTablas->setObjectName(QStringLiteral("CBTablas"));
    CBTablas->setToolTip(QStringLiteral("Tabla que se revisa"));
    CBTablas->setMinimumContentsLength(12);
    BBAceptar = new QPushButton(QStringLiteral("&Aceptar"), this);
    BBAceptar->setObjectName(QStringLiteral("BBAceptar"));
    BBAceptar->setToolTip(QStringLiteral("Acepta los cambios y cierra esta ventana"));
    BBSalir = new QPushButton(QStringLiteral("&Salir"), this);
    BBSalir->setObjectName(QStringLiteral("BBSalir"));
    BBSalir->setToolTip(QStringLiteral("Cancela los cambios y cierra esta ventana"));

    auto* unaTabla = new QHBoxLayout;
    unaTabla->addWidget(RBUnaTabla);
    unaTabla->addWidget(CBTablas, 1);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(BBAceptar);
    botones->addWidget(BBSalir);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(RBTodasTablas);
    capa->addLayout(unaTabla);
    capa->addSpacing(8);
    capa->addLayout(botones);
    capa->setSizeConstraint(QLayout::SetFixedSize);

    RellenaTablasConCodCliente();
    RBTodasTablas->setChecked(true);
    RBTodasTablasClick();
    connect(RBTodasTablas, &QRadioButton::toggled, this, [this] { RBTodasTablasClick(); });
    connect(BBAceptar, &QPushButton::clicked, this, [this] { BBAceptarClick(); });
    connect(BBSalir, &QPushButton::clicked, this, &QDialog::reject);
    AplicaConvencionesDialogo(this);
}

void TFSeleccionModoRevisionCodCliente::RellenaTablasConCodCliente() {
    CBTablas->clear();
    CBTablas->addItems(TablasConCodCliente());
}

void TFSeleccionModoRevisionCodCliente::RBTodasTablasClick() {
    const bool todas = RBTodasTablas->isChecked();
    CBTablas->setEnabled(!todas);
    CBTablas->setCurrentIndex(todas || CBTablas->count() == 0 ? -1 : 0);
}

void TFSeleccionModoRevisionCodCliente::BBAceptarClick() {
    const bool corrio = RBTodasTablas->isChecked()
                            ? MuestraCodClienteIncorrectoEnTodasTablas()
                            : MuestraCodClienteIncorrectoEnTabla(CBTablas->currentText());
    done(corrio ? 1 : 2);
}

bool TFSeleccionModoRevisionCodCliente::MuestraCodClienteIncorrectoEnTodasTablas() {
    return corre([this] { return m_revision.MuestraCodClienteIncorrectoEnTodasTablas(); },
                 QStringLiteral("(En todas las tablas)"));
}

bool TFSeleccionModoRevisionCodCliente::MuestraCodClienteIncorrectoEnTabla(const QString& tabla) {
    return corre([&] { return m_revision.MuestraCodClienteIncorrectoEnTabla(tabla); },
                 TQRListaRevisionCodCliente::SubtituloDeTabla(tabla));
}

// The revision with the form blocked (no second run while the first goes on), then the list.
bool TFSeleccionModoRevisionCodCliente::corre(const std::function<bool()>& revisa, const QString& subtitulo) {
    const QList<QWidget*> controles = {RBTodasTablas, RBUnaTabla, CBTablas, BBAceptar, BBSalir};
    QList<bool> estaban;
    for (QWidget* w : controles) {
        estaban << w->isEnabled();
        w->setEnabled(false);
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool corrio = revisa();
    QApplication::restoreOverrideCursor();
    for (qsizetype i = 0; i < controles.size(); ++i)
        controles[i]->setEnabled(estaban[i]);
    if (corrio) TQRListaRevisionCodCliente(m_revision.Mensajes(), subtitulo).Preview(this);
    return corrio;
}

bool SeleccionModoRevisionCodCliente(QWidget* owner) {
    TFSeleccionModoRevisionCodCliente forma(owner);
    FSeleccionModoRevisionCodCliente = &forma;
    const int r = EjecutaModal(forma);
    FSeleccionModoRevisionCodCliente = nullptr;
    return r == 1;
}

} // namespace nod
