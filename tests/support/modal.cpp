#include "tests/support/modal.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <memory>

namespace nod::prueba {

void AlAbrirseModal(std::function<void(QWidget*)> accion, int plazoMs) {
    auto timer = new QTimer(qApp);
    auto reloj = std::make_shared<QElapsedTimer>();
    reloj->start();
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, reloj, accion = std::move(accion), plazoMs] {
        if (QWidget* w = QApplication::activeModalWidget()) {
            timer->stop();
            timer->deleteLater();
            // Keys go to the focused control only once the dialog's window is active; on a loaded machine
            // that can come a little after the dialog appears.
            w->activateWindow();
            if (!QTest::qWaitForWindowActive(w)) qWarning("the modal dialog never became the active window");
            accion(w);
        } else if (reloj->elapsed() > plazoMs) {
            timer->stop();
            timer->deleteLater();
        }
    });
    timer->start();
}

int VentanasVisibles() {
    int n = 0;
    for (QWidget* w : QApplication::topLevelWidgets())
        n += w->isVisible() ? 1 : 0;
    return n;
}

} // namespace nod::prueba
