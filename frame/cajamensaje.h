#pragma once
// TCajaMensaje: the companion library's standard boxes as the Qt message service shows them
// (`Mensaje_Error`, `Mensaje_Info`, `Mensaje_SiNo`, `Mensaje_NoSi`, `NoSi`): an icon, the text and
// "&Aceptar" or "&Si" / "&No".
//
// The text is plain ("<b>" shows as typed) and "\r", "\r\n" or "\n" break a line. It wraps at a readable
// width; a text taller than two thirds of the screen scrolls (the text then takes the focus with Tab and
// scrolls with the keys), so that the buttons stay on screen whatever its length. The focus sits on a
// button: Enter presses the focused one, a plain "s", "n" or "a" presses its button, Escape answers 2.

#include "nod_widgets_export.h"

#include <QDialog>

class QPushButton;

namespace nod NOD_WIDGETS_EXPORT {

class TCajaMensaje : public QDialog {
    Q_OBJECT
public:
    enum class Tipo { Error, Informacion, Pregunta };

    /// An error or information box with one "&Aceptar" (`BAceptar`, result 1), or a question with "&Si"
    /// (`BSi`, 1) and "&No" (`BNo`, 2) and the focus on "&Si" when `focoEnSi`, else on "&No". The text is
    /// in the label `LTexto`.
    TCajaMensaje(Tipo tipo, const QString& texto, const QString& titulo, bool focoEnSi = true,
                 QWidget* owner = nullptr);
};

} // namespace nod
