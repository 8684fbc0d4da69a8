#include "apps/demo/capturas.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <iostream>
#include <memory>

namespace nod::demo {

namespace {

// Watches for the window a dialog routine opens (modal or not), grabs it after it has had time to
// paint, and closes it as Escape would.
class Fotografo : public QObject {
public:
    Fotografo(QWidget* principal, QString fichero)
        : m_principal(principal)
        , m_fichero(std::move(fichero)) {
        connect(&m_reloj, &QTimer::timeout, this, &Fotografo::mira);
        m_reloj.start(50);
    }
    bool hecho() const { return m_hecho; }

private:
    void mira() {
        QWidget* w = QApplication::activeModalWidget();
        if (m_hecho) {
            // A routine that asks again after its first box (a confirmation followed by "cancelled")
            // gets each further box closed as Escape would, without a picture.
            if (auto* d = qobject_cast<QDialog*>(w)) d->reject();
            return;
        }
        if (!w)
            for (QWidget* t : QApplication::topLevelWidgets())
                if (t != m_principal && t->isVisible() && t->isWindow() && !t->inherits("QMenu")) {
                    w = t;
                    break;
                }
        if (!w) {
            m_visto = nullptr;
            return;
        }
        if (w != m_visto) { // give it a moment to lay out and paint
            m_visto = w;
            m_ticks = 0;
            return;
        }
        if (++m_ticks < 6) return;
        m_hecho = w->grab().save(m_fichero);
        if (auto* d = qobject_cast<QDialog*>(w))
            d->reject();
        else
            w->close();
    }

    QWidget* m_principal;
    QString m_fichero;
    QTimer m_reloj;
    QPointer<QWidget> m_visto;
    int m_ticks = 0;
    bool m_hecho = false;
};

} // namespace

int CapturaTodos(VentanaDemo& ventana, const CatalogoDemo& catalogo, const QString& carpeta) {
    QDir().mkpath(carpeta);
    const QString principal = QDir(carpeta).filePath(QStringLiteral("demo.png"));
    QApplication::processEvents();
    ventana.grab().save(principal);
    int escritas = 0;
    for (const EntradaDemo& e : catalogo.entradas()) {
        const QString fichero = QDir(carpeta).filePath(e.nombre + QStringLiteral(".png"));
        Fotografo fotografo(&ventana, fichero);
        const QString r = ventana.abre(e);
        std::cout << (fotografo.hecho() ? "  " : "  (no picture) ") << qPrintable(fichero) << "  "
                  << qPrintable(e.titulo) << ": " << qPrintable(r) << '\n';
        escritas += fotografo.hecho() ? 1 : 0;
    }
    return escritas;
}

} // namespace nod::demo
