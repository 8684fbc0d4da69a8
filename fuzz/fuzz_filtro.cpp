// Feeds arbitrary text to the filter language of the table layer: it must compile or be refused with
// ErrorTabla, and a compiled filter must evaluate on every record, without crashing, exhausting the stack
// or touching memory it does not own. The text is UTF-8 (invalid sequences become replacement
// characters); the table is a small image held in memory with a field of every type.
#include "tables/dbfdatos.h"
#include "tables/tablafiltro.h"

#include <QByteArray>
#include <QString>
#include <cstdint>

using namespace nod;

namespace {

// A dBase III image: fields N (numeric 6.2), C (character 10), L (logical), D (date), F (float 8.3), and
// rows of every kind: plain, blank, a deleted one, and one whose date does not decode.
std::shared_ptr<DatosDbf> tabla() {
    struct Campo {
        const char* nombre;
        char tipo;
        int longitud, decimales;
    };
    const Campo campos[] = {
        {"N", 'N', 6, 2}, {"C", 'C', 10, 0}, {"L", 'L', 1, 0}, {"D", 'D', 8, 0}, {"F", 'F', 8, 3}};
    const auto fila = [](char marca, const char* n, const char* c, char l, const char* d, const char* f) {
        return marca + QByteArray(n).rightJustified(6) + QByteArray(c).leftJustified(10) + l +
               QByteArray(d).leftJustified(8) + QByteArray(f).rightJustified(8);
    };
    const QByteArray filas[] = {
        fila(' ', "1.50",
             "PE\xD1"
             "A",
             'T', "20240229", "0.125"),
        fila(' ', "-2.00", "", 'F', "19991231", "-1.000"),
        fila(' ', "", "GARCIA", '?', "", "9999.999"),
        fila('*', "3.00", "BORRADA", 'T', "20000101", "3.000"),
        fila(' ', "7", "MAL", 'x', "2024XX01", "1e3"),
    };
    const int nCampos = int(std::size(campos));
    const int largoCabecera = 32 + 32 * nCampos + 1;
    QByteArray b(largoCabecera, '\0');
    b[0] = 0x03;
    b[4] = char(std::size(filas));
    b[8] = char(largoCabecera & 0xFF);
    b[9] = char(largoCabecera >> 8);
    b[10] = char(filas[0].size());
    b[29] = 0x57; // Windows-1252
    for (int i = 0; i < nCampos; ++i) {
        char* c = b.data() + 32 + 32 * i;
        qstrncpy(c, campos[i].nombre, 11);
        c[11] = campos[i].tipo;
        c[16] = char(campos[i].longitud);
        c[17] = char(campos[i].decimales);
    }
    b[largoCabecera - 1] = '\r';
    for (const QByteArray& f : filas)
        b += f;
    b += '\x1a';
    return DatosDbf::DesdeBytes(QStringLiteral("FUZZ.DBF"), b);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    static const std::shared_ptr<DatosDbf> t = tabla();
    const QString texto = QString::fromUtf8(reinterpret_cast<const char*>(datos), qsizetype(largo));
    try {
        const auto filtro = FiltroTabla::Compila(*t, texto);
        for (int fila = 0; fila < t->numRegistros(); ++fila) {
            try {
                (void)filtro->cumple(*t, fila);
            } catch (const ErrorTabla&) {
                // a field that does not decode (the date "?" row) is an error of the table, not a crash
            }
        }
    } catch (const ErrorTabla&) {
    }
    return 0;
}
