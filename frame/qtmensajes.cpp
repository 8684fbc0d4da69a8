#include "frame/qtmensajes.h"

#include "companion/modal.h"
#include "frame/mensajeactivosfinancieros.h"
#include "frame/mensajenod.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace nod {

namespace {

QWidget* propietario() {
    return QApplication::activeWindow();
}

int caja(QMessageBox::Icon icono, const QString& texto, const QString& titulo) {
    QMessageBox m(icono, titulo, texto, QMessageBox::NoButton, propietario());
    m.addButton(QStringLiteral("&Aceptar"), QMessageBox::AcceptRole);
    return EjecutaModal(m);
}

} // namespace

ServicioMensajesQt::~ServicioMensajesQt() {
    delete m_espera;
}

void ServicioMensajesQt::error(const QString& texto, const QString& titulo) {
    caja(QMessageBox::Critical, texto, titulo);
}

void ServicioMensajesQt::info(const QString& texto, const QString& titulo) {
    caja(QMessageBox::Information, texto, titulo);
}

int ServicioMensajesQt::pregunta(const QString& /*kind*/, const QString& texto, const QString& titulo,
                                 bool focoEnSi) {
    QMessageBox m(QMessageBox::Question, titulo, texto, QMessageBox::NoButton, propietario());
    QPushButton* si = m.addButton(QStringLiteral("&Si"), QMessageBox::YesRole);
    QPushButton* no = m.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
    si->setObjectName(QStringLiteral("BSi"));
    no->setObjectName(QStringLiteral("BNo"));
    m.setDefaultButton(focoEnSi ? si : no);
    m.setEscapeButton(no);
    EjecutaModal(m);
    return m.clickedButton() == si ? 1 : 2;
}

void ServicioMensajesQt::muestraEspera(const QString& texto) {
    if (!m_espera) {
        m_espera = new QDialog(propietario(), Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
        m_espera->setObjectName(QStringLiteral("FEspera"));
        m_espera->setWindowTitle(QStringLiteral("Espere, por favor"));
        m_espera->setAttribute(Qt::WA_DeleteOnClose);
        m_textoEspera = new QLabel(m_espera);
        m_textoEspera->setObjectName(QStringLiteral("LEspera"));
        m_textoEspera->setAlignment(Qt::AlignCenter);
        m_textoEspera->setMinimumWidth(320);
        (new QVBoxLayout(m_espera))->addWidget(m_textoEspera);
    }
    m_textoEspera->setText(texto);
    m_espera->show();
    m_espera->raise();
    m_espera->repaint();
}

void ServicioMensajesQt::cambiaEspera(const QString& texto) {
    if (!m_espera) return muestraEspera(texto);
    m_textoEspera->setText(texto);
    m_espera->repaint();
}

void ServicioMensajesQt::cierraEspera() {
    if (m_espera) m_espera->close(); // deletes itself
}

int ServicioMensajesQt::mensajePerson(const PeticionMensajePerson& p) {
    return MuestraMensajePerson(p);
}

int ServicioMensajesQt::activosFinancieros(int tipo) {
    return MuestraActivosFinancieros(tipo);
}

} // namespace nod
