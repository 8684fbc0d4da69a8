#include "apps/nodrim/lote.h"
#include "tests/support/oficina_prueba.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace nod;
using namespace nod::lote;
using nod::prueba::OficinaPrueba;

namespace {

QString g_ultimo;
int incrementa(int& n) {
    return ++n;
}
double mitad(double x) {
    return x / 2;
}
QString doble(const QString& s) {
    return s + s;
}
QString forma(int) {
    return QStringLiteral("int");
}
QString forma(double) {
    return QStringLiteral("double");
}
QString caracter(QChar c) {
    return QString(c);
}
bool lanza(int) {
    throw std::runtime_error("boom");
}

Rutinas rutinasDePrueba() {
    Rutinas r;
    r.agrega("incrementa", &incrementa);
    r.agrega("mitad", &mitad);
    r.agrega("doble", &doble);
    r.agrega("forma", qOverload<int>(&forma));
    r.agrega("forma", qOverload<double>(&forma));
    r.agrega("caracter", &caracter);
    r.agrega("lanza", &lanza);
    return r;
}

json pide(const char* linea) {
    return AtiendeLinea(linea, 1, rutinasDePrueba());
}

} // namespace

TEST(Lote, OutParametersAreReportedAfterTheCall) {
    const json r = pide(R"({"fn":"incrementa","args":[41]})");
    EXPECT_EQ(r["result"], 42);
    EXPECT_EQ(r["out"], json::array({42}));
    EXPECT_FALSE(r.contains("error"));
}

TEST(Lote, IntegersAndFloatsStayDistinct) {
    EXPECT_EQ(pide(R"({"fn":"forma","args":[12]})")["result"], "int");
    EXPECT_EQ(pide(R"({"fn":"forma","args":[12.0]})")["result"], "double");
    EXPECT_EQ(pide(R"({"fn":"mitad","args":[3]})")["result"].dump(),
              "1.5"); // an integer fits a float parameter
    EXPECT_EQ(pide(R"({"fn":"mitad","args":[24]})")["result"].dump(), "12.0");
}

TEST(Lote, ErrorsNameTheRoutineAndWhatItExpects) {
    const struct {
        const char* linea;
        const char* contiene;
    } casos[] = {
        {R"({"fn":"NoExiste","args":[]})", "unknown routine \"NoExiste\""},
        {R"({"fn":"doble","args":[1]})", "doble: arguments (integer) fit none of doble(string)"},
        {R"({"fn":"doble","args":["a","b"]})", "fit none of"},
        {R"({"fn":"caracter","args":["ab"]})", "caracter(character)"},
        {R"({"fn":"incrementa","args":[2147483648]})", "incrementa(integer&)"},
        {R"({"fn":"lanza","args":[1]})", "lanza: boom"},
        {R"({"fn":"doble","args":["a"],"config":{"NoExiste":1}})", "unknown configuration value"},
        {R"({"fn":"doble","args":["a"],"today":"31/05/2024"})", "YYYY-MM-DD"},
        {R"({"fn":"doble","args":["a"],"answers":"1"})", "answers"},
        {R"({"args":[]})", "\"fn\""},
        {R"(not json)", "line 1: not valid JSON"},
    };
    for (const auto& c : casos) {
        const json r = pide(c.linea);
        ASSERT_TRUE(r.contains("error")) << c.linea;
        EXPECT_NE(r["error"].get<std::string>().find(c.contiene), std::string::npos)
            << r["error"] << " for " << c.linea;
        EXPECT_TRUE(r["result"].is_null());
    }
}

TEST(Lote, StreamAnswersEveryRequestInOrderAndGoesOnAfterErrors) {
    std::istringstream entrada(
        "{\"fn\":\"doble\",\"args\":[\"ab\"]}\n\nbroken\n{\"fn\":\"caracter\",\"args\":[\"Ñ\"]}\n");
    std::ostringstream salida;
    Procesa(entrada, salida, rutinasDePrueba());
    std::istringstream lineas(salida.str());
    std::string l;
    std::vector<json> respuestas;
    while (std::getline(lineas, l))
        respuestas.push_back(json::parse(l));
    ASSERT_EQ(respuestas.size(), 3u);
    EXPECT_EQ(respuestas[0]["result"], "abab");
    EXPECT_NE(respuestas[1]["error"].get<std::string>().find("line 3"), std::string::npos);
    EXPECT_EQ(respuestas[2]["result"], "Ñ");
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
