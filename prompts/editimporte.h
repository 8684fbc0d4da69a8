#pragma once
// The amount edit of the prompts (`FE...` fields): amounts typed and shown the Spanish way, "1.234,56".
// A "." is a thousands mark only where it groups three digits; a single "." followed by one or two
// digits at the end is the decimal mark (the keypad's decimal key); anything else is refused as typed,
// so "1500.50" is 1.500,50 and never 150.050.

#include <QLineEdit>

namespace nod {

class TEditImporte : public QLineEdit {
    Q_OBJECT
public:
    explicit TEditImporte(QWidget* padre = nullptr, int decimales = 2);

    /// Decimals shown and accepted (0 for whole numbers).
    int Decimales() const { return m_decimales; }
    void PonDecimales(int decimales);

    /// The value of the text (0 when it is empty or not a figure).
    double Valor() const;
    /// Shows `v` rounded to the decimals, grouped: 1234.5 with 2 decimals shows "1.234,50".
    void PonValor(double v);

    /// The figure a text stands for by the rule above; false when it is not one.
    static bool Interpreta(const QString& texto, int decimales, double& valor);

signals:
    /// The value changed, typed or set.
    void valorCambiado();

protected:
    void focusOutEvent(QFocusEvent* e) override;

private:
    int m_decimales;
};

} // namespace nod
