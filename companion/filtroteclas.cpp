#include "companion/filtroteclas.h"

#include "companion/rnumcad.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QValidator>

namespace nod {

namespace {

constexpr const char* kNombreFiltro = "nodFiltroCaracteres";

bool esControl(QChar c) {
    return c.unicode() < 0x20 || c.unicode() == 0x7F;
}

// Text that arrives without a key: the edit runs every change through its validator before it emits
// textChanged, so the filter works here, then hands the result to the validator the edit had before.
class ValidadorFiltro : public QValidator {
public:
    ValidadorFiltro(FiltroCaracteres filtro, QValidator* interior, QObject* padre)
        : QValidator(padre)
        , m_filtro(std::move(filtro))
        , m_interior(interior) {}

    void cambia(FiltroCaracteres filtro) { m_filtro = std::move(filtro); }

    State validate(QString& texto, int& pos) const override {
        const QString fuente = m_filtro.mayusculas ? UpperCase(texto) : texto;
        QString limpio;
        limpio.reserve(fuente.size());
        int nuevaPos = pos;
        for (qsizetype i = 0; i < fuente.size(); ++i) {
            if (!m_filtro.admite || m_filtro.admite(fuente[i]))
                limpio += fuente[i];
            else if (i < pos)
                --nuevaPos;
        }
        texto = limpio;
        pos = nuevaPos;
        return m_interior ? m_interior->validate(texto, pos) : Acceptable;
    }

    void fixup(QString& texto) const override {
        if (m_interior) m_interior->fixup(texto);
    }

private:
    FiltroCaracteres m_filtro;
    QPointer<QValidator> m_interior;
};

// Typed keys: decided by key code before the edit sees them, so that a refused key leaves text and
// selection untouched.
class FiltroTeclas : public QObject {
public:
    FiltroTeclas(QLineEdit* edit, FiltroCaracteres filtro)
        : QObject(edit)
        , m_filtro(std::move(filtro)) {
        setObjectName(QLatin1String(kNombreFiltro));
        edit->installEventFilter(this);
    }
    void cambia(FiltroCaracteres filtro) { m_filtro = std::move(filtro); }

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override {
        if (e->type() != QEvent::KeyPress) return false;
        auto* k = static_cast<QKeyEvent*>(e);
        if (TeclaSiemprePasa(k->key())) return false;
        const QString texto = k->text();
        if (texto.isEmpty() || std::all_of(texto.begin(), texto.end(), esControl)) return false;
        const Qt::KeyboardModifiers atajo = k->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
        if (atajo && atajo != (Qt::ControlModifier | Qt::AltModifier)) return false; // Ctrl+Alt is AltGr
        const QString filtrado = TextoFiltrado(texto, m_filtro);
        if (filtrado.size() != texto.size()) return true;
        if (filtrado == texto) return false;
        // The same key typing its capital: the edit's undo keeps the typing as typing.
        QKeyEvent capital(QEvent::KeyPress, k->key(), k->modifiers(), filtrado, k->isAutoRepeat(),
                          k->count());
        QCoreApplication::sendEvent(objeto, &capital);
        return true;
    }

private:
    FiltroCaracteres m_filtro;
};

} // namespace

bool TeclaSiemprePasa(int tecla) {
    switch (tecla) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Insert:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return true;
    default:
        return tecla >= Qt::Key_F1 && tecla <= Qt::Key_F35;
    }
}

QString TextoFiltrado(const QString& texto, const FiltroCaracteres& filtro) {
    const QString fuente = filtro.mayusculas ? UpperCase(texto) : texto;
    if (!filtro.admite) return fuente;
    QString r;
    r.reserve(fuente.size());
    for (const QChar c : fuente)
        if (filtro.admite(c)) r += c;
    return r;
}

void InstalaFiltroCaracteres(QLineEdit* edit, FiltroCaracteres filtro) {
    if (!edit) return;
    if (auto* previo = edit->findChild<QObject*>(QLatin1String(kNombreFiltro), Qt::FindDirectChildrenOnly))
        static_cast<FiltroTeclas*>(previo)->cambia(filtro);
    else
        new FiltroTeclas(edit, filtro);
    if (auto* v = dynamic_cast<ValidadorFiltro*>(const_cast<QValidator*>(edit->validator())))
        v->cambia(filtro);
    else
        edit->setValidator(new ValidadorFiltro(filtro, const_cast<QValidator*>(edit->validator()), edit));
    const QString limpio = TextoFiltrado(edit->text(), filtro);
    if (limpio != edit->text()) edit->setText(limpio);
}

void SoloDigitos(QLineEdit* edit) {
    InstalaFiltroCaracteres(edit, {[](QChar c) { return EsUnNumero(c); }});
}

void EscribeEnMayusculas(QLineEdit* edit) {
    InstalaFiltroCaracteres(edit, {{}, true});
}

} // namespace nod
