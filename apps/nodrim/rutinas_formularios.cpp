// The routines that show forms, offered to scripts by the form layer (nodrim-formularios). An owner
// argument is left out (a script has no window to own the form); colours are integers.
#include "apps/nodrim/formularios.h"
#include "apps/nodrim/lote.h"
#include "comms/editormail.h"
#include "comms/preguntadatosmovilcorreo.h"
#include "companion/config.h"
#include "companion/modal.h"
#include "ident/calculaletranif.h"
#include "ident/validareferenciacatastral.h"
#include "maintenance/seleccionmodorevisioncodcliente.h"
#include "prompts/preguntadatos.h"
#include "prompts/preguntas.h"
#include "protocol/calculametros.h"
#include "protocol/conversormoneda.h"
#include "protocol/masdatosfincasregistrales.h"
#include "protocol/preguntanumerofactura.h"
#include "protocol/responsabilidadhipotecaria.h"

#include <QDialog>

namespace nod::lote {

void RegistraRutinasFormularios(Rutinas& r) {
    // Dates and periods.
    r.agrega("PreguntaDesdeElDia", &PreguntaDesdeElDia);
    r.agrega("PreguntaDesdeHastaElDia",
             qOverload<int, TDateTime&, TDateTime&, int>(&PreguntaDesdeHastaElDia));
    r.agrega("PreguntaDesdeHastaElDia",
             qOverload<TDateTime&, TDateTime&, int, TColor, TColor>(&PreguntaDesdeHastaElDia));
    r.agrega("PreguntaDesdeHastaElDiaTitul", &PreguntaDesdeHastaElDiaTitul);
    r.agrega("PreguntaFecha", &PreguntaFecha);
    r.agrega("PreguntaDesdeHastaCuando", &PreguntaDesdeHastaCuando);
    r.agrega("PreguntaDesdeHastaFactura", &PreguntaDesdeHastaFactura);
    r.agrega("PreguntaMesAno", qOverload<int&, int&, const QString&, TColor, TColor>(&PreguntaMesAno));
    r.agrega("PreguntaMesAno", qOverload<int&, int&, int, const QString&>(&PreguntaMesAno));
    r.agrega("PreguntaMesAnoSerie", &PreguntaMesAnoSerie);
    r.agrega("PreguntaTrimAno", &PreguntaTrimAno);
    r.agrega("PreguntaSemestreAno", &PreguntaSemestreAno);
    r.agrega("PreguntaAno",
             qOverload<QString&, const QString&, const QString&, TColor, TColor>(&PreguntaAno));
    r.agrega("PreguntaAno", qOverload<int&, const QString&, const QString&, TColor, TColor>(&PreguntaAno));
    r.agrega("PreguntaIndiceModeloAntiguo", &PreguntaIndiceModeloAntiguo);

    // Numbers and amounts.
    r.agrega("PreguntaNumAno", &PreguntaNumAno);
    r.agrega("PreguntaNumeroMinuta", &PreguntaNumeroMinuta);
    r.agrega("PreguntaNumFecha", &PreguntaNumFecha);
    r.agrega("PreguntaCantidad", &PreguntaCantidad);
    r.agrega("PreguntaCantidadMaxMin", &PreguntaCantidadMaxMin);
    r.agrega("PreguntaCuantia", &PreguntaCuantia);
    r.agrega("PreguntaCuantiaOtorgante", &PreguntaCuantiaOtorgante);
    r.agrega("PreguntaPorcentaje", &PreguntaPorcentaje);
    r.agrega("PreguntaXDias", &PreguntaXDias);
    r.agrega("PreguntaNumCopiasPlusvalia", &PreguntaNumCopiasPlusvalia);
    r.agrega("PreguntaTurnoPolizas", &PreguntaTurnoPolizas);

    // Invoicing and listings.
    r.agrega("PreguntaNumeroFactura", qOverload<QString&, QString&>(&PreguntaNumeroFactura));
    r.agrega("PreguntaNumeroFactura", qOverload<QString&, QString&, QString&>(&PreguntaNumeroFactura));
    r.agrega("PreguntaNumeroFacturaSerie", &PreguntaNumeroFacturaSerie);
    r.agrega("PreguntaBalanMensaEspecial", &PreguntaBalanMensaEspecial);
    r.agrega("PreguntaBalanMensualCobro", &PreguntaBalanMensualCobro);
    r.agrega("PreguntaMoneda", &PreguntaMoneda);
    r.agrega("PreguntaSerieGastos", &PreguntaSerieGastos);
    r.agrega("PreguntaSerieAno", &PreguntaSerieAno);

    // Choices and texts.
    r.agrega("PreguntaTexto", &PreguntaTexto);
    r.agrega("PreguntaOficial", &PreguntaOficial);
    r.agrega(
        "PreguntaNotario", +[](QString& notario) { return PreguntaNotario(nullptr, notario); });
    r.agrega(
        "PreguntaProfesionJuridica", +[](int& codigo) { return PreguntaProfesionJuridica(nullptr, codigo); });
    r.agrega("PreguntaSexoClientes", &PreguntaSexoClientes);
    r.agrega("PreguntaModeloCarta", &PreguntaModeloCarta);
    r.agrega("PreguntaReparacionCliente", &PreguntaReparacionCliente);
    r.agrega("PreguntaCheckBox", &PreguntaCheckBox);
    r.agrega("PreguntaSerieCliente", &PreguntaSerieCliente);
    r.agrega("PreguntaSerieInteresado", &PreguntaSerieInteresado);
    r.agrega("PreguntaRefCatastral", &PreguntaRefCatastral);
    r.agrega("PreguntaFichero", &PreguntaFichero);
    r.agrega("PreguntaClave", &PreguntaClave);

    // Any kind of the data prompt as it stands, for the kinds no routine asks: the modal result.
    r.agrega(
        "MuestraPreguntaDatos", +[](const QString& tipo) {
            TFPreguntaDatos f(nullptr, tipo);
            return EjecutaModal(f);
        });

    // The other forms of the library.
    r.agrega(
        "PreguntaNumeroFacturaForm",
        +[](QString& serie, int& ano, int& numero, QString& bis, const QString& titulo) {
            return PreguntaNumeroFacturaForm(serie, ano, numero, bis, titulo);
        });
    r.agrega(
        "ICalculaLetraNif", +[] { ICalculaLetraNif(nullptr); });
    // The reference travels in the configuration (`RefCatastralActual`); here in and out as an argument.
    r.agrega(
        "IValidaReferenciaCatastral", +[](QString& referencia) {
            Config.SetRefCatastralActual(referencia);
            IValidaReferenciaCatastral(nullptr);
            referencia = Config.GetRefCatastralActual();
        });

    // The forms of a deed, by their class names: the caller's values in, what the caller reads from the
    // form once it has closed out (var parameters); the result is the modal result, or the area form's
    // `Tag`. One answer presses one button, so the calculators' "=" and "&Convertir", which leave the
    // form open, are the clerk's: a script gets back the figures it typed and the last surface computed.
    r.agrega(
        "TFRespHipotec", +[](double principalEuros, double& totalEuros, double& totalPesetas) {
            TFRespHipotec f(nullptr);
            f.Principal_E = principalEuros;
            const int resultado = EjecutaModal(f);
            totalEuros = f.ETotal_E->Valor();
            totalPesetas = f.ETotal->Valor();
            return resultado;
        });
    r.agrega(
        "TFMasDatosFincasRegistrales", +[](double codigo, const QString& concepto, QString& fincas) {
            TFMasDatosFincasRegistrales f(nullptr, codigo, concepto, fincas);
            const int resultado = EjecutaModal(f);
            fincas = f.Fincas;
            return resultado;
        });
    r.agrega(
        "TFConversorMoneda", +[](QString& pesetas, QString& euros) {
            TFConversorMoneda f(nullptr);
            f.ePesetas->setText(pesetas);
            f.eEuros->setText(euros);
            const int resultado = EjecutaModal(f);
            pesetas = f.ePesetas->text();
            euros = f.eEuros->text();
            return resultado;
        });
    r.agrega(
        "TFCalculaMetrosCuadrados",
        +[](QString& hectareas, QString& areas, QString& centiareas, double& metros) {
            TFCalculaMetrosCuadrados f(nullptr, hectareas, areas, centiareas);
            EjecutaModal(f);
            hectareas = f.EHectareas->text();
            areas = f.EAreas->text();
            centiareas = f.ECentiAreas->text();
            metros = f.MetrosCuadrados;
            return f.Tag;
        });

    // Mail: the client's mobile and address (both in and out), and the mail editor, whose "BBEnviar" sends
    // through the office's SMTP server.
    r.agrega(
        "PreguntaDatosMovilCorreo", +[](const QString& nombre, QString& movil, QString& correo) {
            return PreguntaDatosMovilCorreo(nullptr, nombre, movil, correo);
        });
    r.agrega("MuestraEmail", &MuestraEmail);
    // The client-code revision's form. The list's preview asks nothing: it takes no answer, and is reported
    // among the dialogs with the lines it shows.
    r.agrega(
        "SeleccionModoRevisionCodCliente", +[] {
            EjecutorModal anterior;
            anterior = FijaEjecutorModal([&anterior](QDialog& d) {
                if (d.objectName() != QLatin1String("QRListaRevisionCodCliente") ||
                    !FSeleccionModoRevisionCodCliente)
                    return anterior ? anterior(d) : d.exec();
                json lineas = json::array();
                for (const TMensajeRevision& l : FSeleccionModoRevisionCodCliente->Revision().Mensajes())
                    lineas.push_back({{"TABLA", l.TABLA.toStdString()},
                                      {"MENSAJE", l.MENSAJE.toStdString()},
                                      {"CODCLIENTE", l.CODCLIENTE}});
                if (PeticionEnCurso* p = PeticionEnCurso::Actual())
                    p->anotaFormulario({{"kind", "preview"},
                                        {"title", d.windowTitle().toStdString()},
                                        {"lines", std::move(lineas)},
                                        {"answer", nullptr},
                                        {"defaulted", false},
                                        {"result", 1}});
                return 1;
            });
            const bool aceptado = SeleccionModoRevisionCodCliente(nullptr);
            FijaEjecutorModal(std::move(anterior));
            return aceptado;
        });
}

} // namespace nod::lote
