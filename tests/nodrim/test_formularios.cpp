// Forms answered through `nodrim batch`, as a script answers them: every kind of the data prompt and
// every other form of the library, the values they report, what their routines copy out, and the answers
// that do not fit (each an error naming the control, the stream going on).
#include "companion/tdatetime.h"
#include "tests/support/lote_proceso.h"

#include <QFile>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using json = nlohmann::json;

namespace {

double serie(int a, int m, int d) {
    return nod::QDateToTDateTime(QDate(a, m, d));
}

struct Caso {
    const char* nombre;
    json peticion;
    std::function<void(const json& respuesta)> comprueba;
};

// The form of a response's first dialog.
const json& formulario(const json& r) {
    static const json nada;
    for (const json& d : r["dialogs"])
        if (d["kind"] == "form") return d;
    return nada;
}

json pide(const char* fn, json args, json respuestas, json extra = json::object()) {
    json p{
        {"fn", fn}, {"args", std::move(args)}, {"answers", std::move(respuestas)}, {"today", "2024-03-10"}};
    p.update(extra);
    return p;
}

json fija(json valores, const char* pulsa = nullptr) {
    json r{{"set", valores.is_null() ? json::object() : std::move(valores)}};
    if (pulsa) r["press"] = pulsa;
    return r;
}

// Runs every request of `casos` through one `nodrim batch` on the sample office and checks each response.
void ejecutaCasos(const std::vector<Caso>& casos) {
    std::vector<json> peticiones;
    for (const Caso& c : casos)
        peticiones.push_back(c.peticion);
    const std::vector<json> r = nod::prueba::EjecutaLote(
        QStringLiteral(NODRIM_EXE), QStringLiteral(NOD_SOURCE_DIR "/sample-office"), peticiones);
    ASSERT_EQ(r.size(), casos.size());
    for (std::size_t i = 0; i < casos.size(); ++i) {
        SCOPED_TRACE(casos[i].nombre);
        casos[i].comprueba(r[i]);
    }
}

// The form shows these values and, when given, this caption.
void compruebaFormulario(const json& r, const json& valores, const char* titulo) {
    const json& f = formulario(r);
    for (const auto& [control, valor] : valores.items())
        EXPECT_EQ(f["values"][control], valor) << control;
    if (titulo) {
        EXPECT_EQ(f["title"], titulo);
    }
}

// Accepted, with these out values and no warning (not even the offscreen platform's notices); the form
// showed `mostrados`.
std::function<void(const json&)> sale(json out, json resultado = true, json mostrados = json::object(),
                                      const char* titulo = nullptr) {
    return [=](const json& r) {
        EXPECT_FALSE(r.contains("error")) << r.dump();
        EXPECT_FALSE(r.contains("warnings")) << r.dump();
        EXPECT_EQ(r["out"], out) << r.dump();
        EXPECT_EQ(r["result"], resultado);
        compruebaFormulario(r, mostrados, titulo);
    };
}

// The request failed with an error that contains `texto`.
std::function<void(const json&)> falla(std::string texto) {
    return [texto](const json& r) {
        ASSERT_TRUE(r.contains("error")) << r.dump();
        EXPECT_NE(r["error"].get<std::string>().find(texto), std::string::npos) << r["error"];
    };
}

// The form of MuestraPreguntaDatos: its panel, some values shown, the modal result and the caption.
std::function<void(const json&)> muestra(const char* panel, json valores, int resultado = 1,
                                         const char* titulo = nullptr) {
    return [=](const json& r) {
        EXPECT_FALSE(r.contains("error")) << r.dump();
        EXPECT_EQ(r["result"], resultado);
        EXPECT_EQ(formulario(r)["panel"], panel);
        compruebaFormulario(r, valores, titulo);
    };
}

json datos(const char* tipo, json respuestas) {
    return pide("MuestraPreguntaDatos", json::array({tipo}), std::move(respuestas));
}

TEST(Formularios, EveryKindOfTheDataPromptAnsweredThroughBatch) {
    const double hoy = serie(2024, 3, 10);
    const std::vector<Caso> casos = {
        {"Año", pide("PreguntaAno", {0, "Ejercicio", "", 0, 0}, {fija({{"seAno", "98"}})}), sale({1998})},
        {"AñoSerie", pide("PreguntaSerieAno", {2020, "A"}, {fija({{"seAno2", 21}, {"rbSerieC", true}})}),
         sale({2021, "C"})},
        {"BalanMensaEspecial",
         pide("PreguntaBalanMensaEspecial", {2024, "", false, false, false, "", "Balance"},
              {fija({{"eIVA2", "10.5"}, {"rbCobro", true}, {"cbSuplidos", true}, {"cbSerieA3", false}})}),
         sale({2024, "10,5", false, true, true, "BCEF"})},
        {"BalanMensualCobro",
         pide("PreguntaBalanMensualCobro", {0, 0, false, false, "", 0, 0, "Cobros"},
              {fija({{"cbMes16", "FEBRERO"}, {"cbTodas16", false}})}),
         sale({2, 2024, false, false, "ABCEF", serie(2024, 2, 1), serie(2024, 2, 29)})},
        {"Cantidad", pide("PreguntaCantidad", {0, "Importe:", "E"}, {fija({{"FECantidad", "1500.50"}})}),
         sale({1500.5})},
        {"CantidadMaxMin",
         pide("PreguntaCantidadMaxMin", {0, 0, "P"}, {fija({{"FECantidad", "1.000"}, {"FECantidadMaxima", 250000}})}),
         sale({1000.0, 250000.0})},
        {"CheckBox", pide("PreguntaCheckBox", {false, "Copias", "Imprimir"}, {fija({{"cbCheckBox", true}})}),
         sale({true})},
        {"CorredorEstadistica", datos("CorredorEstadistica", {fija({{"rbValladolid", true}})}),
         muestra("gbCorredorEstadistica", {{"cbMes11", "FEBRERO"}, {"seAno11", "2024"}, {"rbGranada", true}})},
        {"DesdeDia", pide("PreguntaDesdeElDia", {0, 2024, 0, "Desde", "Nota"}, {fija({{"dtpDesdeFecha", "2024-05-17"}})}),
         sale({serie(2024, 5, 17)})},
        {"FechaDesdeHasta",
         pide("PreguntaDesdeHastaElDia", {hoy, hoy, 0, 0, 0}, {fija({{"dtpDesde", "2024-01-01"}})}),
         sale({serie(2024, 1, 1), hoy})},
        {"FechaDesdeHastaCuando",
         pide("PreguntaDesdeHastaCuando", {0, 0, 0, 0, "Pendientes", 0, 0}, {fija({{"dtpCuando", "2024-12-31"}})}),
         sale({hoy, hoy, serie(2024, 12, 31)})},
        {"FechaDesdeHastaFactura",
         pide("PreguntaDesdeHastaFactura", {0, 0, "", 0, "Facturas", 0},
              {fija({{"cbTipoPendientes", true},
                     {"cbTipoDispensadas", true},
                     {"cbTipoCobradas", true},
                     {"cbTipoEspeciales", true},
                     {"cbTipoMorosos", true},
                     {"dtpDesde3", "2024-01-01"}})}),
         sale({serie(2024, 1, 1), hoy, "NDSEM"})},
        {"FechaDesdeHastaCorretaje", datos("FechaDesdeHastaCorretaje", {fija({{"rbSinCorretaje", true}})}),
         muestra("pnlFechaDesdeHasta2", {{"rbConCorretaje", true}, {"dtpDesde3", "2024-03-10"}}, 1,
                 "Indique un intervalo de fechas y tipo de listado")},
        {"ImpresionTestamentos",
         datos("ImpresionTestamentos", {fija({{"EDesde", "12a3"}, {"rbUnoAUno", true}})}),
         muestra("pnlImpresionTestamentos", {{"seAno15", "2024"}, {"EDesde", "0"}, {"rbTodosTestamentos", true}})},
        {"RangoNumeros", datos("RangoNumeros", {fija({{"EHasta", "40"}})}),
         [](const json& r) {
             muestra("pnlImpresionTestamentos", {{"EHasta", "0"}})(r);
             EXPECT_FALSE(formulario(r)["values"].contains("rbTodosTestamentos")); // hidden in this kind
         }},
        {"FoliosMatriz", datos("FoliosMatriz", {fija({{"seFolios", "1000"}})}),
         muestra("pnlFoliosMatriz", {{"seFolios", "0"}})},
        {"Garajes", datos("Garajes", {fija({{"seGarajes", 2}, {"seAnejos", 1}})}),
         muestra("pnlGarajes", {{"seGarajes", "0"}, {"seTrasteros", "0"}})},
        {"MesAño", pide("PreguntaMesAno", {0, 0, "Listado", 0, 0}, {fija({{"cbMes", "DICIEMBRE"}, {"seAno4", "05"}})}),
         sale({12, 2005})},
        {"MesAñoSerie",
         pide("PreguntaMesAnoSerie", {0, 0, "", "Facturación", "ABR"}, {fija({{"cbSerieB14", false}})}),
         sale({2, 2024, "AR"})},
        {"TrimestreAño", pide("PreguntaTrimAno", {0, 0, "Trimestre", 0, 0}, {json::object()}), sale({4, 2023})},
        {"TrimestralSinNif", datos("TrimestralSinNif", {fija({{"CBExclusion", false}, {"ELetraNIF", "x"}})}),
         muestra("pnlTrimestralSinNif", {{"cbTrimestre2", "CUARTO"}, {"seAno12", "2023"}, {"CBExclusion", true}})},
        {"SemestreAño",
         pide("PreguntaSemestreAno", {0, 0, "Semestre", 0, 0}, {json::object()}, {{"today", "2024-07-03"}}),
         sale({1, 2024})},
        {"Notario", pide("PreguntaNotario", {""}, {fija({{"cbNotario", 1}})}), sale({"Dª. Elena Martín Soto"})},
        {"ProfesionJuridica", pide("PreguntaProfesionJuridica", {5}, {json::object()}), sale({5})},
        {"NumeroAño", pide("PreguntaNumAno", {7, 2020, "Escritura", 0, true}, {fija({{"seNumero2", "12ab3"}})}),
         sale({123, 2020})},
        {"NumeroFactura",
         pide("PreguntaNumeroFactura", {"", "", ""}, {fija({{"ENOTARIOSERIE", "a"}, {"EANONUMEROBIS", "23b"}})}),
         sale({"1A", "202400023B", " "})},
        {"NumeroFecha", pide("PreguntaNumFecha", {3, hoy, "Póliza", 0, true}, {fija({{"seNumero", 9}, {"tdpFecha", "2024-03-01"}})}),
         sale({9, serie(2024, 3, 1)})},
        {"NumeroMinuta",
         pide("PreguntaNumeroMinuta", {5, 2024, "Minuta", "", true}, {fija({{"seNumero9", "100000"}})}),
         sale({10000, 2024})},
        {"NumeroMinuta2", datos("NumeroMinuta2", {fija({{"seNumero9", "-1"}})}),
         muestra("pnlNumeroMinuta", {{"seNumero9", "1"}}, 2)},
        {"ModeloCarta", pide("PreguntaModeloCarta", {0}, {fija({{"rbBlando", true}})}, {{"config", {{"nTonoCarta", 1}}}}),
         sale({0}, true, {{"rbMedio", true}})},
        {"ModeloIndicSociedades",
         pide("PreguntaIndiceModeloAntiguo", {0, 0, false}, {fija({{"rbConCuantias", true}})}), sale({2, 2024, true})},
        {"Moneda",
         pide("PreguntaMoneda", {"", 0, 0, "Moneda"}, {fija({{"CBMoneda", "Euro"}})},
              {{"config", {{"SoloEuros", false}, {"MonedaListados", "P"}}}}),
         sale({"E"}, true, {{"CBMoneda", "Peseta"}})},
        {"Oficial", pide("PreguntaOficial", {""}, {fija({{"CBOficial", 0}})}),
         [](const json& r) {
             EXPECT_EQ(r["result"], true);
             EXPECT_EQ(r["out"], json::array({"IÑAKI ORTEGA GONZÁLEZ"})) << r.dump();
         }},
        {"SerieCliente", pide("PreguntaSerieCliente", {false, "AB", "Series"}, {fija({{"cbClienteF", true}})}),
         sale({false, "ABF"})},
        {"SerieGastos",
         pide("PreguntaSerieGastos", json::array(), {fija({{"rbSerieN", true}})}, {{"config", {{"nPreguntaSerieGastos", 1}}}}),
         sale(json::array())},
        {"XDias", pide("PreguntaXDias", {15, "Días"}, {fija({{"EDias", "7"}})}), sale({7})},
        {"Renumerar", datos("Renumerar", {fija({{"FEPoliza1", 100}, {"FEPoliza2", 140}, {"FENuevo1", 500}})}),
         muestra("pnlRenumerar", {{"FENuevo2", "0"}, {"seAno10", "2024"}})},
        {"LimiteIndubitadas", datos("LimiteIndubitadas", {fija({{"seLimite", 700}})}),
         muestra("PnlLimiteIndubitadas", {{"seLimite", "600"}, {"sePoliza", "0"}})},
        {"TurnoPolizas",
         pide("PreguntaTurnoPolizas", {0, 0, 0, 0, "Turno", 0, 0},
              {fija({{"CBTrimestreTP", "TERCERO"}, {"FEAportacionTP", "12,5"}})}),
         sale({2024, 3, 12.5, 40000.0})},
        {"ReferenciaBancaria", datos("ReferenciaBancaria", {fija({{"EReferencia", "12345678901"}})}),
         muestra("pnlReferenciaBancaria", {{"EReferencia", ""}})},
        {"ReferenciaCatastral",
         pide("PreguntaRefCatastral", {""}, {fija({{"eRefCatastral", "9872023vh5797s0001wx"}})}),
         sale({"9872023VH5797S0001WX"})},
        {"CriterioCajaFactura", datos("CriterioCajaFactura", {fija({{"rbPreguntarFactura", true}})}),
         muestra("pnlCriterioCajaFactura", {{"rbIncrementarFactura", true}})},
        {"PideNumeroFactura", datos("PideNumeroFactura", {fija({}, "btnCANCELAR")}),
         muestra("PnlPideNumeroFactura", {{"ENUMEROFAC", "0"}}, 2)},
        {"PideTipoFactura", datos("PideTipoFactura", {fija({{"cbMorosos", false}})}),
         muestra("pnlPideTipoFactura", {{"cbsoloIVA", true}, {"cbMorosos", true}})},
        {"SexoClientes", pide("PreguntaSexoClientes", {"", "Cliente", 0, 0}, {fija({{"CBSexo", 2}})}), sale({"S"})},
        {"Porcentaje", pide("PreguntaPorcentaje", {15.0, "Descuento"}, {fija({{"FEPorcentaje", "7,5"}})}), sale({7.5})},
        {"ReparacionClientes", pide("PreguntaReparacionCliente", {""}, {fija({{"cbReparacion2", false}})}),
         sale({"134"})},
        {"Corretaje", datos("Corretaje", {fija({{"FECantidad", "3"}})}),
         muestra("pnlCantidad", {{"FECantidad", "0,00"}}, 1, "Modificación del corretaje del concepto.")},
        {"Cuantia", pide("PreguntaCuantia", {60000.0, "E"}, {fija({{"FECantidad", "1.500,25"}})}), sale({1500.25})},
        {"CuantiaOtorgante", pide("PreguntaCuantiaOtorgante", {"Cuantía:"}, {fija({{"FECantidad", 99.5}})}),
         sale(json::array(), 99.5)},
        {"NumCopiasPlusvalia", pide("PreguntaNumCopiasPlusvalia", {0}, {fija({{"FECantidad", "3"}})}), sale({3})},
        {"Texto", pide("PreguntaTexto", {"Nombre:", "x"}, {fija({{"eTexto", "Pérez & Cía <S.L.>"}})}),
         sale({"Pérez & Cía <S.L.>"})},
        {"Cancel leaves the outputs", pide("PreguntaNumAno", {7, 2020, "Escritura", 0, true}, {fija({{"seNumero2", 9}}, "btnCANCELAR")}),
         sale({7, 2020}, false)},
    };
    ejecutaCasos(casos);
}

TEST(Formularios, TheOtherFormsAndTheConfirmations) {
    QTemporaryDir modelos;
    QFile carta(modelos.filePath(QStringLiteral("carta.doc")));
    ASSERT_TRUE(carta.open(QIODevice::WriteOnly));
    carta.close();
    const std::string carpeta = modelos.path().toStdString();
    const std::vector<Caso> casos = {
        {"PreguntaClave",
         pide("PreguntaClave", {"Facturación", "Clave:", "ZEB"}, {fija({{"EClave", "ZEB"}})}),
         sale(json::array(), true, {{"EClave", ""}})},
        {"PreguntaFichero",
         pide("PreguntaFichero", {"Plantilla", "", carpeta}, {fija({{"fileNameEdit", "carta.doc"}})}),
         sale({carpeta + "/carta.doc"})},
        {"PreguntaFichero, a file that is not there",
         pide("PreguntaFichero", {"Plantilla", "", carpeta}, {fija({{"fileNameEdit", "no.doc"}})}),
         falla("button \"Abrir\" is disabled")},
        {"PreguntaNumeroFacturaForm",
         pide("PreguntaNumeroFacturaForm", {"", 0, 0, "", ""},
              {fija({{"ESerie", "b"}, {"EAno", "24"}, {"ENumero", "15"}})}),
         sale({"B", 2024, 15, ""})},
        {"PreguntaNumeroFacturaSerie",
         pide("PreguntaNumeroFacturaSerie", {"A", 27, "Reimprimir", "", 2023, ""},
              {fija({{"ENumero", "28"}})}),
         sale({"A", 28})},
        {"ICalculaLetraNif",
         pide("ICalculaLetraNif", json::array(), {fija({{"ENIF", "12345678"}}, "BBSalir")}),
         sale(json::array(), nullptr, json::object(), "Calculo de la letra del N.I.F.")},
        {"ICalculaLetraNif has no accept button", pide("ICalculaLetraNif", json::array(), {json::object()}),
         falla("has no accept button")},
        {"IValidaReferenciaCatastral",
         pide("IValidaReferenciaCatastral", {"1234"},
              {fija({{"ERCRefCatastral", "9872023vh5797s0001wx"}}, "BBAceptar")}),
         sale({"9872023VH5797S0001WX"}, nullptr)},
        {"ConfirmaBorradoApuntes of last year",
         pide("ConfirmaBorradoApuntes", {serie(2023, 12, 20)}, {6, 6, 6, 7}),
         [](const json& r) {
             sale(json::array(), false)(r);
             ASSERT_EQ(r["dialogs"].size(), 5u);
             EXPECT_EQ(r["dialogs"][4]["text"], "Proceso cancelado.");
         }},
    };
    ejecutaCasos(casos);
}

TEST(Formularios, AnswersThatDoNotFitFailTheRequestAndTheStreamGoesOn) {
    const std::vector<Caso> casos = {
        {"unknown control", pide("PreguntaMesAno", {0, 0, "Listado", 0, 0}, {fija({{"cbMez", 1}})}),
         [](const json& r) {
             falla("PreguntaMesAno: the form \"Listado\" has no control \"cbMez\"")(r);
             EXPECT_EQ(r["out"], json::array()); // nothing copied out
             EXPECT_EQ(formulario(r)["result"], 2);
         }},
        {"wrong type", pide("PreguntaMesAno", {0, 0, "Listado", 0, 0}, {fija({{"seAno4", true}})}),
         falla("control \"seAno4\" takes a string or an integer, not a boolean")},
        {"not a value", pide("PreguntaMesAno", {0, 0, "Listado", 0, 0}, {fija({{"seAno4", {1, 2}}})}),
         falla("control \"seAno4\" takes a string, a number or a boolean, not array")},
        {"not an item", pide("PreguntaMesAno", {0, 0, "Listado", 0, 0}, {fija({{"cbMes", "Enero"}})}),
         falla("control \"cbMes\" has no item \"Enero\"")},
        {"date outside the year",
         pide("PreguntaDesdeElDia", {0, 2024, 0, "Desde", ""}, {fija({{"dtpDesdeFecha", "2023-05-17"}})}),
         falla("control \"dtpDesdeFecha\" takes dates from 2024-01-01 to 2024-12-31")},
        {"disabled field",
         pide("PreguntaNumFecha", {3, 0, "Póliza", 0, false}, {fija({{"tdpFecha", "2024-03-01"}})}),
         falla("control \"tdpFecha\" is disabled")},
        {"disabled accept (no invoice table row)", datos("PideNumeroFactura", {json::object()}),
         falla("button \"btnAceptar\" is disabled")},
        {"no answer left", pide("PreguntaMesAno", {0, 0, "Listado", 0, 0}, json::array()),
         [](const json& r) {
             falla("the form \"Listado\" would wait for a clerk: no answer is left for it")(r);
             EXPECT_EQ(formulario(r)["defaulted"], true);
         }},
        {"a modal result where a form asks", pide("PreguntaMesAno", {0, 0, "Listado", 0, 0}, {1}),
         falla("answers[0]: a form asks for {\"set\": {...}, \"press\": \"...\"}, not 1")},
        {"a form answer where a box asks", pide("ConfirmaBorradoApuntes", {serie(2024, 3, 10)}, {fija({})}),
         falla("box asks for a modal result")},
        {"a form answer of another shape",
         pide("PreguntaMesAno", {0, 0, "Listado", 0, 0}, {{{"sett", json::object()}}}),
         falla("answers[0]: {\"sett\":{}} is not a modal result (0 to 11) nor a form answer")},
        {"answers left unused",
         pide("PreguntaMesAno", {0, 0, "Listado", 0, 0}, {json::object(), json::object()}),
         falla("1 answer left unused")},
        {"NumeroMinuta cannot take -1: the field keeps 1",
         datos("NumeroMinuta", {fija({{"seNumero9", "-1"}})}),
         muestra("pnlNumeroMinuta", {}, 1)}, // the field cannot take -1 in this kind: accepted as shown
        {"the stream goes on", pide("AliasNotario", {0}, json::array()), sale(json::array(), "DBNOTARIO1")},
    };
    ejecutaCasos(casos);
}

// The forms of a deed by their class names: the mortgage calculator's handlers run as the figures are
// typed, the registered properties come back encoded in their sorted order, the calculators' fields keep
// their key filters and hand back what was typed; a figure typed into the column of the other currency is
// refused.
TEST(Formularios, TheFormsOfADeed) {
    const std::vector<Caso> casos = {
        {"RespHipotec",
         pide("TFRespHipotec", {100000, 0, 0}, {fija({{"EInteresesOrd", "5"}, {"EAno1", "2"}})}),
         sale({110000.0, 16638600.0 + 1663860.0}, 1, json::object(), "Responsabilidad Hipotecaria")},
        {"RespHipotecPesetasDisabled", pide("TFRespHipotec", {100000, 0, 0}, {fija({{"EPrincipal", "5"}})}),
         falla("EPrincipal")},
        {"FincasAceptar",
         pide("TFMasDatosFincasRegistrales", {202401234.1, "COMPRAVENTA", " B|a|A| "}, {fija({})}),
         sale({"a|A|B"}, 1)}, // the list sorts as the clerk reads, "a" before "A"
        // "A&ñadir" leaves the form open: the clerk's next steps are the next answers, listed under "then".
        {"FincasAnadir",
         pide("TFMasDatosFincasRegistrales", {202401234.1, "COMPRAVENTA", "B|A"},
              {fija({}, "BBAnadir"), fija({{"EFincaRegistral", "C"}}, "BBAceptarCambios"),
               fija({}, "BBAceptar")}),
         [](const json& r) {
             sale({"A|B|C"}, 1)(r);
             EXPECT_EQ(formulario(r)["then"].size(), 2u) << r.dump();
         }},
        {"FincasAnadirSinMas",
         pide("TFMasDatosFincasRegistrales", {202401234.1, "COMPRAVENTA", "B|A"}, {fija({}, "BBAnadir")}),
         falla("is still open after its button was pressed, and no form answer follows")},
        {"FincasCancelar",
         pide("TFMasDatosFincasRegistrales", {202401234.1, "COMPRAVENTA", "B|A"}, {fija({}, "BBCancelar")}),
         sale({"B|A"}, 2)},
        {"ConversorMoneda", pide("TFConversorMoneda", {"", ""}, {fija({{"eEuros", "1.000,5x"}}, "BtnSalir")}),
         sale({"", "1000,5"}, 2)},
        {"CalculaMetrosAceptar",
         pide("TFCalculaMetrosCuadrados", {"2", "35", "12", 0}, {fija({{"EAreas", "40"}})}),
         sale({"2", "40", "12", 0.0}, 1)},
        {"CalculaMetrosCancelar",
         pide("TFCalculaMetrosCuadrados", {"2", "35", "12", 0}, {fija({}, "BBCancelar")}),
         sale({"2", "35", "12", 0.0}, 0)},
    };
    ejecutaCasos(casos);
}

} // namespace
