#include "frame/versionnod.h"

#include "companion/config.h"
#include "companion/dialogo.h"
#include "companion/registro.h"

#include <QCoreApplication>
#include <QDir>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace nod {

QStringList TablasDelAlias(const QString& alias) {
    const QString carpeta = Config.CarpetaAlias(alias);
    if (carpeta.isEmpty()) return {};
    QDir dir(carpeta);
    QStringList tablas = dir.entryList({QStringLiteral("*.dbf")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    return tablas;
}

TFVersionNod::TFVersionNod(QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setObjectName(QStringLiteral("FVersionNod"));
    setWindowTitle(QStringLiteral("Versión de NodRutinas"));
    resize(460, 360);

    auto etiqueta = [this](const char* nombre, const QString& texto) {
        auto* l = new QLabel(texto, this);
        l->setObjectName(QLatin1String(nombre));
        l->setTextInteractionFlags(Qt::TextSelectableByMouse);
        return l;
    };
    auto* datos = new QFormLayout;
    datos->addRow(QStringLiteral("Entorno:"),
                  etiqueta("LEntorno", QStringLiteral("C++20 con Qt %1").arg(QLatin1String(qVersion()))));
    datos->addRow(QStringLiteral("Fecha:"), etiqueta("LFecha", QLatin1String(kFechaCompilacion)));
    datos->addRow(QStringLiteral("Programa:"),
                  etiqueta("LPrograma", QCoreApplication::applicationFilePath()));

    const QString alias = Config.GetAliasNodrim();
    const QStringList tablas = TablasDelAlias(alias);
    m_tablas = new QTableWidget(int(tablas.size()), 1, this);
    m_tablas->setObjectName(QStringLiteral("SGTablas"));
    m_tablas->setHorizontalHeaderLabels({QStringLiteral("Tablas de %1").arg(alias)});
    m_tablas->setAccessibleName(QStringLiteral("Tablas de %1").arg(alias));
    m_tablas->horizontalHeader()->setStretchLastSection(true);
    m_tablas->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (int i = 0; i < tablas.size(); ++i)
        m_tablas->setItem(i, 0, new QTableWidgetItem(tablas[i]));

    auto* l = new QVBoxLayout(this);
    l->addLayout(datos);
    if (Config.CarpetaAlias(alias).isEmpty()) {
        qCWarning(lcFrame).noquote() << "database alias" << alias << "has no folder in CONFIG.INI [ALIAS]";
        auto* aviso =
            etiqueta("LAviso", QStringLiteral("El alias «%1» no tiene carpeta configurada.").arg(alias));
        l->addWidget(aviso);
    }
    l->addWidget(m_tablas, 1);
    auto* aceptar = new QPushButton(QStringLiteral("&Aceptar"), this);
    aceptar->setObjectName(QStringLiteral("BBAceptar"));
    aceptar->setAutoDefault(false);
    connect(aceptar, &QPushButton::clicked, this, &QDialog::accept);
    l->addWidget(aceptar, 0, Qt::AlignRight);
    AplicaConvencionesDialogo(this);
}

} // namespace nod
