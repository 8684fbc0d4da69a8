#include "companion/dialogo.h"

#include "companion/foco.h"
#include "companion/registro.h"
#include "companion/textovisible.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSet>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QTextLayout>

namespace nod {

namespace {

constexpr const char* kNombreConvenciones = "nodConvenciones";
constexpr const char* kEnterPropio = "nodEnterPropio";
constexpr const char* kAlineacionPropia = "nodAlineacionPropia";
constexpr const char* kInteraccionPropia = "nodInteraccionPropia";
constexpr const char* kTextoRico = "nodTextoRico";

bool esEnter(const QKeyEvent* k) {
    return (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter) &&
           (k->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool esTextoEditable(const QWidget* w) {
    if (auto* t = qobject_cast<const QTextEdit*>(w)) return !t->isReadOnly();
    if (auto* t = qobject_cast<const QPlainTextEdit*>(w)) return !t->isReadOnly();
    return false;
}

bool esTextoDeLectura(const QWidget* w) {
    if (auto* t = qobject_cast<const QTextEdit*>(w)) return t->isReadOnly();
    if (auto* t = qobject_cast<const QPlainTextEdit*>(w)) return t->isReadOnly();
    return false;
}

bool esCampo(const QWidget* w) {
    return qobject_cast<const QLineEdit*>(w) || qobject_cast<const QAbstractSpinBox*>(w) ||
           qobject_cast<const QComboBox*>(w) || qobject_cast<const QCheckBox*>(w) ||
           qobject_cast<const QRadioButton*>(w) || qobject_cast<const QTextEdit*>(w) ||
           qobject_cast<const QPlainTextEdit*>(w);
}

// A control whose name a screen reader takes from a label or from itself.
bool esEntrada(const QWidget* w) {
    return qobject_cast<const QLineEdit*>(w) || qobject_cast<const QAbstractSpinBox*>(w) ||
           qobject_cast<const QComboBox*>(w) || qobject_cast<const QTextEdit*>(w) ||
           qobject_cast<const QPlainTextEdit*>(w) || qobject_cast<const QAbstractItemView*>(w);
}

// The editor of a cell lives inside the item view and answers Enter and Escape itself.
bool dentroDeUnaVista(const QWidget* w, const QWidget* ventana) {
    for (const QWidget* p = w->parentWidget(); p && p != ventana; p = p->parentWidget())
        if (qobject_cast<const QAbstractItemView*>(p)) return true;
    return false;
}

bool visibleEn(const QWidget* w, const QWidget* ventana) {
    return w == ventana || w->isVisibleTo(ventana);
}

QList<QPair<QChar, const QWidget*>> aceleradores(const QWidget* ventana) {
    QList<QPair<QChar, const QWidget*>> r;
    auto agrega = [&](const QString& texto, const QWidget* w) {
        if (const QChar c = Acelerador(texto); !c.isNull()) r.append({c, w});
    };
    for (const QWidget* w : ventana->findChildren<QWidget*>()) {
        if (w->window() != ventana || !visibleEn(w, ventana)) continue;
        if (auto* b = qobject_cast<const QAbstractButton*>(w))
            agrega(b->text(), w);
        else if (auto* g = qobject_cast<const QGroupBox*>(w))
            agrega(g->title(), w);
        else if (auto* l = qobject_cast<const QLabel*>(w); l && l->buddy())
            agrega(l->text(), w);
        else if (auto* t = qobject_cast<const QTabWidget*>(w))
            for (int i = 0; i < t->count(); ++i)
                agrega(t->tabText(i), w);
    }
    return r;
}

class Convenciones : public QObject {
public:
    Convenciones(QDialog* dialogo, const OpcionesDialogo& opciones)
        : QObject(dialogo)
        , m_dialogo(dialogo)
        , m_opciones(opciones)
        , m_barra(opciones.barraAyuda) {
        setObjectName(QLatin1String(kNombreConvenciones));
        qApp->installEventFilter(this);
        // QDialog::reject() leaves result 0, which is no result of the suite; a reject() of the dialog's
        // own that sets its result keeps it.
        connect(dialogo, &QDialog::rejected, this, [this] {
            if (m_dialogo->result() == QDialog::Rejected) m_dialogo->setResult(m_opciones.resultadoEscape);
        });
        preparaTodo();
    }

    const OpcionesDialogo& opciones() const { return m_opciones; }
    void cambia(const OpcionesDialogo& o) {
        m_opciones = o;
        m_barra = o.barraAyuda;
        preparaTodo();
    }

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override {
        switch (e->type()) {
        case QEvent::KeyPress:
        case QEvent::FocusIn:
        case QEvent::FocusOut:
        case QEvent::Polish:
        case QEvent::Show:
        case QEvent::Resize:
        case QEvent::Close:
            break;
        default:
            return false;
        }
        if (!objeto->isWidgetType()) return false;
        auto* w = static_cast<QWidget*>(objeto);
        if (w->window() != m_dialogo) return false;
        switch (e->type()) {
        case QEvent::KeyPress:
            return tecla(w, static_cast<QKeyEvent*>(e));
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            if (w != m_dialogo) foco(w, e->type() == QEvent::FocusIn);
            return false;
        case QEvent::Polish:
            prepara(w);
            return false;
        case QEvent::Show:
            if (w == m_dialogo) muestra();
            return false;
        case QEvent::Resize:
            // The dialog's own show handler may still size it (a message box by its lines).
            if (w == m_dialogo && w->isVisible() && !e->spontaneous()) AjustaALaPantalla(m_dialogo);
            return false;
        case QEvent::Close:
            if (w == m_dialogo && !m_opciones.escapeCierra) {
                e->ignore();
                return true;
            }
            return false;
        default:
            return false;
        }
    }

private:
    bool tecla(QWidget* w, QKeyEvent* k) {
        if (k->key() == Qt::Key_Escape && k->modifiers() == Qt::NoModifier) return !m_opciones.escapeCierra;
        if (esEnter(k)) return enter(w);
        if (m_opciones.letrasPulsanBotones && qobject_cast<QAbstractButton*>(w) &&
            !(k->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
            k->text().size() == 1 && k->text()[0].isLetterOrNumber())
            return pulsaAcelerador(k->text()[0].toLower());
        return false;
    }

    bool enter(QWidget* w) {
        if (w->property(kEnterPropio).toBool() || esTextoEditable(w) || dentroDeUnaVista(w, m_dialogo))
            return false;
        if (m_opciones.enter == ReglaEnter::BotonPorDefecto) {
            if (auto* b = qobject_cast<QAbstractButton*>(w)) {
                b->click();
                return true;
            }
            for (QPushButton* b : m_dialogo->findChildren<QPushButton*>())
                if (b->isDefault() && b->isEnabled() && visibleEn(b, m_dialogo) && b->window() == m_dialogo) {
                    b->click();
                    return true;
                }
        }
        // The next control in Tab order, exactly as Tab goes.
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(m_dialogo, &tab);
        return true;
    }

    bool pulsaAcelerador(QChar letra) {
        for (const auto& [c, w] : aceleradores(m_dialogo)) {
            auto* b = qobject_cast<QAbstractButton*>(const_cast<QWidget*>(w));
            if (c == letra && b && b->isEnabled()) {
                b->click();
                return true;
            }
        }
        return false;
    }

    void foco(QWidget* w, bool entra) {
        const bool marca = m_opciones.marcaFoco == MarcaFoco::Controles ||
                           (m_opciones.marcaFoco == MarcaFoco::Campos && esCampo(w));
        if (marca) entra ? TomaFocoControl(w) : DejaFocoControl(w);
        if (m_barra && !m_barra->isAncestorOf(w)) {
            if (entra)
                m_barra->showMessage(w->toolTip());
            else
                m_barra->clearMessage();
        }
    }

    void prepara(QWidget* w) {
        if (auto* l = qobject_cast<QLabel*>(w)) {
            if (l->textFormat() != Qt::PlainText && !l->property(kTextoRico).toBool())
                l->setTextFormat(Qt::PlainText);
        } else if (auto* b = qobject_cast<QPushButton*>(w)) {
            if (m_opciones.enter == ReglaEnter::SiguienteControl) {
                b->setAutoDefault(false);
                b->setDefault(false);
            }
        } else if (esTextoDeLectura(w) && !(w->focusPolicy() & Qt::TabFocus)) {
            w->setFocusPolicy(Qt::StrongFocus);
        }
    }

    void preparaTodo() {
        for (QWidget* w : m_dialogo->findChildren<QWidget*>())
            if (w->window() == m_dialogo) prepara(w);
    }

    void muestra() {
        preparaTodo(); // a button box makes its first button the default as it shows, before the dialog
        QSet<const QWidget*> conEtiqueta;
        for (const QLabel* l : m_dialogo->findChildren<QLabel*>())
            if (l->buddy()) conEtiqueta.insert(l->buddy());
        for (QWidget* w : m_dialogo->findChildren<QWidget*>())
            if (esEntrada(w) && !conEtiqueta.contains(w) && w->accessibleName().isEmpty() &&
                !w->toolTip().isEmpty())
                w->setAccessibleName(w->toolTip());
        AjustaALaPantalla(m_dialogo);
        if (const QStringList repetidos = AceleradoresRepetidos(m_dialogo); !repetidos.isEmpty())
            qCWarning(lcFrame).noquote()
                << "dialog" << m_dialogo->objectName() << "repeats the accelerators" << repetidos.join(u' ');
    }

    QDialog* m_dialogo;
    OpcionesDialogo m_opciones;
    QPointer<QStatusBar> m_barra; // may go before the dialog's last focus change as the dialog is freed
};

// The lines of `texto` as a label of `ancho` pixels lays them out; at most `maximo` + 1 lines are made.
QStringList lineas(const QString& texto, const QFont& fuente, int ancho, bool ajusta, int maximo,
                   QTextOption::WrapMode modo) {
    QStringList r;
    for (const QString& parrafo : texto.split(u'\n')) {
        if (!ajusta) {
            r.append(parrafo);
        } else {
            QTextLayout capa(parrafo.left(8 * kMaximoTextoAyuda), fuente);
            QTextOption opcion;
            opcion.setWrapMode(modo);
            capa.setTextOption(opcion);
            capa.beginLayout();
            for (QTextLine l = capa.createLine(); l.isValid() && r.size() <= maximo; l = capa.createLine()) {
                l.setLineWidth(ancho);
                r.append(parrafo.mid(l.textStart(), l.textLength()));
            }
            capa.endLayout();
            if (parrafo.isEmpty()) r.append(QString());
        }
        if (r.size() > maximo) break;
    }
    return r;
}

} // namespace

void AplicaConvencionesDialogo(QDialog* dialogo, const OpcionesDialogo& opciones) {
    if (!dialogo) return;
    if (auto* c =
            dialogo->findChild<QObject*>(QLatin1String(kNombreConvenciones), Qt::FindDirectChildrenOnly))
        static_cast<Convenciones*>(c)->cambia(opciones);
    else
        new Convenciones(dialogo, opciones);
}

const OpcionesDialogo* ConvencionesDe(const QWidget* ventana) {
    if (!ventana) return nullptr;
    auto* c = ventana->findChild<QObject*>(QLatin1String(kNombreConvenciones), Qt::FindDirectChildrenOnly);
    return c ? &static_cast<Convenciones*>(c)->opciones() : nullptr;
}

void PermiteTextoRico(QLabel* etiqueta) {
    if (etiqueta) etiqueta->setProperty(kTextoRico, true);
}

void TomaEnterPropio(QWidget* control, bool propio) {
    if (control) control->setProperty(kEnterPropio, propio ? QVariant(true) : QVariant());
}

void AjustaALaPantalla(QWidget* ventana) {
    if (!ventana || !ventana->isWindow()) return;
    const QScreen* pantalla = QGuiApplication::screenAt(ventana->geometry().center());
    if (!pantalla) pantalla = ventana->screen() ? ventana->screen() : QGuiApplication::primaryScreen();
    if (!pantalla) return;
    const QRect zona = pantalla->availableGeometry();
    QRect marco = ventana->frameGeometry();
    // Before the window system has framed a new window its frame is its client area: count the frame of
    // its owner's window, or of another window of the program, instead.
    if (marco == ventana->geometry()) {
        const QWidget* otra = ventana->parentWidget() ? ventana->parentWidget()->window() : nullptr;
        if (!otra || !otra->isVisible()) otra = QApplication::activeWindow();
        if (otra && otra != ventana && otra->isVisible())
            marco = marco.marginsAdded(QMargins(otra->geometry().left() - otra->frameGeometry().left(),
                                                otra->geometry().top() - otra->frameGeometry().top(),
                                                otra->frameGeometry().right() - otra->geometry().right(),
                                                otra->frameGeometry().bottom() - otra->geometry().bottom()));
    }
    int dx = 0, dy = 0;
    if (marco.right() > zona.right()) dx = zona.right() - marco.right();
    if (marco.left() + dx < zona.left()) dx = zona.left() - marco.left();
    if (marco.bottom() > zona.bottom()) dy = zona.bottom() - marco.bottom();
    if (marco.top() + dy < zona.top()) dy = zona.top() - marco.top();
    // By the client area: where the frame is not yet known, a frame position would be read as a client one.
    if (dx || dy) ventana->setGeometry(ventana->geometry().translated(dx, dy));
}

QChar Acelerador(const QString& texto) {
    for (qsizetype i = 0; i + 1 < texto.size(); ++i) {
        if (texto[i] != u'&') continue;
        if (texto[i + 1] == u'&') {
            ++i; // "&&" is a plain "&"
            continue;
        }
        return texto[i + 1].toLower();
    }
    return {};
}

QStringList AceleradoresRepetidos(const QWidget* ventana) {
    QMap<QChar, int> cuenta;
    for (const auto& par : aceleradores(ventana))
        ++cuenta[par.first];
    QStringList r;
    for (auto it = cuenta.cbegin(); it != cuenta.cend(); ++it)
        if (it.value() > 1) r.append(QString(it.key()));
    return r;
}

void PonTextoPlano(QLabel* etiqueta, const QString& texto) {
    if (!etiqueta) return;
    etiqueta->setTextFormat(Qt::PlainText);
    etiqueta->setText(TextoVisible(texto));
}

bool PonTextoAjustado(QLabel* etiqueta, const QString& texto) {
    if (!etiqueta) return true;
    QVariant alineacion = etiqueta->property(kAlineacionPropia);
    if (!alineacion.isValid()) {
        alineacion = int(etiqueta->alignment());
        etiqueta->setProperty(kAlineacionPropia, alineacion);
        etiqueta->setProperty(kInteraccionPropia, int(etiqueta->textInteractionFlags()));
    }
    const auto propia = Qt::Alignment(alineacion.toInt());
    const QString t = TextoVisible(texto);
    const QRect caja = etiqueta->contentsRect();
    const QFontMetrics fm(etiqueta->font());
    const int maximo = qMax(1, caja.height() / fm.lineSpacing());
    const bool ajusta = etiqueta->wordWrap();

    const QStringList palabras =
        lineas(t, etiqueta->font(), caja.width(), ajusta, maximo, QTextOption::WordWrap);
    bool cabe = palabras.size() <= maximo;
    for (const QString& l : palabras)
        cabe = cabe && fm.horizontalAdvance(l) <= caja.width();
    etiqueta->setTextFormat(Qt::PlainText);
    if (cabe) {
        etiqueta->setAlignment(propia);
        etiqueta->setTextInteractionFlags(
            Qt::TextInteractionFlags(etiqueta->property(kInteraccionPropia).toInt()));
        etiqueta->setToolTip(QString());
        etiqueta->setAccessibleDescription(QString());
        etiqueta->setText(t);
        return true;
    }
    // The lines that fit, broken anywhere a word is too long, the last one cut with "…".
    QStringList vistas =
        lineas(t, etiqueta->font(), caja.width(), ajusta, maximo, QTextOption::WrapAtWordBoundaryOrAnywhere);
    vistas = vistas.mid(0, maximo);
    for (QString& l : vistas)
        l = fm.elidedText(l.trimmed(), Qt::ElideRight, caja.width());
    QString& ultima = vistas.last();
    const QString puntos = QStringLiteral("…");
    if (!ultima.endsWith(puntos)) {
        // " …" after the last word that fits; "…" straight after the letters when it has to cut one.
        QString marca = ultima.isEmpty() ? puntos : u' ' + puntos;
        if (fm.horizontalAdvance(ultima + marca) > caja.width()) {
            marca = puntos;
            while (!ultima.isEmpty() && fm.horizontalAdvance(ultima + marca) > caja.width())
                ultima.chop(1);
        }
        ultima += marca;
    }
    etiqueta->setAlignment((propia & Qt::AlignHorizontal_Mask) | Qt::AlignTop);
    etiqueta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const QString ayuda = t.size() > kMaximoTextoAyuda ? t.left(kMaximoTextoAyuda) + puntos : t;
    etiqueta->setToolTip(Qt::convertFromPlainText(ayuda, Qt::WhiteSpaceNormal));
    etiqueta->setAccessibleDescription(ayuda);
    etiqueta->setText(vistas.join(u'\n'));
    return false;
}

} // namespace nod
