#include "companion/mensajes.h"

#include "companion/registro.h"

namespace nod {

namespace {

// Used until a program installs a service: nothing is shown, everything is logged, and every question
// gets the answer Escape would give, so a routine called from a tool without a screen never blocks.
class ServicioSilencioso : public ServicioMensajes {
public:
    void error(const QString& texto, const QString& titulo) override { log(u"Mensaje_Error", titulo, texto); }
    void info(const QString& texto, const QString& titulo) override { log(u"Mensaje_Info", titulo, texto); }
    int pregunta(const QString& kind, const QString& texto, const QString& titulo, bool) override {
        log(kind, titulo, texto);
        return 2;
    }
    void muestraEspera(const QString& texto) override { log(u"MuestraMensaje", {}, texto); }
    void cambiaEspera(const QString& texto) override { log(u"CambiaMensaje", {}, texto); }
    void cierraEspera() override {}
    int mensajePerson(const PeticionMensajePerson& p) override {
        log(u"Mensaje_Person", p.titulo, p.mensaje1 + QLatin1Char('\n') + p.mensaje2);
        return 2;
    }
    int activosFinancieros(int) override { return 6; }

private:
    static void log(QStringView kind, const QString& titulo, const QString& texto) {
        qCInfo(lcFrame).noquote() << kind << titulo << texto;
    }
};

ServicioSilencioso g_silencioso;
ServicioMensajes* g_servicio = nullptr;

} // namespace

ServicioMensajes::~ServicioMensajes() = default;

ServicioMensajes& Mensajes() {
    return g_servicio ? *g_servicio : g_silencioso;
}

void InstalaServicioMensajes(ServicioMensajes* servicio) {
    g_servicio = servicio;
}

ServicioMensajesInstalado::ServicioMensajesInstalado(ServicioMensajes& s)
    : m_anterior(g_servicio) {
    g_servicio = &s;
}

ServicioMensajesInstalado::~ServicioMensajesInstalado() {
    g_servicio = m_anterior;
}

int ServicioMensajesGuionado::siguiente(int siVacia) {
    if (m_respuestas.empty()) return siVacia;
    const int r = m_respuestas.front();
    m_respuestas.pop_front();
    return r;
}

void ServicioMensajesGuionado::error(const QString& texto, const QString& titulo) {
    m_mostrados.push_back({QStringLiteral("Mensaje_Error"), titulo, texto});
}

void ServicioMensajesGuionado::info(const QString& texto, const QString& titulo) {
    m_mostrados.push_back({QStringLiteral("Mensaje_Info"), titulo, texto});
}

int ServicioMensajesGuionado::pregunta(const QString& kind, const QString& texto, const QString& titulo,
                                       bool) {
    m_mostrados.push_back({kind, titulo, texto});
    const int r = siguiente(2);
    return r == 6 ? 1 : r == 7 ? 2 : r;
}

void ServicioMensajesGuionado::muestraEspera(const QString& texto) {
    m_mostrados.push_back({QStringLiteral("MuestraMensaje"), {}, texto});
    m_esperaVisible = true;
}

void ServicioMensajesGuionado::cambiaEspera(const QString& texto) {
    m_mostrados.push_back({QStringLiteral("CambiaMensaje"), {}, texto});
}

void ServicioMensajesGuionado::cierraEspera() {
    m_esperaVisible = false;
}

int ServicioMensajesGuionado::mensajePerson(const PeticionMensajePerson& p) {
    QString texto = p.mensaje1;
    if (!p.mensaje2.isEmpty()) texto += (texto.isEmpty() ? QString() : QStringLiteral("\n")) + p.mensaje2;
    m_mostrados.push_back({QStringLiteral("Mensaje_Person"), p.titulo, texto});
    return siguiente(2);
}

int ServicioMensajesGuionado::activosFinancieros(int) {
    m_mostrados.push_back({QStringLiteral("Mensaje_ActivosFinancieros"),
                           QStringLiteral("Información sobre los Activos Financieros"),
                           QStringLiteral("Reglas para la corrección de Activos Financieros")});
    return siguiente(6);
}

void Mensaje_Error(const QString& texto, const QString& titulo) {
    Mensajes().error(texto, titulo);
}
void Mensaje_Info(const QString& texto, const QString& titulo) {
    Mensajes().info(texto, titulo);
}

int Mensaje_SiNo(const QString& pregunta, const QString& texto, const QString& titulo) {
    return Mensajes().pregunta(QStringLiteral("Mensaje_SiNo"), texto + QLatin1Char('\n') + pregunta, titulo,
                               true);
}

int Mensaje_NoSi(const QString& pregunta, const QString& texto, const QString& titulo) {
    return Mensajes().pregunta(QStringLiteral("Mensaje_NoSi"), texto + QLatin1Char('\n') + pregunta, titulo,
                               false);
}

bool NoSi(const QString& texto, const QString& titulo) {
    return Mensajes().pregunta(QStringLiteral("NoSi"), texto, titulo, false) == 1;
}

void MuestraMensaje(const QString& texto) {
    Mensajes().muestraEspera(texto);
}
void CambiaMensaje(const QString& texto) {
    Mensajes().cambiaEspera(texto);
}
void CierraMensaje() {
    Mensajes().cierraEspera();
}

} // namespace nod
