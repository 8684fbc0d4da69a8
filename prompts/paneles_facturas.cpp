// Panels of the data prompt for invoicing and listings: balances, invoice numbers and kinds, series,
// currency, amounts and percentages.
#include "companion/editimporte.h"
#include "prompts/preguntadatos.h"
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

namespace nod {

using namespace pregunta;

QWidget* TFPreguntaDatos::construyeSeriesAno() {
    gbSeriesAno = NuevoPanel(this, "gbSeriesAno", QStringLiteral("Indique el año y la serie."),
                             QStringLiteral("AñoSerie"), QStringLiteral(" Serie "));
    seAno2 = Ano(gbSeriesAno, "seAno2", 2000);
    // Alt+A accepts in every prompt, so series A is reached with the arrows or its own click.
    rbSerieA = Radio(gbSeriesAno, "rbSerieA", QStringLiteral("Serie A"), true);
    rbSerieB = Radio(gbSeriesAno, "rbSerieB", QStringLiteral("Serie &B"));
    rbSerieC = Radio(gbSeriesAno, "rbSerieC", QStringLiteral("Serie &C"));
    rbSerieD = Radio(gbSeriesAno, "rbSerieD", QStringLiteral("Serie &D"));
    Filas filas(gbSeriesAno);
    filas.fila(QStringLiteral("Año:"), seAno2);
    filas.juntos({rbSerieA, rbSerieB, rbSerieC, rbSerieD});
    return gbSeriesAno;
}

QWidget* TFPreguntaDatos::construyeBalanMensaEspecial() {
    pnlBalanMensaEspecial =
        NuevoPanel(this, "pnlBalanMensaEspecial", {}, QStringLiteral("BalanMensaEspecial"));
    QWidget* p = pnlBalanMensaEspecial;
    seAno3 = Ano(p, "seAno3", 2000);
    // Two figures and two decimals, kept by the rate's own key rule (Configura), so "21,00" shows whole.
    eIVA2 = Edit(p, "eIVA2", 0);
    eIVA2->setFixedWidth(eIVA2->fontMetrics().horizontalAdvance(QStringLiteral("00,000")) + 12);
    eIVA2->setAlignment(Qt::AlignRight);
    gbBalanMensualCobroMes = Grupo(p, "gbBalanMensualCobroMes", QStringLiteral("Balance de facturas de:"));
    cbMes16 = ListaMeses(gbBalanMensualCobroMes, "cbMes16");
    seAno16 = Ano(gbBalanMensualCobroMes, "seAno16", 2000);
    Filas mes(gbBalanMensualCobroMes);
    mes.fila(QStringLiteral("Mes:"), cbMes16);
    mes.fila(QStringLiteral("Año:"), seAno16);

    gbEscriturasDevengadas =
        Grupo(p, "gbEscriturasDevengadas", QStringLiteral("Escrituras devengadas entre:"));
    dtpDesde16 = Fecha(gbEscriturasDevengadas, "dtpDesde16");
    dtpHasta16 = Fecha(gbEscriturasDevengadas, "dtpHasta16");
    cbTodas16 = Casilla(gbEscriturasDevengadas, "cbTodas16", QStringLiteral("Todas"));
    Filas devengadas(gbEscriturasDevengadas);
    devengadas.fila(QStringLiteral("Desde:"), dtpDesde16);
    devengadas.fila(QStringLiteral("Hasta:"), dtpHasta16);
    devengadas.ocupa(cbTodas16);
    for (QWidget* g :
         {static_cast<QWidget*>(gbBalanMensualCobroMes), static_cast<QWidget*>(gbEscriturasDevengadas)}) {
        g->hide();
        g->setEnabled(false);
    }

    gbPorFecha = Grupo(p, "gbPorFecha", QStringLiteral(" Por fecha de: "));
    rbDevengo = Radio(gbPorFecha, "rbDevengo", QStringLiteral("Devengo"), true);
    rbCobro = Radio(gbPorFecha, "rbCobro", QStringLiteral("Cobro"));
    Filas(gbPorFecha).juntos({rbDevengo, rbCobro});
    cbSuplidos = Casilla(p, "cbSuplidos", QStringLiteral("Incluye suplidos"));

    QGroupBox* series = Grupo(p, "gbSeriesBalance", {});
    cbSerieA3 = Casilla(series, "cbSerieA3", QStringLiteral("Serie A, Escrituras"), true);
    cbSerieB3 = Casilla(series, "cbSerieB3", QStringLiteral("Serie B, Protestos"), true);
    cbSerieC3 = Casilla(series, "cbSerieC3", QStringLiteral("Serie C, Copias, Legitimaciones"), true);
    cbSerieD3 = Casilla(series, "cbSerieD3", QStringLiteral("Serie D, Gestión (opcional)"));
    cbSerieE3 = Casilla(series, "cbSerieE3", QStringLiteral("Serie E, Pólizas (sección A)"), true);
    cbSerieF3 = Casilla(series, "cbSerieF3", QStringLiteral("Serie F, Pólizas (sección B)"), true);
    EnColumna(series, {cbSerieA3, cbSerieB3, cbSerieC3, cbSerieD3, cbSerieE3, cbSerieF3});

    Filas filas(p);
    lblAno3 = filas.fila(QStringLiteral("Año:"), seAno3, {}, "lblAno3");
    lblIVA2 = Etiqueta(p, QStringLiteral("Tipo de IVA:"), eIVA2, "lblIVA2");
    lblPorcentaje2 = Etiqueta(p, QStringLiteral("%"), nullptr, "lblPorcentaje2");
    filas.fila(lblIVA2, eIVA2, lblPorcentaje2);
    filas.ocupa(gbBalanMensualCobroMes);
    filas.ocupa(gbEscriturasDevengadas);
    filas.ocupa(gbPorFecha);
    filas.ocupa(cbSuplidos);
    filas.ocupa(series);
    return p;
}

QWidget* TFPreguntaDatos::construyeNumeroFactura() {
    pnlNumeroFactura = NuevoPanel(this, "pnlNumeroFactura", QStringLiteral("Indique la serie y el  número."),
                                  QStringLiteral("NumeroFactura"));
    QWidget* p = pnlNumeroFactura;
    ENOTARIOSERIE = Edit(p, "ENOTARIOSERIE", 2);
    EANONUMEROBIS = Edit(p, "EANONUMEROBIS", 10);
    ENUMEROBIS = Edit(p, "ENUMEROBIS", 1);
    QGroupBox* formato = Grupo(p, "gbFormatoFactura", QStringLiteral(" Formato de factura "));
    const char* lineas[] = {
        "Formato: notario+serie / año + nº factura + bis factura / bis nº",
        "Ejemplo: 1A / 19998 00010 a / BIS => 1A/199800010a/B",
        "Si solo hay un notario, puede utilizar sólo la letra en la serie",
        "Si la factura es del año actual, no es necesario introducirlo",
        "Ejemplo: A / 23  se interpreta como - A/200900023",
        "Nº Bis lo usaremos en factura es de la serie A:",
        "B => BIS      T => TRIS       C => CUATRIS",
    };
    auto* ayuda = new QVBoxLayout(formato);
    ayuda->setSpacing(2);
    for (const char* linea : lineas)
        ayuda->addWidget(Etiqueta(formato, QString::fromUtf8(linea)));
    Filas filas(p);
    filas.juntos({Etiqueta(p, QStringLiteral("Serie:"), ENOTARIOSERIE), ENOTARIOSERIE,
                  Etiqueta(p, QStringLiteral("Factura:"), EANONUMEROBIS), EANONUMEROBIS,
                  Etiqueta(p, QStringLiteral("Nº Bis:"), ENUMEROBIS), ENUMEROBIS});
    filas.ocupa(formato);
    return p;
}

QWidget* TFPreguntaDatos::construyePideNumeroFactura() {
    PnlPideNumeroFactura =
        NuevoPanel(this, "PnlPideNumeroFactura", QStringLiteral("Indique el número de factura"),
                   QStringLiteral("PideNumeroFactura"));
    gbNumeroFac = Grupo(PnlPideNumeroFactura, "gbNumeroFac", {});
    ENUMEROFAC = Numero(gbNumeroFac, "ENUMEROFAC");
    Filas(gbNumeroFac).fila(QStringLiteral("Número de la factura de la serie A:"), ENUMEROFAC);
    Filas(PnlPideNumeroFactura).ocupa(gbNumeroFac);
    return PnlPideNumeroFactura;
}

QWidget* TFPreguntaDatos::construyePideTipoFactura() {
    pnlPideTipoFactura =
        NuevoPanel(this, "pnlPideTipoFactura", QStringLiteral("Indique las series que desea incluir."),
                   QStringLiteral("PideTipoFactura"));
    QGroupBox* g =
        Grupo(pnlPideTipoFactura, "gbFacturasSeleccionadas", QStringLiteral(" Facturas seleccionadas: "));
    cbPendientes = Casilla(g, "cbPendientes", QStringLiteral("Pendientes"), true);
    cbDispensadas = Casilla(g, "cbDispensadas", QStringLiteral("Dispensadas"), true);
    cbEspeciales = Casilla(g, "cbEspeciales", QStringLiteral("Especiales"), true);
    cbCobradas = Casilla(g, "cbCobradas", QStringLiteral("Cobradas"), true);
    cbsoloIVA = Casilla(g, "cbsoloIVA", QStringLiteral("Cobradas sólo IVA"), true);
    cbMorosos = Casilla(g, "cbMorosos", QStringLiteral("Morosos"), true);
    EnColumna(g, {cbPendientes, cbDispensadas, cbEspeciales, cbCobradas, cbsoloIVA, cbMorosos});
    Filas(pnlPideTipoFactura).ocupa(g);
    return pnlPideTipoFactura;
}

QWidget* TFPreguntaDatos::construyeCriterioCajaFactura() {
    pnlCriterioCajaFactura = NuevoPanel(this, "pnlCriterioCajaFactura",
                                        QStringLiteral("Criterio a la hora de asignar el numero de factura"),
                                        QStringLiteral("CriterioCajaFactura"));
    rbPreguntarFactura = Radio(pnlCriterioCajaFactura, "rbPreguntarFactura",
                               QStringLiteral("Preguntar el nº de factura para cada protocolo."));
    rbIncrementarFactura =
        Radio(pnlCriterioCajaFactura, "rbIncrementarFactura",
              QStringLiteral("Indicar el primer nº de factura e incrementar para el resto."), true);
    EnColumna(pnlCriterioCajaFactura, {rbPreguntarFactura, rbIncrementarFactura});
    return pnlCriterioCajaFactura;
}

QWidget* TFPreguntaDatos::construyeSeriesCliente() {
    gbSeriesCliente =
        NuevoPanel(this, "gbSeriesCliente", QStringLiteral("Indique las series que desea incluir."),
                   QStringLiteral("SerieCliente"), QStringLiteral(" Series "));
    QWidget* g = gbSeriesCliente;
    cbClienteA = Casilla(g, "cbClienteA", QStringLiteral("Serie A, Escrituras"));
    cbClienteB = Casilla(g, "cbClienteB", QStringLiteral("Serie B, Protestos"));
    cbClienteC = Casilla(g, "cbClienteC", QStringLiteral("Serie C, Copias, Legitimaciones"));
    cbClienteD = Casilla(g, "cbClienteD", QStringLiteral("Serie D, Gestión (opcional)"));
    cbClienteE = Casilla(g, "cbClienteE", QStringLiteral("Serie E, Pólizas (Sección A)"));
    cbClienteF = Casilla(g, "cbClienteF", QStringLiteral("Serie F, Pólizas (Sección B)"));
    EnColumna(g, {cbClienteA, cbClienteB, cbClienteC, cbClienteD, cbClienteE, cbClienteF});
    return g;
}

QWidget* TFPreguntaDatos::construyeSeriesGastos() {
    gbSeriesGastos = NuevoPanel(this, "gbSeriesGastos", QStringLiteral("Indique de la serie de gastos."),
                                QStringLiteral("SerieGastos"), QStringLiteral(" Serie de gastos "));
    rbSerieR = Radio(gbSeriesGastos, "rbSerieR", QStringLiteral("Serie &R"), true);
    rbSerieS = Radio(gbSeriesGastos, "rbSerieS", QStringLiteral("Serie &S"));
    rbSerieP = Radio(gbSeriesGastos, "rbSerieP", QStringLiteral("Serie &P"));
    rbSerieN = Radio(gbSeriesGastos, "rbSerieN", QStringLiteral("Serie &N"));
    Filas(gbSeriesGastos).juntos({rbSerieR, rbSerieS, rbSerieP, rbSerieN});
    return gbSeriesGastos;
}

QWidget* TFPreguntaDatos::construyeMoneda() {
    pnlMoneda =
        NuevoPanel(this, "pnlMoneda", QStringLiteral("Indique el tipo de moneda."), QStringLiteral("Moneda"));
    CBMoneda = Lista(pnlMoneda, "CBMoneda", {QStringLiteral("Peseta"), QStringLiteral("Euro")}, false);
    Filas(pnlMoneda).fila(QStringLiteral("Moneda del listado:"), CBMoneda);
    return pnlMoneda;
}

QWidget* TFPreguntaDatos::construyeCantidad() {
    pnlCantidad =
        NuevoPanel(this, "pnlCantidad", QStringLiteral("Indique una cantidad."), QStringLiteral("Cantidad"));
    FECantidad = Importe(pnlCantidad, "FECantidad", 2);
    FECantidadMaxima = Importe(pnlCantidad, "FECantidadMaxima", 2);
    Filas filas(pnlCantidad);
    lblCantidad = filas.fila(QStringLiteral("Cantidad mínima:"), FECantidad, {}, "lblCantidad");
    lblCantidadMaxima =
        filas.fila(QStringLiteral("Cantidad máxima:"), FECantidadMaxima, {}, "lblCantidadMaxima");
    lblCantidadMaxima->hide();
    FECantidadMaxima->hide();
    return pnlCantidad;
}

QWidget* TFPreguntaDatos::construyePorcentaje() {
    PnlPorcentaje = NuevoPanel(this, "PnlPorcentaje", QStringLiteral("Porcentaje aplicado"),
                               QStringLiteral("Porcentaje"));
    FEPorcentaje = Importe(PnlPorcentaje, "FEPorcentaje", 2);
    FEPorcentaje->PonValor(15);
    Filas(PnlPorcentaje)
        .fila(QStringLiteral("Indique el porcentaje a aplicar:"), FEPorcentaje, QStringLiteral("%"));
    return PnlPorcentaje;
}

QWidget* TFPreguntaDatos::construyeGarajes() {
    pnlGarajes = NuevoPanel(this, "pnlGarajes", QStringLiteral("Viviendas de protección oficial"),
                            QStringLiteral("Garajes"));
    QWidget* p = pnlGarajes;
    seGarajes = Numero(p, "seGarajes", 999, 3);
    seTrasteros = Numero(p, "seTrasteros", 999, 3);
    seAnejos = Numero(p, "seAnejos", 999, 3);
    Filas filas(p);
    filas.ocupa(
        Etiqueta(p, QStringLiteral("Viviendas de proteccion oficial y menos de 90 metros cuadrados")));
    filas.ocupa(
        Etiqueta(p, QStringLiteral("Garajes, trasteros y anejos incluidos en la cuantía de la vivienda")));
    // Each count: its name, then its price label (rebuilt in euros by Configura), then the field.
    const auto fila = [&](const QString& nombre, QSpinBox* campo, const char* nombrePrecio) {
        QLabel* precio = Etiqueta(p, QStringLiteral("a 9,02 Euros (1.500 pts.):"), campo, nombrePrecio);
        filas.rejilla()->addWidget(Etiqueta(p, nombre, campo), filas.rejilla()->rowCount(), 0);
        const int r = filas.rejilla()->rowCount() - 1;
        filas.rejilla()->addWidget(precio, r, 1);
        filas.rejilla()->addWidget(campo, r, 2, Qt::AlignLeft);
        return precio;
    };
    lblPrecioGarajes = fila(QStringLiteral("Número de garajes"), seGarajes, "lblPrecioGarajes");
    lblPrecioTrasteros = fila(QStringLiteral("Número de trasteros"), seTrasteros, "lblPrecioTrasteros");
    lblPrecioAnejos = fila(QStringLiteral("Número de anejos"), seAnejos, "lblPrecioAnejos");
    return p;
}

QWidget* TFPreguntaDatos::construyeFoliosMatriz() {
    pnlFoliosMatriz =
        NuevoPanel(this, "pnlFoliosMatriz", QStringLiteral("Minutación"), QStringLiteral("FoliosMatriz"));
    seFolios = Numero(pnlFoliosMatriz, "seFolios", 999, 3);
    Filas(pnlFoliosMatriz).fila(QStringLiteral("Folios de la matriz:"), seFolios);
    return pnlFoliosMatriz;
}

} // namespace nod
