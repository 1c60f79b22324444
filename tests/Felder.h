#pragma once

#include "Mandelbrot.h"

#include <map>
#include <variant>

using M = Mandelbrot;
using Feld = std::variant<double M::*, qint32 M::*>;

/// The fields that commands, operations and the driver change, by name.
// clang-format off
inline const std::map<QString, Feld> Felder{
    {"MP_x", &M::MP_x}, {"MP_y", &M::MP_y}, {"Br_x", &M::Br_x}, {"Br_y", &M::Br_y},
    {"R_Min", &M::R_Min}, {"R_Max", &M::R_Max}, {"I_Min", &M::I_Min}, {"I_Max", &M::I_Max},
    {"CJ_x", &M::CJ_x}, {"CJ_y", &M::CJ_y}, {"Koppl_x", &M::Koppl_x}, {"Koppl_y", &M::Koppl_y},
    {"wert_Abbruch", &M::wert_Abbruch}, {"Max_Iterationen", &M::Max_Iterationen},
    {"click2_Zoom", &M::click2_Zoom}, {"div_Factor", &M::div_Factor},
    {"konv_Factor", &M::konv_Factor}, {"it_Factor", &M::it_Factor},
    {"rechen_VarianteDiv", &M::rechen_VarianteDiv},
    {"rechen_VarianteKonv", &M::rechen_VarianteKonv}, {"wahl_Gleichung", &M::wahl_Gleichung},
    {"color_Offset", &M::color_Offset}, {"zahl_farbtab", &M::zahl_farbtab},
    {"glg_Abbruch", &M::glg_Abbruch}, {"zahl_Matrix", &M::zahl_Matrix},
    {"wahlPalette48", &M::wahlPalette48}, {"g_ZwillingJa", &M::g_ZwillingJa},
    {"g_MittelkreuzJa", &M::g_MittelkreuzJa}, {"g_NullkreuzJa", &M::g_NullkreuzJa},
    {"g_GitterJa", &M::g_GitterJa}, {"g_JuliaJa", &M::g_JuliaJa},
    {"g_halbesBild", &M::g_halbesBild}, {"g_GenauJa", &M::g_GenauJa},
    {"g_RechnenJa", &M::g_RechnenJa}, {"g_oberesHalbbild", &M::g_oberesHalbbild},
    {"g_BildLoeschen", &M::g_BildLoeschen}, {"g_linienLoeschenJa", &M::g_linienLoeschenJa},
    {"g_UnDo", &M::g_UnDo}, {"g_kPotenz", &M::g_kPotenz}, {"g_zycmax", &M::g_zycmax},
    {"g_VorschauAusJa", &M::g_VorschauAusJa}, {"g_PixVorschauX", &M::g_PixVorschauX},
    {"g_PixVorschauY", &M::g_PixVorschauY}, {"g_PixConstX", &M::g_PixConstX},
    {"g_PixConstY", &M::g_PixConstY}, {"OPx", &M::OPx}, {"OPy", &M::OPy},
    {"g_OrbitJa", &M::g_OrbitJa}, {"g_OrbitDuennJa", &M::g_OrbitDuennJa},
    {"g_maxOrbitIterat", &M::g_maxOrbitIterat}, {"g_OrbitMP", &M::g_OrbitMP},
    {"g_OrbitAbIterAn", &M::g_OrbitAbIterAn}, {"g_Gitterabstand", &M::g_Gitterabstand},
    {"g_Genauigkeit", &M::g_Genauigkeit}, {"g_SummeGross", &M::g_SummeGross},
    {"g_SummeViertel", &M::g_SummeViertel}, {"g_Max_rgbFarben", &M::g_Max_rgbFarben},
    {"g_Bildverhaeltnis", &M::g_Bildverhaeltnis}, {"kPotHg", &M::kPotHg}, {"kPotHu", &M::kPotHu},
    {"g_Max_glg_Abbruch", &M::g_Max_glg_Abbruch}, {"TeilerColorbild", &M::TeilerColorbild},
};
// clang-format on

inline double feldwert(const Mandelbrot& m, Feld feld) {
    return std::visit([&m](auto zeiger) { return static_cast<double>(m.*zeiger); }, feld);
}

/// wert must be one that the field's type holds.
inline void setzeFeld(Mandelbrot& m, Feld feld, double wert) {
    std::visit([&](auto z) { m.*z = static_cast<std::decay_t<decltype(m.*z)>>(wert); }, feld);
}
