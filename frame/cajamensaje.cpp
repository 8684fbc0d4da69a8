#include "frame/cajamensaje.h"

#include "companion/dialogo.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

namespace nod {

namespace {
constexpr int kAnchoTexto = 480; // a readable line
}

TCajaMensaje::TCajaMensaje(Tipo tipo, const QString& texto, const QString& titulo, bool focoEnSi,
                           QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setObjectName(QStringLiteral("FCajaMensaje"));
    setWindowTitle(titulo);

    auto* icono = new QLabel(this);
    icono->setObjectName(QStringLiteral("IIcono"));
    const QStyle::StandardPixmap cual = tipo == Tipo::Error         ? QStyle::SP_MessageBoxCritical
                                        : tipo == Tipo::Informacion ? QStyle::SP_MessageBoxInformation
                                                                    : QStyle::SP_MessageBoxQuestion;
    icono->setPixmap(style()->standardIcon(cual).pixmap(32, 32));

    auto* etiqueta = new QLabel(this);
    etiqueta->setObjectName(QStringLiteral("LTexto"));
    PonTextoPlano(etiqueta, texto);
    etiqueta->setWordWrap(true);
    etiqueta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    etiqueta->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    const int ancho = qMin(kAnchoTexto, etiqueta->sizeHint().width());
    etiqueta->setFixedWidth(qMax(ancho, 200));

    // The text scrolls when it would push the buttons off the screen.
    const QScreen* pantalla = owner ? owner->screen() : QGuiApplication::primaryScreen();
    const int altoMaximo = pantalla ? pantalla->availableGeometry().height() * 2 / 3 : 600;
    auto* area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("SBTexto"));
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area->setWidget(etiqueta);
    area->setWidgetResizable(false);
    area->viewport()->setAutoFillBackground(false);
    etiqueta->adjustSize();
    const bool desplaza = etiqueta->height() > altoMaximo;
    area->setFixedSize(etiqueta->width() + (desplaza ? area->verticalScrollBar()->sizeHint().width() : 0),
                       qMin(etiqueta->height(), altoMaximo));
    area->setFocusPolicy(desplaza ? Qt::StrongFocus : Qt::NoFocus);
    area->setAccessibleName(titulo);

    auto* barra = new QHBoxLayout;
    barra->addStretch();
    auto boton = [&](const char* nombre, const QString& rotulo, int resultado) {
        auto* b = new QPushButton(rotulo, this);
        b->setObjectName(QLatin1String(nombre));
        connect(b, &QPushButton::clicked, this, [this, resultado] { done(resultado); });
        barra->addWidget(b);
        return b;
    };
    QPushButton* enfocado = nullptr;
    if (tipo == Tipo::Pregunta) {
        QPushButton* si = boton("BSi", QStringLiteral("&Si"), 1);
        QPushButton* no = boton("BNo", QStringLiteral("&No"), 2);
        enfocado = focoEnSi ? si : no;
    } else {
        enfocado = boton("BAceptar", QStringLiteral("&Aceptar"), 1);
    }
    enfocado->setDefault(true);

    auto* arriba = new QHBoxLayout;
    arriba->addWidget(icono, 0, Qt::AlignTop);
    arriba->addWidget(area, 1);
    auto* capa = new QVBoxLayout(this);
    capa->addLayout(arriba);
    capa->addLayout(barra);
    capa->setSizeConstraint(QLayout::SetFixedSize);

    OpcionesDialogo o;
    o.enter = ReglaEnter::BotonPorDefecto;
    o.letrasPulsanBotones = true;
    AplicaConvencionesDialogo(this, o);
    enfocado->setFocus();
}

} // namespace nod
