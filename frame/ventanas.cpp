#include "frame/ventanas.h"

#include <QApplication>
#include <QMainWindow>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>

namespace nod {

namespace {

QList<QObject*> objetosDeLaAplicacion() {
    QList<QObject*> objetos;
    if (!qApp) return objetos;
    objetos = qApp->children();
    for (QWidget* w : QApplication::topLevelWidgets())
        if (!objetos.contains(w)) objetos.append(w);
    return objetos;
}

LectorCursor& lectorCursor() {
    static LectorCursor l;
    return l;
}

QPointer<QWidget>& principal() {
    static QPointer<QWidget> p;
    return p;
}

} // namespace

QObject* CreaObjeto(const FabricaObjeto& crea, const QString& nombre, QObject* owner, bool& existia) {
    for (QObject* o : objetosDeLaAplicacion()) {
        if (!o->objectName().isEmpty() && o->objectName().compare(nombre, Qt::CaseInsensitive) == 0) {
            existia = true;
            return o;
        }
    }
    existia = false;
    return crea ? crea(owner) : nullptr;
}

void BorraObjeto(QObject* objeto, bool existia) {
    if (objeto && !existia) delete objeto;
}

QWidget* MostrarNoModal(QWidget* owner, const QMetaObject& clase,
                        const std::function<QWidget*(QWidget*)>& crea) {
    QString nombre = QString::fromLatin1(clase.className());
    nombre = nombre.mid(nombre.lastIndexOf(QLatin1Char(':')) + 1).mid(1); // no namespace, no leading "T"
    if (owner) {
        for (QObject* o : owner->children())
            if (auto* w = qobject_cast<QWidget*>(o);
                w && w->objectName().compare(nombre, Qt::CaseInsensitive) == 0)
                return w;
    }
    return crea(owner);
}

LectorCursor FijaLectorCursor(LectorCursor lector) {
    return std::exchange(lectorCursor(), std::move(lector));
}

bool PosicionDelCursor(QPoint& punto) {
    if (!lectorCursor()) return false;
    const std::optional<QPoint> p = lectorCursor()();
    if (!p) return false;
    punto = *p;
    return true;
}

QPoint CentroDe(QSize tamano) {
    return QPoint(int(std::nearbyint(tamano.width() / 2.0)), int(std::nearbyint(tamano.height() / 2.0)));
}

QPoint CentroDeLaPantalla() {
    const QScreen* s = QGuiApplication::primaryScreen();
    return s ? CentroDe(s->virtualSize()) : QPoint();
}

QWidgetList FormulariosVisibles() {
    // QApplication::topLevelWidgets() comes from a hash set, in no useful order: order the windows by
    // when their native window was made (QGuiApplication keeps that list in creation order), and put the
    // active one first, where the suite's form list keeps the form that has the focus.
    const QWindowList creadas = QGuiApplication::topLevelWindows();
    QList<std::pair<qsizetype, QWidget*>> orden;
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (!w->isWindow() || !w->isVisible()) continue;
        const qsizetype i = w->windowHandle() ? creadas.indexOf(w->windowHandle()) : -1;
        orden.append({w == QApplication::activeWindow() ? -2 : (i < 0 ? creadas.size() : i), w});
    }
    std::stable_sort(orden.begin(), orden.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    QWidgetList formularios;
    for (const auto& [i, w] : orden)
        formularios.append(w);
    return formularios;
}

void OcultaNodrim(ListaVentanas& lista) {
    lista = std::make_unique<QList<QPointer<QWidget>>>();
    const QWidgetList ventanas = FormulariosVisibles();
    for (auto it = ventanas.crbegin(); it != ventanas.crend(); ++it) {
        lista->append(*it);
        (*it)->hide();
    }
}

void MuestraNodrim(ListaVentanas& lista) {
    if (!lista) return;
    for (const QPointer<QWidget>& w : *lista)
        if (w) w->setVisible(true);
    lista.reset();
}

void TomaFoco(QWidget* ventana) {
    if (!ventana) return;
    ventana = ventana->window();
    ventana->showMinimized(); // a maximised window keeps its maximised flag while minimised
    ventana->raise();
    ventana->activateWindow();
    // Restore as the system does: back to the placement before minimising, maximised if it was.
    ventana->setWindowState(ventana->windowState() & ~Qt::WindowMinimized);
    ventana->show();
}

void TomaFoco(WId id) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->internalWinId() && w->internalWinId() == id) return TomaFoco(w);
}

void FijaVentanaPrincipal(QWidget* ventana) {
    principal() = ventana;
}

QWidget* VentanaPrincipal() {
    if (principal()) return principal();
    QWidget* primera = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (!w->isVisible()) continue;
        if (qobject_cast<QMainWindow*>(w)) return w;
        if (!primera) primera = w;
    }
    return primera;
}

void TomaFocoNodrim() {
    TomaFoco(VentanaPrincipal());
}

} // namespace nod
