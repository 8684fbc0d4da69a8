#pragma once
// The pattern every prompt routine follows: build the form of its kind, fill it, show it through the
// modal seam, and copy the answers out only when the clerk accepted. The form lives on the stack, so
// it is freed on every path, an exception passing through included.

#include "companion/modal.h"
#include "prompts/preguntadatos.h"

#include <QDateTimeEdit>
#include <initializer_list>
#include <utility>

class QAbstractButton;
class QLabel;

namespace nod::pregunta {

/// `rellena(f)` sets captions, labels and values; `recoge(f)` copies the answers into the caller's
/// variables and runs only on acceptance (modal result 1). True exactly when the clerk accepted.
template <typename Rellena, typename Recoge>
bool Pregunta(const QString& tipo, QWidget* owner, Rellena&& rellena, Recoge&& recoge) {
    TFPreguntaDatos f(owner, tipo);
    rellena(f);
    FPreguntaDatos = &f;
    const int resultado = EjecutaModal(f);
    FPreguntaDatos = nullptr;
    if (resultado != 1) return false;
    recoge(f);
    return true;
}

/// A date field's value as a serial, with its time of day.
inline TDateTime ValorFecha(const QDateTimeEdit* d) {
    return QDateTimeToTDateTime(d->dateTime());
}
/// Puts a serial into a date field (the field keeps its allowed range).
inline void PonFecha(QDateTimeEdit* d, TDateTime t) {
    d->setDateTime(TDateTimeToQDateTime(t));
}

/// Limits a date field to the days of year `ano`; 0 leaves it free.
void LimitaAlAno(QDateTimeEdit* d, int ano);

/// A caller's text for a label: plain, wrapped, and cut to a length a form can hold, the whole text in
/// the tooltip.
void PonTextoLlamador(QLabel* etiqueta, const QString& texto);
/// A caller's text for the form's caption (one line, cut the same way).
void PonCaptionLlamador(QWidget* forma, const QString& texto);

/// The caller's caption (see `PonCaptionLlamador`) and the form's background colours.
inline void PonCaptionYColores(TFPreguntaDatos& f, const QString& titulo, TColor arriba, TColor abajo) {
    PonCaptionLlamador(&f, titulo);
    f.PonColores(arriba, abajo);
}

/// The letters of the ticked boxes, in the order of the boxes: "ACE" for A, C and E ticked.
QString LetrasMarcadas(std::initializer_list<std::pair<const QAbstractButton*, QChar>> casillas);
/// Ticks the boxes whose letter is in `letras`, clears the others.
void MarcaLetras(std::initializer_list<std::pair<QAbstractButton*, QChar>> casillas, const QString& letras);

} // namespace nod::pregunta
