#pragma once
// Fee scales for the tests, set straight into the configuration (restored when the scope ends).
#include "companion/config.h"

namespace nod::prueba {

class ConfigGuardada {
public:
    ConfigGuardada()
        : m_anterior(Config) {}
    ~ConfigGuardada() { Config = m_anterior; }

private:
    TConfig m_anterior;
};

/// Four-rate scale: 3 ‰ up to 1 000 000, 2 ‰ up to 10 000 000, 1 ‰ up to 50 000 000, 0.5 ‰ beyond;
/// reduced rate 1.5 ‰; surcharge on at most 10 000 000 (or at most 12 000); invoice minimum 3 000.
inline void EscalaCuatroTipos() {
    Config.SetsTipoArancel(QString());
    Config.SetnCor_Tipo1(3);
    Config.SetnCor_Tipo2(2);
    Config.SetnCor_Tipo3(1);
    Config.SetnCor_Tipo4(0.5);
    Config.SetnCor_TipoR(1.5);
    Config.SetnCor_Tramo1(1000000);
    Config.SetnCor_Tramo2(10000000);
    Config.SetnCor_Tramo3(50000000);
    Config.SetnCor_f_Cual(0);
    Config.SetnCor_f_Cuant(10000000);
    Config.SetnCor_f_max(12000);
    Config.SetnCor_minimo(3000);
}

/// "C" scale: lower tables 4-3-2-1 ‰ (1, 5, 20 million) and 3-2-1 ‰ (1, 10 million); upper tables
/// 5-4-3-2-1 ‰ with guarantee (single rate 4.4 ‰ up to the second limit) and 4-3-2-1-0.5 ‰ without,
/// limits 1, 5, 20 and 100 million; minimum 2 500. The four-rate values stay set to show they are ignored.
inline void EscalaC() {
    EscalaCuatroTipos();
    Config.SetsTipoArancel(QStringLiteral("C"));
    Config.SetnCantidadMinima(2500);
    Config.SetnInferiorConAvalP1(4);
    Config.SetnInferiorConAvalP2(3);
    Config.SetnInferiorConAvalP3(2);
    Config.SetnInferiorConAvalP4(1);
    Config.SetnInferiorConAvalT1(1000000);
    Config.SetnInferiorConAvalT2(5000000);
    Config.SetnInferiorConAvalT3(20000000);
    Config.SetnInferiorSinAvalP1(3);
    Config.SetnInferiorSinAvalP2(2);
    Config.SetnInferiorSinAvalP3(1);
    Config.SetnInferiorSinAvalT1(1000000);
    Config.SetnInferiorSinAvalT2(10000000);
    Config.SetnSuperiorConAvalP1(5);
    Config.SetnSuperiorConAvalP2(4);
    Config.SetnSuperiorConAvalP3(3);
    Config.SetnSuperiorConAvalP4(2);
    Config.SetnSuperiorConAvalP5(1);
    Config.SetnSuperiorConAvalP12(4.4);
    Config.SetnSuperiorSinAvalP1(4);
    Config.SetnSuperiorSinAvalP2(3);
    Config.SetnSuperiorSinAvalP3(2);
    Config.SetnSuperiorSinAvalP4(1);
    Config.SetnSuperiorSinAvalP5(0.5);
    Config.SetnSuperiorT1(1000000);
    Config.SetnSuperiorT2(5000000);
    Config.SetnSuperiorT3(20000000);
    Config.SetnSuperiorT4(100000000);
}

} // namespace nod::prueba
