#pragma once
// TFMensajeNod: the suite's coloured message box (unit Mensajenod). `Mensaje_Person` fills and shows it
// in one call; programs may also build it themselves.
//
// Layout (client coordinates): the upper line `lmensaje` (59, 5, 526 × 61, Arial bold 15 px, wrapped,
// vertically centred) beside a 32 × 32 stop or question icon, the lower line `LMENSAJE2` (45, 72,
// 540 × 19, Arial bold 16 px, centred), and the two buttons `BACEPTAR` (result 1, default) and
// `BCANCELAR` (result 2, Escape) over the invisible bottom bar `Panel1`. On show the box arranges
// itself by which lines have text:
//   both lines          lower line at top 56, buttons at top 89, height 150
//   no upper line       lower line at top 21, buttons at top 62, height 123
//   no lower line       buttons at top 62, height 123
// Heights and tops are those of the client area: the buttons' tops are taken in the box itself (the
// bar stays at the bottom with its 34 pixels), so the buttons are always within the box.
//
// Keys: the focus sits on the buttons; Enter presses the focused one, a plain letter ("s", "n", "a" ...)
// presses its button as Alt+letter does, and Escape answers 2 whichever buttons are shown. Texts are plain
// ("<b>" shows as typed) and "\r", "\r\n" or "\n" break a line. A text longer than its line's room is
// shown from its beginning, aligned to the top and cut with "…", the whole text in the tooltip. Shown, the
// box lies inside the screen even when centred on an owner near its edge.

#include "companion/mensajes.h"
#include "nod_widgets_export.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class QPushButton;
class QWidget;

namespace nod NOD_WIDGETS_EXPORT {

class TFMensajeNod : public QDialog {
    Q_OBJECT
public:
    /// Builds the box with its design values (caption "Mensaje", 590 × 149, red with white letters,
    /// buttons "&Aceptar" and "&Salir") and centres it as `FormCreate` does.
    explicit TFMensajeNod(QWidget* owner = nullptr);
    ~TFMensajeNod() override;

    void CambiaFondo(TColor c);
    /// Font colour of both message lines.
    void CambiaColorLetras(TColor c);
    /// 0 shows the stop icon, any other value the question icon.
    void CambiaIcono(int icono);
    /// Button set (`TMensaje`): 0 one "&Aceptar" in the second button's place; 1, 2 "&Si"/"&No";
    /// 3, 4 and unknown values "&Aceptar"/"&Cancelar"; 5, 6 the captions `b1`, `b2` without glyphs and
    /// with fonts two points larger. The first button stands at left 374 (491 for type 0).
    void CambiaTipoMensaje(int tipo, const QString& b1, const QString& b2);
    /// Sets the upper line: up to three wrapped lines, vertically centred when the text fits; a longer
    /// text keeps its beginning (`PonTextoAjustado`).
    void CambiaMensaje1(const QString& s);
    /// Sets the lower line; a text longer than 40 characters is drawn at 10 points.
    void CambiaMensaje2(const QString& s);

    int tipoMensaje() const { return m_tipo; }

    /// Centres the box on its owner when the owner is a visible window (not a control inside one), else
    /// on the screen.
    void FormCreate();
    /// Lays the box out by which lines are present, sets the focus by type and raises the box.
    void FormShow();

protected:
    void showEvent(QShowEvent* e) override;

private:
    QLabel* m_lmensaje;
    QLabel* m_iconoStop;
    QLabel* m_iconoPregunta;
    QLabel* m_lmensaje2;
    QWidget* m_panel1;
    QPushButton* m_baceptar;
    QPushButton* m_bcancelar;
    int m_tipo = 0;
    int m_puntosBotones;
};

/// The box while `Mensaje_Person` shows it (kept after it is freed, as the suite always did: it is a
/// QPointer here, so it reads null instead of dangling).
extern QPointer<TFMensajeNod> FMensajeNod;

/// Builds, fills and shows the box as `Mensaje_Person` does, and returns its modal result.
int MuestraMensajePerson(const PeticionMensajePerson& p, QWidget* owner = nullptr);

} // namespace nod
