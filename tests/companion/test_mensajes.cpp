#include "companion/mensajes.h"

#include <gtest/gtest.h>

using namespace nod;

TEST(Mensajes, ScriptedServiceRecordsAndAnswersInOrder) {
    ServicioMensajesGuionado guion({1, 7});
    ServicioMensajesInstalado instalado(guion);
    Mensaje_Error(QStringLiteral("No existe la tabla"), QStringLiteral("Tablas"));
    EXPECT_EQ(Mensaje_NoSi(QStringLiteral("¿Desea continuar (S/N)?"), QStringLiteral("Texto"),
                           QStringLiteral("Aplicación de IVA")),
              1);
    EXPECT_FALSE(NoSi(QStringLiteral("¿Seguro?")));                           // 7 counts as no
    EXPECT_EQ(Mensaje_SiNo(QString(), QStringLiteral("Otra"), QString()), 2); // queue exhausted: Escape
    ASSERT_EQ(guion.mostrados().size(), 4);
    EXPECT_EQ(guion.mostrados()[0].kind, QStringLiteral("Mensaje_Error"));
    EXPECT_EQ(guion.mostrados()[1].title, QStringLiteral("Aplicación de IVA"));
    EXPECT_EQ(guion.mostrados()[1].text, QStringLiteral("Texto\n¿Desea continuar (S/N)?"));
}

TEST(Mensajes, WaitWindowIsTracked) {
    ServicioMensajesGuionado guion;
    ServicioMensajesInstalado instalado(guion);
    MuestraMensaje(QStringLiteral("Espere..."));
    EXPECT_TRUE(guion.esperaVisible());
    CierraMensaje();
    EXPECT_FALSE(guion.esperaVisible());
}

TEST(Mensajes, InstalledServiceIsRestoredAfterItsScope) {
    ServicioMensajesGuionado exterior;
    ServicioMensajesInstalado a(exterior);
    {
        ServicioMensajesGuionado interior;
        ServicioMensajesInstalado b(interior);
        Mensaje_Info(QStringLiteral("dentro"));
        EXPECT_EQ(interior.mostrados().size(), 1);
    }
    Mensaje_Info(QStringLiteral("fuera"));
    EXPECT_EQ(exterior.mostrados().size(), 1);
}
