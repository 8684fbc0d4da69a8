// The form layer in-process: a form that opens a box of its own while it is answered, or one shown
// without the modal seam, never waits.
#include "apps/nodrim/formularios.h"
#include "apps/nodrim/lote.h"
#include "companion/modal.h"

#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace nod;
using nod::lote::json;

namespace {

// A form whose accept button warns with Qt's own box before it closes, as a file dialog does for a
// file that is not there.
bool formaConCajaPropia() {
    QDialog d;
    d.setWindowTitle(QStringLiteral("Con aviso"));
    auto* aceptar = new QPushButton(QStringLiteral("&Aceptar"), &d);
    (new QVBoxLayout(&d))->addWidget(aceptar);
    QObject::connect(aceptar, &QPushButton::clicked, &d, [&d] {
        QMessageBox::warning(&d, QStringLiteral("Aviso"), QStringLiteral("Falta el fichero."));
        d.done(1);
    });
    return EjecutaModal(d) == 1;
}

// A form some routine shows with exec() instead of the modal seam.
int formaSinCostura() {
    QDialog d;
    d.setWindowTitle(QStringLiteral("Sin costura"));
    return d.exec();
}

// Neither waits for a clerk: the form is closed as cancelled and the request fails saying why.
TEST(CapaFormularios, ABoxOfTheFormsOwnOrAFormWithoutTheSeamIsClosedAndReported) {
    lote::InstalaRespuestaFormularios();
    lote::Rutinas rutinas;
    rutinas.agrega("FormaConCajaPropia", &formaConCajaPropia);
    rutinas.agrega("FormaSinCostura", &formaSinCostura);
    const json caja = lote::Atiende({{"fn", "FormaConCajaPropia"}, {"answers", {json::object()}}}, rutinas);
    EXPECT_EQ(caja.value("error", ""),
              "FormaConCajaPropia: the form \"Con aviso\" opened a box of its own, closed "
              "as cancelled: Aviso: Falta el fichero.");
    EXPECT_EQ(caja["dialogs"][0]["result"], 2) << caja.dump();
    EXPECT_EQ(lote::Atiende({{"fn", "FormaSinCostura"}}, rutinas).value("error", ""),
              "FormaSinCostura: the form \"Sin costura\" was shown without the modal seam (EjecutaModal) and "
              "closed as cancelled");
    FijaEjecutorModal({});
}

} // namespace
