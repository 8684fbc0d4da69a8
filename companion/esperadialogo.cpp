#include "companion/esperadialogo.h"

#include "companion/mensajes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QList>
#include <QWidget>

namespace nod {

namespace {
constexpr const char* kEnEspera = "nodEnEspera";

struct CursorGuardado {
    bool propio = false;
    QCursor cursor;
    void guarda(const QWidget* w) {
        propio = w->testAttribute(Qt::WA_SetCursor);
        cursor = w->cursor();
    }
    void repone(QWidget* w) const {
        if (propio)
            w->setCursor(cursor);
        else
            w->unsetCursor();
    }
};
} // namespace

struct TEsperaDialogo::Estado : QObject {
    QPointer<QWidget> ventana;
    QString mensaje;
    QPointer<QAbstractButton> cancelar;
    bool empezada = false;
    bool cancelada = false;
    QList<QPointer<QWidget>> deshabilitados;
    QPointer<QWidget> foco;
    CursorGuardado cursorVentana, cursorCancelar;

    // Escape anywhere in the program (the dialog, the wait window) abandons the wait and goes no further;
    // so does the window closing.
    bool eventFilter(QObject* objeto, QEvent* e) override {
        if (e->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(e)->key() == Qt::Key_Escape) {
            cancelada = true;
            return true;
        }
        if (objeto == ventana && e->type() == QEvent::Hide && !e->spontaneous())
            cancelada = true; // not minimised
        return false;
    }

    void deshabilita(QWidget* w) {
        for (QObject* o : w->children()) {
            auto* c = qobject_cast<QWidget*>(o);
            if (!c || c->isWindow() || c == cancelar) continue;
            if (cancelar && c->isAncestorOf(cancelar)) {
                deshabilita(c);
            } else if (c->isEnabled()) {
                c->setEnabled(false);
                deshabilitados.append(c);
            }
        }
    }

    void termina() {
        if (!empezada) return;
        empezada = false;
        qApp->removeEventFilter(this);
        if (!mensaje.isEmpty()) CierraMensaje();
        for (const QPointer<QWidget>& w : std::as_const(deshabilitados))
            if (w) w->setEnabled(true);
        deshabilitados.clear();
        if (cancelar) cursorCancelar.repone(cancelar);
        if (ventana) {
            cursorVentana.repone(ventana);
            ventana->setProperty(kEnEspera, QVariant());
            ventana->removeEventFilter(this);
            if (foco && foco->isEnabled() && foco->isVisible()) foco->setFocus(Qt::OtherFocusReason);
        }
    }
};

TEsperaDialogo::TEsperaDialogo(QWidget* ventana, const QString& mensaje, QAbstractButton* cancelar)
    : m_estado(std::make_shared<Estado>()) {
    m_estado->ventana = ventana ? ventana->window() : nullptr;
    m_estado->mensaje = mensaje;
    m_estado->cancelar = cancelar;
}

TEsperaDialogo::~TEsperaDialogo() {
    m_estado->termina();
}

void TEsperaDialogo::Termina() {
    m_estado->termina();
}

bool TEsperaDialogo::Empieza() {
    Estado& e = *m_estado;
    if (e.empezada || !e.ventana || EnEspera(e.ventana)) return false;
    e.empezada = true;
    e.cancelada = false;
    e.ventana->setProperty(kEnEspera, true);
    e.ventana->installEventFilter(&e);
    qApp->installEventFilter(&e);
    if (e.cancelar) {
        QObject::connect(e.cancelar, &QAbstractButton::clicked, &e, [&e] { e.cancelada = true; });
        e.cursorCancelar.guarda(e.cancelar);
        e.cancelar->setCursor(Qt::ArrowCursor);
    }
    e.foco = e.ventana->focusWidget();
    e.cursorVentana.guarda(e.ventana);
    e.ventana->setCursor(Qt::WaitCursor);
    e.deshabilita(e.ventana);
    if (!e.mensaje.isEmpty()) MuestraMensaje(e.mensaje);
    return true;
}

bool TEsperaDialogo::Cancelada() const {
    return m_estado->cancelada || !m_estado->ventana;
}

std::function<bool()> TEsperaDialogo::Vigia() const {
    return [e = m_estado] { return e->cancelada || !e->ventana; };
}

bool TEsperaDialogo::EnEspera(const QWidget* ventana) {
    return ventana && ventana->window()->property(kEnEspera).toBool();
}

} // namespace nod
