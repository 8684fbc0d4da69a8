// The controls and the row layout the panels of the data prompt are built from.
#include "companion/editimporte.h"
#include "companion/textovisible.h"
#include "prompts/preguntacomun_p.h"
#include "prompts/preguntadatos_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace nod::pregunta {

namespace {

template <typename W> W* nombrado(W* w, const char* nombre) {
    w->setObjectName(QString::fromLatin1(nombre));
    return w;
}

// Room for `caracteres` digits plus the frame and, in a spin edit, its arrows.
int anchoPara(const QWidget* w, int caracteres, int extra) {
    return w->fontMetrics().horizontalAdvance(QString(caracteres, u'0')) + extra;
}

} // namespace

QWidget* NuevoPanel(QWidget* padre, const char* nombre, const QString& hint, const QString& tipo,
                    const QString& titulo) {
    QWidget* p = nullptr;
    if (titulo.isEmpty()) {
        auto* marco = new QFrame(padre);
        marco->setFrameStyle(QFrame::Panel | QFrame::Raised);
        p = marco;
    } else {
        p = new QGroupBox(titulo, padre);
    }
    nombrado(p, nombre);
    p->setProperty(kHint, hint);
    p->setAccessibleName(hint);
    p->setAutoFillBackground(true); // the form's colours paint around the panel, never behind its texts
    p->hide();
    // The static text with the kind's name every panel carries; it is never shown.
    auto* tipoOculto = new QLabel(tipo, p);
    tipoOculto->setObjectName(QString::fromLatin1(nombre) + QStringLiteral("Tipo"));
    tipoOculto->hide();
    return p;
}

QGroupBox* Grupo(QWidget* padre, const char* nombre, const QString& titulo) {
    return nombrado(new QGroupBox(titulo, padre), nombre);
}

QSpinBox* Numero(QWidget* padre, const char* nombre, int maximo, int caracteres, int minimo) {
    auto* s = nombrado(new QSpinBox(padre), nombre);
    s->setRange(minimo, maximo);
    s->setAlignment(Qt::AlignRight);
    if (auto* e = s->findChild<QLineEdit*>()) e->setMaxLength(caracteres);
    s->setFixedWidth(anchoPara(s, caracteres + 1, 34));
    return s;
}

QSpinBox* Ano(QWidget* padre, const char* nombre, int diseno, int maximo) {
    QSpinBox* s = Numero(padre, nombre, maximo, 4);
    s->setValue(diseno);
    s->setProperty(kCampoAno, true);
    return s;
}

QComboBox* Lista(QWidget* padre, const char* nombre, const QStringList& elementos, bool editable) {
    auto* c = nombrado(new QComboBox(padre), nombre);
    c->setEditable(editable);
    c->setInsertPolicy(QComboBox::NoInsert);
    c->addItems(elementos);
    if (editable) {
        c->setCompleter(nullptr); // the list's own key rules complete from its items
        c->setCurrentIndex(-1);
    }
    return c;
}

QComboBox* ListaMeses(QWidget* padre, const char* nombre) {
    return Lista(padre, nombre,
                 {QStringLiteral("ENERO"), QStringLiteral("FEBRERO"), QStringLiteral("MARZO"),
                  QStringLiteral("ABRIL"), QStringLiteral("MAYO"), QStringLiteral("JUNIO"),
                  QStringLiteral("JULIO"), QStringLiteral("AGOSTO"), QStringLiteral("SEPTIEMBRE"),
                  QStringLiteral("OCTUBRE"), QStringLiteral("NOVIEMBRE"), QStringLiteral("DICIEMBRE")});
}

QComboBox* ListaTrimestres(QWidget* padre, const char* nombre) {
    return Lista(padre, nombre,
                 {QStringLiteral("PRIMERO"), QStringLiteral("SEGUNDO"), QStringLiteral("TERCERO"),
                  QStringLiteral("CUARTO")});
}

QComboBox* ListaSemestres(QWidget* padre, const char* nombre) {
    return Lista(padre, nombre, {QStringLiteral("PRIMERO"), QStringLiteral("SEGUNDO")});
}

QDateTimeEdit* Fecha(QWidget* padre, const char* nombre) {
    auto* d = nombrado(new QDateTimeEdit(padre), nombre);
    d->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    d->setCalendarPopup(true);
    d->setDateTimeRange(QDateTime(QDate(1900, 1, 1), QTime(0, 0)),
                        QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59)));
    return d;
}

QLineEdit* Edit(QWidget* padre, const char* nombre, int caracteres) {
    auto* e = nombrado(new QLineEdit(padre), nombre);
    if (caracteres > 0) e->setMaxLength(caracteres);
    if (caracteres > 0 && caracteres <= 20) e->setFixedWidth(anchoPara(e, std::max(caracteres, 2) + 1, 12));
    return e;
}

TEditImporte* Importe(QWidget* padre, const char* nombre, int decimales) {
    auto* e = nombrado(new TEditImporte(padre, decimales), nombre);
    e->setFixedWidth(anchoPara(e, 14, 12));
    return e;
}

QCheckBox* Casilla(QWidget* padre, const char* nombre, const QString& texto, bool marcada) {
    auto* c = nombrado(new QCheckBox(texto, padre), nombre);
    c->setChecked(marcada);
    return c;
}

QRadioButton* Radio(QWidget* padre, const char* nombre, const QString& texto, bool marcada) {
    auto* r = nombrado(new QRadioButton(texto, padre), nombre);
    r->setChecked(marcada);
    return r;
}

QLabel* Etiqueta(QWidget* padre, const QString& texto, QWidget* de, const char* nombre) {
    auto* l = new QLabel(texto, padre);
    l->setTextFormat(Qt::PlainText);
    if (nombre) l->setObjectName(QString::fromLatin1(nombre));
    if (de) l->setBuddy(de);
    return l;
}

Filas::Filas(QWidget* contenedor)
    : m_contenedor(contenedor)
    , m_rejilla(new QGridLayout(contenedor)) {
    m_rejilla->setContentsMargins(10, 10, 10, 10);
    m_rejilla->setHorizontalSpacing(6);
    m_rejilla->setVerticalSpacing(6);
    m_rejilla->setColumnStretch(3, 1);
}

QLabel* Filas::fila(const QString& etiqueta, QWidget* control, const QString& cola,
                    const char* nombreEtiqueta) {
    QLabel* l = etiqueta.isEmpty() && !nombreEtiqueta
                    ? nullptr
                    : Etiqueta(m_contenedor, etiqueta, control, nombreEtiqueta);
    fila(l, control, cola.isEmpty() ? nullptr : Etiqueta(m_contenedor, cola));
    return l;
}

void Filas::fila(QLabel* etiqueta, QWidget* control, QWidget* cola) {
    if (etiqueta) m_rejilla->addWidget(etiqueta, m_fila, 0);
    if (control) m_rejilla->addWidget(control, m_fila, 1, Qt::AlignLeft);
    if (cola) m_rejilla->addWidget(cola, m_fila, 2);
    ++m_fila;
}

void Filas::ocupa(QWidget* w) {
    m_rejilla->addWidget(w, m_fila++, 0, 1, -1);
}

void Filas::juntos(std::initializer_list<QWidget*> ws) {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(6);
    for (QWidget* w : ws)
        fila->addWidget(w);
    fila->addStretch();
    m_rejilla->addLayout(fila, m_fila++, 0, 1, -1);
}

void EnColumna(QWidget* contenedor, std::initializer_list<QWidget*> ws) {
    auto* columna = new QVBoxLayout(contenedor);
    columna->setContentsMargins(10, 6, 10, 8);
    columna->setSpacing(4);
    for (QWidget* w : ws)
        columna->addWidget(w);
}

} // namespace nod::pregunta

// ---------------------------------------------------------------------------------------------------
// What the prompt routines share (prompts/preguntacomun_p.h).

namespace nod::pregunta {

namespace {

// The longest caller's text a label shows before it is cut; the whole text stays in the tooltip.
constexpr int kLargoEtiqueta = 400;
constexpr int kLargoCaption = 120;

QString cortado(QString texto, int largo) {
    if (texto.size() > largo) {
        texto.truncate(largo - 1);
        texto += u'…';
    }
    return texto;
}

} // namespace

void LimitaAlAno(QDateTimeEdit* d, int ano) {
    if (ano < 1 || ano > 9999) return;
    d->setDateTimeRange(QDateTime(QDate(ano, 1, 1), QTime(0, 0)),
                        QDateTime(QDate(ano, 12, 31), QTime(23, 59, 59, 999)));
}

void PonTextoLlamador(QLabel* etiqueta, const QString& texto) {
    const QString t = TextoVisible(texto);
    etiqueta->setTextFormat(Qt::PlainText);
    etiqueta->setWordWrap(true);
    etiqueta->setText(cortado(t, kLargoEtiqueta));
    etiqueta->setToolTip(t.size() > kLargoEtiqueta ? t : QString());
    // A sentence on one line, no wider: longer texts wrap. A short one keeps its width.
    const QFontMetrics medidas = etiqueta->fontMetrics();
    const int maximo = medidas.averageCharWidth() * 70;
    int ancho = 0;
    for (const QString& linea : etiqueta->text().split(u'\n'))
        ancho = std::max(ancho, medidas.horizontalAdvance(linea));
    etiqueta->setMaximumWidth(maximo);
    etiqueta->setMinimumWidth(std::min(ancho + 2, maximo));
}

void PonCaptionLlamador(QWidget* forma, const QString& texto) {
    if (texto.isEmpty()) return;
    forma->setWindowTitle(cortado(TextoVisible(texto).replace(u'\n', u' '), kLargoCaption));
}

QString LetrasMarcadas(std::initializer_list<std::pair<const QAbstractButton*, QChar>> casillas) {
    QString letras;
    for (const auto& [casilla, letra] : casillas)
        if (casilla->isChecked()) letras += letra;
    return letras;
}

void MarcaLetras(std::initializer_list<std::pair<QAbstractButton*, QChar>> casillas, const QString& letras) {
    for (const auto& [casilla, letra] : casillas)
        casilla->setChecked(letras.contains(letra));
}

} // namespace nod::pregunta
