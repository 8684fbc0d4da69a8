#include "text/lecturanumeros.h"

#include "companion/rnumcad.h"
#include "text/limpieza.h"

namespace nod {

namespace {

struct Palabra {
    const char16_t* texto;
    int valor;
};

const Palabra kCentenasEs[] = {{u"ciento", 100},      {u"cien", 100},          {u"doscientos", 200},
                               {u"trescientos", 300}, {u"cuatrocientos", 400}, {u"quinientos", 500},
                               {u"seiscientos", 600}, {u"setecientos", 700},   {u"ochocientos", 800},
                               {u"novecientos", 900}};
const Palabra kCentenasCa[] = {{u"cent", 100},         {u"dos cents", 200},  {u"tres cents", 300},
                               {u"quatre cents", 400}, {u"cinc cents", 500}, {u"sis cents", 600},
                               {u"set cents", 700},    {u"vuit cents", 800}, {u"nou cents", 900}};
const Palabra kDecenasEs[] = {
    {u"once", 11},        {u"doce", 12},         {u"trece", 13},       {u"catorce", 14},
    {u"quince", 15},      {u"dieciseis", 16},    {u"diecisiete", 17},  {u"dieciocho", 18},
    {u"diecinueve", 19},  {u"veinte", 20},       {u"veintiuno", 21},   {u"veintidos", 22},
    {u"veintitres", 23},  {u"veinticuatro", 24}, {u"veinticinco", 25}, {u"veintiseis", 26},
    {u"veintisiete", 27}, {u"veintiocho", 28},   {u"veintinueve", 29}, {u"treinta", 30},
    {u"cuarenta", 40},    {u"cincuenta", 50},    {u"sesenta", 60},     {u"setenta", 70},
    {u"ochenta", 80},     {u"noventa", 90}};
// The compounds of twenty come before "vint", which begins them all.
const Palabra kDecenasCa[] = {
    {u"onze", 11},          {u"dotze", 12},       {u"tretze", 13},     {u"catorze", 14},
    {u"quinze", 15},        {u"setze", 16},       {u"disset", 17},     {u"divuit", 18},
    {u"dinou", 19},         {u"vint i u", 21},    {u"vint i dos", 22}, {u"vint i tres", 23},
    {u"vint i quatre", 24}, {u"vint i cinc", 25}, {u"vint i sis", 26}, {u"vint i set", 27},
    {u"vint i vuit", 28},   {u"vint i nou", 29},  {u"vint", 20},       {u"trenta", 30},
    {u"quaranta", 40},      {u"cinquanta", 50},   {u"seixanta", 60},   {u"setanta", 70},
    {u"vuitanta", 80},      {u"noranta", 90}};

const char16_t* const kUnidadesEs[] = {u"dos",   u"tres", u"cuatro", u"cinco", u"seis",
                                       u"siete", u"ocho", u"nueve",  u"diez"};
const char16_t* const kUnidadesCa[] = {u"dos", u"tres", u"quatre", u"cinc", u"sis",
                                       u"set", u"vuit", u"nou",    u"deu"};

// The first word of the list found at `cursor`: adds its value and moves past it and one blank.
template <size_t N>
void leePalabra(const QString& t, qsizetype& cursor, const Palabra (&lista)[N], int& total) {
    for (const Palabra& p : lista) {
        const QStringView palabra(p.texto);
        if (QStringView(t).mid(cursor).startsWith(palabra)) {
            total += p.valor;
            cursor += palabra.size() + 1;
            return;
        }
    }
}

} // namespace

int ConvierteUnidadesDeCadenaAEnteroNod(const QString& palabra, bool catalan) {
    if (palabra == u"una" || palabra == u"un" || palabra == (catalan ? u"u" : u"uno")) return 1;
    const auto& lista = catalan ? kUnidadesCa : kUnidadesEs;
    for (int i = 0; i < 9; ++i)
        if (palabra == lista[i]) return i + 2;
    return 0;
}

int ConvierteNumeroDeCadenaAEnteroNod(const QString& texto, bool catalan) {
    const QString t = QuitaAcentoMayMin(lowerCase(texto));
    // 0-based here: the cursor is "before the last character" while cursor + 1 < size.
    qsizetype cursor = 0;
    int total = 0;
    const qsizetype mil = t.indexOf(u"mil");
    if (mil == 0) {
        total += 1000;
        cursor = 4;
    } else if (mil > 0) {
        total += 1000 * ConvierteUnidadesDeCadenaAEnteroNod(t.left(mil - 1), catalan);
        cursor = mil + 4;
    }
    auto quedaTexto = [&] { return cursor + 1 < t.size(); };
    if (quedaTexto())
        catalan ? leePalabra(t, cursor, kCentenasCa, total) : leePalabra(t, cursor, kCentenasEs, total);
    if (quedaTexto())
        catalan ? leePalabra(t, cursor, kDecenasCa, total) : leePalabra(t, cursor, kDecenasEs, total);
    if (quedaTexto() && QStringView(t).mid(cursor).startsWith(catalan ? u"i " : u"y ")) cursor += 2;
    if (quedaTexto()) {
        const int unidades = ConvierteUnidadesDeCadenaAEnteroNod(t.mid(cursor), catalan);
        total = unidades != 0 ? total + unidades : 0; // an unknown last word spoils the whole number
    }
    return total;
}

} // namespace nod
