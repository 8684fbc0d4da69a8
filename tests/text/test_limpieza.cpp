#include "text/alineacion.h"
#include "text/limpieza.h"
#include "text/mayusculas.h"

#include <gtest/gtest.h>
#include <limits>

using namespace nod;

namespace {

QString u8(const char* s) {
    return QString::fromUtf8(s);
}

struct Caso {
    const char* entrada;
    const char* esperado;
};

template <size_t N>
void compruebaTabla(QString (*rutina)(const QString&), const Caso (&casos)[N], const char* nombre) {
    for (const Caso& c : casos)
        EXPECT_EQ(rutina(u8(c.entrada)), u8(c.esperado)) << nombre << "(\"" << c.entrada << "\")";
}

} // namespace

TEST(Limpieza, AccentsBlanksAndLetterSpacedHeadings) {
    const Caso quitaAcentos[] = {{"ÁRBOL ácido", "ARBOL ácido"}, {"ÉÍÓÚ", "EIOU"}, {"ÀÜÑ", "ÀÜÑ"}, {"", ""}};
    compruebaTabla(&QuitaAcentos, quitaAcentos, "QuitaAcentos");
    const Caso mayMin[] = {{"Camión Àngel pingüino", "Camion Angel pingüino"},
                           {"áàéèíìóòúù ÁÀÉÈÍÌÓÒÚÙ", "aaeeiioouu AAEEIIOOUU"},
                           {"ÑüÜç", "ÑüÜç"}};
    compruebaTabla(&QuitaAcentoMayMin, mayMin, "QuitaAcentoMayMin");
    const Caso dobles[] = {{"  a   b ", " a b "}, {"ab", "ab"}, {"", ""}, {"    ", " "}};
    compruebaTabla(&ConvertirDoblesEspaciosEnUno, dobles, "ConvertirDoblesEspaciosEnUno");
    const Caso sinDobles[] = {{"  a   b ", "a b"}, {"   ", ""}, {"\ta  b\n", "a b"}};
    compruebaTabla(&SinDoblesEspacios, sinDobles, "SinDoblesEspacios");
    const Caso total[] = {{" 12 34 ", "1234"}, {"   ", ""}};
    compruebaTabla(&TrimTotal, total, "TrimTotal");
    const Caso numeros[] = {{"Calle 5 Mayor", "CalleMayor"}, {"2024", ""}, {"a1b", "ab"}};
    compruebaTabla(&QuitaNumeros, numeros, "QuitaNumeros");
    const Caso neto[] = {{" 12.345.678-Z ", "12345678Z"}, {"a_b,c/d\\e", "abcde"}, {"A B", "A B"}};
    compruebaTabla(&StrNeto, neto, "StrNeto");
    // The words of a letter-spaced text run together ("A B CASA"), the last character is never looked at
    // ("A B"), and accents go in both cases.
    const Caso espaciados[] = {{"E S C R I T U R A", "ESCRITURA"},
                               {"  E   S C  R I T U R A  ", "ESCRITURA"},
                               {"A B CASA", "ABCASA"},
                               {"D E  C O M P R A", "DECOMPRA"},
                               {"ESCRITURA DE COMPRA", "ESCRITURA DE COMPRA"},
                               {"A B", "A B"},
                               {"A BC D", "A BC D"},
                               {"Á B", "A B"},
                               {"É S T E", "ESTE"},
                               {"", ""},
                               {"X", "X"}};
    compruebaTabla(&QuitaEspaciosIntermedios, espaciados, "QuitaEspaciosIntermedios");
}

TEST(Limpieza, FinalBackslash) {
    const struct {
        const char* ruta;
        const char* con;
        const char* sin;
    } casos[] = {{"", "", ""},
                 {" C:\\DATOS ", "C:\\DATOS\\", "C:\\DATOS"},
                 {"C:\\DATOS\\", "C:\\DATOS\\", "C:\\DATOS"},
                 {"C:\\DATOS\\\\", "C:\\DATOS\\\\", "C:\\DATOS\\"},
                 {"/home/datos", "/home/datos\\", "/home/datos"}};
    for (const auto& c : casos) {
        EXPECT_EQ(PonBarraFinal(u8(c.ruta), QStringLiteral("ignored")), u8(c.con)) << c.ruta;
        EXPECT_EQ(QuitaBarraFinal(u8(c.ruta)), u8(c.sin)) << c.ruta;
    }
}

TEST(Mayusculas, MayusMinusAndCapitalCase) {
    const struct {
        const char* texto;
        char caso;
        const char* esperado;
    } casos[] = {{"quince DE marzo", 'N', "QUINCE DE MARZO"},
                 {"CAMIÓN Ñandú", 'S', "camión ñandú"},
                 {"camión ñandú", 'N', "CAMIÓN ÑANDÚ"},
                 {"QUINCE DE MARZO", 'C', "Quince De Marzo"},
                 {"Tal Cual", 'X', "Tal Cual"},
                 {"Tal Cual", 's', "Tal Cual"}};
    for (const auto& c : casos)
        EXPECT_EQ(MayusMinus(u8(c.texto), QLatin1Char(c.caso)), u8(c.esperado)) << c.texto << ' ' << c.caso;

    const Caso capital[] = {{"MARIA-JOSE DE LA FUENTE", "Maria-jose De La Fuente"},
                            {"JOSE MARIA-LUISA", "Jose Maria-Luisa"},
                            {"ÁNGEL ÑÚÑEZ", "Ángel Ñúñez"},
                            {"a  b", "A  B"},
                            {"ANA-MARIA-JOSE", "Ana-Maria-Jose"},
                            {"", ""},
                            {" x", " X"}};
    compruebaTabla(&CapitalCase, capital, "CapitalCase");
}

TEST(Alineacion, PaddingAndCutting) {
    const struct {
        QString (*rutina)(const QString&, int);
        const char* nombre;
        const char* texto;
        int ancho;
        const char* esperado;
    } casos[] = {{&StrCentra, "StrCentra", "AB", 5, " AB  "},
                 {&StrCentra, "StrCentra", "AB", 6, "  AB  "},
                 {&StrCentra, "StrCentra", "ABC", 2, "ABC"},
                 {&StrCentra, "StrCentra", "AB", -4, "AB"},
                 {&JustificaDer, "JustificaDer", "AB", 4, "  AB"},
                 {&JustificaDer, "JustificaDer", "ABCDEF", 3, "ABC"},
                 {&JustificaDer, "JustificaDer", "AB", 2, "AB"},
                 {&JustificaDer, "JustificaDer", "AB", -1, ""},
                 {&JustificaIzq, "JustificaIzq", "AB", 4, "AB   "},
                 {&JustificaIzq, "JustificaIzq", "AB", 2, "AB "},
                 {&JustificaIzq, "JustificaIzq", "ABC", 2, "ABC"},
                 {&AlineaDecha, "AlineaDecha", "AB", 4, "  AB"},
                 {&AlineaDecha, "AlineaDecha", "ABC", 2, "ABC"},
                 {&AlineaIzda, "AlineaIzda", "AB", 4, "AB  "},
                 {&AlineaIzda, "AlineaIzda", "ABC", 2, "ABC"}};
    for (const auto& c : casos)
        EXPECT_EQ(c.rutina(u8(c.texto), c.ancho), u8(c.esperado))
            << c.nombre << "(\"" << c.texto << "\", " << c.ancho << ')';
}

// Fault 3: StrCeros(0, INT_MIN) overflowed a signed subtraction, passed the width guard and wrote 2 GB of
// zeros. Every padding routine answers any width at once, however negative or large.
TEST(Alineacion, Fault3ExtremeWidthsAnswerAtOnce) {
    constexpr int kMin = std::numeric_limits<int>::min();
    const struct {
        qint64 valor;
        int ancho;
        const char* esperado;
    } ceros[] = {{0, kMin, "0"},
                 {-5, kMin, "-5"},
                 {7, kMin + 1, "7"},
                 {-7, -1, "-7"},
                 {std::numeric_limits<qint64>::min(), kMin, "-9223372036854775808"},
                 {-7, 2, "-7"},
                 {-7, 4, "-007"}};
    for (const auto& c : ceros)
        EXPECT_EQ(StrCeros(c.valor, c.ancho), QLatin1String(c.esperado)) << c.valor << " width " << c.ancho;
    // Beyond the widest column a width leaves the text as it is.
    const struct {
        QString (*rutina)(const QString&, int);
        const char* nombre;
        const char* enElMinimo;
        qsizetype largoEnElMaximo; // padded length at exactly kAnchoMaximoTexto
    } rutinas[] = {{&StrCentra, "StrCentra", "AB", kAnchoMaximoTexto},
                   {&JustificaDer, "JustificaDer", "", kAnchoMaximoTexto},
                   {&JustificaIzq, "JustificaIzq", "AB", kAnchoMaximoTexto + 1},
                   {&AlineaDecha, "AlineaDecha", "AB", kAnchoMaximoTexto},
                   {&AlineaIzda, "AlineaIzda", "AB", kAnchoMaximoTexto}};
    const QString s = QStringLiteral("AB");
    for (const auto& r : rutinas) {
        for (int ancho : {kMin, kMin + 1})
            EXPECT_EQ(r.rutina(s, ancho), QLatin1String(r.enElMinimo)) << r.nombre << ' ' << ancho;
        EXPECT_EQ(r.rutina(s, kAnchoMaximoTexto).size(), r.largoEnElMaximo) << r.nombre;
        for (int ancho : {kAnchoMaximoTexto + 1, std::numeric_limits<int>::max()})
            EXPECT_EQ(r.rutina(s, ancho), s) << r.nombre << " width " << ancho;
    }
}
