#include "frame/preguntazeb.h"

#include "companion/config.h"
#include "companion/dialogo.h"
#include "companion/foco.h"
#include "frame/shell.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QStyle>

namespace nod {

namespace {

struct ColoresEnlace {
    TColor encima, reposo;
};
constexpr ColoresEnlace kWeb = {0xFAC101, 0xFF0000};
constexpr ColoresEnlace kCorreo = {0x0000B9, 0x000080};

void pinta(QLabel* l, TColor c, int deltaPuntos) {
    QFont f = l->font();
    f.setPointSize(f.pointSize() + deltaPuntos);
    l->setFont(f);
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, ColorQt(c));
    l->setPalette(p);
}

// A link showing its address; without one (the office has not configured it) a disabled line that says so.
QLabel* enlace(QWidget* padre, const char* nombre, const QString& direccion, const QString& sinDireccion,
               TColor reposo) {
    auto* l = new QLabel(padre);
    l->setObjectName(QLatin1String(nombre));
    PonTextoPlano(l, direccion.isEmpty() ? sinDireccion : direccion);
    l->setEnabled(!direccion.isEmpty());
    QFont f = l->font();
    f.setUnderline(l->isEnabled());
    l->setFont(f);
    pinta(l, reposo, 0);
    return l;
}

} // namespace

TFPreguntaZEB::TFPreguntaZEB(QWidget* owner, const QString& texto)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setObjectName(QStringLiteral("FPreguntaZEB"));
    setWindowTitle(QStringLiteral("ZEB Software"));

    m_imagen = new QLabel(this);
    m_imagen->setObjectName(QStringLiteral("Imagen"));
    m_imagen->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(48, 48));
    m_imagen->installEventFilter(this);

    auto* mensaje = new QLabel(this);
    mensaje->setObjectName(QStringLiteral("LMensaje"));
    PonTextoPlano(mensaje, texto);
    mensaje->setWordWrap(true);
    mensaje->setMinimumWidth(320);

    m_web = enlace(this, "LMDZeb", Config.GetWebFabricante(), QStringLiteral("Página web no configurada"),
                   kWeb.reposo);
    m_correo = enlace(this, "LMDCorreo", Config.GetCorreoFabricante(),
                      QStringLiteral("Correo no configurado"), kCorreo.reposo);
    for (QLabel* l : {m_web, m_correo})
        l->installEventFilter(this);

    auto* g = new QGridLayout(this);
    g->addWidget(m_imagen, 0, 0, 3, 1, Qt::AlignTop);
    g->addWidget(mensaje, 0, 1);
    g->addWidget(m_web, 1, 1);
    g->addWidget(m_correo, 2, 1);
    AplicaConvencionesDialogo(this);
}

void TFPreguntaZEB::EntraEnlace(QLabel* l) {
    if (!l->isEnabled()) return;
    l->setCursor(Qt::PointingHandCursor);
    pinta(l, l == m_web ? kWeb.encima : kCorreo.encima, +1);
}

void TFPreguntaZEB::SaleEnlace(QLabel* l) {
    if (!l->isEnabled()) return;
    l->unsetCursor();
    pinta(l, l == m_web ? kWeb.reposo : kCorreo.reposo, -1);
}

void TFPreguntaZEB::LMDZebClick() {
    if (m_web->isEnabled()) AbreEnShell(QUrl(Config.GetWebFabricante()));
}

void TFPreguntaZEB::LMDCorreoClick() {
    if (m_correo->isEnabled()) AbreEnShell(QUrl(QStringLiteral("mailto:") + Config.GetCorreoFabricante()));
}

bool TFPreguntaZEB::eventFilter(QObject* objeto, QEvent* e) {
    auto* l = qobject_cast<QLabel*>(objeto);
    if (l == m_imagen && e->type() == QEvent::MouseButtonRelease) {
        reject(); // result 2, as Escape
        return true;
    }
    if (l == m_web || l == m_correo) {
        if (e->type() == QEvent::Enter)
            EntraEnlace(l);
        else if (e->type() == QEvent::Leave)
            SaleEnlace(l);
        else if (e->type() == QEvent::MouseButtonRelease) {
            l == m_web ? LMDZebClick() : LMDCorreoClick();
            return true;
        }
    }
    return QDialog::eventFilter(objeto, e);
}

} // namespace nod
