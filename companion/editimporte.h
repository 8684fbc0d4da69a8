#pragma once
// The edit of an amount typed by a clerk, shown the Spanish way ("1.234,56"). A point is a thousands
// separator only where it groups three digits; a single point followed by one or two digits at the end is
// the decimal separator (the numeric keypad's decimal key types a point on many keyboards). Anything else
// is refused where it is typed, never silently read as something else: "1500.50" is 1.500,50, never
// 150.050.
//
//     auto* e = new TEditImporte(this, 2);   // euros: two decimals
//     e->PonValor(1500.5);                   // shows "1.500,50"
//     e->Valor();                            // 1500.5; ValorEntero() 1501
//     new TEditImporte(this, 0);             // whole pesetas: "1.500" is 1500, "1.5" is refused

#include "nod_widgets_export.h"

#include <QLineEdit>
#include <optional>

namespace nod NOD_WIDGETS_EXPORT {

/// The amount a clerk typed, read by the rule above, or nothing when the text is not a whole amount yet
/// ("1.", "1.234.5") or breaks the rule. Blanks are ignored; an empty text is 0. `decimales` is the most
/// decimal digits taken; `negativos` lets a leading "-" in; at most `maximoCifras` integer digits.
/// LeeImporte("1500.50", 2) == 1500.5, LeeImporte("1.500", 2) == 1500, LeeImporte("1.500,5", 2) == 1500.5,
/// LeeImporte("150000.5", 2) == 150000.5, LeeImporte("15.00", 0) is nothing, LeeImporte("1.50.0", 2) is
/// nothing.
std::optional<double> LeeImporte(QStringView texto, int decimales, bool negativos = false,
                                 int maximoCifras = 13);

/// `valor` rounded to `decimales` (half away from zero) and written the Spanish way:
/// FormateaImporte(1500.5, 2) == "1.500,50", FormateaImporte(1500.5, 0) == "1.501",
/// FormateaImporte(-0.004, 2) == "0,00".
QString FormateaImporte(double valor, int decimales);

class TEditImporte : public QLineEdit {
    Q_OBJECT
public:
    /// An empty, right-aligned edit taking amounts with up to `decimales` decimal digits (0 for whole
    /// pesetas or units), positive only, up to 13 integer digits.
    explicit TEditImporte(QWidget* parent = nullptr, int decimales = 2);

    int Decimales() const { return m_decimales; }
    /// Changes the decimals taken from now on; the text shown is rewritten when it holds an amount.
    void SetDecimales(int decimales);
    bool AdmiteNegativos() const { return m_negativos; }
    void SetAdmiteNegativos(bool admite);
    int MaximoCifras() const { return m_maximoCifras; }
    void SetMaximoCifras(int cifras);

    /// The amount, rounded to the decimals; 0 when the edit is empty or holds an unfinished amount.
    double Valor() const;
    /// The amount rounded to a whole number, half away from zero.
    qint64 ValorEntero() const;
    /// True when the edit is empty or holds a whole amount (false for "1." or "1.234.5").
    bool EsValido() const;
    /// Shows `valor` written by `FormateaImporte`.
    void PonValor(double valor);

protected:
    /// While the clerk edits, the amount stands without thousands points ("1500,50"), so that any digit
    /// can be deleted; leaving, it is written in full ("1.500,50"). An unfinished amount is left as typed
    /// and drawn in red.
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    void aplicaValidador();
    void marca();

    int m_decimales;
    bool m_negativos = false;
    int m_maximoCifras = 13;
};

} // namespace nod
