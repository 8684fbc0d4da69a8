#pragma once
// Character filters of the suite's edits (digits only, capitals, the letters of a code ...), decided as the
// original toolkit decided them: a `...KeyPress` handler saw only what Windows delivered as characters, so
// Delete, the arrows, Home, End, Insert, Page Up/Down and the function keys always worked. Keys are told
// apart by their key code, never by their text (X11 gives Delete the text "\x7f"), and text that arrives
// without a key (pasted, dropped, set by the program) passes the same filter.
//
//     SoloDigitos(ENIF);                                                   // "0" to "9"
//     EscribeEnMayusculas(ECIF);                                           // anything, in capitals
//     InstalaFiltroCaracteres(EBis, {[](QChar c) { return c.isLetter(); }, true}); // one letter code

#include "nod_widgets_export.h"

#include <QString>
#include <functional>

class QLineEdit;

namespace nod NOD_WIDGETS_EXPORT {

/// Whether a key always reaches the edit whatever its filter: Delete, Backspace, the arrows, Home, End,
/// Insert, Page Up/Down, F1 to F35, Tab, Enter, Escape, and keys that type nothing (modifiers alone).
/// Decided by the key code: TeclaSiemprePasa(Qt::Key_Delete) is true although X11 sends it with "\x7f".
bool TeclaSiemprePasa(int tecla);

/// Which characters an edit takes; an empty function takes every character.
using AdmiteCaracter = std::function<bool(QChar)>;

struct FiltroCaracteres {
    AdmiteCaracter admite;
    /// Letters are shown and kept in capitals, letter by letter (`UpperCase`: "ß" stays one letter);
    /// `admite` judges the capital.
    bool mayusculas = false;
};

/// Installs `filtro` on `edit`:
/// - a key that always passes (`TeclaSiemprePasa`) and a key with Ctrl or Alt that types no character
///   (copy, paste, undo, accelerators) reach the edit as they are;
/// - a key that types characters reaches it only when the filter takes every one of them (in capitals
///   when asked); otherwise it is swallowed and text, cursor and selection stay as they were;
/// - text arriving otherwise (paste, drop, `setText`, `insert`) loses the characters the filter refuses
///   and is put in capitals when asked, before any `textChanged` is emitted, the cursor staying by the
///   same characters. A validator the edit already had still judges the filtered text.
/// Installing again replaces the previous filter.
void InstalaFiltroCaracteres(QLineEdit* edit, FiltroCaracteres filtro);

/// The digits "0" to "9" only (the suite's `SoloDigitos`).
void SoloDigitos(QLineEdit* edit);

/// Keeps the text in capitals whatever its source: typed, pasted or set by the program.
/// EscribeEnMayusculas(e); e->setText(" 9872023vh "); then e->text() == " 9872023VH ".
void EscribeEnMayusculas(QLineEdit* edit);

/// The text `texto` as `filtro` leaves it: refused characters dropped, capitals when asked.
/// TextoFiltrado("12a-3", {EsUnNumero}) == "123".
QString TextoFiltrado(const QString& texto, const FiltroCaracteres& filtro);

} // namespace nod
