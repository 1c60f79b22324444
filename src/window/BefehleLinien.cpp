#include "Befehle.h"

// The line commands of the menu Linien/Lines. All of them repaint and renew the title.

using namespace befehle;

namespace {

/// Sets one switch, g_linienLoeschenJa and g_RechnenJa.
void linie(UI& f, qint32 Mandelbrot::*schalter, qint32 wert, qint32 loeschen,
           Anforderung anforderung) {
    f.Menge->*schalter = wert;
    f.Menge->g_linienLoeschenJa = loeschen;
    f.Menge->g_RechnenJa = anforderung;
    f.zeichnenUndTitel();
}

} // namespace

void UI::MittelkreuzOnSlot() { linie(*this, &Mandelbrot::g_MittelkreuzJa, 1, 0, Rechnen); }
void UI::MittelkreuzOffSlot() { linie(*this, &Mandelbrot::g_MittelkreuzJa, 0, 1, RechnenMitOrbit); }
void UI::NullkreuzOnSlot() { linie(*this, &Mandelbrot::g_NullkreuzJa, 1, 0, Rechnen); }
void UI::NullkreuzOffSlot() { linie(*this, &Mandelbrot::g_NullkreuzJa, 0, 2, RechnenMitOrbit); }
void UI::GitterNullOnSlot() {
    Menge->GitterNullOn();
    linie(*this, &Mandelbrot::g_GitterJa, 1, 0, Rechnen);
}
void UI::GitterMitteOnSlot() {
    Menge->GitterMitteOn();
    linie(*this, &Mandelbrot::g_GitterJa, 2, 0, Rechnen);
}
void UI::GitterOffSlot() {
    Menge->g_Gitterabstand = 0.0;
    linie(*this, &Mandelbrot::g_GitterJa, 0, 3, RechnenMitOrbit);
}

void UI::AlleGitterOffSlot() {
    Menge->g_OrbitJa = OrbitAus;
    Menge->g_OrbitDuennJa = LetzterDick;
    Menge->g_MittelkreuzJa = 0;
    Menge->g_NullkreuzJa = 0;
    Menge->g_Gitterabstand = 0.0;
    Menge->g_maxOrbitIterat = OrbitLaengeVoll;
    Menge->g_OrbitMP = 0;
    Menge->g_OrbitAbIterAn = 0;
    linie(*this, &Mandelbrot::g_GitterJa, 0, 5, Rechnen);
}
