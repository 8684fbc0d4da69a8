#include "ident/editrefcatastral.h"

#include "companion/rnumcad.h"
#include "ident/controlcatastral.h"
#include "ident/recuperamunicipio.h"
#include "text/recorte.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRegularExpression>

namespace nod {

namespace {

// Watches the keyboard while the cadastre is being asked: Escape cancels the wait.
class VigiaEscape : public QObject {
public:
    VigiaEscape() { qApp->installEventFilter(this); }
    ~VigiaEscape() override { qApp->removeEventFilter(this); }
    bool pulsado = false;

protected:
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(e)->key() == Qt::Key_Escape) {
            pulsado = true;
            return true;
        }
        return false;
    }
};

} // namespace

bool PatronRefCatastral(const QString& ref, TTipoFinca tipo) {
    static const QRegularExpression urbana(QStringLiteral("^[0-9A-Z]{14}[0-9]{4}[A-Z]{2}$"));
    static const QRegularExpression rustica(QStringLiteral("^[0-9]{5}[A-Z][0-9]{12}[A-Z]{2}$"));
    return (tipo == TTipoFinca::Urbana ? urbana : rustica).match(ref).hasMatch();
}

TEditRefCatastral::TEditRefCatastral(QWidget* parent)
    : QLineEdit(parent) {
    setMaxLength(20);
    // Typed letters appear in upper case, as the cadastre writes them, letter by letter ("ß" stays one
    // character).
    connect(this, &QLineEdit::textEdited, this, [this](const QString& t) {
        const QString mayusculas = UpperCase(t);
        if (mayusculas != t) {
            const int cursor = cursorPosition();
            setText(mayusculas);
            setCursorPosition(cursor);
        }
    });
}

int TEditRefCatastral::validaSinConexion(const QString& ref) const {
    if (!PatronRefCatastral(ref, m_tipoFinca)) return ResultadoRefCatastral::PatronIncorrecto;
    if (m_modo != 0 && !ControlCatastralCorrecto(ref)) return ResultadoRefCatastral::PatronIncorrecto;
    return ResultadoRefCatastral::Valida;
}

int TEditRefCatastral::validaConCatastro(const QString& ref) {
    VigiaEscape vigia;
    const ConsultaCatastro c = ConsultaCodigosCatastro(ref, [&vigia] { return vigia.pulsado; });
    switch (c.resultado) {
    case ResultadoCatastro::Encontrada:
        return ResultadoRefCatastral::ValidaCatastro;
    case ResultadoCatastro::NoEncontrada:
        return ResultadoRefCatastral::NoValidaCatastro;
    case ResultadoCatastro::Cancelada:
        return ResultadoRefCatastral::Cancelada;
    case ResultadoCatastro::SinConexion:
        break;
    }
    return ResultadoRefCatastral::SinConexion;
}

int TEditRefCatastral::ValidaRefCatastral() {
    const QString ref = UpperCase(Trim(text()));
    m_resultado = validaSinConexion(ref);
    if (m_resultado == ResultadoRefCatastral::Valida && m_modo == 2) m_resultado = validaConCatastro(ref);
    return m_resultado;
}

void TEditRefCatastral::focusOutEvent(QFocusEvent* e) {
    QLineEdit::focusOutEvent(e);
    if (m_validarAlSalir) ValidaRefCatastral();
}

} // namespace nod
