#pragma once
// TFPreguntaZEB: the maker's contact box (unit Preguntazeb): a message, the maker's logo, and two links,
// to the maker's web site (`LMDZeb`) and to its support desk by mail (`LMDCorreo`). The addresses are
// the office's configuration values `WebFabricante` and `CorreoFabricante`, empty unless the office sets
// them: a link without an address is disabled and says it is not configured.

#include "nod_widgets_export.h"

#include <QDialog>

class QLabel;

namespace nod NOD_WIDGETS_EXPORT {

class TFPreguntaZEB : public QDialog {
    Q_OBJECT
public:
    /// The box with `texto` (plain text) in its message label `LMensaje`. Escape, the close button and a
    /// click on the image close it with result 2.
    TFPreguntaZEB(QWidget* owner, const QString& texto);

    /// Link hover: on entering, a pointing hand and a font one point larger in the highlight colour
    /// (stored 0xFAC101 for the web, 0x0000B9 for the mail); on leaving, the default cursor, the font one
    /// point smaller and the rest colour (0xFF0000 web, 0x000080 mail).
    void EntraEnlace(QLabel* enlace);
    void SaleEnlace(QLabel* enlace);

    /// Opens the maker's web site / a "mailto:" to its support desk, through the shell opener; nothing
    /// when the address is not configured.
    void LMDZebClick();
    void LMDCorreoClick();

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override;

private:
    QLabel* m_web;
    QLabel* m_correo;
    QLabel* m_imagen;
};

} // namespace nod
