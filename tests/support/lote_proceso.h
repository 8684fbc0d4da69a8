#pragma once
// Runs requests through a real `nodrim batch` process, as a script does: one JSON request per line in,
// one response per line out.

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <vector>

namespace nod::prueba {

/// Every request of `peticiones` through one `nodrim batch` (`programa`) on the office `oficina`
/// ($NODRIM_DIR left out); the responses in order.
inline std::vector<nlohmann::json> EjecutaLote(const QString& programa, const QString& oficina,
                                               const std::vector<nlohmann::json>& peticiones) {
    QByteArray entrada;
    for (const nlohmann::json& p : peticiones)
        entrada += QByteArray::fromStdString(p.dump()) + '\n';
    QProcess p;
    QProcessEnvironment e = QProcessEnvironment::systemEnvironment();
    e.remove(QStringLiteral("NODRIM_DIR"));
    p.setProcessEnvironment(e);
    p.start(programa, {QStringLiteral("batch"), QStringLiteral("--office"), oficina});
    p.write(entrada);
    p.closeWriteChannel();
    EXPECT_TRUE(p.waitForFinished(300000));
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    std::vector<nlohmann::json> respuestas;
    for (const QByteArray& linea : p.readAllStandardOutput().split('\n'))
        if (!linea.isEmpty()) respuestas.push_back(nlohmann::json::parse(linea.toStdString()));
    return respuestas;
}

} // namespace nod::prueba
