#include "frame/qtmensajes.h"

#include "companion/dialogo.h"
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
    return m.exec();
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
        // A long text wraps instead of widening the window past the screen.
        const QScreen* pantalla = m_espera->screen();
        const int ancho = pantalla ? pantalla->availableGeometry().width() / 2 : 480;
        m_textoEspera->setMinimumWidth(qMin(320, ancho));
        m_textoEspera->setMaximumWidth(qMax(320, qMin(560, ancho)));
        auto* capa = new QVBoxLayout(m_espera);
        capa->addWidget(m_textoEspera);
        capa->setSizeConstraint(QLayout::SetFixedSize);
        // Only the program closes it: Escape and the close button belong to the wait, not to the window.
        OpcionesDialogo o;
        o.escapeCierra = false;
        AplicaConvencionesDialogo(m_espera, o);
    }
    PonTextoPlano(m_textoEspera, texto);
    m_espera->show();
    m_espera->raise();
    m_espera->repaint();
}

void ServicioMensajesQt::cambiaEspera(const QString& texto) {
    if (!m_espera) return muestraEspera(texto);
    PonTextoPlano(m_textoEspera, texto);
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
