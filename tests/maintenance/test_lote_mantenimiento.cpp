// The maintenance tools as scripts call them through `nodrim batch`: the lines of a check as JSON, every
// check registered under its name, and the closing procedure's question answered from the request.
#include "apps/nodrim/lote.h"
#include "maintenance/escuchacierre.h"
#include "maintenance/revisioncodcliente.h"
#include "tests/maintenance/ayudas.h"
#include "tests/support/oficina_prueba.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace nod;
using namespace nod::lote;

namespace {

json pide(const std::string& linea) {
    return AtiendeLinea(linea, 1);
}

TEST(LoteMantenimiento, ACheckGivesItsLines) {
    prueba::OficinaPrueba o;
    Config.Carga(prueba::OficinaMuestra());
    const json r = pide(R"({"fn":"MuestraCodClienteIncorrectoEnCLAVES","args":[3]})");
    ASSERT_FALSE(r.contains("error")) << r.dump();
    ASSERT_EQ(r["result"].size(), 2u) << r.dump();
    EXPECT_EQ(r["result"][0]["TABLA"], "En la Tabla CLAVES del NOTARIO 1");
    EXPECT_TRUE(r["result"][0]["CODCLIENTE"].is_number_integer());
    EXPECT_NE(r["result"][0]["MENSAJE"].get<std::string>().find(" referencia al cliente "),
              std::string::npos);

    EXPECT_EQ(pide(R"({"fn":"MensajeTabla","args":["claves",1,""]})")["out"][0],
              "En la Tabla CLAVES de BORRADOR");
    EXPECT_EQ(pide(R"({"fn":"MuestraCodClienteIncorrectoEnTabla","args":["PLUSVAL"]})")["result"].size(), 1u);
}

TEST(LoteMantenimiento, EveryTableHasItsCheck) {
    for (const QString& t : TablasConCodCliente()) {
        const std::string args = t == QLatin1String("TIT_CLI") ? "[]" : "[0]";
        const json r =
            pide(R"({"fn":"MuestraCodClienteIncorrectoEn)" + t.toStdString() + R"(","args":)" + args + "}");
        EXPECT_FALSE(r.contains("error")) << t.toStdString() << ": " << r.dump();
    }
}

TEST(LoteMantenimiento, TheAbortQuestionIsAnsweredFromTheRequest) {
    prueba::OficinaPrueba o(u"[ALIAS]\nDB=DATOS\n[ACTUALIZACION]\nTiempoEspera=0\nPausaMs=0\n"
                            "EsperaConexionMs=50\n"_s);
    o.escribe(u"DATOS/LEEME.TXT"_s, {});
    prueba::FilaConexion("127.0.0.1", QDateToTDateTime(QDate(2024, 5, 31)), "23:59:59");
    // The workstation's program is told every pass and never leaves: the fifth pass asks.
    TEscuchaCierre programa;
    ASSERT_TRUE(programa.Escucha(0, u"127.0.0.1"_s));
    const json r = pide(R"({"fn":"NodrimsCerrados","args":[1],"config":{"PuertoActualiz":)" +
                        std::to_string(programa.Puerto()) + R"(},"today":"2024-05-31","answers":[6]})");
    ASSERT_FALSE(r.contains("error")) << r.dump();
    EXPECT_EQ(r["result"], true);
    EXPECT_EQ(r["dialogs"].back()["kind"], "Mensaje_NoSi");
    EXPECT_EQ(r["dialogs"].back()["title"], "Atención");
}

} // namespace
