#include "frame/mensajenod.h"

#include "companion/dialogo.h"
#include "companion/foco.h"
#include "companion/modal.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

namespace nod {

QPointer<TFMensajeNod> FMensajeNod;

namespace {

constexpr int kAncho = 590;
constexpr int kAltoDiseno = 149;
constexpr int kAltoPanel = 34;
constexpr int kIzquierdaPrimero = 374;
constexpr int kIzquierdaSegundo = 491;
constexpr int kLargoMensaje2 = 40; // longer second lines are drawn smaller to fit
constexpr int kPuntosBoton = 9;

QFont arialNegrita() {
    QFont f(QStringLiteral("Arial"));
    f.setBold(true);
    return f;
}

QLabel* etiqueta(QWidget* padre, const char* nombre, QRect geometria, int pixeles, Qt::Alignment alineacion) {
    auto* l = new QLabel(padre);
    l->setObjectName(QLatin1String(nombre));
    l->setGeometry(geometria);
    QFont f = arialNegrita();
    f.setPixelSize(pixeles);
    l->setFont(f);
    l->setAlignment(alineacion);
    l->setAttribute(Qt::WA_TranslucentBackground);
    return l;
}

QLabel* icono(QWidget* padre, const char* nombre, QPoint posicion, const QPixmap& imagen) {
    auto* l = new QLabel(padre);
    l->setObjectName(QLatin1String(nombre));
    l->setGeometry(QRect(posicion, QSize(32, 32)));
    l->setPixmap(imagen);
    return l;
}

// The stop sign of a box whose background is usually red: a white disc ringed and crossed in dark red, so
// that it stands out on red, on the other schemes' colours and at any scale.
QPixmap iconoStop(qreal escala) {
    QPixmap p(QSize(32, 32) * escala);
    p.setDevicePixelRatio(escala);
    p.fill(Qt::transparent);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    const QColor granate(128, 0, 0);
    g.setPen(QPen(granate, 2));
    g.setBrush(Qt::white);
    g.drawEllipse(QRectF(1, 1, 30, 30));
    g.setPen(QPen(granate, 4.5, Qt::SolidLine, Qt::RoundCap));
    g.drawLine(QPointF(10.5, 10.5), QPointF(21.5, 21.5));
    g.drawLine(QPointF(21.5, 10.5), QPointF(10.5, 21.5));
    return p;
}

QPushButton* boton(QWidget* padre, const char* nombre, const QString& texto, int izquierda, QColor color) {
    auto* b = new QPushButton(texto, padre);
    b->setObjectName(QLatin1String(nombre));
    b->setGeometry(izquierda, 2, 95, 30);
    QFont f = arialNegrita();
    f.setPointSize(kPuntosBoton);
    b->setFont(f);
    QPalette p = b->palette();
    p.setColor(QPalette::ButtonText, color);
    b->setPalette(p);
    return b;
}

void ponColorTexto(QLabel* l, TColor c) {
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, ColorQt(c));
    l->setPalette(p);
}

} // namespace

TFMensajeNod::TFMensajeNod(QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_puntosBotones(kPuntosBoton) {
    setObjectName(QStringLiteral("FMensajeNod"));
    setWindowTitle(QStringLiteral("Mensaje"));
    setFixedSize(kAncho, kAltoDiseno);
    setAutoFillBackground(true);

    m_lmensaje = etiqueta(this, "lmensaje", {59, 5, 526, 61}, 15, Qt::AlignLeft | Qt::AlignVCenter);
    m_lmensaje->setWordWrap(true);
    m_iconoStop = icono(this, "IconoStop", {8, 16}, iconoStop(devicePixelRatio()));
    m_iconoPregunta = icono(this, "IconoPregunta", {9, 16},
                            style()->standardIcon(QStyle::SP_MessageBoxQuestion).pixmap(32, 32));
    m_lmensaje2 = etiqueta(this, "LMENSAJE2", {45, 72, 540, 19}, 16, Qt::AlignCenter);

    m_panel1 = new QWidget(this); // no bevel, the box's own colour: it only reserves the bottom strip
    m_panel1->setObjectName(QStringLiteral("Panel1"));
    m_panel1->setGeometry(0, kAltoDiseno - kAltoPanel, kAncho, kAltoPanel);

    m_baceptar = boton(this, "BACEPTAR", QStringLiteral("&Aceptar"), 390, QColor(0, 128, 0));
    m_baceptar->setIcon(style()->standardIcon(QStyle::SP_DialogOkButton));
    m_baceptar->setDefault(true);
    m_bcancelar = boton(this, "BCANCELAR", QStringLiteral("&Salir"), kIzquierdaSegundo, QColor(128, 0, 0));
    m_bcancelar->setIcon(style()->standardIcon(QStyle::SP_DialogCancelButton));
    connect(m_baceptar, &QPushButton::clicked, this, [this] { done(1); });
    connect(m_bcancelar, &QPushButton::clicked, this, [this] { done(2); });
    setTabOrder(m_baceptar, m_bcancelar);

    CambiaFondo(0x0000FF);
    CambiaColorLetras(0xFFFFFF);
    FormCreate();
    // "&Aceptar" is the design's default button; the focus sits on the buttons, so a plain letter presses
    // its button and Enter the focused one. The focus mark follows the buttons (BACEPTAREnter/Exit).
    OpcionesDialogo o;
    o.enter = ReglaEnter::BotonPorDefecto;
    o.letrasPulsanBotones = true;
    o.marcaFoco = MarcaFoco::Controles;
    AplicaConvencionesDialogo(this, o);
}

TFMensajeNod::~TFMensajeNod() = default;

void TFMensajeNod::CambiaFondo(TColor c) {
    QPalette p = palette();
    p.setColor(QPalette::Window, ColorQt(c));
    setPalette(p);
}

void TFMensajeNod::CambiaColorLetras(TColor c) {
    ponColorTexto(m_lmensaje, c);
    ponColorTexto(m_lmensaje2, c);
}

void TFMensajeNod::CambiaIcono(int i) {
    m_iconoStop->setVisible(i == 0);
    m_iconoPregunta->setVisible(!m_iconoStop->isVisibleTo(this));
}

void TFMensajeNod::CambiaTipoMensaje(int tipo, const QString& b1, const QString& b2) {
    m_tipo = tipo;
    m_baceptar->move(kIzquierdaPrimero, m_baceptar->y());
    m_bcancelar->setVisible(true);
    m_baceptar->setText(QStringLiteral("&Aceptar"));
    m_bcancelar->setText(QStringLiteral("&Cancelar"));
    switch (tipo) {
    case 0:
        m_baceptar->move(m_bcancelar->x(), m_baceptar->y());
        m_bcancelar->setVisible(false);
        break;
    case 1:
    case 2:
        m_baceptar->setText(QStringLiteral("&Si"));
        m_bcancelar->setText(QStringLiteral("&No"));
        break;
    case 5:
    case 6:
        m_baceptar->setText(b1);
        m_bcancelar->setText(b2);
        m_puntosBotones += 2;
        for (QPushButton* b : {m_baceptar, m_bcancelar}) {
            b->setIcon(QIcon());
            QFont f = b->font();
            f.setPointSize(m_puntosBotones);
            b->setFont(f);
        }
        break;
    default: // 3, 4 and unknown values keep "&Aceptar" / "&Cancelar"
        break;
    }
}

void TFMensajeNod::CambiaMensaje1(const QString& s) {
    PonTextoAjustado(m_lmensaje, s);
}

void TFMensajeNod::CambiaMensaje2(const QString& s) {
    if (s.size() > kLargoMensaje2) {
        QFont f = m_lmensaje2->font();
        f.setPointSize(10);
        m_lmensaje2->setFont(f);
    }
    PonTextoAjustado(m_lmensaje2, s);
}

void TFMensajeNod::FormCreate() {
    // Only an owner that is itself a window counts; a control of some window as owner gives the screen.
    const QWidget* owner = parentWidget();
    QRect zona;
    if (owner && owner->isWindow() && owner->isVisible())
        zona = owner->frameGeometry();
    else if (const QScreen* s = screen() ? screen() : QGuiApplication::primaryScreen())
        zona = s->availableGeometry();
    if (zona.isValid()) move(zona.center() - rect().center());
}

void TFMensajeNod::FormShow() {
    m_lmensaje->setVisible(true);
    m_lmensaje2->setVisible(true);
    m_baceptar->move(m_baceptar->x(), 89);
    m_bcancelar->move(m_bcancelar->x(), 89);
    m_lmensaje2->move(m_lmensaje2->x(), 56);
    int alto = 150;
    if (m_lmensaje->text().isEmpty()) {
        m_lmensaje->setVisible(false);
        m_lmensaje2->move(m_lmensaje2->x(), 21);
        m_baceptar->move(m_baceptar->x(), 62);
        m_bcancelar->move(m_bcancelar->x(), 62);
        alto = 123;
    }
    if (m_lmensaje2->text().isEmpty()) {
        m_lmensaje2->setVisible(false);
        m_baceptar->move(m_baceptar->x(), 62);
        m_bcancelar->move(m_bcancelar->x(), 62);
        alto = 123;
    }
    setFixedSize(kAncho, alto);
    m_panel1->setGeometry(0, alto - kAltoPanel, kAncho, kAltoPanel);
    m_panel1->lower();

    if (m_tipo == 1 || m_tipo == 3 || m_tipo == 5)
        m_baceptar->setFocus(Qt::OtherFocusReason);
    else if (m_tipo == 2 || m_tipo == 4 || m_tipo == 6)
        m_bcancelar->setFocus(Qt::OtherFocusReason);
    raise();
    activateWindow();
}

void TFMensajeNod::showEvent(QShowEvent* e) {
    FormShow();
    QDialog::showEvent(e);
}

int MuestraMensajePerson(const PeticionMensajePerson& p, QWidget* owner) {
    auto* forma = new TFMensajeNod(owner);
    FMensajeNod = forma;
    forma->setWindowTitle(p.titulo);
    forma->CambiaFondo(p.fondo);
    forma->CambiaColorLetras(p.letras);
    forma->CambiaIcono(p.icono);
    forma->CambiaTipoMensaje(p.tipo, p.boton1, p.boton2);
    forma->CambiaMensaje1(p.mensaje1);
    forma->CambiaMensaje2(p.mensaje2);
    const int resultado = EjecutaModal(*forma);
    delete forma;
    return resultado;
}

} // namespace nod
