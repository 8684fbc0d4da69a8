#include "protocol/calculametros.h"

#include "companion/dialogo.h"
#include "companion/editimporte.h"
#include "companion/rnumcad.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace nod {

QPointer<TFCalculaMetrosCuadrados> FCalculaMetrosCuadrados;

namespace {

// A product of two 32-bit integers as the 32-bit machine arithmetic of the suite leaves it.
qint32 producto32(qint32 a, qint32 b) {
    return static_cast<qint32>(static_cast<quint32>(a) * static_cast<quint32>(b));
}

QLineEdit* cifra(QWidget* padre, const char* nombre, const QString& texto, const QString& pista) {
    auto* e = new QLineEdit(padre);
    e->setObjectName(QLatin1String(nombre));
    e->setToolTip(pista);
    e->setAlignment(Qt::AlignRight);
    // Digits as they are typed; a caller's preset text is shown as it came and read as the suite reads it.
    e->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral(" *[0-9]{0,10} *")), e));
    e->setText(texto);
    e->setFixedWidth(e->fontMetrics().horizontalAdvance(QStringLiteral("0000000000")) + 16);
    return e;
}

QPushButton* boton(QWidget* padre, const char* nombre, const QString& texto) {
    auto* b = new QPushButton(texto, padre);
    b->setObjectName(QLatin1String(nombre));
    return b;
}

} // namespace

double MetrosDeHectareas(qint32 hectareas, qint32 areas, qint32 centiareas) {
    double centesimas = 0;
    // A figure of 0 adds nothing.
    if (hectareas != 0) centesimas += producto32(hectareas, 1000000);
    if (areas != 0) centesimas += producto32(areas, 10000);
    if (centiareas != 0) centesimas += producto32(centiareas, 100);
    return centesimas / 100;
}

TFCalculaMetrosCuadrados::TFCalculaMetrosCuadrados(QWidget* owner, const QString& hectareas,
                                                   const QString& areas, const QString& centiareas)
    : QDialog(owner) {
    FCalculaMetrosCuadrados = this;
    setObjectName(QStringLiteral("FCalculaMetrosCuadrados"));
    setWindowTitle(QStringLiteral("Cálculo de Metros Cuadrados"));

    EHectareas = cifra(this, "EHectareas", hectareas, QStringLiteral("Hectáreas"));
    EAreas = cifra(this, "EAreas", areas, QStringLiteral("Áreas"));
    ECentiAreas = cifra(this, "ECentiAreas", centiareas, QStringLiteral("Centiáreas"));
    BBCalcula = boton(this, "BBCalcula", QStringLiteral("="));
    BBCalcula->setToolTip(QStringLiteral("Calcular los metros cuadrados"));
    BBCalcula->setFixedWidth(BBCalcula->fontMetrics().horizontalAdvance(QStringLiteral("===")) + 24);
    EMetros = new QLineEdit(this);
    EMetros->setObjectName(QStringLiteral("EMetros"));
    EMetros->setReadOnly(true);
    EMetros->setAlignment(Qt::AlignRight);
    EMetros->setMinimumWidth(EMetros->fontMetrics().horizontalAdvance(QStringLiteral("-000.000.000.000")) +
                             16);
    BBAceptar = boton(this, "BBAceptar", QStringLiteral("&Aceptar"));
    BBCancelar = boton(this, "BBCancelar", QStringLiteral("Cancelar"));

    auto* fila = new QHBoxLayout;
    const std::pair<const char*, QLineEdit*> campos[] = {
        {"Ha:", EHectareas}, {"a:", EAreas}, {"ca:", ECentiAreas}};
    for (const auto& [texto, edit] : campos) {
        auto* l = new QLabel(QString::fromUtf8(texto), this);
        l->setBuddy(edit);
        fila->addWidget(l);
        fila->addWidget(edit);
    }
    fila->addWidget(BBCalcula);
    fila->addWidget(EMetros);
    auto* m2 = new QLabel(QStringLiteral("m2"), this);
    m2->setBuddy(EMetros);
    fila->addWidget(m2);

    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(BBAceptar);
    botones->addWidget(BBCancelar);

    auto* capa = new QVBoxLayout(this);
    capa->addWidget(new QLabel(QStringLiteral("Rellene las Hectáreas, Áreas y Centiáreas:"), this));
    capa->addLayout(fila);
    capa->addLayout(botones);
    capa->setSizeConstraint(QLayout::SetFixedSize);

    connect(BBCalcula, &QPushButton::clicked, this, &TFCalculaMetrosCuadrados::BBCalculaClick);
    connect(BBAceptar, &QPushButton::clicked, this, &TFCalculaMetrosCuadrados::BBAceptarClick);
    connect(BBCancelar, &QPushButton::clicked, this, &TFCalculaMetrosCuadrados::BBCancelarClick);
    AplicaConvencionesDialogo(this, {.marcaFoco = MarcaFoco::Campos});
}

void TFCalculaMetrosCuadrados::BBCalculaClick() {
    MetrosCuadrados =
        MetrosDeHectareas(Cad_Int(EHectareas->text().trimmed()), Cad_Int(EAreas->text().trimmed()),
                          Cad_Int(ECentiAreas->text().trimmed()));
    EMetros->setText(FormateaImporte(MetrosCuadrados, 0));
    focusNextChild();
}

void TFCalculaMetrosCuadrados::BBAceptarClick() {
    Tag = 1;
    done(1);
}

void TFCalculaMetrosCuadrados::BBCancelarClick() {
    Tag = 0;
    done(2);
}

void TFCalculaMetrosCuadrados::reject() {
    BBCancelarClick();
}

} // namespace nod
