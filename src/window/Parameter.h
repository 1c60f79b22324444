#pragma once

#include "UI_Hauptfenster.h"

#include <type_traits>

/// One parameter that panel and model both hold: its spin box, the getter and the setter of the
/// model, as the three things the window does with them.
struct Parameter {
    QAbstractSpinBox* (*bauen)(UI& ui); ///< creates the box with the model's value, no parent
    void (*zeigen)(UI& ui);             ///< model to panel
    void (*lesen)(UI& ui);              ///< panel to model
};

/// The parameter of the box `Feld` (pointer to a member of UI) and of the accessors `Get`, `Set`
/// of Mandelbrot.
template <auto Feld, auto Get, auto Set>
inline constexpr Parameter ParameterAus{
    [](UI& ui) -> QAbstractSpinBox* {
        using Box = std::remove_pointer_t<std::remove_reference_t<decltype(ui.*Feld)>>;
        ui.*Feld = new Box; // the layout becomes the owner
        (ui.*Feld)->setValue((ui.Menge->*Get)());
        return ui.*Feld;
    },
    [](UI& ui) { (ui.*Feld)->setValue((ui.Menge->*Get)()); },
    [](UI& ui) { (ui.Menge->*Set)((ui.*Feld)->value()); },
};

/// The parameters by name.
namespace Werte {
using M = Mandelbrot;
inline constexpr const Parameter* Gleichung =
    &ParameterAus<&UI::UI_wahlGleichung, &M::get_wahl_Gleichung, &M::set_wahl_Gleichung>;
inline constexpr const Parameter* MPx = &ParameterAus<&UI::UI_MPx, &M::get_MP_x, &M::set_MP_x>;
inline constexpr const Parameter* MPy = &ParameterAus<&UI::UI_MPy, &M::get_MP_y, &M::set_MP_y>;
inline constexpr const Parameter* Brx = &ParameterAus<&UI::UI_Brx, &M::get_Br_x, &M::set_Br_x>;
inline constexpr const Parameter* Kopplx =
    &ParameterAus<&UI::UI_Kopplx, &M::get_Koppl_x, &M::set_Koppl_x>;
inline constexpr const Parameter* Kopply =
    &ParameterAus<&UI::UI_Kopply, &M::get_Koppl_y, &M::set_Koppl_y>;
inline constexpr const Parameter* Iterationen =
    &ParameterAus<&UI::UI_Iterationen, &M::get_Max_Iterationen, &M::set_Max_Iterationen>;
inline constexpr const Parameter* wertAbbruch =
    &ParameterAus<&UI::UI_wertAbbruch, &M::get_wert_Abbruch, &M::set_wert_Abbruch>;
inline constexpr const Parameter* glgAbbruch =
    &ParameterAus<&UI::UI_glgAbbruch, &M::get_glg_Abbruch, &M::set_glg_Abbruch>;
inline constexpr const Parameter* CJx = &ParameterAus<&UI::UI_CJx, &M::get_CJ_x, &M::set_CJ_x>;
inline constexpr const Parameter* CJy = &ParameterAus<&UI::UI_CJy, &M::get_CJ_y, &M::set_CJ_y>;
inline constexpr const Parameter* click2Zoom =
    &ParameterAus<&UI::UI_click2Zoom, &M::get_click2_Zoom, &M::set_click2_Zoom>;
inline constexpr const Parameter* divFactor =
    &ParameterAus<&UI::UI_divFactor, &M::get_div_Factor, &M::set_div_Factor>;
inline constexpr const Parameter* konvFactor =
    &ParameterAus<&UI::UI_konvFactor, &M::get_konv_Factor, &M::set_konv_Factor>;
inline constexpr const Parameter* itFactor =
    &ParameterAus<&UI::UI_itFactor, &M::get_it_Factor, &M::set_it_Factor>;
inline constexpr const Parameter* VarianteDiv =
    &ParameterAus<&UI::UI_rechenVarianteDiv, &M::get_rechen_VarianteDiv,
                  &M::set_rechen_VarianteDiv>;
inline constexpr const Parameter* VarianteKonv =
    &ParameterAus<&UI::UI_rechenVarianteKonv, &M::get_rechen_VarianteKonv,
                  &M::set_rechen_VarianteKonv>;
inline constexpr const Parameter* colorOffset =
    &ParameterAus<&UI::UI_colorOffset, &M::get_color_Offset, &M::set_color_Offset>;
inline constexpr const Parameter* zahlfarbtab =
    &ParameterAus<&UI::UI_zahlfarbtab, &M::get_zahl_farbtab, &M::set_zahl_farbtab>;
inline constexpr const Parameter* zahlMatrix =
    &ParameterAus<&UI::UI_zahlMatrix, &M::get_zahl_Matrix, &M::set_zahl_Matrix>;
} // namespace Werte
