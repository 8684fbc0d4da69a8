#pragma once
// The dialog with which a clerk checks a cadastral reference and opens the cadastre's consultation page
// for it. The reference travels in the configuration: the caller sets `RefCatastralActual` before opening
// the dialog and reads it after; "Aceptar" leaves the typed reference there, "Cancelar" and Escape the
// original one.
//
// "Cata&stro" (and "&Validar" in its online mode) wait on the cadastre inside the dialog: busy cursor, a
// wait message, the controls blocked so that a second click starts nothing. Escape abandons the wait and
// leaves the dialog open; "&Cancelar" abandons it and closes the dialog; an answer arriving after either
// is dropped. Entering a control shows its hint in `SBExplica`; Enter moves to the next control.

#include "nod_widgets_export.h"

#include <QDialog>

class QRadioButton;
class QLabel;
class QPushButton;
class QStatusBar;
class QFrame;

namespace nod NOD_WIDGETS_EXPORT {

class TEditRefCatastral;

class TFValidaReferenciaCatastral : public QDialog {
    Q_OBJECT
public:
    explicit TFValidaReferenciaCatastral(QWidget* owner = nullptr);

    /// The province and municipality codes of `ref` asked to the cadastre; both empty when unknown.
    void RecuperaMunicipio(const QString& ref, QString& provincia, QString& municipio);

    TEditRefCatastral* ERCRefCatastral = nullptr;
    QRadioButton *RBUrbana = nullptr, *RBRustica = nullptr;
    QPushButton *BBValidar = nullptr, *BBCatastro = nullptr, *BBAceptar = nullptr, *BBCancelar = nullptr;
    QStatusBar* SBExplica = nullptr;

protected:
    void showEvent(QShowEvent* e) override;
    void reject() override { Cancelar(); } // Escape and the window's close button hand back the original

private:
    void Aceptar();
    void Cancelar();
    void Validar();
    void Catastro();

    QFrame* m_panel = nullptr;
    QString m_guardada; // the reference as the caller handed it
};

/// Opens the dialog modally on `owner` and frees it.
void IValidaReferenciaCatastral(QWidget* owner);

} // namespace nod
