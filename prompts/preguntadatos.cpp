#include "prompts/preguntadatos.h"

#include "companion/config.h"
#include "companion/dialogo.h"
#include "companion/editimporte.h"
#include "companion/editmayusculas.h"
#include "companion/fechas.h"
#include "companion/foco.h"
#include "companion/hoy.h"
#include "companion/registro.h"
#include "companion/rnumcad.h"
#include "frame/colores.h"
#include "frame/notarios.h"
#include "ident/editrefcatastral.h"
#include "prompts/preguntacomun_p.h"
#include "prompts/preguntadatos_p.h"
#include "protocol/iva.h"
#include "tables/tablas.h"
#include "text/moneda.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QSpinBox>
#include <span>

namespace nod {

QPointer<TFPreguntaDatos> FPreguntaDatos;

const QString TFPreguntaDatos::kCaptionDiseno =
    QStringLiteral("<<< Este caption se rellenara con el Hint del groupbox activo >>>");

namespace {

// The form's size when no panel is shown, and the margins of the placement rule.
constexpr int kAnchoDiseno = 420;
constexpr int kAltoDiseno = 120;
constexpr int kMargen = 8;

} // namespace

/// One row of the kinds table: the kind, the builder of its panel and, for kinds that share a panel
/// with another, the caption they give it instead of the panel's own hint.
struct TFPreguntaDatos::Panel {
    const char16_t* tipo;
    QWidget* (TFPreguntaDatos::*construye)();
    const char16_t* caption = nullptr;
};

std::span<const TFPreguntaDatos::Panel> TFPreguntaDatos::paneles() {
    using F = TFPreguntaDatos;
    static const Panel tabla[] = {
        {u"Año", &F::construyeAno},
        {u"AñoSerie", &F::construyeSeriesAno},
        {u"BalanMensaEspecial", &F::construyeBalanMensaEspecial},
        {u"BalanMensualCobro", &F::construyeBalanMensaEspecial},
        {u"Cantidad", &F::construyeCantidad},
        {u"CantidadMaxMin", &F::construyeCantidad},
        {u"CheckBox", &F::construyeCheckBox},
        {u"CorredorEstadistica", &F::construyeCorredorEstadistica},
        {u"DesdeDia", &F::construyeDesdeDia},
        {u"FechaDesdeHasta", &F::construyeFechaDesdeHasta},
        {u"FechaDesdeHastaCuando", &F::construyeFechaDesdeHastaCuando},
        {u"FechaDesdeHastaFactura", &F::construyeFechaDesdeHasta2,
         u"Indique un intervalo de fechas y tipo factura"},
        {u"FechaDesdeHastaCorretaje", &F::construyeFechaDesdeHasta2,
         u"Indique un intervalo de fechas y tipo de listado"},
        {u"ImpresionTestamentos", &F::construyeImpresionTestamentos},
        {u"RangoNumeros", &F::construyeImpresionTestamentos},
        {u"FoliosMatriz", &F::construyeFoliosMatriz},
        {u"Garajes", &F::construyeGarajes},
        {u"MesAño", &F::construyeMesAno},
        {u"MesAñoSerie", &F::construyeMesAnoSerie},
        {u"TrimestreAño", &F::construyeTrimestreAno},
        {u"TrimestralSinNif", &F::construyeTrimestralSinNif},
        {u"SemestreAño", &F::construyeSemestreAno},
        {u"Notario", &F::construyeNotario},
        {u"ProfesionJuridica", &F::construyeNotario},
        {u"NumeroAño", &F::construyeNumeroAno},
        {u"NumeroFactura", &F::construyeNumeroFactura},
        {u"NumeroFecha", &F::construyeNumeroFecha},
        {u"NumeroMinuta", &F::construyeNumeroMinuta},
        {u"NumeroMinuta2", &F::construyeNumeroMinuta},
        {u"ModeloCarta", &F::construyeModeloCarta},
        {u"ModeloIndicSociedades", &F::construyeModeloIndicSociedades},
        {u"Moneda", &F::construyeMoneda},
        {u"Oficial", &F::construyeOficial},
        {u"SerieCliente", &F::construyeSeriesCliente},
        {u"SerieGastos", &F::construyeSeriesGastos},
        {u"XDias", &F::construyeXDias},
        {u"Renumerar", &F::construyeRenumerar},
        {u"LimiteIndubitadas", &F::construyeLimiteIndubitadas},
        {u"TurnoPolizas", &F::construyeTurnoPolizas},
        {u"ReferenciaBancaria", &F::construyeReferenciaBancaria},
        {u"ReferenciaCatastral", &F::construyeReferenciaCatastral},
        {u"CriterioCajaFactura", &F::construyeCriterioCajaFactura},
        {u"PideNumeroFactura", &F::construyePideNumeroFactura},
        {u"PideTipoFactura", &F::construyePideTipoFactura},
        {u"SexoClientes", &F::construyeSexoClientes},
        {u"Porcentaje", &F::construyePorcentaje},
        {u"ReparacionClientes", &F::construyeReparacionClientes},
        {u"Corretaje", &F::construyeCantidad, u"Modificación del corretaje del concepto."},
        {u"Cuantia", &F::construyeCantidad, u"Introducción de la cuantía del concepto."},
        {u"CuantiaOtorgante", &F::construyeCantidad, u"Cuantía del otorgante."},
        {u"NumCopiasPlusvalia", &F::construyeCantidad, u"Indique el número de copias que desea"},
        {u"Texto", &F::construyeTexto, u"Indique un texto"},
    };
    return tabla;
}

const TFPreguntaDatos::Panel* TFPreguntaDatos::buscaPanel(const QString& tipo) {
    for (const Panel& p : paneles())
        if (tipo == QStringView(p.tipo)) return &p;
    return nullptr;
}

QStringList TFPreguntaDatos::Tipos() {
    QStringList l;
    for (const Panel& p : paneles())
        l << QString::fromUtf16(p.tipo);
    return l;
}

TFPreguntaDatos::TFPreguntaDatos(QWidget* owner, const QString& tipo)
    // A form that is not on screen cannot hold the prompt: the form is then centred on the screen.
    : QDialog(owner && owner->window()->isVisible() ? owner->window() : nullptr)
    , m_tipo(tipo) {
    setObjectName(QStringLiteral("FPreguntaDatos"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint);
    setFont(QFont(QStringLiteral("Arial"), 8));
    setWindowTitle(kCaptionDiseno);

    btnAceptar = new QPushButton(QStringLiteral("&Aceptar"), this);
    btnAceptar->setObjectName(QStringLiteral("btnAceptar"));
    btnCANCELAR = new QPushButton(QStringLiteral("Sa&lir"), this);
    btnCANCELAR->setObjectName(QStringLiteral("btnCANCELAR"));
    for (QPushButton* b : {btnAceptar, btnCANCELAR})
        b->setAutoDefault(false); // Enter moves to the next control, also from a button
    connect(btnAceptar, &QPushButton::clicked, this, &TFPreguntaDatos::btnAceptarClick);
    connect(btnCANCELAR, &QPushButton::clicked, this, &TFPreguntaDatos::reject);

    ActivaPanel();
    Configura();
    // Enter moves on (from the buttons too), Escape gives 2, labels plain, the focused field marked.
    AplicaConvencionesDialogo(this, {.marcaFoco = MarcaFoco::Campos});
}

TFPreguntaDatos::~TFPreguntaDatos() {
    // Focus moves while the controls are destroyed; the form no longer answers it.
    disconnect(m_salidaGrupo);
}

void TFPreguntaDatos::ActivaPanel() {
    const Panel* p = buscaPanel(m_tipo);
    if (!p) {
        m_panelActivo = nullptr;
        AjustaTamano();
        return;
    }
    m_panelActivo = (this->*p->construye)();
    if (p->caption) m_panelActivo->setProperty(pregunta::kHint, QString::fromUtf16(p->caption));
    if (m_panelActivo == pnlCantidad && p->caption) FECantidad->PonValor(0);
    if (m_tipo == u"FechaDesdeHastaFactura") gbTiposFactura->show();
    if (m_tipo == u"FechaDesdeHastaCorretaje") gbCorretaje->show();

    vigila(m_panelActivo);
    if (gbBalanMensualCobroMes)
        m_salidaGrupo =
            connect(qApp, &QApplication::focusChanged, this, [this](QWidget* antes, QWidget* ahora) {
                if (gbBalanMensualCobroMes->isAncestorOf(antes) &&
                    !gbBalanMensualCobroMes->isAncestorOf(ahora))
                    gbBalanMensualCobroMesExit();
            });
    m_panelActivo->show();
    setWindowTitle(m_panelActivo->property(pregunta::kHint).toString());
    AjustaTamano();
}

void TFPreguntaDatos::AjustaTamano() {
    const int anchoBoton = std::max({75, btnAceptar->sizeHint().width(), btnCANCELAR->sizeHint().width()});
    const int altoBoton = std::max(25, btnAceptar->sizeHint().height());
    btnAceptar->resize(anchoBoton, altoBoton);
    btnCANCELAR->resize(anchoBoton, altoBoton);
    if (!m_panelActivo) {
        setFixedSize(kAnchoDiseno, kAltoDiseno);
        colocaBotones(kAnchoDiseno, kAltoDiseno);
        return;
    }
    QWidget* p = m_panelActivo;
    p->setMinimumWidth(2 * anchoBoton + kMargen);
    p->adjustSize();
    p->move(kMargen, kMargen);
    // Every group laid out now, not on the next turn of the event loop: the form is read and answered
    // as soon as it is shown.
    for (QLayout* capa : p->findChildren<QLayout*>())
        capa->activate();
    const int alto = p->y() + 16 + p->height() + 7 + altoBoton + p->y() + 7;
    const int ancho = p->width() + 2 * p->x() + 7;
    setFixedSize(ancho, alto);
    colocaBotones(ancho, alto);
}

void TFPreguntaDatos::colocaBotones(int ancho, int alto) {
    // Under the panel, right-aligned with it, in the middle of the band the size rule leaves below it.
    const int w = btnAceptar->width();
    const int h = btnAceptar->height();
    const int derecha = ancho - kMargen - 7;
    const int y = alto - h - (alto - kMargen - (m_panelActivo ? m_panelActivo->height() : 0) - h) / 2;
    btnCANCELAR->move(derecha - w, m_panelActivo ? y : alto - h - kMargen - 7);
    btnAceptar->move(derecha - 2 * w - kMargen, btnCANCELAR->y());
}

namespace {

// A control the clerk moves to: not a label, not the inner edit of a spin edit or a list (their owner
// takes the focus for them).
bool esControl(const QWidget* w) {
    return !w->isWindow() && w->focusPolicy() != Qt::NoFocus && !w->focusProxy() &&
           !qobject_cast<const QAbstractSpinBox*>(w->parent()) &&
           !qobject_cast<const QComboBox*>(w->parent());
}

} // namespace

void TFPreguntaDatos::vigila(QWidget* panel) {
    // The form sees every key and focus change of its controls first, as the suite's key preview did.
    QWidget* ultimo = nullptr;
    for (QWidget* w : panel->findChildren<QWidget*>()) {
        if (!esControl(w) || w->window() != this) continue; // not the calendars and lists that pop up
        w->installEventFilter(this);
        ultimo = w;
    }
    // The panel's controls come before the buttons in the focus chain.
    if (ultimo) setTabOrder(ultimo, btnAceptar);
    setTabOrder(btnAceptar, btnCANCELAR);
}

// ---------------------------------------------------------------------------------------------------
// Initial values

namespace {

// The month and year of today shifted back by `meses`.
QDate hoyMenos(int meses) {
    return TDateTimeToQDate(Date()).addMonths(-meses);
}

void ponMesAno(QComboBox* mes, QSpinBox* ano, QDate d) {
    mes->setCurrentIndex(d.month() - 1);
    ano->setValue(d.year());
}

} // namespace

void TFPreguntaDatos::Configura() {
    const int anoActual = Ano(Date());
    const QString& t = m_tipo;
    const QDate mesAnterior = hoyMenos(1);
    if (t == u"BalanMensaEspecial") {
        lblIVA2->setText(QStringLiteral("Tipo de ") + NombreImpuestoIndirecto() + QLatin1Char(':'));
        // eIVA2KeyPress: figures and one decimal mark, two figures and two decimals at most; eIVA2KeyUp:
        // the keypad's point is the decimal comma.
        InstalaFiltroCaracteres(eIVA2, {[](QChar c) { return EsUnNumero(c) || c == u',' || c == u'.'; }});
        eIVA2->setValidator(new QRegularExpressionValidator(
            QRegularExpression(QStringLiteral("[0-9]{0,2}([.,][0-9]{0,2})?")), eIVA2));
        connect(eIVA2, &QLineEdit::textEdited, this, [this](const QString& texto) {
            if (texto.contains(QLatin1Char('.')))
                eIVA2->setText(QString(texto).replace(QLatin1Char('.'), QLatin1Char(',')));
        });
        eIVA2->setText(
            QString::number(Config.GetTipoIva(), 'f', 2).replace(QLatin1Char('.'), QLatin1Char(',')));
    } else if (t == u"BalanMensualCobro") {
        for (QWidget* w :
             std::initializer_list<QWidget*>{lblAno3, seAno3, lblIVA2, eIVA2, lblPorcentaje2, gbPorFecha})
            w->hide();
        for (QWidget* w : std::initializer_list<QWidget*>{seAno3, eIVA2, gbPorFecha})
            w->setEnabled(false);
        for (QGroupBox* g : {gbBalanMensualCobroMes, gbEscriturasDevengadas}) {
            g->show();
            g->setEnabled(true);
        }
        ponMesAno(cbMes16, seAno16, mesAnterior);
        cbTodas16->setChecked(true);
        pregunta::PonFecha(dtpDesde16, Date());
        pregunta::PonFecha(dtpHasta16, Date());
    } else if (t == u"CantidadMaxMin") {
        lblCantidadMaxima->show();
        FECantidadMaxima->show();
    } else if (t == u"CorredorEstadistica") {
        ponMesAno(cbMes11, seAno11, mesAnterior);
    } else if (t == u"DesdeDia") {
        pregunta::PonFecha(dtpDesdeFecha, Date());
    } else if (t == u"FechaDesdeHasta") {
        pregunta::PonFecha(dtpDesde, Now());
        pregunta::PonFecha(dtpHasta, Now());
    } else if (t == u"FechaDesdeHastaCuando") {
        for (QDateTimeEdit* d : {dtpDesde2, dtpHasta2, dtpCuando})
            pregunta::PonFecha(d, Date());
    } else if (t == u"FechaDesdeHastaFactura" || t == u"FechaDesdeHastaCorretaje") {
        pregunta::PonFecha(dtpDesde3, Date());
        pregunta::PonFecha(dtpHasta3, Date());
    } else if (t == u"ImpresionTestamentos" || t == u"RangoNumeros") {
        seAno15->setValue(anoActual);
        if (t == u"RangoNumeros")
            for (QWidget* w :
                 std::initializer_list<QWidget*>{rbTodosTestamentos, rbUnoAUno, lblNotaTodos, lblNotaUnoAUno})
                w->hide();
    } else if (t == u"Garajes") {
        // The two lower prices are deliberate: storage rooms and annexes count 1.000 pesetas.
        lblPrecioGarajes->setText(QStringLiteral("a %1 Euros (1.500 pts.):").arg(PesetasEurosNod(1500)));
        const QString mil = QStringLiteral("a %1 Euros (1.000 pts.):").arg(PesetasEurosNod(1000));
        lblPrecioTrasteros->setText(mil);
        lblPrecioAnejos->setText(mil);
    } else if (t == u"MesAño") {
        ponMesAno(cbMes, seAno4, mesAnterior);
    } else if (t == u"MesAñoSerie") {
        ponMesAno(cbMes14, seAno14, mesAnterior);
    } else if (t == u"TrimestreAño" || t == u"TrimestralSinNif" || t == u"SemestreAño") {
        // In January the last quarter of the year before is proposed: the shifted date gives both.
        const bool semestre = t == u"SemestreAño";
        const QDate d = hoyMenos(semestre ? 6 : 3);
        QComboBox* lista = semestre ? cbSemestre : t == u"TrimestreAño" ? cbTrimestre : cbTrimestre2;
        lista->setCurrentIndex((d.month() - 1) / (semestre ? 6 : 3));
        (semestre ? seAno6 : t == u"TrimestreAño" ? seAno5 : seAno12)->setValue(d.year());
        if (t == u"TrimestralSinNif") {
            rbModeloApaisado->setChecked(true);
            CBExclusion->setChecked(true);
            CBExclusionClick();
            ELetraNIF->clear();
        }
    } else if (t == u"Notario") {
        // Each notary by name, read from a copy of the configuration so that the program's selected
        // notary (and what it changed in memory) stays as it is.
        TConfig otro = Config;
        for (int n = 1; n <= NumeroDeNotarios(); ++n) {
            otro.SetsNotario(QString::number(n));
            const QString nombre = otro.GetNombreNotario().trimmed();
            cbNotario->addItem(nombre.isEmpty() ? QStringLiteral("Notario %1").arg(n) : nombre);
        }
        cbNotario->setCurrentIndex(-1);
    } else if (t == u"ProfesionJuridica") {
        m_panelActivo->setProperty(pregunta::kHint, QStringLiteral("Profesión jurídica"));
        setWindowTitle(QStringLiteral("Profesión jurídica"));
        lblNotario->setText(QStringLiteral("Profesión jurídica:"));
        cbNotario->addItems({QStringLiteral("Procurador"), QStringLiteral("Abogado"),
                             QStringLiteral("Graduado social"), QStringLiteral("Otro")});
        cbNotario->setEditable(false);
        cbNotario->setCurrentIndex(-1);
    } else if (t == u"NumeroAño") {
        seAno7->setValue(anoActual);
    } else if (t == u"NumeroFactura") {
        EscribeEnMayusculas(ENOTARIOSERIE);
        InstalaFiltroCaracteres(ENUMEROBIS, {[](QChar c) { return c.isLetter(); }, true});
        // Year and number in figures, then the bis letter; or the ten characters of a full number.
        EANONUMEROBIS->setValidator(new QRegularExpressionValidator(
            QRegularExpression(QStringLiteral("[0-9]{0,10}|[0-9]{0,9}[A-Za-z]")), EANONUMEROBIS));
    } else if (t == u"NumeroFecha") {
        pregunta::PonFecha(tdpFecha, Date());
    } else if (t == u"NumeroMinuta" || t == u"NumeroMinuta2") {
        if (t == u"NumeroMinuta2") {
            seNumero9->setMinimum(-1);
            lblNotaMinuta->show();
        }
        seNumero9->setValue(1);
        seAno9->setValue(anoActual);
    } else if (t == u"ModeloCarta") {
        QRadioButton* tonos[] = {rbBlando, rbMedio, rbDuro};
        const int tono = Config.GetnTonoCarta();
        if (tono >= 0 && tono <= 2) tonos[tono]->setChecked(true);
    } else if (t == u"ModeloIndicSociedades") {
        ponMesAno(cbMes2, seAno8, mesAnterior);
    } else if (t == u"Oficial") {
        // Every official of the staff table, in table order; an unreadable table leaves the list empty.
        if (auto tb = CreaTablaSinExcepcion(Config.GetAliasNodrim(), QStringLiteral("EMPLEADO.DBF"))) {
            if (tb->TieneCampo(QStringLiteral("NOMBRE"))) {
                const int nombre = tb->IndiceCampo(QStringLiteral("NOMBRE"));
                for (tb->First(); !tb->Eof(); tb->Next())
                    CBOficial->addItem(tb->AsString(nombre).trimmed());
            }
        }
        CBOficial->setCurrentIndex(-1);
    } else if (t == u"Renumerar") {
        for (TEditImporte* e : {FEPoliza1, FEPoliza2, FENuevo1, FENuevo2})
            e->PonValor(0);
        seAno10->setValue(anoActual);
    } else if (t == u"LimiteIndubitadas") {
        sePoliza->setValue(0);
        SeAno13->setValue(anoActual);
        seLimite->setValue(600);
    } else if (t == u"TurnoPolizas") {
        seAnoTP->setValue(anoActual);
        CBTrimestreTP->setCurrentIndex(0);
        FECuantiaTP->PonValor(40000);
        FEAportacionTP->PonValor(15);
    } else if (t == u"PideNumeroFactura") {
        proximaFacturaA();
    } else if (t == u"PideTipoFactura") {
        cbsoloIVA->setText(QStringLiteral("Cobradas sólo ") + NombreImpuestoIndirecto());
    } else if (t == u"Corretaje") {
        lblCantidad->setText(QStringLiteral("Corretaje: "));
    } else if (t == u"Cuantia") {
        lblCantidad->setText(QStringLiteral("Cuantía: "));
    } else if (t == u"NumCopiasPlusvalia") {
        lblCantidad->setText(QStringLiteral("Num. Copias"));
        FECantidad->SetDecimales(0); // copies are counted whole
    }
    if (m_panelActivo) AjustaTamano();
}

void TFPreguntaDatos::proximaFacturaA() {
    // The series-A invoice table of the selected notary, on its number order when the office numbers
    // invoices by that criterion. A table that cannot be read or has no last row leaves only "Sa&lir".
    const QString indice = Config.GetCriterioFacturacion() == 2 ? QStringLiteral("FACTURA") : QString();
    bool posicionada = false;
    if (auto tb = CreaTablaSinExcepcion(AliasNotarioActual(), QStringLiteral("FACTURAA.DBF"), indice)) {
        try {
            if (tb->TieneCampo(QStringLiteral("NUMEROFAC")) && BloqueaUltimo(*tb)) {
                ENUMEROFAC->setValue(tb->AsInteger(QStringLiteral("NUMEROFAC")) + 1);
                posicionada = true;
            }
        } catch (const ErrorTabla& e) {
            qCWarning(lcTablas).noquote() << e.mensaje();
        }
    } // the handle closes the table and frees its lock
    if (!posicionada) {
        gbNumeroFac->setEnabled(false);
        btnAceptar->setEnabled(false);
    }
}

// ---------------------------------------------------------------------------------------------------
// Colours

void TFPreguntaDatos::PonColores(TColor arriba, TColor abajo) {
    m_colorArriba = arriba;
    m_colorAbajo = abajo;
    m_conColores = arriba != 0 || abajo != 0;
    update();
}

void TFPreguntaDatos::PonEsquema(int esquema) {
    if (esquema > 0) PonColores(GetMaxColor(esquema), GetMinColor(esquema));
}

void TFPreguntaDatos::paintEvent(QPaintEvent* e) {
    if (m_conColores) {
        QPainter pintor(this);
        QLinearGradient degradado(0, 0, 0, height());
        degradado.setColorAt(0, ColorQt(m_colorArriba));
        degradado.setColorAt(1, ColorQt(m_colorAbajo));
        pintor.fillRect(rect(), degradado);
    }
    QDialog::paintEvent(e);
}

// ---------------------------------------------------------------------------------------------------
// Acceptance

void TFPreguntaDatos::btnAceptarClick() {
    int resultado = 1;
    if (m_tipo == u"NumeroFactura") {
        aceptaNumeroFactura();
    } else if (m_tipo == u"NumeroMinuta") {
        // The check admits 0 although the message names 1: both kept as the suite has them.
        seNumero9->interpretText();
        const int n = seNumero9->value();
        if (n < 0 || n > 99999) {
            Mensaje_Error(QStringLiteral("El número de minuta no es válido (1 - 99.999)"),
                          QStringLiteral("Error"));
            resultado = 2;
        }
    }
    done(resultado);
}

void TFPreguntaDatos::aceptaNumeroFactura() {
    const QString serie = ENOTARIOSERIE->text();
    if (serie.size() == 1) {
        const QString prefijo = Config.GetPrefijoFacturas();
        SerieResultado = (prefijo.isEmpty() ? Config.GetsNotario() : prefijo) + serie;
    } else {
        SerieResultado = serie;
    }
    QString numero = EANONUMEROBIS->text();
    if (numero.size() >= 7) {
        AnoNumeroResultado = numero; // a full number, its bis letter included, is taken as typed
    } else {
        QChar bis = QLatin1Char(' ');
        const QChar ultima = numero.isEmpty() ? QChar() : numero.back().toUpper();
        if (ultima >= QLatin1Char('A') && ultima <= QLatin1Char('Z')) {
            bis = ultima;
            numero.chop(1);
        }
        const int configurado = Config.GetnAnoFacturas();
        const QString ano = QString::number(configurado > 0 ? configurado : Ano(Date()));
        const QString resto = numero.trimmed();
        AnoNumeroResultado =
            ano + (resto.isEmpty() ? QStringLiteral("00000") : resto.rightJustified(5, u'0')) + bis;
    }
    BisResultado = ENUMEROBIS->text();
}

void TFPreguntaDatos::reject() {
    done(2);
}

// ---------------------------------------------------------------------------------------------------
// Handlers

void TFPreguntaDatos::seAnoExit(QWidget* campo) {
    DejaFoco(campo);
    if (auto* s = qobject_cast<QSpinBox*>(campo)) {
        s->interpretText();
        s->setValue(CompletaAnno(QString::number(s->value())).toInt());
    } else if (auto* importe = qobject_cast<TEditImporte*>(campo)) {
        importe->PonValor(CompletaAnno(QString::number(qint64(importe->Valor()))).toInt());
    } else if (auto* e = qobject_cast<QLineEdit*>(campo)) {
        const QString sinPuntos = QString(e->text()).remove(QLatin1Char('.'));
        const QString ano = sinPuntos.isEmpty() ? QString::number(Ano(Date())) : CompletaAnno(sinPuntos);
        e->setText(AgrupaMiles(ano));
    }
}

int TFPreguntaDatos::ItemIndex(const QComboBox* lista) {
    if (!lista->isEditable()) return lista->currentIndex();
    const QString texto = lista->currentText();
    for (int i = 0; i < lista->count(); ++i)
        if (lista->itemText(i) == texto) return i;
    return -1;
}

namespace {

// Shows item `i` of the list, or no item at all when the list has no such item.
void eligeItem(QComboBox* lista, int i) {
    const bool hay = i >= 0 && i < lista->count();
    lista->setCurrentIndex(hay ? i : -1);
    if (lista->isEditable()) lista->setEditText(hay ? lista->itemText(i) : QString());
}

} // namespace

bool TFPreguntaDatos::cbMesKeyPress(QComboBox* lista, QKeyEvent* tecla) {
    const QString texto = tecla->text();
    const QChar c = texto.isEmpty() ? QChar() : texto.front();
    if (c >= QLatin1Char('0') && c <= QLatin1Char('9')) {
        const int d = c.unicode() - '0';
        // "1" then "0", "1" or "2" gives the tenth to twelfth months.
        if (lista->count() > 0 && lista->currentText() == lista->itemText(0) && d <= 2)
            eligeItem(lista, d + 9);
        else if (d >= 1)
            eligeItem(lista, d - 1);
        if (QLineEdit* e = lista->lineEdit()) e->selectAll(); // letters typed next start afresh
        return true;
    }
    const bool borra = tecla->key() == Qt::Key_Backspace;
    const QChar letra = c >= QLatin1Char('a') && c <= QLatin1Char('z') ? c.toUpper() : c;
    QString prefijo;
    if (QLineEdit* e = lista->lineEdit()) {
        // What the clerk has typed is what stands before the cursor (before the completed part).
        const int cursor = e->hasSelectedText() ? e->selectionStart() : e->cursorPosition();
        prefijo = e->text().left(cursor);
    }
    if (borra)
        prefijo.chop(1);
    else
        prefijo += letra;
    if (prefijo.isEmpty()) {
        eligeItem(lista, -1);
        return true;
    }
    for (int i = 0; i < lista->count(); ++i) {
        const QString item = lista->itemText(i);
        if (!item.startsWith(prefijo)) continue;
        eligeItem(lista, i);
        // The cursor after what was typed, the rest of the item selected.
        if (QLineEdit* e = lista->lineEdit())
            e->setSelection(int(item.size()), -int(item.size() - prefijo.size()));
        return true;
    }
    QApplication::beep();
    return true;
}

void TFPreguntaDatos::EDiasChange() {
    static constexpr int kMaximo = 2;
    const QString t = EDias->text();
    if (t.size() > kMaximo) {
        // More than two characters: the change is undone.
        const QSignalBlocker bloqueo(EDias);
        EDias->setText(EDias->property("nodTextoAnterior").toString());
        return;
    }
    EDias->setProperty("nodTextoAnterior", t);
    if (t.size() == kMaximo && EDias->hasFocus()) btnAceptar->setFocus(Qt::TabFocusReason);
}

void TFPreguntaDatos::CBExclusionClick() {
    ELetraNIF->setEnabled(!CBExclusion->isChecked());
}

void TFPreguntaDatos::FENuevo1Change() {
    // The new range keeps the length of the old one.
    FENuevo2->PonValor(FENuevo1->Valor() + (FEPoliza2->Valor() - FEPoliza1->Valor()));
}

void TFPreguntaDatos::seNumero9Exit() {
    seNumero9->interpretText();
    // -1 asks the caller to renumber a group of invoices: the form closes as cancelled, the field
    // holding -1 for the caller to read.
    if (seNumero9->value() == -1) btnCANCELAR->click();
    DejaFoco(seNumero9);
}

void TFPreguntaDatos::gbBalanMensualCobroMesExit() {
    const int mes = ItemIndex(cbMes16) + 1;
    seAno16->interpretText();
    const QDate primero(seAno16->value(), std::max(mes, 1), 1);
    if (mes < 1 || !primero.isValid()) return;
    dtpDesde16->setDate(primero);
    dtpHasta16->setDate(primero.addMonths(1).addDays(-1));
}

void TFPreguntaDatos::CBSexoEnter() {
    TomaFoco(CBSexo);
    CBSexo->showPopup();
}

void TFPreguntaDatos::CBSexoExit() {
    CBSexo->hidePopup();
    DejaFoco(CBSexo);
}

void TFPreguntaDatos::TomaFoco(QWidget* control) {
    TomaFocoControl(control);
}

void TFPreguntaDatos::DejaFoco(QWidget* control) {
    DejaFocoControl(control);
}

// ---------------------------------------------------------------------------------------------------
// Events

namespace {

bool esLista(const QObject* o, const TFPreguntaDatos* f) {
    for (const QComboBox* l : {f->cbMes, f->cbMes2, f->cbMes11, f->cbMes14, f->cbMes16, f->cbTrimestre,
                               f->cbTrimestre2, f->CBTrimestreTP, f->cbSemestre, f->cbNotario, f->CBOficial})
        if (l && o == l) return true;
    return false;
}

} // namespace

bool TFPreguntaDatos::eventFilter(QObject* o, QEvent* e) {
    auto* w = qobject_cast<QWidget*>(o);
    switch (e->type()) {
    case QEvent::KeyPress: {
        // Enter and Escape are the dialog conventions' (AplicaConvencionesDialogo); the lists see the
        // keys Windows delivered to them as characters: Backspace and the keys that type something.
        auto* k = static_cast<QKeyEvent*>(e);
        const bool caracter =
            k->key() == Qt::Key_Backspace || (!TeclaSiemprePasa(k->key()) && !k->text().isEmpty());
        if (caracter && !(k->modifiers() & Qt::AltModifier) && esLista(o, this))
            return cbMesKeyPress(static_cast<QComboBox*>(o), k);
        break;
    }
    case QEvent::FocusIn: {
        // The focus mark itself is the conventions' (MarcaFoco::Campos).
        const auto razon = static_cast<QFocusEvent*>(e)->reason();
        if (w == CBSexo && razon != Qt::PopupFocusReason && razon != Qt::ActiveWindowFocusReason)
            CBSexoEnter();
        break;
    }
    case QEvent::FocusOut: {
        if (w == btnAceptar || w == btnCANCELAR) break;
        const auto razon = static_cast<QFocusEvent*>(e)->reason();
        if (razon == Qt::PopupFocusReason || razon == Qt::ActiveWindowFocusReason) break;
        if (w == CBSexo)
            CBSexoExit();
        else if (w == seNumero9)
            seNumero9Exit();
        else if (w->property(pregunta::kCampoAno).toBool())
            seAnoExit(w);
        break;
    }
    default:
        break;
    }
    return QDialog::eventFilter(o, e);
}

void TFPreguntaDatos::showEvent(QShowEvent* e) {
    AjustaTamano();
    // Centred on a visible owner, else on the screen; never outside the screen.
    QWidget* dueno = parentWidget();
    QScreen* pantalla = dueno ? dueno->screen() : QApplication::primaryScreen();
    const QRect base = dueno ? dueno->frameGeometry() : pantalla ? pantalla->availableGeometry() : rect();
    move(base.center() - QPoint(width() / 2, height() / 2));
    AjustaALaPantalla(this);
    QDialog::showEvent(e);
    // FormCreate: to the front and active. FormShow: the first field's text selected.
    if (QGuiApplication::platformName() != u"offscreen") raise();
    activateWindow();
    if (m_panelActivo) {
        QWidget* primero = nextInFocusChain();
        while (primero != this && !(m_panelActivo->isAncestorOf(primero) && esControl(primero) &&
                                    primero->isVisibleTo(this) && primero->isEnabled()))
            primero = primero->nextInFocusChain();
        // In a group of radio buttons the focus goes to the checked one, as Tab takes it there.
        if (auto* radio = qobject_cast<QRadioButton*>(primero); radio && !radio->isChecked())
            for (QRadioButton* otro :
                 radio->parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly))
                if (otro->isChecked() && otro->isVisibleTo(this)) primero = otro;
        if (primero != this) {
            primero->setFocus(Qt::OtherFocusReason);
            if (auto* s = qobject_cast<QAbstractSpinBox*>(primero)) s->selectAll();
            if (auto* l = qobject_cast<QLineEdit*>(primero)) l->selectAll();
        }
    }
}

} // namespace nod
