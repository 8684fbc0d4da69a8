#include "companion/editimporte.h"

#include "companion/rnumcad.h"

#include <QFocusEvent>
#include <QValidator>
#include <cmath>

namespace nod {

namespace {

using Estado = QValidator::State;

bool soloCifras(QStringView s) {
    return std::all_of(s.begin(), s.end(), [](QChar c) { return EsUnNumero(c); });
}

// Groups of thousands written with points: 1 to 3 digits, then groups of exactly 3. The last group may be
// short while the clerk is still typing it (`abierto`).
Estado agrupado(const QList<QStringView>& grupos, bool abierto) {
    if (grupos.size() < 2 || grupos[0].isEmpty() || grupos[0].size() > 3) return QValidator::Invalid;
    for (qsizetype i = 1; i + 1 < grupos.size(); ++i)
        if (grupos[i].size() != 3) return QValidator::Invalid;
    const qsizetype ultimo = grupos.back().size();
    if (ultimo == 3) return QValidator::Acceptable;
    return abierto && ultimo < 3 ? QValidator::Intermediate : QValidator::Invalid;
}

// Reads `texto` by the amount rule. `entera` and `decimal` receive the digits of the reading.
Estado analiza(QStringView texto, int decimales, bool negativos, int maximoCifras, QString& entera,
               QString& decimal, bool& negativo) {
    entera.clear();
    decimal.clear();
    negativo = false;
    QString s;
    for (const QChar c : texto)
        if (!c.isSpace()) s += c;
    QStringView v(s);
    if (v.startsWith(u'-')) {
        if (!negativos) return QValidator::Invalid;
        negativo = true;
        v = v.mid(1);
    }
    if (v.isEmpty()) return negativo ? QValidator::Intermediate : QValidator::Acceptable;
    for (const QChar c : v)
        if (!EsUnNumero(c) && c != u'.' && c != u',') return QValidator::Invalid;

    Estado estado = QValidator::Acceptable;
    const qsizetype coma = v.indexOf(u',');
    if (coma >= 0) {
        // A comma is the decimal separator; points before it can only group thousands.
        const QStringView antes = v.left(coma), despues = v.mid(coma + 1);
        if (decimales == 0 || !soloCifras(despues) || despues.size() > decimales) return QValidator::Invalid;
        if (antes.contains(u'.')) {
            if (agrupado(antes.split(u'.'), false) != QValidator::Acceptable) return QValidator::Invalid;
        }
        entera = antes.toString().remove(u'.');
        decimal = despues.toString();
    } else {
        const QList<QStringView> grupos = v.split(u'.');
        if (grupos.size() == 1) {
            entera = v.toString();
        } else if (grupos.size() == 2 && grupos[1].size() <= 2) {
            // One point and one or two digits after it: the decimal separator (or, with fewer decimals
            // allowed, the first thousands point of an amount still being typed).
            const QStringView antes = grupos[0], despues = grupos[1];
            if (despues.isEmpty()) {
                estado = QValidator::Intermediate;
            } else if (despues.size() <= decimales) {
                entera = antes.toString();
                decimal = despues.toString();
            } else {
                estado =
                    antes.size() >= 1 && antes.size() <= 3 ? QValidator::Intermediate : QValidator::Invalid;
            }
        } else {
            estado = agrupado(grupos, true);
            if (estado == QValidator::Invalid) return estado;
            entera = v.toString().remove(u'.');
        }
    }
    if (entera.size() > maximoCifras) return QValidator::Invalid;
    return estado;
}

class ValidadorImporte : public QValidator {
public:
    explicit ValidadorImporte(TEditImporte* edit)
        : QValidator(edit)
        , m_edit(edit) {}

    State validate(QString& texto, int& pos) const override {
        // Blanks (a pasted "1 500,50") go; the cursor stays by the same digits.
        QString limpio;
        int nuevaPos = pos;
        for (qsizetype i = 0; i < texto.size(); ++i) {
            if (!texto[i].isSpace())
                limpio += texto[i];
            else if (i < pos)
                --nuevaPos;
        }
        texto = limpio;
        pos = nuevaPos;
        QString e, d;
        bool n;
        return analiza(texto, m_edit->Decimales(), m_edit->AdmiteNegativos(), m_edit->MaximoCifras(), e, d,
                       n);
    }

private:
    TEditImporte* m_edit;
};

} // namespace

std::optional<double> LeeImporte(QStringView texto, int decimales, bool negativos, int maximoCifras) {
    QString entera, decimal;
    bool negativo = false;
    if (analiza(texto, decimales, negativos, maximoCifras, entera, decimal, negativo) !=
        QValidator::Acceptable)
        return std::nullopt;
    if (entera.isEmpty() && decimal.isEmpty()) return 0.0;
    const QString c = (negativo ? QStringLiteral("-") : QString()) +
                      (entera.isEmpty() ? QStringLiteral("0") : entera) + QLatin1Char('.') +
                      (decimal.isEmpty() ? QStringLiteral("0") : decimal);
    return c.toDouble(); // the C format, whatever the locale
}

QString FormateaImporte(double valor, int decimales) {
    decimales = qBound(0, decimales, 15);
    double r = RedondeaDec(valor, decimales);
    if (r == 0) r = 0; // no "-0,00"
    const QString cifras = QString::number(r, 'f', decimales);
    const qsizetype punto = cifras.indexOf(u'.');
    if (punto < 0) return AgrupaMiles(cifras);
    return AgrupaMiles(cifras.left(punto)) + QLatin1Char(',') + cifras.mid(punto + 1);
}

TEditImporte::TEditImporte(QWidget* parent, int decimales)
    : QLineEdit(parent)
    , m_decimales(qBound(0, decimales, 6)) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setValidator(new ValidadorImporte(this));
    connect(this, &QLineEdit::textChanged, this, &TEditImporte::marca);
}

void TEditImporte::SetDecimales(int decimales) {
    const std::optional<double> v = LeeImporte(text(), m_decimales, m_negativos, m_maximoCifras);
    m_decimales = qBound(0, decimales, 6);
    if (v && !text().isEmpty()) PonValor(*v);
}

void TEditImporte::SetAdmiteNegativos(bool admite) {
    m_negativos = admite;
}

void TEditImporte::SetMaximoCifras(int cifras) {
    m_maximoCifras = qBound(1, cifras, 15);
}

double TEditImporte::Valor() const {
    return RedondeaDec(LeeImporte(text(), m_decimales, m_negativos, m_maximoCifras).value_or(0.0),
                       m_decimales);
}

qint64 TEditImporte::ValorEntero() const {
    return qint64(std::llround(Valor()));
}

bool TEditImporte::EsValido() const {
    return LeeImporte(text(), m_decimales, m_negativos, m_maximoCifras).has_value();
}

void TEditImporte::PonValor(double valor) {
    setText(FormateaImporte(valor, m_decimales));
}

void TEditImporte::marca() {
    QPalette p = palette();
    p.setColor(QPalette::Text, EsValido() || hasFocus() ? QPalette().color(QPalette::Text) : QColor(Qt::red));
    setPalette(p);
}

void TEditImporte::focusInEvent(QFocusEvent* e) {
    QString entera, decimal;
    bool negativo = false;
    if (!text().isEmpty() && analiza(text(), m_decimales, m_negativos, m_maximoCifras, entera, decimal,
                                     negativo) == QValidator::Acceptable) {
        QString sinPuntos = (negativo ? QStringLiteral("-") : QString()) + entera;
        if (!decimal.isEmpty()) sinPuntos += QLatin1Char(',') + decimal;
        if (sinPuntos != text()) setText(sinPuntos);
    }
    QLineEdit::focusInEvent(e);
    marca();
}

void TEditImporte::focusOutEvent(QFocusEvent* e) {
    QLineEdit::focusOutEvent(e);
    if (const std::optional<double> v = LeeImporte(text(), m_decimales, m_negativos, m_maximoCifras);
        v && !text().isEmpty())
        PonValor(*v);
    marca();
}

} // namespace nod
