#include "frame/shell.h"

#include <QDesktopServices>

namespace nod {

namespace {
AbridorShell& abridor() {
    static AbridorShell a;
    return a;
}
} // namespace

bool AbreEnShell(const QUrl& url) {
    return abridor() ? abridor()(url) : QDesktopServices::openUrl(url);
}

AbridorShell FijaAbridorShell(AbridorShell nuevo) {
    return std::exchange(abridor(), std::move(nuevo));
}

} // namespace nod
