// Closing the suite's programs: a real connection table and real listeners on 127.0.0.x standing for the
// other workstations' programs (one that leaves when told, one that stays, a closed port, a port whose
// connections hang, a host name that does not resolve). Pauses and countdown are shortened by the
// configuration; the clock is fixed so that "three minutes ago" is exact.
#include "companion/hoy.h"
#include "companion/mensajes.h"
#include "maintenance/clasecierranodrims.h"
#include "maintenance/conexiontcp.h"
#include "maintenance/direccionpropia.h"
#include "maintenance/escuchacierre.h"
#include "tables/tablas.h"
#include "tests/maintenance/ayudas.h"
#include "tests/support/oficina_prueba.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

using namespace nod;
using nod::prueba::OficinaPrueba;

namespace {

const QString kHay = u"HAY USUARIOS CONECTADOS A NODRIM, ESPERANDO ..."_s;
const TDateTime kAhora = QDateTimeToTDateTime(QDateTime(QDate(2024, 5, 31), QTime(10, 3, 0)));
const TDateTime kHoy = EncodeDate(2024, 5, 31);
const TDateTime kAyer = EncodeDate(2024, 5, 30);
constexpr int kEsperaConexionMs = 300;

QString informando(const char* equipo) {
    return u"INFORMANDO A USUARIO: "_s + QLatin1String(equipo);
}
QString noResponde(const char* equipo) {
    return u"USUARIO "_s + QLatin1String(equipo) + u" NO RESPONDE"_s;
}

// A port on 127.0.0.1 that accepts no connection in time: its backlog is full and nobody accepts, so
// further connection requests go unanswered.
struct PuertoColgado {
    PuertoColgado() {
        sockaddr_in a{};
        a.sin_family = AF_INET;
        a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        ::bind(escucha, reinterpret_cast<sockaddr*>(&a), sizeof a);
        ::listen(escucha, 0);
        socklen_t n = sizeof a;
        ::getsockname(escucha, reinterpret_cast<sockaddr*>(&a), &n);
        puerto = ntohs(a.sin_port);
        for (int i = 0; i < 4; ++i) { // fill the accept queue
            clientes.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0));
            ::connect(clientes.back(), reinterpret_cast<sockaddr*>(&a), sizeof a);
        }
        ::usleep(50000);
    }
    ~PuertoColgado() {
        for (int c : clientes)
            ::close(c);
        ::close(escucha);
    }
    int escucha = ::socket(AF_INET, SOCK_STREAM, 0);
    quint16 puerto = 0;
    std::vector<int> clientes;
};

class CierraNodrims : public ::testing::Test {
protected:
    CierraNodrims()
        : oficina(u"[GENERAL]\nAliasNodrim=DB\n[ALIAS]\nDB=DATOS\n"
                  "[ACTUALIZACION]\nTiempoEspera=2\nPausaMs=5\nEsperaConexionMs=%1\n"
                  "[TABLAS]\nEsperaBloqueo=200\n"_s.arg(kEsperaConexionMs))
        , instalado(mensajes) {
        oficina.escribe(u"DATOS/LEEME.TXT"_s, QString());
        FijaAhora(kAhora);
        FijaDameIP(u"127.0.0.1"_s);
    }
    ~CierraNodrims() override {
        FijaAhora(std::nullopt);
        FijaDameIP(std::nullopt);
    }

    // A program of the suite on `direccion`, listening on the shared update port (the first one chooses it).
    TEscuchaCierre& programa(const char* direccion) {
        auto* e = new TEscuchaCierre(&dueno);
        EXPECT_TRUE(e->Escucha(puerto, QLatin1String(direccion))) << e->Error().toStdString();
        puerto = e->Puerto();
        Config.SetPuertoActualiz(puerto);
        const QString equipo = QLatin1String(direccion);
        QObject::connect(e, &TEscuchaCierre::CierrePedido, [this, equipo] { avisados << equipo; });
        return *e;
    }
    // The same program, which removes its row from the table when told to close, as it leaves.
    void programaQueSeVa(const char* direccion) {
        const QString equipo = QLatin1String(direccion);
        QObject::connect(&programa(direccion), &TEscuchaCierre::CierrePedido, [equipo] {
            auto tb = CreaTabla(u"DB"_s, u"CONEXION"_s, u"EQUIPO"_s);
            if (TBBusca(*tb, {{u"EQUIPO"_s, equipo}})) TBDelete(*tb);
        });
    }

    QStringList equipos() {
        QStringList l;
        auto tb = CreaTabla(u"DB"_s, u"CONEXION"_s, u"EQUIPO"_s);
        for (; !tb->Eof(); tb->Next())
            l << tb->AsString(u"EQUIPO"_s);
        return l;
    }

    // The texts of the message window, in order.
    QStringList textos() const { return prueba::TextosEspera(mensajes); }
    // The closing questions asked, in order.
    QList<DialogoMostrado> preguntas() const {
        QList<DialogoMostrado> l = mensajes.mostrados();
        l.removeIf([](const DialogoMostrado& d) { return d.kind != QLatin1String("Mensaje_NoSi"); });
        return l;
    }

    OficinaPrueba oficina;
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado;
    QObject dueno;
    int puerto = 0; // the update port, chosen by the system for the first program
    QStringList avisados;
};

// Nobody to wait for: mode 1 without a table (which it creates), mode 2 with only this workstation's row,
// and any other mode whatever the table holds.
TEST_F(CierraNodrims, ReturnsAtOnceWhenThereIsNobodyToWaitFor) {
    programa("127.0.0.1");
    EXPECT_TRUE(NodrimsCerrados(nullptr, 1));
    EXPECT_TRUE(QFileInfo::exists(oficina.ruta(u"DATOS/CONEXION.DBF"_s)));
    prueba::FilaConexion("127.0.0.1", kHoy, "10:02:00");
    EXPECT_TRUE(NodrimsCerrados(nullptr, 2));
    prueba::FilaConexion("127.0.0.2", kHoy, "10:02:00");
    EXPECT_TRUE(NodrimsCerrados(nullptr, 0));
    EXPECT_EQ(textos(), (QStringList{QString(), QString(), QString()})); // each window opened empty, closed
    EXPECT_FALSE(mensajes.esperaVisible());
    EXPECT_TRUE(avisados.isEmpty());
    EXPECT_EQ(equipos(), (QStringList{u"127.0.0.1"_s, u"127.0.0.2"_s}));
}

// One pass over a leaving program, a closed port, a row of yesterday and a row exactly three minutes old.
TEST_F(CierraNodrims, Mode1TellsTheLivingAndDropsTheStaleAndTheSilent) {
    programaQueSeVa("127.0.0.1");
    prueba::FilaConexion("127.0.0.4", kHoy, "10:00:00"); // 10:00:00 + 3 minutes is not later than 10:03:00
    prueba::FilaConexion("127.0.0.3", kAyer, "10:02:59");
    prueba::FilaConexion("127.0.0.2", kHoy, "10:02:30"); // nobody listens on 127.0.0.2
    prueba::FilaConexion("127.0.0.1", kHoy, "10:02:30");

    EXPECT_TRUE(NodrimsCerrados(nullptr, 1));

    // The silent workstation is tried five times before its row goes.
    QStringList esperados = {QString(), kHay, informando("127.0.0.1")};
    for (int vez = 0; vez < 5; ++vez)
        esperados << informando("127.0.0.2");
    esperados << noResponde("127.0.0.2") << noResponde("127.0.0.3") << noResponde("127.0.0.4");
    EXPECT_EQ(textos(), esperados);
    EXPECT_EQ(avisados, QStringList{u"127.0.0.1"_s});
    EXPECT_TRUE(equipos().isEmpty());
    EXPECT_TRUE(preguntas().isEmpty());
    EXPECT_FALSE(mensajes.esperaVisible());
}

TEST_F(CierraNodrims, ARowJustUnderThreeMinutesOldIsContacted) {
    programaQueSeVa("127.0.0.1");
    prueba::FilaConexion("127.0.0.1", kHoy, "10:00:01");
    EXPECT_TRUE(NodrimsCerrados(nullptr, 1));
    EXPECT_EQ(avisados, QStringList{u"127.0.0.1"_s});
    // The walk's own view of the table still shows the row its program has just removed: one countdown.
    EXPECT_EQ(textos(), (QStringList{QString(), kHay, informando("127.0.0.1"),
                                     u"TIEMPO DE ESPERA PARA NUEVA COMPROBACIÓN: 2 seg."_s,
                                     u"TIEMPO DE ESPERA PARA NUEVA COMPROBACIÓN: 1 seg."_s}));
    EXPECT_TRUE(equipos().isEmpty());
}

TEST_F(CierraNodrims, Mode2WaitsUntilOnlyThisWorkstationIsLeft) {
    programa("127.0.0.1"); // this workstation's own program stays
    programaQueSeVa("127.0.0.2");
    prueba::FilaConexion("127.0.0.1", kHoy, "10:02:00");
    prueba::FilaConexion("127.0.0.2", kHoy, "10:02:00");
    EXPECT_TRUE(NodrimsCerrados(nullptr, 2));
    EXPECT_EQ(equipos(), QStringList{u"127.0.0.1"_s});
    EXPECT_EQ(avisados, (QStringList{u"127.0.0.1"_s, u"127.0.0.2"_s}));
}

// A program that never leaves: a countdown after every pass, the question on every fifth; No starts the
// count again, Yes stops waiting, and the answer is still true.
TEST_F(CierraNodrims, EveryFifthPassAsksAndTheResultStaysTrueAfterAnAbort) {
    programa("127.0.0.1");
    prueba::FilaConexion("127.0.0.1", kHoy, "10:02:30");
    mensajes.respuestas({7, 6});

    EXPECT_TRUE(NodrimsCerrados(nullptr, 1));

    const QList<DialogoMostrado> p = preguntas();
    ASSERT_EQ(p.size(), 2);
    EXPECT_EQ(avisados.size(), 10);
    EXPECT_EQ(equipos(), QStringList{u"127.0.0.1"_s});
    EXPECT_EQ(p[0].title, u"Atención"_s);
    EXPECT_TRUE(p[0].text.contains(u"ATENCIÓN:"_s));
    EXPECT_TRUE(p[0].text.endsWith(u"¿Desea abortar la actualización?"_s));
    // One pass: the contact, then the countdown from the configured two seconds.
    const QStringList pasada = {kHay, informando("127.0.0.1"),
                                u"TIEMPO DE ESPERA PARA NUEVA COMPROBACIÓN: 2 seg."_s,
                                u"TIEMPO DE ESPERA PARA NUEVA COMPROBACIÓN: 1 seg."_s};
    EXPECT_EQ(textos().mid(1, 4), pasada);
    EXPECT_EQ(textos().size(), 1 + 10 * pasada.size());
}

TEST_F(CierraNodrims, Mode2AsksAboutTheOperation) {
    programa("127.0.0.1");
    programa("127.0.0.2");
    prueba::FilaConexion("127.0.0.1", kHoy, "10:02:30");
    prueba::FilaConexion("127.0.0.2", kHoy, "10:02:30");
    Config.SetTiempoEsperaActualiz(0); // no countdown
    mensajes.respuestas({6});
    EXPECT_TRUE(NodrimsCerrados(nullptr, 2));
    const QList<DialogoMostrado> p = preguntas();
    ASSERT_EQ(p.size(), 1);
    EXPECT_FALSE(textos().join(u'|').contains(u"TIEMPO DE ESPERA"_s));
    EXPECT_TRUE(p[0].text.endsWith(u"¿Desea abortar la operación?"_s));
}

// Workstations that cannot be reached: each contact ends at the connection timeout and the fifth failure
// removes the row.
TEST_F(CierraNodrims, HangingConnectionsAndUnknownHostsEndAtTheTimeoutAndLoseTheirRow) {
    PuertoColgado colgado;
    Config.SetPuertoActualiz(colgado.puerto);
    prueba::FilaConexion("127.0.0.1", kHoy, "10:02:30");
    prueba::FilaConexion("equipo-inexistente.invalid", kHoy, "10:02:30");
    QElapsedTimer reloj;
    reloj.start();
    EXPECT_TRUE(NodrimsCerrados(nullptr, 1));
    EXPECT_TRUE(equipos().isEmpty());
    EXPECT_EQ(textos().count(informando("127.0.0.1")), 5);
    EXPECT_EQ(textos().count(informando("equipo-inexistente.invalid")), 5);
    // Ten contacts, none longer than the timeout: far below what one unanswered connection would take.
    EXPECT_LT(reloj.elapsed(), 10 * (kEsperaConexionMs + 200));
}

TEST_F(CierraNodrims, AnUnreadableConnectionTableIsReportedAndTheCallerCarriesOn) {
    oficina.escribe(u"DATOS/CONEXION.DBF"_s, u"no es una tabla"_s);
    EXPECT_TRUE(NodrimsCerrados(nullptr, 1));
    ASSERT_EQ(mensajes.mostrados().size(), 1);
    EXPECT_EQ(mensajes.mostrados()[0].kind, u"Mensaje_Error"_s);
    EXPECT_TRUE(mensajes.mostrados()[0].text.contains(u"CONEXION"_s));
}

TEST(EscuchaCierre, AConnectionAsksToCloseAndATakenPortIsRefused) {
    TEscuchaCierre a, b;
    ASSERT_TRUE(a.Escucha(0, u"127.0.0.1"_s));
    QStringList avisos;
    QObject::connect(&a, &TEscuchaCierre::CierrePedido, [&](const QString& d) { avisos << d; });
    TConexionTcp c;
    ASSERT_TRUE(c.Conecta(u"localhost"_s, a.Puerto(), 2000)); // a name, looked up
    QElapsedTimer t;
    t.start();
    while (avisos.isEmpty() && t.elapsed() < 2000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_EQ(avisos, QStringList{u"127.0.0.1"_s});

    EXPECT_FALSE(b.Escucha(a.Puerto(), u"127.0.0.1"_s));
    EXPECT_FALSE(b.Error().isEmpty());
    EXPECT_EQ(b.Puerto(), 0);
    EXPECT_FALSE(b.Escucha(0, u"no es una dirección"_s));
    a.Deja();
    EXPECT_FALSE(c.Conecta(u"127.0.0.1"_s, a.Puerto(), 2000));
}

} // namespace
