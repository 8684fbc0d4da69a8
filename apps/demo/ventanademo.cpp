#include "apps/demo/ventanademo.h"

#include "companion/config.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTime>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace nod::demo {

VentanaDemo::VentanaDemo(CatalogoDemo catalogo, QWidget* parent)
    : QMainWindow(parent)
    , m_catalogo(std::move(catalogo)) {
    setObjectName(QStringLiteral("VentanaDemo"));
    setWindowTitle(QStringLiteral("NodRutinas: diálogos de la librería"));
    resize(900, 520);

    m_arbol = new QTreeWidget;
    m_arbol->setObjectName(QStringLiteral("ArbolDialogos"));
    m_arbol->setHeaderLabels({QStringLiteral("Diálogo"), QStringLiteral("Nombre")});
    m_arbol->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    QHash<QString, QTreeWidgetItem*> familias;
    for (int i = 0; i < m_catalogo.entradas().size(); ++i) {
        const EntradaDemo& e = m_catalogo.entradas()[i];
        QTreeWidgetItem*& familia = familias[e.familia];
        if (!familia) {
            familia = new QTreeWidgetItem(m_arbol, {e.familia});
            familia->setFlags(Qt::ItemIsEnabled);
            familia->setExpanded(true);
        }
        auto* item = new QTreeWidgetItem(familia, {e.titulo, e.nombre});
        item->setData(0, Qt::UserRole, i);
    }
    connect(m_arbol, &QTreeWidget::itemActivated, this, &VentanaDemo::abreSeleccionada);

    auto* abrir = new QPushButton(QStringLiteral("&Abrir"));
    abrir->setObjectName(QStringLiteral("BBAbrir"));
    connect(abrir, &QPushButton::clicked, this, &VentanaDemo::abreSeleccionada);

    m_registro = new QPlainTextEdit;
    m_registro->setObjectName(QStringLiteral("Registro"));
    m_registro->setReadOnly(true);
    m_registro->setPlaceholderText(QStringLiteral("Aquí aparece lo que devuelve cada diálogo."));

    auto* izquierda = new QWidget;
    auto* l = new QVBoxLayout(izquierda);
    l->setContentsMargins(0, 0, 0, 0);
    l->addWidget(m_arbol);
    l->addWidget(abrir, 0, Qt::AlignRight);
    auto* division = new QSplitter;
    division->addWidget(izquierda);
    division->addWidget(m_registro);
    division->setSizes({520, 300});
    setCentralWidget(division);

    QString estado = QStringLiteral("Oficina: %1").arg(Config.CarpetaOficina());
    if (!Config.Avisos().isEmpty())
        estado += QStringLiteral("  (%1 avisos de configuración)").arg(Config.Avisos().size());
    statusBar()->showMessage(estado);
    for (const QString& aviso : Config.Avisos())
        m_registro->appendPlainText(QStringLiteral("Aviso: ") + aviso);
}

QString VentanaDemo::abre(const EntradaDemo& e) {
    const QString r = e.abre(this);
    m_registro->appendPlainText(
        QStringLiteral("%1  %2: %3").arg(QTime::currentTime().toString(), e.titulo, r));
    return r;
}

void VentanaDemo::abreSeleccionada() {
    const QTreeWidgetItem* item = m_arbol->currentItem();
    if (!item || !item->data(0, Qt::UserRole).isValid()) return;
    abre(m_catalogo.entradas()[item->data(0, Qt::UserRole).toInt()]);
}

} // namespace nod::demo
