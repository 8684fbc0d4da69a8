#pragma once
// The mortgage liability calculator: the maximum amount a mortgaged property answers for, the principal
// plus ordinary interest, default interest, costs and other items, each a percentage of the principal over
// a term, with their total; in pesetas or in euros, both columns kept side by side. A form the suite's
// programs create themselves: the caller sets `Principal_E` before showing it and reads the totals
// (`ETotal`, `ETotal_E`) after "&Aceptar".
//
// Each of the four rows has a rate, a term in years and in days (365 to the year), and its amount in
// pesetas and in euros. Only the column of the chosen currency (`IBMONEDAS`) is enabled and computed;
// the other one follows by conversion at the fixed rate (`PesetasEurosNod`, `EurosPesetasNod`):
//   - pesetas: amount = principal × rate / 100 × years, unrounded; its euros from the whole pesetas;
//   - euros: amount = years × (principal × rate / 100) rounded to cents; its pesetas in whole pesetas.
// A term typed in days counts as days / 365 exactly, while the years field shows it to one decimal
// (400 days: "1,1" years, the amount by 400/365). Switching the currency recomputes nothing by itself.
//
// Keys: Enter moves to the next control, except from a days field (to the row's amount in the chosen
// currency) and from the last row's amounts (`EOtros`, `EOtros_E`: "&Aceptar" when shown, else the focus
// to "&Salir"). Leaving a rate of 0 clears the row's term and goes to its amount, for a fixed amount;
// leaving years of 0 goes to the days. Escape and "&Salir" give 2, "&Aceptar" 1. The fields wear the
// focus mark of the dialog conventions (the suite's `TomaFoco` and `DejaFoco`).

#include "companion/editimporte.h"
#include "nod_widgets_export.h"

#include <QDialog>
#include <QPointer>
#include <array>

class QComboBox;
class QKeyEvent;
class QPushButton;

namespace nod NOD_WIDGETS_EXPORT {

/// The calculator's numeric edit: an amount edit (`TEditImporte`, Spanish figures, value and integer
/// view) that keeps the unrounded value the program wrote while its text still shows it, and tells a new
/// value from the same value written again (the thousands points come and go with the focus).
class TEditFlotante : public TEditImporte {
    Q_OBJECT
public:
    TEditFlotante(QWidget* parent, int decimales, int tag = 0);

    /// The row (1 to 4) of a rate, years or days field; 0 for the others.
    int Tag = 0;

    /// What the program last wrote with `PonValorExacto`, unrounded, while the text still reads that
    /// value; otherwise what the text reads (`Valor`).
    double ValorExacto() const;
    /// Shows `valor` rounded to the field's decimals and keeps it whole for `ValorExacto`.
    void PonValorExacto(double valor);

signals:
    /// The value changed, typed or written: a new figure, not the same figure written again.
    void CambiaValor();

private:
    void compruebaCambio();
    double m_exacto = 0, m_escrito = 0, m_ultimo = 0;
    bool m_hayExacto = false, m_escribiendo = false;
};

class TFRespHipotec : public QDialog {
    Q_OBJECT
public:
    explicit TFRespHipotec(QWidget* owner = nullptr);

    /// The principal in euros, set by the caller before the form is shown.
    double Principal_E = 0;

    /// "Pesetas" (0) or "Euros" (1).
    QComboBox* IBMONEDAS = nullptr;
    TEditFlotante *EPrincipal = nullptr, *EPrincipal_E = nullptr;
    /// The rows' rates, terms and amounts: ordinary interest, default interest, costs, others.
    TEditFlotante *EInteresesOrd = nullptr, *EInteresDemora = nullptr, *ECostesGastos = nullptr,
                  *EInteresOtros = nullptr;
    TEditFlotante *EAno1 = nullptr, *EAno2 = nullptr, *EAno3 = nullptr, *EAno4 = nullptr;
    TEditFlotante *EDias1 = nullptr, *EDias2 = nullptr, *EDias3 = nullptr, *EDias4 = nullptr;
    TEditFlotante *ERes1 = nullptr, *ERes2 = nullptr, *ERes3 = nullptr, *EOtros = nullptr;
    TEditFlotante *ERes1_E = nullptr, *ERes2_E = nullptr, *ERes3_E = nullptr, *EOtros_E = nullptr;
    TEditFlotante *ETotal = nullptr, *ETotal_E = nullptr;
    QPushButton *BACEPTAR = nullptr, *BCancelar = nullptr;

    /// Showing: the euro column enabled, every figure 0, "Euros" chosen, the caller's principal in euros
    /// with its pesetas beside it, and the totals.
    void FormShow();
    /// The clerk chose a currency: its column enabled, the focus on its principal; nothing recomputed.
    void IBMONEDASSelect();
    /// Enables the euro column (principal, amounts, total) and disables the pesetas one, or the reverse.
    void HabilitaPesetasEuros(bool euros);

    /// A principal changed in the chosen column (form active): its twin by conversion, the four rows
    /// recomputed, the total.
    void EPrincipalChange();
    void EPrincipal_EChange();
    /// A rate changed (form active): its row recomputed with its years, the total.
    void EInteresesOrdChange();
    void EInteresDemoraChange();
    void ECostesGastosChange();
    void EInteresOtrosChange();
    /// Years typed (the field has the focus): days = years × 365, rounded; the row by the years; the total.
    void EAno1Change();
    void EAno2Change();
    void EAno3Change();
    void EAno4Change();
    /// Days typed (the field has the focus): years = days / 365 to one decimal; the row by days / 365
    /// itself; the total.
    void EDias1Change();
    void EDias2Change();
    void EDias3Change();
    void EDias4Change();
    /// An amount typed by hand in the chosen column: its twin (the name with "_E" added or removed) by
    /// conversion, then the total.
    void EChangePTAS(TEditFlotante* campo);
    void EChangeEuros(TEditFlotante* campo);
    /// A total changed while its own column is the disabled one of the chosen currency: the other total
    /// follows. The chosen currency's column is always the enabled one, so this never happens in use.
    void ETotalChange();
    void ETotal_EChange();
    /// Leaving a rate of 0: the row's years and days 0, the focus on its amount in the chosen currency.
    void EInteresesOrdExit(TEditFlotante* campo);
    /// Leaving years of 0: the focus on the row's days.
    void EAno1Exit(TEditFlotante* campo);
    /// `ETotal` = principal + the four peseta amounts (unrounded); `ETotal_E` = principal + the four euro
    /// amounts, rounded to cents.
    void ActualizaTotal();
    /// Enter on the days fields and the last row's amounts (see above); true when used.
    bool FormKeyPress(QWidget* control, QKeyEvent* tecla);
    /// Leaving an amount: the total brought up to date; a euro amount is kept to cents first.
    void DejaFocoActualiza(TEditFlotante* campo);
    void DejaFocoEuros(TEditFlotante* campo);

protected:
    void showEvent(QShowEvent* e) override;
    bool eventFilter(QObject* objeto, QEvent* e) override;

private:
    struct Fila {
        TEditFlotante *interes, *anos, *dias, *pesetas, *euros;
    };
    bool enEuros() const;
    bool activa() const;
    TEditFlotante* gemelo(const TEditFlotante* campo) const;
    TEditFlotante* importeDeFila(const Fila& f) const;
    void calculaFila(const Fila& f, double anos);
    void cambiaInteres(int fila);
    void cambiaAnos(int fila);
    void cambiaDias(int fila);
    void cambiaPrincipal(TEditFlotante* campo);

    std::array<Fila, 4> m_filas{};
    QPointer<QWidget> m_conFoco; // the field that last took the focus, so a stray FocusOut is ignored
};

/// The form while it exists.
extern QPointer<TFRespHipotec> FRespHipotec;

} // namespace nod
