#include "frame/ventanas.h"

#include <QApplication>
#include <QMainWindow>
#include <QScreen>
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
            if (auto* w = qobject_cast<QWidget*>(o); w && w->objectName() == nombre) return w;
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

void OcultaNodrim(ListaVentanas& lista) {
    lista = std::make_unique<QList<QPointer<QWidget>>>();
    const QWidgetList ventanas = QApplication::topLevelWidgets();
    for (auto it = ventanas.crbegin(); it != ventanas.crend(); ++it) {
        QWidget* w = *it;
        if (w->isWindow() && w->isVisible()) {
            lista->append(w);
            w->hide();
        }
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
    ventana->showMinimized();
    ventana->raise();
    ventana->activateWindow();
    ventana->showNormal();
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
