#include "frame/colores.h"
#include "frame/mensajeperson.h"

#include <gtest/gtest.h>
#include <tuple>

using namespace nod;

TEST(Colores, EverySchemeAndTheSilverFallback) {
    const std::tuple<int, TColor, TColor, TColor, TColor> casos[] = {
        {1, 0x8C0000, 0xFF1515, 0xA20000, 0xFFB546}, {2, 0x4B9667, 0x9DBFA7, 0x064105, 0xB4FEA9},
        {3, 0x0051A2, 0x0070DF, 0x0051A2, 0x0070DF}, {4, 0xC0C0C0, 0xC0C0C0, 0x13386C, 0x8DE6F8},
        {6, 0x808080, 0xC0C0C0, 0xC0C0C0, 0xC0C0C0}, {5, 0xC0C0C0, 0xC0C0C0, 0xC0C0C0, 0xC0C0C0},
        {0, 0xC0C0C0, 0xC0C0C0, 0xC0C0C0, 0xC0C0C0}, {-1, 0xC0C0C0, 0xC0C0C0, 0xC0C0C0, 0xC0C0C0},
        {7, 0xC0C0C0, 0xC0C0C0, 0xC0C0C0, 0xC0C0C0}};
    for (const auto& [esquema, max, min, maxMen, minMen] : casos) {
        EXPECT_EQ(GetMaxColor(esquema), max) << esquema;
        EXPECT_EQ(GetMinColor(esquema), min) << esquema;
        EXPECT_EQ(GetMaxColorMen(esquema), maxMen) << esquema;
        EXPECT_EQ(GetMinColorMen(esquema), minMen) << esquema;
    }
}

namespace {
// Keeps the request the routine hands to the message service.
class ServicioQueGuarda : public ServicioMensajesGuionado {
public:
    using ServicioMensajesGuionado::ServicioMensajesGuionado;
    int mensajePerson(const PeticionMensajePerson& p) override {
        peticion = p;
        return ServicioMensajesGuionado::mensajePerson(p);
    }
    PeticionMensajePerson peticion;
};
} // namespace

// The second parameter is the lower line and the fifth the upper one.
TEST(MensajePerson, ParametersReachTheBoxAndTheBackgroundComesFromAPositiveScheme) {
    const std::tuple<int, TColor> casos[] = {
        {1, 0x8C0000}, {6, 0x808080}, {5, 0xC0C0C0}, {0, 0x123456}, {-4, 0x123456}};
    for (const auto& [esquema, esperado] : casos) {
        ServicioQueGuarda s({1});
        ServicioMensajesInstalado instalado(s);
        EXPECT_EQ(Mensaje_Person(5, QStringLiteral("abajo"), 1, QStringLiteral("Título"),
                                 QStringLiteral("arriba"), QStringLiteral("Uno"), QStringLiteral("Dos"),
                                 esquema, 0x123456, 0xFFFFFF, 0),
                  1);
        const PeticionMensajePerson& p = s.peticion;
        EXPECT_EQ(p.fondo, esperado) << esquema;
        EXPECT_EQ(p.letras, 0xFFFFFFu);
        EXPECT_EQ(std::tuple(p.mensaje1, p.mensaje2, p.titulo, p.boton1, p.boton2, p.tipo, p.icono),
                  std::tuple(QStringLiteral("arriba"), QStringLiteral("abajo"), QStringLiteral("Título"),
                             QStringLiteral("Uno"), QStringLiteral("Dos"), 5, 1));
        ASSERT_EQ(s.mostrados().size(), 1);
        EXPECT_EQ(s.mostrados()[0].text, QStringLiteral("arriba\nabajo"));
    }
}
