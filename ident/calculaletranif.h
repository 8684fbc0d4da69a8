#pragma once
// The small dialog with which a clerk works out the letter of a DNI or checks a CIF or NIE by hand.
//
// A fixed dialog: choosing DNI, CIF or NIE shows the mode's panel and button in the same place, and a
// verdict appears beside its edit without moving anything. `ENIF` takes the digits "0" to "9" (Delete,
// the arrows, Home and End always work; pasted text keeps its digits). Enter in an edit presses the
// mode's button ("&Letra" or "&Valida"), Enter on a button presses it. "&Salir", Escape and the close
// button give 2.

#include "nod_widgets_export.h"

#include <QDialog>

class QRadioButton;
class QLineEdit;
class QLabel;
class QPushButton;
class QFrame;

namespace nod NOD_WIDGETS_EXPORT {

class TFCalculaLetraNIF : public QDialog {
    Q_OBJECT
public:
    explicit TFCalculaLetraNIF(QWidget* owner = nullptr);

    QRadioButton *RBDNI = nullptr, *RBCIF = nullptr, *RBNIE = nullptr;
    QFrame *PDNI = nullptr, *PCIF = nullptr, *PNIE = nullptr;
    QLineEdit *ENIF = nullptr, *ECIF = nullptr, *ENIE = nullptr;
    QLabel *PLETRA = nullptr, *LResultadoCIF_ = nullptr, *LResultadoNIE_ = nullptr;
    QPushButton *BBCalculaLetra = nullptr, *BBValidaCIF = nullptr, *BBSalir = nullptr;

    /// "&Letra": the letter of the number in ENIF, shown in PLETRA (cleared when there is none).
    void CalculaLetra();

protected:
    void showEvent(QShowEvent* e) override;

private:
    void eligeTipo(QRadioButton* rb);
    void Valida();
    void muestraVeredicto(QLabel* etiqueta, bool correcto);
};

/// Opens the dialog modally on `owner` and frees it.
void ICalculaLetraNif(QWidget* owner);

} // namespace nod
