#pragma once
// The edit of a cadastral reference: upper case, at most 20 characters, and able to validate what it holds.

#include "nod_widgets_export.h"

#include <QLineEdit>
#include <functional>

namespace nod NOD_WIDGETS_EXPORT {

/// Kind of property a reference belongs to.
enum class TTipoFinca { Urbana, Rustica };

/// Result codes of `ValidaRefCatastral`, as the dialogs report them.
namespace ResultadoRefCatastral {
constexpr int Cancelada = -4;        // the clerk cancelled the consultation with Escape
constexpr int PatronIncorrecto = -3; // wrong shape or wrong control letters
constexpr int SinConexion = -2;      // the cadastre could not be asked
constexpr int NoValidaCatastro = -1; // the cadastre does not know the reference
constexpr int SinValidar = 0;        // nothing validated yet
constexpr int Valida = 1;            // shape (and control letters) right
constexpr int ValidaCatastro = 2;    // the cadastre knows the reference
} // namespace ResultadoRefCatastral

/// Validation modes (`ModoValidacion`, configured as `nValidacionRefCat`):
///   0  the shape only;
///   1  the shape and both control letters (any other number is taken as 1);
///   2  as 1, then the cadastre's web service is asked whether it knows the reference.
/// The shape of an urban reference is 14 digits or letters (plot and map sheet; old plots hold letters),
/// 4 digits (the property) and 2 letters; of a rustic one 5 digits, a letter, 12 digits and 2 letters.
class TEditRefCatastral : public QLineEdit {
    Q_OBJECT
public:
    /// The text is kept in capitals whatever its source: typed, pasted or set with `setText`
    /// ("9872023vh5797s0001wx" is shown and read back as "9872023VH5797S0001WX").
    explicit TEditRefCatastral(QWidget* parent = nullptr);

    TTipoFinca TipoFinca() const { return m_tipoFinca; }
    void SetTipoFinca(TTipoFinca t) { m_tipoFinca = t; }
    int ModoValidacion() const { return m_modo; }
    void SetModoValidacion(int modo) { m_modo = modo; }
    /// Whether leaving the edit validates it (off in the suite's dialogs).
    bool ValidarAlSalir() const { return m_validarAlSalir; }
    void SetValidarAlSalir(bool v) { m_validarAlSalir = v; }

    /// Validates the trimmed text by the mode and kind and keeps the code in `Resultado`; returns it.
    /// With the reference 9872023VH5797S0001WX, urban, mode 1: 1; with ...0001XW: -3.
    /// In mode 2, while the cadastre is asked, `cancelada` is polled (true abandons: -4); without it the
    /// edit holds its window in a wait of its own (`TEsperaDialogo`: busy cursor, controls blocked, Escape
    /// abandons).
    int ValidaRefCatastral(const std::function<bool()>& cancelada = {});
    int Resultado() const { return m_resultado; }

protected:
    void focusOutEvent(QFocusEvent* e) override;

private:
    int validaSinConexion(const QString& ref) const;
    int validaConCatastro(const QString& ref, const std::function<bool()>& cancelada);

    TTipoFinca m_tipoFinca = TTipoFinca::Urbana;
    int m_modo = 1;
    bool m_validarAlSalir = false;
    int m_resultado = ResultadoRefCatastral::SinValidar;
};

/// Whether `ref` (upper case, 20 characters) has the shape of its kind; control letters are not looked at.
bool PatronRefCatastral(const QString& ref, TTipoFinca tipo);

} // namespace nod
