// Panels of the data prompt that ask for periods: years, months, quarters, semesters and dates, alone
// or with a number.
#include "companion/editimporte.h"
#include "prompts/preguntadatos.h"
#include "prompts/preguntadatos_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>

namespace nod {

using namespace pregunta;

namespace {
const QString kMes = QStringLiteral("Mes:");
const QString kAno = QStringLiteral("Año:");
const QString kTrimestre = QStringLiteral("Trimestre:");
} // namespace

QWidget* TFPreguntaDatos::construyeAno() {
    pnlAno = NuevoPanel(this, "pnlAno", QStringLiteral("Indique el año."), QStringLiteral("Año"));
    seAno = Ano(pnlAno, "seAno", 2000);
    lblAno = Filas(pnlAno).fila(kAno, seAno, {}, "lblAno");
    return pnlAno;
}

// A period (month, quarter, semester) and its year, one under the other: the shape of several panels.
static void periodoYAno(Filas& filas, const QString& periodo, QComboBox* lista, QSpinBox* ano) {
    filas.fila(periodo, lista);
    filas.fila(kAno, ano);
}

QWidget* TFPreguntaDatos::construyeMesAno() {
    pnlMesAno =
        NuevoPanel(this, "pnlMesAno", QStringLiteral("Indique el mes y el año."), QStringLiteral("MesAño"));
    cbMes = ListaMeses(pnlMesAno, "cbMes");
    seAno4 = Ano(pnlMesAno, "seAno4", 1992);
    Filas filas(pnlMesAno);
    periodoYAno(filas, kMes, cbMes, seAno4);
    return pnlMesAno;
}

QWidget* TFPreguntaDatos::construyeMesAnoSerie() {
    pnlMesAnoSerie = NuevoPanel(this, "pnlMesAnoSerie", QStringLiteral("Indique la serie, el mes y año."),
                                QStringLiteral("MesAñoSerie"));
    cbMes14 = ListaMeses(pnlMesAnoSerie, "cbMes14");
    seAno14 = Ano(pnlMesAnoSerie, "seAno14", 2000);
    QGroupBox* series =
        Grupo(pnlMesAnoSerie, "gbSeriesSeleccionadas", QStringLiteral(" Series seleccionadas: "));
    cbSerieA14 = Casilla(series, "cbSerieA14", QStringLiteral("Serie A, Escrituras"), true);
    cbSerieB14 = Casilla(series, "cbSerieB14", QStringLiteral("Serie B, Protestos"), true);
    cbSerieC14 = Casilla(series, "cbSerieC14", QStringLiteral("Serie C, Copias, Legitim."), true);
    cbSerieD14 = Casilla(series, "cbSerieD14", QStringLiteral("Serie D, Gestión"), true);
    cbSerieE14 = Casilla(series, "cbSerieE14", QStringLiteral("Serie E, Pólizas"), true);
    cbSerieR14 = Casilla(series, "cbSerieR14", QStringLiteral("Serie R, Gastos"), true);
    EnColumna(series, {cbSerieA14, cbSerieB14, cbSerieC14, cbSerieD14, cbSerieE14, cbSerieR14});
    Filas filas(pnlMesAnoSerie);
    periodoYAno(filas, kMes, cbMes14, seAno14);
    filas.ocupa(series);
    return pnlMesAnoSerie;
}

QWidget* TFPreguntaDatos::construyeTrimestreAno() {
    pnlTrimestreAno = NuevoPanel(this, "pnlTrimestreAno", QStringLiteral("Indique el trimestre y el año."),
                                 QStringLiteral("TrimestreAño"));
    cbTrimestre = ListaTrimestres(pnlTrimestreAno, "cbTrimestre");
    seAno5 = Ano(pnlTrimestreAno, "seAno5", 2000);
    Filas filas(pnlTrimestreAno);
    periodoYAno(filas, kTrimestre, cbTrimestre, seAno5);
    return pnlTrimestreAno;
}

QWidget* TFPreguntaDatos::construyeTrimestralSinNif() {
    pnlTrimestralSinNif =
        NuevoPanel(this, "pnlTrimestralSinNif", QStringLiteral("Indique el trimestre y el año."),
                   QStringLiteral("TrimestralSinNif"));
    QWidget* p = pnlTrimestralSinNif;
    cbTrimestre2 = ListaTrimestres(p, "cbTrimestre2");
    seAno12 = Ano(p, "seAno12", 2000);
    rbModelo197 = Radio(p, "rbModelo197", QStringLiteral("Modelo 197"));
    rbModeloApaisado = Radio(p, "rbModeloApaisado", QStringLiteral("Modelo apaisado"), true);
    CBExclusion = Casilla(p, "CBExclusion", QStringLiteral("Excluir todos los NIFs que empiecen por letra."));
    ELetraNIF = Edit(p, "ELetraNIF", 1);
    Filas filas(p);
    periodoYAno(filas, kTrimestre, cbTrimestre2, seAno12);
    filas.juntos({rbModelo197, rbModeloApaisado});
    filas.ocupa(CBExclusion);
    filas.juntos(
        {Etiqueta(p, QStringLiteral("Se incluirán los NIFs que empiecen por:"), ELetraNIF), ELetraNIF});
    connect(CBExclusion, &QCheckBox::clicked, this, &TFPreguntaDatos::CBExclusionClick);
    return p;
}

QWidget* TFPreguntaDatos::construyeSemestreAno() {
    pnlSemestreAno = NuevoPanel(this, "pnlSemestreAno", QStringLiteral("Indique el semestre y el año."),
                                QStringLiteral("SemestreAño"));
    cbSemestre = ListaSemestres(pnlSemestreAno, "cbSemestre");
    seAno6 = Ano(pnlSemestreAno, "seAno6", 2000);
    Filas filas(pnlSemestreAno);
    periodoYAno(filas, QStringLiteral("Semestre:"), cbSemestre, seAno6);
    return pnlSemestreAno;
}

QWidget* TFPreguntaDatos::construyeCorredorEstadistica() {
    gbCorredorEstadistica =
        NuevoPanel(this, "gbCorredorEstadistica", QStringLiteral("Indique la estadística que desea obtener."),
                   QStringLiteral("CorredorEstadistica"), QStringLiteral("Índice oficial"));
    QWidget* p = gbCorredorEstadistica;
    cbMes11 = ListaMeses(p, "cbMes11");
    seAno11 = Ano(p, "seAno11", 2000);
    QGroupBox* estadistica =
        Grupo(p, "gbEstadisticaMensual", QStringLiteral(" Estadística mensual de pólizas "));
    rbGranada = Radio(estadistica, "rbGranada", QStringLiteral("1.- Colegio Notarial de Granada"), true);
    rbValladolid = Radio(estadistica, "rbValladolid", QStringLiteral("2.- Colegio Notarial de Valladolid"));
    rbBaleares = Radio(estadistica, "rbBaleares", QStringLiteral("3.- Colegio Notarial de Baleares"));
    EnColumna(estadistica, {rbGranada, rbValladolid, rbBaleares});
    Filas filas(p);
    periodoYAno(filas, kMes, cbMes11, seAno11);
    filas.ocupa(estadistica);
    return p;
}

QWidget* TFPreguntaDatos::construyeModeloIndicSociedades() {
    pnlModeloIndicSociedades = NuevoPanel(this, "pnlModeloIndicSociedades",
                                          QStringLiteral("Indique mes y año y si llevará o no cuantías."),
                                          QStringLiteral("ModeloIndicSociedades"));
    QWidget* p = pnlModeloIndicSociedades;
    cbMes2 = ListaMeses(p, "cbMes2");
    seAno8 = Ano(p, "seAno8", 2000);
    QGroupBox* antiguo = Grupo(p, "gbModeloAntiguo", QStringLiteral(" Modelo antiguo: "));
    rbSinCuantias = Radio(antiguo, "rbSinCuantias", QStringLiteral("Sin cuantías"), true);
    rbConCuantias = Radio(antiguo, "rbConCuantias", QStringLiteral("Con cuantías"));
    EnColumna(antiguo, {rbSinCuantias, rbConCuantias});
    Filas filas(p);
    periodoYAno(filas, kMes, cbMes2, seAno8);
    filas.ocupa(antiguo);
    return p;
}

QWidget* TFPreguntaDatos::construyeDesdeDia() {
    pnlDesdeDia =
        NuevoPanel(this, "pnlDesdeDia", QStringLiteral("Indique el día."), QStringLiteral("DesdeDia"));
    dtpDesdeFecha = Fecha(pnlDesdeDia, "dtpDesdeFecha");
    Filas filas(pnlDesdeDia);
    lblDesdeFecha = filas.fila(QStringLiteral("Desde el día:"), dtpDesdeFecha, {}, "lblDesdeFecha");
    lblNotaDesdeDia = Etiqueta(pnlDesdeDia, {}, nullptr, "lblNotaDesdeDia");
    lblNotaDesdeDia->setWordWrap(true);
    filas.ocupa(lblNotaDesdeDia);
    return pnlDesdeDia;
}

QWidget* TFPreguntaDatos::construyeFechaDesdeHasta() {
    pnlFechaDesdeHasta =
        NuevoPanel(this, "pnlFechaDesdeHasta", QStringLiteral("Indique un intervalo de fechas."),
                   QStringLiteral("FechaDesdeHasta"));
    dtpDesde = Fecha(pnlFechaDesdeHasta, "dtpDesde");
    dtpHasta = Fecha(pnlFechaDesdeHasta, "dtpHasta");
    Filas filas(pnlFechaDesdeHasta);
    filas.fila(QStringLiteral("Desde el día:"), dtpDesde);
    filas.fila(QStringLiteral("Hasta el día:"), dtpHasta);
    return pnlFechaDesdeHasta;
}

QWidget* TFPreguntaDatos::construyeFechaDesdeHastaCuando() {
    pnlFechaDesdeHastaCuando =
        NuevoPanel(this, "pnlFechaDesdeHastaCuando", {}, QStringLiteral("FechaDesdeHastaCuando"));
    QWidget* p = pnlFechaDesdeHastaCuando;
    dtpDesde2 = Fecha(p, "dtpDesde2");
    dtpHasta2 = Fecha(p, "dtpHasta2");
    dtpCuando = Fecha(p, "dtpCuando");
    Filas filas(p);
    filas.fila(QStringLiteral("Todas las facturas desde:"), dtpDesde2);
    filas.fila(QStringLiteral("hasta:"), dtpHasta2);
    filas.fila(QStringLiteral("Pendientes de cobro:"), dtpCuando);
    return p;
}

QWidget* TFPreguntaDatos::construyeFechaDesdeHasta2() {
    pnlFechaDesdeHasta2 =
        NuevoPanel(this, "pnlFechaDesdeHasta2", {}, QStringLiteral("FechaDesdeHastaFactura"));
    QWidget* p = pnlFechaDesdeHasta2;
    gbTiposFactura = Grupo(p, "gbTiposFactura", QStringLiteral(" Facturas que se incluyen en la relación: "));
    cbTipoPendientes = Casilla(gbTiposFactura, "cbTipoPendientes", QStringLiteral("Pendientes cobro"));
    cbTipoDispensadas = Casilla(gbTiposFactura, "cbTipoDispensadas", QStringLiteral("Dispensadas"));
    cbTipoCobradas = Casilla(gbTiposFactura, "cbTipoCobradas", QStringLiteral("Cobradas"));
    cbTipoEspeciales = Casilla(gbTiposFactura, "cbTipoEspeciales", QStringLiteral("Especiales"));
    cbTipoMorosos = Casilla(gbTiposFactura, "cbTipoMorosos", QStringLiteral("Morosos"));
    EnColumna(gbTiposFactura,
              {cbTipoPendientes, cbTipoDispensadas, cbTipoCobradas, cbTipoEspeciales, cbTipoMorosos});
    gbCorretaje = Grupo(p, "gbCorretaje", {});
    rbConCorretaje =
        Radio(gbCorretaje, "rbConCorretaje", QStringLiteral("Incluir el total del corretaje"), true);
    rbSinCorretaje =
        Radio(gbCorretaje, "rbSinCorretaje", QStringLiteral("No incluir el total del corretaje"));
    EnColumna(gbCorretaje, {rbConCorretaje, rbSinCorretaje});
    // Only the kind's own group is shown (ActivaPanel).
    gbTiposFactura->hide();
    gbCorretaje->hide();
    QGroupBox* intervalo = Grupo(p, "gbIntervaloFechas", QStringLiteral(" Intevalo fechas: "));
    dtpDesde3 = Fecha(intervalo, "dtpDesde3");
    dtpHasta3 = Fecha(intervalo, "dtpHasta3");
    Filas fechas(intervalo);
    fechas.fila(QStringLiteral("Desde:"), dtpDesde3);
    fechas.fila(QStringLiteral("Hasta:"), dtpHasta3);
    Filas filas(p);
    filas.ocupa(gbTiposFactura);
    filas.ocupa(gbCorretaje);
    filas.ocupa(intervalo);
    return p;
}

QWidget* TFPreguntaDatos::construyeNumeroAno() {
    pnlNumeroAno = NuevoPanel(this, "pnlNumeroAno", QStringLiteral("Indique el número y el año."),
                              QStringLiteral("NumeroAño"));
    seNumero2 = Numero(pnlNumeroAno, "seNumero2");
    seAno7 = Ano(pnlNumeroAno, "seAno7", 2000);
    Filas filas(pnlNumeroAno);
    filas.fila(QStringLiteral("Número: "), seNumero2);
    filas.fila(kAno, seAno7);
    return pnlNumeroAno;
}

QWidget* TFPreguntaDatos::construyeNumeroFecha() {
    pnlNumeroFecha = NuevoPanel(this, "pnlNumeroFecha", QStringLiteral("Indique el número y la fecha."),
                                QStringLiteral("NumeroFecha"));
    seNumero = Numero(pnlNumeroFecha, "seNumero");
    tdpFecha = Fecha(pnlNumeroFecha, "tdpFecha");
    Filas filas(pnlNumeroFecha);
    filas.fila(QStringLiteral("Número: "), seNumero);
    filas.fila(QStringLiteral("Fecha:"), tdpFecha);
    return pnlNumeroFecha;
}

QWidget* TFPreguntaDatos::construyeNumeroMinuta() {
    pnlNumeroMinuta = NuevoPanel(this, "pnlNumeroMinuta", QStringLiteral("Indique el número y el año."),
                                 QStringLiteral("NumeroMinuta"));
    seNumero9 = Numero(pnlNumeroMinuta, "seNumero9");
    seAno9 = Ano(pnlNumeroMinuta, "seAno9", 2003, 9999);
    Filas filas(pnlNumeroMinuta);
    lblNumero9 = filas.fila(QStringLiteral("Nº de minuta:"), seNumero9, {}, "lblNumero9");
    filas.fila(QStringLiteral("del año:"), seAno9);
    lblNotaMinuta =
        Etiqueta(pnlNumeroMinuta, QStringLiteral("Escriba -1 para renumerar un grupo de facturas"), nullptr,
                 "lblNotaMinuta");
    lblNotaMinuta->hide();
    filas.ocupa(lblNotaMinuta);
    return pnlNumeroMinuta;
}

QWidget* TFPreguntaDatos::construyeRenumerar() {
    pnlRenumerar = NuevoPanel(this, "pnlRenumerar", QStringLiteral("Indique los números a renumerar."),
                              QStringLiteral("Renumerar"));
    QWidget* p = pnlRenumerar;
    seAno10 = Ano(p, "seAno10", 2000);
    QGroupBox* cambian = Grupo(p, "gbPolizasCambian", QStringLiteral("Pólizas que cambian de número:"));
    FEPoliza1 = Importe(cambian, "FEPoliza1", 0);
    FEPoliza2 = Importe(cambian, "FEPoliza2", 0);
    Filas filasCambian(cambian);
    filasCambian.fila(QStringLiteral("Del número:"), FEPoliza1);
    filasCambian.fila(QStringLiteral("Al número:"), FEPoliza2);
    QGroupBox* nuevos = Grupo(p, "gbPolizasNuevas", QStringLiteral("Nuevos valores de las pólizas:"));
    FENuevo1 = Importe(nuevos, "FENuevo1", 0);
    FENuevo2 = Importe(nuevos, "FENuevo2", 0);
    Filas filasNuevos(nuevos);
    filasNuevos.fila(QStringLiteral("Primer Número:"), FENuevo1);
    filasNuevos.fila(QStringLiteral("Último:"), FENuevo2);
    Filas filas(p);
    filas.fila(QStringLiteral("Pólizas del año:"), seAno10);
    filas.ocupa(cambian);
    filas.ocupa(nuevos);
    connect(FENuevo1, &QLineEdit::textChanged, this, &TFPreguntaDatos::FENuevo1Change);
    return p;
}

QWidget* TFPreguntaDatos::construyeLimiteIndubitadas() {
    PnlLimiteIndubitadas =
        NuevoPanel(this, "PnlLimiteIndubitadas", QStringLiteral("Indique el número y el año."),
                   QStringLiteral("LimiteIndubitadas"));
    QWidget* p = PnlLimiteIndubitadas;
    SeAno13 = Ano(p, "SeAno13", 2000);
    sePoliza = Numero(p, "sePoliza");
    seLimite = Numero(p, "seLimite");
    Filas filas(p);
    filas.fila(QStringLiteral("Año:"), SeAno13);
    filas.fila(QStringLiteral("Primer asiento: "), sePoliza);
    filas.fila(QStringLiteral("Número tope de indubitadas: "), seLimite);
    return p;
}

QWidget* TFPreguntaDatos::construyeTurnoPolizas() {
    PnlTurnoPolizas = NuevoPanel(this, "PnlTurnoPolizas", QStringLiteral("Indique el trimestre y el año."),
                                 QStringLiteral("TurnoPolizas"));
    QWidget* p = PnlTurnoPolizas;
    CBTrimestreTP = ListaTrimestres(p, "CBTrimestreTP");
    seAnoTP = Ano(p, "seAnoTP", 2000);
    FEAportacionTP = Importe(p, "FEAportacionTP", 2);
    FECuantiaTP = Importe(p, "FECuantiaTP", 2);
    Filas filas(p);
    periodoYAno(filas, kTrimestre, CBTrimestreTP, seAnoTP);
    filas.fila(QStringLiteral("Aportación:"), FEAportacionTP, QStringLiteral("%"));
    filas.fila(QStringLiteral("Cuantia mínima:"), FECuantiaTP);
    return p;
}

} // namespace nod
