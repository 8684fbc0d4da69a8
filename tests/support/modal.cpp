#include "tests/support/modal.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <memory>

namespace nod::prueba {

void AlAbrirseModal(std::function<void(QWidget*)> accion, int plazoMs)
{
    auto timer = new QTimer(qApp);
    auto reloj = std::make_shared<QElapsedTimer>();
    reloj->start();
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, reloj, accion = std::move(accion), plazoMs] {
        if (QWidget* w = QApplication::activeModalWidget()) {
            timer->stop();
            timer->deleteLater();
            accion(w);
        } else if (reloj->elapsed() > plazoMs) {
            timer->stop();
            timer->deleteLater();
        }
    });
    timer->start();
}

int VentanasVisibles()
{
    int n = 0;
    for (QWidget* w : QApplication::topLevelWidgets())
        n += w->isVisible() ? 1 : 0;
    return n;
}

} // namespace nod::prueba
