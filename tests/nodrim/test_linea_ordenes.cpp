// The command line as a shell script uses it: options, exit statuses, and standard streams that are
// closed, full or not files at all.
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct Resultado {
    int estado = -1;
    QString salida, errores;
};

// Runs `guion` with sh, "$N" naming nodrim, "$S" the sample office and "$T" a fresh temporary folder.
Resultado ejecuta(const std::string& guion) {
    QTemporaryDir tmp;
    QProcess p;
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(QStringLiteral("N"), QStringLiteral(NODRIM_EXE));
    entorno.insert(QStringLiteral("T"), tmp.path());
    entorno.insert(QStringLiteral("S"), QStringLiteral(NOD_SOURCE_DIR "/sample-office"));
    entorno.remove(QStringLiteral("NODRIM_DIR"));
    p.setProcessEnvironment(entorno);
    p.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QString::fromStdString(guion)});
    p.closeWriteChannel();
    if (!p.waitForFinished(60000)) p.kill();
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
            QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
}

// A request on standard input: `printf '%s\n' '{...}' |`.
const std::string kPeticion = R"(printf '%s\n' '{"fn":"AliasNotario","args":[0]}' | )";

bool encaja(const QString& texto, const std::string& patron) {
    return texto.contains(QRegularExpression(QString::fromStdString(patron)));
}

} // namespace

TEST(NodrimCommandLine, UsageOfficeAndStreamErrorsGiveTheirExitStatusAndMessage) {
    const std::string& p = kPeticion;
    const struct {
        std::string guion;
        int estado;
        std::string errores; // a pattern stderr must match ("" when it must be empty)
        std::string salida;  // a pattern stdout must match
    } casos[] = {
        {p + "$N batch --ofice /x", 2, "unknown option --ofice", "^$"},
        {p + "$N batch --office ''", 2, "--office needs a folder", "^$"},
        {p + "$N batch --office=", 2, "--office needs a folder", "^$"},
        {p + "$N batch --office", 2, "--office needs a folder", "^$"},
        {p + "$N batch extra", 2, "unexpected word \"extra\" after batch", "^$"},
        {"$N --ofice /x AliasNotario 0", 2, "unknown option --ofice", "^$"},
        {p + "$N --office \"$S\" batch", 0, "", "DBNOTARIO1"},
        {"$N AliasNotario -1", 0, "", "DBNOTARIO"}, // a negative number is an argument, not an option
        {"$N batch --office /no/such/office </dev/null", 1, "/no/such/office", "^$"},
        {"NODRIM_DIR=/no/such/office $N batch </dev/null", 1, "/no/such/office.*NODRIM_DIR", "^$"},
        {"$N --office \"$T/file\" AliasNotario 0; touch \"$T/file\"; $N --office \"$T/file\" AliasNotario 0",
         1, "is not a folder", "^$"},
        {"NODRIM_DIR= $N AliasNotario 0", 0, "", "DBNOTARIO1"}, // empty: the bundled sample office
        {p + "$N batch >/dev/full", 1, "responses could not be written.*No space", "^$"},
        {p + "$N batch >&-", 1, "standard output is closed", "^$"},
        {"$N AliasNotario 0 >/dev/full", 1, "could not be written", "^$"},
        {"$N batch <&-", 1, "standard input is closed", "^$"},
        {"$N batch <\"$T\"", 1, "requests could not be read.*directory", "^$"},
        {"mkfifo \"$T/f\" && (printf '%s\\n' '{\"fn\":\"AliasNotario\",\"args\":[0]}' >\"$T/f\" &) && $N "
         "batch <\"$T/f\"",
         0, "", "DBNOTARIO1"},
    };
    for (const auto& c : casos) {
        const Resultado r = ejecuta(c.guion);
        const std::string donde = c.guion + "\n" + r.errores.toStdString();
        EXPECT_EQ(r.estado, c.estado) << donde;
        EXPECT_TRUE(c.errores.empty() ? r.errores.isEmpty() : encaja(r.errores, c.errores)) << donde;
        EXPECT_TRUE(encaja(r.salida, c.salida)) << c.guion << "\n" << r.salida.toStdString();
    }
}
