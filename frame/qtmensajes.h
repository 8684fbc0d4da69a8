#pragma once
// The message service of programs with a screen: real message boxes, the suite's coloured box and a
// modeless wait window. Install it once at start-up:
//
//     nod::ServicioMensajesQt mensajes;
//     nod::InstalaServicioMensajes(&mensajes);

#include "companion/mensajes.h"
#include "nod_widgets_export.h"

#include <QDialog>
#include <QLabel>
#include <QPointer>
class QWidget;

namespace nod NOD_WIDGETS_EXPORT {

class ServicioMensajesQt : public ServicioMensajes {
public:
    ~ServicioMensajesQt() override;

    /// A TCajaMensaje with the stop icon and one "&Aceptar" button.
    void error(const QString& texto, const QString& titulo) override;
    /// A TCajaMensaje with the information icon and one "&Aceptar" button.
    void info(const QString& texto, const QString& titulo) override;
    /// A TCajaMensaje with "&Si" / "&No", the focus on "&Si" when `focoEnSi`; Escape answers No. 1 yes,
    /// 2 no.
    int pregunta(const QString& kind, const QString& texto, const QString& titulo, bool focoEnSi) override;
    /// A small window without buttons (`FEspera`, its text in `LEspera`), shown at once and kept above the
    /// program until closed, just below the active window (above it when there is no room below) so that
    /// the window's controls stay in sight. Its text is plain and wraps within half the screen's width;
    /// Escape and the close button do not close it.
    void muestraEspera(const QString& texto) override;
    void cambiaEspera(const QString& texto) override;
    void cierraEspera() override;
    /// A TFMensajeNod filled as `Mensaje_Person` does.
    int mensajePerson(const PeticionMensajePerson& p) override;
    /// A TFMensajeActivosFinancieros of the given type.
    int activosFinancieros(int tipo) override;

    /// The wait window while it is shown (tests look at it).
    QDialog* ventanaEspera() const { return m_espera; }

private:
    void ponTextoEspera(const QString& texto);
    void colocaEspera();

    QPointer<QDialog> m_espera;
    QPointer<QLabel> m_textoEspera;
};

} // namespace nod
