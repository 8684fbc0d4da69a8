#include "companion/pideclave.h"

#include "companion/dialogo.h"
#include "companion/modal.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace nod {

TFPideClave::TFPideClave(QWidget* owner)
    : QDialog(owner) {
    setObjectName(QStringLiteral("FPideClave"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);

    EClave = new QLineEdit(this);
    EClave->setObjectName(QStringLiteral("EClave"));
    EClave->setEchoMode(QLineEdit::Password);
    EClave->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText);
    EClave->setContextMenuPolicy(Qt::NoContextMenu);
    EClave->setMinimumWidth(EClave->fontMetrics().averageCharWidth() * 28);
    LPregunta = new QLabel(this);
    LPregunta->setObjectName(QStringLiteral("LPregunta"));
    LPregunta->setTextFormat(Qt::PlainText);
    LPregunta->setWordWrap(true);
    LPregunta->setBuddy(EClave);

    BBAceptar = new QPushButton(QStringLiteral("&Aceptar"), this);
    BBAceptar->setObjectName(QStringLiteral("BBAceptar"));
    BBCancelar = new QPushButton(QStringLiteral("&Cancelar"), this);
    BBCancelar->setObjectName(QStringLiteral("BBCancelar"));
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    for (QPushButton* b : {BBAceptar, BBCancelar})
        botones->addWidget(b);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(LPregunta);
    capa->addWidget(EClave);
    capa->addSpacing(6);
    capa->addLayout(botones);
    capa->setSizeConstraint(QLayout::SetFixedSize);

    connect(BBAceptar, &QPushButton::clicked, this, [this] { done(1); });
    connect(BBCancelar, &QPushButton::clicked, this, &TFPideClave::reject);
    EClave->setFocus();
    // Enter moves to the next control, Escape and "&Cancelar" give 2, the field shows it has the focus.
    AplicaConvencionesDialogo(this, {.marcaFoco = MarcaFoco::Campos});
}

bool TFPideClave::Coincide(const QString& esperada) const {
    const QString tecleada = EClave->text();
    // Every character is looked at, whatever the first difference.
    const qsizetype n = std::max(tecleada.size(), esperada.size());
    unsigned diferencia = tecleada.size() == esperada.size() ? 0u : 1u;
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t a = i < tecleada.size() ? tecleada[i].unicode() : 0;
        const char16_t b = i < esperada.size() ? esperada[i].unicode() : 0;
        diferencia |= unsigned(a ^ b);
    }
    return diferencia == 0;
}

bool PideClave(const QString& titulo, const QString& pregunta, const QString& esperada, QWidget* owner) {
    TFPideClave f(owner);
    f.setWindowTitle(titulo);
    f.LPregunta->setText(pregunta);
    const bool aceptada = EjecutaModal(f) == 1;
    const bool correcta = aceptada && f.Coincide(esperada);
    f.EClave->clear();
    return correcta;
}

} // namespace nod
