#pragma once
// TFPreguntaDatosMovilCorreo: a client's mobile number and e-mail address, asked together.
//
//     TFPreguntaDatosMovilCorreo f(owner, "GARCÍA LÓPEZ, MARÍA", movil, correo);
//     if (EjecutaModal(f) == 1) { movil = f.Movil(); correo = f.Correo(); }
//
// Caption "Datos del Cliente, Movil y Correo"; the client's name on top; "Número de teléfono móvil:" with
// `MEMovil`, which takes digits and "." only (typed or pasted; Backspace, Delete and the cursor keys always
// work); "Dirección de correo electrónico:" with `ECorreo`; "&Aceptar" (`BBAceptar`) stores both texts
// and closes with 1; "&Cancelar" (`BBCancelar`) and Escape close with 2 and store nothing. Enter moves to
// the next control. On show the focus goes to the mobile field when it is empty, else to the e-mail field
// when that is empty, else to the mobile field.

#include "nod_widgets_export.h"

#include <QDialog>
#include <QString>

class QLabel;
class QLineEdit;
class QPushButton;

namespace nod NOD_WIDGETS_EXPORT {

class TFPreguntaDatosMovilCorreo : public QDialog {
    Q_OBJECT
public:
    TFPreguntaDatosMovilCorreo(QWidget* owner, const QString& nombre, const QString& movil,
                               const QString& correo);

    /// The answers, set by "&Aceptar" (empty until then).
    const QString& Movil() const { return m_movil; }
    const QString& Correo() const { return m_correo; }

    QLabel* LCliente;
    QLineEdit* MEMovil;
    QLineEdit* ECorreo;
    QPushButton* BBAceptar;
    QPushButton* BBCancelar;

protected:
    void showEvent(QShowEvent* e) override;

private:
    QString m_movil, m_correo;
};

/// Shows the form modally over `owner` with the client's name and current data; on "&Aceptar" copies the
/// answers into `movil` and `correo` and returns true; otherwise leaves them as they were.
bool PreguntaDatosMovilCorreo(QWidget* owner, const QString& nombre, QString& movil, QString& correo);

} // namespace nod
