#include "protocol/conversormoneda.h"

#include "companion/dialogo.h"
#include "companion/editimporte.h"
#include "companion/filtroteclas.h"
#include "companion/rnumcad.h"
#include "text/moneda.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTableWidget>
#include <QVBoxLayout>

namespace nod {

QPointer<TFConversorMoneda> FConversorMoneda;

namespace {

struct Tabla {
    const char* nombre;
    const char *titulo1, *titulo2;
    const char* filas; // "left=right" pairs separated by "; "
};

// The printed conversion card, as it reads.
constexpr Tabla kTablas[] = {
    {"ValueListEditor2", "Pesetas", "Euros",
     "1=0,01; 5=0,03; 10=0,06; 25=0,15; 50=0,30; 75=0,45; 100=0,60; 150=0,90; 200=1,20; 250=1,50; 500=3,01"},
    {"ValueListEditor4", "Pesetas", "Euros",
     "1.000=6,01; 2.000=12,02; 5.000=30,05; 10.000=60,10; 20.000=120,20; 50.000=300,51; 100.000=601,01; "
     "200.000=1.202,02; 250.000=1.502,53; 500.000=3.005,06; 1.000.000=6.010,12"},
    {"ValueListEditor1", "Euros", "Pesetas",
     "0,01=2; 0,02=3; 0,05=8; 0,10=17; 0,20=33; 0,50=83; 1,00=166; 1,25=208; 1,50=250; 1,75=291; 2,00=333"},
    {"ValueListEditor3", "Euros", "Pesetas",
     "3,00=499; 4,00=666; 5,00=832; 10,00=1.664; 20,00=3.328; 50,00=8.319; 100,00=16.636; 200,00=33.277; "
     "500,00=83.193; 1.000,00=166.386; 5.000,00=831.930"},
};

class PintaTabla : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* opcion, const QModelIndex& celda) const override {
        QStyledItemDelegate::initStyleOption(opcion, celda);
        TFConversorMoneda::ValueListEditor1DrawCell(*opcion, celda);
    }
};

QTableWidget* tabla(QWidget* padre, const Tabla& t) {
    const QStringList filas = QString::fromUtf8(t.filas).split(QStringLiteral("; "));
    auto* g = new QTableWidget(int(filas.size()), 2, padre);
    g->setObjectName(QLatin1String(t.nombre));
    g->setHorizontalHeaderLabels({QString::fromUtf8(t.titulo1), QString::fromUtf8(t.titulo2)});
    g->setAccessibleName(
        QStringLiteral("%1 en %2").arg(QString::fromUtf8(t.titulo1), QString::fromUtf8(t.titulo2)));
    g->verticalHeader()->hide();
    g->setEditTriggers(QAbstractItemView::NoEditTriggers);
    g->setSelectionMode(QAbstractItemView::NoSelection);
    g->setItemDelegate(new PintaTabla(g));
    for (int r = 0; r < filas.size(); ++r) {
        const QStringList par = filas[r].split(u'=');
        for (int c = 0; c < 2; ++c) {
            auto* celda = new QTableWidgetItem(par.value(c));
            celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            g->setItem(r, c, celda);
        }
    }
    g->setWordWrap(false);
    g->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    g->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    g->verticalHeader()->setDefaultSectionSize(g->fontMetrics().height() + 6);
    g->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    g->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The whole table in view, without scrolling.
    int alto = g->horizontalHeader()->height() + 2 * g->frameWidth();
    for (int r = 0; r < g->rowCount(); ++r)
        alto += g->rowHeight(r);
    g->setFixedHeight(alto);
    g->setMinimumWidth(g->fontMetrics().horizontalAdvance(QStringLiteral("1.000.000 6.010,12")) + 48);
    return g;
}

QLineEdit* importe(QWidget* padre, const char* nombre, const QString& pista) {
    auto* e = new QLineEdit(padre);
    e->setObjectName(QLatin1String(nombre));
    e->setToolTip(pista);
    e->setAlignment(Qt::AlignRight);
    e->setFixedWidth(e->fontMetrics().horizontalAdvance(QStringLiteral("000.000.000.000,00")) + 16);
    // Typed keys: digits and "," only (`SoloDigitos`). The field itself also holds the thousands points of
    // the converted amount the form writes, so what arrives without a key may carry them.
    InstalaFiltroCaracteres(e, {[](QChar c) { return c == u',' || EsUnNumero(c); }});
    e->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9.,]*")), e));
    return e;
}

} // namespace

TFConversorMoneda::TFConversorMoneda(QWidget* owner)
    : QDialog(owner) {
    FConversorMoneda = this;
    setObjectName(QStringLiteral("FConversorMoneda"));
    setWindowTitle(QStringLiteral("Calculadora de euros-pesetas"));

    ePesetas = importe(this, "ePesetas", QStringLiteral("Importe en pesetas, sin decimales"));
    eEuros = importe(this, "eEuros", QStringLiteral("Importe en euros"));
    btnConvertir = new QPushButton(QStringLiteral("&Convertir"), this);
    btnConvertir->setObjectName(QStringLiteral("btnConvertir"));
    BtnSalir = new QPushButton(QStringLiteral("&Salir"), this);
    BtnSalir->setObjectName(QStringLiteral("BtnSalir"));

    auto* lPesetas = new QLabel(QStringLiteral("Pesetas"), this);
    lPesetas->setBuddy(ePesetas);
    auto* lEuros = new QLabel(QStringLiteral("Euros"), this);
    lEuros->setBuddy(eEuros);
    auto* campos = new QHBoxLayout;
    campos->addWidget(lPesetas);
    campos->addWidget(ePesetas);
    campos->addWidget(new QLabel(QStringLiteral("="), this));
    campos->addWidget(lEuros);
    campos->addWidget(eEuros);
    campos->addWidget(btnConvertir);
    campos->addStretch();

    // Pesetas to euros above, euros to pesetas below: the card fits a small screen.
    auto* tablas = new QGridLayout;
    QTableWidget** destinos[] = {&ValueListEditor2, &ValueListEditor4, &ValueListEditor1, &ValueListEditor3};
    for (int i = 0; i < 4; ++i) {
        *destinos[i] = tabla(this, kTablas[i]);
        tablas->addWidget(*destinos[i], i / 2, i % 2, Qt::AlignTop);
    }

    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(BtnSalir);

    auto* capa = new QVBoxLayout(this);
    capa->addLayout(campos);
    capa->addLayout(tablas);
    capa->addLayout(botones);
    capa->setSizeConstraint(QLayout::SetFixedSize);

    setTabOrder(ePesetas, eEuros);
    setTabOrder(eEuros, btnConvertir);
    setTabOrder(btnConvertir, BtnSalir);
    connect(btnConvertir, &QPushButton::clicked, this, &TFConversorMoneda::btnConvertirClick);
    connect(BtnSalir, &QPushButton::clicked, this, &TFConversorMoneda::BtnSalirClick);
    AplicaConvencionesDialogo(this, {.marcaFoco = MarcaFoco::Campos});
    ePesetas->setFocus();
}

void TFConversorMoneda::btnConvertirClick() {
    const int pesetas = Cad_Int(ePesetas->text());
    const double euros = RedondeaDec(Cad_Float(eEuros->text()), 2);
    if (pesetas == 0 && euros > 0.001)
        ePesetas->setText(FormateaImporte(double(EurosPesetasNod(euros)), 0));
    else if (euros < 0.001 && pesetas != 0)
        eEuros->setText(FormateaImporte(PesetasEurosNod(qint64(pesetas), 2), 2));
}

void TFConversorMoneda::BtnSalirClick() {
    reject();
}

void TFConversorMoneda::ValueListEditor1DrawCell(QStyleOptionViewItem& opcion, const QModelIndex& celda) {
    const QPalette& p = opcion.palette;
    if (celda.column() == 0) {
        // A light tint of the highlight colour over the base, readable in light and dark palettes.
        const QColor base = p.color(QPalette::Base), resalte = p.color(QPalette::Highlight);
        const auto mezcla = [](int a, int b) { return (a * 4 + b) / 5; };
        opcion.backgroundBrush =
            QColor(mezcla(base.red(), resalte.red()), mezcla(base.green(), resalte.green()),
                   mezcla(base.blue(), resalte.blue()));
        opcion.font.setBold(true);
    } else if (celda.row() % 2 == 1) {
        opcion.backgroundBrush = p.alternateBase();
    }
}

} // namespace nod
