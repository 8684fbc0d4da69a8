#pragma once
// Prompt routines of invoicing and listings: invoice numbers, balances, currency and series. Same
// pattern and same roles of the unnamed parameters as prompts/preguntasfechas.h.

#include "companion/mensajes.h" // TColor
#include "companion/tdatetime.h"
#include "nod_widgets_export.h"

#include <QChar>
#include <QString>

namespace nod NOD_WIDGETS_EXPORT {

/// Kind "NumeroFactura": the clerk types series, number and bis as the form's help explains; the
/// form composes them (`TFPreguntaDatos::btnAceptarClick`). On accept `numero` = the composed year and
/// number in exactly 10 characters (padded with blanks) and `serie` = the composed series in exactly 2
/// (blanks on the left). Example: "A" and "23" in 2024 for notary 1 give serie "1A", numero "202400023 ".
bool PreguntaNumeroFactura(QString& serie, QString& numero);
/// The same, and `bis` = the letter typed in "Nº Bis:", or a blank when none was typed.
bool PreguntaNumeroFactura(QString& serie, QString& numero, QString& bis);

/// The invoice-number form (protocol/preguntanumerofactura.h) with the caption `titulo` (its own when
/// empty), showing `serie`, year `ano`, `numero` and the bis letter `bis`. On accept `serie` and `numero`
/// read back; the year and bis the clerk typed are not returned by this signature (callers that need
/// them use `PreguntaNumeroFacturaForm`). `reservado` is not read: the suite's callers pass it, nothing
/// depends on it.
bool PreguntaNumeroFacturaSerie(QString& serie, int& numero, const QString& titulo, const QString& bis,
                                int ano, const QString& reservado);

/// Kind "BalanMensaEspecial": the year from `ano`, the configured VAT rate. On accept `ano`, `iva` (the
/// rate as typed, "21,00"), `devengo` and `cobro` (the "Por fecha de" choice: exactly one is true),
/// `suplidos` ("Incluye suplidos") and `series` = "A" … "F" for each ticked series, in that order.
bool PreguntaBalanMensaEspecial(int& ano, QString& iva, bool& devengo, bool& cobro, bool& suplidos,
                                QString& series, const QString& titulo);

/// Kind "BalanMensualCobro": proposes the previous month, "Todas" ticked and both dates today; the
/// variables are answers only. On accept `mes` (1..12), `ano`, `todas` ("Todas"), `suplidos`, `series`
/// ("A" … "F") and the deeds' dates `desde` (`dtpDesde16`) and `hasta` (`dtpHasta16`).
bool PreguntaBalanMensualCobro(int& mes, int& ano, bool& todas, bool& suplidos, QString& series,
                               TDateTime& desde, TDateTime& hasta, const QString& titulo);

/// Kind "Moneda". When the office lists in euros only (`SoloEuros`) nothing is shown, `moneda` = "E"
/// and the result is true. Otherwise the list proposes the configured currency (`MonedaListados`) and on
/// accept `moneda` = "P" (peseta) or "E" (euro).
bool PreguntaMoneda(QString& moneda, TColor colorArriba, TColor colorAbajo, const QString& titulo);

/// Kind "SerieGastos", shown only when the office asks for the expenses series
/// (`nPreguntaSerieGastos` 1), proposing the configured one; on accept the configuration's `SerieGastos`
/// becomes "R", "S", "P" or "N". When nothing is to be asked it returns true at once and the configured
/// series stays.
bool PreguntaSerieGastos();

/// Kind "AñoSerie": year `ano` and the radio button of `serie` ("A" to "D"; another letter keeps "A").
/// On accept `ano` and the letter of the checked button.
bool PreguntaSerieAno(int& ano, QChar& serie);

} // namespace nod
