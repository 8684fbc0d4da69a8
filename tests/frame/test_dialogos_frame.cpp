#include "companion/hoy.h"
#include "companion/tdatetime.h"
#include "frame/esperalistado.h"
#include "frame/mensajeactivosfinancieros.h"
#include "frame/preguntazeb.h"
#include "frame/qtmensajes.h"
#include "frame/relojnod.h"
#include "frame/shell.h"
#include "frame/ventanas.h"
#include "frame/versionnod.h"
#include "tests/support/modal.h"
#include "tests/support/oficina_prueba.h"

#include <QDateEdit>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QTimeEdit>
#include <gtest/gtest.h>
#include <tuple>

using namespace nod;

namespace {
// Records what the clock would have been set to, and refuses when asked to.
struct RelojDePrueba {
    QList<QDateTime> pedidas;
    bool rechaza = false;
    AjustadorReloj anterior = FijaAjustadorReloj([this](const QDateTime& t, QString& motivo) {
        pedidas.append(t);
        if (rechaza) motivo = QStringLiteral("Operación no permitida");
        return !rechaza;
    });
    ~RelojDePrueba() { FijaAjustadorReloj(anterior); }
};

// Records the addresses handed to the shell instead of opening them.
struct AbridorDePrueba {
    QList<QUrl> abiertas;
    AbridorShell anterior = FijaAbridorShell([this](const QUrl& u) {
        abiertas.append(u);
        return true;
    });
    ~AbridorDePrueba() { FijaAbridorShell(anterior); }
};
} // namespace

TEST(ActivosFinancieros, ButtonsByType) {
    const std::tuple<int, bool, bool, bool> casos[] = {
        {0, false, false, true}, {1, true, true, false}, {2, true, true, true}, {-1, true, true, true}};
    for (const auto& [tipo, si, no, aceptar] : casos) {
        TFMensajeActivosFinancieros f;
        f.CambiaTipoMensaje(tipo);
        EXPECT_EQ(f.windowTitle(), QStringLiteral("Información sobre los Activos Financieros"));
        EXPECT_EQ(f.findChild<QPushButton*>(QStringLiteral("BBSi"))->isVisibleTo(&f), si) << tipo;
        EXPECT_EQ(f.findChild<QPushButton*>(QStringLiteral("BBNo"))->isVisibleTo(&f), no) << tipo;
        EXPECT_EQ(f.findChild<QPushButton*>(QStringLiteral("BBAceptar"))->isVisibleTo(&f), aceptar) << tipo;
    }
}

// Escape hid the progress window while the work went on, and later updates went to a hidden window.
TEST(EsperaListado, ProgressWindowLifecycle) {
    TFEsperaListado* f = MuestraProgreso(QStringLiteral("Listando clientes"));
    ASSERT_NE(f, nullptr);
    EXPECT_FALSE(f->isVisible()) << "showing it is the caller's step";
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Listando clientes"));
    auto* barra = f->findChild<QProgressBar*>(QStringLiteral("PbListado"));
    ASSERT_NE(barra, nullptr);
    EXPECT_EQ(barra->minimum(), 0);
    EXPECT_EQ(barra->maximum(), 100);
    f->show();
    QApplication::setActiveWindow(f);
    QTest::keyClick(f, Qt::Key_Escape);
    EXPECT_FALSE(f->close());
    EXPECT_TRUE(f->isVisible()) << "neither Escape nor the close button hide it";
    for (auto [dada, queda] : {std::pair{40, 40}, {100, 100}, {150, 100}, {-5, 0}}) {
        CambiaProgreso(QStringLiteral("Paso %1").arg(dada), dada, f);
        EXPECT_EQ(barra->value(), queda) << dada;
        EXPECT_EQ(f->windowTitle(), QStringLiteral("Paso %1").arg(dada));
    }
    f->DibujaEstado(7);
    EXPECT_EQ(f->posicion(), 7);
    QPointer<TFEsperaListado> vigilada(f);
    CierraProgreso(f);
    EXPECT_TRUE(vigilada.isNull());
    CambiaProgreso(QStringLiteral("x"), 1, nullptr); // a null form is ignored
    CierraProgreso(nullptr);
    EXPECT_EQ(TFEsperaListado().windowTitle(), QStringLiteral("Generando el Listado."));
}

TEST(EsperaListado, CentredOnTheMainWindowWhateverItsOwner) {
    QWidget principal;
    principal.setGeometry(40, 30, 800, 600);
    principal.show();
    FijaVentanaPrincipal(&principal);
    QWidget otroPropietario;
    otroPropietario.setGeometry(900, 700, 200, 100);
    otroPropietario.show();
    std::unique_ptr<TFEsperaListado> sinDueno(MuestraProgreso(QStringLiteral("x")));
    TFEsperaListado conDueno(&otroPropietario);
    for (TFEsperaListado* f : {sinDueno.get(), &conDueno}) {
        const QPoint centro = f->geometry().center();
        EXPECT_LE((centro - principal.frameGeometry().center()).manhattanLength(), 1)
            << centro.x() << "," << centro.y();
    }
    FijaVentanaPrincipal(nullptr);
}

TEST(RelojNod, AcceptSetsTheClockToTheChosenDateAndTime) {
    FijaAhora(QDateTimeToTDateTime(QDateTime(QDate(2024, 5, 31), QTime(9, 15, 30))));
    RelojDePrueba reloj;
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado(mensajes);
    for (bool rechaza : {false, true}) {
        reloj.rechaza = rechaza;
        reloj.pedidas.clear();
        mensajes.limpia();
        TFRelojNod f;
        f.show();
        EXPECT_EQ(f.findChild<QDateEdit*>(QStringLiteral("DTPFecha"))->date(), QDate(2024, 5, 31));
        EXPECT_EQ(f.findChild<QTimeEdit*>(QStringLiteral("DTPHora"))->time(), QTime(9, 15, 30));
        f.findChild<QDateEdit*>(QStringLiteral("DTPFecha"))->setDate(QDate(2025, 1, 2));
        f.findChild<QTimeEdit*>(QStringLiteral("DTPHora"))->setTime(QTime(23, 59, 58));
        QTest::mouseClick(f.findChild<QPushButton*>(QStringLiteral("BBAceptar")), Qt::LeftButton);
        ASSERT_EQ(reloj.pedidas.size(), 1);
        EXPECT_EQ(reloj.pedidas[0], QDateTime(QDate(2025, 1, 2), QTime(23, 59, 58)));
        EXPECT_FALSE(f.isVisible());
        EXPECT_EQ(f.result(), 1);
        ASSERT_EQ(mensajes.mostrados().size(), rechaza ? 1 : 0) << "an error only when the clock refuses";
        if (!rechaza) continue;
        EXPECT_EQ(mensajes.mostrados()[0].kind, QStringLiteral("Mensaje_Error"));
        EXPECT_TRUE(mensajes.mostrados()[0].text.startsWith(
            QStringLiteral("No se ha podido cambiar la fecha y la hora del sistema.")));
        EXPECT_TRUE(mensajes.mostrados()[0].text.contains(QStringLiteral("Operación no permitida")));
    }
    FijaAhora(std::nullopt);
}

// The financial box answers Yes (6) to Escape; neither Cancelar nor Escape sets the clock.
TEST(DialogosMarco, ModalResultsOfTheSmallFrameDialogs) {
    prueba::OficinaPrueba o;
    AbridorDePrueba abridor;
    RelojDePrueba reloj;
    const auto abre = [](std::string_view d) {
        if (d == "version") return TFVersionNod().exec();
        if (d == "zeb") return TFPreguntaZEB(nullptr, QStringLiteral("texto")).exec();
        if (d == "reloj") return TFRelojNod().exec();
        return MuestraActivosFinancieros(d == "activos 1" ? 1 : 0);
    };
    // accion: a control's name to click, or nullptr for Escape
    const std::tuple<const char*, const char*, int> casos[] = {
        {"version", "BBAceptar", 1}, {"version", nullptr, 2},      {"zeb", nullptr, 2},
        {"zeb", "Imagen", 2},        {"reloj", nullptr, 2},        {"reloj", "BBCancelar", 2},
        {"activos 1", nullptr, 6},   {"activos 0", nullptr, 6},    {"activos 1", "BBSi", 6},
        {"activos 1", "BBNo", 7},    {"activos 0", "BBAceptar", 1}};
    for (const auto& [dialogo, accion, resultado] : casos) {
        prueba::AlAbrirseModal([&](QWidget* w) {
            if (accion)
                QTest::mouseClick(w->findChild<QWidget*>(QLatin1String(accion)), Qt::LeftButton);
            else
                QTest::keyClick(w, Qt::Key_Escape);
        });
        EXPECT_EQ(abre(dialogo), resultado) << dialogo << " " << (accion ? accion : "Escape");
        EXPECT_EQ(prueba::VentanasVisibles(), 0);
    }
    EXPECT_TRUE(reloj.pedidas.isEmpty());
}

TEST(VersionNod, GridListsTheTablesOfTheSuiteAliasOrSaysItHasNoFolder) {
    prueba::OficinaPrueba o(QStringLiteral("[GENERAL]\nAliasNodrim=DB\n[ALIAS]\nDB=DATOS\n"));
    for (const char* f : {"DATOS/CLIENTES.DBF", "DATOS/provin.dbf", "DATOS/CLIENTES.DBT", "DATOS/nota.txt"})
        o.escribe(QLatin1String(f), QStringLiteral("x"));
    EXPECT_EQ(TablasDelAlias(QStringLiteral("DB")),
              (QStringList{QStringLiteral("CLIENTES.DBF"), QStringLiteral("provin.dbf")}));

    TFVersionNod v;
    auto* grid = v.findChild<QTableWidget*>(QStringLiteral("SGTablas"));
    ASSERT_NE(grid, nullptr);
    ASSERT_EQ(grid->rowCount(), 2);
    EXPECT_EQ(grid->item(0, 0)->text(), QStringLiteral("CLIENTES.DBF"));
    EXPECT_EQ(grid->item(1, 0)->text(), QStringLiteral("provin.dbf"));
    EXPECT_EQ(v.findChild<QLabel*>(QStringLiteral("LFecha"))->text(), QStringLiteral("21/04/22"));
    EXPECT_EQ(v.findChild<QLabel*>(QStringLiteral("LAviso")), nullptr);

    prueba::OficinaPrueba sinCarpeta(QStringLiteral("[GENERAL]\nAliasNodrim=NADA\n"));
    EXPECT_TRUE(TablasDelAlias(QStringLiteral("NADA")).isEmpty());
    TFVersionNod vacia;
    EXPECT_EQ(vacia.findChild<QTableWidget*>(QStringLiteral("SGTablas"))->rowCount(), 0);
    auto* aviso = vacia.findChild<QLabel*>(QStringLiteral("LAviso"));
    ASSERT_NE(aviso, nullptr);
    EXPECT_TRUE(aviso->text().contains(QStringLiteral("NADA")));
}

TEST(PreguntaZEB, LinksReactToTheMouseAndOpenThroughTheShell) {
    prueba::OficinaPrueba o(
        QStringLiteral("[FABRICANTE]\nWeb=https://fabricante.example\nCorreo=ayuda@fabricante.example\n"));
    AbridorDePrueba abridor;
    TFPreguntaZEB f(nullptr, QStringLiteral("¿Llamar al fabricante?"));
    EXPECT_EQ(f.findChild<QLabel*>(QStringLiteral("LMensaje"))->text(),
              QStringLiteral("¿Llamar al fabricante?"));
    const std::tuple<const char*, QColor, QColor, const char*> casos[] = {
        {"LMDZeb", QColor(0x01, 0xC1, 0xFA), QColor(0, 0, 0xFF), "https://fabricante.example"},
        {"LMDCorreo", QColor(0xB9, 0, 0), QColor(0x80, 0, 0), "mailto:ayuda@fabricante.example"}};
    for (const auto& [nombre, encima, reposo, url] : casos) {
        auto* l = f.findChild<QLabel*>(QLatin1String(nombre));
        ASSERT_NE(l, nullptr);
        const int puntos = l->font().pointSize();
        EXPECT_EQ(l->palette().color(QPalette::WindowText), reposo);
        f.EntraEnlace(l);
        EXPECT_EQ(l->font().pointSize(), puntos + 1);
        EXPECT_EQ(l->palette().color(QPalette::WindowText), encima);
        EXPECT_EQ(l->cursor().shape(), Qt::PointingHandCursor);
        f.SaleEnlace(l);
        EXPECT_EQ(l->font().pointSize(), puntos);
        EXPECT_EQ(l->palette().color(QPalette::WindowText), reposo);
        QTest::mouseClick(l, Qt::LeftButton);
        ASSERT_FALSE(abridor.abiertas.isEmpty());
        EXPECT_EQ(abridor.abiertas.last(), QUrl(QLatin1String(url)));
    }
    f.show();
    QTest::mouseClick(f.findChild<QLabel*>(QStringLiteral("Imagen")), Qt::LeftButton);
    EXPECT_FALSE(f.isVisible()) << "clicking the image closes the box";
}

TEST(ServicioQt, QuestionsAnswerYesOrNoAndEscapeIsNo) {
    ServicioMensajesQt qt;
    ServicioMensajesInstalado instalado(qt);
    // Plain letters answer like Alt+letter.
    // boton: "BSi", "BNo" or nullptr for the key
    const std::tuple<const char*, Qt::Key, bool, int, const char*> casos[] = {
        {"BSi", {}, true, 1, "BSi"},
        {"BNo", {}, true, 2, "BSi"},
        {nullptr, Qt::Key_Escape, true, 2, "BSi"},
        {nullptr, Qt::Key_Escape, false, 2, "BNo"},
        {nullptr, Qt::Key_S, true, 1, "BSi"},
        {nullptr, Qt::Key_N, true, 2, "BSi"}};
    for (const auto& [boton, tecla, focoEnSi, resultado, enfocado] : casos) {
        QString foco, titulo;
        prueba::AlAbrirseModal([&](QWidget* w) {
            foco = w->focusWidget() ? w->focusWidget()->objectName() : QString();
            titulo = w->windowTitle();
            if (boton)
                QTest::mouseClick(w->findChild<QPushButton*>(QLatin1String(boton)), Qt::LeftButton);
            else
                QTest::keyClick(w->focusWidget() ? w->focusWidget() : w, tecla);
        });
        EXPECT_EQ(qt.pregunta(QStringLiteral("Mensaje_SiNo"), QStringLiteral("¿Seguro?"),
                              QStringLiteral("Pregunta"), focoEnSi),
                  resultado)
            << (boton ? boton : "key") << " " << tecla;
        EXPECT_EQ(foco, QLatin1String(enfocado));
        EXPECT_EQ(titulo, QStringLiteral("Pregunta"));
    }
}

TEST(DialogosMarco, EnterMovesTheFocusToTheNextControl) {
    RelojDePrueba relojDelSistema;
    TFRelojNod reloj;
    TFVersionNod version;
    TFMensajeActivosFinancieros activos;
    activos.CambiaTipoMensaje(1);
    const std::tuple<QDialog*, const char*, const char*> casos[] = {
        {&reloj, "DTPFecha", "DTPHora"},
        {&reloj, "DTPHora", "BBAceptar"},
        // Enter on "Aceptar" accepted the clock (the button box's default button).
        {&reloj, "BBAceptar", "BBCancelar"},
        {&version, "SGTablas", "BBAceptar"},
        {&activos, "BBSi", "BBNo"}};
    for (const auto& [forma, desde, hasta] : casos)
        for (Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter}) {
            forma->show();
            QApplication::setActiveWindow(forma);
            auto* control = forma->findChild<QWidget*>(QLatin1String(desde));
            ASSERT_NE(control, nullptr) << desde;
            control->setFocus();
            QTest::keyClick(control, tecla);
            EXPECT_TRUE(forma->isVisible()) << desde << " " << tecla;
            EXPECT_EQ(forma->focusWidget()->objectName(), QLatin1String(hasta)) << desde << " " << tecla;
        }
    EXPECT_TRUE(relojDelSistema.pedidas.isEmpty());
    EXPECT_FALSE(reloj.findChild<QPushButton*>(QStringLiteral("BBAceptar"))->isDefault());
}

// The help text could not be reached or scrolled from the keyboard: its last lines stayed unread.
TEST(ActivosFinancieros, TheHelpTextIsReachedAndScrolledFromTheKeyboard) {
    TFMensajeActivosFinancieros f;
    f.CambiaTipoMensaje(1);
    f.show();
    QApplication::setActiveWindow(&f);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
    auto* texto = f.findChild<QTextEdit*>(QStringLiteral("RETexto"));
    ASSERT_NE(texto, nullptr);
    EXPECT_EQ(QApplication::focusWidget(), texto) << "the help text has the focus first";
    QScrollBar* barra = texto->verticalScrollBar();
    ASSERT_GT(barra->maximum(), 0) << "the text is longer than the box";
    QTest::keyClick(texto, Qt::Key_PageDown);
    EXPECT_GT(barra->value(), 0);
    QTest::keyClick(texto, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(texto, Qt::Key_Down);
    EXPECT_EQ(barra->value(), barra->maximum()) << "the last lines can be read";
    QTest::keyClick(texto, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), f.findChild<QPushButton*>(QStringLiteral("BBSi")));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), texto) << "and back with Shift+Tab";
    EXPECT_TRUE(TFMensajeActivosFinancieros::TextoAyuda().contains(QStringLiteral("ZXX")));
}

// A long wait message made a window wider than the screen with both ends cut.
TEST(ServicioQt, ALongWaitMessageWrapsInsideTheScreen) {
    ServicioMensajesQt qt;
    ServicioMensajesInstalado instalado(qt);
    QString largo = QStringLiteral("Consultando ");
    while (largo.size() < 2000)
        largo += QStringLiteral("el catastro y el registro de la propiedad, ");
    MuestraMensaje(largo + QStringLiteral("\r<b>fin</b>"));
    QDialog* w = qt.ventanaEspera();
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    auto* l = w->findChild<QLabel*>(QStringLiteral("LEspera"));
    const QRect zona = w->screen()->availableGeometry();
    EXPECT_TRUE(zona.contains(w->frameGeometry()));
    EXPECT_TRUE(l->wordWrap());
    EXPECT_TRUE(l->text().startsWith(QStringLiteral("Consultando el catastro")));
    EXPECT_TRUE(l->text().endsWith(QStringLiteral("\n<b>fin</b>")));
    EXPECT_EQ(l->textFormat(), Qt::PlainText);
    QTest::keyClick(w, Qt::Key_Escape);
    EXPECT_TRUE(w->isVisible()) << "only the program closes the wait window";
    CambiaMensaje(QStringLiteral("Leyendo la respuesta..."));
    EXPECT_EQ(qt.ventanaEspera()->findChild<QLabel*>(QStringLiteral("LEspera"))->text(),
              QStringLiteral("Leyendo la respuesta..."));
    CierraMensaje();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(qt.ventanaEspera(), nullptr);
    CierraMensaje(); // closing twice is harmless
}

// The library shipped invented addresses for the maker's web site and support desk.
TEST(PreguntaZEB, WithoutConfiguredAddressesTheLinksAreDisabled) {
    prueba::OficinaPrueba o; // no maker's addresses configured
    AbridorDePrueba abridor;
    TFPreguntaZEB f(nullptr, QStringLiteral("Soporte"));
    f.show();
    for (const char* nombre : {"LMDZeb", "LMDCorreo"}) {
        auto* l = f.findChild<QLabel*>(QLatin1String(nombre));
        EXPECT_FALSE(l->isEnabled()) << nombre;
        const QColor antes = l->palette().color(QPalette::WindowText);
        f.EntraEnlace(l);
        EXPECT_EQ(l->palette().color(QPalette::WindowText), antes) << "no hover on a disabled link";
    }
    f.LMDZebClick();
    f.LMDCorreoClick();
    EXPECT_TRUE(abridor.abiertas.isEmpty());
    prueba::OficinaPrueba muestra;
    Config.Carga(prueba::OficinaMuestra());
    EXPECT_TRUE(Config.GetWebFabricante().contains(QStringLiteral("example.com")));
    EXPECT_TRUE(Config.GetCorreoFabricante().endsWith(QStringLiteral("@example.com")));
}

// The service's error box: one Aceptar button, a 100,000-character text keeps it on screen, "\r" breaks
// the line, markup shows as typed, and a plain letter answers like Alt+letter.
TEST(ServicioQt, StandardBoxesStayUsableWithAnyText) {
    ServicioMensajesQt qt;
    ServicioMensajesInstalado instalado(qt);
    const QRect zona = QGuiApplication::primaryScreen()->availableGeometry();
    QString texto;
    QStringList botones;
    bool dentro = false;
    prueba::AlAbrirseModal([&](QWidget* w) {
        for (auto* b : w->findChildren<QPushButton*>())
            botones << b->text();
        auto* l = w->findChild<QLabel*>(QStringLiteral("LTexto"));
        texto = l ? l->text().left(40) : QString();
        dentro = zona.contains(w->frameGeometry());
        QTest::keyClick(w->focusWidget(), Qt::Key_A);
    });
    Mensaje_Error(QStringLiteral("<b>uno</b>\rdos ") + QString(100000, u'x'), QStringLiteral("Error"));
    EXPECT_TRUE(texto.startsWith(QStringLiteral("<b>uno</b>\ndos xxx")));
    EXPECT_EQ(botones, QStringList{QStringLiteral("&Aceptar")});
    EXPECT_TRUE(dentro);
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
}
