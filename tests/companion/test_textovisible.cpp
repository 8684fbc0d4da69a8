#include "companion/textovisible.h"

#include <gtest/gtest.h>
#include <tuple>

using namespace nod;

TEST(TextoVisible, EveryKindOfLineBreakBreaksAndControlCharactersAreBlanks) {
    const std::tuple<const char16_t*, const char16_t*, const char16_t*> casos[] = {
        {u"uno\rdos\r\ntres\n", u"uno\ndos\ntres\n", u"uno\ndos\ntres\n"},
        {u"\r\r\n\n", u"\n\n\n", u"\n\n\n"}, // "\r" then "\r\n" then "\n": three breaks, not four
        {u"\n\r", u"\n\n", u"\n\n"},         // "\n\r" is two breaks
        {u"a\tb\u0001c\u007fd\u0085e", u"a\tb\u0001c\u007fd\u0085e", u"a b c d e"},
        {u"<b>Pérez & Cía</b>", u"<b>Pérez & Cía</b>", u"<b>Pérez & Cía</b>"}, // markup is not touched
        {u"", u"", u""}};
    for (const auto& [entrada, saltos, visible] : casos) {
        const QString dada = QString::fromUtf16(entrada);
        EXPECT_EQ(NormalizaSaltos(dada), QString::fromUtf16(saltos)) << dada.toStdString();
        EXPECT_EQ(TextoVisible(dada), QString::fromUtf16(visible)) << dada.toStdString();
    }
}
