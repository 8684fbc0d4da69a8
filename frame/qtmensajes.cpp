#include "frame/qtmensajes.h"

#include "companion/dialogo.h"
#include "companion/modal.h"
#include "frame/cajamensaje.h"
#include "frame/mensajeactivosfinancieros.h"
#include "frame/mensajenod.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace nod {

namespace {

QWidget* propietario() {
    return QApplication::activeWindow();
}

int caja(TCajaMensaje::Tipo tipo, const QString& texto, const QString& titulo, bool focoEnSi = true) {
    TCajaMensaje m(tipo, texto, titulo, focoEnSi, propietario());
    return EjecutaModal(m);
}

} // namespace

ServicioMensajesQt::~ServicioMensajesQt() {
    delete m_espera;
}

void ServicioMensajesQt::error(const QString& texto, const QString& titulo) {
    caja(TCajaMensaje::Tipo::Error, texto, titulo);
}

void ServicioMensajesQt::info(const QString& texto, const QString& titulo) {
    caja(TCajaMensaje::Tipo::Informacion, texto, titulo);
}

int ServicioMensajesQt::pregunta(const QString& /*kind*/, const QString& texto, const QString& titulo,
                                 bool focoEnSi) {
    return caja(TCajaMensaje::Tipo::Pregunta, texto, titulo, focoEnSi) == 1 ? 1 : 2;
}

void ServicioMensajesQt::muestraEspera(const QString& texto) {
    if (!m_espera) {
        m_espera = new QDialog(propietario(), Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
        m_espera->setObjectName(QStringLiteral("FEspera"));
        m_espera->setWindowTitle(QStringLiteral("Espere, por favor"));
        m_textoEspera = new QLabel(m_espera);
        m_textoEspera->setObjectName(QStringLiteral("LEspera"));
        m_textoEspera->setAlignment(Qt::AlignCenter);
        m_textoEspera->setWordWrap(true);
        auto* capa = new QVBoxLayout(m_espera);
        capa->addWidget(m_textoEspera);
        capa->setSizeConstraint(QLayout::SetFixedSize);
        // Only the program closes it: Escape and the close button belong to the wait, not to the window.
        OpcionesDialogo o;
        o.escapeCierra = false;
        AplicaConvencionesDialogo(m_espera, o);
    }
    ponTextoEspera(texto);
    m_espera->show();
    colocaEspera();
    m_espera->raise();
    m_espera->repaint();
}

void ServicioMensajesQt::ponTextoEspera(const QString& texto) {
    PonTextoPlano(m_textoEspera, texto);
    // As wide as the text's longest line, within half the screen: a long text wraps instead of widening
    // the window past the screen.
    const QScreen* pantalla = m_espera->screen();
    const int maximo = qMax(320, pantalla ? pantalla->availableGeometry().width() / 2 : 560);
    int ancho = 0;
    const QFontMetrics fm(m_textoEspera->font());
    for (const QString& linea : m_textoEspera->text().split(u'\n'))
        ancho = qMax(ancho, fm.horizontalAdvance(linea.left(400)) + 8);
    m_textoEspera->setFixedWidth(qBound(320, ancho, maximo));
    m_espera->adjustSize();
}

// Beside the window that waits, not over it: just below it (above when there is no room below), so that
// its controls and its cancel button stay in sight; inside the screen in any case.
void ServicioMensajesQt::colocaEspera() {
    QWidget* duena = QApplication::activeWindow();
    if (!duena || duena == m_espera)
        duena = m_espera->parentWidget() ? m_espera->parentWidget()->window() : nullptr;
    if (!duena || !duena->isVisible()) return;
    const QRect marco = duena->frameGeometry();
    const QSize tamano = m_espera->frameGeometry().size();
    const QRect zona = duena->screen()->availableGeometry();
    QPoint sitio(marco.center().x() - tamano.width() / 2, marco.bottom() + 8);
    if (sitio.y() + tamano.height() > zona.bottom()) sitio.setY(marco.top() - 8 - tamano.height());
    m_espera->move(sitio);
    AjustaALaPantalla(m_espera);
}

void ServicioMensajesQt::cambiaEspera(const QString& texto) {
    if (!m_espera) return muestraEspera(texto);
    ponTextoEspera(texto);
    m_espera->repaint();
}

void ServicioMensajesQt::cierraEspera() {
    if (!m_espera) return;
    m_espera->hide();
    m_espera->deleteLater();
    m_espera = nullptr;
}

int ServicioMensajesQt::mensajePerson(const PeticionMensajePerson& p) {
    return MuestraMensajePerson(p);
}

int ServicioMensajesQt::activosFinancieros(int tipo) {
    return MuestraActivosFinancieros(tipo);
}

} // namespace nod
