#include "companion/foco.h"
#include "frame/mensajenod.h"
#include "frame/ventanas.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <gtest/gtest.h>
#include <tuple>

using namespace nod;

TEST(Ventanas, CreaObjetoFindsByNameAmongTheApplicationsObjectsAndForms) {
    auto* suelto = new QObject(qApp);
    suelto->setObjectName(QStringLiteral("DMEMAIL"));
    QWidget propietario;
    auto crea = [](QObject* owner) -> QObject* { return new QObject(owner); };

    bool existia = false;
    QObject* o = CreaObjeto(crea, QStringLiteral("DMEmail"), &propietario, existia);
    EXPECT_TRUE(existia);
    EXPECT_EQ(o, suelto);
    BorraObjeto(o, existia); // found, not created: it survives
    EXPECT_EQ(qApp->findChild<QObject*>(QStringLiteral("DMEMAIL"), Qt::FindDirectChildrenOnly), suelto);

    // A child of the owner with that name is not looked at: the search is among the application's.
    auto* hijo = new QObject(&propietario);
    hijo->setObjectName(QStringLiteral("OTRO"));
    o = CreaObjeto(crea, QStringLiteral("otro"), &propietario, existia);
    EXPECT_FALSE(existia);
    ASSERT_NE(o, hijo);
    EXPECT_EQ(o->parent(), &propietario);
    QPointer<QObject> creado(o);
    BorraObjeto(o, existia);
    EXPECT_TRUE(creado.isNull());

    BorraObjeto(nullptr, false); // nothing to free
    delete suelto;

    TFMensajeNod forma; // top-level forms are the application's too
    EXPECT_EQ(CreaObjeto({}, QStringLiteral("FMENSAJENOD"), nullptr, existia), &forma);
    EXPECT_TRUE(existia);
}

TEST(Ventanas, MostrarNoModalReusesTheOwnersFormByClassName) {
    QWidget owner;
    QWidget* primera = MostrarNoModal<TFMensajeNod>(&owner);
    ASSERT_NE(primera, nullptr);
    EXPECT_EQ(primera->objectName(), QStringLiteral("FMensajeNod"));
    EXPECT_EQ(primera->parentWidget(), &owner);
    EXPECT_FALSE(primera->isVisible()) << "showing it is the caller's step";
    EXPECT_EQ(MostrarNoModal<TFMensajeNod>(&owner), primera);
    QWidget otro;
    EXPECT_NE(MostrarNoModal<TFMensajeNod>(&otro), primera);
    // Form names compare without regard to case, as the suite's component names do.
    QWidget tercero;
    auto* mayusculas = new QWidget(&tercero, Qt::Window);
    mayusculas->setObjectName(QStringLiteral("FMENSAJENOD"));
    EXPECT_EQ(MostrarNoModal<TFMensajeNod>(&tercero), mayusculas);
}

TEST(Ventanas, CentroDeRoundsHalvesToEven) {
    const std::tuple<QSize, QPoint> casos[] = {{{1920, 1080}, {960, 540}},
                                               {{1367, 769}, {684, 384}},
                                               {{1365, 767}, {682, 384}},
                                               {{1, 3}, {0, 2}},
                                               {{0, 0}, {0, 0}}};
    for (const auto& [tamano, centro] : casos)
        EXPECT_EQ(CentroDe(tamano), centro) << tamano.width() << "x" << tamano.height();
    EXPECT_EQ(CentroDeLaPantalla(), CentroDe(QGuiApplication::primaryScreen()->virtualSize()));
}

TEST(Ventanas, PosicionDelCursorLeavesThePointAloneOnFailure) {
    QPoint p(7, 7);
    auto anterior = FijaLectorCursor({});
    EXPECT_FALSE(PosicionDelCursor(p));
    FijaLectorCursor([] { return std::optional<QPoint>(); });
    EXPECT_FALSE(PosicionDelCursor(p));
    EXPECT_EQ(p, QPoint(7, 7));
    FijaLectorCursor([] { return std::optional<QPoint>(QPoint(120, 45)); });
    EXPECT_TRUE(PosicionDelCursor(p));
    EXPECT_EQ(p, QPoint(120, 45));
    FijaLectorCursor(anterior);
}

TEST(Ventanas, OcultaNodrimHidesTheActiveWindowLastSoItComesBackOnTop) {
    // Creation order a, b, c; the list the suite walks keeps the active window first.
    // activa: index of the active window, -1 none
    const std::tuple<int, const char*> casos[] = {{-1, "cba"}, {1, "cab"}, {0, "cba"}, {2, "bac"}};
    for (const auto& [activa, ocultadas] : casos) {
        QWidget v[3], oculta;
        for (int i = 0; i < 3; ++i) {
            v[i].setObjectName(QString(QLatin1Char('a' + i)));
            v[i].show();
        }
        QApplication::setActiveWindow(activa < 0 ? nullptr : &v[activa]);
        ListaVentanas lista;
        OcultaNodrim(lista);
        ASSERT_TRUE(lista);
        EXPECT_FALSE(lista->contains(&oculta)) << "a hidden window is left alone";
        QString orden;
        for (const QPointer<QWidget>& w : *lista)
            orden += w->isVisible() ? QStringLiteral("!") : w->objectName();
        EXPECT_EQ(orden, QLatin1String(ocultadas)) << activa;
        MuestraNodrim(lista);
        EXPECT_FALSE(lista);
        for (const QWidget& w : v)
            EXPECT_TRUE(w.isVisible()) << activa;
        EXPECT_FALSE(oculta.isVisible());
    }
    ListaVentanas lista;
    {
        QWidget efimera; // a form freed while hidden is skipped when showing again
        efimera.show();
        OcultaNodrim(lista);
        EXPECT_EQ(lista->size(), 1);
    }
    MuestraNodrim(lista);
    EXPECT_FALSE(lista);
    MuestraNodrim(lista); // an empty list is ignored
}

TEST(Ventanas, TomaFocoLeavesTheWindowRestoredToItsPlacement) {
    for (bool maximizada : {false, true})
        for (bool minimizada : {false, true}) { // the placement before the call
            QWidget principal;
            maximizada ? principal.showMaximized() : principal.show();
            if (minimizada) principal.showMinimized();
            FijaVentanaPrincipal(&principal);
            TomaFocoNodrim();
            EXPECT_FALSE(principal.isMinimized()) << maximizada << minimizada;
            EXPECT_EQ(principal.isMaximized(), maximizada) << maximizada << minimizada;
            EXPECT_TRUE(principal.isVisible());
            EXPECT_EQ(VentanaPrincipal(), &principal);
            FijaVentanaPrincipal(nullptr);
        }
    TomaFoco(WId(0)); // not a window of the program: ignored
}

TEST(Foco, MarkIsPutAndTakenOff) {
    QLineEdit e;
    const QPalette original = e.palette();
    TomaFocoControl(&e);
    TomaFocoControl(&e); // twice keeps the original to restore
    EXPECT_TRUE(TieneFocoMarcado(&e));
    EXPECT_EQ(e.palette().color(QPalette::Base), ColorQt(kColorFoco));
    DejaFocoControl(&e);
    EXPECT_FALSE(TieneFocoMarcado(&e));
    EXPECT_EQ(e.palette().color(QPalette::Base), original.color(QPalette::Base));
    DejaFocoControl(&e);
    TomaFocoControl(nullptr);
    EXPECT_EQ(ColorQt(0x0000FF), QColor(255, 0, 0));
    EXPECT_EQ(ColorQt(0xFAC101), QColor(0x01, 0xC1, 0xFA));
}
