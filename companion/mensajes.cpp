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

void ServicioMensajesGuionado::anota(const QString& kind, const QString& titulo, const QString& texto) {
    m_mostrados.push_back({kind, titulo, texto, std::nullopt, false});
}

int ServicioMensajesGuionado::responde(const QString& kind, const QString& titulo, const QString& texto,
                                       int escape, bool siNo) {
    std::optional<int> r;
    if (m_fuente) {
        r = m_fuente(kind);
    } else if (!m_respuestas.empty()) {
        r = m_respuestas.front();
        m_respuestas.pop_front();
    }
    int v = r.value_or(escape);
    if (siNo) v = v == 6 ? 1 : v == 7 ? 2 : v;
    m_mostrados.push_back({kind, titulo, texto, v, !r});
    return v;
}

void ServicioMensajesGuionado::error(const QString& texto, const QString& titulo) {
    anota(QStringLiteral("Mensaje_Error"), titulo, texto);
}

void ServicioMensajesGuionado::info(const QString& texto, const QString& titulo) {
    anota(QStringLiteral("Mensaje_Info"), titulo, texto);
}

int ServicioMensajesGuionado::pregunta(const QString& kind, const QString& texto, const QString& titulo,
                                       bool) {
    return responde(kind, titulo, texto, 2, true);
}

void ServicioMensajesGuionado::muestraEspera(const QString& texto) {
    anota(QStringLiteral("MuestraMensaje"), {}, texto);
    m_esperaVisible = true;
}

void ServicioMensajesGuionado::cambiaEspera(const QString& texto) {
    anota(QStringLiteral("CambiaMensaje"), {}, texto);
}

void ServicioMensajesGuionado::cierraEspera() {
    m_esperaVisible = false;
}

int ServicioMensajesGuionado::mensajePerson(const PeticionMensajePerson& p) {
    QString texto = p.mensaje1;
    if (!p.mensaje2.isEmpty()) texto += (texto.isEmpty() ? QString() : QStringLiteral("\n")) + p.mensaje2;
    return responde(QStringLiteral("Mensaje_Person"), p.titulo, texto, 2);
}

int ServicioMensajesGuionado::activosFinancieros(int) {
    return responde(QStringLiteral("Mensaje_ActivosFinancieros"),
                    QStringLiteral("Información sobre los Activos Financieros"),
                    QStringLiteral("Reglas para la corrección de Activos Financieros"), 6);
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
