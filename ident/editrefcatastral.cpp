#include "ident/editrefcatastral.h"

#include "companion/esperadialogo.h"
#include "companion/filtroteclas.h"
#include "companion/rnumcad.h"
#include "ident/controlcatastral.h"
#include "ident/recuperamunicipio.h"
#include "text/recorte.h"

#include <QRegularExpression>

namespace nod {

bool PatronRefCatastral(const QString& ref, TTipoFinca tipo) {
    static const QRegularExpression urbana(QStringLiteral("^[0-9A-Z]{14}[0-9]{4}[A-Z]{2}$"));
    static const QRegularExpression rustica(QStringLiteral("^[0-9]{5}[A-Z][0-9]{12}[A-Z]{2}$"));
    return (tipo == TTipoFinca::Urbana ? urbana : rustica).match(ref).hasMatch();
}

TEditRefCatastral::TEditRefCatastral(QWidget* parent)
    : QLineEdit(parent) {
    setMaxLength(20);
    // Letters are in upper case, as the cadastre writes them, whether typed, pasted or handed in by the
    // program; letter by letter ("ß" stays one character).
    EscribeEnMayusculas(this);
}

int TEditRefCatastral::validaSinConexion(const QString& ref) const {
    if (!PatronRefCatastral(ref, m_tipoFinca)) return ResultadoRefCatastral::PatronIncorrecto;
    if (m_modo != 0 && !ControlCatastralCorrecto(ref)) return ResultadoRefCatastral::PatronIncorrecto;
    return ResultadoRefCatastral::Valida;
}

int TEditRefCatastral::validaConCatastro(const QString& ref, const std::function<bool()>& cancelada) {
    ConsultaCatastro c;
    if (cancelada) {
        c = ConsultaCodigosCatastro(ref, cancelada);
    } else {
        // On its own the edit blocks its window while it waits; Escape abandons the consultation.
        TEsperaDialogo espera(this);
        if (!espera.Empieza()) return ResultadoRefCatastral::Cancelada;
        c = ConsultaCodigosCatastro(ref, espera.Vigia());
    }
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

int TEditRefCatastral::ValidaRefCatastral(const std::function<bool()>& cancelada) {
    const QString ref = UpperCase(Trim(text()));
    m_resultado = validaSinConexion(ref);
    if (m_resultado == ResultadoRefCatastral::Valida && m_modo == 2)
        m_resultado = validaConCatastro(ref, cancelada);
    return m_resultado;
}

void TEditRefCatastral::focusOutEvent(QFocusEvent* e) {
    QLineEdit::focusOutEvent(e);
    if (m_validarAlSalir) ValidaRefCatastral();
}

} // namespace nod
