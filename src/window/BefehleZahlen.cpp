#include "Befehle.h"

// Steps of single numbers: the buttons of the panel and the menu Zahlen/Numbers. None of them
// changes the title.

using namespace befehle;

namespace befehle {

void echoZoom(UI& fenster) { fenster.UI_click2Zoom->setValue(fenster.Menge->get_click2_Zoom()); }

} // namespace befehle

namespace {

void echoIterationen(UI& f) { f.UI_Iterationen->setValue(f.Menge->get_Max_Iterationen()); }
void echoAbbruch(UI& f) { f.UI_glgAbbruch->setValue(f.Menge->get_glg_Abbruch()); }
void echoWertAbbruch(UI& f) { f.UI_wertAbbruch->setValue(f.Menge->get_wert_Abbruch()); }
void echoItFactor(UI& f) { f.UI_itFactor->setValue(f.Menge->get_it_Factor()); }
void echoDivFactor(UI& f) { f.UI_divFactor->setValue(f.Menge->get_div_Factor()); }
void echoKonvFactor(UI& f) { f.UI_konvFactor->setValue(f.Menge->get_konv_Factor()); }
void echoVarianteDiv(UI& f) { f.UI_rechenVarianteDiv->setValue(f.Menge->get_rechen_VarianteDiv()); }
void echoVarianteKonv(UI& f) {
    f.UI_rechenVarianteKonv->setValue(f.Menge->get_rechen_VarianteKonv());
}
void echoBreite(UI& f) { f.UI_Brx->setValue(f.Menge->get_Br_x()); }
void echoMittelpunkt(UI& f) {
    f.UI_MPx->setValue(f.Menge->get_MP_x());
    f.UI_MPy->setValue(f.Menge->get_MP_y());
}

void iterationenMal(UI& f, double d) {
    schritt(f, echoIterationen, &Mandelbrot::Max_IterationenMalD, d);
}
void abbruchPlus(UI& f, int m) { schritt(f, echoAbbruch, &Mandelbrot::glg_AbbruchPlusM, m); }
void wertAbbruchMal(UI& f, double d) {
    schritt(f, echoWertAbbruch, &Mandelbrot::wert_AbbruchMalD, d);
}
void itFactorMal(UI& f, double d) { schritt(f, echoItFactor, &Mandelbrot::itFactorMalD, d); }
void divFactorMal(UI& f, double d) { schritt(f, echoDivFactor, &Mandelbrot::divFactorMalD, d); }
void konvFactorMal(UI& f, double d) { schritt(f, echoKonvFactor, &Mandelbrot::konvFactorMalD, d); }
void varianteDivPlus(UI& f, int m) {
    schritt(f, echoVarianteDiv, &Mandelbrot::rechen_VarianteDivPlusM, m);
}
void varianteKonvPlus(UI& f, int m) {
    schritt(f, echoVarianteKonv, &Mandelbrot::rechen_VarianteKonvPlusM, m);
}
void breiteMal(UI& f, double d) { schritt(f, echoBreite, &Mandelbrot::BildbreiteMalD, d); }
void mittelpunktNull(UI& f, int k) { schritt(f, echoMittelpunkt, &Mandelbrot::MP_xyGleich0, k); }

// The zoom factor counts for the next click only, so nothing is repainted.
void zoomGleich(UI& f, double d) {
    f.Menge->ZoomGleich(d);
    echoZoom(f);
}
void zoomMal(UI& f, double d) {
    f.Menge->ZoomMalD(d);
    echoZoom(f);
}

constexpr double Drittel = 0.3333333; // seven decimals, meant so

} // namespace

void UI::Max_IterationenMal2Slot() { iterationenMal(*this, 2.0); }
void UI::Max_IterationenDurch2Slot() { iterationenMal(*this, 0.5); }
void UI::Max_IterationenMal10Slot() { iterationenMal(*this, 10.0); }
void UI::Max_IterationenDurch10Slot() { iterationenMal(*this, 0.1); }

void UI::glg_AbbruchPlus1Slot() { abbruchPlus(*this, +1); }
void UI::glg_AbbruchMinus1Slot() { abbruchPlus(*this, -1); }

void UI::wert_AbbruchMal2Slot() { wertAbbruchMal(*this, 2.0); }
void UI::wert_AbbruchDurch2Slot() { wertAbbruchMal(*this, 0.5); }
void UI::wert_AbbruchMal10Slot() { wertAbbruchMal(*this, 10.0); }
void UI::wert_AbbruchDurch10Slot() { wertAbbruchMal(*this, 0.1); }

void UI::itFactorMal2Slot() { itFactorMal(*this, 2.0); }
void UI::itFactorDurch2Slot() { itFactorMal(*this, 0.5); }
void UI::divFactorMal2Slot() { divFactorMal(*this, 2.0); }
void UI::divFactorDurch2Slot() { divFactorMal(*this, 0.5); }
void UI::konvFactorMal2Slot() { konvFactorMal(*this, 2.0); }
void UI::konvFactorDurch2Slot() { konvFactorMal(*this, 0.5); }

void UI::rechen_VarianteDivPlus1Slot() { varianteDivPlus(*this, +1); }
void UI::rechen_VarianteDivMinus1Slot() { varianteDivPlus(*this, -1); }
void UI::rechen_VarianteKonvPlus1Slot() { varianteKonvPlus(*this, +1); }
void UI::rechen_VarianteKonvMinus1Slot() { varianteKonvPlus(*this, -1); }

void UI::BreiteMal10Slot() { breiteMal(*this, 10.0); }
void UI::BreiteDurch10Slot() { breiteMal(*this, 0.1); }
void UI::BreiteMal2Slot() { breiteMal(*this, 2.0); }
void UI::BreiteDurch2Slot() { breiteMal(*this, 0.5); }
void UI::BreiteMal0k75Slot() { breiteMal(*this, 0.75); }
void UI::BreiteMal1k5Slot() { breiteMal(*this, 1.5); }
void UI::BreiteMalZoomSlot() { schritt(*this, echoBreite, &Mandelbrot::BildbreiteMalZoom); }
void UI::BreiteDurchZoomSlot() { schritt(*this, echoBreite, &Mandelbrot::BildbreiteDurchZoom); }

void UI::MP_xyGleich0Slot() { mittelpunktNull(*this, 3); }
void UI::MP_xGleich0Slot() { mittelpunktNull(*this, 1); }
void UI::MP_yGleich0Slot() { mittelpunktNull(*this, 2); }

void UI::ZoomGleichEinsSlot() { zoomGleich(*this, 1.0); }
void UI::ZoomGleich0k25Slot() { zoomGleich(*this, 0.25); }
void UI::ZoomGleich0k5Slot() { zoomGleich(*this, 0.5); }
void UI::ZoomMal2Slot() { zoomMal(*this, 2.0); }
void UI::ZoomDurch2Slot() { zoomMal(*this, 0.5); }
void UI::ZoomMal3Slot() { zoomMal(*this, 3.0); }
void UI::ZoomDurch3Slot() { zoomMal(*this, Drittel); }
void UI::ZoomMal10Slot() { zoomMal(*this, 10.0); }
void UI::ZoomDurch10Slot() { zoomMal(*this, 0.1); }
