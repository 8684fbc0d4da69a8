#include "companion/errores.h"
#include "text/calendario.h"
#include "text/fechas.h"

#include <gtest/gtest.h>
#include <limits>

using namespace nod;

namespace {
QString u8(const char* s) {
    return QString::fromUtf8(s);
}
const TDateTime k15Marzo2010 = EncodeDate(2010, 3, 15); // a Monday
const TDateTime k15Abril2010 = EncodeDate(2010, 4, 15); // a Thursday
const QString kSinFecha = QStringLiteral("  /  /    "); // what a text that is no date reads as
} // namespace

TEST(FormateaFecha, SpanishAndCatalanCodesCaseAndJoiners) {
    const struct {
        const char* formato;
        const char* esperado;
        bool catalan = false;
        TDateTime fecha = k15Marzo2010;
    } casos[] = {{"F1", "15/3/10"},
                 {"F2", "15/03/10"},
                 {"F3", "15/03/2010"},
                 {"F4", "QUINCE de marzo de DOS MIL DIEZ"},
                 {"F4S", "quince de marzo de dos mil diez"},
                 {"F4s", "quince de marzo de dos mil diez"},
                 {"F4N", "QUINCE DE MARZO DE DOS MIL DIEZ"},
                 {"F4C", "QUINCE de Marzo de DOS MIL DIEZ"},
                 {"F5S", "lunes, quince de marzo de dos mil diez"},
                 {"F5C", "Lunes, QUINCE de Marzo de DOS MIL DIEZ"},
                 {"F6", "15 de marzo de 2010"},
                 {"F6N", "15 DE MARZO DE 2010"},
                 {"F7S", "lunes, 15 de marzo de 2010"},
                 {"F8", "QUINCE de marzo del año DOS MIL DIEZ"},
                 {"F8N", "QUINCE DE MARZO DEL AÑO DOS MIL DIEZ"},
                 {"F8C", "QUINCE de Marzo del año DOS MIL DIEZ"},
                 {"F9", "15/3/10"},
                 {"", "15/3/10"},
                 {"F4X", "QUINCE de marzo de DOS MIL DIEZ"},
                 {"F4S", "uno de enero de dos mil uno", false, EncodeDate(2001, 1, 1)},
                 {"F4S", "veintiuno de septiembre de dos mil veintiuno", false, EncodeDate(2021, 9, 21)},
                 {"F4N", "QUINZE d'ABRIL de DOS MIL DEU", true, k15Abril2010},
                 {"F4S", "quinze d'abril de dos mil deu", true, k15Abril2010},
                 {"F4S", "quinze de març de dos mil deu", true},
                 {"F5", "Dijous, QUINZE d'abril de DOS MIL DEU", true, k15Abril2010},
                 {"F5C", "Dijous, QUINZE d'Abril de DOS MIL DEU", true, k15Abril2010},
                 {"F6S", "15 d'abril de 2010", true, k15Abril2010},
                 {"F7S", "dijous, 15 d'abril de 2010", true, k15Abril2010},
                 {"F8S", "quinze d'abril de l'any  dos mil deu", true, k15Abril2010},
                 {"F8N", "QUINZE d'ABRIL DE L'ANY  DOS MIL DEU", true, k15Abril2010},
                 {"F4S", "vint-i-u d'agost de dos mil vint-i-u", true, EncodeDate(2021, 8, 21)},
                 {"F4S", "u d'octubre de dos mil deu", true, EncodeDate(2010, 10, 1)},
                 {"F3", "15/04/2010", true, k15Abril2010}};
    for (const auto& c : casos)
        EXPECT_EQ(FormateaFecha(QString::fromLatin1(c.formato), c.fecha, c.catalan), u8(c.esperado))
            << c.formato << (c.catalan ? " ca " : " es ") << c.esperado;
    // A serial outside the calendar gives nothing.
    for (double f : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e12})
        EXPECT_EQ(FormateaFecha(QStringLiteral("F5N"), f, false), QString()) << f;
}

TEST(PonerFechaNod, ModesWithADateAndBlankForms) {
    const struct {
        int modo;
        bool catalan;
        TDateTime fecha;
        const char* esperado;
    } casos[] = {{1, false, k15Marzo2010, "15/03/10"},
                 {2, false, k15Marzo2010, "15/03/2010"},
                 {3, false, k15Marzo2010, "Madrid a 15 de Marzo de 2010"},
                 {3, true, k15Marzo2010, "Madrid a 15 de Març de 2010"},
                 {4, true, k15Abril2010, "15 de Abril de 2010"},
                 {5, false, k15Marzo2010, "Marzo"},
                 {6, false, k15Marzo2010, ""},
                 {3, false, 0, "Madrid a      de              de       "},
                 {4, false, 0, "     de              de       "},
                 {5, true, 0, "            "},
                 {1, false, 0, ""}};
    for (const auto& c : casos)
        EXPECT_EQ(PonerFechaNod(c.modo, QStringLiteral("Madrid"), c.catalan, c.fecha), u8(c.esperado))
            << c.modo;
}

// Dates in Spanish and Catalan words, and texts that are none. Every Spanish line the writer produces reads
// back (below); so does the Catalan F8 line ("quinze d'abril de l'any  dos mil deu").
TEST(TraduceFecha, ReadsDatesInWordsAndEveryDayTheSpanishWriterProduces) {
    const struct {
        const char* texto;
        const char* esperado;
        bool catalan = false;
    } casos[] = {{"quince de marzo del año dos mil diez.", "15/03/2010"},
                 {"  QUINCE DE MARZO DEL AÑO DOS MIL DIEZ . ", "15/03/2010"},
                 {"uno de setiembre de mil novecientos noventa y nueve", "01/09/1999"},
                 {"quinze d'abril de dos mil deu", "15/04/2010", true},
                 {"quinze d'abril de l'any  dos mil deu", "15/04/2010", true},
                 {"QUINZE DE MARÇ DE L'ANY DOS MIL DEU.", "15/03/2010", true},
                 // The removal of the inner "l'any" brings another together; both go.
                 {"quinze d'abril de l'l'anyany  dos mil deu", "15/04/2010", true},
                 {"dos de juny de dos mil vint i u", "02/06/2021", true},
                 {"vint i u d'octubre de mil nou cents noranta i nou", "21/10/1999", true}};
    for (const auto& c : casos)
        EXPECT_EQ((c.catalan ? TraduceFechaCatalan : TraduceFechaNod)(u8(c.texto)),
                  QString::fromLatin1(c.esperado))
            << c.texto;
    for (const char* malo : {"quince de brumario de dos mil", "quince marzo dos mil", "quince de marzo", "",
                             "quince de marzo de"})
        EXPECT_EQ(TraduceFechaNod(u8(malo)), kSinFecha) << malo;
    for (const char* malo : {"quinze de brumari de dos mil", "quinze d'abril", ""})
        EXPECT_EQ(TraduceFechaCatalan(u8(malo)), kSinFecha) << malo;
    for (QDate d(1990, 1, 1); d <= QDate(2030, 12, 31); d = d.addDays(1)) {
        const TDateTime f = QDateToTDateTime(d);
        const QString esperado = d.toString(QStringLiteral("dd/MM/yyyy"));
        ASSERT_EQ(TraduceFechaNod(FormateaFecha(QStringLiteral("F4S"), f, false)), esperado);
        ASSERT_EQ(TraduceFechaNod(FormateaFecha(QStringLiteral("F8N"), f, false)), esperado);
    }
}

TEST(Calendario, DaysAndLastDayOfAMonthAndEncodeFechaRollingMonthsAndDaysOver) {
    const struct {
        int anio, mes, dias;
    } casos[] = {{2023, 1, 31}, {2023, 2, 28}, {2024, 2, 29},  {1900, 2, 28},
                 {2000, 2, 29}, {2023, 4, 30}, {2023, 11, 30}, {2023, 12, 31}};
    for (const auto& c : casos) {
        EXPECT_EQ(DiasMes(EncodeDate(c.anio, c.mes, 10)), c.dias) << c.anio << '/' << c.mes;
        EXPECT_EQ(UltimoDia(c.mes, c.anio), EncodeDate(c.anio, c.mes, c.dias)) << c.anio << '/' << c.mes;
    }
    EXPECT_EQ(DiasMes(std::numeric_limits<double>::quiet_NaN()), 0);
    for (auto [mes, anio] : {std::pair{0, 2023}, {13, 2023}, {-1, 2023}, {1, 0}, {1, 10000}})
        EXPECT_EQ(UltimoDia(mes, anio), 0.0) << mes << ' ' << anio;
    const struct {
        int anio, mes, dia;
        QDate esperada;
    } fechas[] = {{2010, 14, 1, QDate(2011, 2, 1)},    {2010, 1, 32, QDate(2010, 2, 1)},
                  {2010, 12, 31, QDate(2010, 12, 31)}, {2010, 25, 1, QDate(2012, 1, 1)},
                  {2010, 3, 0, QDate(2010, 2, 28)},    {2010, 2, 366, QDate(2011, 2, 1)}};
    for (const auto& c : fechas)
        EXPECT_EQ(EncodeFecha(c.anio, c.mes, c.dia), QDateToTDateTime(c.esperada)) << c.anio << '/' << c.mes;
    // A month that ends up 0 (month 24 included, kept as the suite does) and numbers a Word cannot hold.
    for (auto [anio, mes, dia] : {std::tuple{2010, 24, 1},
                                  {2010, 0, 1},
                                  {2010, 36, 1},
                                  {0, 1, 1},
                                  {-1, 1, 1},
                                  {2010, 65536, 1},
                                  {9999, 13, 1}})
        EXPECT_THROW(EncodeFecha(anio, mes, dia), EConvertError) << anio << '/' << mes << '/' << dia;
}

TEST(Calendario, Quarters) {
    const char* palabras[] = {"PRIMER", "SEGUNDO", "TERCER", "CUARTO"};
    for (int t = 1; t <= 4; ++t) {
        EXPECT_EQ(IntToTrim(t), QString::fromLatin1(palabras[t - 1]));
        EXPECT_EQ(TrimToInt(IntToTrim(t)), t);
        EXPECT_EQ(TrimToMes(t), 3 * t - 2);
    }
    EXPECT_EQ(IntToTrim(0), QString());
    EXPECT_EQ(IntToTrim(5), QString());
    for (auto [texto, t] :
         {std::pair{"segundo", 2}, {"cuarto", 4}, {"tercero", 3}, {"", 0}, {"x", 0}, {" P", 0}})
        EXPECT_EQ(TrimToInt(QString::fromLatin1(texto)), t) << texto;
    EXPECT_EQ(TrimToMes(std::numeric_limits<int>::max()), 0);
}
