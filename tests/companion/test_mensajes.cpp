#include "companion/mensajes.h"

#include <gtest/gtest.h>

using namespace nod;

TEST(Mensajes, ScriptedServiceRecordsAndAnswersInOrder) {
    ServicioMensajesGuionado guion({1, 7, 2});
    ServicioMensajesInstalado instalado(guion);
    Mensaje_Error(QStringLiteral("No existe la tabla"), QStringLiteral("Tablas"));
    EXPECT_EQ(Mensaje_NoSi(QStringLiteral("¿Desea continuar (S/N)?"), QStringLiteral("Texto"),
                           QStringLiteral("Aplicación de IVA")),
              1);
    EXPECT_FALSE(NoSi(QStringLiteral("¿Seguro?")));                           // 7 counts as no
    EXPECT_EQ(Mensaje_SiNo(QString(), QStringLiteral("Otra"), QString()), 2); // an explicit No
    EXPECT_EQ(Mensajes().activosFinancieros(0), 6);                           // queue exhausted: Escape
    EXPECT_EQ(guion.sinUsar(), 0);
    ASSERT_EQ(guion.mostrados().size(), 5);
    EXPECT_EQ(guion.mostrados()[0].kind, QStringLiteral("Mensaje_Error"));
    EXPECT_EQ(guion.mostrados()[1].title, QStringLiteral("Aplicación de IVA"));
    EXPECT_EQ(guion.mostrados()[1].text, QStringLiteral("Texto\n¿Desea continuar (S/N)?"));
    // The answer each box gave the routine, and whether it was Escape's for want of one.
    const std::pair<std::optional<int>, bool> trazas[] = {
        {std::nullopt, false}, {1, false}, {2, false}, {2, false}, {6, true}};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(guion.mostrados()[i].respuesta, trazas[i].first) << i;
        EXPECT_EQ(guion.mostrados()[i].porDefecto, trazas[i].second) << i;
    }
}

TEST(Mensajes, ScriptedServiceTakesAnswersFromItsOwnersSourceAndComesBackAfterAnInnerOne) {
    QStringList pedidas;
    std::deque<int> cola{7};
    ServicioMensajesGuionado guion([&](const QString& kind) -> std::optional<int> {
        pedidas << kind;
        if (cola.empty()) return std::nullopt;
        const int r = cola.front();
        cola.pop_front();
        return r;
    });
    ServicioMensajesInstalado instalado(guion);
    {
        ServicioMensajesGuionado interior;
        ServicioMensajesInstalado b(interior);
        Mensaje_Info(QStringLiteral("dentro"));
        EXPECT_EQ(interior.mostrados().size(), 1);
    }
    MuestraMensaje(QStringLiteral("Espere...")); // the outer service is back after the inner one's scope
    EXPECT_FALSE(NoSi(QStringLiteral("¿Seguro?")));
    EXPECT_EQ(Mensaje_NoSi(QString(), QString(), QString()), 2);
    EXPECT_EQ(pedidas, QStringList({QStringLiteral("NoSi"), QStringLiteral("Mensaje_NoSi")}));
    ASSERT_EQ(guion.mostrados().size(), 3) << "nothing of the inner service's reached the outer one";
    EXPECT_FALSE(guion.mostrados()[1].porDefecto);
    EXPECT_TRUE(guion.mostrados()[2].porDefecto);
}
