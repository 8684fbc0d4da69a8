// Damaged table files: every one gives ErrorTabla naming the file, or opens; none crashes or reads past the
// bytes (this suite also runs under AddressSanitizer).
#include "tables/dbfdatos.h"
#include "tables/tablas.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <random>

using namespace nod;

namespace {

QByteArray tablaSana(const QString& carpeta) {
    const QString ruta = carpeta + QStringLiteral("/SANA.DBF");
    CreaFicheroDbf(ruta, {{QStringLiteral("N"), 'N', 5, 0},
                          {QStringLiteral("C"), 'C', 8, 0},
                          {QStringLiteral("D"), 'D', 8, 0},
                          {QStringLiteral("L"), 'L', 1, 0}});
    auto tb = TTabla::AbreRuta(ruta);
    for (int i = 0; i < 5; ++i) {
        tb->Append();
        tb->SetInteger(QStringLiteral("N"), i);
        tb->SetString(QStringLiteral("C"), QStringLiteral("fila %1").arg(i));
        tb->SetDateTime(QStringLiteral("D"), EncodeDate(2020, 1, 1 + i));
        tb->Post();
    }
    QFile f(ruta);
    f.open(QIODevice::ReadOnly);
    return f.readAll();
}

// Reads every field of every row of an image; the decoders may throw ErrorTabla, nothing else.
void leeTodo(const DatosDbf& d) {
    for (int f = 0; f < d.numRegistros(); ++f)
        for (int c = 0; c < d.campos().size(); ++c) {
            try {
                (void)d.texto(f, c);
                (void)d.numero(f, c);
                (void)d.logico(f, c);
                (void)d.fecha(f, c);
            } catch (const ErrorTabla& e) {
                EXPECT_TRUE(e.mensaje().contains(QStringLiteral("registro"))) << e.what();
            }
        }
}

TEST(TablasDanadas, KnownDamages) {
    QTemporaryDir dir;
    const QByteArray sana = tablaSana(dir.path());
    const auto con = [&](auto cambio) {
        QByteArray b = sana;
        cambio(b);
        return b;
    };
    struct C {
        const char* nombre;
        QByteArray bytes;
        const char* motivo;
    };
    const C casos[] = {{"empty", QByteArray(), "bytes"},
                       {"truncated header", sana.left(20), "bytes"},
                       {"truncated records", sana.left(sana.size() - 40), "registros"},
                       {"unknown version", con([](QByteArray& b) { b[0] = char(0x30); }), "versión"},
                       {"record count lies", con([](QByteArray& b) { b[4] = char(0x50); }), "registros"},
                       {"record length lies", con([](QByteArray& b) { b[10] = char(b[10] + 1); }), "bytes"},
                       {"header length lies", con([](QByteArray& b) { b[9] = char(0x7F); }), "cabecera"},
                       {"field type unknown", con([](QByteArray& b) { b[32 + 11] = 'Z'; }), "tipo"},
                       {"date of wrong width", con([](QByteArray& b) { b[32 * 3 + 16] = 9; }), "longitud"}};
    for (const C& c : casos) {
        try {
            DatosDbf::DesdeBytes(QStringLiteral("DANADA.DBF"), c.bytes);
            ADD_FAILURE() << c.nombre << " opened";
        } catch (const ErrorTabla& e) {
            EXPECT_TRUE(e.mensaje().contains(QStringLiteral("DANADA.DBF"))) << c.nombre;
            EXPECT_TRUE(e.mensaje().contains(QString::fromUtf8(c.motivo))) << c.nombre << ": " << e.what();
        }
    }
    // A field that does not parse names the record.
    QByteArray b = sana;
    const int cabecera = quint8(b[8]) | quint8(b[9]) << 8;
    b[cabecera + 14 + 3] = 'x'; // first record, date field
    const auto d = DatosDbf::DesdeBytes(QStringLiteral("DANADA.DBF"), b);
    EXPECT_THROW(d->fecha(0, 2), ErrorTabla);
    // "inf" and "nan" are numbers to the C library, never to a dBase numeric field.
    for (const char* texto : {"  nan", "  inf", "-inf ", "1e999"}) {
        QByteArray n = sana;
        n.replace(cabecera + 1, 5, texto);
        const auto dn = DatosDbf::DesdeBytes(QStringLiteral("DANADA.DBF"), n);
        EXPECT_THROW(dn->numero(0, 0), ErrorTabla) << texto;
        EXPECT_THROW(dn->orden({0}), ErrorTabla) << texto;
    }
}

TEST(TablasDanadas, RandomDamage) {
    QTemporaryDir dir;
    const QByteArray sana = tablaSana(dir.path());
    std::mt19937 azar(12345);
    int abiertas = 0;
    for (int vuelta = 0; vuelta < 3000; ++vuelta) {
        QByteArray b = sana;
        const int cambios = 1 + int(azar() % 6);
        for (int i = 0; i < cambios; ++i)
            b[int(azar() % quint32(b.size()))] = char(azar());
        if (vuelta % 3 == 0) b.truncate(int(azar() % quint32(b.size() + 1)));
        try {
            const auto d = DatosDbf::DesdeBytes(QStringLiteral("AZAR.DBF"), b);
            ++abiertas;
            leeTodo(*d);
            (void)d->orden({0});
            (void)d->orden({1, 0});
        } catch (const ErrorTabla&) {
        }
    }
    EXPECT_GT(abiertas, 0) << "some damages leave a readable table";
}

} // namespace
