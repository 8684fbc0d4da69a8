#include "companion/editmayusculas.h"

#include <QLineEdit>

namespace nod {

void EscribeEnMayusculas(QLineEdit* e) {
    QObject::connect(e, &QLineEdit::textEdited, e, [e](const QString& t) {
        if (t != t.toUpper()) {
            const int cursor = e->cursorPosition();
            e->setText(t.toUpper());
            e->setCursorPosition(cursor);
        }
    });
}

} // namespace nod
