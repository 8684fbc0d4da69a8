#include "companion/foco.h"

#include <QPalette>
#include <QVariant>
#include <QWidget>

namespace nod {

namespace {
constexpr const char* kPaletaPropia = "nodPaletaPropia";
constexpr const char* kAutoRelleno = "nodAutoRellenoPropio";
} // namespace

QColor ColorQt(TColor c) {
    return QColor(int(c & 0xFF), int((c >> 8) & 0xFF), int((c >> 16) & 0xFF));
}

void TomaFocoControl(QWidget* control) {
    if (!control) return;
    if (!TieneFocoMarcado(control)) {
        control->setProperty(kPaletaPropia, QVariant::fromValue(control->palette()));
        control->setProperty(kAutoRelleno, control->autoFillBackground());
    }
    QPalette p = control->palette();
    const QColor marca = ColorQt(kColorFoco);
    p.setColor(QPalette::Button, marca);
    p.setColor(QPalette::Base, marca);
    p.setColor(QPalette::Window, marca);
    control->setPalette(p);
    control->setAutoFillBackground(true);
}

void DejaFocoControl(QWidget* control) {
    if (!TieneFocoMarcado(control)) return;
    control->setPalette(control->property(kPaletaPropia).value<QPalette>());
    control->setAutoFillBackground(control->property(kAutoRelleno).toBool());
    control->setProperty(kPaletaPropia, QVariant());
    control->setProperty(kAutoRelleno, QVariant());
}

bool TieneFocoMarcado(const QWidget* control) {
    return control && control->property(kPaletaPropia).isValid();
}

} // namespace nod
