#pragma once
// Fee scales for the tests, set straight into the configuration (restored when the scope ends).
#include "companion/config.h"

#include <QVariant>
#include <gtest/gtest.h>

namespace nod::prueba {

struct ConfigGuardada {
    const TConfig anterior = Config;
    ~ConfigGuardada() { Config = anterior; }
};

/// Sets a configuration value by its name ("nCor_Tipo1" for SetnCor_Tipo1).
inline void Pon(const QString& nombre, const QVariant& valor) {
    if (const TConfig::Descriptor* d = TConfig::BuscaDescriptor(nombre))
        d->escribe(Config, valor);
    else
        ADD_FAILURE() << "no configuration value " << nombre.toStdString();
}

/// The same for "name=value" pairs separated by blanks.
inline void Pon(const char* valores) {
    for (const QString& par : QString::fromLatin1(valores).split(u' ', Qt::SkipEmptyParts))
        Pon(par.section(u'=', 0, 0), par.section(u'=', 1));
}

/// Four-rate scale: 3 ‰ up to 1 000 000, 2 ‰ up to 10 000 000, 1 ‰ up to 50 000 000, 0.5 ‰ beyond;
/// reduced rate 1.5 ‰; surcharge on at most 10 000 000 (or at most 12 000); invoice minimum 3 000.
inline void EscalaCuatroTipos() {
    Config.SetsTipoArancel(QString());
    Pon("nCor_Tipo1=3 nCor_Tipo2=2 nCor_Tipo3=1 nCor_Tipo4=0.5 nCor_TipoR=1.5 nCor_Tramo1=1000000 "
        "nCor_Tramo2=10000000 nCor_Tramo3=50000000 nCor_f_Cual=0 nCor_f_Cuant=10000000 nCor_f_max=12000 "
        "nCor_minimo=3000");
}

/// "C" scale: lower tables 4-3-2-1 ‰ (1, 5, 20 million) and 3-2-1 ‰ (1, 10 million); upper tables
/// 5-4-3-2-1 ‰ with guarantee (single rate 4.4 ‰ up to the second limit) and 4-3-2-1-0.5 ‰ without,
/// limits 1, 5, 20 and 100 million; minimum 2 500. The four-rate values stay set to show they are ignored.
inline void EscalaC() {
    EscalaCuatroTipos();
    Config.SetsTipoArancel(QStringLiteral("C"));
    Pon("nCantidadMinima=2500 nInferiorConAvalP1=4 nInferiorConAvalP2=3 nInferiorConAvalP3=2 "
        "nInferiorConAvalP4=1 nInferiorConAvalT1=1000000 nInferiorConAvalT2=5000000 "
        "nInferiorConAvalT3=20000000 "
        "nInferiorSinAvalP1=3 nInferiorSinAvalP2=2 nInferiorSinAvalP3=1 nInferiorSinAvalT1=1000000 "
        "nInferiorSinAvalT2=10000000 nSuperiorConAvalP1=5 nSuperiorConAvalP2=4 nSuperiorConAvalP3=3 "
        "nSuperiorConAvalP4=2 nSuperiorConAvalP5=1 nSuperiorConAvalP12=4.4 nSuperiorSinAvalP1=4 "
        "nSuperiorSinAvalP2=3 nSuperiorSinAvalP3=2 nSuperiorSinAvalP4=1 nSuperiorSinAvalP5=0.5 "
        "nSuperiorT1=1000000 nSuperiorT2=5000000 nSuperiorT3=20000000 nSuperiorT4=100000000");
}

} // namespace nod::prueba
