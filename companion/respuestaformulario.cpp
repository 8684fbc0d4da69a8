#include "companion/respuestaformulario.h"

#include "companion/editimporte.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTextEdit>

namespace nod {

namespace {

enum class Clase { Ninguna, Edit, Importe, Numero, Fecha, Lista, Casilla, Radio, Texto };

// The inner edit of a spin edit or a list is part of its owner, not a control of its own.
bool esParte(const QWidget* w) {
    const QObject* p = w->parent();
    return p && (qobject_cast<const QAbstractSpinBox*>(p) || qobject_cast<const QComboBox*>(p));
}

Clase clase(const QWidget* w) {
    if (esParte(w)) return Clase::Ninguna;
    if (qobject_cast<const TEditImporte*>(w)) return Clase::Importe;
    if (qobject_cast<const QLineEdit*>(w)) return Clase::Edit;
    if (qobject_cast<const QDateTimeEdit*>(w)) return Clase::Fecha;
    if (qobject_cast<const QAbstractSpinBox*>(w)) return Clase::Numero;
    if (qobject_cast<const QComboBox*>(w)) return Clase::Lista;
    if (qobject_cast<const QCheckBox*>(w)) return Clase::Casilla;
    if (qobject_cast<const QRadioButton*>(w)) return Clase::Radio;
    if (auto* t = qobject_cast<const QPlainTextEdit*>(w))
        return t->isReadOnly() ? Clase::Ninguna : Clase::Texto;
    if (auto* t = qobject_cast<const QTextEdit*>(w)) return t->isReadOnly() ? Clase::Ninguna : Clase::Texto;
    return Clase::Ninguna;
}

// The form's own named controls (not those of the lists and calendars that pop up from it).
bool esDelFormulario(const QWidget* w, const QDialog& d) {
    return w->window() == &d && !w->objectName().isEmpty() && !w->objectName().startsWith(u"qt_");
}

QVariant valorMostrado(const QWidget* w, Clase c) {
    switch (c) {
    case Clase::Edit:
    case Clase::Importe: {
        auto* e = static_cast<const QLineEdit*>(w);
        return e->echoMode() == QLineEdit::Normal ? e->text() : QString();
    }
    case Clase::Numero:
        return static_cast<const QAbstractSpinBox*>(w)->text();
    case Clase::Fecha:
        return static_cast<const QDateTimeEdit*>(w)->date().toString(Qt::ISODate);
    case Clase::Lista:
        return static_cast<const QComboBox*>(w)->currentText();
    case Clase::Casilla:
    case Clase::Radio:
        return static_cast<const QAbstractButton*>(w)->isChecked();
    case Clase::Texto:
        if (auto* t = qobject_cast<const QPlainTextEdit*>(w)) return t->toPlainText();
        return static_cast<const QTextEdit*>(w)->toPlainText();
    case Clase::Ninguna:
        break;
    }
    return {};
}

QString comillas(const QString& s) {
    return QLatin1Char('"') + s + QLatin1Char('"');
}

QString tipoJson(const QVariant& v) {
    switch (v.typeId()) {
    case QMetaType::Bool:
        return QStringLiteral("a boolean");
    case QMetaType::QString:
        return QStringLiteral("a string");
    case QMetaType::Double:
        return QStringLiteral("a number");
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return QStringLiteral("an integer");
    default:
        return QStringLiteral("no value");
    }
}

bool esEntero(const QVariant& v) {
    const int t = v.typeId();
    return t == QMetaType::Int || t == QMetaType::LongLong || t == QMetaType::UInt ||
           t == QMetaType::ULongLong;
}

// The key a clerk presses for `c`: its own key code for letters and digits, the text alone otherwise.
void teclea(QWidget* w, const QString& texto) {
    for (QChar c : texto) {
        int tecla = 0;
        if (c >= u'0' && c <= u'9')
            tecla = Qt::Key_0 + (c.unicode() - u'0');
        else if (c >= u'a' && c <= u'z')
            tecla = Qt::Key_A + (c.unicode() - u'a');
        else if (c >= u'A' && c <= u'Z')
            tecla = Qt::Key_A + (c.unicode() - u'A');
        else if (c == u' ')
            tecla = Qt::Key_Space;
        const Qt::KeyboardModifiers mod = c.isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
        QKeyEvent pulsa(QEvent::KeyPress, tecla, mod, QString(c));
        QKeyEvent suelta(QEvent::KeyRelease, tecla, mod, QString(c));
        QCoreApplication::sendEvent(w, &pulsa);
        QCoreApplication::sendEvent(w, &suelta);
    }
}

// Enters the control as a clerk tabbing into it; what it held is selected, so typing replaces it.
void entra(QWidget* w) {
    w->setFocus(Qt::TabFocusReason);
    if (auto* e = qobject_cast<QLineEdit*>(w)) e->selectAll();
    if (auto* s = qobject_cast<QAbstractSpinBox*>(w)) s->selectAll();
    if (auto* t = qobject_cast<QPlainTextEdit*>(w)) t->selectAll();
    if (auto* t = qobject_cast<QTextEdit*>(w)) t->selectAll();
}

QString fija(QWidget* w, Clase c, const QVariant& v) {
    const QString nombre = comillas(w->objectName());
    const auto tipoErroneo = [&](const char* espera) {
        return QStringLiteral("control %1 takes %2, not %3").arg(nombre, QLatin1String(espera), tipoJson(v));
    };
    switch (c) {
    case Clase::Edit:
    case Clase::Texto:
        if (v.typeId() != QMetaType::QString) return tipoErroneo("a string");
        entra(w);
        teclea(w, v.toString());
        return {};
    case Clase::Importe:
    case Clase::Numero: {
        QString texto;
        if (v.typeId() == QMetaType::QString)
            texto = v.toString();
        else if (esEntero(v))
            texto = QString::number(v.toLongLong());
        else if (c == Clase::Importe && v.typeId() == QMetaType::Double)
            texto = QString::number(v.toDouble(), 'f', static_cast<TEditImporte*>(w)->Decimales())
                        .replace(u'.', u',');
        else
            return tipoErroneo(c == Clase::Importe ? "a string or a number" : "a string or an integer");
        entra(w);
        teclea(w, texto);
        return {};
    }
    case Clase::Fecha: {
        const QDate fecha = QDate::fromString(v.toString(), Qt::ISODate);
        if (v.typeId() != QMetaType::QString || v.toString().size() != 10 || !fecha.isValid())
            return QStringLiteral("control %1 takes a date \"YYYY-MM-DD\", not %2").arg(nombre, tipoJson(v));
        auto* d = static_cast<QDateTimeEdit*>(w);
        if (fecha < d->minimumDate() || fecha > d->maximumDate())
            return QStringLiteral("control %1 takes dates from %2 to %3, not %4")
                .arg(nombre, d->minimumDate().toString(Qt::ISODate), d->maximumDate().toString(Qt::ISODate),
                     v.toString());
        entra(w);
        d->setDate(fecha);
        return {};
    }
    case Clase::Lista: {
        auto* l = static_cast<QComboBox*>(w);
        int i = -1;
        if (v.typeId() == QMetaType::QString)
            i = l->findText(v.toString(), Qt::MatchExactly);
        else if (esEntero(v))
            i = v.toLongLong() >= 0 && v.toLongLong() < l->count() ? int(v.toLongLong()) : -1;
        else
            return tipoErroneo("the text or index of an item");
        if (i < 0) {
            QStringList elementos;
            for (int k = 0; k < l->count(); ++k)
                elementos << comillas(l->itemText(k));
            return QStringLiteral("control %1 has no item %2 (items: %3)")
                .arg(nombre, v.typeId() == QMetaType::QString ? comillas(v.toString()) : v.toString(),
                     elementos.isEmpty() ? QStringLiteral("none") : elementos.join(QStringLiteral(", ")));
        }
        entra(w);
        l->setCurrentIndex(i);
        if (l->isEditable()) l->setEditText(l->itemText(i));
        return {};
    }
    case Clase::Casilla:
    case Clase::Radio: {
        if (v.typeId() != QMetaType::Bool) return tipoErroneo("true or false");
        auto* b = static_cast<QAbstractButton*>(w);
        if (c == Clase::Radio && !v.toBool() && b->isChecked())
            return QStringLiteral("radio button %1 is cleared by choosing another one").arg(nombre);
        entra(w);
        if (b->isChecked() != v.toBool()) b->click();
        return {};
    }
    case Clase::Ninguna:
        break;
    }
    return QStringLiteral("control %1 takes no value").arg(nombre);
}

} // namespace

FormularioMostrado DescribeFormulario(const QDialog& d) {
    FormularioMostrado f;
    f.titulo = d.windowTitle();
    for (QWidget* w : d.findChildren<QWidget*>()) {
        if (!esDelFormulario(w, d) || !w->isVisibleTo(&d)) continue;
        const Clase c = clase(w);
        if (c != Clase::Ninguna) f.valores.append({w->objectName(), valorMostrado(w, c)});
    }
    for (QWidget* w : d.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const bool marco = qobject_cast<QFrame*>(w) || qobject_cast<QGroupBox*>(w);
        if (!marco || !esDelFormulario(w, d) || !w->isVisibleTo(&d)) continue;
        const auto dentro = w->findChildren<QWidget*>();
        if (std::any_of(dentro.begin(), dentro.end(),
                        [&](QWidget* x) { return clase(x) != Clase::Ninguna; })) {
            f.panel = w->objectName();
            break;
        }
    }
    return f;
}

QAbstractButton* BotonAceptar(const QDialog& d) {
    for (QAbstractButton* b : d.findChildren<QAbstractButton*>()) {
        if (b->window() != &d || !b->isVisibleTo(&d) || qobject_cast<QCheckBox*>(b) ||
            qobject_cast<QRadioButton*>(b))
            continue;
        const QString texto = QString(b->text()).remove(u'&');
        if (texto == u"Aceptar" || texto == u"Abrir" || texto == u"OK") return b;
    }
    for (QDialogButtonBox* caja : d.findChildren<QDialogButtonBox*>())
        for (QAbstractButton* b : caja->buttons())
            if (caja->buttonRole(b) == QDialogButtonBox::AcceptRole && b->isVisibleTo(&d)) return b;
    return nullptr;
}

QString RespondeFormulario(QDialog& d, const RespuestaFormulario& r) {
    const auto busca = [&](const QString& nombre) -> QWidget* {
        for (QWidget* w : d.findChildren<QWidget*>(nombre))
            if (esDelFormulario(w, d)) return w;
        return nullptr;
    };
    for (const ValorControl& v : r.fija) {
        QWidget* w = busca(v.control);
        if (!w)
            return QStringLiteral("the form %1 has no control %2")
                .arg(comillas(d.windowTitle()), comillas(v.control));
        if (!w->isVisibleTo(&d)) return QStringLiteral("control %1 is not shown").arg(comillas(v.control));
        if (!w->isEnabled()) return QStringLiteral("control %1 is disabled").arg(comillas(v.control));
        if (const QString e = fija(w, clase(w), v.valor); !e.isEmpty()) return e;
    }
    QAbstractButton* boton = nullptr;
    if (r.pulsa.isEmpty()) {
        boton = BotonAceptar(d);
        if (!boton)
            return QStringLiteral("the form %1 has no accept button; name one in \"press\"")
                .arg(comillas(d.windowTitle()));
    } else {
        boton = qobject_cast<QAbstractButton*>(busca(r.pulsa));
        if (!boton)
            return QStringLiteral("the form %1 has no button %2")
                .arg(comillas(d.windowTitle()), comillas(r.pulsa));
    }
    // A button without a name (a file dialog's) is named by its caption.
    const QString nombre =
        comillas(boton->objectName().isEmpty() ? QString(boton->text()).remove(u'&') : boton->objectName());
    if (!boton->isVisibleTo(&d)) return QStringLiteral("button %1 is not shown").arg(nombre);
    if (!boton->isEnabled()) return QStringLiteral("button %1 is disabled").arg(nombre);
    // As a click: the field being left sees its exit first.
    boton->setFocus(Qt::MouseFocusReason);
    if (d.isVisible()) boton->click();
    return {};
}

} // namespace nod
