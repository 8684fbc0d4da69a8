#pragma once
// Answering a form without a clerk: what a form shows, and filling its controls and pressing a button the
// way a clerk would, through the same key filters and handlers (focus enters each control, its value is
// typed with key events, the focus leaves it). `nodrim batch` answers every form of the library with it,
// through the modal seam (companion/modal.h).
//
// Values, by control: an edit or spin edit takes text (a spin edit also a whole number, an amount edit
// also a number), typed as keys after selecting what the field held; a list takes the text of one of its
// items or its index; a check box or radio button true or false; a date field "YYYY-MM-DD".

#include "nod_widgets_export.h"

#include <QList>
#include <QString>
#include <QVariant>

class QAbstractButton;
class QDialog;

namespace nod NOD_WIDGETS_EXPORT {

/// A control of a form, by its `objectName`, and a value.
struct ValorControl {
    QString control;
    QVariant valor;
};

/// A script's answer to a form: values, entered in the form's Tab order whatever their order here, then
/// one button pressed.
struct RespuestaFormulario {
    QList<ValorControl> fija;
    /// `objectName` of the button to press; empty presses the form's accept button (`BotonAceptar`).
    QString pulsa;
};

/// A form as the clerk sees it when it opens.
struct FormularioMostrado {
    QString titulo;
    /// `objectName` of the visible panel (the first visible named frame or group of the form that holds
    /// input controls), empty when there is none.
    QString panel;
    /// Every visible, named input control with its value as shown: text for edits, spin edits and lists,
    /// true/false for check boxes and radio buttons, "YYYY-MM-DD" for dates. A masked (password) field
    /// shows "" whatever it holds.
    QList<ValorControl> valores;
};

FormularioMostrado DescribeFormulario(const QDialog& d);

/// The form's accept button: the visible button whose caption is "Aceptar", "Abrir" or "OK" (accelerator
/// aside), or a button box's accept button; null when there is none.
QAbstractButton* BotonAceptar(const QDialog& d);

/// Enters `r` into `d` (shown and active) and presses its button. Returns an empty text, or an error
/// naming the control or button when one does not exist, takes no value, is disabled or hidden, or the
/// value has the wrong type or is not one the control can hold; on error nothing further is entered and
/// no button is pressed.
QString RespondeFormulario(QDialog& d, const RespuestaFormulario& r);

} // namespace nod
