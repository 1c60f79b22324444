#pragma once

#include "Mandelbrot.h"

#include <map>
#include <variant>

using M = Mandelbrot;
using Feld = std::variant<double M::*, qint32 M::*>;

/// The fields that commands, operations and the driver change, by name.
// clang-format off
inline const std::map<QString, Feld> Felder{
    {"rechen_VarianteKonv", &M::rechen_VarianteKonv}, {"g_Bildverhaeltnis", &M::g_Bildverhaeltnis},
    {"rechen_VarianteDiv", &M::rechen_VarianteDiv}, {"g_linienLoeschenJa", &M::g_linienLoeschenJa},
    {"g_Max_glg_Abbruch", &M::g_Max_glg_Abbruch}, {"g_oberesHalbbild", &M::g_oberesHalbbild},
    {"g_maxOrbitIterat", &M::g_maxOrbitIterat}, {"Max_Iterationen", &M::Max_Iterationen},
    {"g_MittelkreuzJa", &M::g_MittelkreuzJa}, {"g_VorschauAusJa", &M::g_VorschauAusJa},
    {"g_OrbitAbIterAn", &M::g_OrbitAbIterAn}, {"g_Gitterabstand", &M::g_Gitterabstand},
    {"g_Max_rgbFarben", &M::g_Max_rgbFarben}, {"TeilerColorbild", &M::TeilerColorbild},
    {"wahl_Gleichung", &M::wahl_Gleichung}, {"g_BildLoeschen", &M::g_BildLoeschen},
    {"g_PixVorschauX", &M::g_PixVorschauX}, {"g_PixVorschauY", &M::g_PixVorschauY},
    {"g_OrbitDuennJa", &M::g_OrbitDuennJa}, {"g_SummeViertel", &M::g_SummeViertel},
    {"wahlPalette48", &M::wahlPalette48}, {"g_NullkreuzJa", &M::g_NullkreuzJa}, {"MP_x", &M::MP_x},
    {"g_Genauigkeit", &M::g_Genauigkeit}, {"wert_Abbruch", &M::wert_Abbruch}, {"R_Min", &M::R_Min},
    {"color_Offset", &M::color_Offset}, {"zahl_farbtab", &M::zahl_farbtab}, {"g_UnDo", &M::g_UnDo},
    {"g_ZwillingJa", &M::g_ZwillingJa}, {"g_halbesBild", &M::g_halbesBild}, {"kPotHg", &M::kPotHg},
    {"g_SummeGross", &M::g_SummeGross}, {"click2_Zoom", &M::click2_Zoom}, {"Koppl_x", &M::Koppl_x},
    {"konv_Factor", &M::konv_Factor}, {"glg_Abbruch", &M::glg_Abbruch}, {"g_zycmax", &M::g_zycmax},
    {"zahl_Matrix", &M::zahl_Matrix}, {"g_RechnenJa", &M::g_RechnenJa}, {"Koppl_y", &M::Koppl_y},
    {"g_PixConstX", &M::g_PixConstX}, {"g_PixConstY", &M::g_PixConstY}, {"kPotHu", &M::kPotHu},
    {"div_Factor", &M::div_Factor}, {"g_GitterJa", &M::g_GitterJa}, {"it_Factor", &M::it_Factor},
    {"g_JuliaJa", &M::g_JuliaJa}, {"g_GenauJa", &M::g_GenauJa}, {"g_kPotenz", &M::g_kPotenz},
    {"g_OrbitJa", &M::g_OrbitJa}, {"g_OrbitMP", &M::g_OrbitMP}, {"R_Max", &M::R_Max},
    {"I_Min", &M::I_Min}, {"I_Max", &M::I_Max}, {"MP_y", &M::MP_y}, {"Br_x", &M::Br_x},
    {"Br_y", &M::Br_y}, {"CJ_x", &M::CJ_x}, {"CJ_y", &M::CJ_y}, {"OPx", &M::OPx}, {"OPy", &M::OPy},
};
// clang-format on

inline double feldwert(const Mandelbrot& m, Feld feld) {
    return std::visit([&m](auto zeiger) { return static_cast<double>(m.*zeiger); }, feld);
}

/// wert must be one that the field's type holds.
inline void setzeFeld(Mandelbrot& m, Feld feld, double wert) {
    std::visit([&](auto z) { m.*z = static_cast<std::decay_t<decltype(m.*z)>>(wert); }, feld);
}
