#pragma once
// A fee calculator page for the front desk: the deed fee of an amount in euros (`Ges_Arancel_E`), the
// policy fee in pesetas on the office's configured scale (`ARANCEL_C`, with the guarantee, lower-table and
// invoice choices), and the VAT on the deed fee at a date, with the check that the percentage is the one in
// force (`CompruebaIVA`, whose question goes through the message service).
//
// Fees follow every change of the amounts and choices; the VAT check runs on "Comprobar &IVA" only,
// because it may ask the user. Amounts are typed the Spanish way (`TEditImporte`): "1500.50" is
// 1.500,50 €, never 150.050 €; an amount not yet whole ("1.234.5") shows no fee.

#include "companion/editimporte.h"
#include "nod_widgets_export.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QDoubleSpinBox;
class QLabel;
class QPushButton;

namespace nod NOD_WIDGETS_EXPORT {

class TCalculadoraHonorarios : public QWidget {
    Q_OBJECT
public:
    explicit TCalculadoraHonorarios(QWidget* parent = nullptr);

    TEditImporte* ECuantia = nullptr;       ///< deed amount in euros, two decimals ("1.234,56")
    TEditImporte* ECuantiaPoliza = nullptr; ///< policy amount in whole pesetas ("2.000.000")
    QCheckBox* CBAval = nullptr;            ///< guarantee: "SI" for `ARANCEL_C`
    QCheckBox* CBInferior = nullptr;        ///< lower table: "SI" for `ARANCEL_C`
    QComboBox* CBTipoDocumento = nullptr;   ///< item 0 "Factura" (kind "factura"), item 1 "Póliza"
    QDateEdit* EFecha = nullptr;
    QDoubleSpinBox* EIVA = nullptr;
    QPushButton* BBCompruebaIVA = nullptr;
    QLabel *LEscala = nullptr, *LHonorarioEscritura = nullptr, *LHonorarioPoliza = nullptr,
           *LCuotaIVA = nullptr, *LTotal = nullptr, *LResultadoIVA = nullptr;

    /// Recomputes the fees, the VAT quota and the total from the fields.
    void Calcula();
    /// Checks the VAT percentage at the date (may ask through the message service); shows and returns
    /// the verdict.
    bool CompruebaIva();
};

} // namespace nod
