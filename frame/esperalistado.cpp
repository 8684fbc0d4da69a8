#include "frame/esperalistado.h"

#include "companion/dialogo.h"
#include "frame/ventanas.h"

#include <QGuiApplication>
#include <QProgressBar>
#include <QScreen>
#include <QVBoxLayout>

namespace nod {

TFEsperaListado::TFEsperaListado(QWidget* owner, const QString& caption)
    : QDialog(owner,
              Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::MSWindowsFixedSizeDialogHint) {
    setObjectName(QStringLiteral("FEsperaListado"));
    setWindowTitle(caption);
    setFixedSize(360, 56);
    m_barra = new QProgressBar(this);
    m_barra->setObjectName(QStringLiteral("PbListado"));
    m_barra->setRange(0, 100);
    m_barra->setValue(0);
    auto* l = new QVBoxLayout(this);
    l->addWidget(m_barra);

    // Centred on the program's main window, whoever owns it (the progress window usually has none);
    // on the screen while there is no main window to be seen.
    QRect zona;
    const QWidget* principal = VentanaPrincipal();
    if (principal && principal != this && principal->isVisible())
        zona = principal->frameGeometry();
    else if (const QScreen* s = QGuiApplication::primaryScreen())
        zona = s->availableGeometry();
    if (zona.isValid()) move(zona.center() - rect().center());
    // The work goes on whatever the clerk presses: Escape and the close button do nothing.
    OpcionesDialogo o;
    o.escapeCierra = false;
    AplicaConvencionesDialogo(this, o);
}

void TFEsperaListado::DibujaEstado(int posicion) {
    m_barra->setValue(qBound(0, posicion, 100)); // a bar takes positions outside its range as its ends
    repaint();
}

int TFEsperaListado::posicion() const {
    return m_barra->value();
}

TFEsperaListado* MuestraProgreso(const QString& caption) {
    auto* forma = new TFEsperaListado(nullptr, caption);
    forma->update();
    return forma;
}

void CambiaProgreso(const QString& caption, int posicion, TFEsperaListado* forma) {
    if (!forma) return;
    forma->setWindowTitle(caption);
    forma->DibujaEstado(posicion);
}

void CierraProgreso(TFEsperaListado* forma) {
    delete forma;
}

} // namespace nod
