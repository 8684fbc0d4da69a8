#include "tests/support/modal.h"

#include <QApplication>
#include <QDialog>
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
            // A dialog the action did not close would block the test for ever: it fails instead.
            QTimer::singleShot(plazoMs, w, [w] {
                if (auto* d = qobject_cast<QDialog*>(w); d && d->isVisible()) {
                    qWarning("the modal dialog was still open after the action: closed with result -1");
                    d->done(-1);
                }
            });
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
