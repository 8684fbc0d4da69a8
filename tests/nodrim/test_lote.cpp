#include "apps/nodrim/lote.h"
#include "companion/mensajes.h"
#include "companion/registro.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <sstream>

using namespace nod;
using namespace nod::lote;
using nod::prueba::OficinaPrueba;

namespace {

// A lambda as the plain function the routine table takes.
template <class F> auto puntero(F f) {
    return +f;
}

Rutinas rutinasDePrueba() {
    Rutinas r;
    r.agrega("incrementa", puntero([](int& n) { return ++n; }));
    r.agrega("mitad", puntero([](double x) { return x / 2; }));
    r.agrega("doble", puntero([](const QString& s) { return s + s; }));
    r.agrega("forma", puntero([](int) { return QStringLiteral("int"); }));
    r.agrega("forma", puntero([](double) { return QStringLiteral("double"); }));
    r.agrega("caracter", puntero([](QChar c) { return QString(c); }));
    r.agrega("lanza", puntero([](int) -> bool { throw std::runtime_error("boom"); }));
    // Asks `n` yes/no questions after an error box (which asks nothing) and counts the yeses.
    r.agrega("pregunta", puntero([](int n) {
                 Mensaje_Error(QStringLiteral("Aviso"), QStringLiteral("Error"));
                 int sies = 0;
                 for (int i = 0; i < n; ++i)
                     sies += NoSi(QStringLiteral("¿Seguro?"));
                 return sies;
             }));
    r.agrega("avisa", puntero([](const QString& texto) {
                 if (!texto.isEmpty()) qCWarning(lcTablas).noquote() << texto;
                 qCInfo(lcTablas) << "only an information line";
                 return true;
             }));
    return r;
}

json pide(std::string_view linea) {
    return AtiendeLinea(linea, 1, rutinasDePrueba());
}

std::string error(const json& r) {
    return r.contains("error") ? r["error"].get<std::string>() : std::string();
}

// The responses to a stream of request lines.
std::vector<json> procesa(const std::string& entrada) {
    std::istringstream in(entrada);
    std::ostringstream out;
    Procesa(in, out, rutinasDePrueba());
    std::istringstream lineas(out.str());
    std::vector<json> respuestas;
    for (std::string l; std::getline(lineas, l);)
        respuestas.push_back(json::parse(l));
    return respuestas;
}

std::string anidado(int niveles) {
    return R"({"fn":"doble","args":)" + std::string(niveles - 1, '[') + std::string(niveles - 1, ']') + "}";
}

} // namespace

// The whole response of requests that are answered.
TEST(Lote, OutParametersIntegersAndFloatsInTheResponse) {
    const struct {
        const char* linea;
        const char* respuesta;
    } casos[] = {
        {R"({"fn":"incrementa","args":[41]})", R"({"dialogs":[],"out":[42],"result":42})"},
        {R"({"fn":"forma","args":[12]})", R"({"dialogs":[],"out":[],"result":"int"})"},
        {R"({"fn":"forma","args":[12.0]})", R"({"dialogs":[],"out":[],"result":"double"})"},
        // An integer fits a float parameter.
        {R"({"fn":"mitad","args":[3]})", R"({"dialogs":[],"out":[],"result":1.5})"},
        {R"({"fn":"mitad","args":[24]})", R"({"dialogs":[],"out":[],"result":12.0})"},
        {R"({"fn":"doble","args":["a"],"today":"2024-02-29"})", R"({"dialogs":[],"out":[],"result":"aa"})"},
    };
    for (const auto& c : casos)
        EXPECT_EQ(pide(c.linea).dump(), c.respuesta) << c.linea;
}

// Bad requests, lenient details (a NUL, trailing junk, a loose date) and integers out of range (refused,
// not wrapped): each an error naming the fault.
TEST(Lote, ErrorsNameTheRoutineAndWhatItExpects) {
    const std::string a = R"({"fn":"doble","args":["a"])";
    const struct {
        std::string linea;
        const char* contiene;
    } casos[] = {
        {R"({"fn":"NoExiste","args":[]})", "unknown routine \"NoExiste\""},
        {R"({"fn":"doble","args":[1]})", "doble: arguments (integer) fit none of doble(string)"},
        {R"({"fn":"doble","args":["a","b"]})", "fit none of"},
        {R"({"fn":"caracter","args":["ab"]})", "caracter(character)"},
        {R"({"fn":"incrementa","args":[2147483648]})", "incrementa(integer&)"},
        {R"({"fn":"lanza","args":[1]})", "lanza: boom"},
        {a + R"(,"config":{"NoExiste":1}})", "unknown configuration value"},
        {a + R"(,"answers":"1"})", "answers"},
        {R"({"args":[]})", "\"fn\""},
        {R"(not json)", "line 1: not valid JSON at byte offset 1"},
        {a + "}" + '\0' + "junk", "not valid JSON at byte offset 27"},
        {std::string(R"({"fn":"doble","args":["a)") + '\0' + R"("]})", "not valid JSON at byte offset 24"},
        {a + R"(,"today":"31/05/2024"})", "YYYY-MM-DD"},
        {a + R"(,"today":"2024/05/31"})", "YYYY-MM-DD"},
        {a + R"(,"today":"2024-05-31junk"})", "YYYY-MM-DD"},
        {a + R"(,"today":"2024-5-31"})", "YYYY-MM-DD"},
        {a + R"(,"today":"2024-02-30"})", "YYYY-MM-DD"},
        {a + "} x", "not valid JSON at byte offset 28"},
        {R"({"fn":"mitad","args":[1e999]})", "line 1: not valid JSON (number overflow parsing '1e999')"},
        {a, "not valid JSON at byte offset 26"},
        {a + R"(,"config":{"nCuantos":4294967301}})", "from -2147483648 to"},
        {a + R"(,"config":{"nCuantos":-2147483649}})", "from -2147483648 to"},
        {a + R"(,"config":{"nCuantos":18446744073709551615}})", "takes an integer"},
        {a + R"(,"answers":[4294967302]})", "4294967302 is not a modal result"},
        {a + R"(,"answers":[12345]})", "12345 is not a modal result (0 to 11)"},
        {a + R"(,"answers":[1,-1]})", "answers[1]: -1 is not a modal result"},
        {a + R"(,"answers":[1.0]})", "answers[0]: 1.0 is not a modal result"},
    };
    for (const auto& c : casos) {
        const json r = pide(c.linea);
        ASSERT_TRUE(r.contains("error")) << c.linea;
        EXPECT_NE(error(r).find(c.contiene), std::string::npos) << error(r) << " for " << c.linea;
        EXPECT_TRUE(r["result"].is_null()) << c.linea;
    }
}

// Every request answered in order, blank lines skipped but counted, each response with the warnings logged
// while its request ran; a broken or an overlong line is refused and the stream goes on (an overlong last
// line without its newline too).
TEST(Lote, StreamAnswersEveryRequestInOrderAndGoesOnAfterErrors) {
    const std::string peticion = R"({"fn":"doble","args":["ab"]})";
    const std::string justa = peticion + std::string(kLineaMaxima - peticion.size(), ' ');
    const auto r = procesa(justa + "\n\nbroken\n" + justa + " \n" + R"({"fn":"caracter","args":["Ñ"]})" +
                           "\n" + R"({"fn":"avisa","args":["La tabla X.DBF está dañada"]})" + "\n" +
                           R"({"fn":"avisa","args":[""]})" + "\n" + justa + "x");
    ASSERT_EQ(r.size(), 7u);
    EXPECT_EQ(r[0]["result"], "abab");
    EXPECT_NE(error(r[1]).find("line 3: not valid JSON"), std::string::npos) << error(r[1]);
    EXPECT_NE(error(r[2]).find("line 4: longer than 1048576 bytes"), std::string::npos) << error(r[2]);
    EXPECT_EQ(r[3]["result"], "Ñ");
    EXPECT_EQ(r[4].value("warnings", json()), json::array({"La tabla X.DBF está dañada"}));
    EXPECT_FALSE(r[5].contains("warnings")) << "no warning, no list; information lines are not warnings";
    EXPECT_NE(error(r[6]).find("line 8: longer than"), std::string::npos) << "a last line without newline";
}

TEST(Lote, ConfigAppliesToOneRequestOnly) {
    OficinaPrueba o(QStringLiteral("[GENERAL]\nNumeroNotarios=2\n"));
    EXPECT_EQ(AtiendeLinea(R"({"fn":"NumeroDeNotarios","args":[],"config":{"nCuantos":-3}})", 1)["result"],
              1);
    EXPECT_EQ(AtiendeLinea(R"({"fn":"NumeroDeNotarios","args":[]})", 2)["result"], 2);
    EXPECT_EQ(AtiendeLinea(R"({"fn":"AliasNotario","args":[0]})", 3)["result"], "DBNOTARIO1");
    EXPECT_EQ(AtiendeLinea(R"({"fn":"AliasNotarioActual","args":[],"config":{"sNotario":"2"}})", 4)["result"],
              "DBNOTARIO2");
    EXPECT_EQ(Config.GetsNotario(), QStringLiteral("1"));
}

TEST(Lote, DeepNestingIsRefusedBeforeAnyCopyAndTheStreamGoesOn) {
    // Brackets inside strings, escaped quotes included, are text and do not nest.
    const std::string corchetes = R"(\"[)" + std::string(100, '[') + std::string(100, '{');
    const struct {
        std::string linea;
        const char* error; // what the response's error holds
    } casos[] = {
        {anidado(kAnidamientoMaximo), "fit none of"},
        {anidado(kAnidamientoMaximo + 1), "line 1: nested deeper than 64 levels"},
        {anidado(100000), "nested deeper than"},
        {R"({"fn":"doble","args":[")" + corchetes + R"("]})", ""},
    };
    for (const auto& c : casos) {
        const auto r = procesa(c.linea + "\n" + R"({"fn":"doble","args":["x"]})" + "\n");
        ASSERT_EQ(r.size(), 2u) << c.linea.substr(0, 80);
        EXPECT_NE(error(r[0]).find(c.error), std::string::npos)
            << c.linea.substr(0, 80) << ": " << error(r[0]);
        if (!*c.error) {
            EXPECT_EQ(r[0]["result"], "\"[" + corchetes.substr(3) + "\"[" + corchetes.substr(3));
        }
        EXPECT_EQ(r[1]["result"], "xx");
    }
}

TEST(Lote, ErrorMessagesListAFewArgumentsThenEllipsis) {
    std::string muchos = R"({"fn":"doble","args":[1)";
    for (int i = 0; i < 100000; ++i)
        muchos += ",1";
    muchos += "]}";
    const std::string nombreLargo = R"({"fn":")" + std::string(100000, 'N') + R"(","args":[]})";
    const std::string claveLarga =
        R"({"fn":"doble","args":["a"],"config":{")" + std::string(100000, 'k') + R"(":1}})";
    for (const auto& linea : {muchos, nombreLargo, claveLarga}) {
        const std::string e = error(pide(linea));
        EXPECT_LT(e.size(), 300u) << e.substr(0, 300);
        EXPECT_NE(e.find("..."), std::string::npos) << e;
    }
    EXPECT_NE(error(pide(muchos)).find("(integer, integer, integer, integer, integer, integer, ...)"),
              std::string::npos);
}

TEST(Lote, AnswersLeaveATraceInEveryDialog) {
    // Each dialog as [its kind, the answer the routine got (null for a box that asks nothing), whether it
    // was Escape's for want of an answer].
    const struct {
        const char* linea;
        json resultado;
        const char* dialogos;
        const char* error;
    } casos[] = {
        {R"({"fn":"pregunta","args":[1]})", 0, R"([["Mensaje_Error",null,false],["NoSi",2,true]])", ""},
        {R"({"fn":"pregunta","args":[1],"answers":[7]})", 0,
         R"([["Mensaje_Error",null,false],["NoSi",2,false]])", ""},
        {R"({"fn":"pregunta","args":[2],"answers":[6]})", 1,
         R"([["Mensaje_Error",null,false],["NoSi",1,false],["NoSi",2,true]])", ""},
        {R"({"fn":"pregunta","args":[1],"answers":[1,1,2]})", nullptr,
         R"([["Mensaje_Error",null,false],["NoSi",1,false]])", "2 answers left unused"},
        {R"({"fn":"pregunta","args":[0],"answers":[0]})", nullptr, R"([["Mensaje_Error",null,false]])",
         "1 answer left unused"},
    };
    for (const auto& c : casos) {
        const json r = pide(c.linea);
        EXPECT_EQ(r["result"], c.resultado) << c.linea;
        if (*c.error)
            EXPECT_NE(error(r).find(c.error), std::string::npos) << error(r) << " for " << c.linea;
        else
            EXPECT_FALSE(r.contains("error")) << r.dump();
        json dialogos = json::array();
        for (const json& d : r["dialogs"])
            dialogos.push_back({d["kind"], d.value("answer", json("none")), d.value("defaulted", json())});
        EXPECT_EQ(dialogos, json::parse(c.dialogos)) << c.linea;
    }
}

TEST(Lote, DamagedTableIsToldApartFromNotFoundByTheWarnings) {
    OficinaPrueba o(QStringLiteral("[ALIAS]\nDB=DATOS\n"));
    QDir().mkpath(o.ruta(QStringLiteral("DATOS")));
    QFile municipios(o.ruta(QStringLiteral("DATOS/MUNICIPI.DBF")));
    ASSERT_TRUE(
        QFile::copy(prueba::OficinaMuestra() + QStringLiteral("/DATOS/MUNICIPI.DBF"), municipios.fileName()));
    const char* peticion = R"({"fn":"BusquedaMunicipio","args":["28","999"]})";
    const json noEsta = AtiendeLinea(peticion, 1);
    EXPECT_EQ(noEsta["result"], "");
    EXPECT_FALSE(noEsta.contains("warnings")) << noEsta.dump();

    ASSERT_TRUE(municipios.resize(5000));
    const json danada = AtiendeLinea(peticion, 2);
    EXPECT_EQ(danada["result"], "");
    ASSERT_EQ(danada.value("warnings", json()).size(), 1u) << danada.dump();
    EXPECT_NE(danada["warnings"][0].get<std::string>().find("MUNICIPI.DBF"), std::string::npos);
}
