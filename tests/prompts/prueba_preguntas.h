#pragma once
// What the tests of the prompts share: today fixed, and forms shown and typed into as a clerk does.
#include "companion/hoy.h"
#include "prompts/preguntadatos.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace nod::prueba {

// Today, at midday, while it lives.
struct Hoy {
    explicit Hoy(int a, int m, int d) { FijaAhora(EncodeDate(a, m, d) + 0.5); }
    ~Hoy() { FijaAhora(std::nullopt); }
};

// Shows `f` as the active window, as a form opened by the clerk.
inline void muestra(QDialog& f) {
    f.show();
    QApplication::setActiveWindow(&f);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
}

// A data prompt of kind `tipo`, shown as the active window.
struct FormularioVisible : TFPreguntaDatos {
    explicit FormularioVisible(const QString& tipo)
        : TFPreguntaDatos(nullptr, tipo) {
        muestra(*this);
    }
};

// Puts the focus on `w` as a clerk clicking it would, then types `texto` into it.
inline void teclea(QWidget* w, const QString& texto) {
    w->setFocus(Qt::MouseFocusReason);
    QTest::keyClicks(w, texto);
}

// Leaves the focused control the way the clerk does, with Enter.
inline void sale(QWidget* w) {
    QTest::keyClick(w, Qt::Key_Return);
}

} // namespace nod::prueba
