#include "prompts/editimporte.h"

#include "companion/rnumcad.h"

#include <QValidator>
#include <cmath>

namespace nod {

namespace {

// Splits "1.234,5" into its whole digits and decimals. `completa` false admits what can still become a
// figure while it is typed ("1.", "1.23" on the way to "1.234").
bool separa(const QString& texto, int decimales, bool completa, QString& entera, QString& fraccion) {
    QString t = texto.trimmed();
    if (t.startsWith(QLatin1Char('-'))) t.remove(0, 1);
    entera.clear();
    fraccion.clear();
    for (QChar c : t)
        if (!c.isDigit() && c != QLatin1Char('.') && c != QLatin1Char(',')) return false;
    const int coma = t.indexOf(QLatin1Char(','));
    QString grupos = t;
    if (coma >= 0) {
        if (t.indexOf(QLatin1Char(','), coma + 1) >= 0 || decimales == 0) return false;
        fraccion = t.mid(coma + 1);
        grupos = t.left(coma);
        if (fraccion.contains(QLatin1Char('.')) || fraccion.size() > decimales) return false;
    } else if (t.count(QLatin1Char('.')) == 1) {
        // A lone point with one or two digits after it ends the figure: the decimal mark. While the
        // clerk types, the point alone may be on its way there.
        const int punto = int(t.indexOf(QLatin1Char('.')));
        const int detras = int(t.size()) - punto - 1;
        if (decimales > 0 && detras <= std::min(decimales, 2) && (detras >= 1 || !completa)) {
            entera = t.left(punto);
            fraccion = t.mid(punto + 1);
            return entera.size() <= 15 && (completa ? !entera.isEmpty() : true);
        }
    }
    const QStringList partes = grupos.split(QLatin1Char('.'));
    for (int i = 1; i < partes.size(); ++i) {
        const bool ultima = i == partes.size() - 1;
        const qsizetype n = partes[i].size();
        if (n > 3 || (n < 3 && (completa || !ultima || coma >= 0))) return false;
    }
    if (partes.size() > 1 && (partes[0].isEmpty() || partes[0].size() > 3)) return false;
    entera = partes.join(QString());
    if (completa && entera.isEmpty() && fraccion.isEmpty()) return false;
    return entera.size() <= 15;
}

class ValidadorImporte : public QValidator {
public:
    ValidadorImporte(TEditImporte* e)
        : QValidator(e)
        , m_edit(e) {}
    State validate(QString& texto, int&) const override {
        if (texto.trimmed().isEmpty() || texto.trimmed() == QLatin1String("-")) return Intermediate;
        QString e, f;
        if (separa(texto, m_edit->Decimales(), true, e, f)) return Acceptable;
        return separa(texto, m_edit->Decimales(), false, e, f) ? Intermediate : Invalid;
    }

private:
    TEditImporte* m_edit;
};

} // namespace

TEditImporte::TEditImporte(QWidget* padre, int decimales)
    : QLineEdit(padre)
    , m_decimales(decimales) {
    setAlignment(Qt::AlignRight);
    setValidator(new ValidadorImporte(this));
    connect(this, &QLineEdit::textChanged, this, &TEditImporte::valorCambiado);
}

void TEditImporte::PonDecimales(int decimales) {
    const double v = Valor();
    m_decimales = std::clamp(decimales, 0, 6);
    PonValor(v);
}

bool TEditImporte::Interpreta(const QString& texto, int decimales, double& valor) {
    QString entera, fraccion;
    if (!separa(texto, decimales, true, entera, fraccion)) return false;
    const QString cifra = (entera.isEmpty() ? QStringLiteral("0") : entera) +
                          (fraccion.isEmpty() ? QString() : QLatin1Char('.') + fraccion);
    valor = cifra.toDouble(); // QString::toDouble reads "." whatever the locale
    if (texto.trimmed().startsWith(QLatin1Char('-'))) valor = -valor;
    return true;
}

double TEditImporte::Valor() const {
    double v = 0;
    return Interpreta(text(), m_decimales, v) ? v : 0.0;
}

void TEditImporte::PonValor(double v) {
    if (!std::isfinite(v)) v = 0;
    const double r = RedondeaDec(v, m_decimales);
    // Digits by the C locale, then the Spanish marks: never the C runtime's locale-dependent printf.
    const QString cifras = QString::number(std::fabs(r), 'f', m_decimales);
    const qsizetype punto = cifras.indexOf(QLatin1Char('.'));
    QString texto = AgrupaMiles(punto < 0 ? cifras : cifras.left(punto));
    if (punto >= 0) texto += QLatin1Char(',') + cifras.mid(punto + 1);
    if (r < 0) texto.prepend(QLatin1Char('-'));
    setText(texto);
}

void TEditImporte::focusOutEvent(QFocusEvent* e) {
    // What was typed is shown again in the field's own format once the clerk leaves it.
    double v = 0;
    if (Interpreta(text(), m_decimales, v)) PonValor(v);
    QLineEdit::focusOutEvent(e);
}

} // namespace nod
