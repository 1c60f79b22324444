#pragma once

#include "Mandelbrot.h"

#include <map>
#include <variant>

using M = Mandelbrot;
using Feld = std::variant<double M::*, qint32 M::*>;

/// The fields that commands, operations and the driver change, by name.
// clang-format off
#define FELD(name) {#name, &M::name}
inline const std::map<QString, Feld> Felder{
    FELD(bilddatenDouble), FELD(bilddatenInteger), FELD(bilddatenSumme), FELD(Br_x), FELD(Br_y),
    FELD(CJ_x), FELD(CJ_y), FELD(click2_Zoom), FELD(color_Offset), FELD(div_Factor),
    FELD(g_BildLoeschen), FELD(g_Bildverhaeltnis), FELD(g_Genauigkeit), FELD(g_GenauJa),
    FELD(g_Gitterabstand), FELD(g_GitterJa), FELD(g_halbesBild), FELD(g_JuliaJa), FELD(g_kPotenz),
    FELD(g_linienLoeschenJa), FELD(g_Max_glg_Abbruch), FELD(g_Max_rgbFarben),
    FELD(g_maxOrbitIterat), FELD(g_MittelkreuzJa), FELD(g_NullkreuzJa), FELD(g_oberesHalbbild),
    FELD(g_OrbitAbIterAn), FELD(g_OrbitDuennJa), FELD(g_OrbitJa), FELD(g_OrbitMP),
    FELD(g_PixConstX), FELD(g_PixConstY), FELD(g_PixVorschauX), FELD(g_PixVorschauY),
    FELD(g_RechnenJa), FELD(g_SummeGross), FELD(g_SummeViertel), FELD(g_UnDo),
    FELD(g_VorschauAusJa), FELD(g_ZwillingJa), FELD(g_zycmax), FELD(glg_Abbruch), FELD(I_Max),
    FELD(I_Min), FELD(it_Factor), FELD(konv_Factor), FELD(Koppl_x), FELD(Koppl_y), FELD(kPotHg),
    FELD(kPotHu), FELD(Max_Iterationen), FELD(MP_x), FELD(MP_y), FELD(OPx), FELD(OPy), FELD(R_Max),
    FELD(R_Min), FELD(rechen_VarianteDiv), FELD(rechen_VarianteKonv), FELD(TeilerColorbild),
    FELD(wahl_Gleichung), FELD(wahlPalette48), FELD(wert_Abbruch), FELD(zahl_farbtab),
    FELD(zahl_Matrix),
};
#undef FELD
// clang-format on

inline double feldwert(const Mandelbrot& m, Feld feld) {
    return std::visit([&m](auto zeiger) { return static_cast<double>(m.*zeiger); }, feld);
}

/// wert must be one that the field's type holds.
inline void setzeFeld(Mandelbrot& m, Feld feld, double wert) {
    std::visit([&](auto z) { m.*z = static_cast<std::decay_t<decltype(m.*z)>>(wert); }, feld);
}
