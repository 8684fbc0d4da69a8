#pragma once
// The euro-peseta calculator: older deeds and registry entries state amounts in pesetas. One amount is
// converted in either direction at the configured fixed rate (`PesetasPorEuro`), beside four reference
// tables of common amounts. A form the suite's programs create themselves.
//
// The reference tables are fixed texts, the office's printed conversion card as it has always read, and
// are kept so even where a row differs from the rate by a peseta (50,00 € reads 8.319 there, while the
// rate gives 8.319,3; 0,50 € reads 83).
//
// Keys: Enter moves to the next control, from a button too; Escape closes (result 2). The two fields take
// digits and "," only as they are typed.

#include "nod_widgets_export.h"

#include <QDialog>
#include <QPointer>
#include <QStyledItemDelegate>

class QLineEdit;
class QPushButton;
class QTableWidget;

namespace nod NOD_WIDGETS_EXPORT {

class TFConversorMoneda : public QDialog {
    Q_OBJECT
public:
    explicit TFConversorMoneda(QWidget* owner = nullptr);

    QLineEdit *ePesetas = nullptr, *eEuros = nullptr;
    QPushButton *btnConvertir = nullptr, *BtnSalir = nullptr;
    /// The reference tables: pesetas to euros (2 and 4), euros to pesetas (1 and 3).
    QTableWidget *ValueListEditor1 = nullptr, *ValueListEditor2 = nullptr, *ValueListEditor3 = nullptr,
                 *ValueListEditor4 = nullptr;

    /// "&Convertir": converts into the empty field. Pesetas are read as a whole number ("1.000" is no
    /// number and counts as 0), euros as a number rounded to cents, so "0,0004" counts as empty.
    /// Pesetas 0 and euros above 0,001: the pesetas field shows the euros in whole pesetas with thousands
    /// points (1000 € gives "166.386"); otherwise euros below 0,001 and pesetas not 0: the euros field
    /// shows the pesetas in euros ("3,01" for 500). Both filled: nothing changes (the clerk empties the
    /// field to be computed).
    void btnConvertirClick();
    void BtnSalirClick();

    /// How a cell of a reference table is painted, for a readable table: the left column (the amount
    /// looked up) on a tinted background in bold, alternate rows shaded. Shared by the four tables.
    static void ValueListEditor1DrawCell(QStyleOptionViewItem& opcion, const QModelIndex& celda);
};

/// The form while it exists.
extern QPointer<TFConversorMoneda> FConversorMoneda;

} // namespace nod
