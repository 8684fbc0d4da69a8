// The confirmation before deleting accounting entries: which questions, in which order, and what a
// "No" anywhere does.
#include "companion/config.h"
#include "companion/hoy.h"
#include "companion/mensajes.h"
#include "prompts/borradoapuntes.h"

#include <gtest/gtest.h>

using namespace nod;

namespace {

const QString kTitulo = QStringLiteral("Confirmación de borrado de apuntes");
const QString kAntiguos = QStringLiteral("Existen apuntes contables con más de 3 días de antigüedad\n"
                                         "¿Desea continuar con el proceso?");
const QString kCerrado = QStringLiteral("Los apuntes seleccionados son de un trimestre ya cerrado");
const QString kAnoAnterior = QStringLiteral("Los apuntes son de un año anterior\n"
                                            "¿Está totalmente seguro de que desea borrarlos?");
const QString kSeguro = QStringLiteral("¿Está seguro de que desea borrarlos?");

struct Caso {
    const char* nombre;
    QDate hoy, apuntes;
    QStringList preguntas; // asked when every answer is "Sí"
};

class Borrado : public ::testing::Test {
protected:
    void SetUp() override { Config.SetnDiasCierreTrimestre(20); }
    void TearDown() override {
        FijaAhora(std::nullopt);
        Config = TConfig();
    }
    static QStringList textos(const ServicioMensajesGuionado& s) {
        QStringList l;
        for (const DialogoMostrado& d : s.mostrados())
            l << d.text;
        return l;
    }
};

TEST_F(Borrado, QuestionsInOrderWhenEveryAnswerIsYes) {
    const Caso casos[] = {
        {"today", {2024, 5, 10}, {2024, 5, 10}, {kSeguro}},
        {"three days old", {2024, 5, 10}, {2024, 5, 7}, {kSeguro}},
        {"four days old", {2024, 5, 10}, {2024, 5, 6}, {kAntiguos, kSeguro}},
        {"quarter closed on the 20th", {2024, 4, 20}, {2024, 3, 31}, {kAntiguos, kCerrado, kSeguro}},
        {"quarter not yet closed", {2024, 4, 19}, {2024, 3, 31}, {kAntiguos, kSeguro}},
        {"last year", {2024, 1, 2}, {2023, 12, 31}, {kAnoAnterior, kSeguro}},
        {"last year, closed", {2024, 2, 15}, {2023, 12, 31}, {kAntiguos, kCerrado, kAnoAnterior, kSeguro}},
        {"future entries", {2024, 5, 10}, {2024, 8, 1}, {kSeguro}},
    };
    for (const Caso& c : casos) {
        FijaAhora(QDateToTDateTime(c.hoy) + 0.5);
        ServicioMensajesGuionado s({6, 6, 6, 6});
        ServicioMensajesInstalado instalado(s);
        EXPECT_TRUE(ConfirmaBorradoApuntes(nullptr, QDateToTDateTime(c.apuntes) + 0.75)) << c.nombre;
        EXPECT_EQ(textos(s), c.preguntas) << c.nombre;
        for (const DialogoMostrado& d : s.mostrados()) {
            EXPECT_EQ(d.title, kTitulo) << c.nombre;
            EXPECT_TRUE(d.kind == u"NoSi" || d.kind == u"Mensaje_NoSi") << c.nombre; // focus on "No"
        }
    }
}

TEST_F(Borrado, ASerialBeyondAnyDayIsAskedAboutNormally) {
    FijaAhora(EncodeDate(2024, 5, 10) + 0.5);
    for (const TDateTime fecha : {1e308, -1e308, -2147483000.0, 2147483000.0}) {
        ServicioMensajesGuionado s({6, 6, 6, 6});
        ServicioMensajesInstalado instalado(s);
        EXPECT_TRUE(ConfirmaBorradoApuntes(nullptr, fecha)) << fecha;
        ASSERT_FALSE(s.mostrados().isEmpty()) << fecha;
        EXPECT_EQ(s.mostrados().back().text, kSeguro) << fecha;
    }
}

// A "No" to any question, or Escape (no answer), cancels with a message.
TEST_F(Borrado, ANoAnywhereCancelsWithAMessage) {
    FijaAhora(EncodeDate(2024, 2, 15));
    for (const bool escape : {false, true})
        for (int enPregunta = 0; enPregunta < 4; ++enPregunta) {
            std::deque<int> respuestas(std::size_t(enPregunta), 6);
            if (!escape) respuestas.push_back(7);
            ServicioMensajesGuionado s(respuestas);
            ServicioMensajesInstalado instalado(s);
            EXPECT_FALSE(ConfirmaBorradoApuntes(nullptr, EncodeDate(2023, 12, 31)));
            ASSERT_EQ(s.mostrados().size(), enPregunta + 2) << escape;
            EXPECT_EQ(s.mostrados().back().text, QStringLiteral("Proceso cancelado.")) << escape;
            EXPECT_EQ(s.mostrados().back().title, QStringLiteral("Atención"));
        }
}

TEST_F(Borrado, TheClosingDayOfAQuarterIsConfigured) {
    struct Cierre {
        int dias;
        QDate apuntes, cierre;
    } cierres[] = {{20, {2024, 2, 15}, {2024, 4, 20}}, {20, {2024, 12, 31}, {2025, 1, 20}},
                   {0, {2024, 5, 1}, {2024, 7, 1}},    {1, {2024, 7, 1}, {2024, 10, 1}},
                   {-5, {2024, 9, 30}, {2024, 10, 1}}, {45, {2024, 11, 3}, {2025, 2, 14}}};
    for (const Cierre& c : cierres) {
        Config.SetnDiasCierreTrimestre(c.dias);
        EXPECT_EQ(CierreTrimestre(QDateToTDateTime(c.apuntes)), QDateToTDateTime(c.cierre))
            << c.dias << " " << c.apuntes.toString(Qt::ISODate).toStdString();
    }
}

} // namespace
