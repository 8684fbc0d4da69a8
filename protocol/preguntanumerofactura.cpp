#include "protocol/preguntanumerofactura.h"

#include "companion/dialogo.h"
#include "companion/fechas.h"
#include "companion/filtroteclas.h"
#include "companion/hoy.h"
#include "companion/modal.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStatusBar>
#include <QVBoxLayout>

namespace nod {

QPointer<TFPreguntaNumeroFactura> FPreguntaNumeroFactura;

namespace {

QLineEdit* campo(QWidget* padre, const char* nombre, const char* patron, int anchoEnCifras,
                 const QString& pista) {
    auto* e = new QLineEdit(padre);
    e->setObjectName(QString::fromLatin1(nombre));
    const QString expresion = QString::fromLatin1(patron);
    e->setValidator(new QRegularExpressionValidator(QRegularExpression(expresion), e));
    e->setToolTip(pista);
    // Wide enough for its digits and the frame, no wider: the fields read as one number.
    e->setFixedWidth(e->fontMetrics().horizontalAdvance(QString(anchoEnCifras, u'0')) + 16);
    return e;
}

QPushButton* boton(QWidget* padre, const char* nombre, const QString& texto, const QString& pista) {
    auto* b = new QPushButton(texto, padre);
    b->setObjectName(QString::fromLatin1(nombre));
    b->setToolTip(pista);
    return b;
}

QLabel* rotulo(QWidget* padre, const QString& texto, QLineEdit* de) {
    auto* l = new QLabel(texto, padre);
    l->setBuddy(de);
    return l;
}

} // namespace

TFPreguntaNumeroFactura::TFPreguntaNumeroFactura(QWidget* owner)
    : QDialog(owner) {
    setObjectName(QStringLiteral("FPreguntaNumeroFactura"));
    setWindowTitle(QStringLiteral("Número de factura"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);

    auto* panel = new QWidget(this);
    ESerie = campo(panel, "ESerie", "[A-Za-z0-9]{0,2}", 3,
                   QStringLiteral("Serie de la factura (hasta dos caracteres)"));
    EAno = campo(panel, "EAno", "[0-9]{0,4}", 5, QStringLiteral("Año de la factura"));
    ENumero = campo(panel, "ENumero", "[0-9]{0,6}", 7,
                    QStringLiteral("Número de la factura dentro de su serie y año"));
    EBis = campo(panel, "EBis", "[A-Za-z]?", 2,
                 QStringLiteral("Letra bis de una factura repetida (en blanco si no lo es)"));
    EscribeEnMayusculas(ESerie);
    EscribeEnMayusculas(EBis);
    ENumero->setAlignment(Qt::AlignRight);

    auto* rejilla = new QGridLayout;
    rejilla->setHorizontalSpacing(6);
    const QList<QPair<QString, QLineEdit*>> columnas = {{QStringLiteral("&Serie"), ESerie},
                                                        {QStringLiteral("A&ño"), EAno},
                                                        {QStringLiteral("&Número"), ENumero},
                                                        {QStringLiteral("&Bis"), EBis}};
    // Series, year and number read as the printed invoice number does: "A - 2024 / 15", then the bis.
    const QString separadores[] = {QStringLiteral("-"), QStringLiteral("/"), QString()};
    int columna = 0;
    for (int i = 0; i < columnas.size(); ++i) {
        const auto& [texto, edit] = columnas[i];
        rejilla->addWidget(rotulo(panel, texto, edit), 0, columna);
        rejilla->addWidget(edit, 1, columna++);
        if (i < 3) rejilla->addWidget(new QLabel(separadores[i], panel), 1, columna++, Qt::AlignCenter);
    }
    rejilla->setColumnStretch(columna, 1);

    BBAceptar =
        boton(panel, "BBAceptar", QStringLiteral("&Aceptar"), QStringLiteral("Aceptar el número de factura"));
    BBCancelar = boton(panel, "BBCancelar", QStringLiteral("&Cancelar"),
                       QStringLiteral("Salir sin número de factura"));
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(BBAceptar);
    botones->addWidget(BBCancelar);

    auto* capaPanel = new QVBoxLayout(panel);
    capaPanel->setContentsMargins(12, 12, 12, 8);
    capaPanel->setSpacing(12);
    capaPanel->addLayout(rejilla);
    capaPanel->addLayout(botones);

    SBExplica = new QStatusBar(this);
    SBExplica->setObjectName(QStringLiteral("SBExplica"));
    SBExplica->setSizeGripEnabled(false);
    // Room for the longest hint, so the form does not change size as the focus moves.
    SBExplica->setMinimumWidth(SBExplica->fontMetrics().horizontalAdvance(EBis->toolTip()) + 24);

    auto* principal = new QVBoxLayout(this);
    principal->setContentsMargins(0, 0, 0, 0);
    principal->setSpacing(0);
    principal->addWidget(panel);
    principal->addWidget(SBExplica);
    principal->setSizeConstraint(QLayout::SetFixedSize);

    setTabOrder(ESerie, EAno);
    setTabOrder(EAno, ENumero);
    setTabOrder(ENumero, EBis);
    setTabOrder(EBis, BBAceptar);
    setTabOrder(BBAceptar, BBCancelar);
    EAno->installEventFilter(this); // a short year becomes a full one when the clerk leaves the field

    connect(BBAceptar, &QPushButton::clicked, this, [this] { done(1); });
    connect(BBCancelar, &QPushButton::clicked, this, &TFPreguntaNumeroFactura::reject);
    connect(ENumero, &QLineEdit::textChanged, this,
            [this](const QString& t) { BBAceptar->setEnabled(!t.isEmpty()); });
    BBAceptar->setEnabled(false);
    PonValores({}, 0, 0, {});
    ESerie->setFocus();
    // Enter moves to the next control everywhere, on the buttons too (Space or the accelerator presses a
    // button; a disabled "&Aceptar" is skipped); entering a control shows its hint, fields wear the mark.
    OpcionesDialogo o;
    o.marcaFoco = MarcaFoco::Campos;
    o.barraAyuda = SBExplica;
    AplicaConvencionesDialogo(this, o);
}

QString TFPreguntaNumeroFactura::Serie() const {
    return ESerie->text();
}

int TFPreguntaNumeroFactura::Ano() const {
    return EAno->text().toInt();
}

int TFPreguntaNumeroFactura::Numero() const {
    return ENumero->text().toInt();
}

QString TFPreguntaNumeroFactura::Bis() const {
    return EBis->text();
}

void TFPreguntaNumeroFactura::PonValores(const QString& serie, int ano, int numero, const QString& bis) {
    ESerie->setText(serie.left(2).toUpper());
    // A form opened without a year proposes the current one.
    EAno->setText(QString::number(ano >= 1 && ano <= 9999 ? ano : nod::Ano(Date())));
    ENumero->setText(numero > 0 && numero <= 999999 ? QString::number(numero) : QString());
    EBis->setText(bis.trimmed().left(1).toUpper());
}

bool TFPreguntaNumeroFactura::eventFilter(QObject* o, QEvent* e) {
    if (o == EAno && e->type() == QEvent::FocusOut) EAno->setText(CompletaAnno(EAno->text()));
    return QDialog::eventFilter(o, e);
}

bool PreguntaNumeroFacturaForm(QString& serie, int& ano, int& numero, QString& bis, const QString& titulo,
                               QWidget* owner) {
    TFPreguntaNumeroFactura f(owner);
    FPreguntaNumeroFactura = &f;
    if (!titulo.isEmpty()) f.setWindowTitle(titulo);
    f.PonValores(serie, ano, numero, bis);
    const bool aceptada = EjecutaModal(f) == 1;
    FPreguntaNumeroFactura = nullptr;
    if (!aceptada) return false;
    serie = f.Serie();
    ano = f.Ano();
    numero = f.Numero();
    bis = f.Bis();
    return true;
}

} // namespace nod
