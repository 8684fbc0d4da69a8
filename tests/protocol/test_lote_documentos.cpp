// The document names and folders as scripts call them through `nodrim batch`.
#include "apps/nodrim/lote.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace nod::lote;
using nod::prueba::OficinaPrueba;

namespace {

json pide(const std::string& linea) {
    return AtiendeLinea(linea, 1);
}

TEST(LoteDocumentos, TheMisconfigurationBoxIsReported) {
    OficinaPrueba o(QStringLiteral("[GENERAL]\nNumeroNotarios=2\n"));
    const json r = pide(R"({"fn":"DameCarpetaFicheroWordEscrituras","args":[0,1,2008],)"
                        R"("config":{"bEnlaceWordConvenio":true,"nCuantos":0}})");
    EXPECT_EQ(r["result"], "C:\\NODRIM\\PROTOCOLO");
    ASSERT_EQ(r["dialogs"].size(), 1u) << r.dump();
    EXPECT_EQ(r["dialogs"][0]["title"], "Configuración errónea");
    EXPECT_EQ(pide(R"({"fn":"RutaEnDisco","args":["C:\\NODRIM\\PROTOCOLO"]})")["result"],
              o.ruta(QStringLiteral("C/NODRIM/PROTOCOLO")).toStdString());
}

TEST(LoteDocumentos, JoinedDocumentsAnsweredFromTheScript) {
    OficinaPrueba o;
    QDir().mkpath(o.ruta(QStringLiteral("C/NODRIM/DOCUMENTOSUNIDOS")));
    QDir().mkpath(o.ruta(QStringLiteral("DU")));
    QFile(o.ruta(QStringLiteral("DU/pagina.jpg"))).open(QIODevice::WriteOnly);
    // Two arguments: the suite's owner component has no place in a script.
    const json r = pide(R"({"fn":"PasaImagenesADU","args":["DU",""],"answers":[6]})");
    ASSERT_FALSE(r.contains("error")) << r.dump();
    ASSERT_EQ(r["dialogs"].size(), 1u);
    EXPECT_EQ(r["dialogs"][0]["title"], "Incorporar Documentos Unidos");
    EXPECT_TRUE(QFile::exists(o.ruta(QStringLiteral("C/NODRIM/DOCUMENTOSUNIDOS/0001.jpg"))));
}

} // namespace
