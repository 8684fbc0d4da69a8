#include "companion/modal.h"

#include <QDialog>
#include <utility>

namespace nod {

namespace {
EjecutorModal& ejecutor() {
    static EjecutorModal e;
    return e;
}
} // namespace

int EjecutaModal(QDialog& d) {
    if (const EjecutorModal& e = ejecutor()) return e(d);
    return d.exec();
}

EjecutorModal FijaEjecutorModal(EjecutorModal e) {
    return std::exchange(ejecutor(), std::move(e));
}

} // namespace nod
