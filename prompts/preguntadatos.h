#pragma once
// The generic data prompt: one modal form that asks the suite's small questions before a listing, a
// renumbering or a calculation (which year, which month, which series, which dates, which notary, how
// much). The form is built for one kind of question, given as a string ("MesAño", "NumeroFactura" ...):
// it shows the one panel of that kind at 8/8, takes the panel's hint as its caption, sizes itself around
// the panel and sets the panel's initial values. The prompt routines (prompts/preguntas.h) fill it, show
// it and read the answers straight from its controls.
//
// Controls carry the names the suite's programs know as `objectName` (`seAno7`, `cbMes16`,
// `ENOTARIOSERIE` ...); only the controls of the kind's own panel exist, every other member is null.
// Keys: Enter moves to the next control (from the buttons too; Space or the accelerator presses a
// button), Escape closes with the cancel result. Modal results: 1 "&Aceptar", 2 "Sa&lir" or Escape.
// The focused input control carries the focus mark (`TomaFocoControl`).

#include "companion/mensajes.h" // TColor
#include "nod_widgets_export.h"

#include <QDialog>
#include <QPointer>
#include <QString>
#include <span>

class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QGroupBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace nod NOD_WIDGETS_EXPORT {

class TEditImporte;
class TEditRefCatastral;

class TFPreguntaDatos : public QDialog {
    Q_OBJECT
public:
    /// Builds the form for `tipo` (compared exactly, case-sensitive): `ActivaPanel`, then `Configura`.
    /// A visible `owner` window keeps the form centred on it; otherwise the form is centred on the screen.
    TFPreguntaDatos(QWidget* owner, const QString& tipo);
    ~TFPreguntaDatos() override;

    /// The caption of a form whose kind has no panel.
    static const QString kCaptionDiseno;

    const QString& Tipo() const { return m_tipo; }
    /// The panel shown, or null for an unknown kind.
    QWidget* PanelActivo() const { return m_panelActivo; }

    /// Filled on acceptance of kind "NumeroFactura" only (see `btnAceptarClick`).
    QString SerieResultado, AnoNumeroResultado, BisResultado;

    /// Chooses the panel of the kind, shows it at 8/8, takes its hint as caption and sizes the form:
    /// height = 8 + 16 + panel height + 7 + button height + 8 + 7, width = panel width + 2 × 8 + 7.
    /// An unknown kind keeps the design size and caption with the two buttons alone.
    void ActivaPanel();
    /// The kind's initial values (today, the previous month, the configured rate ...).
    void Configura();
    /// Sizes the form around the panel again, after a routine has changed its texts.
    void AjustaTamano();

    /// The form's background, painted around the panel: a gradient from `arriba` to `abajo` (colours
    /// as the suite stores them). Both 0 keep the standard look.
    void PonColores(TColor arriba, TColor abajo);
    /// The colours of the suite's scheme `esquema` (`GetMaxColor` at the top, `GetMinColor` at the
    /// bottom); a scheme of 0 or less keeps the standard look.
    void PonEsquema(int esquema);

    // Handlers, as the suite names them. Each is what a clerk's action on the form reaches.
    /// Acceptance: composes the invoice number of "NumeroFactura"; refuses a minute number outside
    /// 0..99999 of "NumeroMinuta" with "El número de minuta no es válido (1 - 99.999)" and closes with the
    /// cancel result; any other kind closes with the accept result.
    void btnAceptarClick();
    /// Leaving a year field: a one- or two-digit year becomes four digits (`CompletaAnno`), "05" → 2005.
    void seAnoExit(QWidget* campo);
    /// Key press of a month, quarter, semester, notary or official list: digits choose items ("1" then
    /// "2" gives "DICIEMBRE"), letters complete from the items. Returns true (the key is always taken).
    bool cbMesKeyPress(QComboBox* lista, QKeyEvent* tecla);
    void EDiasChange();
    void CBExclusionClick();
    void FENuevo1Change();
    void seNumero9Exit();
    void gbBalanMensualCobroMesExit();
    void CBSexoEnter();
    void CBSexoExit();
    void TomaFoco(QWidget* control);
    void DejaFoco(QWidget* control);

    /// The item of a list whose text equals the list's text, or -1 (a list that shows no item).
    static int ItemIndex(const QComboBox* lista);

    QPushButton* btnAceptar = nullptr;  ///< "&Aceptar"
    QPushButton* btnCANCELAR = nullptr; ///< "Sa&lir"

    // "Año"
    QWidget* pnlAno = nullptr;
    QLabel* lblAno = nullptr;
    QSpinBox* seAno = nullptr;
    // "AñoSerie"
    QWidget* gbSeriesAno = nullptr;
    QSpinBox* seAno2 = nullptr;
    QRadioButton *rbSerieA = nullptr, *rbSerieB = nullptr, *rbSerieC = nullptr, *rbSerieD = nullptr;
    // "BalanMensaEspecial", "BalanMensualCobro"
    QWidget* pnlBalanMensaEspecial = nullptr;
    QLabel *lblAno3 = nullptr, *lblIVA2 = nullptr, *lblPorcentaje2 = nullptr;
    QSpinBox* seAno3 = nullptr;
    QLineEdit* eIVA2 = nullptr;
    QGroupBox* gbPorFecha = nullptr;
    QRadioButton *rbDevengo = nullptr, *rbCobro = nullptr;
    QCheckBox* cbSuplidos = nullptr;
    QCheckBox *cbSerieA3 = nullptr, *cbSerieB3 = nullptr, *cbSerieC3 = nullptr, *cbSerieD3 = nullptr,
              *cbSerieE3 = nullptr, *cbSerieF3 = nullptr;
    QGroupBox* gbBalanMensualCobroMes = nullptr;
    QComboBox* cbMes16 = nullptr;
    QSpinBox* seAno16 = nullptr;
    QGroupBox* gbEscriturasDevengadas = nullptr;
    QDateTimeEdit *dtpDesde16 = nullptr, *dtpHasta16 = nullptr;
    QCheckBox* cbTodas16 = nullptr;
    // "Cantidad", "CantidadMaxMin", "Corretaje", "Cuantia", "CuantiaOtorgante", "NumCopiasPlusvalia"
    QWidget* pnlCantidad = nullptr;
    QLabel *lblCantidad = nullptr, *lblCantidadMaxima = nullptr;
    TEditImporte *FECantidad = nullptr, *FECantidadMaxima = nullptr;
    // "CheckBox"
    QWidget* pnlCheckBox = nullptr;
    QCheckBox* cbCheckBox = nullptr;
    // "CorredorEstadistica"
    QWidget* gbCorredorEstadistica = nullptr;
    QComboBox* cbMes11 = nullptr;
    QSpinBox* seAno11 = nullptr;
    QRadioButton *rbGranada = nullptr, *rbValladolid = nullptr, *rbBaleares = nullptr;
    // "DesdeDia"
    QWidget* pnlDesdeDia = nullptr;
    QLabel *lblDesdeFecha = nullptr, *lblNotaDesdeDia = nullptr;
    QDateTimeEdit* dtpDesdeFecha = nullptr;
    // "FechaDesdeHasta"
    QWidget* pnlFechaDesdeHasta = nullptr;
    QDateTimeEdit *dtpDesde = nullptr, *dtpHasta = nullptr;
    // "FechaDesdeHastaCuando"
    QWidget* pnlFechaDesdeHastaCuando = nullptr;
    QDateTimeEdit *dtpDesde2 = nullptr, *dtpHasta2 = nullptr, *dtpCuando = nullptr;
    // "FechaDesdeHastaFactura", "FechaDesdeHastaCorretaje"
    QWidget* pnlFechaDesdeHasta2 = nullptr;
    QGroupBox *gbTiposFactura = nullptr, *gbCorretaje = nullptr;
    QCheckBox *cbTipoPendientes = nullptr, *cbTipoDispensadas = nullptr, *cbTipoCobradas = nullptr,
              *cbTipoEspeciales = nullptr, *cbTipoMorosos = nullptr;
    QRadioButton *rbConCorretaje = nullptr, *rbSinCorretaje = nullptr;
    QDateTimeEdit *dtpDesde3 = nullptr, *dtpHasta3 = nullptr;
    // "ImpresionTestamentos", "RangoNumeros"
    QWidget* pnlImpresionTestamentos = nullptr;
    QSpinBox* seAno15 = nullptr;
    QLineEdit *EDesde = nullptr, *EHasta = nullptr;
    QRadioButton *rbTodosTestamentos = nullptr, *rbUnoAUno = nullptr;
    QLabel *lblNotaTodos = nullptr, *lblNotaUnoAUno = nullptr;
    // "FoliosMatriz"
    QWidget* pnlFoliosMatriz = nullptr;
    QSpinBox* seFolios = nullptr;
    // "Garajes"
    QWidget* pnlGarajes = nullptr;
    QLabel *lblPrecioGarajes = nullptr, *lblPrecioTrasteros = nullptr, *lblPrecioAnejos = nullptr;
    QSpinBox *seGarajes = nullptr, *seTrasteros = nullptr, *seAnejos = nullptr;
    // "MesAño"
    QWidget* pnlMesAno = nullptr;
    QComboBox* cbMes = nullptr;
    QSpinBox* seAno4 = nullptr;
    // "MesAñoSerie"
    QWidget* pnlMesAnoSerie = nullptr;
    QComboBox* cbMes14 = nullptr;
    QSpinBox* seAno14 = nullptr;
    QCheckBox *cbSerieA14 = nullptr, *cbSerieB14 = nullptr, *cbSerieC14 = nullptr, *cbSerieD14 = nullptr,
              *cbSerieE14 = nullptr, *cbSerieR14 = nullptr;
    // "TrimestreAño"
    QWidget* pnlTrimestreAno = nullptr;
    QComboBox* cbTrimestre = nullptr;
    QSpinBox* seAno5 = nullptr;
    // "TrimestralSinNif"
    QWidget* pnlTrimestralSinNif = nullptr;
    QComboBox* cbTrimestre2 = nullptr;
    QSpinBox* seAno12 = nullptr;
    QRadioButton *rbModelo197 = nullptr, *rbModeloApaisado = nullptr;
    QCheckBox* CBExclusion = nullptr;
    QLineEdit* ELetraNIF = nullptr;
    // "SemestreAño"
    QWidget* pnlSemestreAno = nullptr;
    QComboBox* cbSemestre = nullptr;
    QSpinBox* seAno6 = nullptr;
    // "Notario", "ProfesionJuridica"
    QWidget* pnlNotario = nullptr;
    QLabel* lblNotario = nullptr;
    QComboBox* cbNotario = nullptr;
    // "NumeroAño"
    QWidget* pnlNumeroAno = nullptr;
    QSpinBox *seAno7 = nullptr, *seNumero2 = nullptr;
    // "NumeroFactura"
    QWidget* pnlNumeroFactura = nullptr;
    QLineEdit *ENOTARIOSERIE = nullptr, *EANONUMEROBIS = nullptr, *ENUMEROBIS = nullptr;
    // "NumeroFecha"
    QWidget* pnlNumeroFecha = nullptr;
    QSpinBox* seNumero = nullptr;
    QDateTimeEdit* tdpFecha = nullptr;
    // "NumeroMinuta", "NumeroMinuta2"
    QWidget* pnlNumeroMinuta = nullptr;
    QLabel *lblNumero9 = nullptr, *lblNotaMinuta = nullptr;
    QSpinBox *seNumero9 = nullptr, *seAno9 = nullptr;
    // "ModeloCarta"
    QWidget* gbModeloCarta = nullptr;
    QRadioButton *rbBlando = nullptr, *rbMedio = nullptr, *rbDuro = nullptr;
    // "ModeloIndicSociedades"
    QWidget* pnlModeloIndicSociedades = nullptr;
    QComboBox* cbMes2 = nullptr;
    QSpinBox* seAno8 = nullptr;
    QRadioButton *rbSinCuantias = nullptr, *rbConCuantias = nullptr;
    // "Moneda"
    QWidget* pnlMoneda = nullptr;
    QComboBox* CBMoneda = nullptr;
    // "Oficial"
    QWidget* pnlOficial = nullptr;
    QComboBox* CBOficial = nullptr;
    // "SerieCliente"
    QWidget* gbSeriesCliente = nullptr;
    QCheckBox *cbClienteA = nullptr, *cbClienteB = nullptr, *cbClienteC = nullptr, *cbClienteD = nullptr,
              *cbClienteE = nullptr, *cbClienteF = nullptr;
    // "SerieGastos"
    QWidget* gbSeriesGastos = nullptr;
    QRadioButton *rbSerieR = nullptr, *rbSerieS = nullptr, *rbSerieP = nullptr, *rbSerieN = nullptr;
    // "XDias"
    QWidget* pnlXDias = nullptr;
    QLineEdit* EDias = nullptr;
    // "Renumerar"
    QWidget* pnlRenumerar = nullptr;
    QSpinBox* seAno10 = nullptr;
    TEditImporte *FEPoliza1 = nullptr, *FEPoliza2 = nullptr, *FENuevo1 = nullptr, *FENuevo2 = nullptr;
    // "LimiteIndubitadas"
    QWidget* PnlLimiteIndubitadas = nullptr;
    QSpinBox *SeAno13 = nullptr, *sePoliza = nullptr, *seLimite = nullptr;
    // "TurnoPolizas"
    QWidget* PnlTurnoPolizas = nullptr;
    QComboBox* CBTrimestreTP = nullptr;
    QSpinBox* seAnoTP = nullptr;
    TEditImporte *FEAportacionTP = nullptr, *FECuantiaTP = nullptr;
    // "ReferenciaBancaria"
    QWidget* pnlReferenciaBancaria = nullptr;
    QLineEdit* EReferencia = nullptr;
    // "ReferenciaCatastral"
    QWidget* pnlReferenciaCatastral = nullptr;
    TEditRefCatastral* eRefCatastral = nullptr;
    // "CriterioCajaFactura"
    QWidget* pnlCriterioCajaFactura = nullptr;
    QRadioButton *rbPreguntarFactura = nullptr, *rbIncrementarFactura = nullptr;
    // "PideNumeroFactura"
    QWidget* PnlPideNumeroFactura = nullptr;
    QGroupBox* gbNumeroFac = nullptr;
    QSpinBox* ENUMEROFAC = nullptr;
    // "PideTipoFactura"
    QWidget* pnlPideTipoFactura = nullptr;
    QCheckBox *cbPendientes = nullptr, *cbDispensadas = nullptr, *cbEspeciales = nullptr,
              *cbCobradas = nullptr, *cbsoloIVA = nullptr, *cbMorosos = nullptr;
    // "SexoClientes"
    QWidget* PnlSexoClientes = nullptr;
    QComboBox* CBSexo = nullptr;
    // "Porcentaje"
    QWidget* PnlPorcentaje = nullptr;
    TEditImporte* FEPorcentaje = nullptr;
    // "ReparacionClientes"
    QWidget* PnlReparacionClientes = nullptr;
    QCheckBox *cbReparacion1 = nullptr, *cbReparacion2 = nullptr, *cbReparacion3 = nullptr,
              *cbReparacion4 = nullptr;
    // "Texto"
    QWidget* pnlTexto = nullptr;
    QLabel* lblTexto = nullptr;
    QLineEdit* eTexto = nullptr;

    /// Every kind the form knows, in the order it looks them up.
    static QStringList Tipos();

protected:
    bool eventFilter(QObject* o, QEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void reject() override; // Escape and "Sa&lir" give 2

private:
    struct Panel;
    static std::span<const Panel> paneles();
    static const Panel* buscaPanel(const QString& tipo);
    void vigila(QWidget* panel);
    void colocaBotones(int ancho, int alto);
    void proximaFacturaA();
    void aceptaNumeroFactura();

    // One builder per panel (prompts/paneles*.cpp); each creates its panel's controls and returns it.
    QWidget* construyeAno();
    QWidget* construyeSeriesAno();
    QWidget* construyeBalanMensaEspecial();
    QWidget* construyeCantidad();
    QWidget* construyeCheckBox();
    QWidget* construyeCorredorEstadistica();
    QWidget* construyeDesdeDia();
    QWidget* construyeFechaDesdeHasta();
    QWidget* construyeFechaDesdeHastaCuando();
    QWidget* construyeFechaDesdeHasta2();
    QWidget* construyeImpresionTestamentos();
    QWidget* construyeFoliosMatriz();
    QWidget* construyeGarajes();
    QWidget* construyeMesAno();
    QWidget* construyeMesAnoSerie();
    QWidget* construyeTrimestreAno();
    QWidget* construyeTrimestralSinNif();
    QWidget* construyeSemestreAno();
    QWidget* construyeNotario();
    QWidget* construyeNumeroAno();
    QWidget* construyeNumeroFactura();
    QWidget* construyeNumeroFecha();
    QWidget* construyeNumeroMinuta();
    QWidget* construyeModeloCarta();
    QWidget* construyeModeloIndicSociedades();
    QWidget* construyeMoneda();
    QWidget* construyeOficial();
    QWidget* construyeSeriesCliente();
    QWidget* construyeSeriesGastos();
    QWidget* construyeXDias();
    QWidget* construyeRenumerar();
    QWidget* construyeLimiteIndubitadas();
    QWidget* construyeTurnoPolizas();
    QWidget* construyeReferenciaBancaria();
    QWidget* construyeReferenciaCatastral();
    QWidget* construyeCriterioCajaFactura();
    QWidget* construyePideNumeroFactura();
    QWidget* construyePideTipoFactura();
    QWidget* construyeSexoClientes();
    QWidget* construyePorcentaje();
    QWidget* construyeReparacionClientes();
    QWidget* construyeTexto();

    QString m_tipo;
    QWidget* m_panelActivo = nullptr;
    TColor m_colorArriba = 0, m_colorAbajo = 0;
    bool m_conColores = false;
    QMetaObject::Connection m_salidaGrupo;
};

/// The form while a prompt routine shows it (null otherwise).
extern QPointer<TFPreguntaDatos> FPreguntaDatos;

} // namespace nod
