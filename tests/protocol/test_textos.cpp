// Situation texts, role words, interventions and the three index lookups.
#include "protocol/actuaciones.h"
#include "protocol/indices.h"
#include "protocol/situaciones.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace nod;

namespace {

QString q(const char* s) {
    return QString::fromUtf8(s);
}

TEST(Situaciones, Escritura) {
    const char* largos[] = {"Pendiente de algún documento",    "Pendiente de hacer las copias",
                            "La tiene el Notario para firmar", "Terminado, para retirar",
                            "Retiradas algunas copias",        "Retiradas todas las copias"};
    const char* cortos[] = {"Pend. docum.", "Pend. copias", "Pend. firma not.",
                            "Para retirar", "Retiró parte", "Retirado"};
    for (int i = 0; i < 6; ++i) {
        const QString codigo = QString::number(i + 1);
        EXPECT_EQ(Situacion(codigo), q(largos[i]));
        EXPECT_EQ(Situa_2(codigo), q(cortos[i]));
    }
    for (const char* otro : {"0", "7", "", "11", " 1", "a"}) {
        EXPECT_EQ(Situacion(q(otro)), q("No hay información anotada")) << otro;
        EXPECT_EQ(Situa_2(q(otro)), QString()) << otro;
    }
}

TEST(Situaciones, Matriz) {
    const std::tuple<const char*, const char*, const char*> tabla[] = {
        {"B", "Pendiente de ratificación", "Pend. rat."},
        {"H", "Pendiente de índice", "Pend. índice"},
        {"J", "Archivada", "Archivada"},
        {"K", "Pendiente de nota de envío telemático", "Pend. tel."},
        {"N", "Pendiente de oficio de subsanación", "Pend. ofi. sub."},
        {"A", "No hay información anotada", ""},
        {"O", "No hay información anotada", ""},
        {"b", "No hay información anotada", ""},
        {"BC", "No hay información anotada", ""}};
    for (const auto& [codigo, largo, corto] : tabla) {
        EXPECT_EQ(SituacionMatriz(q(codigo)), q(largo)) << codigo;
        EXPECT_EQ(Situa_2Matriz(q(codigo)), q(corto)) << codigo;
    }
}

TEST(Situaciones, PolizaYLetraDeActuacion) {
    EXPECT_EQ(QStringList({SituacionPoliza(1), SituacionPoliza(6), SituacionPoliza(0), SituacionPoliza(7)}),
              QStringList({q("Pendiente de la firma del cliente"), q("Entregada y pagada"), {}, {}}));
    const std::pair<int, const char*> letras[] = {
        {1, "A"},  {2, "T"},  {3, "R"},  {4, "P"}, {5, "I"}, {6, "Z"}, {7, "0"}, {12, "0"},
        {16, "0"}, {17, "0"}, {99, "0"}, {13, ""}, {15, ""}, {18, ""}, {0, ""},  {-1, ""}};
    for (const auto& [clase, letra] : letras)
        EXPECT_EQ(LetraActuacionNumeros(clase), q(letra)) << clase;
}

TEST(Indices, PorPosicionEnLasRanuras) {
    const std::pair<const char*, int> actuacion[] = {
        {"ADQUIRENTE", 0}, {"vendedor", 14}, {"Transmitente", 15},
        {"NOTARIO", -1},   {"", -1},         {" ", 0}, // found in the leading blank slot
        {"VEND", 14},                                  // a piece of a word finds its slot
        {"DONA", 6},                                   // first occurrence: DONANTE before DONATARIO
    };
    for (const auto& [w, i] : actuacion)
        EXPECT_EQ(IndexActuacion(q(w)), i) << w;

    // Upper case letter by letter: the ligature "ﬁ" is no "FI".
    const std::pair<const char*, int> polizas[] = {{"ADQUIRENTE", 0},   {"Fiador", 4},   {"REPRESENTANTE", 6},
                                                   {"TRANSMITENTE", 9}, {"cónyuge", -1}, {"CONYUGE", 3},
                                                   {"ﬁador", -1},       {"ﬁ", -1}};
    for (const auto& [w, i] : polizas)
        EXPECT_EQ(IndexActuacionPolizas(q(w)), i) << w;

    const std::pair<const char*, int> intervencion[] = {{"EN SU NOMBRE.", 0},
                                                        {"En representación de", 0},
                                                        {"POR SÍ Y EN REPRESENTACIÓN DE", 1},
                                                        {"MANDATARIO VERBAL.", 2},
                                                        {"LOS DOS EN REPRESENTACIÓN DE", 3},
                                                        {"REPRESENTADO.", 4},
                                                        {"por sí y mandatario verbal de", 5},
                                                        {"NO PRESENTE", -1}};
    for (const auto& [w, i] : intervencion)
        EXPECT_EQ(IndexIntervencion(q(w)), i) << w;
}

TEST(Indices, LasFrasesDeIntervencionSonSusRanuras) {
    // Each phrase of Intervencion, upper-cased, finds its own kind (less one, the first two both 0).
    for (int clase = 0; clase <= 6; ++clase)
        EXPECT_EQ(IndexIntervencion(Intervencion(clase)), clase == 0 ? 0 : clase - 1) << clase;
}

TEST(Actuaciones, Escrituras) {
    const QString codigos = QStringLiteral("ACDEHILNOPRSTUVZ");
    const char* palabras[] = {"Adquirente",   "Comprador",   "Donante",     "Cedente",
                              "Heredero",     "Avalista",    "Legatario",   "Donatario",
                              "Hipotecante",  "Prestatario", "Prestamista", "Cesionario",
                              "Transmitente", "Causante",    "Vendedor",    "Sociedad"};
    for (qsizetype i = 0; i < codigos.size(); ++i)
        EXPECT_EQ(Actuacion(codigos.mid(i, 1)), q(palabras[i])) << palabras[i];
    for (const char* otro : {"v", "B", "", "VV"})
        EXPECT_EQ(Actuacion(q(otro)), QString()) << otro;
}

TEST(Actuaciones, Polizas) {
    const std::tuple<const char*, const char*, const char*, const char*> tabla[] = {
        {"A", "Adquirente", "01", "02"},
        {"C", "Conyuge", "11", "02"},
        {"E", "Requerido", "03", "02"},
        {"F", "Fiador", "13", "13"},
        {"O", "Apoderado", "12", "01"},
        {"P", "Pignorante", "15", "13"},
        {"R", "Representante", "05", "01"},
        {"S", "Transmitente", "02", "01"},
        {"T", "Titular", "10", "02"},
        {"V", "Avalista", "14", "13"},
        {"0", "En su propio nombre", "09", "02"},
        {"", "En su propio nombre", "09", "02"},
        {"AB", "En su propio nombre", "09", "02"},
        {"X", "En su propio nombre", "", ""},
        {"a", "En su propio nombre", "", ""}};
    for (const auto& [codigo, palabra, m, s] : tabla) {
        EXPECT_EQ(Actua_C(q(codigo)), q(palabra)) << codigo;
        EXPECT_EQ(Actua_CM(q(codigo)), q(m)) << codigo;
        EXPECT_EQ(Actua_CS(q(codigo)), q(s)) << codigo;
    }
}

TEST(Actuaciones, ApoderadosEIntervenciones) {
    const std::pair<const char*, const char*> apoderados[] = {{"D", "Director Oficina"},
                                                              {"Interventor", "Interventor Oficina"},
                                                              {"P", "Apoderado Particular"},
                                                              {"S", "Subdirector Oficina"},
                                                              {"Z", "Apoderado Sociedad"},
                                                              {"0", ""},
                                                              {"", ""},
                                                              {"d", ""}};
    for (const auto& [codigo, texto] : apoderados)
        EXPECT_EQ(ActuacionApoderado(q(codigo)), q(texto)) << codigo;

    EXPECT_EQ(
        QStringList({Intervencion(0), Intervencion(7), Intervencion(8), Intervencion(-1)}),
        QStringList({q("En su nombre."), q("No presente por otorgamiento diferido o ausente"), {}, {}}));

    const std::tuple<int, const char*, const char*> clases[] = {
        {1, "4", "4"},  {0, "4", "4"}, {1, "A", "5"}, {3, "O", "5"}, {4, "X", "6"},
        {4, "", "6"},   {2, "A", "1"}, {2, "X", "2"}, {0, "", "2"},  {1, "IE", "5"}, // a substring occurs
        {2, "AE", "2"}, {5, "0", "1"}, {1, "a", "6"},
    };
    for (const auto& [clase, actuacion, digito] : clases)
        EXPECT_EQ(Intervencion_D(clase, q(actuacion)), q(digito)) << clase << actuacion;
}

} // namespace
