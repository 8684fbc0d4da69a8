#include "protocol/masdatosfincasregistrales.h"

#include "companion/codigos.h"
#include "companion/dialogo.h"
#include "companion/filtroteclas.h"
#include "companion/mensajes.h"
#include "protocol/numeros.h"

#include <QCollator>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace nod {

QPointer<TFMasDatosFincasRegistrales> FMasDatosFincasRegistrales;

namespace {

const QString kNoValida = QStringLiteral("Finca Registral no válida");

QPushButton* boton(QWidget* padre, const char* nombre, const QString& texto, const QString& pista) {
    auto* b = new QPushButton(texto, padre);
    b->setObjectName(QLatin1String(nombre));
    b->setToolTip(pista);
    return b;
}

// The accept and cancel buttons of the edit carry a picture only, as on the suite's forms.
QPushButton* botonImagen(QWidget* padre, const char* nombre, QStyle::StandardPixmap imagen,
                         const QString& pista) {
    QPushButton* b = boton(padre, nombre, {}, pista);
    b->setIcon(padre->style()->standardIcon(imagen));
    b->setAccessibleName(pista);
    return b;
}

QLabel* valor(QWidget* padre, const char* nombre) {
    auto* l = new QLabel(padre);
    l->setObjectName(QLatin1String(nombre));
    l->setFrameShape(QFrame::StyledPanel);
    l->setFrameShadow(QFrame::Sunken);
    return l;
}

} // namespace

QStringList TFMasDatosFincasRegistrales::DescodificaFincasRegistrales(const QString& fincas) {
    QStringList lista;
    qsizetype desde = 0;
    for (qsizetype barra; (barra = fincas.indexOf(u'|', desde)) >= 0; desde = barra + 1)
        lista << fincas.mid(desde, barra - desde);
    if (desde < fincas.size()) lista << fincas.mid(desde);
    return lista;
}

QString TFMasDatosFincasRegistrales::CodificaFincasRegistrales(const QStringList& lista) {
    QString fincas;
    for (const QString& finca : lista) {
        if (!fincas.isEmpty()) fincas += u'|';
        fincas += finca;
    }
    return fincas;
}

TFMasDatosFincasRegistrales::TFMasDatosFincasRegistrales(QWidget* owner, double codigo,
                                                         const QString& concepto, const QString& fincas)
    : QDialog(owner)
    , Fincas(fincas.trimmed()) {
    FMasDatosFincasRegistrales = this;
    setObjectName(QStringLiteral("FMasDatosFincasRegistrales"));
    setWindowTitle(QStringLiteral("Información de Fincas Registrales"));

    STNumero = valor(this, "STNumero");
    STAno = valor(this, "STAno");
    LBis = new QLabel(this);
    LBis->setObjectName(QStringLiteral("LBis"));
    STConcepto = valor(this, "STConcepto");
    STConcepto->setWordWrap(true);
    STConcepto->setFixedSize(STConcepto->fontMetrics().averageCharWidth() * 48,
                             STConcepto->fontMetrics().lineSpacing() * 2 + 8);
    int anno = 0, numero = 0;
    DecodeCod(codigo, anno, numero);
    STNumero->setText(QString::number(numero));
    STAno->setText(QString::number(anno));
    LBis->setText(CodToBis(codigo, 0));
    PonTextoAjustado(STConcepto, concepto);

    LBFincasRegistrales = new QListWidget(this);
    LBFincasRegistrales->setObjectName(QStringLiteral("LBFincasRegistrales"));
    LBFincasRegistrales->setSelectionMode(QAbstractItemView::SingleSelection);
    LBFincasRegistrales->setAccessibleName(QStringLiteral("Fincas Registrales"));
    BBAnadir = boton(
        this, "BBAnadir", QStringLiteral("A&ñadir"),
        QStringLiteral("Añade una nueva finca registral al listado, la que esté escrita abajo (Insert)"));
    BBBorrar = boton(this, "BBBorrar", QStringLiteral("B&orrar"),
                     QStringLiteral("Borra la finca registral seleccionada en el listado (Supr)"));
    BBModificar = boton(this, "BBModificar", QStringLiteral("&Modificar"),
                        QStringLiteral("Modifica la finca registral seleccionada en el listado (Espacio)"));
    EFincaRegistral = new QLineEdit(this);
    EFincaRegistral->setObjectName(QStringLiteral("EFincaRegistral"));
    EFincaRegistral->setToolTip(QStringLiteral("Finca registral"));
    // "|" separates the identifiers in the stored string: an identifier cannot hold it.
    InstalaFiltroCaracteres(EFincaRegistral, {[](QChar c) { return c != u'|'; }});
    BBAceptarCambios = botonImagen(this, "BBAceptarCambios", QStyle::SP_DialogApplyButton,
                                   QStringLiteral("Acepta los cambios del actual elemento (Insert)"));
    BBCancelarCambios = botonImagen(this, "BBCancelarCambios", QStyle::SP_DialogCancelButton,
                                    QStringLiteral("Cancela los cambios del actual elemento (Escape)"));
    BBAceptar =
        boton(this, "BBAceptar", QStringLiteral("&Aceptar"), QStringLiteral("Acepta los cambios realizados"));
    BBCancelar = boton(this, "BBCancelar", QStringLiteral("&Cancelar"),
                       QStringLiteral("Rechaza los cambios realizados"));

    auto* datos = new QGridLayout;
    const std::pair<const char*, QWidget*> filas[] = {
        {"Número:", STNumero}, {"Año:", STAno}, {"Concepto:", STConcepto}};
    for (int i = 0; i < 3; ++i) {
        datos->addWidget(new QLabel(QString::fromUtf8(filas[i].first), this), i, 0,
                         Qt::AlignLeft | Qt::AlignTop);
        datos->addWidget(filas[i].second, i, 1, 1, i == 2 ? 2 : 1);
    }
    datos->addWidget(LBis, 0, 2);
    datos->setColumnStretch(2, 1);

    auto* rotuloLista = new QLabel(QStringLiteral("Fincas Registrales"), this);
    rotuloLista->setBuddy(LBFincasRegistrales);
    auto* botonesLista = new QVBoxLayout;
    for (QPushButton* b : {BBAnadir, BBBorrar, BBModificar})
        botonesLista->addWidget(b);
    botonesLista->addStretch();
    auto* lista = new QHBoxLayout;
    lista->addWidget(LBFincasRegistrales, 1);
    lista->addLayout(botonesLista);
    auto* edicion = new QHBoxLayout;
    edicion->addWidget(EFincaRegistral, 1);
    edicion->addWidget(BBAceptarCambios);
    edicion->addWidget(BBCancelarCambios);
    auto* cierre = new QHBoxLayout;
    cierre->addStretch();
    cierre->addWidget(BBAceptar);
    cierre->addWidget(BBCancelar);

    auto* capa = new QVBoxLayout(this);
    capa->addLayout(datos);
    capa->addWidget(rotuloLista);
    capa->addLayout(lista);
    capa->addLayout(edicion);
    capa->addLayout(cierre);

    setTabOrder(LBFincasRegistrales, BBAnadir);
    setTabOrder(BBAnadir, BBBorrar);
    setTabOrder(BBBorrar, BBModificar);
    setTabOrder(BBModificar, EFincaRegistral);
    setTabOrder(EFincaRegistral, BBAceptarCambios);
    setTabOrder(BBAceptarCambios, BBCancelarCambios);
    setTabOrder(BBCancelarCambios, BBAceptar);
    setTabOrder(BBAceptar, BBCancelar);
    for (QWidget* w : findChildren<QWidget*>())
        if (w->focusPolicy() != Qt::NoFocus) w->installEventFilter(this);

    connect(BBAnadir, &QPushButton::clicked, this, &TFMasDatosFincasRegistrales::BBAnadirClick);
    connect(BBBorrar, &QPushButton::clicked, this, &TFMasDatosFincasRegistrales::BBBorrarClick);
    connect(BBModificar, &QPushButton::clicked, this, &TFMasDatosFincasRegistrales::BBModificarClick);
    connect(BBAceptarCambios, &QPushButton::clicked, this,
            &TFMasDatosFincasRegistrales::BBAceptarCambiosClick);
    connect(BBCancelarCambios, &QPushButton::clicked, this,
            &TFMasDatosFincasRegistrales::BBCancelarCambiosClick);
    connect(BBAceptar, &QPushButton::clicked, this, &TFMasDatosFincasRegistrales::BBAceptarClick);
    connect(BBCancelar, &QPushButton::clicked, this, &TFMasDatosFincasRegistrales::BBCancelarClick);

    for (const QString& finca : DescodificaFincasRegistrales(Fincas))
        inserta(finca);
    DesactivaBotonesAceptaCancelaCambios();
    AplicaConvencionesDialogo(this, {.marcaFoco = MarcaFoco::Campos});
    LBFincasRegistrales->setFocus();
}

void TFMasDatosFincasRegistrales::inserta(const QString& finca) {
    static const QCollator orden = [] {
        QCollator c(QLocale(QLocale::Spanish, QLocale::Spain));
        c.setCaseSensitivity(Qt::CaseInsensitive);
        return c;
    }();
    int fila = 0;
    while (fila < LBFincasRegistrales->count() &&
           orden.compare(LBFincasRegistrales->item(fila)->text(), finca) <= 0)
        ++fila;
    LBFincasRegistrales->insertItem(fila, finca);
}

QStringList TFMasDatosFincasRegistrales::Lista() const {
    QStringList lista;
    for (int i = 0; i < LBFincasRegistrales->count(); ++i)
        lista << LBFincasRegistrales->item(i)->text();
    return lista;
}

bool TFMasDatosFincasRegistrales::AnadeFincaRegistral() {
    const QString finca = EFincaRegistral->text().trimmed();
    if (finca.isEmpty()) {
        Mensaje_Info(QStringLiteral("No ha escrito ninguna Finca Registral"), kNoValida);
        return false;
    }
    if (Lista().contains(finca)) {
        Mensaje_Info(QStringLiteral("Ya está insertada esta Finca Registral"), kNoValida);
        return false;
    }
    inserta(finca);
    return true;
}

bool TFMasDatosFincasRegistrales::listaUtil() {
    if (LBFincasRegistrales->count() == 0) {
        Mensaje_Info(QStringLiteral("No hay Fincas Registrales almacenadas"),
                     QStringLiteral("Listado Vacio"));
        return false;
    }
    if (LBFincasRegistrales->selectedItems().isEmpty()) {
        Mensaje_Info(QStringLiteral("No tiene seleccionada ninguna Finca Registral"),
                     QStringLiteral("Selecciones Finca Registral"));
        return false;
    }
    return true;
}

void TFMasDatosFincasRegistrales::BorraFincaRegistral() {
    if (!listaUtil()) return;
    delete LBFincasRegistrales->selectedItems().constFirst();
}

void TFMasDatosFincasRegistrales::ActivaBotonesAceptaCancelaCambios() {
    for (QWidget* w : std::initializer_list<QWidget*>{BBAnadir, BBBorrar, BBModificar, BBAceptar, BBCancelar})
        w->setEnabled(false);
    for (QWidget* w : std::initializer_list<QWidget*>{EFincaRegistral, BBAceptarCambios, BBCancelarCambios})
        w->setEnabled(true);
    EFincaRegistral->setFocus();
}

void TFMasDatosFincasRegistrales::DesactivaBotonesAceptaCancelaCambios() {
    EFincaRegistral->clear();
    for (QWidget* w : std::initializer_list<QWidget*>{EFincaRegistral, BBAceptarCambios, BBCancelarCambios})
        w->setEnabled(false);
    for (QWidget* w : std::initializer_list<QWidget*>{BBAnadir, BBBorrar, BBModificar, BBAceptar, BBCancelar})
        w->setEnabled(true);
}

void TFMasDatosFincasRegistrales::BBAnadirClick() {
    EFincaRegistral->clear();
    ActivaBotonesAceptaCancelaCambios();
}

void TFMasDatosFincasRegistrales::BBBorrarClick() {
    BorraFincaRegistral();
}

void TFMasDatosFincasRegistrales::BBModificarClick() {
    if (!listaUtil()) return;
    QListWidgetItem* elegida = LBFincasRegistrales->selectedItems().constFirst();
    const QString finca = elegida->text();
    delete elegida;
    ActivaBotonesAceptaCancelaCambios();
    EFincaRegistral->setText(finca);
}

void TFMasDatosFincasRegistrales::BBAceptarCambiosClick() {
    if (!AnadeFincaRegistral()) return;
    DesactivaBotonesAceptaCancelaCambios();
    LBFincasRegistrales->setFocus();
}

void TFMasDatosFincasRegistrales::BBCancelarCambiosClick() {
    DesactivaBotonesAceptaCancelaCambios();
    LBFincasRegistrales->setFocus();
}

void TFMasDatosFincasRegistrales::BBAceptarClick() {
    Fincas = CodificaFincasRegistrales(Lista());
    done(1);
}

void TFMasDatosFincasRegistrales::BBCancelarClick() {
    done(2);
}

void TFMasDatosFincasRegistrales::reject() {
    BBCancelarClick();
}

bool TFMasDatosFincasRegistrales::FormKeyDown(QKeyEvent* tecla) {
    if (tecla->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    // A button of the key table answers only while it is enabled: the state decides.
    const auto pulsa = [](QPushButton* b) {
        if (!b->isEnabled()) return false;
        b->click();
        return true;
    };
    switch (tecla->key()) {
    case Qt::Key_Insert:
        return pulsa(BBAnadir) || pulsa(BBAceptarCambios);
    case Qt::Key_Delete:
        return pulsa(BBBorrar);
    case Qt::Key_Space:
        return pulsa(BBModificar);
    case Qt::Key_Escape:
        if (!pulsa(BBCancelarCambios)) BBCancelarClick();
        return true;
    default:
        return false;
    }
}

bool TFMasDatosFincasRegistrales::eventFilter(QObject* objeto, QEvent* e) {
    if (e->type() == QEvent::KeyPress && FormKeyDown(static_cast<QKeyEvent*>(e))) return true;
    return QDialog::eventFilter(objeto, e);
}

} // namespace nod
