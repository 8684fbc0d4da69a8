// Feeds requests to the handler of `nodrim batch`: whatever the bytes, every request line gets one
// response, an answer or a refusal, and nothing crashes, hangs or touches memory it does not own.
//
// The first byte chooses the mode:
//  - even: the rest is a stream of request lines, read as `nodrim batch` reads its standard input;
//  - odd:  one call built from the routine table: the next two bytes pick a form of a registered routine
//          (so that every routine is reached), then its arguments are drawn by the form's parameter
//          types, sometimes a configuration value, and the bytes left answer its dialogs.
// Started on a corpus folder, the target first writes into it one seed per form of every routine in both
// modes, and at the end it says how many forms it called. The routines run on a temporary copy of the
// sample office, with a temporary folder of their own (tools/fuzz.sh also starts it in a scratch folder).
#include "apps/nodrim/lote.h"
#include "comms/pasarela.h"
#include "companion/config.h"
#include "fuzz/semillas.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QUrl>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <sstream>

using namespace nod;
using nod::lote::json;

namespace {

struct Forma {
    std::string nombre;
    const lote::Sobrecarga* forma;
};

const std::vector<Forma>& formas() {
    static const std::vector<Forma> todas = [] {
        std::vector<Forma> v;
        for (const auto& [nombre, sobrecargas] : lote::TodasLasRutinas().todas())
            for (const auto& s : sobrecargas)
                v.push_back({nombre, &s});
        return v;
    }();
    return todas;
}

std::vector<bool> g_llamadas; // forms called with arguments they took

std::string tipoBase(std::string tipo) {
    if (!tipo.empty() && tipo.back() == '&') tipo.pop_back();
    return tipo;
}

json valorTipico(const std::string& tipo) {
    const std::string t = tipoBase(tipo);
    if (t == "integer") return 1;
    if (t == "number") return 1.5;
    if (t == "boolean") return true;
    if (t == "character") return "S";
    if (t == "array of strings") return json::array({"28"});
    return "28";
}

json valorDe(const std::string& tipo, FuzzedDataProvider& datos) {
    const std::string t = tipoBase(tipo);
    if (t == "integer")
        return datos.ConsumeBool() ? json(datos.ConsumeIntegral<std::int32_t>())
                                   : json(datos.ConsumeIntegral<std::int64_t>());
    if (t == "number")
        return datos.ConsumeBool() ? json(datos.ConsumeFloatingPoint<double>())
                                   : json(datos.ConsumeIntegral<std::int32_t>());
    if (t == "boolean") return datos.ConsumeBool();
    if (t == "character") return QString(QChar(datos.ConsumeIntegral<char16_t>())).toStdString();
    if (t == "array of strings") {
        json lista = json::array();
        for (int n = datos.ConsumeIntegralInRange(0, 3); n > 0; --n)
            lista.push_back(datos.ConsumeRandomLengthString(64));
        return lista;
    }
    return datos.ConsumeRandomLengthString(256);
}

// A configuration value of the right type for one request, now and then.
// The hosts the routines talk to stay on a closed port of 127.0.0.1 (`preparaOficina`): never drawn.
bool esDireccionDeRed(std::string_view nombre) {
    static constexpr std::string_view kRed[] = {"ServidorCatastro", "WebConsultaCatastro", "ServidorCorreo",
                                                "PuertoCorreo",     "ServidorFAX",         "PortalFabricante",
                                                "WebFabricante"};
    return std::find(std::begin(kRed), std::end(kRed), nombre) != std::end(kRed);
}

void configuracion(json& peticion, FuzzedDataProvider& datos) {
    const auto descriptores = TConfig::Descriptores();
    const auto& d = descriptores[datos.ConsumeIntegral<std::uint16_t>() % descriptores.size()];
    if (esDireccionDeRed(d.nombre)) return;
    json v;
    switch (d.tipo) {
    case TConfig::Tipo::Entero:
        v = datos.ConsumeIntegral<std::int32_t>();
        break;
    case TConfig::Tipo::Real:
        v = datos.ConsumeFloatingPoint<double>();
        break;
    case TConfig::Tipo::Logico:
        v = datos.ConsumeBool();
        break;
    case TConfig::Tipo::Texto:
        v = datos.ConsumeRandomLengthString(32);
        break;
    }
    peticion["config"][d.nombre] = v;
}

[[noreturn]] void falla(const char* que, const std::string& detalle) {
    std::fprintf(stderr, "fuzz_lote: %s: %s\n", que, detalle.substr(0, 500).c_str());
    std::abort();
}

// A response is an object with "result" and "dialogs", and "result" is null when there is an "error".
void compruebaRespuesta(const json& r) {
    if (!r.is_object() || !r.contains("result") || !r.contains("dialogs") || !r["dialogs"].is_array())
        falla("malformed response", r.dump(-1, ' ', false, json::error_handler_t::replace));
    if (r.contains("error") && !r["result"].is_null())
        falla("an error with a result", r.dump(-1, ' ', false, json::error_handler_t::replace));
}

void llamada(FuzzedDataProvider& datos, std::uint16_t indice) {
    const auto& todas = formas();
    const Forma& f = todas[indice % todas.size()];
    json args = json::array();
    for (const auto& tipo : f.forma->parametros)
        args.push_back(valorDe(tipo, datos));
    json peticion{{"fn", f.nombre}, {"args", std::move(args)}};
    if (datos.ConsumeBool()) configuracion(peticion, datos);
    // Modal results (values outside them are refused before the call, which the other mode tries).
    const auto respuestas = datos.ConsumeRemainingBytes<std::uint8_t>();
    for (std::size_t i = 0; i < respuestas.size() && i < 8; ++i)
        peticion["answers"].push_back(respuestas[i] % 12);
    const json r = lote::Atiende(peticion);
    compruebaRespuesta(r);
    const std::string error = r.value("error", std::string());
    if (error.rfind(f.nombre + ": arguments (", 0) != 0) g_llamadas[indice % todas.size()] = true;
}

// Every line that is not blank gets exactly one response.
void flujo(const std::string& entrada) {
    std::istringstream in(entrada);
    std::ostringstream out;
    if (lote::Procesa(in, out) != lote::FinLote::Completo) falla("the stream did not end", entrada);
    std::size_t peticiones = 0;
    std::istringstream lineas(entrada);
    for (std::string l; std::getline(lineas, l);)
        peticiones += l.find_first_not_of(" \t\r") != std::string::npos;
    std::size_t respuestas = 0;
    std::istringstream salida(out.str());
    for (std::string l; std::getline(salida, l); ++respuestas) {
        const json r = json::parse(l, nullptr, false);
        if (r.is_discarded()) falla("a response that is not JSON", l);
        compruebaRespuesta(r);
    }
    if (respuestas != peticiones) falla("responses and requests differ in number", entrada);
}

void informe() {
    const auto& todas = formas();
    std::size_t llamadas = 0;
    std::string faltan;
    for (std::size_t i = 0; i < todas.size(); ++i) {
        if (g_llamadas[i])
            ++llamadas;
        else
            faltan += " " + todas[i].nombre;
    }
    std::fprintf(stderr, "fuzz_lote: %zu of %zu routine forms called%s%s\n", llamadas, todas.size(),
                 faltan.empty() ? "" : "; not yet:", faltan.c_str());
}

// One seed per form in each mode: a typed call by index, and a request line with typical arguments.
void siembra(const std::filesystem::path& carpeta) {
    const auto& todas = formas();
    for (std::size_t i = 0; i < todas.size(); ++i) {
        const std::string indice = std::to_string(i);
        // '3' is odd: the data provider, which takes flags and numbers from the end, picks 32-bit
        // integers (enough of them for the longest signature); a backslash and another character end
        // each text taken from the front.
        std::string llamada{'\x01', char(i & 0xFF), char(i >> 8)};
        for (int k = 0; k < 8; ++k)
            llamada += "2833\\x";
        llamada += std::string(64, '3');
        fuzz::EscribeSemilla(carpeta, "llamada_" + indice, llamada);
        json args = json::array();
        for (const auto& tipo : todas[i].forma->parametros)
            args.push_back(valorTipico(tipo));
        const json peticion{{"fn", todas[i].nombre}, {"args", args}};
        fuzz::EscribeSemilla(carpeta, "linea_" + indice, std::string(1, '\0') + peticion.dump() + "\n");
    }
}

// A copy of the sample office, and a folder for temporary files, in a temporary folder.
void preparaOficina() {
    static QTemporaryDir tmp;
    const QString oficina = tmp.filePath(QStringLiteral("oficina"));
    const QString origen = CarpetaOficinaPorDefecto();
    QDirIterator it(origen, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString fichero = it.next();
        const QString destino = oficina + QLatin1Char('/') + QDir(origen).relativeFilePath(fichero);
        QDir().mkpath(QFileInfo(destino).absolutePath());
        QFile::copy(fichero, destino);
    }
    const QString temporales = tmp.filePath(QStringLiteral("tmp"));
    QDir().mkpath(temporales);
    qputenv("TMPDIR", QFile::encodeName(temporales));
    Config.Carga(oficina);
    // Nothing leaves the machine: every host is a port of 127.0.0.1 where nothing listens, and no program
    // is started.
    QTcpServer libre;
    libre.listen(QHostAddress::LocalHost);
    const QString cerrado = QStringLiteral("http://127.0.0.1:%1").arg(libre.serverPort());
    libre.close();
    for (const char* nombre :
         {"ServidorCatastro", "WebConsultaCatastro", "ServidorFAX", "PortalFabricante", "WebFabricante"})
        TConfig::BuscaDescriptor(QString::fromLatin1(nombre))->escribe(Config, cerrado);
    Config.SetServidorCorreo(QStringLiteral("127.0.0.1"));
    Config.SetPuertoCorreo(int(QUrl(cerrado).port()));
    FijaLanzadorPrograma([](const QString&) { return false; });
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    static int argcQt = 1;
    static char nombre[] = "fuzz_lote";
    static char* argvQt[] = {nombre, nullptr};
    static QCoreApplication app(argcQt, argvQt);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}); // no log noise
    if (const auto carpeta = fuzz::CarpetaCorpus(*argc, *argv)) siembra(*carpeta);
    preparaOficina();
    g_llamadas.assign(formas().size(), false);
    std::atexit(informe);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    if (largo == 0) return 0;
    if (datos[0] % 2 == 0) {
        flujo(std::string(reinterpret_cast<const char*>(datos + 1), largo - 1));
    } else if (largo >= 3) {
        FuzzedDataProvider resto(datos + 3, largo - 3);
        llamada(resto, std::uint16_t(datos[1] | datos[2] << 8));
    }
    return 0;
}
